#include "Qvx2Parser/QvxRecords.h"

#include <cstring>
#include <new>

ExtraHeaderDataRec::~ExtraHeaderDataRec()
{
    while (fFrameList)  // one by one: a long list must not recurse
        fFrameList = std::move(fFrameList->fNext);
}

QvxIndex QvxArena::New()
{
    if (fElements.size() >= kMaxElements)
        return 0;
    try {
        if (fElements.size() == fElements.capacity())
            fElements.reserve(fElements.size() < 128 ? 128 : fElements.size() * 2);
        fElements.emplace_back();
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return static_cast<QvxIndex>(fElements.size() - 1);
}

void QvxArena::DropLast(QvxIndex index)
{
    if (index + 1 == fElements.size())
        fElements.pop_back();
}

std::uint32_t QvxArena::NewBlock(std::uint32_t size)
{
    NoxBlock block(static_cast<std::byte*>(NoxMemAlloc(0, std::int64_t{size} + 1)));
    if (!block)
        return 0;
    block[size] = std::byte{0};
    try {
        fBlocks.push_back(std::move(block));
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return static_cast<std::uint32_t>(fBlocks.size());
}

void QvxArena::Trim()
{
    try {
        fElements.shrink_to_fit();
    } catch (const std::bad_alloc&) {
        return;  // what is set aside stays
    }
}

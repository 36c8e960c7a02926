#include "Qvx2Parser/QvxRecords.h"

#include <algorithm>
#include <new>
#include <utility>

namespace {

// The block in which walks of this thread grow their list. Growing one anew for each file would
// cost more than the walk.
constexpr std::size_t kLargestSpare = 32 * 1024;  // elements: 1.25 MiB
thread_local std::vector<DicomHeaderDataStruct> tSpareElements;

void GiveBack(std::vector<DicomHeaderDataStruct>&& block)
{
    if (block.capacity() > tSpareElements.capacity() && block.capacity() <= kLargestSpare)
        tSpareElements = std::move(block);
}

}  // namespace

ExtraHeaderDataRec::~ExtraHeaderDataRec()
{
    while (fFrameList)  // one by one: a long list must not recurse
        fFrameList = std::move(fFrameList->fNext);
}

QvxArena::QvxArena() : fElements(std::move(tSpareElements))
{
    fElements.clear();
    fElements.emplace_back();
}

QvxArena::~QvxArena() { GiveBack(std::move(fElements)); }

bool QvxArena::Grow()
{
    const std::size_t count = fElements.size();
    if (count >= kMaxElements)
        return false;
    try {
        fElements.reserve(
            std::min<std::size_t>(std::max<std::size_t>(count * 2, 256), kMaxElements));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
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
    if (fElements.size() == fElements.capacity())
        return;
    try {
        std::vector<DicomHeaderDataStruct> kept(fElements.begin(), fElements.end());
        std::swap(kept, fElements);
        GiveBack(std::move(kept));
    } catch (const std::bad_alloc&) {
        return;  // what is set aside stays
    }
}

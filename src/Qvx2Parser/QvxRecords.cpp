#include "Qvx2Parser/QvxRecords.h"

#include <algorithm>
#include <new>

namespace {

// Elements of this thread's last walk: the files of a series have one size of header, and a list
// that begins with the right room is neither grown nor copied.
constexpr std::size_t kLargestGuess = 4096;
thread_local std::size_t tLastCount = 128;

// Small values share rooms, but not where a sanitizer is to see who leaves his own.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEL_ADDRESS_SANITIZER
#endif
#elif defined(__SANITIZE_ADDRESS__)
#define ZEL_ADDRESS_SANITIZER
#endif
#ifdef ZEL_ADDRESS_SANITIZER
constexpr std::uint64_t kLargestSmallBlock = 0;
#else
constexpr std::uint64_t kLargestSmallBlock = 256;
#endif
constexpr std::uint64_t kRoomOfSmallBlocks = 1008;

}  // namespace

ExtraHeaderDataRec::~ExtraHeaderDataRec()
{
    while (fFrameList)  // one by one: a long list must not recurse
        fFrameList = std::move(fFrameList->fNext);
}

QvxArena::QvxArena()
{
    fElements.reserve(tLastCount);
    fElements.emplace_back();
}

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

// Most values are a few bytes: an allocation for each would cost more than to read them.
std::byte* QvxArena::NewRoom(std::uint64_t size)
{
    constexpr std::uint64_t kAlignment = 8;
    const std::uint64_t taken = (size + kAlignment - 1) / kAlignment * kAlignment;
    const bool isSmall = taken <= kLargestSmallBlock;
    if (!isSmall || taken > fFreeSize) {
        const std::uint64_t room = isSmall ? kRoomOfSmallBlocks : size;
        NoxBlock made(static_cast<std::byte*>(NoxMemAlloc(0, static_cast<std::int64_t>(room))));
        if (!made)
            return nullptr;
        fRooms.push_back(std::move(made));
        if (!isSmall)
            return fRooms.back().get();
        fFree = fRooms.back().get();
        fFreeSize = room;
    }
    std::byte* block = fFree;
    fFree += taken;
    fFreeSize -= taken;
    return block;
}

std::uint32_t QvxArena::NewBlock(std::uint32_t size)
{
    try {
        std::byte* block = NewRoom(std::uint64_t{size} + 1);
        if (!block)
            return 0;
        block[size] = std::byte{0};
        fBlocks.push_back(block);
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return static_cast<std::uint32_t>(fBlocks.size());
}

void QvxArena::Trim()
{
    const std::size_t count = fElements.size();
    tLastCount = std::min(count + 2, kLargestGuess);
    if (fElements.capacity() <= count + count / 16 + 4)
        return;
    try {
        fElements.shrink_to_fit();
    } catch (const std::bad_alloc&) {
        return;  // what is set aside stays
    }
}

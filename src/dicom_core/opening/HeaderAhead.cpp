#include "dicom_core/opening/HeaderAhead.h"

#include "util/SignalStack.h"

#include <algorithm>
#include <exception>
#include <sys/resource.h>

HeaderAhead::HeaderAhead(std::size_t count, PathOf pathOf)
    : fCount(count), fPathOf(std::move(pathOf)), fSlots(std::min(BlockCount(), kWindow))
{
    if (BlockCount() > 1)
        StartThreads(std::clamp(std::thread::hardware_concurrency(), 1u, kMostThreads));
}

HeaderAhead::~HeaderAhead()
{
    {
        const std::lock_guard lock(fMutex);
        fStop = true;
    }
    fRoom.notify_all();
    for (std::thread& thread : fThreads)
        thread.join();
}

// As many threads as can be had: without any the consumer reads for itself.
void HeaderAhead::StartThreads(std::size_t wanted)
{
    wanted = std::min(wanted, BlockCount());
    try {
        fThreads.reserve(kMostThreads);
        while (fThreads.size() < wanted)
            fThreads.emplace_back([this] { Work(); });
    } catch (const std::exception&) {  // no more threads, or no memory for one
    }
}

void HeaderAhead::Work()
{
    const SignalStack stack;
    for (;;) {
        const std::size_t block = fNextBlock.fetch_add(1, std::memory_order_relaxed);
        if (block >= BlockCount() || !WaitForRoom(block))
            return;
        ReadBlock(block);
        bool wake = false;
        {
            const std::lock_guard lock(fMutex);
            SlotOf(block).fReady = true;
            wake = fConsumerWaits && block == fConsumed;
        }
        if (wake)
            fReady.notify_one();
    }
}

// Blocks are taken in order, so the one that the consumer waits for always has room.
bool HeaderAhead::WaitForRoom(std::size_t block)
{
    std::unique_lock lock(fMutex);
    fRoom.wait(lock, [&] { return fStop || block < fConsumed + fSlots.size(); });
    return !fStop;
}

void HeaderAhead::ReadOne(std::size_t index, ImageHeader* header, const ImageHeader* like) const
{
    try {
        ReadImageHeader(fPathOf(index), header, like ? &like->fRecord : nullptr);
    } catch (const std::bad_alloc&) {
        header->fStatus = kQvxNoMemory;
    }
}

namespace {

// How often this thread has given up its processor to wait for something.
long WaitsOfThread()
{
    rusage usage{};
    return getrusage(RUSAGE_THREAD, &usage) == 0 ? usage.ru_nvcsw : 0;
}

}  // namespace

void HeaderAhead::ReadBlock(std::size_t block)
{
    const long waitsBefore = WaitsOfThread();
    const std::size_t first = block * kBlock, end = std::min(first + kBlock, fCount);
    // Within a block texts are shared: it goes from thread to thread as a whole.
    const ImageHeader* last = nullptr;
    for (std::size_t index = first; index < end && !fStop; ++index) {
        ImageHeader* header = &SlotOf(block).fHeaders[index - first];
        ReadOne(index, header, last);
        last = header;
    }
    // Nothing but the medium makes a thread wait here.
    if (WaitsOfThread() - waitsBefore > static_cast<long>(end - first) / 2)
        fMediumIsSlow = true;
}

bool HeaderAhead::TakeBlock(std::chrono::milliseconds patience)
{
    std::unique_lock lock(fMutex);
    fConsumerWaits = true;
    fHasBlock = fReady.wait_for(lock, patience, [&] { return SlotOf(fConsumed).fReady; });
    fConsumerWaits = false;
    return fHasBlock;
}

void HeaderAhead::GiveBlockBack()
{
    // Texts that the consumer has come to share must not be counted by another thread.
    SlotOf(fConsumed).fHeaders = {};
    {
        const std::lock_guard lock(fMutex);
        SlotOf(fConsumed).fReady = false;
        ++fConsumed;
    }
    fHasBlock = false;
    fRoom.notify_all();
}

ImageHeader* HeaderAhead::Next(std::chrono::milliseconds patience)
{
    if (fHasBlock && fNext % kBlock == 0)  // the last call gave the block's last
        GiveBlockBack();
    if (fNext >= fCount)
        return nullptr;
    if (fThreads.empty()) {
        ImageHeader& header = fSlots[0].fHeaders[0];
        ReadOne(fNext++, &header, nullptr);
        return &header;
    }
    if (fMediumIsSlow && fThreads.size() < kMostThreads)
        StartThreads(kMostThreads);
    if (!fHasBlock && !TakeBlock(patience))
        return nullptr;
    const std::size_t at = fNext++ % kBlock;
    return &SlotOf(fConsumed).fHeaders[at];
}

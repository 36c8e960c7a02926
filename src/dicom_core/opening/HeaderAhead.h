// Reads the headers of many files ahead of whoever wants them, on a few threads, and hands them
// over in the order of the files. As many threads as there are processors keep up with files in
// memory; more are started when they have to wait for the medium.
#pragma once
#include "dicom_core/opening/ImageHeader.h"

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

class HeaderAhead {
public:
    // Path (bytes) of file `index` of 0 … count - 1. Called by the pool's threads; must not throw
    // anything but std::bad_alloc, and outlive this object.
    using PathOf = std::function<std::string(std::size_t index)>;

    HeaderAhead(std::size_t count, PathOf pathOf);
    // Ends the pool: each thread finishes at most the file that it is at.
    ~HeaderAhead();
    HeaderAhead(const HeaderAhead&) = delete;
    HeaderAhead& operator=(const HeaderAhead&) = delete;

    // The header of the next file, the caller's to take apart until the next call. Its texts may be
    // shared with headers around it. Null if it has not come after `patience`, and behind the last
    // file.
    [[nodiscard]] ImageHeader* Next(std::chrono::milliseconds patience);

private:
    static constexpr std::size_t kBlock = 32;   // files that a thread takes at a time
    static constexpr std::size_t kWindow = 32;  // blocks that may be under way or waiting
    static constexpr unsigned kMostThreads = 6;

    struct Block {
        std::array<ImageHeader, kBlock> fHeaders;
        bool fReady = false;
    };

    void StartThreads(std::size_t wanted);
    void Work();
    [[nodiscard]] bool WaitForRoom(std::size_t block);
    void ReadBlock(std::size_t block);
    void ReadOne(std::size_t index, ImageHeader* header, const ImageHeader* like) const;
    [[nodiscard]] bool TakeBlock(std::chrono::milliseconds patience);
    void GiveBlockBack();
    [[nodiscard]] std::size_t BlockCount() const { return (fCount + kBlock - 1) / kBlock; }
    [[nodiscard]] Block& SlotOf(std::size_t block) { return fSlots[block % fSlots.size()]; }

    const std::size_t fCount;
    const PathOf fPathOf;
    std::vector<Block> fSlots;
    std::atomic<std::size_t> fNextBlock{0};  // that no thread has taken yet
    std::atomic<bool> fStop{false};
    std::atomic<bool> fMediumIsSlow{false};  // a thread has waited for it, time and again

    std::mutex fMutex;          // guards the next two, and each slot's fReady
    std::size_t fConsumed = 0;  // blocks
    bool fConsumerWaits = false;
    std::condition_variable fRoom, fReady;

    std::size_t fNext = 0;   // file; the consumer's alone
    bool fHasBlock = false;  // block fConsumed is the consumer's until it gives it back
    std::vector<std::thread> fThreads;
};

#include "pixels/RowPool.h"

#include "util/SignalStack.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <pthread.h>
#include <system_error>
#include <thread>

namespace {

constexpr std::int64_t kPixelsForThreads = std::int64_t{1} << 20;
constexpr int kMostParts = 8;  // each has preparations of its own to make and to keep
constexpr std::chrono::seconds kIdle{5};

// A forked process has the pool's fields but none of its threads, and perhaps a lock held by one.
std::atomic<bool> gForked = false;

class RowPool : public std::enable_shared_from_this<RowPool> {
public:
    void Run(int parts, const std::function<void(int)>& part)
    {
        const std::unique_lock<std::mutex> ours(fInUse, std::try_to_lock);
        if (!ours) {
            for (int i = 0; i < parts; ++i)
                part(i);
            return;
        }
        std::unique_lock<std::mutex> lock(fLock);
        fPart = &part;
        fNext = 0;
        fParts = fPending = parts;
        StartThreads(parts - 1);
        fWork.notify_all();
        TakeParts(&lock);
        fDone.wait(lock, [this] { return fPending == 0; });
        fPart = nullptr;
    }

private:
    // Fewer than wanted are enough: the caller takes what nobody else does.
    void StartThreads(int wanted)
    {
        try {
            for (; fThreads < wanted; ++fThreads)
                std::thread([pool = shared_from_this()] { pool->Serve(); }).detach();
        } catch (const std::system_error&) {
            return;
        } catch (const std::bad_alloc&) {
            return;
        }
    }

    void Serve()
    {
        const SignalStack stack;
        std::unique_lock<std::mutex> lock(fLock);
        while (fWork.wait_for(lock, kIdle, [this] { return fNext < fParts; }))
            TakeParts(&lock);
        --fThreads;
    }

    void TakeParts(std::unique_lock<std::mutex>* lock)
    {
        while (fNext < fParts) {
            const int i = fNext++;
            const std::function<void(int)>& part = *fPart;
            lock->unlock();
            part(i);
            lock->lock();
            if (--fPending == 0)
                fDone.notify_one();
        }
    }

    std::mutex fInUse;  // by one caller at a time
    std::mutex fLock;   // of what follows
    std::condition_variable fWork, fDone;
    const std::function<void(int)>* fPart = nullptr;
    int fNext = 0, fParts = 0, fPending = 0, fThreads = 0;
};

// Threads hold the pool too, so that one which ends after the program's last statement finds it.
RowPool& Pool()
{
    static const std::shared_ptr<RowPool> kPool = [] {
        ::pthread_atfork(nullptr, nullptr, [] { gForked = true; });
        return std::make_shared<RowPool>();
    }();
    return *kPool;
}

}  // namespace

int PartsOfWork(std::int64_t pixels)
{
    static const int kProcessors =
        std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostParts);
    return pixels < kPixelsForThreads ? 1 : kProcessors;
}

void RunParts(int parts, const std::function<void(int)>& part)
{
    if (parts > 1 && !gForked) {
        Pool().Run(parts, part);
        return;
    }
    for (int i = 0; i < parts; ++i)
        part(i);
}

#include "platform/MainThreadCalls.h"

#include <utility>

void MainThreadCalls::CallAndWait(const std::function<void()>& call)
{
    std::unique_lock lock(fMutex);
    if (fClosed)
        return;
    bool done = false;
    fCalls.push_back({call, &done});
    fArrived.notify_one();
    fFinished.wait(lock, [&] { return done; });
}

void MainThreadCalls::Post(std::function<void()> call)
{
    const std::lock_guard lock(fMutex);
    if (fClosed)
        return;
    fCalls.push_back({std::move(call), nullptr});
    fArrived.notify_one();
}

void MainThreadCalls::RunAll(std::unique_lock<std::mutex>* lock)
{
    while (!fCalls.empty()) {
        const Call call = std::move(fCalls.front());
        fCalls.pop_front();
        lock->unlock();
        call.fRun();
        lock->lock();
        if (call.fDone)
            *call.fDone = true;
        fFinished.notify_all();
    }
}

void MainThreadCalls::Service(std::chrono::milliseconds slice)
{
    std::unique_lock lock(fMutex);
    fArrived.wait_for(lock, slice, [this] { return !fCalls.empty(); });
    RunAll(&lock);
}

void MainThreadCalls::Close()
{
    std::unique_lock lock(fMutex);
    RunAll(&lock);
    fClosed = true;
}

// How a worker has something done on the main thread. The main thread serves calls when it says so,
// inside its own loop; no toolkit is needed for that. Everything that a call touches is seen whole
// by both sides.
#pragma once
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

class MainThreadCalls {
public:
    // Worker: runs `call` on the main thread and returns when it has run. The main thread must be
    // in its loop of Service; a call after Close is dropped. What the call throws is not caught.
    void CallAndWait(const std::function<void()>& call);
    // Worker: the same without waiting.
    void Post(std::function<void()> call);

    // Main: runs what waits; without anything waits for it, at most as long as `slice`.
    void Service(std::chrono::milliseconds slice);
    // Main: runs what is still there and lets nobody wait any more.
    void Close();

private:
    void RunAll(std::unique_lock<std::mutex>* lock);

    struct Call {
        std::function<void()> fRun;
        bool* fDone = nullptr;  // of a caller that waits
    };
    std::mutex fMutex;
    std::condition_variable fArrived, fFinished;
    std::deque<Call> fCalls;
    bool fClosed = false;
};

// A stack for the signal handlers of one thread: one that has overflowed holds no handler, and a
// crash there would leave no report. Every thread that we start stands on one while it works; it
// costs address space only until a handler runs. The thread that makes it lets it go.
#pragma once
#include <csignal>
#include <cstddef>
#include <memory>

class SignalStack {
public:
    SignalStack() : fMemory(new char[kSize])  // untouched, so no page of it is used yet
    {
        stack_t own{};
        own.ss_sp = fMemory.get();
        own.ss_size = kSize;
        sigaltstack(&own, &fBefore);
    }
    ~SignalStack() { sigaltstack(&fBefore, nullptr); }
    SignalStack(const SignalStack&) = delete;
    SignalStack& operator=(const SignalStack&) = delete;

private:
    static constexpr std::size_t kSize = 64 * 1024;
    const std::unique_ptr<char[]> fMemory;
    stack_t fBefore{};
};

#include "app/shell/QuitSignals.h"

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};
volatile std::sig_atomic_t gWriteEnd = -1;

extern "C" void TellOfSignal(int)
{
    const int before = errno;
    const char byte = 1;
    // A full pipe has already been told.
    [[maybe_unused]] const auto written = write(gWriteEnd, &byte, 1);
    errno = before;
}

// One that was ignored from the start stays so: nohup means it.
void SetHandlers(void (*handler)(int))
{
    struct sigaction action{}, before{};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : kSignals) {
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
}

}  // namespace

QuitSignals::QuitSignals(std::function<void()> quit) : fQuit(std::move(quit))
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    fReadEnd = ends[0];
    gWriteEnd = ends[1];
    fNotifier = new QSocketNotifier(fReadEnd, QSocketNotifier::Read, this);
    connect(fNotifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (read(fReadEnd, &byte, 1) == 1) {
        }
        fQuit();
    });
    SetHandlers(TellOfSignal);
}

QuitSignals::~QuitSignals()
{
    if (fReadEnd < 0)
        return;
    SetHandlers(SIG_DFL);
    close(std::exchange(gWriteEnd, -1));
    close(fReadEnd);
}

#include "app/recovery/CrashHandler.h"

#include "platform/Folders.h"
#include "util/SignalStack.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <exception>
#include <execinfo.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::array kSignals = {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT};
constexpr int kMostFrames = 64;
constexpr unsigned kPatience_s = 10;

// All that the handler touches is made before; it may call nothing that isn't safe in a signal.
char gPathStart[4096];  // folder and program's name, to which the handler adds date and number
std::atomic<bool> gWrites = false;

// Numbers and texts into a file, without allocating.
class Line {
public:
    explicit Line(int file) : fFile(file) {}
    Line& operator<<(std::string_view text)
    {
        while (!text.empty()) {
            const ssize_t n = write(fFile, text.data(), text.size());
            if (n <= 0)
                break;
            text.remove_prefix(static_cast<std::size_t>(n));
        }
        return *this;
    }
    Line& Number(std::uint64_t value, unsigned base = 10)
    {
        char digits[24];
        char* at = digits + sizeof digits;
        do
            *--at = "0123456789abcdef"[value % base];
        while ((value /= base) != 0);
        return *this << std::string_view(at, static_cast<std::size_t>(digits + sizeof digits - at));
    }

private:
    int fFile;
};

char* Append(char* at, char* end, std::uint64_t value)
{
    char digits[24];
    char* first = digits + sizeof digits;
    do
        *--first = static_cast<char>('0' + value % 10);
    while ((value /= 10) != 0);
    while (first != digits + sizeof digits && at + 1 < end)
        *at++ = *first++;
    *at = 0;
    return at;
}

int OpenReport()
{
    static char path[sizeof gPathStart + 64];
    std::memcpy(path, gPathStart, sizeof gPathStart);
    char* const end = path + sizeof path;
    char* at = path + std::strlen(path);
    at = Append(at, end, static_cast<std::uint64_t>(time(nullptr)));
    *at++ = '_';
    at = Append(at, end, static_cast<std::uint64_t>(getpid()));
    std::memcpy(at, ".crash", sizeof ".crash");
    return open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
}

// What is loaded where: addresses of the trace mean nothing without.
void CopyMaps(int report)
{
    const int maps = open("/proc/self/maps", O_RDONLY | O_CLOEXEC);
    if (maps < 0)
        return;
    static char bytes[4096];
    for (ssize_t n = 0; (n = read(maps, bytes, sizeof bytes)) > 0;)
        Line(report) << std::string_view(bytes, static_cast<std::size_t>(n));
    close(maps);
}

void WriteReport(int signal, const siginfo_t* info)
{
    const int report = OpenReport();
    if (report < 0)
        return;
    Line line(report);
    line << "Signal ";
    line.Number(static_cast<std::uint64_t>(signal)) << " code ";
    line.Number(static_cast<std::uint64_t>(info ? info->si_code : 0) & 0xFFFFFFFFU, 16)
        << " address 0x";
    const bool faults = signal == SIGSEGV || signal == SIGBUS;
    line.Number(info && faults ? reinterpret_cast<std::uintptr_t>(info->si_addr) : 0, 16)
        << "\nTrace:\n";
    static void* frames[kMostFrames];
    backtrace_symbols_fd(frames, backtrace(frames, kMostFrames), report);
    line << "Loaded:\n";
    CopyMaps(report);
    close(report);
}

extern "C" void OnCrash(int signal, siginfo_t* info, void*)
{
    // One thread writes, within its time: a trace that waits for a lock of the loader would never
    // end. Another that fails meanwhile waits for it; the writer itself ends at once.
    static std::atomic<pid_t> writer = 0;
    const pid_t self = static_cast<pid_t>(syscall(SYS_gettid));
    pid_t none = 0;
    if (gWrites && writer.compare_exchange_strong(none, self)) {
        alarm(kPatience_s);
        WriteReport(signal, info);
        gWrites = false;
    }
    while (gWrites && writer != self)
        pause();
    struct sigaction action{};
    action.sa_handler = SIG_DFL;
    sigaction(signal, &action, nullptr);
    raise(signal);
}

}  // namespace

bool InstallCrashHandler(const std::string& folder, const std::string& programName)
{
    const std::string start = folder + '/' + programName + '_';
    if (!MakePrivateFolders(folder) || start.size() >= sizeof gPathStart)
        return false;
    std::memcpy(gPathStart, start.c_str(), start.size() + 1);
    void* frame = nullptr;
    backtrace(&frame, 1);  // loads what it needs, which a handler may not
    static const SignalStack stack;
    gWrites = true;
    struct sigaction action{};
    action.sa_sigaction = OnCrash;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    for (const int signal : kSignals)
        sigaction(signal, &action, nullptr);
    return true;
}

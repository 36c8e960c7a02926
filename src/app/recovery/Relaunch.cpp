#include "app/recovery/Relaunch.h"

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

// A process that belongs to nobody waits at a pipe whose other end closes with this one. Between
// fork and exec only calls that are safe in any state of the program.
bool RelaunchAfterEnd(const std::string& program)
{
    std::array<int, 2> ends{};
    if (access(program.c_str(), X_OK) != 0 || pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    const pid_t child = fork();
    if (child == 0) {
        close(ends[1]);
        if (fork() != 0)
            _exit(0);
        setsid();
        char byte = 0;
        while (read(ends[0], &byte, 1) > 0) {
        }
        signal(SIGPIPE, SIG_DFL);  // what is ignored stays so in the next program
        execl(program.c_str(), program.c_str(), static_cast<char*>(nullptr));
        _exit(1);
    }
    close(ends[0]);
    if (child < 0) {
        close(ends[1]);
        return false;
    }
    waitpid(child, nullptr, 0);
    return true;  // the end that stays open goes with this process
}

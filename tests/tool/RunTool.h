// Runs the built `zelora` as its users do, and keeps what it said.
#pragma once
#include "fixtures/TempFolder.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

struct ToolRun {
    int code = -1;  // exit code; -1 when a signal ended it, that of the clock among them
    std::string out, err;
};

inline std::string ReadAll(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// A program that waits for something is ended after 30 seconds.
inline ToolRun RunTool(std::vector<std::string> words)
{
    const TempFolder folder;
    const std::string out = folder.Path("out"), err = folder.Path("err");
    words.insert(words.begin(), ZELORA_TOOL);
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        const int flags = O_WRONLY | O_CREAT | O_TRUNC;
        if (::dup2(::open(out.c_str(), flags, 0600), 1) < 0 ||
            ::dup2(::open(err.c_str(), flags, 0600), 2) < 0)
            ::_exit(126);
        ::setenv("HOME", folder.Path().c_str(), 1);  // nobody's preferences
        ::unsetenv("XDG_CONFIG_HOME");
        ::unsetenv("XDG_CACHE_HOME");
        ::alarm(30);
        ::execv(arguments[0], arguments.data());
        ::_exit(127);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child)
        return {};
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(out), ReadAll(err)};
}

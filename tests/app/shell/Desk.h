// A user of one's own who starts the program as the desktop does, in processes of their own.
#pragma once
#include "dicom_core/opening/OpeningFixtures.h"
#include "fixtures/TempFolder.h"
#include "platform/PropertyList.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

// With nothing but a folder of images.
class Desk {
public:
    Desk()
    {
        for (int i = 0; i < 300; ++i)
            folder.WriteFile("study/" + std::to_string(i),
                             SmallImage({.instance = "1.7." + std::to_string(i)}));
        for (const char* name : {"config", "data", "cache", "runtime"})
            fs::create_directories(folder.Path(name));
        fs::permissions(folder.Path("runtime"), fs::perms::owner_all);
    }
    ~Desk()
    {
        for (const pid_t left : Running())
            kill(left, SIGKILL);
    }
    // Null for `what`: without a path. With a `display` on that, else on none.
    [[nodiscard]] pid_t Start(const char* program = ZELORA_VIEWER, const char* what = "study",
                              const char* display = nullptr) const
    {
        const pid_t child = fork();
        if (child != 0)
            return child;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        setenv("XDG_CONFIG_HOME", folder.Path("config").c_str(), 1);
        setenv("XDG_DATA_HOME", folder.Path("data").c_str(), 1);
        setenv("XDG_CACHE_HOME", folder.Path("cache").c_str(), 1);
        setenv("XDG_RUNTIME_DIR", folder.Path("runtime").c_str(), 1);
        setenv("QT_QPA_PLATFORM", display ? "xcb" : "offscreen", 1);
        setenv("DISPLAY", display ? display : "", 1);
        setenv("QT_LOGGING_RULES", "*.warning=false", 1);
        if (inChild)
            inChild();
        const std::string path = what ? folder.Path(what) : std::string();
        execl(program, program, what ? path.c_str() : nullptr, static_cast<char*>(nullptr));
        _exit(127);
    }
    // How it ended: its code, or 256 and the signal.
    static int Wait(pid_t child)
    {
        int code = 0;
        waitpid(child, &code, 0);
        return WIFSIGNALED(code) ? 256 + WTERMSIG(code) : WEXITSTATUS(code);
    }
    // Runs until it has put its lock down, then asks it to end. With first aid before, that is
    // answered by the request to end, and the start goes on.
    [[nodiscard]] int RunAndQuit() const
    {
        const pid_t child = Start();
        for (int i = 0; i < 40; ++i)
            usleep(10'000);
        kill(child, SIGTERM);
        return Wait(child);
    }
    [[nodiscard]] QVariantMap Preferences() const
    {
        const PropertyListReading reading =
            ReadPropertyListFile(folder.Path("config/org.zelora.Viewer/preferences.plist"));
        EXPECT_TRUE(reading.IsSound() || reading.fStatus == kQvxFileNotFound) << reading.fFault;
        return reading.fRoot.toMap();
    }
    [[nodiscard]] int Crashes() const
    {
        return Preferences().value(QStringLiteral("CrashCounter")).toInt();
    }
    [[nodiscard]] bool HasLock() const
    {
        return fs::exists(folder.Path("data/org.zelora.Viewer/CrashLocks"));
    }
    // Folders of processes, and what they hold; not the one that all of them share.
    [[nodiscard]] std::vector<std::string> LeftInCaches() const
    {
        std::vector<std::string> left;
        for (const auto& entry :
             fs::recursive_directory_iterator(folder.Path("cache/org.zelora.Viewer"))) {
            if (entry.path().filename() != "Data")
                left.push_back(entry.path().native());
        }
        return left;
    }
    // Processes of this desk, whoever started them.
    [[nodiscard]] std::vector<pid_t> Running() const
    {
        std::vector<pid_t> found;
        for (const auto& entry : fs::directory_iterator("/proc")) {
            std::ifstream file(entry.path() / "environ", std::ios::binary);
            const std::string words{std::istreambuf_iterator<char>(file), {}};
            if (words.find("XDG_CONFIG_HOME=" + folder.Path("config")) != std::string::npos)
                found.push_back(std::stoi(entry.path().filename()));
        }
        return found;
    }
    TempFolder folder;
    std::function<void()> inChild;
};

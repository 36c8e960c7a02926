#include "platform/Folders.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char* kProgram = "org.zelora.Viewer";

std::string AbsoluteVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value == '/' ? value : std::string();
}

// A relative path in a base variable counts as unset.
std::string ProgramFolder(const char* variable, const char* underHome)
{
    std::string base = AbsoluteVariable(variable);
    if (base.empty()) {
        const std::string home = UserHomeFolder();
        if (home.empty())
            return {};
        base = home + '/' + underHome;
    }
    while (base.size() > 1 && base.back() == '/')
        base.pop_back();
    return base + '/' + kProgram;
}

std::string Made(std::string path)
{
    return !path.empty() && MakePrivateFolders(path) ? path : std::string();
}

// Made by this user and closed to all others. A link is not followed.
bool IsOwnPrivateFolder(const std::string& path)
{
    struct stat info{};
    return lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
           (info.st_mode & 077) == 0;
}

}  // namespace

std::string UserHomeFolder()
{
    const std::string home = AbsoluteVariable("HOME");
    if (!home.empty())
        return home;
    std::vector<char> room(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &entry, room.data(), room.size(), &found) != 0 || !found)
        return {};
    return found->pw_dir && *found->pw_dir == '/' ? found->pw_dir : std::string();
}

bool MakePrivateFolders(const std::string& path)
{
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        // What exists already, or can't be made, shows at the last step.
        mkdir(path.substr(0, end).c_str(), 0700);
        if (end == std::string::npos)
            break;
    }
    struct stat info{};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string UserConfigFolderPath() { return ProgramFolder("XDG_CONFIG_HOME", ".config"); }
std::string UserConfigFolder() { return Made(UserConfigFolderPath()); }
std::string UserCachesFolder() { return Made(ProgramFolder("XDG_CACHE_HOME", ".cache")); }
std::string UserDataFolder() { return Made(ProgramFolder("XDG_DATA_HOME", ".local/share")); }

std::string TemporaryFolder()
{
    std::string base = AbsoluteVariable("TMPDIR");
    if (base.empty())
        base = "/tmp";
    // Others may write there too, so the name carries the user, and who owns it is looked at.
    std::string path = base + '/' + kProgram + '-' + std::to_string(geteuid());
    mkdir(path.c_str(), 0700);
    if (IsOwnPrivateFolder(path))
        return path;
    path += "-XXXXXX";
    return mkdtemp(path.data()) ? path : std::string();
}

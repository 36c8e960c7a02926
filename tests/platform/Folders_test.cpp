// Where the program's folders lie, and that they are the user's alone.
#include "platform/Folders.h"

#include "fixtures/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

// A variable for the time of a test.
class Variable {
public:
    Variable(const char* name, const std::string& value) : fName(name)
    {
        if (const char* old = std::getenv(name))
            fOld = old;
        setenv(name, value.c_str(), 1);
    }
    ~Variable() { fOld.empty() ? unsetenv(fName) : setenv(fName, fOld.c_str(), 1); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* fName;
    std::string fOld;
};

unsigned ModeOf(const std::string& path)
{
    struct stat info{};
    return stat(path.c_str(), &info) == 0 ? info.st_mode & 07777U : 0;
}

TEST(Folders, follow_the_base_variables_and_are_private)
{
    const TempFolder folder;
    const Variable home("HOME", folder.Path("home"));
    const Variable cache("XDG_CACHE_HOME", folder.Path("deep/cache/"));
    const Variable config("XDG_CONFIG_HOME", "relative/counts/as/unset");

    EXPECT_EQ(UserCachesFolder(), folder.Path("deep/cache/org.zelora.Viewer"));
    EXPECT_EQ(ModeOf(UserCachesFolder()), 0700U);
    EXPECT_EQ(ModeOf(folder.Path("deep")), 0700U);
    EXPECT_EQ(UserConfigFolderPath(), folder.Path("home/.config/org.zelora.Viewer"));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("home")));  // asking makes nothing

    folder.WriteFile("blocked", "a file where a folder should be");
    const Variable data("XDG_DATA_HOME", folder.Path("blocked"));
    EXPECT_EQ(UserDataFolder(), "");
}

TEST(TemporaryFolder, is_never_one_that_others_could_have_prepared)
{
    const TempFolder folder;
    const Variable base("TMPDIR", folder.Path());
    const std::string usual = TemporaryFolder();
    EXPECT_EQ(ModeOf(usual), 0700U);
    EXPECT_EQ(TemporaryFolder(), usual);

    std::filesystem::remove(usual);
    std::filesystem::create_directory(folder.Path("elsewhere"));
    std::filesystem::permissions(folder.Path("elsewhere"), std::filesystem::perms::owner_all);
    std::filesystem::create_directory_symlink(folder.Path("elsewhere"), usual);
    EXPECT_NE(TemporaryFolder(), usual);  // a link

    std::filesystem::remove(usual);
    std::filesystem::create_directory(usual);
    std::filesystem::permissions(usual, std::filesystem::perms::all);
    const std::string other = TemporaryFolder();  // open to all
    EXPECT_NE(other, usual);
    EXPECT_EQ(ModeOf(other), 0700U);
}

}  // namespace

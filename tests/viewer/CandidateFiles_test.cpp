// Which files paths stand for, and the order in which people expect them.
#include "viewer/CandidateFiles.h"

#include "fixtures/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

TEST(NaturalLess, sorts_names_as_people_do)
{
    const std::vector<std::string> wanted = {"",
                                             "-a",
                                             "001",
                                             "01",
                                             "1",
                                             "1.dcm",
                                             "1a",
                                             "2",
                                             "010",
                                             "10",
                                             "A1",
                                             "a1",
                                             "A2",
                                             "IM1",
                                             "im9",
                                             "IM10",
                                             "IM99999999999999999999998",
                                             "IM99999999999999999999999",
                                             "x",
                                             "x0",
                                             "x00y",
                                             "x0z",
                                             "\xC3\xA4"};
    std::vector<std::string> names(wanted.rbegin(), wanted.rend());
    std::ranges::sort(names, NaturalLess);
    EXPECT_EQ(names, wanted);
    for (const std::string& a : wanted) {  // a total order: exactly one of two names comes first
        for (const std::string& b : wanted)
            EXPECT_EQ(NaturalLess(a, b) + NaturalLess(b, a), a == b ? 0 : 1) << a << '|' << b;
    }
}

TEST(CandidateFiles, lists_regular_files_and_opens_nothing_else)
{
    const TempFolder folder;
    for (const char* name : {"set/b10", "set/b9", "set/inner/c", "other/a"})
        folder.WriteFile(name, "x");
    std::filesystem::create_directory(folder.Path("empty"));
    std::filesystem::create_symlink("b9", folder.Path("set/link"));
    std::filesystem::create_symlink("nowhere", folder.Path("set/dangling"));
    std::filesystem::create_directory_symlink("../other", folder.Path("set/folderlink"));
    ASSERT_EQ(mkfifo(folder.Path("set/pipe").c_str(), 0600), 0);  // opening it would wait

    const auto all = [&](const std::vector<std::string>& names) {
        std::vector<std::string> paths;
        for (const std::string& name : names)
            paths.push_back(folder.Path(name));
        return paths;
    };
    const std::vector<std::string> inSet = all({"set/b9", "set/b10", "set/link"});
    EXPECT_EQ(CandidateFiles(all({"set"})).files, inSet);

    std::vector<std::string> twoPaths = all({"other/a"});
    twoPaths.insert(twoPaths.end(), inSet.begin(), inSet.end());
    EXPECT_EQ(CandidateFiles(all({"other/a", "set"})).files, twoPaths);  // in the order given

    auto bad = all({"none", "empty", "set/pipe"});
    bad.insert(bad.end(), {"", "/dev/null"});
    const CandidateList list = CandidateFiles(bad);
    EXPECT_TRUE(list.files.empty());
    ASSERT_EQ(list.problems.size(), bad.size());
    EXPECT_EQ(list.problems[0], bad[0] + ": No such file or directory");
    EXPECT_EQ(list.problems[2], bad[2] + ": neither a file nor a folder");
}

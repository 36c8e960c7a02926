// Folders that hold more than files, and the ways in which one thing stands for another.
#include "platform/FileCatalog.h"

#include "fixtures/TempFolder.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

TEST(ListFolder, tells_kinds_and_hidden_names_in_byte_order)
{
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    folder.WriteFile("b.dcm", "x");
    folder.WriteFile("B.dcm", "x");
    folder.WriteFile("\xFFname", "x");
    folder.WriteFile("listed", "x");
    folder.WriteFile(".dot", "x");
    folder.WriteFile(".hidden", "listed\nsub/\n\nno such name");
    fs::create_symlink("b.dcm", folder.Path("toFile"));
    fs::create_symlink("sub", folder.Path("toFolder"));
    fs::create_symlink("toLoop", folder.Path("toLoop"));
    ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", folder.Path("toPipe"));

    std::vector<CatalogEntry> entries;
    ASSERT_EQ(ListFolder(folder.Path(), &entries), kQvxOK);

    const CatalogEntry wanted[] = {
        {".dot", CatalogKind::File, true},
        {".hidden", CatalogKind::File, true},
        {"B.dcm", CatalogKind::File, false},
        {"b.dcm", CatalogKind::File, false},
        {"listed", CatalogKind::File, true},
        {"pipe", CatalogKind::Other, false},
        {"sub", CatalogKind::Folder, false},
        {"toFile", CatalogKind::LinkToFile, false},
        {"toFolder", CatalogKind::LinkToFolder, false},
        {"toLoop", CatalogKind::BrokenLink, false},
        {"toPipe", CatalogKind::Other, false},
        {"\xFFname", CatalogKind::File, false},
    };
    ASSERT_EQ(entries.size(), std::size(wanted));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        SCOPED_TRACE(wanted[i].fName);
        EXPECT_EQ(entries[i].fName, wanted[i].fName);
        EXPECT_EQ(entries[i].fKind, wanted[i].fKind);
        EXPECT_EQ(entries[i].fHidden, wanted[i].fHidden);
    }
}

TEST(ListFolder, answers_an_errno_and_waits_for_nothing)
{
    const TempFolder folder;
    const std::string pipe = folder.Path(".hidden");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::vector<CatalogEntry> entries{{"kept", CatalogKind::File, false}};
    EXPECT_EQ(ListFolder(folder.Path("missing"), &entries), ENOENT);
    EXPECT_EQ(ListFolder(pipe, &entries), ENOTDIR);
    EXPECT_EQ(entries.size(), 1U);
    EXPECT_EQ(ListFolder(folder.Path(), &entries), kQvxOK);  // its list of names is a pipe
    EXPECT_FALSE(PathIsInvisible(folder.Path("other")));
}

TEST(PathIsInvisible, looks_at_the_name_and_the_list_beside_it)
{
    const TempFolder folder;
    folder.WriteFile(".hidden", "listed\r\nlisted\n" + std::string(70000, 'x') + "\nlate");
    const struct {
        std::string path;
        bool wanted;
    } rows[] = {
        {folder.Path(".dot"), true},
        {folder.Path("listed"), true},
        {folder.Path("listed//"), true},
        {folder.Path("list"), false},
        {folder.Path("late"), false},  // past what is read of the list
        {folder.Path("."), false},
        {folder.Path(".."), false},
        {"/", false},
        {"", false},
        {".relative", true},
        {folder.Path("no/such/name"), false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(PathIsInvisible(row.path), row.wanted) << row.path;
}

TEST(FolderIsPackage, goes_by_the_end_of_the_name)
{
    for (const char* name : {"/a/Viewer.app", "X.APP/", "y.Framework", "a.b.pkg", "Tool.AppDir"})
        EXPECT_TRUE(FolderIsPackage(name)) << name;
    for (const char* name : {"/a.app/images", "app", ".app", "x.apple", "x.app.old", "xapp", "/"})
        EXPECT_FALSE(FolderIsPackage(name)) << name;
}

class ResolveAliasTest : public testing::Test {
protected:
    ResolveAliasTest()
    {
        fs::create_directory(fFolder.Path("sub dir"));
        fFile = fs::canonical(fFolder.WriteFile("sub dir/im\xE9.dcm", "x")).string();
    }
    void WriteLink(const std::string& name, const std::string& url)
    {
        fFolder.WriteFile(name, "# a comment\n[Desktop Entry]\nType = Link\nURL=" + url +
                                    "\n[Other]\nURL=file:///other\n");
    }
    TempFolder fFolder;
    std::string fFile;
};

TEST_F(ResolveAliasTest, follows_links_and_desktop_links_to_what_exists)
{
    const std::string here = fFolder.Path();
    fs::create_symlink("sub dir/im\xE9.dcm", fFolder.Path("relative"));
    fs::create_symlink(fFolder.Path("relative"), fFolder.Path("second"));
    fs::create_symlink("loop", fFolder.Path("loop"));
    fs::create_symlink("gone", fFolder.Path("broken"));
    WriteLink("url.desktop", "file://" + here + "/sub%20dir/im%e9.dcm");
    WriteLink("host.desktop", "file://localhost" + here + "/url.desktop");
    WriteLink("far.desktop", "file://server" + here + "/second");
    WriteLink("web.desktop", "http://example.org/");
    WriteLink("nul.desktop", "file://" + here + "/second%00x");
    WriteLink("self.desktop", "file://" + here + "/self.desktop");
    WriteLink("text.txt", "file://" + here + "/second");
    fs::create_symlink("host.desktop", fFolder.Path("mixed"));
    fFolder.WriteFile("start.desktop", "[Desktop Entry]\nType=Application\nURL=file:///\n");

    for (const char* alias : {"relative", "second", "url.desktop", "host.desktop", "mixed"}) {
        std::string target;
        EXPECT_TRUE(ResolveAlias(fFolder.Path(alias), &target)) << alias;
        EXPECT_EQ(target, fFile) << alias;
    }
    for (const char* other : {"loop", "broken", "far.desktop", "web.desktop", "nul.desktop",
                              "self.desktop", "text.txt", "start.desktop", "sub dir", "missing"}) {
        std::string target = "untouched";
        EXPECT_FALSE(ResolveAlias(fFolder.Path(other), &target)) << other;
        EXPECT_EQ(target, "untouched") << other;
    }
}

}  // namespace

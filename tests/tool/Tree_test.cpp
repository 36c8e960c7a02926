// `zelora tree` as a whole: what it says of a path, in both forms, and how it fails.
#include "fixtures/DicomBuilder.h"
#include "fixtures/DicomDirectory.h"
#include "tool/RunTool.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::string Image(const char* modality, const char* instance, const char* number)
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .Element(0x0008, 0x0005, "CS", "ISO_IR 100")
        .Element(0x0008, 0x0018, "UI", instance)
        .Element(0x0008, 0x0020, "DA", "20200131")
        .Element(0x0008, 0x0060, "CS", modality)
        .Element(0x0010, 0x0010, "PN", "M\xFCller^Jo")
        .Element(0x0010, 0x0020, "LO", "77")
        .Element(0x0020, 0x000D, "UI", "1.2.1")
        .Element(0x0020, 0x000E, "UI", std::string("1.2.") + instance[2])
        .Element(0x0020, 0x0011, "IS", "1")
        .Element(0x0020, 0x0013, "IS", number)
        .Image({.rows = 1, .columns = 1})
        .NativePixels(7)
        .Bytes();
}

struct TreeCommand : testing::Test {
    TreeCommand()
    {
        folder.WriteFile("b", Image("CT", "1.5.2", "2"));
        folder.WriteFile("sub/a", Image("CT", "1.5.1", "1"));
        folder.WriteFile("x1", Image("XA", "1.6.1", "1"));
        folder.WriteFile("x2", Image("XA", "1.6.2", "2"));
        folder.WriteFile("no\xFFte", "no image");
    }
    TempFolder folder;
};

TEST_F(TreeCommand, says_what_an_open_makes_and_leaves_out)
{
    const ToolRun run = RunTool({"tree", folder.Path(), "--recursive=on", "--merge-xa=off"});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(run.out,
              "Müller Jo, 77\n"
              "  St 31/01/2020\n"
              "    Se 1 (CT)\n"
              "      2 files\n"
              "    Se 1 (XA)\n"
              "      Clip 1: 1 frame\n"
              "      Clip 2: 1 frame\n"
              "left out: " +
                  folder.Path() + "/no\\xFFte: not DICOM\n");
}

TEST_F(TreeCommand, takes_switches_for_the_run)
{
    const ToolRun flat = RunTool({"tree", folder.Path(), "--recursive=off", "--merge-xa=on"});
    EXPECT_NE(flat.out.find("      1 file\n"), std::string::npos) << flat.out;
    EXPECT_EQ(flat.out.find("Clip 2"), std::string::npos) << flat.out;
    EXPECT_NE(flat.out.find("/sub: a folder"), std::string::npos) << flat.out;
    EXPECT_EQ(RunTool({"tree", folder.Path(), "--recursive"}).code, 2);
    EXPECT_EQ(RunTool({"tree", folder.Path(), "--merge-us=maybe"}).code, 2);
    EXPECT_EQ(RunTool({"tree"}).code, 2);
}

TEST_F(TreeCommand, speaks_JSON_that_leads_back_to_every_file)
{
    const ToolRun run = RunTool({"tree", folder.Path(), "--json", "--recursive=on"});
    EXPECT_EQ(run.code, 0) << run.err;
    for (const char* part :
         {R"("name":"Müller^Jo")", R"("id":"77")", R"("sop_instance_uid":"1.5.1")",
          R"("instance":1)", R"("localizer":false)", R"(no\udcffte)", R"("reason":"not DICOM")"})
        EXPECT_NE(run.out.find(part), std::string::npos) << part << '\n' << run.out;
}

TEST_F(TreeCommand, fails_in_one_line_with_the_words_of_the_alert)
{
    folder.WriteFile("disc/DICOMDIR", DirectoryOfImages(2));
    for (const auto& [path, part] : std::vector<std::pair<std::string, std::string>>{
             {"no\xFFte", "no\\xFFte"},
             {"disc", "leads to no images"},
             {"gone", "No such file"},
         }) {
        const ToolRun run = RunTool({"tree", folder.Path(path)});
        EXPECT_EQ(run.code, 1) << path;
        EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << run.err;
        EXPECT_NE(run.err.find(part), std::string::npos) << run.err;
    }
}

}  // namespace

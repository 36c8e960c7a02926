// The program as a whole: exit codes, what goes to which stream, and what is left on disk.
#include "fixtures/DicomBuilder.h"
#include "tool/RunTool.h"

#include <QImage>
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

// 2 by 3 words: 1 2 3 / 4 5 -1 (or 65535).
std::string GrayFile(std::uint16_t signedness = 0)
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .CommonHeader()
        .Image({.rows = 2, .columns = 3, .signedness = signedness})
        .NativePixels({1, 2, 3, 4, 5, -1})
        .Bytes();
}

// `frames` frames of 1 by 1 byte, valued 10, 20, 30…
std::string FramesFile(int frames)
{
    std::string pixels;
    for (int i = 1; i <= frames; ++i)
        pixels += static_cast<char>(i * 10);
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .CommonHeader()
        .Image({.rows = 1, .columns = 1, .bits = 8, .frames = frames})
        .NativePixels(pixels, "OB")
        .Bytes();
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t at = 0, end; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
        lines.push_back(text.substr(at, end - at));
    return lines;
}

std::string Field(const std::string& line, int index)
{
    std::size_t at = 0;
    for (; index > 0; --index)
        at = line.find('\t', at) + 1;
    return line.substr(at, line.find('\t', at) - at);
}

std::vector<std::string> NamesIn(const TempFolder& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

}  // namespace

TEST(Tool, refuses_a_bad_path_with_one_line_and_does_not_wait)
{
    const TempFolder folder;
    std::filesystem::create_directory(folder.Path("folder"));
    std::filesystem::create_symlink("loop", folder.Path("loop"));
    folder.WriteFile("empty", "");
    folder.WriteFile("text", std::string(3000, 'x'));
    folder.WriteFile("locked", GrayFile());
    ASSERT_EQ(::chmod(folder.Path("locked").c_str(), 0), 0);
    ASSERT_EQ(::mkfifo(folder.Path("pipe").c_str(), 0600), 0);
    struct Row {
        std::string path;
        const char* reason;
    };
    std::vector<Row> rows = {
        {folder.Path("nothing"), "No such file or directory"},
        {folder.Path("folder"), "a folder, not a file"},
        {folder.Path("empty"), "the file is empty"},
        {folder.Path("pipe"), "not a regular file"},
        {"/dev/zero", "not a regular file"},
        {folder.Path("loop"), "Too many levels of symbolic links"},
        {folder.Path("text") + "/below", "Not a directory"},
        {folder.Path("text"), "not a DICOM file"},
    };
    if (::geteuid() != 0)  // nothing is locked for root
        rows.push_back({folder.Path("locked"), "Permission denied"});
    const std::string out = folder.Path("out");
    for (const Row& row : rows) {
        for (const std::vector<std::string>& words : {std::vector<std::string>{"check", row.path},
                                                      {"dump", row.path},
                                                      {"stats", row.path},
                                                      {"frame", row.path, "-o", out},
                                                      {"frame", row.path, "--raw", "-o", out}}) {
            SCOPED_TRACE(words[0] + ' ' + row.path);
            const ToolRun run = RunTool(words);
            EXPECT_EQ(run.code, 1);
            EXPECT_EQ(run.out, "");
            ASSERT_EQ(Lines(run.err).size(), 1u) << run.err;
            EXPECT_NE(run.err.find(row.path), std::string::npos) << run.err;
            EXPECT_NE(run.err.find(row.reason), std::string::npos) << run.err;
            EXPECT_FALSE(std::filesystem::exists(out));
        }
    }
}

TEST(Tool, answers_2_to_wrong_usage)
{
    for (const std::vector<std::string>& words : {
             std::vector<std::string>{},
             {"nonsense"},
             {"dump"},
             {"dump", "a", "b"},
             {"check"},
             {"check", "--all", "a"},
             {"stats", "--frames", "some", "a"},
             {"stats", "a", "--frames"},
             {"frame", "a"},
             {"frame", "a", "-o", "b", "-n", "0"},
             {"frame", "a", "-o", "b", "-n", "1x"},
             {"frame", "a", "-o", "b", "-o", "c"},
             {"frame", "a", "-o", "b", "--raw", "--png"},
             {"frame", "a", "-o", "b", "--window", "0,5"},
             {"frame", "a", "-o", "b", "--window", "10"},
             {"frame", "a", "-o", "b", "--window", "nan,1"},
             {"demo"},
         }) {
        const ToolRun run = RunTool(words);
        SCOPED_TRACE(run.err);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(Lines(run.err).size(), 1u);
    }
}

TEST(Tool, stats_gives_values_and_checksum_of_the_stored_form)
{
    const TempFolder folder;
    const std::string path = folder.WriteFile("a\tb.dcm", GrayFile());
    const std::string signedPath = folder.WriteFile("signed.dcm", GrayFile(1));
    const ToolRun run = RunTool({"stats", path, signedPath});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, folder.Path("a\\x09b.dcm") +
                           "\t1\t1\t2\t3\t1\t1.2.840.10008.1.2.1\t1\t65535\t10925.000000\t"
                           "c6ab901bde34dc68f0aed7dcc05acde33c1c74c562bd8ea130a9f13a466f3ada\n" +
                           signedPath +
                           "\t1\t1\t2\t3\t1\t1.2.840.10008.1.2.1\t-1\t5\t2.333333\t"
                           "6d8126e7b6288ce55e00a6760bf5e3488b8346d6e21f778da45faa9d55478681\n");
}

TEST(Tool, stats_chooses_the_ends_once_each)
{
    struct Row {
        int frames;
        const char* option;
        std::vector<std::string> numbers;
    };
    const TempFolder folder;
    for (const Row& row : {Row{1, "ends", {"1"}},
                           {2, "ends", {"1", "2"}},
                           {3, "ends", {"1", "2", "3"}},
                           {6, "ends", {"1", "4", "6"}},
                           {4, "all", {"1", "2", "3", "4"}}}) {
        SCOPED_TRACE(row.frames);
        const std::string path = folder.WriteFile("f.dcm", FramesFile(row.frames));
        const auto lines = Lines(RunTool({"stats", "--frames", row.option, path}).out);
        ASSERT_EQ(lines.size(), row.numbers.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_EQ(Field(lines[i], 1), row.numbers[i]);
            EXPECT_EQ(Field(lines[i], 7), row.numbers[i] + '0');  // the frame itself
        }
    }
}

TEST(Tool, a_bad_file_does_not_stop_the_others)
{
    const TempFolder folder;
    const std::string good = folder.WriteFile("good", GrayFile());
    const ToolRun check = RunTool({"check", folder.Path("none"), good});
    EXPECT_EQ(check.code, 1);
    EXPECT_EQ(check.out, good + ": opened, 1 frame\n");
    EXPECT_EQ(Lines(check.err).size(), 1u);
    EXPECT_EQ(Lines(RunTool({"stats", folder.Path("none"), good}).out).size(), 1u);
}

TEST(Tool, check_opens_what_it_cannot_decode)
{
    const TempFolder folder;
    struct Row {
        const char* name;
        std::string bytes;
        std::string summary;
    };
    const auto base = [] { return DicomBuilder().Meta(kUidRle).CommonHeader(); };
    const Row rows[] = {
        {"rubbish in frames",
         base()
             .Image({.rows = 2, .columns = 2, .frames = 2})
             .Encapsulated({{"ab"}, {"cd"}})
             .Bytes(),
         ": opened, 2 frames, 2 not decodable\n"},
        {"a report", base().Bytes(), ": opened, no frames ("},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string path = folder.WriteFile("x.dcm", row.bytes);
        const ToolRun run = RunTool({"check", path});
        EXPECT_EQ(run.code, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out.substr(0, path.size() + row.summary.size()), path + row.summary);
        EXPECT_EQ(Lines(run.out).size(), 1u);
    }
}

TEST(Tool, dump_shows_nesting_delimiters_and_fragments)
{
    const TempFolder folder;
    const std::string path = folder.WriteFile(
        "d.dcm", DicomBuilder()
                     .Meta(kUidRle)
                     .CommonHeader()
                     .Sequence(0x0008, 0x1140,
                               {Item(Undefined).Element(0x0008, 0x1155, "UI", "1.2\n3")}, Undefined)
                     .Element(0x0009, 0x0001, "OB", std::string(20, '\x7F'))
                     .Image({.rows = 2, .columns = 2})
                     .Encapsulated({{"abcd"}})
                     .Bytes());
    const ToolRun run = RunTool({"dump", path});
    EXPECT_EQ(run.code, 0) << run.err;
    std::string text;  // without offsets, which the reader's tests look at
    for (const std::string& line : Lines(run.out)) {
        const std::size_t at = line.find(" @");
        text +=
            line.substr(0, at) + line.substr(std::min(line.find(' ', at + 1), line.size())) + '\n';
    }
    const char* parts[] = {
        "(0008,1140) SQ undefined Referenced Image Sequence\n"
        "  (FFFE,E000) -- undefined Item\n"
        "    (0008,1155) UI 6 Referenced SOP Instance UID = 1.2\\x0A3\n"
        "    (FFFE,E00D) -- 0 End of Item\n"
        "  (FFFE,E0DD) -- 0 End of Sequence\n"
        "(0009,0001) OB 20 Private = 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F 7F ...\n",
        "(0028,0010) US 2 Rows = 2\n",
        "(7FE0,0010) OB undefined Pixel Data\n"
        "  (FFFE,E000) -- 0 Offset Table\n"
        "  (FFFE,E000) -- 4 Frame 1\n"
        "  (FFFE,E0DD) -- 0 End of Sequence\n",
    };
    for (const char* part : parts)
        EXPECT_NE(text.find(part), std::string::npos) << part << "in\n" << text;
}

TEST(Tool, dump_shows_what_stands_before_a_fault)
{
    const TempFolder folder;
    DicomBuilder builder;
    builder.Meta(kUidExplicitLittle).CommonHeader();
    const std::string path = folder.WriteFile("d.dcm", builder.Element(0x0010, 0x0010, "PN", "A^B")
                                                           .Element(0x0010, 0x0020, "LO", "1")
                                                           .StateLength(0x7000)
                                                           .Bytes());
    const ToolRun run = RunTool({"dump", path});
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.out.find("= A^B\n"), std::string::npos) << run.out;
    EXPECT_EQ(Lines(run.err).size(), 1u);
    EXPECT_NE(run.err.find("(0010,0020)"), std::string::npos) << run.err;
}

TEST(Tool, frame_writes_values_and_pictures)
{
    const TempFolder folder;
    const std::string gray = folder.WriteFile("gray", GrayFile());
    const std::string colour =
        folder.WriteFile("colour", DicomBuilder()
                                       .Meta(kUidExplicitLittle)
                                       .CommonHeader()
                                       .Image({.rows = 1, .columns = 2, .bits = 8, .samples = 3})
                                       .NativePixels(Hex("FF8001 0203FE"), "OB")
                                       .Bytes());
    const std::string raw = folder.Path("raw"), png = folder.Path("png");

    ASSERT_EQ(RunTool({"frame", gray, "--raw", "-o", raw}).code, 0);
    EXPECT_EQ(ReadAll(raw), Hex("0100 0200 0300 0400 0500 FFFF"));

    ASSERT_EQ(RunTool({"frame", colour, "-o", png}).code, 0);
    QImage image(QString::fromStdString(png));
    ASSERT_EQ(image.size(), QSize(2, 1));
    EXPECT_EQ(image.pixel(0, 0), qRgb(0xFF, 0x80, 0x01));
    EXPECT_EQ(image.pixel(1, 0), qRgb(0x02, 0x03, 0xFE));

    // A window over 2 to 5 puts 1 and 2 at black, 5 and above at white.
    ASSERT_EQ(RunTool({"frame", gray, "--png", "--window", "4,4", "-o", png}).code, 0);
    ASSERT_TRUE(image.load(QString::fromStdString(png)));
    ASSERT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(qGray(image.pixel(0, 0)), 0);
    EXPECT_EQ(qGray(image.pixel(1, 0)), 0);
    EXPECT_EQ(qGray(image.pixel(1, 1)), 255);
    EXPECT_EQ(qGray(image.pixel(2, 1)), 255);
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"colour", "gray", "png", "raw"}));
}

TEST(Tool, a_frame_that_fails_leaves_the_disk_as_it_was)
{
    const TempFolder folder;
    const std::string gray = folder.WriteFile("gray", GrayFile());
    const std::string old = folder.WriteFile("old", "old");
    std::filesystem::create_directory(folder.Path("folder"));
    for (const std::vector<std::string>& words : {
             std::vector<std::string>{"frame", gray, "-n", "2", "-o", old},
             {"frame", gray, "--raw", "-n", "2", "-o", old},
             {"frame", gray, "--raw", "-o", folder.Path("folder")},
             {"frame", gray, "--raw", "-o", folder.Path("none/out")},
             {"frame", gray, "--raw", "-o", "/dev/null"},
         }) {
        const ToolRun run = RunTool(words);
        SCOPED_TRACE(run.err);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(Lines(run.err).size(), 1u);
    }
    EXPECT_EQ(ReadAll(old), "old");
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"folder", "gray", "old"}));
}

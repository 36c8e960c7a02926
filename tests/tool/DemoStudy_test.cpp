// The demo is what a newcomer sees first, and what benchmarks and pictures are made from: it must
// be whole, conformant, the same each time, and show the values it promises.
#include "tool/demo/DemoStudy.h"

#include "fixtures/TempFolder.h"
#include "tool/RunTool.h"
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoNoise.h"
#include "util/ByteOrder.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

using Study = std::map<std::string, std::string>;  // bytes of the files by their path

Study Files(const std::string& folder)
{
    Study files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file())
            files[fs::relative(entry.path(), folder).string()] = ReadAll(entry.path());
    }
    return files;
}

// Values of explicit little endian elements by tag; nothing when a tag doesn't ascend, or the
// elements don't end with the bytes.
std::map<std::uint32_t, std::string> Elements(const std::string& bytes)
{
    std::map<std::uint32_t, std::string> elements;
    std::uint32_t last = 0;
    std::size_t at = 0;
    while (at + 8 <= bytes.size()) {
        const std::uint32_t tag = std::uint32_t{LoadLE<std::uint16_t>(&bytes[at])} << 16 |
                                  LoadLE<std::uint16_t>(&bytes[at + 2]);
        const std::string vr = bytes.substr(at + 4, 2);
        const bool wide = vr == "OB" || vr == "OW" || vr == "SQ";
        if (wide && at + 12 > bytes.size())
            return {};
        const std::size_t length =
            wide ? LoadLE<std::uint32_t>(&bytes[at + 8]) : LoadLE<std::uint16_t>(&bytes[at + 6]);
        at += wide ? 12 : 8;
        if (tag <= last || length % 2 != 0 || length > bytes.size() - at)
            return {};
        elements[tag] = bytes.substr(at, length);
        last = tag;
        at += length;
    }
    return at == bytes.size() ? elements : std::map<std::uint32_t, std::string>();
}

std::string MetaOf(const std::string& file)
{
    return file.substr(132, 12 + LoadLE<std::uint32_t>(&file[140]));
}

Study Written(const std::string& folder)
{
    std::string failure;
    EXPECT_EQ(WriteDemoStudy(folder, &failure), kQvxOK) << failure;
    return Files(folder);
}

// "PAT1/ST1/SE2/IM000017" of "PAT1/ST1/SE2" and 17.
std::string FileOf(const std::string& series, int instance)
{
    const std::string digits = std::to_string(instance);
    return series + "/IM" + std::string(6 - digits.size(), '0') + digits;
}

// Mean in HU over a square of 7 pixels around a place of the volume; x and y in mm.
double MeanAt(const Study& study, int slice, double x, double y)
{
    const std::string& file = study.at(FileOf("PAT1/ST1/SE2", slice));
    const auto elements = Elements(file.substr(132));
    const std::string& pixels = elements.at(0x7FE00010);
    const auto index = [](double mm) { return std::lround((mm + 191.625) / 0.75); };
    double sum = 0;
    for (long row = index(y) - 3; row <= index(y) + 3; ++row) {
        for (long column = index(x) - 3; column <= index(x) + 3; ++column)
            sum += LoadLE<std::uint16_t>(&pixels[static_cast<std::size_t>(row * 512 + column) * 2]);
    }
    return sum / 49 - 1024;
}

struct SeriesRow {
    const char* folder;
    int files, frames;  // frames of each file
    DemoSyntax syntax;
};
const SeriesRow kSeries[] = {
    {"PAT1/ST1/SE1", 1, 1, DemoSyntax::Deflated},
    {"PAT1/ST1/SE2", 60, 1, DemoSyntax::ExplicitLittle},
    {"PAT1/ST1/SE3", 1, 1, DemoSyntax::JPEGLossless},
    {"PAT1/ST1/SE4", 1, 1, DemoSyntax::RLE},
    {"PAT1/ST1/SE5", 24, 1, DemoSyntax::ImplicitLittle},
    {"PAT1/ST1/SE6", 60, 1, DemoSyntax::ExplicitLittle},
    {"PAT1/ST1/SE7", 1, 11, DemoSyntax::JPEG2000},
    {"PAT2/ST1/SE1", 1, 30, DemoSyntax::JPEGBaseline},
    {"PAT2/ST1/SE2", 1, 1, DemoSyntax::JPEGLS},
    {"PAT3/ST1/SE1", 1, 1, DemoSyntax::ExplicitBig},
    {"PAT4/ST1/SE1", 1, 30, DemoSyntax::JPEGLossless},
    {"PAT4/ST1/SE2", 1, 1, DemoSyntax::ExplicitLittle},
};

void ExpectWholeFiles(const std::string& folder, const Study& study)
{
    std::size_t count = 1, bytes = 0;  // the directory
    std::set<std::string> instances;
    for (const SeriesRow& row : kSeries) {
        std::vector<std::string> words = {"check"};
        std::string said;
        for (int i = 1; i <= row.files; ++i, ++count) {
            const std::string name = FileOf(row.folder, i), path = folder + '/' + name;
            SCOPED_TRACE(name);
            const auto meta = Elements(MetaOf(study.at(name)));
            ASSERT_FALSE(meta.empty());
            EXPECT_EQ(meta.at(0x00020010).substr(0, DemoSyntax_Row(row.syntax).uid.size()),
                      DemoSyntax_Row(row.syntax).uid);
            instances.insert(meta.at(0x00020003));
            words.push_back(path);
            said += path + ": opened, " + std::to_string(row.frames) +
                    (row.frames > 1 ? " frames\n" : " frame\n");
        }
        const ToolRun run = RunTool(words);
        EXPECT_EQ(run.out, said) << run.err;
    }
    for (const auto& [name, file] : study)
        bytes += file.size();
    EXPECT_EQ(study.size(), count);
    EXPECT_EQ(instances.size() + 1, count);  // no UID twice
    EXPECT_LT(bytes, 60000000U);
}

void ExpectOrgansInTheirPlaces(const Study& study)
{
    struct Row {
        const char* organ;
        int slice;  // from 1, the topmost; z is 150 less 5 mm a slice
        double x, y, hu;
    };
    const Row rows[] = {
        {"air in front", 31, 0, -170, -1000},   {"right lung", 18, -90, -8, -850},
        {"windpipe", 10, -1, 9, -950},          {"descending aorta", 24, 25, 36, 45},
        {"liver, right", 44, -90, -20, 60},     {"spleen, left", 46, 100, 36, 50},
        {"left kidney", 54, 79, 48, 30},        {"fat of the flank", 31, -159, 0, -100},
        {"marrow, not a disc", 29, 0, 60, 220}, {"a nodule, left", 27, 88, 24, 40},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.organ);
        EXPECT_NEAR(MeanAt(study, row.slice, row.x, row.y), row.hu, 6);
    }
}

// What `zelora` says of a file's elements, by tag as it writes them; and its values.
std::map<std::string, std::string> Dump(const std::string& path)
{
    std::map<std::string, std::string> values;
    std::istringstream lines(RunTool({"dump", path}).out);
    for (std::string line; std::getline(lines, line);) {
        if (const auto equals = line.find(" = "); equals != std::string::npos)
            values[line.substr(0, 11)] = line.substr(equals + 3);
    }
    return values;
}

std::string RawFrame(const std::string& path, int frame = 1)
{
    const TempFolder folder;
    const ToolRun run =
        RunTool({"frame", path, "-n", std::to_string(frame), "--raw", "-o", folder.Path("raw")});
    EXPECT_EQ(run.code, 0) << run.err;
    return ReadAll(folder.Path("raw"));
}

std::vector<double> Numbers(const std::string& text)
{
    std::vector<double> numbers;
    std::istringstream words(text);
    for (std::string word; std::getline(words, word, '\\');)
        numbers.push_back(std::stod(word));
    return numbers;
}

// The stored value of one image at a place of the body, or -1 when its plane is further than half
// of `spacing` away; by its own position and orientation.
int ValueAt(const std::string& path, double x, double y, double z, double spacing)
{
    const auto header = Dump(path);
    const auto at = Numbers(header.at("(0020,0032)")), along = Numbers(header.at("(0020,0037)"));
    const auto pixel = Numbers(header.at("(0028,0030)"));
    const double d[] = {x - at[0], y - at[1], z - at[2]};
    const double column = (d[0] * along[0] + d[1] * along[1] + d[2] * along[2]) / pixel[1];
    const double row = (d[0] * along[3] + d[1] * along[4] + d[2] * along[5]) / pixel[0];
    const double far = d[0] * (along[1] * along[5] - along[2] * along[4]) +
                       d[1] * (along[2] * along[3] - along[0] * along[5]) +
                       d[2] * (along[0] * along[4] - along[1] * along[3]);
    if (std::abs(far) > spacing / 2)
        return -1;
    const auto columns = std::stoul(header.at("(0028,0011)"));
    const auto index = static_cast<std::size_t>(std::lround(row)) * columns +
                       static_cast<std::size_t>(std::lround(column));
    const std::string raw = RawFrame(path);
    return index * 2 < raw.size() ? LoadLE<std::uint16_t>(&raw[index * 2]) : -1;
}

void ExpectOneCoordinateSystem(const std::string& folder)
{
    const std::string study = folder + "/PAT1/ST1/";
    const auto slice = Dump(study + "SE2/IM000060"), localizer = Dump(study + "SE1/IM000001");
    for (const char* file : {"SE1/IM000001", "SE5/IM000024", "SE6/IM000001", "SE7/IM000001"})
        EXPECT_EQ(Dump(study + file).at("(0020,0052)"), slice.at("(0020,0052)")) << file;
    EXPECT_EQ(slice.at("(0020,0032)"), "-191.625\\-191.625\\-145");
    EXPECT_EQ(localizer.at("(0020,0032)"), "-191.625\\0\\191.625");
    EXPECT_EQ(localizer.at("(0020,0037)"), "1\\0\\0\\0\\0\\-1");

    struct Row {
        const char* what;
        std::string file;
        double spacing, x, y, z;
        int low, high;
    };
    const Row rows[] = {
        {"liver, right, seen by MR", "SE5/IM000012", 8, -90, -20, -65, 170, 380},
        {"left lung", "SE5/IM000007", 8, 90, -20, 20, 0, 110},
        {"fat of the right flank", "SE5/IM000019", 8, -159, 0, 0, 380, 1000},
        {"a hot nodule, by PET, that fills its slice's range", "SE6/IM000027", 5, 88, 24, 20, 20000,
         32767},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const int value = ValueAt(study + row.file, row.x, row.y, row.z, row.spacing);
        EXPECT_GE(value, row.low);
        EXPECT_LE(value, row.high);
    }
    std::set<std::string> slopes;
    for (const char* file : {"SE6/IM000010", "SE6/IM000027", "SE6/IM000050"})
        slopes.insert(Dump(study + file).at("(0028,1053)"));
    EXPECT_EQ(slopes.size(), 3U);
}

// Opened by its directory and by its files alone, names decoded.
void ExpectOneTreeByBothWays(const std::string& folder)
{
    const std::string byDirectory = RunTool({"tree", folder + "/DICOMDIR"}).out;
    const std::string byFiles = RunTool({"tree", folder, "--ignore-dicomdir=on"}).out;
    const std::size_t leftOut = byFiles.find("left out: " + folder + "/DICOMDIR");
    EXPECT_EQ(byFiles.substr(0, leftOut), byDirectory);
    EXPECT_EQ(std::ranges::count(byFiles.substr(std::min(leftOut, byFiles.size())), '\n'), 1);
    for (const char* part :
         {"Demo Phantom, ", "Jitsuen Hanako=実演 花子=じつえん はなこ, ", "Δοκιμή Ελένη, ",
          "Siheom Gildong=試驗 吉洞=시험 길동, ", "24 files\n", "Clip 1: 30 frames\n", "척추\n"})
        EXPECT_NE(byDirectory.find(part), std::string::npos) << part << '\n' << byDirectory;
}

// Grains over the whole range, with stretches of one value and steps from end to end.
std::string Grains(const DemoPixelForm& form)
{
    DemoNoise noise(static_cast<std::uint64_t>(form.stored));
    const std::uint64_t most = (1U << form.stored) - 1;
    std::string pixels;
    for (int i = 0; i < form.rows * form.columns * form.samples; ++i) {
        const int kind = i / 200 % 3;
        const std::uint64_t value = kind == 0   ? noise.Bits() & most
                                    : kind == 1 ? most / 3
                                                : (i % 2 ? most : (most + 1) / 2 * (i % 4 / 2));
        if (form.allocated == 8)
            DemoAppendLE(&pixels, static_cast<std::uint8_t>(value));
        else
            DemoAppendLE(&pixels, static_cast<std::uint16_t>(value));
    }
    return pixels;
}

}  // namespace

// One case for all of it: each case runs in a process of its own, and under sanitizers a study
// takes its time.
TEST(DemoStudy, is_whole_and_true_and_the_same_each_time_also_over_an_older_one)
{
    const TempFolder folder;
    const std::string path = folder.Path("demo");
    const Study study = Written(path);
    ExpectWholeFiles(path, study);
    ExpectOrgansInTheirPlaces(study);
    ExpectOneCoordinateSystem(path);
    ExpectOneTreeByBothWays(path);

    folder.WriteFile("older/PAT1/ST1/SE2/IM000001", "of an older version");
    folder.WriteFile("older/PAT1/ST1/SE2/IM000002.partial", "of a run that was killed");
    EXPECT_TRUE(Written(folder.Path("older")) == study);
}

TEST(DemoStudy, what_is_encoded_without_loss_comes_back_to_the_bit)
{
    struct Row {
        const char* fault;
        DemoSyntax syntax;
        DemoPixelForm form;
    };
    const Row rows[] = {
        {"words with their high byte first", DemoSyntax::ExplicitBig, {37, 51}},
        {"odd length", DemoSyntax::Deflated, {7, 9, 1, 8, 8}},
        {"runs over the end of a row", DemoSyntax::RLE, {40, 300, 1, 8, 8}},
        {"order of bytes and planes", DemoSyntax::RLE, {37, 51, 3, 8, 8, false, "RGB"}},
        {"high bytes first", DemoSyntax::RLE, {37, 51, 1, 16, 16}},
        {"first prediction", DemoSyntax::JPEGLossless, {37, 51, 1, 8, 8}},
        {"every category", DemoSyntax::JPEGLossless, {64, 64}},
        {"a difference of 32768", DemoSyntax::JPEGLossless, {64, 64, 1, 16, 16}},
        {"precision", DemoSyntax::JPEGLS, {37, 51}},
        {"16 bits", DemoSyntax::JPEGLS, {37, 51, 1, 16, 16}},
        {"reversible", DemoSyntax::JPEG2000, {64, 50}},
        {"too narrow to be halved", DemoSyntax::JPEG2000, {64, 3, 1, 8, 8}},
    };
    const TempFolder folder;
    DemoFolder files(folder.Path());
    int instance = 0;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const DemoSeries series = {.number = 1,
                                   .modality = "OT",
                                   .sopClass = "1.2.840.10008.5.1.4.1.1.7",
                                   .description = "Grains",
                                   .bodyPart = "",
                                   .time = "100000",
                                   .syntax = row.syntax};
        const std::string pixels = Grains(row.form);
        ++instance;
        ASSERT_EQ(DemoImage_Write(&files, series, instance, DemoHeader(series, instance), row.form,
                                  {pixels, pixels}),
                  kQvxOK);
        EXPECT_TRUE(RawFrame(folder.Path(DemoFileName(series, instance)), 2) == pixels);
    }
}

TEST(DemoStudy, a_failure_names_its_file_and_leaves_nothing_half_written)
{
    const TempFolder folder;
    folder.WriteFile("file", "x");
    folder.WriteFile("blocked/PAT1/ST1/SE2/IM000003/inside", "a folder where a file is to go");
    const struct {
        const char* fault;
        std::string path, named;
        std::size_t files;  // whole ones before it, and the one that was there
    } rows[] = {
        {"the folder is a file", folder.Path("file"), folder.Path("file"), 0},
        {"its parent is missing", folder.Path("no/demo"), folder.Path("no/demo"), 0},
        {"a file can't be put", folder.Path("blocked"),
         folder.Path("blocked/PAT1/ST1/SE2/IM000003"), 4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        std::string failure;
        EXPECT_NE(WriteDemoStudy(row.path, &failure), kQvxOK);
        EXPECT_TRUE(failure.starts_with(row.named + ": ")) << failure;
        EXPECT_EQ(fs::is_directory(row.path) ? Files(row.path).size() : 0, row.files);
    }
}

// The demo study is what a newcomer sees first, and what benchmarks and pictures are made from: it
// must be whole, conformant, the same each time, and show the values it promises.
#include "tool/demo/DemoStudy.h"

#include "fixtures/TempFolder.h"
#include "util/ByteOrder.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>

namespace {

namespace fs = std::filesystem;

std::string Load(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

using Study = std::map<std::string, std::string>;  // bytes of the files by their path

Study Files(const std::string& folder)
{
    Study files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file())
            files[fs::relative(entry.path(), folder).string()] = Load(entry.path());
    }
    return files;
}

// Values of a whole explicit little endian file by tag; nothing when a tag doesn't ascend, or the
// elements don't end with the file.
std::map<std::uint32_t, std::string> Elements(const std::string& file)
{
    std::map<std::uint32_t, std::string> elements;
    std::uint32_t last = 0;
    std::size_t at = 132;
    while (at + 12 <= file.size()) {
        const std::uint32_t tag = static_cast<std::uint32_t>(LoadLE<std::uint16_t>(&file[at]))
                                      << 16 |
                                  LoadLE<std::uint16_t>(&file[at + 2]);
        const std::string vr = file.substr(at + 4, 2);
        const bool wide = vr == "OB" || vr == "OW" || vr == "SQ";
        const std::size_t length =
            wide ? LoadLE<std::uint32_t>(&file[at + 8]) : LoadLE<std::uint16_t>(&file[at + 6]);
        at += wide ? 12 : 8;
        if (tag <= last || length % 2 != 0 || length > file.size() - at)
            return {};
        elements[tag] = file.substr(at, length);
        last = tag;
        at += length;
    }
    return at == file.size() ? elements : std::map<std::uint32_t, std::string>();
}

Study Written(const std::string& folder)
{
    std::string failure;
    EXPECT_EQ(WriteDemoStudy(folder, &failure), kQvxOK) << failure;
    return Files(folder);
}

// Mean in HU over a square of 7 pixels around a place of the volume; x and y in mm.
double MeanAt(const Study& study, int slice, double x, double y)
{
    const std::string digits = std::to_string(slice);
    const auto elements =
        Elements(study.at("CT/IM00" + std::string(2 - digits.size(), '0') + digits + ".dcm"));
    const std::string& pixels = elements.at(0x7FE00010);
    const auto index = [](double mm) { return std::lround((mm + 191.625) / 0.75); };
    double sum = 0;
    for (long row = index(y) - 3; row <= index(y) + 3; ++row) {
        for (long column = index(x) - 3; column <= index(x) + 3; ++column)
            sum += LoadLE<std::uint16_t>(&pixels[static_cast<std::size_t>(row * 512 + column) * 2]);
    }
    return sum / 49 - 1024;
}

void ExpectWholeFiles(const Study& study)
{
    ASSERT_EQ(study.size(), 63U);
    std::map<std::string, int> instances, series;
    for (const auto& [name, file] : study) {
        SCOPED_TRACE(name);
        const auto elements = Elements(file);
        ASSERT_FALSE(elements.empty());
        EXPECT_EQ(file.substr(128, 4), "DICM");
        EXPECT_EQ(LoadLE<std::uint32_t>(elements.at(0x00020000).data()),
                  file.find(std::string("\x08\x00\x05\x00", 4)) - 144);
        EXPECT_EQ(elements.at(0x00020003), elements.at(0x00080018));
        ++instances[elements.at(0x00080018)];
        ++series[elements.at(0x0020000E)];
        const auto number = [&](std::uint32_t tag) {
            return std::size_t{LoadLE<std::uint16_t>(elements.at(tag).data())};
        };
        EXPECT_EQ(elements.at(0x7FE00010).size(), number(0x00280010) * number(0x00280011) *
                                                      number(0x00280002) * number(0x00280100) / 8);
    }
    EXPECT_EQ(instances.size(), 63U);  // no UID twice
    EXPECT_EQ(series.size(), 4U);
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

void ExpectOneCoordinateSystem(const Study& study)
{
    const auto slice = Elements(study.at("CT/IM0060.dcm"));
    const auto localizer = Elements(study.at("LOCALIZER/IM0001.dcm"));
    EXPECT_EQ(slice.at(0x00200052), localizer.at(0x00200052));
    EXPECT_EQ(slice.at(0x00200032), "-191.625\\-191.625\\-145");
    EXPECT_EQ(localizer.at(0x00200032), "-191.625\\0\\191.625");
    EXPECT_EQ(localizer.at(0x00200037), "1\\0\\0\\0\\0\\-1");
    EXPECT_NE(slice.at(0x00081140).find(localizer.at(0x00080018)), std::string::npos);
    // Seen from the front with the head up, the liver is on the picture's left: whiter than lung.
    const auto value = [&](std::size_t row, std::size_t column) {
        return LoadLE<std::uint16_t>(&localizer.at(0x7FE00010)[(row * 512 + column) * 2]);
    };
    EXPECT_GT(value(320, 170), value(150, 170) + 300);
}

}  // namespace

// One case for all of it: each case runs in a process of its own, and under sanitizers a study
// takes its time.
TEST(DemoStudy, is_whole_and_true_and_the_same_each_time_also_over_an_older_one)
{
    const TempFolder folder;
    const Study study = Written(folder.Path("demo"));
    ExpectWholeFiles(study);
    ExpectOrgansInTheirPlaces(study);
    ExpectOneCoordinateSystem(study);

    folder.WriteFile("older/CT/IM0001.dcm", "of an older version");
    folder.WriteFile("older/CT/IM0002.dcm.partial", "of a run that was killed");
    EXPECT_TRUE(Written(folder.Path("older")) == study);
}

TEST(DemoStudy, a_failure_names_its_file_and_leaves_nothing_half_written)
{
    const TempFolder folder;
    folder.WriteFile("file", "x");
    folder.WriteFile("blocked/CT/IM0003.dcm/inside", "a folder where a file is to go");
    const struct {
        const char* fault;
        std::string path, named;
        std::size_t files;  // whole ones before it, and the one that was there
    } rows[] = {
        {"the folder is a file", folder.Path("file"), folder.Path("file"), 0},
        {"its parent is missing", folder.Path("no/demo"), folder.Path("no/demo"), 0},
        {"a file can't be put", folder.Path("blocked"), folder.Path("blocked/CT/IM0003.dcm"), 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        std::string failure;
        EXPECT_NE(WriteDemoStudy(row.path, &failure), kQvxOK);
        EXPECT_TRUE(failure.starts_with(row.named + ": ")) << failure;
        EXPECT_EQ(fs::is_directory(row.path) ? Files(row.path).size() : 0, row.files);
    }
}

// Window presets of a file, and which of them are distinct.
#include "dicom_core/values/ParserWindows.h"

#include "fixtures/DicomBuilder.h"

#include <gtest/gtest.h>
#include <tuple>

namespace {

using Preset = std::tuple<std::int32_t, std::int32_t, std::string>;  // width, center, name

struct Presets {
    std::int32_t fCount = 0;
    std::vector<Preset> fUnique;
};

DicomBuilder File(const char* centers, const char* widths, const char* names)
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .CommonHeader("CT")
        .Element(0x0028, 0x1050, "DS", centers)
        .Element(0x0028, 0x1051, "DS", widths)
        .Element(0x0028, 0x1055, "LO", names);
}

Presets PresetsOf(const DicomBuilder& file)
{
    Presets presets;
    QvxReaderPtr reader;
    EXPECT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
    presets.fCount = Parser_GetNumberOfWindowingPresets(reader.get());
    const std::int32_t count = Parser_GetNumberOfUniqueWindowingPresets(reader.get());
    for (std::int32_t index = 1; index <= count + 1; ++index) {
        auto& [width, center, name] = presets.fUnique.emplace_back();
        EXPECT_EQ(Parser_GetUniqueWindowingPreset(reader.get(), index, &width, &center, &name),
                  kQvxOK);
    }
    EXPECT_EQ(presets.fUnique.back(), Preset()) << "behind the last";
    presets.fUnique.pop_back();
    return presets;
}

}  // namespace

TEST(Parser_GetUniqueWindowingPreset, leaves_out_what_was_there)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        std::int32_t count;
        std::vector<Preset> unique;
    };
    const Row rows[] = {
        {"one", File("40", "400", "SOFT"), 1, {{400, 40, "SOFT"}}},
        {"the first of two names stays", File("40\\40", "400\\400", "A\\B"), 2, {{400, 40, "A"}}},
        {"a later one keeps its own name",
         File("40\\40\\-600", "400\\400\\1600", "A\\B\\LUNG"),
         3,
         {{400, 40, "A"}, {1600, -600, "LUNG"}}},
        {"a place between two equal ones",
         File("1\\2\\1\\3", "9\\9\\9\\9", ""),
         4,
         {{9, 1, ""}, {9, 2, ""}, {9, 3, ""}}},
        {"the center counts too",
         File("40\\50", "400\\400", ""),
         2,
         {{400, 40, ""}, {400, 50, ""}}},
        {"more centers than widths", File("40\\50", "400", "A"), 2, {{400, 40, "A"}, {0, 50, ""}}},
        {"numbers are cut toward 0", File("-40.9", "400.9", ""), 1, {{400, -40, ""}}},
        {"equal after the cut", File("40.1\\40.9", "400\\400", ""), 2, {{400, 40, ""}}},
        {"no numbers",
         File("nan\\1e300", "-1e300\\x", ""),
         2,
         {{INT32_MIN, 0, ""}, {0, INT32_MAX, ""}}},
        {"a name has its limit",
         File("40", "400", std::string(80, 'N').c_str()),
         1,
         {{400, 40, std::string(63, 'N')}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const Presets presets = PresetsOf(row.file);
        EXPECT_EQ(presets.fCount, row.count);
        EXPECT_EQ(presets.fUnique, row.unique);
    }
}

TEST(Parser_GetNumberOfUniqueWindowingPresets, does_not_grow_with_the_square_of_a_hostile_list)
{
    std::string centers = "0";
    for (int i = 1; i < 500'000; ++i)
        centers.append("\\").append(std::to_string(i));
    DicomBuilder file = DicomBuilder()
                            .Meta(kUidImplicitLittle)
                            .CommonHeader("CT")
                            .Element(0x0028, 0x1050, "DS", centers)
                            .Element(0x0028, 0x1051, "DS", centers);
    QvxReaderPtr reader;
    ASSERT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
    EXPECT_EQ(Parser_GetNumberOfWindowingPresets(reader.get()), 500'000);
    EXPECT_EQ(Parser_GetNumberOfUniqueWindowingPresets(reader.get()), kMaxUniquePresets);
}

// What single frames of enhanced objects say: their own groups, the shared ones, the file.
#include "dicom_core/values/FrameGroups.h"

#include "fixtures/DicomBuilder.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

// A group of one macro with one element in it.
Item Group(std::uint32_t macro, std::uint32_t element, const char* vr, DicomValue value)
{
    const auto group = [](std::uint32_t tag) { return static_cast<std::uint16_t>(tag >> 16); };
    const auto part = [](std::uint32_t tag) { return static_cast<std::uint16_t>(tag); };
    return Item().Sequence(group(macro), part(macro),
                           {Item().Element(group(element), part(element), vr, std::move(value))});
}

DicomBuilder Plain()
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .Element(0x0008, 0x0008, "CS", "ORIGINAL\\PRIMARY\\LOCALIZER")
        .Element(0x0020, 0x0032, "DS", "1\\1\\1")
        .Element(0x0020, 0x0052, "UI", "1.2.3")
        .Element(0x0028, 0x0008, "IS", "2")
        .Element(0x0028, 0x0030, "DS", "3\\3")
        .Element(0x0028, 0x1050, "DS", "10")
        .Element(0x0028, 0x1051, "DS", "100");
}

struct Opened {
    explicit Opened(const DicomBuilder& file)
    {
        EXPECT_EQ(Qvx2Parser_OpenBytes(&fReader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
        fGroups = zelFrameGroups(fReader.get());
    }
    QvxReaderPtr fReader;
    zelFrameGroups fGroups;
};

Opened WithGroups(std::vector<Item> shared, std::vector<Item> frames)
{
    return Opened(Plain()
                      .Sequence(0x5200, 0x9229, std::move(shared))
                      .Sequence(0x5200, 0x9230, std::move(frames), Undefined));
}

Item Spacing(const char* value) { return Group(0x00289110, 0x00280030, "DS", value); }

}  // namespace

TEST(zelFrameGroups, asks_the_frame_then_the_shared_group_then_the_file)
{
    const auto first = [](const Opened& opened, std::int32_t frame) {
        float across = 0, down = 0;
        static_cast<void>(Parser_GetPixelDimensions(opened.fGroups, frame, &across, &down));
        return across;
    };
    const Opened own = WithGroups({Spacing("5\\5")}, {Spacing("7\\7"), Item()});
    EXPECT_EQ(first(own, 1), 7);
    EXPECT_EQ(first(own, 2), 5) << "this frame's group has none";
    EXPECT_EQ(first(own, 3), 5) << "there is no such frame";
    EXPECT_EQ(first(WithGroups({Item()}, {Item()}), 1), 3) << "no group has any";
    EXPECT_EQ(first(Opened(Plain()), 1), 3) << "no groups";
    // The aspect factors are those of the frame's own spacing.
    const Opened oblong = WithGroups({}, {Spacing("2\\1")});
    EXPECT_EQ(first(oblong, 1), 4);
    const Opened projection =
        WithGroups({Group(0x00189401, 0x00189404, "FL", {0.5, 0.5})}, {Item()});
    EXPECT_EQ(first(projection, 1), 0.5);
}

TEST(zelFrameGroups, places_each_frame)
{
    const auto frame = [](const char* position) {
        return Group(0x00209113, 0x00200032, "DS", position);
    };
    const Opened opened = WithGroups({Group(0x00209116, 0x00200037, "DS", "0\\1\\0\\0\\0\\-1")},
                                     {frame("1\\2\\3"), frame("4\\5\\6")});
    zelPlane plane;
    EXPECT_EQ(Parser_GetPositionOrientationSpacingAndSize(opened.fGroups, 2, 10, 20, &plane),
              kQvxOK);
    EXPECT_EQ(plane.fPosition, (std::array<double, 3>{4, 5, 6}));
    EXPECT_EQ(plane.fCosines.fNormal, (std::array<double, 3>{-1, 0, 0}));
    EXPECT_EQ(plane.fExtent1, 60);  // of the file's own spacing
    std::string top, left, bottom, right;
    Parser_GetFramePositionStrings(opened.fGroups, 2, &top, &left, &bottom, &right);
    EXPECT_EQ(top + left + bottom + right, "HAFP");
    EXPECT_TRUE(Parser_HasSpatialLocationFields(opened.fGroups, 1));
    EXPECT_FALSE(Parser_HasSpatialLocationFields(opened.fGroups.Parser()));
}

TEST(zelFrameGroups, takes_a_window_from_one_place)
{
    Item both = Item().Sequence(0x0028, 0x9132,
                                {Item()
                                     .Element(0x0028, 0x1050, "DS", "40\\50")
                                     .Element(0x0028, 0x1051, "DS", "400\\500")
                                     .Element(0x0028, 0x1055, "LO", "A\\B")});
    const Opened opened = WithGroups({Group(0x00289132, 0x00281050, "DS", "60")}, {both, Item()});
    std::int32_t width = 0, center = 0;
    std::string name;
    EXPECT_EQ(Parser_GetNumberOfWindowingPresets(opened.fGroups, 1), 2);
    EXPECT_EQ(Parser_GetUniqueWindowingPreset(opened.fGroups, 1, 2, &width, &center, &name),
              kQvxOK);
    EXPECT_EQ(std::tie(width, center, name), std::make_tuple(500, 50, "B"));
    EXPECT_EQ(Parser_GetWindowingPreset(opened.fGroups, 2, 1, &width, &center, &name), kQvxOK);
    EXPECT_EQ(center, 60);
    EXPECT_EQ(width, 0) << "not the file's, which belongs to another center";
}

TEST(zelFrameGroups, knows_localizers_by_frame_type)
{
    const auto type = [](std::uint32_t macro, const char* value) {
        return Group(macro, 0x00089007, "CS", value);
    };
    const Opened opened =
        WithGroups({}, {type(0x00189226, "ORIGINAL\\PRIMARY\\VOLUME\\NONE"),
                        type(0x00189329, "ORIGINAL\\PRIMARY\\LOCALIZER\\NONE"),
                        type(0x00289443, "DERIVED\\PRIMARY\\X\\NONE\\LOCALIZER"), Item()});
    const bool expected[] = {false, true, true, true};  // the last by Image Type
    for (std::int32_t frame = 1; frame <= 4; ++frame)
        EXPECT_EQ(Parser_ImageTypeIsLocalizer(opened.fGroups, frame), expected[frame - 1]) << frame;
}

TEST(Parser_GetFrameTimes, of_groups_takes_steps_in_time_before_durations)
{
    constexpr std::uint32_t kContent = 0x00209111, kReference = 0x00189151;
    const auto instant = [](const char* value) { return Group(kContent, kReference, "DT", value); };
    const auto offset = [](double seconds) { return Group(0x00209310, 0x0020930D, "FD", seconds); };
    const auto duration = [](double ms) { return Group(kContent, 0x00189220, "FD", ms); };
    const auto stated = [](const char* frames) {
        return DicomBuilder().Meta(kUidExplicitLittle).Element(0x0028, 0x0008, "IS", frames);
    };
    const auto timed = [&stated](const char* frames) {
        return DicomBuilder()
            .Meta(kUidExplicitLittle)
            .Element(0x0018, 0x1063, "DS", "25")
            .Element(0x0028, 0x0008, "IS", frames);
    };
    const auto rated = [] {
        return DicomBuilder()
            .Meta(kUidExplicitLittle)
            .Element(0x0018, 0x0040, "IS", "10")
            .Element(0x0028, 0x0008, "IS", "2");
    };
    struct Row {
        const char* fault;
        DicomBuilder file;
        std::vector<Item> frames;
        std::int32_t count;
        float single;
        std::vector<float> vector;
    };
    const double infinite = std::numeric_limits<double>::infinity();
    const Row rows[] = {
        {"offsets", timed("3"), {offset(0), offset(0.5), offset(0.75)}, 3, 0, {500, 250, 250}},
        {"equal steps are one time", timed("2"), {offset(1), offset(1.5)}, 1, 500, {}},
        {"frames of one instant have no steps", timed("2"), {offset(1), offset(1)}, 1, 25, {}},
        {"one frame has no offset", timed("3"), {offset(1), offset(2), Item()}, 1, 25, {}},
        {"a group lacks", timed("3"), {offset(1), offset(2)}, 1, 25, {}},
        {"no number", timed("2"), {offset(0), offset(infinite)}, 1, 25, {}},
        {"date and time, over midnight",
         timed("2"),
         {instant("20231231235959.5"), instant("20240101000000.25+0100")},
         1,
         750,
         {}},
        {"no date", timed("2"), {instant("20231331000000"), instant("2024")}, 1, 25, {}},
        {"a rate for display", rated(), {offset(0), offset(0.5)}, 1, 100, {}},
        {"the time of a cine before an exposure",
         timed("2"),
         {duration(8), duration(8)},
         1,
         25,
         {}},
        {"durations if there is nothing else",
         stated("2"),
         {duration(8), duration(9)},
         2,
         0,
         {8, 9}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder file = row.file;
        const Opened opened(file.Sequence(0x5200, 0x9230, row.frames));
        zelFrameTimes times;
        EXPECT_EQ(Parser_GetFrameTimes(opened.fGroups, &times), kQvxOK);
        EXPECT_EQ(times.fCount, row.count);
        EXPECT_FLOAT_EQ(times.fSingle, row.single);
        EXPECT_EQ(times.fVector, row.vector);
    }
}

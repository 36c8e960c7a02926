// The timing of a source: durations, positions, and which frame shows at a time.
#include "qpix/TestFiles.h"
#include "qpix/zelImageSource.h"
#include <gtest/gtest.h>

namespace {

constexpr double kDefault = double{kDefaultFrameDuration_ms};

// The timing elements stand in front of group 0028, as in a file made by others.
DicomBuilder Vector(int frames, const char* vector)
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .CommonHeader("US")
        .Element(0x0018, 0x1065, "DS", vector)
        .Image({.rows = 1, .columns = 1, .bits = 8, .frames = frames})
        .Element(0x0028, 0x0009, "AT", Hex("18006510"))
        .NativePixels(std::string(static_cast<std::size_t>(frames), 'x'), "OB");
}

DicomBuilder Single(int frames, const char* time)
{
    return DicomBuilder()
        .Meta(kUidExplicitLittle)
        .CommonHeader("US")
        .Element(0x0018, 0x1063, "DS", time)
        .Image({.rows = 1, .columns = 1, .bits = 8, .frames = frames})
        .NativePixels(std::string(static_cast<std::size_t>(frames), 'x'), "OB");
}

}  // namespace

TEST(zelImageSource_timing, durations_and_positions)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        std::int32_t frame;
        QvxStatus status;
        double duration, position, total;
    };
    const Row rows[] = {
        {"one frame has the default", Single(1, "40"), 1, kQvxOK, kDefault, 0, kDefault},
        {"no timing in the file", FramesOf2x2(3), 3, kQvxOK, kDefault, 2 * kDefault, 3 * kDefault},
        {"one time for all", Single(3, "40"), 2, kQvxOK, 40, 40, 120},
        {"too short a time", Single(3, "0.5"), 2, kQvxOK, kDefault, kDefault, 3 * kDefault},
        {"exactly the shortest", Single(2, "1"), 2, kQvxOK, 1, 1, 2},
        {"a vector", Vector(3, "10\\20\\30"), 3, kQvxOK, 30, 30, 60},
        {"a short entry of a vector", Vector(2, "10\\0.2"), 2, kQvxOK, kDefault, 10, 10 + kDefault},
        {"a vector of another length", Vector(3, "10\\20"), 1, kQvxBadArgument, -1, -1, -1},
        {"a negative time", Single(3, "-5"), 1, kQvxBadArgument, -1, -1, -1},
        {"frame 0", Single(3, "40"), 0, kQvxBadArgument, -1, -1, 120},
        {"behind the last", Single(3, "40"), 4, kQvxBadArgument, -1, -1, 120},
    };
    const TempFolder folder;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        zelImageSource source;
        ASSERT_EQ(source.ImportFromFSSpec(WriteDicom(folder, row.file), kImportDicom), kQvxOK);
        double duration = -1, position = -1, total = -1;
        EXPECT_EQ(source.GetFrameDuration(row.frame, &duration), row.status);
        EXPECT_EQ(source.GetTimePosOfFrame(row.frame, &position), row.status);
        EXPECT_EQ(source.GetTotalSourceDuration(&total), row.total < 0 ? kQvxBadArgument : kQvxOK);
        EXPECT_FLOAT_EQ(static_cast<float>(duration), static_cast<float>(row.duration));
        EXPECT_FLOAT_EQ(static_cast<float>(position), static_cast<float>(row.position));
        EXPECT_FLOAT_EQ(static_cast<float>(total), static_cast<float>(row.total));
    }
}

TEST(zelImageSource_timing, the_frame_at_a_time)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        double time;
        QvxStatus status;
        std::int32_t frame;
    };
    const auto vector = Vector(3, "10\\20\\30");
    const auto single = Single(3, "40");
    const Row rows[] = {
        {"a vector's begin", vector, 0, kQvxOK, 1},
        {"just before the second", vector, 9.9, kQvxOK, 1},
        {"the edge is the next frame's", vector, 10, kQvxOK, 2},
        {"the last", vector, 59.9, kQvxOK, 3},
        {"the total is behind the end", vector, 60, kQvxBadArgument, -1},
        {"before the begin", vector, -0.1, kQvxBadArgument, -1},
        {"one time: begin", single, 0, kQvxOK, 1},
        {"one time: edge", single, 80, kQvxOK, 3},
        {"one time: total", single, 120, kQvxBadArgument, -1},
        {"rounding never passes the count", single, 119.99999999999999, kQvxOK, 3},
        {"the default, in the middle", FramesOf2x2(3), 1.5 * kDefault, kQvxOK, 2},
    };
    const TempFolder folder;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        zelImageSource source;
        ASSERT_EQ(source.ImportFromFSSpec(WriteDicom(folder, row.file), kImportDicom), kQvxOK);
        std::int32_t frame = -1;
        EXPECT_EQ(source.GetFrameForTimePos(row.time, &frame), row.status);
        EXPECT_EQ(frame, row.frame);
    }
}

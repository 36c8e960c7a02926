// Frames decoded on the thread ahead are those that are decoded when shown.
#include "dicom_core/imaging/DecodeAhead.h"

#include "dicom_core/imaging/ImagingFixtures.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/store/TempFolder.h"
#include "util/Log.h"

#include <chrono>
#include <filesystem>
#include <map>

namespace {

struct DecodeAheads : testing::Test {
    DecodeAheads()
    {
        buffer.SetIOBufferSize(kBaseBufferIOBytes);
        gAppBaseBuffer = &buffer;
        for (int i = 0; i < 3; ++i) {
            DicomBuilder gray = GrayFile(2, 3, 16), color;
            made.Add(WithWindow(gray, "200", "400").NativePixels({i, 100, 200, 300, 400, 500}));
            color.Meta(kUidExplicitLittle)
                .CommonHeader()
                .Image({.rows = 1, .columns = 2, .bits = 8, .samples = 3});
            made.Add(color.NativePixels(std::string("\xFF\x00\x00\x50\x50\x50", 6), "OB"));
        }
    }
    ~DecodeAheads() override
    {
        gAppBaseBuffer = nullptr;
        buffer.Reset();
        SetLogSink(nullptr);
    }
    // Waits until the frame came in, at most five seconds.
    bool Comes(int frame)
    {
        for (int i = 0; i < 1000; ++i) {
            ahead.Collect(&made.sequence, 99);  // no frame, which leaves the others wanted
            if (CheckIfCellInBaseBuffer(&made.sequence, frame))
                return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }
    std::vector<int> Shown(int frame)
    {
        zel_QTViewerDoc document;
        EXPECT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, frame, &document), kQvxOK);
        return ShownBy(&document);
    }

    zel_ImageBuffer buffer;
    MadeSequence made;
    DecodeAhead ahead;
};

TEST_F(DecodeAheads, fill_the_buffer_with_what_showing_would)
{
    const std::vector<std::int32_t> frames{1, 2, 3, 4, 99, 0, -1};
    ahead.Request(&made.sequence, frames);
    std::map<int, std::vector<int>> fromBuffer;
    for (const int frame : {1, 2, 3, 4}) {
        ASSERT_TRUE(Comes(frame)) << frame;
        fromBuffer[frame] = Shown(frame);
    }
    EXPECT_FALSE(CheckIfCellInBaseBuffer(&made.sequence, 5)) << "nobody asked for it";
    buffer.Reset();
    for (const auto& [frame, shown] : fromBuffer)
        EXPECT_EQ(shown, Shown(frame)) << frame;
}

TEST_F(DecodeAheads, drop_what_was_forgotten_and_what_fails)
{
    SetLogSink([](std::string_view) {});
    const std::string broken = made.Add(GrayFile(2, 3, 16).NativePixels({1, 2, 3, 4, 5, 6}));
    ASSERT_NE(made.sequence.GetImageFrameInfo(7), nullptr);
    std::filesystem::remove(broken);
    const std::vector<std::int32_t> frames{7, 1};
    ahead.Request(&made.sequence, frames);
    EXPECT_TRUE(Comes(1));
    EXPECT_FALSE(CheckIfCellInBaseBuffer(&made.sequence, 7));

    const std::vector<std::int32_t> more{3, 5};
    ahead.Request(&made.sequence, more);
    ahead.Forget();
    ahead.Request(&made.sequence, std::vector<std::int32_t>{4});
    EXPECT_TRUE(Comes(4));
    EXPECT_FALSE(CheckIfCellInBaseBuffer(&made.sequence, 3));
    EXPECT_FALSE(CheckIfCellInBaseBuffer(&made.sequence, 5));
}

TEST_F(DecodeAheads, do_nothing_without_a_buffer)
{
    gAppBaseBuffer = nullptr;
    ahead.Request(&made.sequence, std::vector<std::int32_t>{1, 2});
    ahead.Collect(&made.sequence, 1);
    gAppBaseBuffer = &buffer;
    EXPECT_EQ(buffer.CountImages(), 0u);
}

}  // namespace

// A frame's way through a document: ladder, window, looks, buffer, and what a sequence shares.
#include "dicom_core/imaging/ImagingFixtures.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/SetupVOIBlitter.h"
#include "dicom_core/store/TempFolder.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsTables.h"
#include "util/Log.h"

#include "qpix/OffscreenForFrame.h"
#include <cmath>

namespace {

// 2 by 3 pixels of 16 bits: 0, 100, 200 / 300, 400, 500 under a window of 400 about 200.
DicomBuilder SixteenBits()
{
    DicomBuilder file = GrayFile(2, 3, 16);
    return WithWindow(file, "200", "400").NativePixels({0, 100, 200, 300, 400, 500});
}

const std::vector<int> kSixteenShown{0, 64, 128, 192, 255, 255};

class Quiet {
public:
    Quiet()
    {
        SetLogSink([](std::string_view) {});
    }
    ~Quiet() { SetLogSink(nullptr); }
};

}  // namespace

TEST(ViewerDoc, says_how_far_it_is_and_why_not_further)
{
    const Quiet quiet;
    MadeSequence made;
    dk_Sequence empty;
    zel_QTViewerDoc document;
    EXPECT_EQ(document.GetHandicap(), kHandicapNoFrameYet);
    EXPECT_EQ(document.GetFramesTotal(), -1);
    EXPECT_EQ(document.GetZoomVal(), kZoomOne);
    EXPECT_EQ(document.SetSequence(nullptr), kQvxOK);
    EXPECT_EQ(document.GetHandicap(), kHandicapNoSequence);
    EXPECT_EQ(document.SetSequence(&empty), kQvxOK);
    EXPECT_EQ(document.GetHandicap(), kHandicapNoChildren);
    made.Add(SixteenBits());
    EXPECT_NE(document.SetSequence(&made.sequence), kQvxBadArgument);
    EXPECT_EQ(document.SetCurrentImageFrame(2), kQvxBadArgument);
    EXPECT_EQ(document.GetHandicap(), kHandicapNoSuchFrame);
    EXPECT_EQ(document.ImportCurrentSeqFrame(), kQvxBadArgument);
    EXPECT_EQ(document.SetCurrentImageFrame(1), kQvxOK);
    EXPECT_EQ(document.GetStatus(), kDocFrameSelected);
    EXPECT_EQ(document.GetFramesTotal(), 1);
    EXPECT_EQ(document.GetWidth(), 0);
    ASSERT_EQ(document.ImportCurrentSeqFrame(), kQvxOK);
    EXPECT_EQ(document.GetStatus(), kDocImported);
    EXPECT_EQ(document.GetWidth(), 3);
    document.CurrentFrame()->fTransform.rotation = 45;
    EXPECT_EQ(document.ImportCurrentSeqFrame(), kQvxBadArgument);
    EXPECT_EQ(document.GetStatus(), kDocFrameSelected);
}

TEST(ViewerDoc, gives_a_frame_the_looks_of_its_record)
{
    ColorTable red = *SystemColorTable(40);
    for (std::size_t i = 0; i < 256; ++i)
        red.fEntries[i] = {0, static_cast<std::uint16_t>(i * 257), 0, 0};
    prefs_SetCLUTs({{"red", red}});
    struct Row {
        const char* fault;
        DicomBuilder file;
        void (*edit)(dk_ImageFrameInfo*);
        std::vector<int> shown;
        zelEditsShown edits;
    };
    const auto nothing = [](dk_ImageFrameInfo*) {};
    DicomBuilder eight = GrayFile(1, 4, 8), color;
    WithWindow(eight, "128", "256").NativePixels(std::string("\x00\x40\x80\xFF", 4), "OB");
    color.Meta(kUidExplicitLittle)
        .CommonHeader()
        .Image({.rows = 1, .columns = 2, .bits = 8, .samples = 3});
    color.NativePixels(std::string("\xFF\x00\x00\x50\x50\x50", 6), "OB");
    const zelEditsShown noWindow{false, true, true}, noColor{true, false, true},
        noGeometry{true, true, false};
    const Row rows[] = {
        {"16 bits under their window", SixteenBits(), nothing, kSixteenShown, {}},
        {"8 bits by their table", eight, nothing, {0, 64, 128, 255}, {}},
        {"another window",
         SixteenBits(),
         [](dk_ImageFrameInfo* f) { f->fTransform.RecordVOI(200, 300); },
         {0, 0, 0, 128, 255, 255},
         {}},
        {"the image's own again", SixteenBits(),
         [](dk_ImageFrameInfo* f) { f->fTransform.RecordVOI(200, 300); }, kSixteenShown, noWindow},
        {"negative, 16 bits",
         SixteenBits(),
         [](dk_ImageFrameInfo* f) { f->fTransform.invert = true; },
         {255, 191, 127, 63, 0, 0},
         {}},
        {"negative, 8 bits",
         eight,
         [](dk_ImageFrameInfo* f) { f->fTransform.invert = true; },
         {255, 191, 127, 0},
         {}},
        {"a quarter turn",
         SixteenBits(),
         [](dk_ImageFrameInfo* f) { f->fTransform.RecRotation(90); },
         {192, 0, 255, 64, 255, 128},
         {}},
        {"three quarters and a flip",
         SixteenBits(),
         [](dk_ImageFrameInfo* f) {
             f->fTransform.RecRotation(270);
             f->fTransform.RecHorzFlip();
         },
         {255, 128, 255, 64, 192, 0},
         {}},
        {"upright again", SixteenBits(),
         [](dk_ImageFrameInfo* f) { f->fTransform.RecRotation(90); }, kSixteenShown, noGeometry},
        {"colours and negative",
         eight,
         [](dk_ImageFrameInfo* f) {
             f->fColorTable = 1;
             f->fTransform.invert = true;
         },
         {0xFF0000, 0xBF0000, 0x7F0000, 0},
         {}},
        {"colours of 16 bits",
         SixteenBits(),
         [](dk_ImageFrameInfo* f) { f->fColorTable = 1; },
         {0, 0x400000, 0x800000, 0xC00000, 0xFF0000, 0xFF0000},
         {}},
        {"no colours", SixteenBits(), [](dk_ImageFrameInfo* f) { f->fColorTable = 1; },
         kSixteenShown, noColor},
        {"a table that isn't there",
         eight,
         [](dk_ImageFrameInfo* f) { f->fColorTable = 9; },
         {0, 64, 128, 255},
         {}},
        {"colour as it is", color, nothing, {0xFF0000, 0x50}, {}},
        {"colour as a negative",
         color,
         [](dk_ImageFrameInfo* f) { f->fTransform.invert = true; },
         {0x00FFFF, 0xAF},
         {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeSequence made;
        made.Add(row.file);
        zel_QTViewerDoc document;
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 1, &document), kQvxOK);
        row.edit(made.sequence.GetImageFrameInfo(1));
        document.SetEditsShown(row.edits);
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 1, &document), kQvxOK);
        EXPECT_EQ(ShownBy(&document), row.shown);
    }
    // Colour goes by way of gray through the table.
    MadeSequence made;
    made.Add(color);
    zel_QTViewerDoc document;
    made.sequence.GetImageFrameInfo(1)->fColorTable = 1;
    ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 1, &document), kQvxOK);
    EXPECT_EQ(ShownBy(&document)[1], 0x500000);
    prefs_SetCLUTs({});
}

TEST(ViewerDoc, copies_parts_that_lie_in_the_picture)
{
    MadeSequence made;
    made.Add(SixteenBits());
    zel_QTViewerDoc document;
    ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 1, &document), kQvxOK);
    std::unique_ptr<Port> port;
    ASSERT_EQ(NewPort(kPixelFormatARGB32, 2, 1, nullptr, &port), kQvxOK);
    const LongRect part{1, 1, 2, 3}, beyond{0, 0, 2, 4}, huge{0, 0, 2, 40000};
    ASSERT_EQ(document.CopyPixelsToGWorldL(port.get(), &part, nullptr, CopyMode::Replace, nullptr),
              kQvxOK);
    EXPECT_EQ(port->baseAddr[1], 255);
    EXPECT_EQ(
        document.CopyPixelsToPixMapL(port->Map(), &beyond, nullptr, CopyMode::Replace, nullptr),
        kQvxBadArgument);
    EXPECT_EQ(
        document.DecompressToPixMapL(port->Map(), &huge, nullptr, 768, CopyMode::Replace, nullptr),
        kQvxBadArgument);
}

TEST(ViewerDoc, a_buffered_frame_needs_neither_file_nor_decoder)
{
    const Quiet quiet;
    const TempFolder home;
    setenv("XDG_CACHE_HOME", home.Path().c_str(), 1);
    {
        zel_ImageBuffer buffer;
        buffer.SetIOBufferSize(1 << 20);
        gAppBaseBuffer = &buffer;
        MadeSequence made;
        DicomBuilder frames = GrayFile(1, 2, 16, 3);
        made.Add(WithWindow(frames, "50", "100").NativePixels({0, 100, 50, 60, 70, 80}));
        zel_QTViewerDoc first;
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 2, &first), kQvxOK);
        const auto shown = ShownBy(&first);
        std::int32_t primary = 0, secondary = 0;
        ASSERT_EQ(made.sequence.GetBaseBufferIDsForSequenceFrame(2, &primary, &secondary), kQvxOK);
        EXPECT_EQ(primary, 2);
        EXPECT_TRUE(CheckIfCellInBaseBuffer(&made.sequence, 2));
        EXPECT_FALSE(AllCellsInBaseBuffer(&made.sequence));
        // Other pixels in the file would show if it were read.
        auto white = std::unique_ptr<Port>();
        ASSERT_EQ(NewPort(kPixelFormatGray16, 2, 1, nullptr, &white), kQvxOK);
        ASSERT_EQ(buffer.UpdateImage(*white, Rect{}, primary, secondary), kQvxOK);
        zel_QTViewerDoc again;
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 2, &again), kQvxOK);
        EXPECT_EQ(ShownBy(&again), (std::vector<int>{255, 255})) << "from the buffer";
        EXPECT_NE(shown, ShownBy(&again));
        ForgetBufferedFrames(&made.sequence);
        EXPECT_EQ(buffer.CountImages(), 0u);
        EXPECT_EQ(buffer.SetBufLimit(0), kQvxOK);  // a buffer that takes nothing
        zel_QTViewerDoc direct;
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 2, &direct), kQvxOK);
        EXPECT_EQ(ShownBy(&direct), shown);
    }
    EXPECT_EQ(gAppBaseBuffer, nullptr);
    RemoveProgramTempFolder();
    unsetenv("XDG_CACHE_HOME");
}

// Each frame of a PET series has a step of its own.
TEST(SetupVOIBlitter, frames_of_other_steps_are_windowed_alike)
{
    MadeSequence made;
    for (const char* slope : {"0.2", "0.1", "0.3", "0.15"}) {
        DicomBuilder file = GrayFile(1, 2, 16);
        file.Element(0x0028, 0x1050, "DS", "500").Element(0x0028, 0x1051, "DS", "1000");
        file.Element(0x0028, 0x1052, "DS", "0").Element(0x0028, 0x1053, "DS", slope);
        made.Add(file.NativePixels({0, 30000}));
    }
    for (const int frame : {1, 2, 3, 4, 1}) {
        SCOPED_TRACE(frame);
        zel_QTViewerDoc document;
        EXPECT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, frame, &document), kQvxOK);
        EXPECT_NEAR(document.GetTransformations()->voiWidth, 1000, 0.2);
        EXPECT_NEAR(document.GetTransformations()->voiLevel, 500, 0.2);
        EXPECT_EQ(ShownBy(&document), (std::vector<int>{0, 255}));
    }
}

TEST(SetupVOIBlitter, a_stated_window_may_be_wider_than_the_pixels)
{
    MadeSequence made;
    DicomBuilder file = GrayFile(1, 3, 16);
    made.Add(WithWindow(file, "30000", "100000").NativePixels({0, 30000, 65535}));
    prefs_Set_EnhanceVOIContrast(false);
    zel_QTViewerDoc document;
    EXPECT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 1, &document), kQvxOK);
    EXPECT_EQ(document.GetTransformations()->voiWidth, 100000);
    EXPECT_EQ(ShownBy(&document), (std::vector<int>{51, 128, 218}));  // PS3.3 C.11.2.1.2.1
    prefs_Set_EnhanceVOIContrast(true);
}

// PS3.3 C.11.2.1.3 and C.11.2.1.1: the curve of a file's windows, and a table in place of one.
TEST(SetupVOIBlitter, a_file_may_ask_for_a_curve_or_a_table)
{
    prefs_Set_EnhanceVOIContrast(false);
    for (const int bits : {16, 8}) {
        SCOPED_TRACE(bits);
        MadeSequence made;
        DicomBuilder sigmoid = GrayFile(1, 3, bits), table = GrayFile(1, 3, bits);
        WithWindow(sigmoid, "100", "80").Element(0x0028, 0x1056, "CS", "SIGMOID");
        const auto add = [&](DicomBuilder* file) {
            made.Add(bits == 8 ? file->NativePixels(std::string("\x3C\x64\x8C\x00", 4), "OB")
                               : file->NativePixels({60, 100, 140}));
        };
        add(&sigmoid);
        Item steps;  // 0 below 110, then all
        std::string entries;
        for (int i = 0; i < 200; ++i)
            entries += std::string(i < 110 ? "\0\0" : "\xFF\0", 2);
        steps.Element(0x0028, 0x3002, "US", std::string("\xC8\0\0\0\x08\0", 6))
            .Element(0x0028, 0x3006, "OW", entries);
        table.Sequence(0x0028, 0x3010, {steps});
        add(&table);
        zel_QTViewerDoc document;
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 1, &document), kQvxOK);
        const std::vector<int> curved = ShownBy(&document);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(curved[i], 255 / (1 + std::exp(-4 * (40.0 * i - 40) / 80)), 1) << i;
        ASSERT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, 2, &document), kQvxOK);
        EXPECT_EQ(ShownBy(&document), (std::vector<int>{0, 0, 255}));
    }
    prefs_Set_EnhanceVOIContrast(true);
}

TEST(SetupVOIBlitter, a_window_reaches_frames_that_are_decoded_later)
{
    MadeSequence made;
    DicomBuilder first = GrayFile(1, 2, 16), second = GrayFile(1, 2, 16),
                 third = GrayFile(1, 2, 16);
    made.Add(WithWindow(first, "100", "200").NativePixels({0, 300}));
    made.Add(WithWindow(second, "500", "50").NativePixels({0, 4000}));
    made.Add(third.NativePixels({10, 20}));
    const auto load = [&made](int frame) {
        zel_QTViewerDoc document;
        EXPECT_EQ(U_LoadFrameContentToViewerDoc(&made.sequence, frame, &document), kQvxOK);
        return &made.sequence.GetImageFrameInfo(frame)->fTransform;
    };
    EXPECT_EQ(load(1)->voiWidth, 200);
    EXPECT_EQ(load(2)->voiWidth, 50) << "its own, as long as the first is at its own";
    load(1)->RecordVOI(77, 99);
    EXPECT_EQ(load(1)->voiWidth, 77) << "a later set-up keeps it";
    zel_TransformRec* look = load(3);
    EXPECT_EQ(look->voiWidth, 77) << "adopted from the first frame that was set up";
    EXPECT_EQ(look->voiLevel, 99);
    // Without a window of its own: the greatest width of the sequence.
    EXPECT_EQ(look->voiWidthOriginal, look->voiWidthMax);
    look->RecordVOI(11, 12);
    EXPECT_EQ(load(3)->voiWidth, 11);

    dk_ImageFrameInfo* frame = made.sequence.GetImageFrameInfo(1);
    EXPECT_EQ(U_SetDisplayVOIParams(frame, 1000, 150, true), kQvxOK);
    EXPECT_EQ(frame->fTransform.voiWidth, 300) << "cut to the pixels 0 to 300";
    EXPECT_EQ(frame->fTransform.voiLevel, 150);
}

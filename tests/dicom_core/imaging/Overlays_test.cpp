// Overlay planes over a frame: where their bits come from, where they lie, and in which colour.
#include "dicom_core/imaging/DicomOverlays.h"
#include "dicom_core/imaging/ImagingFixtures.h"
#include "dicom_core/look/TransDocs.h"
#include "dicom_core/store/TempFolder.h"
#include "prefs/PrefsColors.h"

#include "qpix/zelImageSource.h"

namespace {

// A group with bits of its own: `bits` as text of 'x' and '.', row by row.
void AddOverlay(DicomBuilder* file, int group, int rows, int columns, int top, int left,
                const std::string& bits)
{
    std::string bytes((bits.size() + 15) / 16 * 2, '\0');
    for (std::size_t i = 0; i < bits.size(); ++i)
        if (bits[i] == 'x')
            bytes[i / 8] = static_cast<char>(bytes[i / 8] | 1 << (i % 8));
    const auto g = static_cast<std::uint16_t>(group);
    file->Element(g, 0x0010, "US", rows)
        .Element(g, 0x0011, "US", columns)
        .Element(g, 0x0040, "CS", "G")
        .Element(g, 0x0050, "SS", {top, left})
        .Element(g, 0x0100, "US", 1)
        .Element(g, 0x0102, "US", 0)
        .Element(g, 0x3000, "OB", bytes);
}

// What is painted on a white port of the size of the target, as 'x' and '.'.
std::string Painted(zelImageSource* source, int frame, const Rect& target,
                    const zel_TransformRec* record, zel_ImageBuffer* buffer = nullptr,
                    OverlaysBeyond beyond = OverlaysBeyond::Skipped)
{
    std::unique_ptr<Port> port;
    EXPECT_EQ(NewPort(kPixelFormatARGB32, target.right, target.bottom, nullptr, &port), kQvxOK);
    const IdentityTransDoc doc;
    EXPECT_EQ(U_DrawDicomOverlays(source, frame, port.get(), target, record,
                                  record ? &doc : nullptr, buffer, beyond),
              kQvxOK);
    std::string text;
    for (int v = 0; v < target.bottom; ++v)
        for (int h = 0; h < target.right; ++h)
            text += port->baseAddr[v * port->rowBytes + 4 * h + 1] == 255 ? '.' : 'x';
    return text;
}

Rect Sized(int height, int width)
{
    return {0, 0, static_cast<std::int16_t>(height), static_cast<std::int16_t>(width)};
}

class Overlays : public testing::Test {
protected:
    void SetUp() override { prefs_Set_OverlaysColor({0, 0, 1, 1}); }
    zelImageSource* Source(const DicomBuilder& file)
    {
        made.Add(file);
        return static_cast<dk_ImageFile*>(made.sequence.GetLastChild())->GetSource();
    }
    MadeSequence made;
};

}  // namespace

TEST_F(Overlays, lie_where_the_file_says_in_every_turn)
{
    struct Row {
        const char* fault;
        int top, left;  // from 1
        OverlaysBeyond beyond;
        void (*turn)(zel_TransformRec*);
        Rect target;
        const char* painted;
    };
    const auto none = [](zel_TransformRec*) {};
    const auto quarter = [](zel_TransformRec* r) { r->RecRotation(90); };
    const auto mirrored = [](zel_TransformRec* r) { r->RecHorzFlip(); };
    // A frame of 3 by 4 with a plane of 2 by 2: x. / xx
    const Row rows[] = {
        {"inside", 2, 3, OverlaysBeyond::Skipped, none, Sized(3, 4), "......x...xx"},
        {"a quarter turn", 2, 3, OverlaysBeyond::Skipped, quarter, Sized(4, 3), "......xx.x.."},
        {"mirrored", 2, 3, OverlaysBeyond::Skipped, mirrored, Sized(3, 4),
         "....."
         "x..xx.."},
        {"twice as large", 1, 1, OverlaysBeyond::Skipped, none, Sized(6, 8),
         "xx......xx......xxxx....xxxx...................."},
        {"a row beyond is skipped", 3, 1, OverlaysBeyond::Skipped, none, Sized(3, 4),
         "............"},
        {"a row beyond is cut", 3, 1, OverlaysBeyond::Cut, none, Sized(3, 4), "........x..."},
        {"before the first pixel", 0, 0, OverlaysBeyond::Cut, none, Sized(3, 4), "x..........."},
        {"cut and turned", 3, 1, OverlaysBeyond::Cut, quarter, Sized(4, 3), "x..........."},
        {"far away", 90, 90, OverlaysBeyond::Cut, none, Sized(3, 4), "............"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder file = GrayFile(3, 4, 8);
        AddOverlay(&file, 0x6000, 2, 2, row.top, row.left, "x.xx");
        zelImageSource* source = Source(file.NativePixels(std::string(12, '\0'), "OB"));
        zel_TransformRec record;
        row.turn(&record);
        EXPECT_EQ(Painted(source, 1, row.target, &record, nullptr, row.beyond), row.painted);
        if (record.IsVoid()) {
            EXPECT_EQ(Painted(source, 1, row.target, nullptr, nullptr, row.beyond), row.painted)
                << "without a record";
        }
    }
}

TEST_F(Overlays, come_from_groups_frames_and_unused_pixel_bits)
{
    DicomBuilder embedded;
    embedded.Meta(kUidExplicitLittle)
        .CommonHeader()
        .Element(0x6002, 0x0010, "US", 1)
        .Element(0x6002, 0x0011, "US", 4)
        .Element(0x6002, 0x0040, "CS", "G")
        .Element(0x6002, 0x0050, "SS", {1, 1})
        .Element(0x6002, 0x0100, "US", 16)
        .Element(0x6002, 0x0102, "US", 13)
        .Image({.rows = 1, .columns = 4, .bits = 16, .frames = 2, .stored = 12});
    embedded.NativePixels({0x2001, 1, 2, 0x2FFF, 0, 0x2000, 0, 0});
    zelImageSource* source = Source(embedded);
    EXPECT_EQ(Painted(source, 1, Sized(1, 4), nullptr), "x..x");
    EXPECT_EQ(Painted(source, 2, Sized(1, 4), nullptr), ".x..") << "the bits of its own frame";

    DicomBuilder framed = GrayFile(1, 4, 8, 4);
    AddOverlay(&framed, 0x6000, 1, 4, 1, 1, "x...x.x.");  // two planes of one row
    framed.Element(0x6000, 0x0015, "IS", "2").Element(0x6000, 0x0051, "US", 2);
    AddOverlay(&framed, 0x6004, 1, 1, 1, 4, "x");
    source = Source(framed.NativePixels(std::string(16, '\0'), "OB"));
    EXPECT_EQ(Painted(source, 1, Sized(1, 4), nullptr), "...x") << "every frame has the second";
    EXPECT_EQ(Painted(source, 2, Sized(1, 4), nullptr), "x..x");
    EXPECT_EQ(Painted(source, 3, Sized(1, 4), nullptr), "x.xx");
    EXPECT_EQ(Painted(source, 4, Sized(1, 4), nullptr), "...x");
}

TEST_F(Overlays, are_kept_in_the_buffer_and_take_the_colour_of_now)
{
    const TempFolder home;
    setenv("XDG_CACHE_HOME", home.Path().c_str(), 1);
    {
        zel_ImageBuffer buffer;
        DicomBuilder file = GrayFile(1, 4, 8);
        AddOverlay(&file, 0x6000, 1, 4, 1, 1, "x..x");
        zelImageSource* source = Source(file.NativePixels(std::string(4, '\0'), "OB"));
        EXPECT_EQ(Painted(source, 1, Sized(1, 4), nullptr, &buffer), "x..x");
        EXPECT_TRUE(buffer.GetImageInfoByID(1 + 0x1000000, source->SourceID()));
        // A plane of nothing in its place: that is what is painted now.
        std::unique_ptr<Port> blank;
        ASSERT_EQ(NewPort(1, 4, 1, nullptr, &blank), kQvxOK);
        ASSERT_EQ(buffer.UpdateImage(*blank, Rect{}, 1 + 0x1000000, source->SourceID()), kQvxOK);
        EXPECT_EQ(Painted(source, 1, Sized(1, 4), nullptr, &buffer), "....");
        EXPECT_EQ(U_DrawDicomOverlays(source, 1, blank.get(), Rect{}, nullptr, nullptr, &buffer),
                  kQvxBadArgument);
    }
    RemoveProgramTempFolder();
    unsetenv("XDG_CACHE_HOME");
}

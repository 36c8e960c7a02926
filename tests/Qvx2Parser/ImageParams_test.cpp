// What a header says beside its pixels: window pairs, overlay groups and masks.
#include "Qvx2Parser/QvxImageParams.h"
#include "Qvx2Parser/QvxOverlays.h"
#include "Qvx2Parser/ReaderFixture.h"

namespace {

constexpr std::string_view kUidEnhancedMR = "1.2.840.10008.5.1.4.1.1.4.1";

Item WindowItem(const char* center, const char* width)
{
    return Item().Sequence(
        0x0028, 0x9132,
        {Item().Element(0x0028, 0x1050, "DS", center).Element(0x0028, 0x1051, "DS", width)});
}

std::string WindowsOf(const QvxReaderPtr& reader, std::uint32_t frame)
{
    QvxHandle params;
    const QvxStatus status = ParserGetVOIParamsArray(reader.get(), frame, &params);
    if (status)
        return "status " + std::to_string(status);
    std::string text;
    for (const QvxVOIParams& window : QvxVOIParamsOf(params))
        text += std::to_string(static_cast<int>(window.fCenter)) + '/' +
                std::to_string(static_cast<int>(window.fWidth)) + ' ';
    return text;
}

std::vector<std::int32_t> Listed(const QvxHandle& handle)
{
    const auto numbers = QvxNumbersOf(handle);
    return {numbers.begin(), numbers.end()};
}

// Overlays of 6000 (frames 3 and 4) and 6004 (no origin, in the pixels), 601E, and two groups that
// are none.
DicomBuilder OverlayFile(bool big)
{
    DicomBuilder file;
    file.Meta(big ? kUidExplicitBig : kUidExplicitLittle).CommonHeader();
    file.Element(0x6000, 0x0010, "IS", "300")
        .Element(0x6000, 0x0011, "US", 5)
        .Element(0x6000, 0x0015, "IS", "2")
        .Element(0x6000, 0x0040, "CS", "G")
        .Element(0x6000, 0x0050, "SS", {2, -3})
        .Element(0x6000, 0x0051, "US", 3)
        .Element(0x6000, 0x3000, "OW", std::string("abcdef"))
        .Element(0x6001, 0x0040, "CS", "G")
        .Element(0x6002, 0x0010, "US", 1)
        .Element(0x6004, 0x0040, "CS", "R")
        .Element(0x601E, 0x0010, "OB", std::string(big ? "\x01\x02" : "\x02\x01"))
        .Element(0x601E, 0x0011, "OB", std::string(big ? "\x01\x03" : "\x03\x01"))
        .Element(0x601E, 0x0040, "CS", "G")
        .Element(0x601E, 0x0050, "OB", std::string(big ? "\0\x05\0\x07" : "\x05\0\x07\0", 4))
        .Element(0x601E, 0x3000, "OB", std::string("gh"))
        .Element(0x6020, 0x0040, "CS", "G");
    return file.Image({.rows = 2, .columns = 2, .bits = 8, .frames = 4})
        .NativePixels(std::string(16, 'p'), "OB");
}

}  // namespace

TEST(ImageParams, windows_are_paired_and_sought_where_the_file_keeps_them)
{
    const auto plain = [](std::string_view sopClass, const char* centers, const char* widths) {
        DicomBuilder file;
        file.Meta(kUidExplicitLittle).Element(0x0008, 0x0016, "UI", std::string(sopClass));
        if (centers)
            file.Element(0x0028, 0x1050, "DS", centers);
        if (widths)
            file.Element(0x0028, 0x1051, "DS", widths);
        return file;
    };
    const auto enhanced = [&plain](bool shared) {
        DicomBuilder file = plain(kUidEnhancedMR, "1", "2");
        if (shared)
            file.Sequence(0x5200, 0x9229, {WindowItem("50", "60")});
        return file.Sequence(0x5200, 0x9230,
                             {WindowItem("30", "40"), Item(), WindowItem("31", "41")});
    };
    struct Row {
        const char* fault;
        DicomBuilder file;
        std::uint32_t frame;
        const char* windows;
    };
    const Row rows[] = {
        {"fewer widths than centres", plain(kUidCTImage, "40\\50\\60", "400\\500"), 0,
         "40/400 50/500 "},
        {"no window is an answer", plain(kUidCTImage, nullptr, nullptr), 0, ""},
        {"a centre alone is none", plain(kUidCTImage, "40", nullptr), 0, ""},
        {"the frame doesn't matter at the top level", plain(kUidCTImage, "40", "400"), 9,
         "40/400 "},
        {"shared groups win", enhanced(true), 2, "50/60 "},
        {"else those of the frame", enhanced(false), 2, "31/41 "},
        {"a frame without one", enhanced(false), 1, ""},
        {"a frame past the groups", enhanced(false), 3, "status -8972"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(WindowsOf(OpenFile(row.file.Bytes()), row.frame), row.windows) << row.fault;
    EXPECT_EQ(WindowsOf(QvxReaderPtr(), 0), "status -50");
}

TEST(ImageParams, overlay_groups_have_places_frames_and_sizes)
{
    for (const bool big : {false, true}) {
        SCOPED_TRACE(big ? "big endian" : "little endian");
        const QvxReaderPtr reader = OpenFile(OverlayFile(big).Bytes());
        std::uint32_t count = 0, identifier = 99;
        std::uint16_t group = 1;
        EXPECT_EQ(Qvx2_ParserOverlayGetOverlayCountForFile(reader.get(), &count), kQvxOK);
        EXPECT_EQ(count, 3U);
        EXPECT_EQ(Qvx2_ParserOverlayID2Group(reader.get(), 2, &group), kQvxOK);
        EXPECT_EQ(group, 0x6004);
        EXPECT_EQ(Qvx2_ParserOverlayID2Group(reader.get(), 4, &group), kQvxOK);
        EXPECT_EQ(group, 0);
        EXPECT_EQ(ParserOverlayGroup2ID(reader.get(), 0x6004, &identifier), kQvxOK);
        EXPECT_EQ(identifier, 1U);
        identifier = 99;
        EXPECT_EQ(ParserOverlayGroup2ID(reader.get(), 0x6002, &identifier), kQvxOK);
        EXPECT_EQ(identifier, 99U);

        QvxHandle onFirst, onThird, frames;
        EXPECT_EQ(ParserOverlayGetOverlayIDsForImageFrame(reader.get(), 1, &onFirst), kQvxOK);
        EXPECT_EQ(Listed(onFirst), (std::vector<std::int32_t>{1, 2}));
        EXPECT_EQ(ParserOverlayGetOverlayIDsForImageFrame(reader.get(), 1, &onFirst),
                  kQvxResultNotNull);
        EXPECT_EQ(ParserOverlayGetOverlayIDsForImageFrame(reader.get(), 3, &onThird),
                  kQvxNoSuchElement);
        EXPECT_EQ(ParserOverlayGetImageIDsForOverlay(reader.get(), 1, &frames), kQvxOK);
        EXPECT_EQ(Listed(frames), (std::vector<std::int32_t>{3, 4}));

        std::uint16_t columns = 0, rows = 0;
        std::int16_t row = 0, column = 0;
        EXPECT_EQ(Qvx2_ParserOverlayGetDimensionsFromOverlayID(reader.get(), 1, &columns, &rows),
                  kQvxOK);
        EXPECT_EQ(rows * 1000 + columns, 300005);
        EXPECT_EQ(
            Qvx2_ParserOverlayGetDimensionsFromOverlayGroup(reader.get(), 0x601E, &columns, &rows),
            kQvxOK);
        EXPECT_EQ(rows * 1000 + columns, 258259) << "bytes without a numeric VR";
        EXPECT_EQ(ParserOverlayGetOriginFromOverlayID(reader.get(), 1, &row, &column), kQvxOK);
        EXPECT_EQ(row, 1);
        EXPECT_EQ(column, -4);
        EXPECT_EQ(ParserOverlayGetOriginFromOverlayGroup(reader.get(), 0x601E, &row, &column),
                  kQvxOK);
        EXPECT_EQ(row * 10 + column, 46);
    }
}

TEST(ImageParams, overlay_bits_lie_in_their_element_or_in_the_pixels)
{
    const DicomBuilder file = OverlayFile(false);
    const QvxReaderPtr reader = OpenFile(file.Bytes());
    std::vector<std::uint32_t> offsets, sizes;
    ASSERT_EQ(ParserOverlayGetOffsetsAndSizesForFile(reader.get(), &offsets, &sizes), kQvxOK);
    EXPECT_EQ(offsets, (std::vector<std::uint32_t>{
                           static_cast<std::uint32_t>(file.ValueOffsetOf(0x6000, 0x3000)),
                           static_cast<std::uint32_t>(file.ValueOffsetOf(0x7FE0, 0x0010)),
                           static_cast<std::uint32_t>(file.ValueOffsetOf(0x601E, 0x3000))}));
    EXPECT_EQ(sizes, (std::vector<std::uint32_t>{6, 4, 2}));
}

TEST(ImageParams, masks_name_their_frames)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle)
        .CommonHeader("XA")
        .Sequence(0x0028, 0x6100,
                  {Item()
                       .Element(0x0028, 0x6102, "US", {3, 9, 12, 15, 20})
                       .Element(0x0028, 0x6110, "US", {2, 5, 7})});
    const QvxReaderPtr reader = OpenFile(file.Bytes());
    QvxElementRefArray items;
    ASSERT_EQ(Qvx2Reader_GetSequenceElementRefs(reader.get(), {0x0028, 0x6100}, &items), kQvxOK);
    const QvxElementRef mask = QvxRefsOf(items)[0];
    std::uint16_t first = 0, last = 0;
    EXPECT_EQ(GetMaskFrameNumberRange(reader.get(), mask, &first, &last), kQvxOK);
    EXPECT_EQ(first * 10 + last, 27);
    QvxHandle ranges;
    ASSERT_EQ(GetApplicableFrameRanges(reader.get(), mask, &ranges), kQvxOK);
    const auto pairs = QvxFrameRangesOf(ranges);
    ASSERT_EQ(pairs.size(), 2U);
    EXPECT_EQ(pairs[1].fFirst * 100 + pairs[1].fLast, 1215);
}

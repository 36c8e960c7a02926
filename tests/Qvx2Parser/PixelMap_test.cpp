// Where frames lie: counts and rows for every form of pixel data, whole and broken.
#include "Qvx2Parser/ReaderFixture.h"

namespace {

struct MapRow {
    const char* fault;
    std::string bytes;
    std::uint32_t options;
    std::uint32_t nominal, actual;
    std::vector<std::uint32_t> fragments;  // of each mapped frame
};

DicomBuilder Native(const DicomImage& image)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader().Image(image);
    return file;
}

DicomBuilder Encapsulated(std::string_view syntax, int frames)
{
    DicomBuilder file;
    file.Meta(syntax).CommonHeader().Image({.rows = 8, .columns = 8, .bits = 8, .frames = frames});
    return file;
}

std::string Soi(const char* rest) { return "\xFF\xD8" + std::string(rest); }

std::vector<std::uint32_t> FragmentCounts(const QvxReaderPtr& reader)
{
    QvxHandle map;
    EXPECT_EQ(Qvx2Reader_GetImageOffsetsAndSizes(reader.get(), &map), kQvxOK);
    std::vector<std::uint32_t> counts;
    for (const QvxFrameMapRecord& row : QvxFrameMapOf(map))
        counts.push_back(row.fFragmentCount);
    return counts;
}

void ExpectMap(const MapRow& row)
{
    SCOPED_TRACE(row.fault);
    const QvxReaderPtr reader = OpenFile(row.bytes, row.options);
    std::uint32_t nominal = 99, actual = 99;
    ASSERT_EQ(Qvx2Reader_GetNumberOfFrames(reader.get(), kFramesClaimed, &nominal), kQvxOK);
    EXPECT_EQ(nominal, row.nominal);
    ASSERT_EQ(Qvx2Reader_GetNumberOfFrames(reader.get(), 0, &actual), kQvxOK);
    EXPECT_EQ(actual, row.actual);
    EXPECT_EQ(FragmentCounts(reader), row.fragments);
}

}  // namespace

TEST(PixelMap, native_frames_are_those_that_fit)
{
    const DicomImage small{.rows = 2, .columns = 3, .bits = 8, .frames = 10};
    DicomImage uncounted = small, bits = small;
    uncounted.frames = 0;
    bits = {.rows = 3, .columns = 3, .bits = 1};
    const MapRow rows[] = {
        {"ten claimed, seven there",
         Native(small).NativePixels(std::string(42, 'p')).Bytes(),
         0,
         10,
         7,
         {1, 1, 1, 1, 1, 1, 1}},
        {"none claimed: the length tells",
         Native(uncounted).NativePixels(std::string(12, 'p')).Append("behind it").Bytes(),
         0,
         2,
         2,
         {1, 1}},
        {"undefined length: the file's size tells",
         Native(uncounted).NativePixels(std::string(18, 'p')).StateLength(0xFFFFFFFF).Bytes(),
         0,
         3,
         3,
         {1, 1, 1}},
        {"bits round up to bytes", Native(bits).NativePixels("ab").Bytes(), 0, 1, 1, {1}},
        {"two bytes at the end of a file",
         Native({.rows = 1, .columns = 1}).NativePixels("ab").Bytes(),
         0,
         1,
         1,
         {1}},
        {"no rows, no frames",
         Native({.rows = 0, .columns = 3}).NativePixels("abcd").Bytes(),
         0,
         0,
         0,
         {}},
    };
    for (const MapRow& row : rows)
        ExpectMap(row);
}

TEST(PixelMap, fragments_become_frames)
{
    const std::vector<DicomFrame> two = {{Soi("aa"), "bb", "cccc"}, {Soi("dd")}};
    const std::vector<DicomFrame> four = {{"one1"}, {"two2"}, {"thre"}, {"four"}};
    const std::vector<DicomFrame> j2k = {{"\xFF\x4F\xFF\x51 a", "tail"}, {"\xFF\x4F\xFF\x51 b"}};
    using Table = DicomOffsetTable;
    const MapRow rows[] = {
        {"JPEG by its first marker",
         Encapsulated(kUidJpegBaseline, 0).Encapsulated(two).Bytes(),
         0,
         2,
         2,
         {3, 1}},
        {"the table outweighs the claim",
         Encapsulated(kUidJpegBaseline, 5).Encapsulated(four, Table::Filled).Bytes(),
         0,
         5,
         4,
         {1, 1, 1, 1}},
        {"RLE: a fragment is a frame",
         Encapsulated(kUidRle, 0).Encapsulated(four).Bytes(),
         0,
         4,
         4,
         {1, 1, 1, 1}},
        {"JPEG 2000 is one frame, plainly",
         Encapsulated(kUidJpeg2000, 0).Encapsulated(j2k).Bytes(),
         0,
         1,
         1,
         {3}},
        {"and two to the program",
         Encapsulated(kUidJpeg2000, 0).Encapsulated(j2k).Bytes(),
         kQvxProgramOptions,
         2,
         2,
         {2, 1}},
        {"one claimed frame takes all",
         Encapsulated("1.2.840.10008.1.2.4.110", 1).Encapsulated(four).Bytes(),
         kQvxProgramOptions,
         1,
         1,
         {4}},
        {"even past a table of its fragments",
         Encapsulated(kUidJpegBaseline, 1).Encapsulated(four, Table::Filled).Bytes(),
         kQvxProgramOptions,
         1,
         1,
         {4}},
        {"not plainly",
         Encapsulated("1.2.840.10008.1.2.4.110", 1).Encapsulated(four).Bytes(),
         0,
         1,
         4,
         {1, 1, 1, 1}},
        {"a last fragment past the end is dropped",
         Encapsulated(kUidRle, 0)
             .Encapsulated({{"one1"}, {DicomFragment("two2", 400)}})
             .NoEnd()
             .Append(std::string(96, 'x'))
             .Bytes(),
         0,
         1,
         1,
         {1}},
        {"no closing delimiter",
         Encapsulated(kUidRle, 0).Encapsulated(four).NoEnd().Bytes(),
         0,
         4,
         4,
         {1, 1, 1, 1}},
        {"rubbish in the table ends the map",
         Encapsulated(kUidRle, 4)
             .Encapsulated(four, Table::Filled)
             .TableEntries({0, 12, 7, 36})
             .Bytes(),
         0,
         4,
         1,
         {1}},
        {"a table that runs backwards too",
         Encapsulated(kUidRle, 4)
             .Encapsulated(four, Table::Filled)
             .TableEntries({0, 36, 24, 12})
             .Bytes(),
         0,
         4,
         1,
         {3}},
        {"rubbish between fragments",
         Encapsulated(kUidRle, 0)
             .Encapsulated({{"one1"}})
             .NoEnd()
             .Append("noise, no items")
             .Bytes(),
         0,
         1,
         1,
         {1}},
    };
    for (const MapRow& row : rows)
        ExpectMap(row);
}

TEST(PixelMap, a_row_spans_the_headers_between_its_fragments)
{
    auto file = Encapsulated(kUidJpegBaseline, 0);
    file.Encapsulated({{Soi("aa"), "bb", "cccc"}, {Soi("dd")}});
    const QvxReaderPtr reader = OpenFile(file.Bytes());
    QvxFrameMapRecord row;
    ASSERT_EQ(Qvx2Reader_GetFrameMapRecord(reader.get(), 1, &row), kQvxOK);
    const auto first = static_cast<std::uint32_t>(file.ValueOffsetOf(0xFFFE, 0xE000, 1));
    EXPECT_EQ(row, (QvxFrameMapRecord{first, 4 + 8 + 2 + 8 + 4, 3, 4}));
    EXPECT_EQ(Qvx2Reader_GetFrameMapRecord(reader.get(), 3, &row), kQvxBadArgument);
    QvxHandle map;
    ASSERT_EQ(Qvx2Reader_GetImageOffsetsAndSizes(reader.get(), &map), kQvxOK);
    EXPECT_EQ(Qvx2Reader_GetImageOffsetsAndSizes(reader.get(), &map), kQvxResultNotNull);
}

TEST(PixelMap, pixels_of_an_icon_leave_the_frames_alone)
{
    const auto icon = [](DicomLength length) {
        return Item(length)
            .Image({.rows = 4, .columns = 4, .bits = 8})
            .Encapsulated({{Soi("icon")}, {Soi("ico2")}});
    };
    for (const DicomLength length : {Definite, Undefined}) {
        SCOPED_TRACE(length);
        DicomBuilder file;
        file.Meta(kUidJpegBaseline).CommonHeader();
        file.Sequence(0x0009, 0x1110, {icon(length)}, length)
            .Image({.rows = 8, .columns = 8, .bits = 8});
        file.Encapsulated({{Soi("main")}});
        const QvxReaderPtr reader = OpenFile(file.Bytes());
        const auto item = Find(reader, 0xFFFE, 0xE000, Find(reader, 0x0009, 0x1110));
        EXPECT_NE(Find(reader, 0x7FE0, 0x0010, item), QvxElementRef::None);
        const auto pixels = Find(reader, 0x7FE0, 0x0010, item);
        QvxElementRefArray inside;
        EXPECT_EQ(
            Qvx2Reader_GetElementRefs(reader.get(), Find(reader, 0xFFFE, 0xE000, pixels), &inside),
            kQvxOK);
        EXPECT_TRUE(QvxRefsOf(inside).empty()) << "a fragment holds bytes, no elements";
        EXPECT_EQ(FragmentCounts(reader), std::vector<std::uint32_t>{1});
        EXPECT_EQ(TextOf(reader, 0x0028, 0x0010), "8");
    }
}

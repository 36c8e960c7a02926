// Which of a file's timing elements counts, and what becomes of its value.
#include "dicom_core/values/ParserTiming.h"

#include "fixtures/DicomBuilder.h"

#include <gtest/gtest.h>

namespace {

zelFrameTimes TimesOf(const DicomBuilder& file, QvxStatus* status)
{
    zelFrameTimes times;
    QvxReaderPtr reader;
    *status = Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions);
    if (!*status)
        *status = Parser_GetFrameTimes(reader.get(), &times);
    return times;
}

DicomBuilder Header() { return DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("US"); }

DicomBuilder Vector(const char* pointer, const char* vector)
{
    return Header()
        .Element(0x0018, 0x1063, "DS", "25")
        .Element(0x0018, 0x1065, "DS", vector)
        .Element(0x0028, 0x0009, "AT", Hex(pointer));
}

}  // namespace

TEST(Parser_GetFrameTimes, takes_the_first_source_that_says_something)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        std::int32_t count;
        float single;
        std::vector<float> vector;
    };
    const char* const kToVector = "18006510";
    const char* const kToTime = "18006310";
    const Row rows[] = {
        {"a rate is turned into a time",
         Header().Element(0x0008, 0x2144, "IS", "30"),
         1,
         1000.0F / 30,
         {}},
        {"the display rate goes before the cine rate",
         Header().Element(0x0008, 0x2144, "IS", "10").Element(0x0018, 0x0040, "IS", "20"),
         1,
         100,
         {}},
        {"a rate of 0 says nothing",
         Header().Element(0x0008, 0x2144, "IS", "0").Element(0x0018, 0x0040, "IS", "20"),
         1,
         50,
         {}},
        {"a rate beyond 16 bits is cut",
         Header().Element(0x0018, 0x0040, "IS", "65546"),
         1,
         100,
         {}},
        {"the duration is a time, not a rate",
         Header().Element(0x0018, 0x1242, "IS", "40"),
         1,
         40,
         {}},
        {"a pointer at the vector", Vector(kToVector, "10\\20\\30"), 3, 0, {10, 20, 30}},
        {"a pointer at the time", Vector(kToTime, "10\\20\\30"), 1, 25, {}},
        {"no pointer: the time first",
         Header().Element(0x0018, 0x1063, "DS", "25.5").Element(0x0018, 0x1065, "DS", "10\\20"),
         1,
         25.5F,
         {}},
        {"no time: the vector after all",
         Header().Element(0x0018, 0x1065, "DS", "10\\20"),
         2,
         0,
         {10, 20}},
        {"the zero head of a vector goes", Vector(kToVector, "0\\40\\40"), 3, 0, {40, 40, 40}},
        {"the last time stands twice", Vector(kToVector, "0\\10\\20"), 3, 0, {10, 20, 20}},
        {"an entry that is no number is 0", Vector(kToVector, "10\\x\\\\30"), 4, 0, {10, 0, 0, 30}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        QvxStatus status = kQvxOK;
        const zelFrameTimes times = TimesOf(row.file, &status);
        EXPECT_EQ(status, kQvxOK);
        EXPECT_EQ(times.fCount, row.count);
        EXPECT_FLOAT_EQ(times.fSingle, row.single);
        EXPECT_EQ(times.fVector, row.vector);
    }
}

TEST(Parser_GetFrameTimes, answers_the_error_of_the_last_source)
{
    QvxStatus status = kQvxOK;
    const zelFrameTimes times = TimesOf(Header(), &status);
    EXPECT_EQ(status, kQvxNoSuchElement);
    EXPECT_EQ(times.fCount, 0);
}

TEST(Parser_GetFrameIncrementPointer, swaps_in_a_big_endian_file)
{
    QvxReaderPtr reader;
    const auto file = DicomBuilder()
                          .Meta(kUidExplicitBig)
                          .CommonHeader("US")
                          .Element(0x0028, 0x0009, "AT", Hex("00181065"));
    ASSERT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
    std::uint16_t group = 0, element = 0;
    EXPECT_EQ(Parser_GetFrameIncrementPointer(reader.get(), &group, &element), kQvxOK);
    EXPECT_EQ(group, 0x0018);
    EXPECT_EQ(element, 0x1065);
}

TEST(Parser_GetNumberOfFrames, falls_back_on_the_offset_table)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        std::int32_t count;
    };
    const std::vector<DicomFrame> three{{"one."}, {"two."}, {"tri."}};
    const auto stated = [](const char* frames) {
        return Header().Element(0x0028, 0x0008, "IS", frames);
    };
    const auto jpeg = [](std::string_view syntax) {
        return DicomBuilder().Meta(syntax).CommonHeader("US");
    };
    const Row rows[] = {
        {"stated", stated("12"), 12},
        {"a negative count", stated("-3"), 1},
        {"0 stays 0, whatever the pixels say", stated("0").NativePixels({1, 2}), 0},
        {"an empty count is none", stated("").NativePixels({1, 2}), 1},
        {"no pixels", Header(), 0},
        {"native pixels", Header().NativePixels({1, 2}), 1},
        {"a filled table", jpeg(kUidJpegBaseline).Encapsulated(three, DicomOffsetTable::Filled), 3},
        {"an empty table", jpeg(kUidJpegBaseline).Encapsulated(three), 1},
        {"no fragments", jpeg(kUidJpegBaseline).Encapsulated({}, DicomOffsetTable::Missing), 1},
        {"implicit VR",
         jpeg(kUidJpegBaseline).Implicit().Encapsulated(three, DicomOffsetTable::Filled), 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        QvxReaderPtr reader;
        ASSERT_EQ(Qvx2Parser_OpenBytes(&reader, row.file.ByteVector(), kQvxProgramOptions), kQvxOK);
        std::int32_t count = -1;
        EXPECT_EQ(Parser_GetNumberOfFrames(reader.get(), &count), kQvxOK);
        EXPECT_EQ(count, row.count);
    }
    std::int32_t count = -1;
    EXPECT_EQ(Parser_GetNumberOfFrames(nullptr, &count), kQvxBadArgument);
}

TEST(Parser_GetDefaultCineType, wants_a_US)
{
    const std::pair<DicomBuilder, std::int32_t> rows[] = {
        {Header(), -2},
        {Header().Element(0x0018, 0x1244, "US", 0), 1},
        {Header().Element(0x0018, 0x1244, "US", 1), 2},
        {Header().Element(0x0018, 0x1244, "IS", "1"), -2},
    };
    for (const auto& [file, type] : rows) {
        QvxReaderPtr reader;
        ASSERT_EQ(Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions), kQvxOK);
        EXPECT_EQ(Parser_GetDefaultCineType(reader.get()), type);
    }
}

// Values of elements: multiplicity, splitting, byte order, types, texts and their codes.
#include "Qvx2Parser/ReaderFixture.h"

namespace {

using Type = QvxNumericValueType;

QvxReaderPtr OneElement(std::uint16_t group, std::uint16_t element, const char* vr,
                        const DicomValue& value, bool big = false)
{
    DicomBuilder file;
    file.Meta(big ? kUidExplicitBig : kUidExplicitLittle).CommonHeader();
    return OpenFile(file.Element(group, element, vr, value).Bytes());
}

double NumberOf(const QvxElementValue& value)
{
    switch (value.fType) {
        case Type::Int16:
            return value.fInt16;
        case Type::UInt16:
            return value.fUInt16;
        case Type::Int32:
            return value.fInt32;
        case Type::UInt32:
            return value.fUInt32;
        case Type::Float32:
            return static_cast<double>(value.fFloat32);
        case Type::Float64:
            return value.fFloat64;
        case Type::Tag:
            return value.fTag[0] * 65536.0 + value.fTag[1];
        default:
            return -12345;
    }
}

}  // namespace

TEST(Values, numbers_come_out_of_both_byte_orders)
{
    struct Row {
        const char* fault;
        std::uint16_t group, element;
        const char* vr;
        DicomValue value;
        int index;
        QvxStatus status;
        Type type;
        double number;
    };
    const Row rows[] = {
        {"US", 0x0028, 0x0010, "US", 0x1234, 1, kQvxOK, Type::UInt16, 0x1234},
        {"SS of a pixel value", 0x0018, 0x9219, "SS", -5, 1, kQvxOK, Type::Int16, -5},
        {"UL", 0x0008, 0x0001, "UL", 0x12345678, 1, kQvxOK, Type::UInt32, 0x12345678},
        {"SL, several", 0x0018, 0x6020, "SL", {-7, 8}, 1, kQvxOK, Type::Int32, -7},
        {"FL keeps its bits", 0x0018, 0x9073, "FL", 1.25, 1, kQvxOK, Type::Float32, 1.25},
        {"FL, second of two", 0x0009, 0x1098, "FL", {0.5, -2.0}, 2, kQvxOK, Type::Float32, -2},
        {"FD, single", 0x0018, 0x9073, "FD", -0.1, 1, kQvxOK, Type::Float64, -0.1},
        {"FD, third of three",
         0x0018,
         0x9089,
         "FD",
         {1.0, 2.0, 3.5},
         3,
         kQvxOK,
         Type::Float64,
         3.5},
        {"AT, second", 0x0028, 0x0009, "AT", {0x0018, 0x1063}, 1, kQvxOK, Type::Tag, 0x00181063},
        {"IS", 0x0020, 0x0013, "IS", " +42 ", 1, kQvxOK, Type::Int32, 42},
        {"IS beyond 32 bits stops there", 0x0020, 0x0013, "IS", "99999999999", 1, kQvxOK,
         Type::Int32, 2147483647},
        {"DS, second", 0x0028, 0x0030, "DS", "0.5\\0.75", 2, kQvxOK, Type::Float32, 0.75},
        {"DS with an exponent", 0x0018, 0x0050, "DS", "1.5e2", 1, kQvxOK, Type::Float32, 150},
        {"DS of letters is 0", 0x0018, 0x0050, "DS", "wide", 1, kQvxOK, Type::Float32, 0},
        {"the dictionary fixes the count, the value lacks it", 0x0020, 0x0032, "DS", "1\\2", 3,
         kQvxNoValue, Type::Unknown, -12345},
        {"no fixed count: one value", 0x0018, 0x1063, "DS", "0.5", 2, kQvxBadValueIndex,
         Type::Unknown, -12345},
        {"index 0", 0x0028, 0x0010, "US", 1, 0, kQvxBadValueIndex, Type::Unknown, -12345},
        {"US of four bytes gives its first",
         0x0028,
         0x0010,
         "US",
         {3, 4},
         1,
         kQvxOK,
         Type::UInt16,
         3},
        {"text is no number", 0x0010, 0x0020, "LO", "7", 1, kQvxWrongVR, Type::NotANumber, -12345},
        {"nothing there", 0x0028, 0x0010, "US", {}, 1, kQvxOK, Type::Empty, -12345},
    };
    for (const bool big : {false, true}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(row.fault) + (big ? ", big endian" : ""));
            const QvxReaderPtr reader = OneElement(row.group, row.element, row.vr, row.value, big);
            QvxElementValue value;
            EXPECT_EQ(Qvx2Reader_GetElementDataAsValue(
                          reader.get(), Find(reader, row.group, row.element), row.index, &value),
                      row.status);
            EXPECT_EQ(value.fType, row.type);
            EXPECT_DOUBLE_EQ(NumberOf(value), row.number);
        }
    }
}

TEST(Values, multiplicity_follows_dictionary_length_or_backslashes)
{
    struct Row {
        const char* fault;
        std::uint16_t group, element;
        const char* vr;
        DicomValue value;
        std::int32_t multiplicity;
    };
    const Row rows[] = {
        {"fixed by the dictionary", 0x0020, 0x0032, "DS", "1\\2", 3},
        {"one value keeps its backslashes", 0x0008, 0x1030, "LO", "a\\b", 1},
        {"counted", 0x0008, 0x0008, "CS", "A\\B\\C", 3},
        {"counted up to a NUL", 0x0008, 0x0008, "CS", std::string("A\\B\0\\C", 6), 2},
        {"by length", 0x0009, 0x1001, "US", {1, 2, 3}, 3},
        {"65536 numbers are cut to 16 bits", 0x0009, 0x1001, "US", std::string(131072, 'x'), 0},
        {"empty", 0x0008, 0x0008, "CS", {}, 0},
        {"bytes are one value", 0x0009, 0x1001, "OB", "a\\b\\", 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder file;
        file.Meta(kUidImplicitLittle).CommonHeader().Explicit();
        const bool isLong = row.value.Bytes("US", false).size() > 0xFFFF;
        const QvxReaderPtr reader = isLong ? OpenFile(DicomBuilder()
                                                          .NoPreamble()
                                                          .CommonHeader()
                                                          .Implicit()
                                                          .Element(0x0028, 0x3006, "US", row.value)
                                                          .Bytes())
                                           : OneElement(row.group, row.element, row.vr, row.value);
        QvxElementDataInfo info;
        const auto element =
            isLong ? Find(reader, 0x0028, 0x3006) : Find(reader, row.group, row.element);
        ASSERT_EQ(Qvx2Reader_GetElementDataInfo(reader.get(), element, &info), kQvxOK);
        EXPECT_EQ(info.fMultiplicity, row.multiplicity);
    }
}

TEST(Values, texts_lose_what_they_should_and_no_more)
{
    struct Row {
        const char* fault;
        std::uint16_t group, element;
        const char* vr;
        DicomValue value;
        int index;
        std::string text;
    };
    const Row rows[] = {
        {"a trailing NUL of a UID", 0x0020, 0x0052, "UI", "1.2.3", 1, "1.2.3"},
        {"points of an old date", 0x0008, 0x0020, "DA", "2024.01.31", 1, "20240131"},
        {"colons of an old time", 0x0008, 0x0030, "TM", "12:30:59.5", 1, "123059.5"},
        {"a colon in other text stays", 0x0008, 0x0070, "LO", "a:b.", 1, "a:b."},
        {"second of three", 0x0008, 0x0008, "CS", "A\\BB\\C", 2, "BB"},
        {"an empty one", 0x0008, 0x0008, "CS", "A\\\\C", 2, "status -40009"},
        {"empty element", 0x0008, 0x0070, "LO", {}, 1, ""},
        {"unsigned", 0x0028, 0x0010, "US", 65535, 1, "65535"},
        {"signed", 0x0018, 0x9219, "SS", -1, 1, "-1"},
        {"float", 0x0018, 0x9073, "FD", 0.5, 1, "0.500000"},
        {"a tag", 0x0028, 0x0009, "AT", {0x0018, 0x1063}, 1, "Group: 0x0018, Element: 0x1063"},
        {"bytes have none", 0x0009, 0x1001, "OB", "abc", 1, ""},
        {"nor has an unknown kind", 0x0009, 0x1001, "UN", "abc", 1, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const QvxReaderPtr reader = OneElement(row.group, row.element, row.vr, row.value);
        EXPECT_EQ(TextOf(reader, Find(reader, row.group, row.element), row.index), row.text);
    }
}

TEST(Values, blocks_come_in_host_order_and_raw_data_as_stored)
{
    for (const bool big : {false, true}) {
        const QvxReaderPtr reader = OneElement(0x0009, 0x1001, "OW", {0x0102, 0x0304}, big);
        QvxElementValue value;
        ASSERT_EQ(
            Qvx2Reader_GetElementDataAsValue(reader.get(), Find(reader, 0x0009, 0x1001), 1, &value),
            kQvxOK);
        EXPECT_EQ(value.fType, Type::WordsOW);
        EXPECT_EQ(value.fBlock.Array<std::uint16_t>()[1], 0x0304);
        QvxHandle raw;
        ASSERT_EQ(
            Qvx2_ParserGetElementRawData(reader.get(), QvxElementRef::None, 0x0009, 0x1001, &raw),
            kQvxOK);
        EXPECT_EQ(raw.Text(), Hex(big ? "0102 0304" : "0201 0403"));
        EXPECT_EQ(
            Qvx2_ParserGetElementRawData(reader.get(), QvxElementRef::None, 0x0009, 0x1002, &raw),
            kQvxNoSuchElement);
        EXPECT_FALSE(raw.IsNull()) << "a missing element leaves the variable alone";
    }
}

TEST(Values, the_meta_group_is_little_endian_in_any_file)
{
    DicomBuilder file;
    file.Meta(kUidExplicitBig).CommonHeader();
    const QvxReaderPtr reader = OpenFile(file.Bytes());
    const std::string length = TextOf(reader, 0x0002, 0x0000);
    EXPECT_LT(std::stoul(length), 1000u);
    EXPECT_EQ(TextOf(reader, 0x0002, 0x0010), kUidExplicitBig);
}

TEST(Values, by_tag_only_the_wanted_type_will_do)
{
    const QvxReaderPtr reader = OneElement(0x0028, 0x0010, "US", 512);
    std::uint16_t rows = 0;
    EXPECT_EQ(Qvx2_ParserGetElementValue(reader.get(), QvxElementRef::None, 0x0028, 0x0010, 1,
                                         Type::UInt16, &rows),
              kQvxOK);
    EXPECT_EQ(rows, 512);
    float wrong = 0;
    EXPECT_EQ(Qvx2_ParserGetElementValue(reader.get(), QvxElementRef::None, 0x0028, 0x0010, 1,
                                         Type::Float32, &wrong),
              kQvxUnsupported);
    QvxHandle text;
    EXPECT_EQ(
        ParserGetElementDataAsCString(reader.get(), QvxElementRef::None, 0x0028, 0x0010, 1, &text),
        kQvxOK);
    EXPECT_EQ(text.Text(), std::string_view("512\0", 4));
    bool enhanced = true;
    EXPECT_EQ(ParserQueryIsEnhancedMR(reader.get(), &enhanced), kQvxOK);
    EXPECT_FALSE(enhanced);
}

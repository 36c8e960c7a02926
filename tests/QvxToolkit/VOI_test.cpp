// The looks that a file offers, and what its values mean: tables, polarity, enhanced images.
#include "ToolkitFixture.h"

#include "QvxToolkit/QvxCodec.h"
#include <functional>
#include <gtest/gtest.h>

namespace {

using Words = std::vector<std::uint16_t>;
using Change = std::function<void(DicomBuilder&)>;

std::string Bytes(const Words& words)
{
    std::string bytes;
    for (const std::uint16_t word : words) {
        bytes.push_back(static_cast<char>(word & 0xFF));
        bytes.push_back(static_cast<char>(word >> 8));
    }
    return bytes;
}

Item Table(const Words& descriptor, const Words& entries, const char* explanation = "")
{
    return Item()
        .Element(0x0028, 0x3002, "US", descriptor)
        .Element(0x0028, 0x3003, "LO", explanation)
        .Element(0x0028, 0x3006, "OW", Bytes(entries));
}

Item Window(const char* center, const char* width, const char* function = "",
            const char* explanation = "")
{
    return Item()
        .Element(0x0028, 0x1050, "DS", center)
        .Element(0x0028, 0x1051, "DS", width)
        .Element(0x0028, 0x1055, "LO", explanation)
        .Element(0x0028, 0x1056, "CS", function);
}

// Items of functional groups, each with one item of `tag` in it.
std::vector<Item> Groups(std::uint16_t tag, const std::vector<Item>& items)
{
    std::vector<Item> groups;
    for (const Item& item : items)
        groups.push_back(Item().Sequence(0x0028, tag, {item}));
    return groups;
}

// "W400 L40 exact 'soft'; T4 first -2 bits 8": the choices in one line.
std::string Told(const std::vector<QvxVOIChoice>& choices)
{
    std::string told;
    for (const QvxVOIChoice& choice : choices) {
        told += told.empty() ? "" : "; ";
        if (choice.fTable)
            told += "T" + std::to_string(choice.fTable->fEntries.size()) + " first " +
                    std::to_string(choice.fTable->fFirst) + " bits " +
                    std::to_string(choice.fTable->fBits);
        else
            told += "W" + std::to_string(static_cast<int>(choice.fWidth)) + " L" +
                    std::to_string(static_cast<int>(choice.fLevel));
        if (choice.fFunction != QvxVOIFunction::Linear)
            told += choice.fFunction == QvxVOIFunction::Sigmoid ? " sigmoid" : " exact";
        if (!choice.fExplanation.empty())
            told += " '" + choice.fExplanation + "'";
    }
    return told;
}

struct ChoiceRow {
    const char* fault;
    Change head;
    const char *slope, *intercept;
    std::uint32_t frame;
    const char* choices;
};

const Item kSoft = Window("40", "400", "SIGMOID", "soft"), kBone = Window("300", "2000");
const Words kFour = {0, 1, 2, 255};

// clang-format off
const ChoiceRow kChoices[] = {
    {"pairs, each with its words", [](DicomBuilder& f) {
         f.Element(0x0028, 0x1050, "DS", "40\\300\\50").Element(0x0028, 0x1051, "DS", "400\\2000")
          .Element(0x0028, 0x1055, "LO", "soft\\bone"); },
     "1", "0", 1, "W400 L40 'soft'; W2000 L300 'bone'"},
    {"narrow where the function allows it", [](DicomBuilder& f) {
         f.Element(0x0028, 0x1050, "DS", "40\\41").Element(0x0028, 0x1051, "DS", "0.5\\0")
          .Element(0x0028, 0x1056, "CS", "LINEAR_EXACT"); },
     "1", "0", 1, "W0 L40 exact"},
    {"tables behind windows", [](DicomBuilder& f) {
         f.Element(0x0028, 0x1050, "DS", "40").Element(0x0028, 0x1051, "DS", "400")
          .Sequence(0x0028, 0x3010, {Table({4, 7, 8}, kFour, "low"), Table({4, 9, 16}, {0, 0, 0, 65535})}); },
     "1", "0", 1, "W400 L40; T4 first 7 bits 8 'low'; T4 first 9 bits 16"},
    {"first value as signed as user values are", [](DicomBuilder& f) {
         f.Sequence(0x0028, 0x3010, {Table({4, 64512, 8}, kFour)}); },
     "1", "-1024", 1, "T4 first -1024 bits 8"},
    {"but not below all of them", [](DicomBuilder& f) {
         f.Sequence(0x0028, 0x3010, {Table({4, 40000, 8}, kFour)}); },
     "1", "-1024", 1, "T4 first 40000 bits 8"},
    {"broken tables are left out", [](DicomBuilder& f) {
         f.Sequence(0x0028, 0x3010, {Table({4, 0, 17}, kFour), Table({4, 0}, kFour), Table({4, 0, 8}, {}),
                                     Table({9, 0, 8}, kFour), Table({4, 0, 8}, {0, 0, 0, 511})}); },
     "1", "0", 1, "T8 first 0 bits 8; T4 first 0 bits 9"},
    {"65536 entries, as many as there are", [](DicomBuilder& f) {
         f.Sequence(0x0028, 0x3010, {Table({0, 0, 16}, Words(65536, 1))}); },
     "1", "0", 1, "T65536 first 0 bits 16"},
    {"of the frame's own groups", [](DicomBuilder& f) {
         f.Element(0x0028, 0x1050, "DS", "1").Element(0x0028, 0x1051, "DS", "2")
          .Sequence(0x5200, 0x9229, Groups(0x9132, {kBone}))
          .Sequence(0x5200, 0x9230, Groups(0x9132, {Window("1", "2"), kSoft})); },
     "1", "0", 2, "W400 L40 sigmoid 'soft'"},
    {"of the shared ones, where they are silent", [](DicomBuilder& f) {
         f.Sequence(0x5200, 0x9229, Groups(0x9132, {kBone}))
          .Sequence(0x5200, 0x9230, Groups(0x9132, {kSoft, Window("x", "")})); },
     "1", "0", 2, "W2000 L300"},
    {"of the top, where all are, beyond them too", [](DicomBuilder& f) {
         f.Element(0x0028, 0x1050, "DS", "1").Element(0x0028, 0x1051, "DS", "2")
          .Sequence(0x5200, 0x9230, {Item()}); },
     "1", "0", 7, "W2 L1"},
    {"none", [](DicomBuilder&) {}, "1", "0", 1, ""},
};
// clang-format on

TEST(QvxVOI, choices_of_a_frame)
{
    for (const ChoiceRow& row : kChoices) {
        SCOPED_TRACE(row.fault);
        DicomBuilder builder = ImageFile({});
        row.head(builder);
        ToolkitFile file(builder.Element(0x0028, 0x1052, "DS", row.intercept)
                             .Element(0x0028, 0x1053, "DS", row.slope)
                             .NativePixels(Hex("0000 0100")));
        std::vector<QvxVOIChoice> choices;
        ASSERT_EQ(QvxCodecVOIChoices(file.reader.get(), file.record, row.frame, &choices), kQvxOK);
        EXPECT_EQ(Told(choices), row.choices);
        const auto window = QvxCodecDefaultWindow(file.reader.get(), file.record, row.frame);
        ASSERT_EQ(window.fFound, !choices.empty());
        if (window.fFound) {
            EXPECT_EQ(window.fWidth, choices[0].fWidth);
            EXPECT_EQ(window.fTable, choices[0].fTable ? window.fTable : nullptr);
        }
    }
}

TEST(QvxVOI, one_inversion_at_most)
{
    const struct {
        const char *photometric, *shape;
        bool inverted;
    } rows[] = {
        {"MONOCHROME1", "", true},          {"MONOCHROME2", "", false},
        {"MONOCHROME1", "INVERSE", true},   {"MONOCHROME2", "INVERSE", true},
        {"MONOCHROME1", "IDENTITY", false}, {"MONOCHROME2", "IDENTITY", false},
        {"MONOCHROME1", "LIN OD", true},    {"PALETTE COLOR", "INVERSE", false},
    };
    for (const auto& row : rows) {
        ToolkitFile file(ImageFile({.photometric = row.photometric})
                             .Element(0x2050, 0x0020, "CS", row.shape)
                             .NativePixels(Hex("0000 0100")));
        EXPECT_EQ(file.record.fInverted, row.inverted) << row.photometric << ' ' << row.shape;
        EXPECT_EQ(QvxCodecPixelInfo(file.record).fPhotometric, row.inverted ? 0 : 1);
    }
}

TEST(QvxVOI, modality_table_makes_the_user_values)
{
    const struct {
        const char* fault;
        Item table;
        std::uint16_t isSigned;
        bool taken;
        std::uint32_t format;
        std::vector<int> display;  // of the stored values -3, 0, 9 or as unsigned
    } rows[] = {
        {"clamped at both ends",
         Table({4, 0, 16}, {5, 6, 7, 8}),
         0,
         true,
         kPixelFormatGray16,
         {8, 5, 8}},
        {"first value signed as pixels are",
         Table({3, 65534, 10}, {1, 2, 1023}),
         1,
         true,
         kPixelFormatGray16,
         {1, 1023, 1023}},
        {"bytes two by two",
         Table({4, 0, 8}, {0x0605, 0x0807}),
         0,
         true,
         kPixelFormatGray16,
         {8, 5, 8}},
        {"no entries: the rescale holds",
         Table({4, 0, 16}, {}),
         1,
         false,
         kPixelFormatGray16,
         {32765, 32768, 32777}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile({.columns = 3, .isSigned = row.isSigned})
                             .Element(0x0028, 0x1052, "DS", "7")
                             .Sequence(0x0028, 0x3000, {row.table})
                             .NativePixels(Hex("FDFF 0000 0900")));
        ASSERT_EQ(file.Values().size(), 3U);
        EXPECT_EQ(file.record.fModality != nullptr, row.taken);
        ASSERT_EQ(QvxCodecPixelFormat(file.record), row.format);
        const QvxPixelInfo info = QvxCodecPixelInfo(file.record);
        EXPECT_EQ(info.fPixelShift, row.taken ? 0 : -32768 + 7);
        EXPECT_EQ(info.fFactor, 1);
        std::array<std::uint8_t, 6> bytes{};
        const PixMap map{bytes.data(), 6, {0, 0, 1, 3}, row.format, 16, 1, 16, false};
        std::int32_t least = 0, most = 0;
        ASSERT_EQ(
            QvxCodecFillPixels(file.reader.get(), file.record, file.frame, map, &least, &most),
            kQvxOK);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(bytes[2 * i] << 8 | bytes[2 * i + 1], row.display[i]) << i;
    }
}

TEST(QvxVOI, slope_of_the_frame_before_the_shared_before_the_top)
{
    const auto slope = [](const char* value) {
        return Item().Element(0x0028, 0x1053, "DS", value);
    };
    struct Row {
        const char* fault;
        Change head;
        bool differ;
        std::vector<double> slopes;
    };
    const Row rows[] = {
        {"each its own",
         [&](DicomBuilder& f) {
             f.Sequence(0x5200, 0x9230, Groups(0x9145, {slope("2"), slope("4")}));
         },
         true,
         {2, 4}},
        {"one is silent",
         [&](DicomBuilder& f) {
             f.Element(0x0028, 0x1053, "DS", "9")
                 .Sequence(0x5200, 0x9229, Groups(0x9145, {slope("3")}))
                 .Sequence(0x5200, 0x9230, Groups(0x9145, {slope("2"), Item()}));
         },
         true,
         {2, 3}},
        {"fewer items than frames",
         [&](DicomBuilder& f) {
             f.Element(0x0028, 0x1053, "DS", "9")
                 .Sequence(0x5200, 0x9230, Groups(0x9145, {slope("2")}));
         },
         false,
         {2, 2}},
        {"the top alone",
         [&](DicomBuilder& f) {
             f.Element(0x0028, 0x1053, "DS", "9").Sequence(0x5200, 0x9230, {Item(), Item()});
         },
         false,
         {9, 9}},
        {"tables of the top are not for them",
         [&](DicomBuilder& f) {
             f.Sequence(0x0028, 0x3000, {Table({4, 0, 8}, kFour)})
                 .Sequence(0x5200, 0x9229, Groups(0x9145, {slope("3")}));
         },
         false,
         {3, 3}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        DicomBuilder builder =
            ImageFile({.allocated = 8, .stored = 8, .highBit = 7, .frames = "2"});
        row.head(builder);
        ToolkitFile file(builder.NativePixels(Hex("01020304"), "OB"));
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_EQ(file.record.fFramesDiffer, row.differ);
        EXPECT_EQ(file.record.fModality, nullptr);
        for (std::uint32_t frame = 1; frame <= 2; ++frame) {
            QvxFrameRecord own;
            ASSERT_EQ(QvxRecordOfFrame(file.reader.get(), file.record, frame, &own), kQvxOK);
            EXPECT_EQ(own.fSlope, row.slopes[frame - 1]);
            EXPECT_EQ(QvxCodecPixelFormat(own), QvxCodecPixelFormat(file.record));
        }
        QvxFrameRecord own;
        EXPECT_EQ(QvxRecordOfFrame(file.reader.get(), file.record, 0, &own), kQvxBadArgument);
    }
}

TEST(QvxVOI, replies_by_selector)
{
    const QvxPixelInfo info{0, 2, 3, 4, 1, 0};
    const std::pair<std::uint32_t, QvxPixelInfoReply> rows[] = {
        {FourCC("S_PI"), {0, 0, 0}}, {FourCC("S_PX"), {0, 2, 0}}, {FourCC("S_PR"), {3, 0, 0}},
        {FourCC("S_PS"), {4, 0, 0}}, {FourCC("S_MM"), {5, 6, 0}},
    };
    QvxPixelInfoReply reply{7, 7, 7};
    EXPECT_EQ(QvxCodecGetPixelInfo(info, 5, 6, FourCC("S_XX"), &reply), kQvxUnsupported);
    EXPECT_EQ(reply, (QvxPixelInfoReply{7, 7, 7}));
    for (const auto& [selector, longs] : rows) {
        ASSERT_EQ(QvxCodecGetPixelInfo(info, 5, 6, selector, &reply), kQvxOK);
        EXPECT_EQ(reply, longs);
    }
}

}  // namespace

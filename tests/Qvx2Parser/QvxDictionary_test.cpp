// The data dictionary, the table of VRs and the Storage SOP classes.
#include "Qvx2Parser/QvxDictionary.h"

#include "Qvx2Parser/QvxSOPClasses.h"
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<QvxDictEntry> AllRows()
{
    std::vector<QvxDictEntry> rows;
    for (std::int32_t row = 0; row < DictionaryRowCount(); ++row)
        rows.push_back(DictionaryRow(row));
    return rows;
}

std::string LettersOf(std::uint32_t vr)
{
    return {static_cast<char>(vr >> 8 & 0xFF), static_cast<char>(vr & 0xFF)};
}

std::string CodeOf(QvxVR vr)
{
    const auto code = static_cast<std::uint32_t>(vr);
    return LettersOf(code >> 16) + LettersOf(code);
}

}  // namespace

TEST(QvxDictionary, stands_in_ascending_order_and_finds_each_of_its_rows)
{
    const auto rows = AllRows();
    ASSERT_GE(rows.size(), 1989u);
    std::uint32_t last = 0;
    for (std::int32_t i = 0; i < DictionaryRowCount(); ++i) {
        const QvxDictEntry& row = rows[static_cast<std::size_t>(i)];
        const QvxElementTag tag{row.group, row.element};
        SCOPED_TRACE(tag.Key());
        EXPECT_GT(tag.Key(), last);
        EXPECT_EQ(tag.group % 2, 0) << "a private tag";
        EXPECT_EQ(PositionInDictionary(tag.group, tag.element), i);
        EXPECT_FALSE(row.name.empty());
        EXPECT_EQ(DictionaryVRIndex(i), QvxVRIndexOfLetters(static_cast<std::uint16_t>(row.vr)));
        last = tag.Key();
    }
    EXPECT_EQ(last, 0xFFFEE0DDu);
}

TEST(QvxDictionary, has_group_lengths_item_rows_and_pseudo_codes)
{
    int groupLengths = 0;
    std::map<std::string, std::set<std::uint32_t>> keys;  // by letters
    for (const QvxDictEntry& row : AllRows()) {
        keys[LettersOf(row.vr)].insert(QvxElementTag{row.group, row.element}.Key());
        if (row.element == 0) {
            ++groupLengths;
            EXPECT_EQ(LettersOf(row.vr), "UL") << row.group;
        }
    }
    EXPECT_EQ(groupLengths, 40);
    EXPECT_EQ(keys["  "], (std::set<std::uint32_t>{0xFFFEE000, 0xFFFEE00D, 0xFFFEE0DD}));
    EXPECT_EQ(keys["U3"], std::set<std::uint32_t>{0x00283006});
    EXPECT_GE(keys["U2"].size(), 18u);
    for (const std::uint32_t key : {0x00280106u, 0x00281101u})
        EXPECT_TRUE(keys["U2"].contains(key)) << key;
    for (const std::uint32_t key : {0x5000200Cu, 0x50003000u, 0x54000110u, 0x54000112u, 0x5400100Au,
                                    0x54001010u, 0x60003000u, 0x7FE00010u})
        EXPECT_TRUE(keys["O2"].contains(key)) << key;
}

TEST(QvxDictionary, says_what_the_standard_says)
{
    struct Row {
        QvxElementTag tag;
        std::string vr;
        std::int32_t minVM, maxVM;
        std::uint32_t status;
        std::string name;
    };
    const Row rows[] = {
        {{0x0002, 0x0010}, "VRUI", 1, 1, 1, "Transfer Syntax UID"},
        {{0x0004, 0x1220}, "VRSQ", 1, 1, 1, "Directory Record Sequence"},
        {{0x0008, 0x0000}, "VRUL", 1, 1, 0, "Group Length"},
        {{0x0008, 0x0005}, "VRCS", 1, -4, 1, "Specific Character Set"},
        {{0x0008, 0x0008}, "VRCS", 2, -4, 1, "Image Type"},
        {{0x0008, 0x0119}, "VRUT", 1, 1, 1, "Long Code Value"},         // UC
        {{0x0008, 0x1162}, "VRUL", 3, -2, 1, "Calculated Frame List"},  // 3-3n
        {{0x0008, 0x1190}, "VRUT", 1, 1, 1, "Retrieve URL"},            // UR
        {{0x0010, 0x0010}, "VRPN", 1, 1, 1, "Patient's Name"},
        {{0x0010, 0x1010}, "VRAS", 1, 1, 1, "Patient's Age"},
        {{0x0018, 0x1063}, "VRDS", 1, 1, 1, "Frame Time"},
        {{0x0018, 0x1065}, "VRDS", 1, -4, 1, "Frame Time Vector"},
        {{0x0018, 0x9445}, "VRUN", -1, -1, 0, "(Retired)"},  // no VR, no VM, no name
        {{0x0020, 0x0032}, "VRDS", 3, 3, 1, "Image Position (Patient)"},
        {{0x0020, 0x0035}, "VRDS", 6, 6, 0, "Image Orientation"},
        {{0x0028, 0x0009}, "VRAT", 1, -4, 1, "Frame Increment Pointer"},
        {{0x0028, 0x0010}, "VRUS", 1, 1, 1, "Rows"},
        {{0x0028, 0x0030}, "VRDS", 2, 2, 1, "Pixel Spacing"},
        {{0x0028, 0x0106}, "VRU2", 1, 1, 1, "Smallest Image Pixel Value"},
        {{0x0028, 0x1101}, "VRU2", 3, 3, 1, "Red Palette Color Lookup Table Descriptor"},
        {{0x0028, 0x3006}, "VRU3", 1, -4, 1, "LUT Data"},  // 1-n or 1
        {{0x0040, 0xA0B0}, "VRUS", 2, -3, 1, "Referenced Waveform Channels"},
        {{0x0070, 0x0022}, "VRFL", 2, -4, 1, "Graphic Data"},
        {{0x0088, 0x0912}, "VRLO", 1, 32, 0, "Topic Keywords"},
        {{0x3006, 0x0050}, "VRDS", 3, -2, 1, "Contour Data"},
        {{0x5400, 0x1010}, "VRO2", 1, 1, 1, "Waveform Data"},
        {{0x6000, 0x3000}, "VRO2", 1, 1, 1, "Overlay Data"},
        {{0x7FE0, 0x0001}, "VRUN", 1, 1, 1, "Extended Offset Table"},  // OV
        {{0x7FE0, 0x0008}, "VROF", 1, 1, 1, "Float Pixel Data"},
        {{0x7FE0, 0x0010}, "VRO2", 1, 1, 1, "Pixel Data"},
        {{0xFFFC, 0xFFFC}, "VROB", 1, 1, 1, "Data Set Trailing Padding"},
        {{0xFFFE, 0xE000}, "VR  ", 1, 1, 1, "Item"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QvxDictInfo info;
        ASSERT_EQ(QvxStandardGetDictInfoForTag(1, row.tag, &info), kQvxOK);
        EXPECT_EQ((QvxElementTag{info.group, info.element}), row.tag);
        EXPECT_EQ(CodeOf(info.vr), row.vr);
        EXPECT_EQ(info.minVM, row.minVM);
        EXPECT_EQ(info.maxVM, row.maxVM);
        EXPECT_EQ(info.status, row.status);
        EXPECT_EQ(info.name, row.name);
    }
}

TEST(QvxDictionary, folds_repeating_groups)
{
    struct Row {
        const char* fault;
        QvxElementTag tag;
        std::uint32_t positionFinds;  // the row's tag, 0 for none
        bool infoFinds;
    };
    const Row rows[] = {
        {"an overlay's group", {0x6002, 0x0010}, 0x60000010, true},
        {"the last overlay", {0x601E, 0x3000}, 0x60003000, true},
        {"behind the last", {0x6020, 0x0010}, 0, false},
        {"an odd group of an overlay", {0x6003, 0x0010}, 0, false},
        {"an odd group behind the last", {0x6021, 0x0010}, 0, false},
        {"a curve's group", {0x501E, 0x3000}, 0x50003000, true},
        {"near to a curve", {0x5100, 0x3000}, 0, false},
        {"a source image", {0x0020, 0x3105}, 0x00203100, false},
        {"the last source image", {0x0020, 0x31FF}, 0x00203100, false},
        {"behind the last source image", {0x0020, 0x3200}, 0, false},
        {"a command", {0x0000, 0x0100}, 0, false},
        {"a private tag", {0x0009, 0x0010}, 0, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const std::int32_t position = PositionInDictionary(row.tag.group, row.tag.element);
        if (row.positionFinds == 0) {
            EXPECT_EQ(position, -1);
        } else {
            ASSERT_GE(position, 0);
            const QvxDictEntry entry = DictionaryRow(position);
            EXPECT_EQ((QvxElementTag{entry.group, entry.element}.Key()), row.positionFinds);
        }
        QvxDictInfo info;
        ASSERT_EQ(GetDictInfoForTag(0, row.tag.group, row.tag.element, &info), kQvxOK);
        EXPECT_EQ(info.group, row.tag.group);
        EXPECT_EQ(info.name.empty(), !row.infoFinds);
        if (!row.infoFinds) {
            EXPECT_EQ(CodeOf(info.vr), "VRND");
            EXPECT_EQ(info.status, FourCC("UNKN"));
            EXPECT_EQ(info.minVM, -1);
            EXPECT_EQ(info.maxVM, -1);
        }
    }
    EXPECT_EQ(GetDictInfoForTag(0, 8, 8, nullptr), kQvxBadArgument);
}

TEST(QvxVRTable, letters_and_codes_lead_to_their_row_and_back)
{
    for (std::uint32_t i = 0; i <= kVRIndexSequenceEnd; ++i) {
        const QvxVRIndex vr{i};
        EXPECT_EQ(GetDCM_VR_Index(QvxVROfIndex(vr)), static_cast<int>(i));
        if (i <= kVRIndexO2) {
            EXPECT_EQ(QvxVRIndexOfLetters(kVRTable[i].fLetters), vr) << i;
        }
    }
    EXPECT_EQ(CodeOf(QvxVROfIndex(kVRIndexTM)), "VRTM");
    EXPECT_EQ(CodeOf(QvxVROfIndex(kVRIndexBlank)), "VR  ");
    EXPECT_EQ(QvxVROfIndex(kVRIndexNativeFrame), QvxVR::None);
    EXPECT_EQ(QvxVROfIndex(kVRIndexNone), QvxVR::None);
    EXPECT_EQ(GetDCM_VR_Index(QvxVR{FourCC("VROL")}), 34);
    EXPECT_EQ(GetDCM_VR_Index(QvxVR{FourCC("xxAE")}), 34);
    // Letters that share their place in the lookup with a code, and codes of later editions.
    for (const char* letters : {"ae", "UR", "UC", "OL", "OD", "SV", "\xC1\x45", "\0\0"}) {
        const auto number = static_cast<std::uint16_t>(static_cast<unsigned char>(letters[0]) << 8 |
                                                       static_cast<unsigned char>(letters[1]));
        EXPECT_EQ(QvxVRIndexOfLetters(number), kVRIndexNone) << letters;
    }
    EXPECT_EQ(QvxModernVR(VRLetters("UR")), kVRIndexUT);
    EXPECT_EQ(QvxModernVR(VRLetters("SV")), kVRIndexUN);
    EXPECT_EQ(QvxModernVR(VRLetters("XX")), kVRIndexNone);
}

TEST(QvxSOPClasses, name_their_uids)
{
    std::set<std::string_view> uids;
    std::vector<std::string_view> retired;
    const std::string_view root = "1.2.840.10008.5.1.4.1.1.";
    for (const QvxStandardSOPClass& row : gStandardSOPClassElemVector) {
        uids.insert(row.uid);
        if (row.status == 0)
            retired.push_back(row.uid.substr(root.size()));
    }
    EXPECT_EQ(uids.size(), 59u);
    EXPECT_EQ(retired, (std::vector<std::string_view>{"12.3", "3", "5", "6"}));
    const struct {
        std::string uid, name, annex;
    } rows[] = {
        {"1.2.840.10008.5.1.1.27", "Stored Print Storage", "A.23"},
        {"1.2.840.10008.5.1.4.1.1.2", "CT Image Storage", "A.3"},
        {"1.2.840.10008.5.1.4.1.1.3.1", "Ultrasound Multi-frame Image Storage", "A.7"},
        {"1.2.840.10008.5.1.4.1.1.4.1", "Enhanced MR Image Storage", "A.36.2"},
        {"1.2.840.10008.5.1.4.1.1.88.22", "Enhanced SR", "A.35.2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.uid);
        const QvxStandardSOPClass* found = FindStandardSOPClass(row.uid);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->name, row.name);
        EXPECT_EQ(found->annex, row.annex);
    }
    EXPECT_EQ(FindStandardSOPClass("1.2.840.10008.5.1.4.1.1"), nullptr);
}

// Which files share a patient, a study, a series, a sequence; and what a header gives the record
// that decides it.
#include "dicom_core/opening/BuildTree.h"

#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/OpenSettings.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

struct FileRow {
    const char *name = "N", *id = "1", *study = "S", *date = "2020", *series = "E";
    int number = 1;
    const char* modality = "CT";
    int frames = 1;
};

// Files are named a, b, c … in the order of the rows.
void Fill(dk_DicomBaseElem* collection, const std::vector<FileRow>& rows)
{
    char name = 'a';
    for (const FileRow& row : rows) {
        DicomImageFileRec record;
        record.recPatientName.Assign(row.name);
        record.recPatientID.Assign(row.id);
        record.recStudyUID.Assign(row.study);
        record.recStudyDate.Assign(row.date);
        record.recSeriesUID.Assign(row.series);
        record.recSeriesNumber = row.number;
        record.recModality.Assign(row.modality);
        record.recNumFrames = row.frames;
        auto source = std::make_unique<zelImageSource>();
        source->ImportFromHeader(FileRef{std::string(1, name++)}, {1, 2, 3, 4}, row.frames);
        auto file = std::make_unique<dk_ImageFile>();
        file->SetSourceFile(source.release());
        file->SetParserInfoData(record);
        collection->AddChild(std::move(file));
    }
}

// "([<ab,c>])": a patient, a study, a series, two sequences.
std::string Shape(dk_DicomBaseElem* element)
{
    static constexpr const char* kOpen[] = {"", "(", "[", "<", "", ""};
    static constexpr const char* kClose[] = {"", ")", "]", ">", ",", ""};
    const auto level = static_cast<std::size_t>(element->GetDicomTreeLevel() + 1);
    if (level == 5)
        return static_cast<dk_ImageFile*>(element)->GetSource()->GetFileName();
    std::string shape = kOpen[level];
    for (auto* child = element->GetFirstChild(); child; child = child->GetNext())
        shape += Shape(child);
    if (level == 3 && shape.ends_with(','))
        shape.pop_back();
    return shape + kClose[level];
}

struct BuildTree : testing::Test {
    BuildTree()
    {
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
    }
    static void Merge(bool us, bool xa)
    {
        prefs_Set_MergeSingleFrameUSs(us);
        prefs_Set_MergeSingleFrameXAs(xa);
    }
    ZELDcmTree tree;
};

TEST_F(BuildTree, begins_a_level_where_its_keys_change)
{
    struct Row {
        const char* fault;
        bool us, xa;
        std::vector<FileRow> files;
        const char* shape;
    };
    const Row rows[] = {
        // clang-format off
        {"a CT series is one sequence", false, false, {{}, {}}, "([<ab>])"},
        {"also with frames of its own", true, true, {{.frames = 4}, {}}, "([<ab>])"},
        {"one name has two IDs", false, false, {{.id = "1"}, {.id = "2"}}, "([<ab>])"},
        {"no names and two IDs", false, false, {{.name = "", .id = "1"}, {.name = "", .id = "2"}}, "([<a>])([<b>])"},
        {"no names and one ID", false, false, {{.name = ""}, {.name = ""}}, "([<ab>])"},
        {"nothing said at all", false, false, {{"", "", "", "", "", 0, "", 1}, {"", "", "", "", "", 0, "", 1}}, "([<a,b>])"},
        {"one study in two patients", false, false, {{.name = "M"}, {.name = "N"}}, "([<a>])([<b>])"},
        {"one study on two dates", false, false, {{.date = "2020"}, {.date = "2019"}}, "([<a>][<b>])"},
        {"one series in two studies", false, false, {{.study = "R"}, {.study = "S"}}, "([<a>][<b>])"},
        {"one UID with two numbers", false, false, {{.number = 1}, {.number = 2}}, "([<a><b>])"},
        {"no series UID in a new study", false, false, {{.study = "R", .series = "", .number = 0}, {.series = "", .number = 0}}, "([<a>][<b>])"},
        {"each clip alone", false, false, {{.modality = "US"}, {.modality = "US"}}, "([<a,b>])"},
        {"stills share, a clip stands alone", true, false,
         {{.modality = "US"}, {.modality = "US"}, {.modality = "US", .frames = 5}, {.modality = "US"}, {.modality = "US"}}, "([<ab,c,de>])"},
        {"IVUS merges with US", true, false, {{.modality = "IVUS"}, {.modality = "IVUS"}}, "([<ab>])"},
        {"XA does not", true, false, {{.modality = "XA"}, {.modality = "XA"}}, "([<a,b>])"},
        {"XA by its own", false, true, {{.modality = "XA"}, {.modality = "XA"}}, "([<ab>])"},
        {"a clip does not reach into the next series", true, false,
         {{.modality = "US", .frames = 5}, {.series = "F", .modality = "US"}, {.series = "F", .modality = "US"}}, "([<a><bc>])"},
        // clang-format on
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Merge(row.us, row.xa);
        dk_PatientListRoot root;
        dk_DicomBaseElem collection;
        Fill(&collection, row.files);
        BuildDICOMTreeFromFolder(&root, &collection);
        EXPECT_EQ(Shape(&root), row.shape);
        EXPECT_EQ(collection.GetNumChildren(), 0);
    }
}

TEST_F(BuildTree, of_a_directory_joins_stills_that_follow_one_another)
{
    struct Row {
        const char* fault;
        bool on;
        std::vector<FileRow> files;
        const char* shape;
    };
    const auto still = [](const char* series, const char* modality = "US") {
        return FileRow{.series = series, .modality = modality};
    };
    const FileRow clip{.series = "E", .modality = "US", .frames = 9};
    const Row rows[] = {
        {"off", false, {still("E"), still("E")}, "([<a,b>])"},
        {"three in a row", true, {still("E"), still("E"), still("E")}, "([<abc>])"},
        {"each series for itself",
         true,
         {still("E"), still("E"), still("F"), still("F")},
         "([<ab><cd>])"},
        {"a clip ends the run for its series",
         true,
         {still("E"), clip, still("E"), still("E")},
         "([<a,b,c,d>])"},
        {"a clip in front does not", true, {clip, still("E"), still("E")}, "([<a,bc>])"},
        {"another modality begins anew",
         true,
         {still("E"), still("E", "XA"), still("E"), still("E")},
         "([<a,b,cd>])"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Merge(false, false);
        dk_PatientListRoot root;
        dk_DicomBaseElem collection;
        Fill(&collection, row.files);
        BuildDICOMTreeFromFolder(&root, &collection);
        Merge(row.on, false);
        PostProcessDicomTree(&root);
        EXPECT_EQ(Shape(&root), row.shape);
    }
}

TEST_F(BuildTree, splits_localizers_off_their_series)
{
    struct Row {
        const char* fault;
        bool on;
        const char* kinds;  // of the files in order: L localizer, N normal
        const char* modality;
        const char* shape;
    };
    const Row rows[] = {
        {"off", false, "LNN", "CT", "([<abc>])"},
        {"at both ends", true, "LLNNL", "CT", "([<cd><abe>])"},
        {"nothing but localizers", true, "LL", "CT", "([<ab>])"},
        {"in the middle alone", true, "NLN", "CT", "([<abc>])"},
        {"of a modality that has none", true, "LNN", "SC", "([<abc>])"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        TempFolder folder;
        for (int i = 0; row.kinds[i]; ++i) {
            const std::string number = std::to_string(i + 1);
            const char* type =
                row.kinds[i] == 'L' ? "ORIGINAL\\PRIMARY\\LOCALIZER" : "ORIGINAL\\PRIMARY\\AXIAL";
            folder.WriteFile(std::string(1, static_cast<char>('a' + i)),
                             DicomBuilder()
                                 .Meta(kUidExplicitLittle)
                                 .Element(0x0008, 0x0008, "CS", type)
                                 .Element(0x0008, 0x0018, "UI", "1.2." + number)
                                 .Element(0x0008, 0x0060, "CS", row.modality)
                                 .Element(0x0010, 0x0010, "PN", "N")
                                 .Element(0x0020, 0x0011, "IS", "7")
                                 .Element(0x0020, 0x0013, "IS", number)
                                 .Image({})
                                 .NativePixels(7)
                                 .Bytes());
        }
        prefs_Set_SeparateLocalizerFrames(row.on);
        ZELDcmTree own;
        OpenSettings settings;
        settings.dcmDBRoot = &own;
        settings.actionFlavor = kOpenFlavorFolder;
        settings.openTargetPath = folder.Path();
        ASSERT_EQ(CreatePatientListWithFolder(&settings), kQvxOK);
        PostProcessDicomTree_Localizers(&own);
        EXPECT_EQ(Shape(own.patientTreeRoot()), row.shape);
        if (auto* added = own.firstSeries()->GetNext()) {  // its files know the number of the other
            EXPECT_EQ(static_cast<dk_Series*>(added)->GetDKTitle(), "Se #2");
            EXPECT_EQ(static_cast<dk_Series*>(added)->CopyDKTitle(), "Se #2");
        }
    }
}

TEST(File_CollectDicomData, fills_the_record)
{
    using Rec = DicomImageFileRec;
    const auto field = [](auto Rec::* member) {
        return [member](const Rec& record) { return record.*member; };
    };
    struct TextRow {
        const char* fault;
        std::uint16_t group, element;
        const char *vr, *value;
        std::function<SharedText(const Rec&)> field;
        std::string expected;
    };
    const TextRow rows[] = {
        // clang-format off
        {"carets and blanks",       0x0010, 0x0010, "PN", "DOE^^JOHN^  ",  field(&Rec::recPatientName), "DOE JOHN"},
        {"half a character",        0x0010, 0x0010, "PN", "\x83\\^A",      field(&Rec::recPatientName), "\x83\\ A"},
        {"an ID of zeros",          0x0020, 0x0010, "SH", "000",           field(&Rec::recStudyID), ""},
        {"an ID with zeros",        0x0020, 0x0010, "SH", "0010",          field(&Rec::recStudyID), "0010"},
        {"a NUL behind a UID",      0x0008, 0x0018, "UI", "1.2.3",         field(&Rec::recSOPInstanceUID), "1.2.3"},
        {"one value by dictionary", 0x0008, 0x0060, "CS", "CT\\MR",        field(&Rec::recModality), "CT\\MR"},
        {"longer than the field",   0x0010, 0x0040, "CS", "ABCDEFGHIJKLMNOPQR", field(&Rec::recPatientSex), "ABCDEFGHIJKLMNO"},
        {"date",                    0x0008, 0x0020, "DA", "20200131",      field(&Rec::recStudyDate), "20200131"},
        {"time",                    0x0008, 0x0030, "TM", "101112",        field(&Rec::recStudyTime), "101112"},
        {"accession",               0x0008, 0x0050, "SH", "A1",            field(&Rec::recAccessionNumber), "A1"},
        {"series",                  0x0020, 0x000E, "UI", "1.9",           field(&Rec::recSeriesUID), "1.9"},
        {"study",                   0x0020, 0x000D, "UI", "1.8",           field(&Rec::recStudyUID), "1.8"},
        {"words",                   0x0008, 0x103E, "LO", "T1 axial ",     field(&Rec::recSeriesDescription), "T1 axial"},
        {"body",                    0x0018, 0x0015, "CS", "HEAD",          field(&Rec::recBodyPart), "HEAD"},
        {"patient's ID",            0x0010, 0x0020, "LO", " 7 ",           field(&Rec::recPatientID), " 7"},
        {"no value",                0x0010, 0x0020, "LO", "",              field(&Rec::recPatientID), ""},
        // clang-format on
    };
    for (const TextRow& row : rows) {
        SCOPED_TRACE(row.fault);
        QvxReaderPtr reader;
        ASSERT_EQ(
            Qvx2Parser_OpenBytes(&reader, DicomBuilder()
                                              .Meta(kUidExplicitLittle)
                                              .Element(row.group, row.element, row.vr, row.value)
                                              .Element(0x0020, 0x0011, "IS", "-3")
                                              .Element(0x0020, 0x0013, "IS", "x")
                                              .Element(0x0028, 0x0008, "IS", "12")
                                              .ByteVector()),
            kQvxOK);
        Rec record;
        File_CollectDicomData(reader.get(), &record);
        EXPECT_EQ(row.field(record).View(), row.expected);
        EXPECT_EQ(record.recSeriesNumber, -3);
        EXPECT_EQ(record.recInstanceNumber, 0);
        EXPECT_EQ(record.recNumFrames, 12);
        EXPECT_EQ(record.recType, 0);
    }
}

}  // namespace

// From directory records to a tree: levels, sequences, names as discs have them, what is missing,
// what is damaged.
#include "dicom_core/opening/DicomDir.h"

#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/OpenSettings.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/DicomDirectory.h"
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

struct ImageRow {
    const char *id, *modality, *number;
    const char* frames = "1";
};

DirectoryRecord Image(const ImageRow& row)
{
    DirectoryRecord record;
    record.type = "IMAGE";
    record.fileID = row.id;
    if (row.modality[0] != '\0')
        record.elements.push_back({0x0008, 0x0060, "CS", row.modality});
    record.elements.push_back({0x0020, 0x0013, "IS", row.number});
    record.elements.push_back({0x0028, 0x0008, "IS", row.frames});
    return record;
}

DirectoryRecord Level(const char* type, std::vector<DirectoryElement> elements,
                      std::vector<DirectoryRecord> below)
{
    DirectoryRecord record;
    record.type = type;
    record.elements = std::move(elements);
    record.below = std::move(below);
    return record;
}

DirectoryRecord Series(const char* modality, std::vector<DirectoryRecord> images)
{
    return Level("SERIES", {{0x0008, 0x0060, "CS", modality}}, std::move(images));
}

DirectoryRecord Patient(const char* name, std::vector<DirectoryRecord> series)
{
    return Level("PATIENT", {{0x0010, 0x0010, "PN", name}},
                 {Level("STUDY", {}, std::move(series))});
}

struct DicomDir : testing::Test {
    DicomDir()
    {
        prefs_Store().UseFile({});
        prefs_InitializeForApplication();
        settings.dcmDBRoot = &tree;
    }
    void Write(const std::string& name) const { folder.WriteFile(name, SmallImage()); }
    void Open(const std::string& directory)
    {
        settings.openTargetPath = folder.WriteFile("DICOMDIR", directory);
        status = ReadPatientListFromDicomDirFile(&settings);
    }
    // Sequences of the tree, apart by "|": names of files below the folder, by ",".
    std::string Found() const
    {
        std::string text;
        for (dk_SequenceBase* sequence = tree.firstSequence_DICOM(); sequence;
             sequence = sequence->GetNextSequence_DICOM()) {
            text += text.empty() ? "" : "|";
            for (dk_DicomBaseElem* file = sequence->GetFirstChild(); file; file = file->GetNext())
                text += file->fFileSpec.fPath.substr(folder.Path().size() + 1) +
                        (file->GetNext() ? "," : "");
        }
        return text;
    }
    std::string LeftOut() const
    {
        std::string text;
        for (const LeftOutFile& file : tree.leftOut())
            text += fs::path(file.path).filename().string() + ": " + file.reason + '\n';
        return text;
    }
    TempFolder folder;
    ZELDcmTree tree;
    OpenSettings settings;
    QvxStatus status = -1;
};

struct SequenceRow {
    const char* what;
    const char* seriesModality;
    std::vector<ImageRow> images;
    const char* expected;
};

TEST_F(DicomDir, images_of_a_series_make_sequences_by_modality)
{
    const std::vector<SequenceRow> rows{
        {"one of CT, by number", "CT", {{"B", "CT", "2"}, {"A", "CT", "1"}}, "A,B"},
        {"one each of US, by number", "US", {{"B", "US", "2"}, {"A", "US", "1"}}, "A|B"},
        {"stills of XA together, a clip takes what follows",
         "XA",
         {{"A", "XA", "1"}, {"B", "XA", "2"}, {"C", "XA", "3", "9"}, {"D", "XA", "4"}},
         "A,B|C,D"},
        {"reports aren't images", "CT", {{"A", "CT", "1"}, {"B", "SR", "2"}}, "A"},
        {"the series lends its modality", "CT", {{"A", "", "1"}, {"B", "", "2"}}, "A,B"},
        {"equal numbers stay in order", "CT", {{"B", "CT", "1"}, {"A", "CT", "1"}}, "B,A"},
    };
    for (const SequenceRow& row : rows) {
        SCOPED_TRACE(row.what);
        ZELDcmTree fresh;
        settings.dcmDBRoot = &fresh;
        std::vector<DirectoryRecord> images;
        for (const ImageRow& image : row.images) {
            images.push_back(Image(image));
            Write(image.id);
        }
        Open(DirectoryFile({Patient("N", {Series(row.seriesModality, images)})}));
        EXPECT_EQ(status, kQvxOK);
        std::string found;
        for (dk_SequenceBase* s = fresh.firstSequence_DICOM(); s; s = s->GetNextSequence_DICOM()) {
            found += found.empty() ? "" : "|";
            for (dk_DicomBaseElem* file = s->GetFirstChild(); file; file = file->GetNext())
                found += file->fFileName.Str() + (file->GetNext() ? "," : "");
        }
        EXPECT_EQ(found, row.expected);
    }
}

struct NameRow {
    const char *recorded, *onDisc;
    bool isFound;
};

TEST_F(DicomDir, discs_may_change_names)
{
    for (const auto& [recorded, onDisc, isFound] : std::vector<NameRow>{
             {"IM1", "im1", true},
             {"IM1", "IM1.", true},
             {"IM1", "IM1.DCM", true},
             {"IM1", "im1.dcm", true},
             {"IM1", "IM1.IMA", false},
             {"IM1.DCM", "IM1.DCM.", true},
             {"IM1.DCM", "IM1.DCM.DCM", false},
             {"IM1.IMA", "im1.ima.dcm", true},
             {"IM1.", "IM1", true},
             {"DIR\\IM1", "dir/im1", true},
             {"DIR\\SUB\\IM1", "Dir/sUB/IM1.dcm", true},
             {"\\DIR\\IM1", "DIR/IM1", false},
             {"DIR\\..\\IM1", "IM1", false},
             {"..\\IM1", "IM1", false},
             {"DIR", "DIR/IM1", false},
         }) {
        SCOPED_TRACE(std::string(recorded) + " as " + onDisc);
        const TempFolder disc;
        disc.WriteFile(onDisc, "x");
        DicomImageFileRec record;
        std::string rel = std::string(":") + recorded;
        std::ranges::replace(rel, '\\', ':');
        const std::size_t last = rel.rfind(':');
        DirFolders folders(disc.Path());
        DirFolders::Hit hit;
        EXPECT_EQ(folders.Find(rel.substr(0, last), rel.substr(last + 1), &hit) ==
                      DirFolders::Match::Found,
                  isFound);
        EXPECT_EQ(hit.fPath, isFound ? disc.Path() + '/' + onDisc : "");
    }
}

TEST_F(DicomDir, names_that_differ_in_case_are_two_files)
{
    for (const char* name : {"IM1", "im1", "IM2.DCM", "im2", "D/A", "d/A", ".dcm"})
        Write(name);
    std::vector<DirectoryRecord> images;
    for (const char* id : {"im1", "IM1", "im2", "d\\A", "D\\A", ""})
        images.push_back(Image({id, "CT", "1"}));
    Open(DirectoryFile({Patient("N", {Series("CT", images)})}));
    EXPECT_EQ(Found(), "im1,IM1,im2,d/A,D/A");
    EXPECT_EQ(LeftOut(), "DICOMDIR: its directory record names no file\n");
}

TEST_F(DicomDir, a_folder_is_listed_once_however_it_is_spelled)
{
    Write("DIR/SUB/A");
    DirFolders folders(folder.Path());
    DirFolders::Hit hit;
    EXPECT_EQ(folders.Find(":DIR:SUB", "A", &hit), DirFolders::Match::Found);
    Write("DIR/SUB/B");  // too late for the listing
    for (const char* path : {":DIR:SUB", ":dir:Sub", ":Dir:sub"})
        EXPECT_EQ(folders.Find(path, "B", &hit), DirFolders::Match::NotThere) << path;
    EXPECT_EQ(folders.Find(":dir:sub", "a", &hit), DirFolders::Match::Found);
}

TEST_F(DicomDir, what_is_no_file_with_bytes_is_left_out_with_its_branch)
{
    Write("GOOD");
    folder.WriteFile("EMPTY", "");
    fs::create_directory(folder.Path() + "/FOLDER");
    ASSERT_EQ(mkfifo((folder.Path() + "/PIPE").c_str(), 0600), 0);
    const TempFolder outside;
    fs::create_symlink(outside.WriteFile("FILE", SmallImage()), folder.Path() + "/LINK");
    fs::create_symlink(folder.Path() + "/GOOD", folder.Path() + "/INNER");
    std::vector<DirectoryRecord> patients;
    for (const char* name :
         {"EMPTY", "FOLDER", "PIPE", "LINK", "GONE", "GOOD", "DICOMDIR", "INNER"})
        patients.push_back(Patient(name, {Series("CT", {Image({name, "CT", "1"})})}));
    Open(DirectoryFile(patients));
    EXPECT_EQ(status, kQvxOK);
    EXPECT_EQ(Found(), "GOOD|INNER");
    EXPECT_EQ(tree.numberOfPatients(), 2);
    EXPECT_EQ(LeftOut(),
              "EMPTY: an empty file\n"
              "FOLDER: named by the directory, not there\n"
              "PIPE: named by the directory, not there\n"
              "LINK: named by the directory, not there\n"
              "GONE: named by the directory, not there\n"
              "DICOMDIR: no pixel data\n");
}

TEST_F(DicomDir, files_that_are_all_missing_are_no_error_of_the_run)
{
    Open(DirectoryOfImages(3));
    EXPECT_EQ(status, kQvxOK);
    EXPECT_EQ(tree.numberOfPatients(), 0);
}

TEST_F(DicomDir, files_beside_the_directory_and_below_it)
{
    for (const char* name : {"A", "SUB/B"})
        Write(name);
    Open(DirectoryFile(
        {Patient("N", {Series("CT", {Image({"A", "CT", "1"}), Image({"SUB\\B", "CT", "2"})})})}));
    EXPECT_EQ(Found(), "A,SUB/B");
}

// (0004,1200).
std::uint32_t FirstRecordOf(const std::string& directory)
{
    const std::size_t at = directory.find(std::string("\x04\0\0\x12UL\x04\0", 8)) + 8;
    std::uint32_t offset = 0;
    for (std::size_t i = 4; i-- > 0;)
        offset = offset << 8 | static_cast<unsigned char>(directory[at + i]);
    return offset;
}

TEST_F(DicomDir, records_in_a_circle_and_out_of_reach)
{
    for (const char* name : {"IM0", "IM1", "IM2"})
        Write(name);
    const auto patientOf = [](const char* id) {
        return Patient(id, {Series("CT", {Image({id, "CT", "1"})})});
    };
    std::vector<DirectoryRecord> patients{patientOf("IM0"), patientOf("IM1"), patientOf("IM2")};
    const std::uint32_t first = FirstRecordOf(DirectoryFile(patients));
    patients[0].below[0].lower = first;  // a study above its own patient: its series is a stray
    patients[1].next = 0;                // nothing leads to the third
    Open(DirectoryFile(patients));
    EXPECT_EQ(status, kQvxOK);
    EXPECT_EQ(Found(), "IM1|IM2|IM0");
    EXPECT_EQ(tree.numberOfPatients(), 3);
    EXPECT_EQ(LeftOut(), "");
}

// Each names all of them as its studies, until levels are listed no more.
TEST_F(DicomDir, many_records_above_themselves_cost_no_image)
{
    Write("IM0");
    std::vector<DirectoryRecord> patients(3 * kMostMetInVain, Patient("A", {}));
    for (DirectoryRecord& patient : patients)
        patient.below.clear();
    const std::uint32_t first = FirstRecordOf(DirectoryFile(patients));
    for (DirectoryRecord& patient : patients)
        patient.lower = first;
    patients.push_back(Patient("B", {Series("CT", {Image({"IM0", "CT", "1"})})}));
    Open(DirectoryFile(patients));
    EXPECT_EQ(Found(), "IM0");
}

TEST_F(DicomDir, a_level_that_is_missing_is_made_up)
{
    Write("IM0");
    Open(DirectoryFile({Level("STUDY", {}, {Series("CT", {Image({"IM0", "CT", "1"})})})}));
    EXPECT_EQ(Found(), "IM0");
    ASSERT_TRUE(tree.firstPatient());
    EXPECT_EQ(tree.firstPatient()->GetDKTitle(), "DOE JOHN, 1");  // as the file says
}

}  // namespace

// Titles of patients, studies and series, out of records and out of files.
#include "dicom_core/tree/TreeFixtures.h"

#include <gtest/gtest.h>

namespace {

// One branch over one file with the given elements.
struct Branch : testing::Test {
    void OverFile(const FileWords& words)
    {
        AddedFile(Added<dk_Sequence>(series), WriteImage(folder, "a", words));
    }
    TempFolder folder;
    dk_PatientListRoot root;
    dk_Patient* patient = Added<dk_Patient>(&root);
    dk_Study* study = Added<dk_Study>(patient);
    dk_Series* series = Added<dk_Series>(study);
};

TEST(PatientTitle, goes_by_name_or_id_or_neither)
{
    struct Row {
        const char *name, *sex, *id, *title;
    };
    for (const Row& row :
         {Row{"DOE^JOHN ", "M", "17", "DOE JOHN, M, 17"}, Row{nullptr, "M", "17", "17, M"},
          Row{"", "", "", "Anonymized"}, Row{nullptr, nullptr, nullptr, "Anonymized"},
          Row{"DOE^^JOHN^^", nullptr, "17", "DOE JOHN, 17"}}) {
        TempFolder folder;
        dk_Patient patient;
        AddedFile(Added<dk_Sequence>(Added<dk_Series>(Added<dk_Study>(&patient))),
                  WriteImage(folder, "a",
                             {.elements = {{0x0010, 0x0010, "PN", row.name},
                                           {0x0010, 0x0020, "LO", row.id},
                                           {0x0010, 0x0040, "CS", row.sex}}}));
        EXPECT_EQ(patient.GetDKTitle(), row.title);
        EXPECT_EQ(patient.CopyDKTitle().toStdString(), row.title);
    }
}

TEST_F(Branch, never_asks_the_file_of_another_patient)
{
    OverFile({.elements = {{0x0010, 0x0010, "PN", "SOMEBODY^ELSE"}}});
    auto first = std::make_unique<dk_Patient>();
    dk_Patient* const empty = first.get();
    Added<dk_Series>(Added<dk_Study>(empty));
    root.AddChildAfter(std::move(first), nullptr);
    EXPECT_EQ(empty->GetDKTitle(), "Anonymized");
    EXPECT_EQ(empty->CopyDKTitle(), "Anonymized");
    EXPECT_FALSE(empty->Copy_ProperPatientName());
}

TEST(ProperPatientName, is_composed_of_the_components_that_there_are)
{
    const char* const rows[][2] = {
        {"Family^Given^Middle", "Given Family, Middle"},
        {"Family^Given", "Given Family"},
        {"^Given", "Given"},
        {"^^Middle", "Middle"},
        {"Family^^Middle", "Family, Middle"},
        {"Family^Given^^Dr", "Dr Given Family"},
        {" Family ^ Given ^Middle^Dr^Jr", "Dr Given Family, Middle, Jr"},
        {"a^b^c^d^e^f", "a^b^c^d^e^f"},
        {"Plain Name", "Plain Name"},
        {"^^^^", "Anonymized"},
    };
    for (const auto& [name, proper] : rows) {
        dk_Patient patient;
        patient.fWidePatientName = name;
        EXPECT_EQ(patient.Copy_ProperPatientName(), QString(proper)) << name;
    }
}

TEST(StudyTitle, joins_what_is_there)
{
    struct Row {
        const char *uid, *id, *date, *description;
        const char *narrow, *wide;
    };
    const Row rows[] = {
        {"1.2", "7", "20200131", "Head", "St 7: 31/01/2020, Head", "St 7: 31/01/2020, Head"},
        {"1.2", "", "", "Head", "St Head", "St Head"},
        {"1.2", "", "", "", "St 1.2", "St 1.2"},
        {"", "", "", "", "St : --", "St :--"},
    };
    for (const Row& row : rows) {
        dk_Study study;
        study.fStudyUID.Assign(row.uid);
        study.fStudyID.Assign(row.id);
        study.fStudyDate.Assign(row.date);
        study.fStudyDescription.Assign(row.description);
        study.fWideStudyDescription = row.description;
        EXPECT_EQ(study.GetDKTitle(), row.narrow);
        EXPECT_EQ(study.CopyDKTitle().toStdString(), row.wide);
    }
}

TEST_F(Branch, study_fills_what_is_empty_and_takes_no_id_of_zeros)
{
    OverFile({.elements = {{0x0008, 0x0005, "CS", "ISO_IR 192"},
                           {0x0008, 0x0020, "DA", "20200131"},
                           {0x0008, 0x0050, "SH", "NEW"},
                           {0x0008, 0x1030, "LO", "Sch\xC3\xA4"},
                           {0x0020, 0x0010, "SH", "0000"}}});
    study->fStudyDate.Assign("19991231");
    study->fAccessionNumber.Assign("OLD");
    EXPECT_EQ(study->GetDKTitle(), "St 31/12/1999, Sch\xC3\xA4");
    EXPECT_EQ(study->CopyDKTitle(), QString::fromUtf8("St 31/12/1999, Sch\xC3\xA4"));
    EXPECT_EQ(study->fAccessionNumber.View(), "NEW");
}

TEST(SeriesTitle, goes_by_text_or_number_or_place)
{
    struct Row {
        int number;
        const char *description, *body, *modality;
        const char *narrow, *wide;
    };
    const Row rows[] = {
        {3, "Axial", "HEAD", "CT", "Se 3: Axial, HEAD  (CT)", "Se 3: Axial, HEAD (CT)"},
        {0, "Axial", "", "", "Se : Axial ", "Se: Axial"},
        {3, "", "", "CT", "Se 3 (CT)", "Se 3 (CT)"},
        {0, "", "", "", "Se #2", "Se #2"},
    };
    for (const Row& row : rows) {
        dk_Study study;
        Added<dk_Series>(&study);
        auto* const series = Added<dk_Series>(&study);
        series->fSeriesNumber = row.number;
        series->fSeriesDescription.Assign(row.description);
        series->fBodyPart.Assign(row.body);
        series->fModalityStr.Assign(row.modality);
        EXPECT_EQ(series->GetDKTitle(), row.narrow);
        EXPECT_EQ(series->CopyDKTitle().toStdString(), row.wide);
    }
}

TEST_F(Branch, representatives_are_one_for_each_sequence)
{
    OverFile({.modality = "XA", .frames = 3});
    auto* const other = Added<dk_Series>(study);
    dk_Sequence* const second = AddedSequence(other, 0);
    auto* const first = static_cast<dk_Sequence*>(series->GetFirstChild());
    EXPECT_EQ(study->GetNumberRepresentatives(), 2);
    EXPECT_EQ(study->GetRepresentativeChildIndex(second), 2);
    EXPECT_EQ(series->GetRepresentativeChildIndex(second), 0);
    zelImageSource* source = nullptr;
    std::int32_t frame = 0;
    first->SetRepresentativeFrameNumber(2);
    study->GetRepresentativeFrame(1, &source, &frame);
    EXPECT_EQ(source, first->GetCurrentSource());
    EXPECT_EQ(frame, 2);
    for (const int n : {0, 2, 3}) {  // outside, and one without frames
        study->GetRepresentativeFrame(n, &source, &frame);
        EXPECT_EQ(source, nullptr) << n;
        EXPECT_EQ(frame, 0) << n;
    }
    study->AddChildAfter(std::make_unique<dk_Series>(), nullptr);
    EXPECT_EQ(study->GetNumberRepresentatives(), 0) << "the first series is empty";
}

}  // namespace

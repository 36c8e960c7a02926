// What a file says of itself, when it is looked at, and what its copies share.
#include "dicom_core/tree/TreeFixtures.h"

#include <gtest/gtest.h>

namespace {

DicomImageFileRec Record(std::string_view modality, int series, int instance, int frames)
{
    DicomImageFileRec record;
    record.recModality.Assign(modality);
    record.recSeriesNumber = series;
    record.recInstanceNumber = instance;
    record.recNumFrames = frames;
    record.recFileName.Assign("IMG1");
    return record;
}

FileWords Numbered(const char* modality, const char* instance)
{
    return {.modality = modality,
            .elements = {{0x0020, 0x0011, "IS", "4"},
                         {0x0020, 0x0013, "IS", instance},
                         {0x0020, 0x4000, "LT", "one\r\ntwo"}}};
}

TEST(ImageFile, reads_what_its_record_leaves_unknown)
{
    TempFolder folder;
    const FileRef image = WriteImage(folder, "a", Numbered("CT", "7"));
    dk_ImageFile file(Record("", 0, 0, 0));
    EXPECT_EQ(file.GetSeriesNumber(), 0);
    EXPECT_EQ(file.GetInstanceNumber(), 0);
    ASSERT_EQ(file.SetSourceFile(image, kImportDeferCheck), kQvxOK);
    EXPECT_EQ(file.GetDKTitle(), "a") << "a title opens nothing";
    EXPECT_FALSE(file.HasLoadedDICOMParser());
    EXPECT_EQ(file.GetSeriesNumber(), 4);
    EXPECT_EQ(file.GetInstanceNumber(), 7);
    EXPECT_EQ(file.GetNumberOfFrames(), 1);
    EXPECT_EQ(file.GetImageComments(), "one two");
    EXPECT_EQ(file.GetModality(), DicomUtil_ModalityFromString("CT"));
    EXPECT_TRUE(file.HasLoadedDICOMParser());
    EXPECT_FALSE(file.GetSource()->HasOpenParser());
}

TEST(ImageFile, takes_its_modality_from_wherever_it_can)
{
    TempFolder folder;
    const auto with = [](DicomBuilder file) {
        return file.Meta(kUidExplicitLittle).Image({}).NativePixels(7).Bytes();
    };
    const std::pair<std::string, ModalityType> rows[] = {
        {with(DicomBuilder().Element(0x0008, 0x0060, "CS", "MR")),
         DicomUtil_ModalityFromString("MR")},
        {with(DicomBuilder()), kModalityOtherDicom},
        {with(DicomBuilder().Element(0x0008, 0x0060, "CS", "")), kModalityOtherDicom},
        {"text", kModalityPlainFile},
    };
    for (const auto& [bytes, modality] : rows) {
        dk_ImageFile file;
        ASSERT_EQ(file.SetSourceFile({folder.WriteFile("a", bytes)}, kImportDeferCheck), kQvxOK);
        EXPECT_EQ(file.GetModality(), modality);
    }
    EXPECT_EQ(dk_ImageFile().GetModality(), kModalityPlainFile);
}

TEST(ImageFile, counts_one_frame_for_a_modality_of_many_files)
{
    struct Row {
        const char* modality;
        int recorded, frames;
    };
    for (const Row& row : {Row{"CT", 0, 1}, Row{"CT", 3, 3}, Row{"XA", 0, 0}}) {
        dk_ImageFile file(Record("", 0, 0, row.recorded));
        file.SetModality_Externally(row.modality);
        EXPECT_EQ(file.GetModality(), DicomUtil_ModalityFromString(row.modality));
        EXPECT_EQ(file.GetNumberOfFrames(), row.frames) << row.modality;
    }
}

TEST(ImageFile, is_called_by_number_and_file)
{
    struct Row {
        const char *modality, *instance, *name;
        const char *title, *exported;
    };
    TempFolder folder;
    for (const Row& row : {
             Row{"CT", "9", "a.dcm", " 9: a.dcm", "a"},
             Row{"CT", "10", "a.DICM", "10: a.DICM", "a"},
             Row{"MR", "0", "a.Dcm", "a.Dcm", "a.Dcm"},
             Row{"XA", "9", "a.dicm.dcm", "a.dicm.dcm", "a.dicm"},
         }) {
        dk_ImageFile file;
        const FileRef image = WriteImage(folder, row.name, Numbered(row.modality, row.instance));
        ASSERT_EQ(file.SetSourceFile(image, kImportDicom), kQvxOK);
        EXPECT_EQ(file.GetDKTitle(), row.title);
        EXPECT_EQ(file.CopyDKTitle().toStdString(), row.title);
        EXPECT_EQ(file.GetExportTitle(), row.name);
        EXPECT_EQ(file.Copy_DK_DisplayTitle().toStdString(), row.name);
        EXPECT_EQ(file.Copy_DK_ExportTitle().toStdString(), row.exported);
    }
}

TEST(ImageFile, shares_its_source_with_duplicates_and_its_id_with_clones)
{
    TempFolder folder;
    std::unique_ptr<dk_ImageFile> duplicate;
    std::unique_ptr<dk_DicomBaseElem> clone, ofClone;
    {
        dk_ImageFile file(Record("CT", 5, 6, 1));
        file.SetParserInfoData(Record("CT", 5, 6, 1));
        ASSERT_EQ(file.SetSourceFile(WriteImage(folder, "a", {}), kImportDicom), kQvxOK);
        duplicate = file.Duplicate();
        clone = file.MakeClone();
        ofClone = static_cast<dk_ImageFile*>(clone.get())->Duplicate();
        EXPECT_EQ(duplicate->GetSource(), file.GetSource());
        EXPECT_EQ(file.GetSource()->ReferenceCount(), 2);
        EXPECT_NE(duplicate->GetParserInfoData(), file.GetParserInfoData());
        EXPECT_NE(duplicate->GetImageID(), file.GetImageID());
    }
    EXPECT_EQ(duplicate->GetSource()->ReferenceCount(), 1);
    EXPECT_NE(duplicate->GetDICOMParser(), nullptr);
    auto* const cloned = static_cast<dk_ImageFile*>(clone.get());
    EXPECT_NE(cloned->GetSource(), duplicate->GetSource());
    EXPECT_EQ(cloned->GetSource()->SourceID(), duplicate->GetSource()->SourceID());
    EXPECT_EQ(cloned->GetInstanceNumber(), 6);
    EXPECT_TRUE(cloned->fIsClone);
    EXPECT_FALSE(duplicate->fIsClone || ofClone->fIsClone);
}

}  // namespace

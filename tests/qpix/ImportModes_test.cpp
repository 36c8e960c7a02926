// How hard a source looks at a file, and when it stops being valid.
#include "qpix/TestFiles.h"
#include "qpix/zelImageSource.h"
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>

namespace {

const std::string kText = "This is a plain text, longer than a preamble. " + std::string(300, 'x');

class ImportModes : public ::testing::Test {
protected:
    void SetUp() override { CImporterPlusFactory::InitFactory(); }
    TempFolder fFolder;
};

}  // namespace

TEST_F(ImportModes, decide_what_fails_and_when)
{
    struct Row {
        const char* fault;
        const char* name;
        FileImportMode mode;
        QvxStatus import;
        bool parser, importer;
    };
    fFolder.WriteFile("text", kText);
    WriteDicom(fFolder, FramesOf2x2(1), "image");
    WriteDicom(fFolder, DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("SR"), "report");
    const Row rows[] = {
        {"a text is refused, whatever else there is", "text", kImportAny, kQvxNotOfKind, false,
         false},
        {"a text is refused", "text", kImportDicom, kQvxNotOfKind, false, false},
        {"deferred: the text passes until used", "text", kImportDeferCheck, kQvxOK, false, false},
        {"never checked: it still can't be read", "text", kImportDeferNoCheck, kQvxOK, false,
         false},
        {"no file", "none", kImportDicom, 2, false, false},
        {"deferred: no file is looked for", "none", kImportDeferNoCheck, kQvxOK, false, false},
        {"an image, checked", "image", kImportDicom, kQvxOK, true, true},
        {"an image, unchecked", "image", kImportDicomNoCheck, kQvxOK, true, true},
        {"an image, deferred", "image", kImportDeferCheck, kQvxOK, true, true},
        {"an image, deferred, unchecked", "image", kImportDeferNoCheck, kQvxOK, true, true},
        {"a report has elements, but no image", "report", kImportDicom, kQvxOK, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        for (const bool parserFirst : {true, false}) {
            zelImageSource source;
            const FileRef file{fFolder.Path(row.name)};
            EXPECT_EQ(source.ImportFromFSSpec(file, row.mode), row.import);
            EXPECT_EQ(source.IsValid(), row.import == kQvxOK);
            const bool works =
                parserFirst ? source.GetDicomParser() != nullptr : source.GetImporter() != nullptr;
            EXPECT_EQ(works, parserFirst ? row.parser : row.importer);
            EXPECT_EQ(source.IsValid(), works);
        }
    }
}

TEST_F(ImportModes, leave_no_descriptor_open)
{
    const auto count = [] {
        const std::filesystem::directory_iterator open("/proc/self/fd");
        return std::distance(begin(open), end(open));
    };
    WriteDicom(fFolder, FramesOf2x2(1), "image");
    const auto before = count();
    for (const FileImportMode mode :
         {kImportAny, kImportDicom, kImportDicomNoCheck, kImportDeferCheck, kImportDeferNoCheck}) {
        SCOPED_TRACE(mode);
        zelImageSource source;
        ASSERT_EQ(source.ImportFromFSSpec(FileRef{fFolder.Path("image")}, mode), kQvxOK);
        EXPECT_EQ(count(), before);
        ASSERT_NE(source.GetDicomParser(), nullptr);
        EXPECT_EQ(count(), before);
    }
}

TEST_F(ImportModes, validation_is_still_due_when_the_second_way_is_taken)
{
    zelImageSource source;
    ASSERT_EQ(source.ImportFromFSSpec(WriteDicom(fFolder, FramesOf2x2(3)), kImportDeferCheck),
              kQvxOK);
    std::int32_t frames = -1;
    EXPECT_EQ(source.GetFrameCount(&frames), kQvxOK);
    EXPECT_EQ(frames, 3);
    Point size;
    EXPECT_EQ(source.GetFrameSize(3, &size), kQvxOK);
    EXPECT_EQ(size, (Point{2, 2}));
    EXPECT_TRUE(source.IsDICOMGray());
    EXPECT_EQ(source.ImportFromFSSpec({}, kImportDicom), kQvxBadArgument);
    EXPECT_EQ(source.GetFrameCount(&frames), kQvxBadArgument) << "nothing of the old file is left";
    EXPECT_EQ(frames, 0);
}

TEST_F(ImportModes, the_default_window)
{
    const auto header = ImageHeader({.rows = 1, .columns = 1});
    const auto with = DicomBuilder(header)
                          .Element(0x0028, 0x1050, "DS", "40\\50")
                          .Element(0x0028, 0x1051, "DS", "400\\80")
                          .NativePixels({7});
    const auto without = DicomBuilder(header).NativePixels({7});
    float width = -1, level = -1;
    zelImageSource source;
    EXPECT_FALSE(source.GetTheDefaultVOIValuesFromImporter(&width, &level));
    EXPECT_EQ(width, -1) << "no DICOM source: untouched";
    ASSERT_EQ(source.ImportFromFSSpec(WriteDicom(fFolder, with), kImportDicom), kQvxOK);
    EXPECT_TRUE(source.GetTheDefaultVOIValuesFromImporter(&width, &level));
    EXPECT_EQ(width, 400);
    EXPECT_EQ(level, 40);
    ASSERT_EQ(source.ImportFromFSSpec(WriteDicom(fFolder, without, "b"), kImportDicom), kQvxOK);
    EXPECT_FALSE(source.GetTheDefaultVOIValuesFromImporter(&width, &level));
    EXPECT_EQ(width, 0);
    EXPECT_EQ(level, 0);
}

TEST_F(ImportModes, an_unmarked_source_outlives_its_last_holder)
{
    auto source = std::make_unique<zelImageSource>();
    source->AddReference();
    source->AddReference();
    source->RemoveReference(false);
    source->RemoveReference(false);
    source->RemoveReference(false);
    EXPECT_EQ(source->ReferenceCount(), 0);
    source->AddReference();
    source->AddReference();
    source->RemoveReference(true);
    EXPECT_EQ(source->ReferenceCount(), 1) << "marked, but still held";
    source.release()->RemoveReference(false);  // the leak check sees it if it isn't freed
}

TEST_F(ImportModes, the_filter_takes_dicom_without_an_image)
{
    const FileRef report =
        WriteDicom(fFolder, DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("SR"));
    const FileRef text{fFolder.WriteFile("text", kText)};
    EXPECT_EQ(zelImageSource::DicomFileFilterProc(&report), kQvxOK);
    EXPECT_EQ(zelImageSource::DicomFileFilterProc(&text), kQvxNotOfKind);
    EXPECT_EQ(zelImageSource::DicomFileFilterProc(&report), kQvxOK);
    EXPECT_EQ(zelImageSource::DicomFileFilterProc(nullptr), kQvxOK);
}

TEST_F(ImportModes, names_are_bytes_and_a_url_is_escaped)
{
    zelImageSource source;
    ASSERT_EQ(source.ImportFromFSSpec({"/a b/\xFFx.tar.dcm"}, kImportDeferNoCheck), kQvxOK);
    EXPECT_EQ(source.GetFileName(), "\xFFx.tar.dcm");
    EXPECT_EQ(source.GetFileNameNoExtension(), "\xFFx.tar");
    EXPECT_EQ(source.GetFileName_UTF8(), "\\xFFx.tar.dcm");
    EXPECT_EQ(source.GetFileURL(), "file:///a%20b/%FFx.tar.dcm");
}

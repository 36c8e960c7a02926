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
    static ParserHandle GetReader(zelImageSource* source, const FileRef& file)
    {
        return source->ImportFromFSSpec(file, kImportDicom) ? nullptr : source->GetDicomParser();
    }
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

// What is learned of a file stays, whoever reads it again: only if the file stayed too.
TEST_F(ImportModes, a_file_that_is_opened_again_must_be_the_same)
{
    enum class First { Parser, Importer, Header, Copy };
    struct Row {
        First first;
        bool parserAgain;
    };
    for (const auto& [first, parserAgain] :
         {Row{First::Parser, true}, Row{First::Parser, false}, Row{First::Header, true},
          Row{First::Header, false}, Row{First::Copy, true}, Row{First::Copy, false},
          Row{First::Importer, true}}) {
        for (const bool changed : {false, true}) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(first) << parserAgain << changed);
            const FileRef file = WriteDicom(fFolder, FramesOf2x2(2));
            zelImageSource source, other;
            ASSERT_EQ(source.ImportFromFSSpec(file, kImportDeferCheck), kQvxOK);
            EXPECT_FALSE(source.HasReadHeader());
            const ParserHandle reader = GetReader(&other, file);
            switch (first) {
                case First::Parser:
                    ASSERT_NE(zelParserVisit(&source).Parser(), nullptr);
                    break;
                case First::Importer:
                    ASSERT_NE(source.GetImporter(), nullptr);
                    break;
                case First::Header:
                    source.ImportFromHeader(file, Qvx2Reader_FileIdentity(reader), 2);
                    break;
                case First::Copy:
                    source.ImportFromSource(other);
            }
            EXPECT_EQ(source.HasReadHeader(), first != First::Importer);
            EXPECT_FALSE(source.HasOpenParser());
            if (changed)
                WriteDicom(fFolder, FramesOf2x2(3));
            EXPECT_EQ(parserAgain ? source.LoadDicomParser() : source.LoadImporter(),
                      changed ? kQvxSeekFailed : kQvxOK);
            EXPECT_EQ(source.IsValid(), !changed);
        }
    }
}

TEST_F(ImportModes, a_visit_leaves_the_reader_as_it_found_it)
{
    zelImageSource source;
    ASSERT_EQ(source.ImportFromFSSpec(WriteDicom(fFolder, FramesOf2x2(1)), kImportDeferCheck),
              kQvxOK);
    {
        const zelParserVisit outer(&source);
        {
            const zelParserVisit inner(&source);
            EXPECT_EQ(inner.Parser(), outer.Parser());
        }
        EXPECT_TRUE(source.HasOpenParser());
    }
    EXPECT_FALSE(source.HasOpenParser());
    ASSERT_NE(source.GetDicomParser(), nullptr);
    {
        const zelParserVisit visit(&source);
    }
    EXPECT_TRUE(source.HasOpenParser());
    EXPECT_EQ(zelParserVisit(nullptr).Parser(), nullptr);
}

TEST_F(ImportModes, urls)
{
    struct Row {
        const char* begin;
        const char* name;
        QvxStatus status;
    };
    WriteDicom(fFolder, FramesOf2x2(2), "a b%.dcm");
    const Row rows[] = {
        {"file://", "a%20b%25.dcm", kQvxOK},
        {"file://localhost", "a%20b%25.dcm", kQvxOK},
        {"file://", "a%20b%25.dcm%0", kQvxNoDataRefType},
        {"file://", "a%20b%2x.dcm", kQvxNoDataRefType},
        {"file://elsewhere", "a%20b%25.dcm", kQvxNoDataRefType},
        {"http://", "a%20b%25.dcm", kQvxNoDataRefType},
        {"file://", "a%20b%25.dcm%00", kQvxFileNotFound},
        {"file://", "none", 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.begin + std::string(row.name));
        zelImageSource source;
        const std::string url = row.begin + fFolder.Path(row.name);
        ASSERT_EQ(source.ImportFromURL(url), row.status);
        EXPECT_EQ(source.IsValid(), row.status == kQvxOK);
        EXPECT_EQ(source.HasOpenParser(), row.status == kQvxOK);
        if (row.status)
            continue;
        EXPECT_EQ(source.GetDataPath(), url);
        EXPECT_EQ(source.GetFileName(), "a b%.dcm");
        EXPECT_EQ(source.LoadFSInfo(), nullptr);
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

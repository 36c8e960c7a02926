// Selecting images, drawing them, and the factory's list, with a scripted instance where the rule
// isn't DICOM's.
#include "pixels/OffscreenFactory.h"
#include "pixels/zel_Offscreen.h"

#include "qpix/CImporterFactory.h"
#include "qpix/DicomCodec.h"
#include "qpix/TestFiles.h"
#include <gtest/gtest.h>

namespace {

class ScriptedImporter final : public GraphicsImporter {
public:
    ScriptedImporter(std::uint32_t subtype, std::int32_t images)
        : fSubtype(subtype), fImages(images)
    {
    }
    std::uint32_t Subtype() const override { return fSubtype; }
    std::string_view ComponentName() const override { return "scripted"; }
    std::string_view MIMEType() const override { return "image/x-scripted"; }
    QvxStatus SetDataFile(const FileRef& file) override
    {
        BindFile(file);
        return kQvxOK;
    }
    QvxStatus Validate(bool* valid) override
    {
        *valid = true;
        return kQvxOK;
    }
    QvxStatus GetImageCount(std::int32_t* count) override
    {
        *count = fImages;
        return kQvxOK;
    }
    QvxStatus GetNaturalBounds(Rect* bounds) override
    {
        *bounds = {0, 0, static_cast<std::int16_t>(10 * ImageIndex()), 20};
        return kQvxOK;
    }
    QvxStatus GetImageDescription(ImageDescription* description) override
    {
        ++descriptions;
        description->fDepth = 32;
        return kQvxOK;
    }
    QvxStatus GetDataOffsetAndSize(std::uint32_t*, std::uint32_t*) override { return kQvxOK; }
    QvxStatus ReadData(void*, std::uint32_t, std::uint32_t) override { return kQvxOK; }
    QvxStatus Draw(COffscreen&, DicomCodec*) override
    {
        drawnAt = Quality();
        return drawStatus;
    }

    int descriptions = 0;
    std::int32_t drawnAt = 0;
    QvxStatus drawStatus = kQvxOK;

private:
    std::uint32_t fSubtype;
    std::int32_t fImages;
};

std::unique_ptr<zel_Offscreen> Offscreen(std::uint32_t format, int width, int height)
{
    std::unique_ptr<zel_Offscreen> made;
    EXPECT_EQ(zel_OffscreenFactory::NewCOffscreen(format, width, height, true, &made), kQvxOK);
    return made;
}

}  // namespace

TEST(CImporterPlus, presents_a_container_of_renderings_as_one_image)
{
    struct Row {
        const char* fault;
        std::uint32_t subtype;
        std::int32_t images, count;
        QvxStatus select1, select2;
    };
    const Row rows[] = {
        {"a photo with a preview", FourCC("JPEG"), 2, 1, kQvxOK, kQvxBadArgument},
        {"an empty container", FourCC("8BPS"), 0, 0, kQvxBadArgument, kQvxBadArgument},
        {"pages are images", FourCC("TIFF"), 2, 2, kQvxOK, kQvxOK},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        CImporterPlus importer(std::make_unique<ScriptedImporter>(row.subtype, row.images));
        std::int32_t count = -1;
        EXPECT_EQ(importer.CountImages(&count), kQvxOK);
        EXPECT_EQ(count, row.count);
        EXPECT_EQ(importer.SetCurrentImage(2), row.select2);
        EXPECT_EQ(importer.SetCurrentImage(1), row.select1);
    }
}

TEST(CImporter, drops_what_it_knows_only_when_the_image_changes)
{
    auto instance = std::make_unique<ScriptedImporter>(FourCC("TIFF"), 3);
    const ScriptedImporter& scripted = *instance;
    CImporterPlus importer(std::move(instance));
    const ImageDescription* description = nullptr;
    ASSERT_EQ(importer.GetImageDesc(&description), kQvxOK);
    ASSERT_EQ(importer.SetBounds({0, 0, 5, 10}), kQvxOK);
    ASSERT_EQ(importer.SetCurrentImage(1), kQvxOK);
    ASSERT_EQ(importer.GetImageDesc(&description), kQvxOK);
    EXPECT_EQ(scripted.descriptions, 1);
    EXPECT_FALSE(scripted.Matrix().IsIdentity());

    ASSERT_EQ(importer.SetCurrentImage(3), kQvxOK);
    ASSERT_EQ(importer.GetImageDesc(&description), kQvxOK);
    EXPECT_EQ(scripted.descriptions, 2);
    EXPECT_TRUE(scripted.Matrix().IsIdentity());
    EXPECT_EQ(scripted.SourceRect(), (Rect{0, 0, 30, 20}));
}

TEST(CImporter, a_stopped_draw_is_the_users_and_leaves_no_trace)
{
    auto instance = std::make_unique<ScriptedImporter>(FourCC("TIFF"), 1);
    ScriptedImporter& scripted = *instance;
    scripted.drawStatus = kQvxDrawStopped;
    scripted.SetQuality(7);
    CImporter importer(std::move(instance));
    const auto target = Offscreen(32, 20, 10);
    EXPECT_EQ(importer.DrawOnOffscreen(*target, kQualityCopy, 4, kColorBlack), kQvxUserCanceled);
    EXPECT_EQ(scripted.drawnAt, kQualityCopy);
    EXPECT_EQ(scripted.Quality(), 7);
    EXPECT_EQ(scripted.GraphicsMode(), 0);
}

TEST(CImporter, answers_one_code_without_an_instance)
{
    CImporterPlus importer(nullptr);
    std::int32_t number = 0;
    const ImageDescription* description = nullptr;
    bool valid = false;
    const auto target = Offscreen(32, 2, 2);
    EXPECT_EQ(importer.CountImages(&number), kQvxNoImporter);
    EXPECT_EQ(importer.SetCurrentImage(1), kQvxNoImporter);
    EXPECT_EQ(importer.GetImageDesc(&description), kQvxNoImporter);
    EXPECT_EQ(importer.SetBounds({0, 0, 1, 1}), kQvxNoImporter);
    EXPECT_EQ(importer.Validate(&valid), kQvxNoImporter);
    EXPECT_EQ(importer.DrawOnOffscreen(*target, 0, 0, kColorBlack), kQvxNoImporter);
    EXPECT_EQ(importer.DecompressOnOffscreen(*target, nullptr, 0, 0, nullptr), kQvxNoImporter);
}

TEST(CImporterFactory, destroying_twice_is_harmless)
{
    const TempFolder folder;
    const FileRef file = WriteDicom(folder, FramesOf2x2(1));
    CImporterPlusFactory::InitFactory();
    CImporterPlus* importer = nullptr;
    ASSERT_EQ(CImporterPlusFactory::NewImporterForFileEx(file, &importer, ImporterChoice::Dicom),
              kQvxOK);
    CImporterFactory::DestroyImporter(importer);
    CImporterFactory::DestroyImporter(importer);

    GraphicsImporter* instance = nullptr;
    ASSERT_EQ(CImporterFactory::NewImporterForFile(file, &instance), kQvxOK);
    CImporterFactory::DeinitFactory();
    CImporterFactory::DestroyImporter(instance);
    EXPECT_EQ(CImporterPlusFactory::NewImporterForFileEx(file, &importer, ImporterChoice::Dicom),
              kQvxNoImporter);
    EXPECT_EQ(importer, nullptr);
    CImporterPlusFactory::InitFactory();
}

TEST(DicomImporter, places_the_picture_as_the_matrix_says)
{
    const TempFolder folder;
    CImporterPlusFactory::InitFactory();
    CImporterPlus* made = nullptr;
    ASSERT_EQ(CImporterPlusFactory::NewImporterForFileEx(WriteDicom(folder, FramesOf2x2(2)), &made,
                                                         ImporterChoice::Dicom),
              kQvxOK);
    const CImporterPlusPtr importer(made);
    ASSERT_EQ(importer->SetCurrentImage(2), kQvxOK);  // 4 5 / 6 7

    const auto moved = Offscreen(40, 4, 3);
    ASSERT_EQ(importer->SetMatrix({.tx = 1, .ty = 1}), kQvxOK);
    ASSERT_EQ(importer->DrawOnOffscreen(*moved, kQualityFrame, 0, kColorBlack), kQvxOK);
    const PixMap map = moved->GetGWorldPtr()->Map();
    const std::uint8_t* row = map.baseAddr + map.rowBytes;
    EXPECT_EQ(std::vector<int>(row, row + 4), (std::vector<int>{0, 255 - 4, 255 - 5, 0}));
    EXPECT_EQ(map.baseAddr[1], 0) << "white around it";

    const auto larger = Offscreen(40, 4, 4);
    ASSERT_EQ(importer->SetBounds({0, 0, 4, 4}), kQvxOK);
    ASSERT_EQ(importer->DrawOnOffscreen(*larger, kQualityFrame, 0, kColorBlack), kQvxOK);
    const PixMap scaled = larger->GetGWorldPtr()->Map();
    EXPECT_EQ(scaled.baseAddr[0], 255 - 4);
    EXPECT_EQ(scaled.baseAddr[3 * scaled.rowBytes + 3], 255 - 7);
    ASSERT_EQ(importer->SetMatrix({.a = 0, .b = 1, .c = -1, .d = 0}), kQvxOK);
    EXPECT_EQ(importer->DrawOnOffscreen(*larger, kQualityFrame, 0, kColorBlack), kQvxUnsupported);
}

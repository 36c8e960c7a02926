// The offscreen that a frame lives in, and what its decoder puts there.
#include "qpix/OffscreenForFrame.h"

#include "util/ByteOrder.h"

#include "qpix/CImporterFactory.h"
#include "qpix/DicomCodec.h"
#include "qpix/TestFiles.h"
#include <gtest/gtest.h>

namespace {

class FrameOffscreens : public ::testing::Test {
protected:
    void SetUp() override { CImporterPlusFactory::InitFactory(); }
    CImporterPlusPtr Importer(const DicomBuilder& file)
    {
        CImporterPlus* made = nullptr;
        EXPECT_EQ(CImporterPlusFactory::NewImporterForFileEx(WriteDicom(fFolder, file), &made,
                                                             ImporterChoice::Dicom),
                  kQvxOK);
        return CImporterPlusPtr(made);
    }
    TempFolder fFolder;
};

}  // namespace

TEST_F(FrameOffscreens, take_the_format_of_their_frame)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        QvxStatus status;
        std::uint32_t format, properties;
    };
    const Row rows[] = {
        {"8-bit gray", FramesOf2x2(1), kQvxOK, 40, 11},
        {"16-bit gray", ImageHeader({.rows = 1, .columns = 2}).NativePixels({1, 2}), kQvxOK,
         kPixelFormatGray16, 7},
        {"12 bits are 16",
         ImageHeader({.rows = 1, .columns = 2, .stored = 12}).NativePixels({1, 2}), kQvxOK,
         kPixelFormatGray16, 7},
        {"colour",
         ImageHeader({.rows = 1, .columns = 2, .bits = 8, .samples = 3})
             .NativePixels("RGBrgb", "OB"),
         kQvxOK, 32, 1},
        {"too wide",
         ImageHeader({.rows = 1, .columns = 32001, .bits = 8})
             .NativePixels(std::string(32001, 'x'), "OB"),
         kQvxBadArgument, 0, 0},
        {"the widest",
         ImageHeader({.rows = 1, .columns = 32000, .bits = 8})
             .NativePixels(std::string(32000, 'x'), "OB"),
         kQvxOK, 40, 11},
        {"beyond 16 bits",
         ImageHeader({.rows = 1, .columns = 65535, .bits = 8})
             .NativePixels(std::string(65535, 'x'), "OB"),
         kQvxBadArgument, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const CImporterPlusPtr importer = Importer(row.file);
        ASSERT_TRUE(importer);
        std::unique_ptr<zel_Offscreen> offscreen;
        std::uint32_t properties = 0;
        EXPECT_EQ(U_NewOffscreenForFrame(*importer, 1, &offscreen, nullptr, &properties),
                  row.status);
        EXPECT_EQ(properties, row.properties);
        ASSERT_EQ(offscreen != nullptr, row.status == kQvxOK);
        EXPECT_EQ(offscreen ? offscreen->GetGWorldPtr()->pixelFormat : 0, row.format);
    }
}

TEST_F(FrameOffscreens, leave_the_current_image_as_it_was)
{
    const CImporterPlusPtr importer = Importer(FramesOf2x2(3));
    ASSERT_TRUE(importer);
    ASSERT_EQ(importer->SetCurrentImage(2), kQvxOK);
    std::unique_ptr<zel_Offscreen> offscreen;
    const Rect empty{};
    EXPECT_EQ(U_NewOffscreenForFrame(*importer, 3, &offscreen, nullptr, nullptr), kQvxOK);
    EXPECT_EQ(U_NewOffscreenForFrame(*importer, 3, &offscreen, &empty, nullptr), kQvxBadArgument);
    EXPECT_EQ(U_NewOffscreenForFrame(*importer, 4, &offscreen, nullptr, nullptr), kQvxBadArgument);
    EXPECT_EQ(offscreen, nullptr);
    std::int32_t current = 0;
    EXPECT_EQ(importer->GetCurrentImage(&current), kQvxOK);
    EXPECT_EQ(current, 2);
}

TEST_F(FrameOffscreens, get_the_pixels_and_the_codec_their_meaning)
{
    const auto file = ImageHeader({.rows = 1, .columns = 3, .stored = 12})
                          .Element(0x0028, 0x1052, "DS", "-1024")
                          .NativePixels({0x0102, 0x0FFF, 0});
    const CImporterPlusPtr importer = Importer(file);
    ASSERT_TRUE(importer);
    std::unique_ptr<zel_Offscreen> offscreen;
    ASSERT_EQ(U_NewOffscreenForFrame(*importer, 1, &offscreen, nullptr, nullptr), kQvxOK);
    DicomCodec codec;
    ASSERT_EQ(importer->DecompressOnOffscreen(*offscreen, nullptr, kQualityFrame, 0, &codec),
              kQvxOK);
    const std::uint8_t* row = offscreen->GetGWorldPtr()->baseAddr;
    EXPECT_EQ(LoadBE<std::uint16_t>(row), 0x0102);
    EXPECT_EQ(LoadBE<std::uint16_t>(row + 2), 0x0FFF);
    std::int32_t minimum = -1, maximum = -1;
    EXPECT_EQ(codec.GetPixelRange(&minimum, &maximum), kQvxOK);
    EXPECT_EQ(minimum, 0);
    EXPECT_EQ(maximum, 0x0FFF);
    QvxPixelInfo info;
    EXPECT_EQ(codec.GetPixelInfo(&info), kQvxOK);
    EXPECT_EQ(info.fPixelShift, -1024);
    std::vector<std::byte> stored;
    EXPECT_EQ(importer->GetCompressedData(&stored), kQvxOK);
    EXPECT_EQ(stored, AsByteVector(Hex("0201 FF0F 0000")));
}

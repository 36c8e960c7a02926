// Offscreens: what they keep of their making, tables saved and put back, inversion, single pixels.
#include "pixels/COffscreenUtils.h"
#include "pixels/OffscreenFactory.h"
#include "pixels/Pictures.h"
#include "pixels/PortDescription.h"
#include "pixels/PortTables.h"

namespace {

constexpr std::uint32_t kGray16 = kPixelFormatGray16;

std::unique_ptr<zel_Offscreen> Offscreen(std::uint32_t format, int width, int height)
{
    std::unique_ptr<zel_Offscreen> offscreen;
    EXPECT_EQ(zel_OffscreenFactory::NewCOffscreen(format, width, height, false, &offscreen),
              kQvxOK);
    return offscreen;
}

ImageDescription DicomGray16()
{
    ImageDescription description;
    description.fCodecType = FourCC("DICM");
    description.fDepth = 16;
    description.fHorzResolution = 90 << 16;
    description.fExtensions.push_back({FourCC("cspc"), {'b', '1', '6', 'g'}});
    return description;
}

}  // namespace

TEST(Offscreen, keeps_24_bits_and_colour_spaces_only_on_the_newer_road)
{
    std::unique_ptr<COffscreen> classic;
    ASSERT_EQ(COffscreenFactory::NewCOffscreen(24, 5, 5, false, &classic), kQvxOK);
    EXPECT_EQ(classic->GetGWorldPtr()->pixelSize, 32);
    EXPECT_EQ(Offscreen(24, 5, 5)->GetGWorldPtr()->pixelSize, 24);
    EXPECT_EQ(Offscreen(40, 5, 5)->GetColorSpace(), 0u);
    EXPECT_EQ(Offscreen(kGray16, 5, 5)->GetColorSpace(), kGray16);

    std::unique_ptr<CQTOffscreen> frame;
    ASSERT_EQ(COffscreenFactory::NewCOffscreen(DicomGray16(), 5, 4, true, &frame), kQvxOK);
    EXPECT_EQ(frame->GetColorSpace(), kGray16);
    EXPECT_EQ(frame->GetGWorldPtr()->pixelFormat, kGray16);
    EXPECT_EQ(frame->GetGWorldPtr()->horzResolution, 90 << 16);
    ImageDescription made, original;
    ASSERT_EQ(frame->GetMadeImageDesc(&made), kQvxOK);
    ASSERT_EQ(frame->GetOrigImageDesc(&original), kQvxOK);
    EXPECT_EQ(original.fCodecType, FourCC("DICM"));
    EXPECT_EQ(made.fCodecType, FourCC("raw "));
    EXPECT_EQ(GetPixelFormatFromImageDescription(made), kGray16);
}

TEST(Offscreen, is_empty_after_a_failed_create_and_null_from_a_failed_factory)
{
    auto offscreen = Offscreen(kGray16, 5, 5);
    EXPECT_EQ(offscreen->Create(40, 0, 5, false), kQvxBadArgument);
    EXPECT_EQ(offscreen->GetGWorldPtr(), nullptr);
    EXPECT_EQ(offscreen->GetColorSpace(), 0u);
    ImageDescription description;
    EXPECT_EQ(offscreen->GetOrigImageDesc(&description), kQvxBadArgument);
    EXPECT_EQ(offscreen->FillWithColor(kColorBlack), kQvxBadArgument);
    EXPECT_EQ(offscreen->Invert(), kQvxBadArgument);
    EXPECT_EQ(zel_OffscreenFactory::NewCOffscreen(40, 40000, 5, false, &offscreen),
              kQvxBadArgument);
    EXPECT_EQ(offscreen, nullptr);
}

TEST(Offscreen, is_made_again_from_its_own_description)
{
    const auto offscreen = Offscreen(8, 6, 4);
    offscreen->GetGWorldPtr()->baseAddr[2] = 77;
    ASSERT_EQ(EnforceColorTable(offscreen->GetGWorldPtr(), *SystemColorTable(40)), kQvxOK);
    std::unique_ptr<CQTOffscreen> clone;
    const Rect part = RectOf(0, 2, 3, 5);
    ASSERT_EQ(offscreen->Clone(&part, false, &clone), kQvxOK);
    EXPECT_EQ(clone->Width(), 3);
    EXPECT_EQ(clone->Height(), 3);
    EXPECT_EQ(BitsAt(*clone->GetGWorldPtr(), 0, 0), 77u);  // though its table is new
    EXPECT_EQ(GetPixelFormatOfGWorld(*clone->GetGWorldPtr()), 40u);
    const Rect beyond = RectOf(0, 2, 5, 5);
    EXPECT_EQ(offscreen->Clone(&beyond, false, &clone), kQvxBadArgument);
    ASSERT_EQ(offscreen->CloneSize(9, 2, false, &clone), kQvxOK);
    EXPECT_EQ(clone->Width(), 9);
    EXPECT_EQ(GetPixelFormatOfGWorld(*clone->GetGWorldPtr()), 8u);
}

TEST(Offscreen, puts_back_the_table_it_saved)
{
    const auto gray = Offscreen(40, 4, 4), colour = Offscreen(32, 4, 4);
    ASSERT_EQ(gray->RestoreColorTable(), kQvxOK);  // nothing saved, nothing done
    ASSERT_EQ(gray->SaveColorTable(), kQvxOK);
    ASSERT_EQ(gray->Invert(), kQvxOK);
    EXPECT_EQ(gray->GetGWorldPtr()->colorTable.fEntries[0].red, 0);
    EXPECT_NE(gray->GetGWorldPtr()->colorTable.fSeed, 40u);
    EXPECT_EQ(BitsAt(*gray->GetGWorldPtr(), 0, 0), 0u);  // pixels stay
    ASSERT_EQ(gray->RestoreColorTable(), kQvxOK);
    EXPECT_EQ(gray->GetGWorldPtr()->colorTable.fEntries[0].red, 0xFFFF);
    EXPECT_EQ(gray->GetGWorldPtr()->colorTable.fSeed, 40u);
    EXPECT_EQ(colour->SaveColorTable(), kQvxOK);
    EXPECT_EQ(colour->RestoreColorTable(), kQvxOK);
}

TEST(Offscreen, inverts_a_rectangle_of_pixels_but_not_alpha)
{
    struct Row {
        std::uint32_t format, turned;
    };
    const Row rows[] = {{1, 1}, {16, 0}, {24, 0}, {32, 0xFF000000}, {kGray16, 0}};
    const Rect part = RectOf(1, 1, 2, 3);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.format);
        const auto offscreen = Offscreen(row.format, 5, 3);
        const std::uint32_t white = BitsAt(*offscreen->GetGWorldPtr(), 0, 0);
        ASSERT_EQ(offscreen->Invert(&part), kQvxOK);
        EXPECT_EQ(BitsAt(*offscreen->GetGWorldPtr(), 1, 2), row.turned);
        EXPECT_EQ(BitsAt(*offscreen->GetGWorldPtr(), 1, 3), white);
        EXPECT_EQ(BitsAt(*offscreen->GetGWorldPtr(), 2, 1), white);
    }
}

TEST(U_GetOffscreenPixelValue, reads_what_callers_scale_themselves)
{
    const auto gray8 = Offscreen(40, 4, 3), gray16 = Offscreen(kGray16, 4, 3);
    const auto colour = Offscreen(32, 4, 3), packed = Offscreen(36, 4, 3);
    std::uint8_t* word = RowAddress(*gray16->GetGWorldPtr(), 2) + 2;
    word[0] = 0x12;
    word[1] = 0x34;
    ASSERT_EQ(colour->FillWithColor({0x0101, 0x0202, 0x0303}), kQvxOK);
    struct Row {
        const char* fault;
        const COffscreen* offscreen;
        int h, v;
        bool gray;
        RGBColor color;
    };
    const Row rows[] = {
        {"8-bit gray is stored turned over", gray8.get(), 0, 0, true, {255, 255, 255}},
        {"the word is big-endian", gray16.get(), 1, 2, true, {0x1234, 0x1234, 0x1234}},
        {"alpha is no colour", colour.get(), 3, 2, false, {0x0101, 0x0202, 0x0303}},
        {"right edge is outside", gray8.get(), 4, 0, true, kColorWhite},
        {"bottom edge is outside", colour.get(), 0, 3, false, kColorWhite},
        {"left of it", gray16.get(), -1, 0, true, kColorWhite},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        RGBColor color;
        EXPECT_EQ(U_GetOffscreenPixelValue(*row.offscreen, row.h, row.v, row.gray, &color), kQvxOK);
        EXPECT_EQ(color, row.color);
    }
    RGBColor color;
    EXPECT_EQ(U_GetOffscreenPixelValue(*packed, 3, 2, true, &color), kQvxBadArgument);
    EXPECT_EQ(U_GetOffscreenPixelValue(*gray8, 3, 2, false, &color), kQvxBadArgument);
}

TEST(NewOffscreen4Rot90, exchanges_the_sides_and_keeps_the_format)
{
    std::unique_ptr<zel_Offscreen> turned;
    for (const std::uint32_t format : {8u, 24u, 32u, 40u, kGray16}) {
        ASSERT_EQ(NewOffscreen4Rot90(*Offscreen(format, 10, 20), &turned), kQvxOK);
        EXPECT_EQ(turned->GetGWorldPtr()->bounds, RectOf(0, 0, 10, 20));
        EXPECT_EQ(turned->GetGWorldPtr()->pixelFormat, format);
        ImageDescription description;
        ASSERT_EQ(turned->GetOrigImageDesc(&description), kQvxOK);
        EXPECT_EQ(description.fWidth, 20);
    }
    ASSERT_EQ(NewOffscreen4Rot90(*turned, &turned), kQvxOK);  // the owner of what it reads
    EXPECT_EQ(turned->Width(), 10);
    EXPECT_EQ(NewOffscreen4Rot90(COffscreen(), &turned), kQvxBadArgument);
    EXPECT_EQ(turned, nullptr);
}

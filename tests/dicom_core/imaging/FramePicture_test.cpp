// Pictures of real files, by the formula of their windows.
#include "dicom_core/imaging/FramePicture.h"

#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

namespace {

using Colors = std::vector<std::uint32_t>;  // 0xAARRGGBB

class Pictures : public ::testing::Test {
protected:
    std::unique_ptr<FramePicture> Open(const DicomBuilder& file, QvxStatus expected = kQvxOK)
    {
        std::unique_ptr<FramePicture> picture;
        fWhy.clear();
        const std::string path = fFolder.WriteFile("a.dcm", file.Bytes());
        EXPECT_EQ(FramePicture::Open(path, &picture, &fWhy), expected) << fWhy;
        return picture;
    }
    static Colors Render(FramePicture& picture)
    {
        Colors colors;
        const int rowBytes = picture.Width() * 4 + 12;
        std::vector<std::uint8_t> pixels(static_cast<std::size_t>(rowBytes * picture.Height()), 7);
        PixMap map;
        map.baseAddr = pixels.data();
        map.rowBytes = rowBytes;
        map.bounds = {0, 0, static_cast<std::int16_t>(picture.Height()),
                      static_cast<std::int16_t>(picture.Width())};
        map.pixelFormat = kPixelFormatARGB32;
        map.pixelSize = 32;
        EXPECT_EQ(picture.Render(map), kQvxOK);
        for (int v = 0; v < picture.Height(); ++v)
            for (int h = 0; h < picture.Width(); ++h) {
                const std::uint8_t* p = pixels.data() + v * rowBytes + h * 4;
                colors.push_back(
                    static_cast<std::uint32_t>(p[0] << 24 | p[1] << 16 | p[2] << 8 | p[3]));
            }
        return colors;
    }
    TempFolder fFolder;
    std::string fWhy;
};

std::uint32_t Gray(int value) { return 0xFF000000 | static_cast<std::uint32_t>(value) * 0x010101; }

DicomBuilder Base() { return DicomBuilder().Meta(kUidExplicitLittle).CommonHeader("CT"); }

// Values whose Hounsfield numbers are 1024 less, with the soft tissue window.
DicomBuilder CT(const std::vector<int>& values, int frames = 0)
{
    const auto columns = static_cast<std::uint16_t>(
        values.size() / (frames ? static_cast<std::size_t>(frames) : 1U));
    return Base()
        .Image({.rows = 1, .columns = columns, .frames = frames, .stored = 12})
        .Element(0x0028, 0x1050, "DS", "40")
        .Element(0x0028, 0x1051, "DS", "400")
        .Element(0x0028, 0x1052, "DS", "-1024")
        .Element(0x0028, 0x1053, "DS", "1")
        .NativePixels(values);
}

// The window's formula: rounded half up between its first and last value.
int Windowed(double user, double level, double width)
{
    const double lo = level - std::floor(width / 2), n = width - 1;
    return static_cast<int>(std::floor(std::min(std::max((user - lo) / n, 0.0), 1.0) * 255 + 0.5));
}

}  // namespace

TEST_F(Pictures, a_ct_slice_shows_its_own_window)
{
    const int units[] = {-1024, -161, -160, -159, 0, 40, 100, 238, 239, 240, 3000};
    std::vector<int> stored;
    Colors expected;
    for (const int hu : units) {
        stored.push_back(hu + 1024);
        expected.push_back(Gray(Windowed(hu, 40, 400)));
    }
    const auto picture = Open(CT(stored));
    ASSERT_TRUE(picture);
    EXPECT_TRUE(picture->IsGray());
    ASSERT_EQ(picture->LoadFrame(1), kQvxOK);
    EXPECT_EQ(picture->Transform().voiWidth, 400);
    EXPECT_EQ(picture->Transform().voiLevel, 40);
    EXPECT_EQ(Render(*picture), expected);

    picture->Transform().invert = true;
    for (std::uint32_t& color : expected)
        color ^= 0x00FFFFFF;
    EXPECT_EQ(Render(*picture), expected);
}

TEST_F(Pictures, a_window_of_the_user_stays_while_paging)
{
    const auto picture = Open(CT({1024, 1064, 1024, 2024}, 2));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->FrameCount(), 2);
    ASSERT_EQ(picture->LoadFrame(1), kQvxOK);
    picture->Transform().RecordVOI(100, 0);
    ASSERT_EQ(picture->LoadFrame(2), kQvxOK);
    EXPECT_EQ(picture->Transform().voiWidth, 100);
    EXPECT_EQ(Render(*picture), (Colors{Gray(Windowed(0, 0, 100)), Gray(255)}));
    EXPECT_EQ(picture->LoadFrame(3), kQvxBadArgument);
    picture->Transform().ResetColors();
    EXPECT_EQ(picture->Transform().voiWidth, 400);
}

TEST_F(Pictures, without_a_window_the_full_range_shows)
{
    const auto picture = Open(Base()
                                  .Image({.rows = 1, .columns = 3, .signedness = 1, .frames = 2})
                                  .NativePixels({-100, 0, 155, -200, 0, 311}));
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->LoadFrame(1), kQvxOK);
    EXPECT_EQ(picture->Transform().voiWidth, 256);
    const Colors colors = Render(*picture);
    EXPECT_EQ(colors[0], Gray(0));
    EXPECT_NEAR(int(colors[1] & 0xFF), 100, 1);
    EXPECT_EQ(colors[2], Gray(255));
    ASSERT_EQ(picture->LoadFrame(2), kQvxOK);
    EXPECT_EQ(picture->Transform().voiWidth, 512) << "an untouched window follows the frame";
}

TEST_F(Pictures, an_idle_picture_holds_no_descriptor)
{
    const auto count = [] {
        const std::filesystem::directory_iterator open("/proc/self/fd");
        return std::distance(begin(open), end(open));
    };
    const auto before = count();
    const auto picture = Open(CT({1024, 1064, 1024, 2024}, 2));
    ASSERT_TRUE(picture);
    EXPECT_EQ(count(), before);
    ASSERT_EQ(picture->LoadFrame(2), kQvxOK);
    EXPECT_EQ(count(), before);
}

TEST_F(Pictures, monochrome_1_runs_the_other_way)
{
    const auto file = Base()
                          .Element(0x0028, 0x0002, "US", 1)
                          .Element(0x0028, 0x0004, "CS", "MONOCHROME1")
                          .Element(0x0028, 0x0010, "US", 1)
                          .Element(0x0028, 0x0011, "US", 3)
                          .Element(0x0028, 0x0100, "US", 16)
                          .Element(0x0028, 0x0101, "US", 12)
                          .Element(0x0028, 0x0102, "US", 11)
                          .Element(0x0028, 0x0103, "US", 0)
                          .Element(0x0028, 0x1050, "DS", "2048")
                          .Element(0x0028, 0x1051, "DS", "4096")
                          .NativePixels({0, 2048, 4095});
    const auto picture = Open(file);
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->LoadFrame(1), kQvxOK);
    const Colors colors = Render(*picture);
    EXPECT_EQ(colors[0], Gray(255));
    EXPECT_NEAR(int(colors[1] & 0xFF), 127, 1);
    EXPECT_EQ(colors[2], Gray(0));
}

TEST_F(Pictures, eight_bits_and_colour_are_exact)
{
    std::string ramp(256, '\0');
    for (std::size_t i = 0; i < ramp.size(); ++i)
        ramp[i] = static_cast<char>(i);
    const auto gray =
        Open(Base().Image({.rows = 16, .columns = 16, .bits = 8}).NativePixels(ramp, "OB"));
    ASSERT_TRUE(gray);
    ASSERT_EQ(gray->LoadFrame(1), kQvxOK);
    const Colors shown = Render(*gray);
    for (std::size_t i = 0; i < ramp.size(); ++i)
        EXPECT_EQ(shown[i], Gray(static_cast<int>(i)));

    const auto color = Open(Base()
                                .Image({.rows = 1, .columns = 2, .bits = 8, .samples = 3})
                                .NativePixels(Hex("010203 FF8000"), "OB"));
    ASSERT_TRUE(color);
    EXPECT_FALSE(color->IsGray());
    ASSERT_EQ(color->LoadFrame(1), kQvxOK);
    EXPECT_EQ(Render(*color), (Colors{0xFF010203, 0xFFFF8000}));
    color->Transform().invert = true;
    EXPECT_EQ(Render(*color), (Colors{0xFFFEFDFC, 0xFF007FFF}));
}

TEST_F(Pictures, what_can_t_be_shown_says_why)
{
    struct Row {
        const char* fault;
        DicomBuilder file;
        QvxStatus open;
        const char* why;
        QvxStatus load;
    };
    const DicomImage image{.rows = 4, .columns = 4};
    const Row rows[] = {
        {"a report", Base(), kQvxNoSuchElement, "no image in it", kQvxOK},
        {"no pixels", Base().Image(image), kQvxOK, "", kQvxNoSuchElement},
        {"no decoder",
         DicomBuilder()
             .Meta("1.2.840.10008.1.2.4.100")
             .CommonHeader("US")
             .Image(image)
             .Encapsulated({{"x"}}),
         kQvxOK, "", kQvxUnsupported},
        {"no DICOM", DicomBuilder().Append("plain text " + std::string(300, 'x')), kQvxNotOfKind,
         "not a DICOM file", kQvxOK},
        {"nothing at all", DicomBuilder(), kQvxNotOfKind, "the file is empty", kQvxOK},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        const auto picture = Open(row.file, row.open);
        EXPECT_EQ(fWhy, row.why);
        ASSERT_EQ(picture != nullptr, row.open == kQvxOK);
        EXPECT_EQ(picture ? picture->LoadFrame(1) : kQvxOK, row.load);
    }
    std::unique_ptr<FramePicture> picture;
    EXPECT_EQ(FramePicture::Open(fFolder.Path(), &picture, &fWhy), kQvxNotOfKind);
    EXPECT_EQ(fWhy, "a folder, not a file");
}

// JPEG XL frames, through the module that decodes them.
#include "QvxToolkit/JXLMaker.h"
#include "QvxToolkit/ToolkitFixture.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr std::string_view kJXLLossless = "1.2.840.10008.1.2.4.110",
                           kJXL = "1.2.840.10008.1.2.4.112";

// A file that promises `picture` and holds `stream`.
ToolkitFile FileOf(const StreamPicture& picture, std::string_view uid, const std::string& stream)
{
    ImageHead head;
    head.rows = static_cast<std::uint16_t>(picture.rows);
    head.columns = static_cast<std::uint16_t>(picture.columns);
    head.samples = static_cast<std::uint16_t>(picture.samples);
    head.allocated = picture.bits > 8 ? 16 : 8;
    head.stored = static_cast<std::uint16_t>(picture.bits);
    head.highBit = static_cast<std::uint16_t>(picture.bits - 1);
    head.photometric = picture.samples == 3 ? "RGB" : "MONOCHROME2";
    return ToolkitFile(ImageFile(head, uid).Encapsulated({{stream}}));
}

}  // namespace

TEST(JPEGXL, lossless_ones_give_every_sample_back)
{
    for (const int bits : {6, 8, 10, 12, 16})
        for (const int samples : {1, 3})
            for (const bool boxed : {false, true}) {
                SCOPED_TRACE(std::to_string(bits) + " bits, " + std::to_string(samples) +
                             (boxed ? " samples, boxed" : " samples"));
                const auto picture = MakePicture(21, 30, samples, bits);
                ToolkitFile file = FileOf(picture, kJXLLossless, JPEGXL(picture, false, boxed));
                EXPECT_EQ(file.Values(),
                          std::vector<double>(picture.values.begin(), picture.values.end()))
                    << file.why;
                EXPECT_FALSE(file.frame.fCutShort);
            }
}

TEST(JPEGXL, lossy_ones_come_near_in_the_right_colours)
{
    StreamPicture color{40, 40, 3, 8, false, {}};
    for (int i = 0; i < 40 * 40; ++i)
        color.values.insert(color.values.end(), {200, 60 + i / 40, 20});
    ToolkitFile file = FileOf(color, kJXL, JPEGXL(color, true));
    const auto got = file.Values();
    ASSERT_EQ(got.size(), color.values.size()) << file.why;
    for (std::size_t i = 0; i < got.size(); ++i)
        ASSERT_NEAR(got[i], color.values[i], 20) << "sample " << i;
}

TEST(JPEGXL, cut_and_hostile_ones)
{
    const auto gray = MakePicture(300, 300, 1, 8), square = MakePicture(16, 16, 1, 8);
    const auto large = MakePicture(900, 900, 1, 8), color = MakePicture(16, 16, 3, 8);
    const auto deep = MakePicture(16, 16, 1, 12);
    const std::string whole = JPEGXL(gray);
    struct Row {
        const char* fault;
        const StreamPicture& picture;
        std::string stream;
        QvxStatus status;
        const char* reason;
    };
    const Row rows[] = {
        {"cut at three quarters", gray, whole.substr(0, whole.size() * 3 / 4), kQvxOK, ""},
        {"cut within the header", gray, whole.substr(0, 5), kQvxMalformed, ""},
        {"another size", square, whole, kQvxMalformed, "size"},
        {"colour under a gray header", square, JPEGXL(color), kQvxMalformed, "samples"},
        {"more bits than the cells have", square, JPEGXL(deep), kQvxMalformed, "bits"},
        {"a layer far larger than its image", square, JPEGXL(large, false, false, 900),
         kQvxMalformed, "layers"},
        {"noise behind the mark", square, "\xFF\x0A" + std::string(40, '\x5A'), kQvxMalformed, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file = FileOf(row.picture, kJXLLossless, row.stream);
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        const auto got = file.Values();
        EXPECT_EQ(file.status, row.status) << file.why;
        EXPECT_NE(file.why.find(row.reason), std::string::npos) << file.why;
        if (row.status == kQvxOK) {
            EXPECT_TRUE(file.frame.fCutShort);
            EXPECT_TRUE(std::ranges::any_of(got, [](double value) { return value != 0; }));
        }
    }
}

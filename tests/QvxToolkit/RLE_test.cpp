// Run-length encoded frames: every arrangement of planes, sizes around the strips that they are
// read in, and segments that are too short or too long.
#include "util/ByteOrder.h"

#include "QvxToolkit/QvxStreamDecoders.h"
#include "QvxToolkit/StreamMaker.h"
#include <gtest/gtest.h>

namespace {

struct Decoded {
    Decoded(const StreamPicture& picture, std::uint32_t allocated, const std::string& stream)
    {
        QvxFrameRecord record;
        record.fRows = static_cast<std::uint32_t>(picture.rows);
        record.fColumns = static_cast<std::uint32_t>(picture.columns);
        record.fSamples = static_cast<std::uint32_t>(picture.samples);
        record.fBitsAllocated = record.fBitsStored = allocated;
        record.fHighBit = allocated - 1;
        record.fPhotometric =
            picture.samples == 1 ? QvxPhotometric::Monochrome2 : QvxPhotometric::RGB;
        record.fEncapsulated = true;
        QvxStream bytes;
        bytes.fBytes.assign(stream.begin(), stream.end());
        frame.fBytes.assign(100000, 0xEE);  // a block that was used before
        status = QvxDecodeRLE(record, bytes, &frame, &why);
        if (status != kQvxOK)
            return;
        VisitSamples(frame, [this](auto samples) {
            for (std::size_t i = 0; i < samples.fCount; ++i)
                values.push_back(static_cast<std::int32_t>(samples[i]));
        });
    }
    DecodedFrame frame;
    std::vector<std::int32_t> values;
    QvxStatus status;
    std::string why;
};

}  // namespace

TEST(RLE, every_arrangement_of_planes_comes_back)
{
    const std::pair<int, int> sizes[] = {{1, 1}, {1, 127}, {3, 43}, {64, 64}, {64, 65}, {97, 131}};
    for (const auto& [rows, columns] : sizes) {
        for (const int samples : {1, 3}) {
            for (const int bytes : {1, 2, 3, 4}) {
                SCOPED_TRACE(testing::Message() << rows << " by " << columns << ", " << samples
                                                << " samples of " << bytes << " bytes");
                StreamPicture picture = MakePicture(rows, columns, samples, bytes == 1 ? 8 : 16);
                for (auto& value : picture.values)
                    value = bytes > 2 ? value * 97 : value;
                const Decoded got(picture, static_cast<std::uint32_t>(8 * bytes),
                                  RLE(picture, bytes));
                ASSERT_EQ(got.status, kQvxOK) << got.why;
                EXPECT_EQ(got.values, picture.values);
                EXPECT_FALSE(got.frame.fCutShort);
            }
        }
    }
}

TEST(RLE, single_bits_begin_at_the_lowest)
{
    std::string stream(64, '\0');
    stream[0] = 1;
    stream[4] = 64;
    stream += std::string("\x01\x05\x80", 3);  // two bytes of literals
    const Decoded got({2, 6, 1, 1, false, {}}, 1, stream + '\0');
    ASSERT_EQ(got.status, kQvxOK) << got.why;
    EXPECT_EQ(got.values, (std::vector<std::int32_t>{1, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(RLE, what_a_segment_lacks_is_0_and_what_it_has_too_much_is_left)
{
    const StreamPicture picture = MakePicture(40, 50, 1, 16);
    const std::string whole = RLE(picture, 2);
    const auto second =
        LoadLE<std::uint32_t>(reinterpret_cast<const std::uint8_t*>(whole.data()) + 8);
    // The high bytes whole, none of the low ones; then runs beyond the end of the last plane.
    const Decoded high(picture, 16, whole.substr(0, second));
    ASSERT_EQ(high.status, kQvxOK) << high.why;
    EXPECT_TRUE(high.frame.fCutShort);
    for (std::size_t i = 0; i < picture.values.size(); ++i)
        ASSERT_EQ(high.values[i], picture.values[i] & 0xFF00) << i;
    std::string more = whole;
    for (int i = 0; i < 100; ++i)
        more += "\x81\x77";
    const Decoded longer(picture, 16, more);
    EXPECT_EQ(longer.values, picture.values);
    EXPECT_FALSE(longer.frame.fCutShort);
    // Every cut of a single plane: what there is, then 0.
    const StreamPicture bytes = MakePicture(7, 60, 1, 8);
    const std::string plane = RLE(bytes, 1);
    for (std::size_t size = 64 + 8; size < plane.size() - 1; ++size) {
        const Decoded got(bytes, 8, plane.substr(0, size));
        ASSERT_EQ(got.status, kQvxOK) << size << ": " << got.why;
        std::size_t right = 0;
        while (right < got.values.size() && got.values[right] == bytes.values[right])
            ++right;
        for (; right < got.values.size(); ++right)
            ASSERT_EQ(got.values[right], 0) << size;
    }
}

// The record beside a buffered frame: its stated bytes, and what may be missing behind them.
#include "dicom_core/look/zelDPIFRecord.h"

#include <cstring>
#include <gtest/gtest.h>

TEST(DPIFRecord, fields_in_their_order_and_the_scale_behind_them)
{
    const zelDPIFRecord record{{kPhotometricStraight, 2, 3, kPixelFormatGray16, -5, 0.25, 7.5},
                               6,
                               7,
                               8,
                               9,
                               {10, -12, 11, 13}};
    const zelDPIFBytes bytes = PackDPIFRecord(record);
    std::array<std::int32_t, 13> longs{};
    std::memcpy(longs.data(), bytes.data(), sizeof longs);
    // Limits stand as minimum and maximum width, then minimum and maximum level.
    EXPECT_EQ(longs,
              (std::array<std::int32_t, 13>{1, 2, 3, 0x62313667, -5, 6, 7, 8, 9, 10, 11, -12, 13}));
    zelDPIFRecord back;
    ASSERT_EQ(UnpackDPIFRecord(bytes, &back), kQvxOK);
    EXPECT_EQ(back, record);

    const std::span<const std::byte> all(bytes);
    for (const std::size_t size : {std::size_t{52}, std::size_t{60}}) {
        ASSERT_EQ(UnpackDPIFRecord(all.first(size), &back), kQvxOK);
        EXPECT_TRUE(back.voiInfo.IsPlain()) << "a scale that is cut off is none: " << size;
    }
    EXPECT_EQ(UnpackDPIFRecord(all.first(51), &back), kQvxBadArgument);
    zelDPIFRecord unset = record;
    unset.voiInfo.pixelFormat = 0;
    EXPECT_EQ(UnpackDPIFRecord(PackDPIFRecord(unset), &back), kQvxBadArgument);
}

// Display values to user values and back.
#include "Qvx2VOIBlitter/VOIValues.h"

#include "Qvx2VOIBlitter/VOIBlitter.h"
#include <gtest/gtest.h>
#include <limits>

TEST(VOIValues, user_levels_truncate_toward_zero_after_the_subtraction)
{
    struct Row {
        const char* fault;
        QvxPixelScale scale;
        float user;
        std::int32_t display;
    };
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    const Row rows[] = {
        {"straight", {1, 0, -1024}, 40.9F, 1064},
        {"below zero toward zero, before the shift", {1, 0, -1024}, -40.9F, 984},
        {"any number but 0 is straight", {7, 0, 10}, 12, 2},
        {"inverted", {0, 4095, 0}, 0.5F, 4094},
        {"inverted past the range", {0, 100, 0}, 100.5F, 0},
        {"the difference is one of single precision", {0, 16777216, 0}, 0.4F, 16777216},
        {"the shift is subtracted on both ways", {0, 4095, 100}, 95, 3900},
        {"beyond 32 bits", {1, 0, 0}, 1e30F, INT32_MAX},
        {"the shift's overflow", {1, 0, -2}, 2147483520.0F, INT32_MAX - 125},
        {"the shift's overflow, pinned", {1, 0, -200}, 2147483520.0F, INT32_MAX},
        {"not a number", {1, 0, 5}, kNan, -5},
    };
    for (const Row& row : rows) {
        float user = row.user;
        std::int32_t display = 0;
        EXPECT_EQ(
            ConvertBetweenUserAndDisplayValues(QvxVOIDirection::UserToDisplay, kPixelFormatGray16,
                                               row.scale, &display, &user),
            kQvxOK);
        EXPECT_EQ(display, row.display) << row.fault;
    }
}

TEST(VOIValues, inverted_readers_and_levels_differ_in_the_sign_of_the_shift)
{
    const QvxPixelScale inverted{0, 255, -10};
    std::int32_t display = 100;
    float user = 0;
    EXPECT_EQ(ConvertBetweenUserAndDisplayValues(QvxVOIDirection::DisplayToUser, kPixelFormatGray8,
                                                 inverted, &display, &user),
              kQvxOK);
    EXPECT_EQ(user, 165);
    EXPECT_EQ(Gray16ToDicomPixelValue(100, 0, 255, -10), 145);
    EXPECT_EQ(Gray8ToDicomPixelValue(100, 0, 255, -10), 145);
    EXPECT_EQ(Gray16ToDicomPixelValue(100, 0, 50, 5), 0xFFCE + 5) << "cut to the pixel's size";
    EXPECT_EQ(Gray8ToDicomPixelValue(100, 1, 50, 5), 105);
}

TEST(VOIValues, refuses_other_directions_and_inverted_colour)
{
    const VOIBlitter blit;
    const QvxPixelScale inverted{0, 255, 0}, straight{1, 0, 0};
    std::int32_t display = 77;
    float user = 5;
    const auto convert = [&](const VOIBlitter* by, int way, auto format, const auto& scale) {
        return Qvx2_VOIBlit_ConvertBetweenUserAndDisplayValues(
            by, static_cast<QvxVOIDirection>(way), format, scale, &display, &user);
    };
    EXPECT_EQ(convert(&blit, 0, kPixelFormatARGB32, inverted), kQvxMalformed);
    EXPECT_EQ(convert(&blit, 2, kPixelFormatGray8, straight), kQvxBadArgument);
    EXPECT_EQ(convert(nullptr, 0, kPixelFormatGray8, straight), kQvxBadArgument);
    EXPECT_EQ(display, 77);
    EXPECT_EQ(convert(&blit, 0, kPixelFormatARGB32, straight), kQvxOK);
    EXPECT_EQ(convert(&blit, 0, kPixelFormatMixed32, inverted), kQvxOK);
    EXPECT_EQ(display, 250);
}

// Which length a ruler shows, its strokes, and the bars as painted.
#include "dicom_core/annotations/AnnotationFixtures.h"
#include "dicom_core/annotations/AnnotationText.h"
#include "dicom_core/annotations/RulerAnnotation.h"
#include "dicom_core/annotations/RulerScale.h"
#include "dicom_core/annotations/RulerTicks.h"

#include <algorithm>
#include <cmath>

TEST(Ruler, shows_the_greatest_round_length)
{
    struct Row {
        double d;
        std::int16_t n;
        const char *plain, *minor;  // as the labels say
        std::int16_t plainPixels, minorPixels;
    };
    const Row rows[] = {
        {250, 250, "100 cm", "1 m", 10, 100},
        {100, 250, "100 cm", "1 m", 25, 250},
        {99.9, 333, "50 cm", "50 cm", 33, 33},
        {50, 251, "50 cm", "50 cm", 50, 50},
        {20, 101, "20 cm", "20 cm", 50, 50},
        {10, 100, "10 cm", "10 cm", 10, 100},
        {9.99, 200, "5 cm", "5 cm", 20, 20},
        {5, 200, "5 cm", "5 cm", 40, 40},
        {3, 90, "2 cm", "2 cm", 30, 30},
        {2, 90, "2 cm", "2 cm", 45, 45},
        {1.5, 90, "1 cm", "1 cm", 60, 60},
        {0.5, 100, "5 mm", "5 mm", 20, 20},
        {0.2, 100, "2 mm", "2 mm", 50, 50},
        {0.1, 100, "1000 micros", "1 mm", 10, 100},
        {0.099, 100, "", "", 0, 0},
        {std::nan(""), 100, "", "", 0, 0},
        {10, 25, "10 cm", "10 cm", 2, 25},  // 2.5 is rounded down
        {10, 26, "10 cm", "10 cm", 3, 26},  // 2.6
        {1.0 / 0.0, 100, "100 cm", "1 m", 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.d);
        for (const bool minor : {false, true}) {
            auto unit = RulerUnitType::Metre;
            std::int16_t count = 77;
            EXPECT_EQ(CalculateMajorScaleTicks(row.d, row.n, &unit, &count, minor),
                      minor ? row.minorPixels : row.plainPixels);
            EXPECT_EQ(RulerLabel(unit, count).toStdString(), minor ? row.minor : row.plain);
        }
    }
}

TEST(Ruler, minor_ticks_stand_nine_pixels_apart)
{
    const std::pair<int, int> rows[] = {{90, 10}, {89, 5}, {45, 5}, {44, 2},
                                        {20, 2},  {18, 2}, {17, 0}, {0, 0}};
    for (const auto& [pixels, parts] : rows)
        EXPECT_EQ(CalculateMinorScaleTicks(static_cast<std::int16_t>(pixels)), parts) << pixels;
}

// The span agrees with the pixels of the counts, but for their rounding.
TEST(Ruler, span_is_that_of_the_label)
{
    for (const double d : {300.0, 70.0, 30.0, 12.0, 6.0, 1.2, 0.7, 0.3, 0.15})
        for (const bool minor : {false, true}) {
            RulerUnitType unit{};
            std::int16_t count = 0;
            const int pixels = CalculateMajorScaleTicks(d, 400, &unit, &count, minor);
            EXPECT_NEAR(RulerSpan(d, 400, unit, count), pixels * count, 0.5 * count) << d;
        }
    EXPECT_EQ(RulerSpan(0.05, 400, RulerUnitType::None, 0), 0);
}

TEST(Ruler, strokes_of_a_bar)
{
    struct Row {
        const char* fault;
        RulerBar bar;
        std::vector<double> major, minor;  // where ticks of each length stand
    };
    const Row rows[] = {
        {"one count has no tick inside", {100, 1, 6, 0, 0}, {0, 100}, {}},
        {"two counts", {100, 2, 6, 0, 0}, {0, 50, 100}, {}},
        {"five counts", {50, 5, 6, 0, 0}, {0, 10, 20, 30, 40, 50}, {}},
        {"any other count is a bar alone", {90, 3, 6, 2, 3}, {0, 90}, {}},
        {"no length", {0, 0, 6, 0, 0}, {0, 0}, {}},
        {"ticks past the middle move", {50, 1, 6, 5, 3}, {0, 50}, {0, 10, 20, 29, 39, 50}},
        {"each division", {80, 2, 6, 2, 3}, {0, 40, 80}, {0, 20, 40, 40, 60, 80}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        std::vector<double> major, minor;
        double end = 0;
        for (const QLineF& line : RulerBarLines(row.bar)) {
            if (line.y2() == 0)
                end = std::max(end, line.x2());
            else
                (line.y2() == 6 ? major : minor).push_back(line.x1());
        }
        std::ranges::sort(major);
        std::ranges::sort(minor);
        EXPECT_EQ(major, row.major);
        EXPECT_EQ(minor, row.minor);
        EXPECT_EQ(end, row.bar.length);
    }
}

namespace {

class RulerPainting : public PaintingTest {
protected:
    // Draws over a frame of 0.5 mm by `across` mm, and answers where the bars' ink lies: the lower
    // one in the lower left part, the right one in the upper right part.
    void Paint(std::int16_t width, std::int16_t height, const char* spacing, int rotation = 0,
               std::int32_t zoom = kZoomOne)
    {
        AnnotatedSequence made(
            {.elements = {{0x0028, 0x0030, "DS", spacing}, {0x0028, 0x0034, "IS", "1\\1"}}});
        made.Look().rotation = static_cast<std::int16_t>(rotation);
        made.Look().zoom = zoom;
        Paper paper(width, height);
        const AnnotatedFrame frame = made.Frame(1, {0, 0, height, width});
        RulerAnnotation ruler;
        ruler.fColor = {0xFFFF, 0xFFFF, 0};
        ruler.DrawSelf({}, {}, frame, paper.Painter());
        taken = RulerAnnotation::EdgesTakenBy(frame, paper.Painter());
        letter = CalculateTextBounds("W", paper.Painter(), GetAnnotationFontRef());
        painted = paper.Painted();
        bottom = right = QRectF();
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                if (paper.Image().pixel(x, y) == 0xFFFFFF00) {
                    const bool below = y >= height - taken.bottom - 1 && x < width * 0.7 + 1;
                    (below ? bottom : right) |= QRectF(x, y, 1, 1);
                }
    }
    AnnotationEdges taken;
    QRectF letter, painted, bottom, right;
};

}  // namespace

// 400 pixels of 0.5 mm: the span is 160 pixels of 8 cm, and shows 5 of them in 100 pixels.
TEST_F(RulerPainting, bars_are_as_long_as_they_say)
{
    Paint(400, 400, "0.5\\0.5");
    EXPECT_NEAR(bottom.width(), 101, 1);
    EXPECT_NEAR(bottom.center().x(), 200, 2);
    EXPECT_NEAR(bottom.height(), 7, 1);  // ticks run upward from the axis
    EXPECT_NEAR(400 - bottom.bottom(), 1.3 * letter.height() + 10 - 1, 1.5);
    EXPECT_LE(400 - bottom.top(), taken.bottom);
    EXPECT_NEAR(right.top(), 150, 2);
    EXPECT_NEAR(400 - right.left(), taken.right, 2);  // ticks run towards the image
    EXPECT_LE(painted.bottom(), 400);
}

TEST_F(RulerPainting, follows_zoom_turn_and_size)
{
    // At twice the size the same span is 4 cm and shows 2 of them.
    Paint(400, 400, "0.5\\0.5", 0, 2 * kZoomOne);
    EXPECT_NEAR(bottom.width(), 81, 1);
    // Rows 0.7 mm apart: 160 pixels are 11.2 cm there and show 10.
    Paint(400, 400, "0.7\\0.5");
    EXPECT_NEAR(bottom.width(), 101, 1);
    Paint(400, 400, "0.7\\0.5", 90);
    EXPECT_NEAR(bottom.width(), 144, 1);
    Paint(400, 400, "0.5\\0.7", 270);
    EXPECT_NEAR(bottom.width(), 101, 1);
    Paint(128, 129, "0.5\\0.5");
    EXPECT_EQ(taken.bottom, 0);
    EXPECT_GT(taken.right, 0);
    EXPECT_TRUE(bottom.isEmpty());
    EXPECT_FALSE(right.isEmpty());
    Paint(400, 400, "0.5\\0.5", 0, 0);
    EXPECT_TRUE(painted.isEmpty());
    Paint(400, 400, nullptr);
    EXPECT_TRUE(painted.isEmpty());
}

// Beyond the finest row only the two end ticks are left, and no label.
TEST_F(RulerPainting, a_span_below_a_millimetre_has_no_bar)
{
    Paint(400, 400, "0.005\\0.005");
    EXPECT_LE(bottom.width(), 2);
    EXPECT_FALSE(bottom.isEmpty());
    EXPECT_NEAR(painted.left(), 200, 3);
}

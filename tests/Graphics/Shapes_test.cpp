// What all measurements share, through a kind of the test's own: a box.
#include "Graphics/CKFrameShapesMgr.h"

#include <QImage>
#include <QPainter>
#include <QTransform>
#include <gtest/gtest.h>
#include <string>

namespace {

class Box : public CKAdornedGraphic {
public:
    explicit Box(const QRectF& place = {})
    {
        setShapeStart(place.topLeft());
        setShapeEnd(place.bottomRight());
    }
    std::uint32_t shapeType() const override { return 0; }
    QString shapeInitial() const override { return QStringLiteral("B"); }
    QString shapeName() const override { return QStringLiteral("Box"); }
    QString displayImage() const override { return QStringLiteral("box"); }
    QString measuredValueText() const override { return QStringLiteral("3 mm"); }
    QString labelText() const override { return QStringLiteral("WWWW"); }
    bool isStraight() const override { return straight; }
    bool isRedundant() const override { return standsOn && gone; }
    bool canSetDrawingFill() const override { return true; }
    void onMeasurementRemoved(const CKAdornedGraphic& removed) override
    {
        gone |= &removed == standsOn;
    }
    QPainterPath bezierPathForDrawing() const override
    {
        QPainterPath path;
        path.addRect(geometricBounds());
        return path;
    }
    CKShapePtr newOfSameClass() const override { return std::make_shared<Box>(); }

    bool straight = false, gone = false;
    const CKAdornedGraphic* standsOn = nullptr;
};

struct Grid : ShapeSurroundings {
    double U_ImageZoomForFrame(std::int32_t) const override { return zoom; }
    bool isTheActiveGrid() const override { return true; }
    bool pixelColorInfoForPoint(const QPointF&, std::int32_t, CKPixelInfo*) override
    {
        return false;
    }
    QvxStatus iteratePixelInRect(const QRectF&, std::int32_t, const CKPixelVisitor&,
                                 CKMetricsParams*) override
    {
        return kQvxBadArgument;
    }
    double zoom = 1;
};

struct Sequence : ShapeSequence {
    std::int32_t currentFrame() const override { return 1; }
    bool hasUSRegions() const override { return !regions.empty(); }
    const std::vector<US_ROIRegDataRec>* usRegions() const override { return &regions; }
    std::vector<US_ROIRegDataRec> regions;
};

std::shared_ptr<Box> NewBox(const QRectF& place = {10, 10, 20, 20})
{
    return std::make_shared<Box>(place);
}

TEST(CKAdornedGraphic, goes_on_with_the_handle_that_lies_under_the_pointer)
{
    // A box from 10 to 30 in both axes.
    struct Row {
        const char* fault;
        int handle;
        QPointF to;
        int held;
        QRectF bounds;
    };
    const Row rows[] = {
        {"corner within", 8, {50, 40}, 8, {10, 10, 40, 30}},
        {"right past left", 5, {4, 99}, 4, {4, 10, 6, 20}},
        {"left past right", 4, {40, 99}, 5, {30, 10, 10, 20}},
        {"top past bottom", 2, {99, 44}, 7, {10, 30, 20, 14}},
        {"bottom past top", 7, {99, 2}, 2, {10, 2, 20, 8}},
        {"corner 1 past both", 1, {50, 60}, 8, {30, 30, 20, 30}},
        {"corner 3 past left", 3, {0, 20}, 1, {0, 20, 10, 10}},
        {"corner 6 past right", 6, {40, 35}, 8, {30, 10, 10, 25}},
        {"corner 8 past top", 8, {40, 5}, 3, {10, 5, 30, 5}},
        {"no handle", 9, {0, 0}, 9, {10, 10, 20, 20}},
    };
    for (const Row& row : rows) {
        const auto box = NewBox();
        EXPECT_EQ(box->resizeByMovingHandle(row.handle, {}, row.to), row.held) << row.fault;
        EXPECT_EQ(box->geometricBounds(), row.bounds) << row.fault;
    }
}

TEST(CKAdornedGraphic, is_hit_in_the_same_size_on_screen_at_every_zoom)
{
    Grid grid;
    const auto box = NewBox();
    box->_gridController = &grid;
    struct Row {
        double zoom, hit, missed;  // frame pixels left of the left edge's middle
    };
    for (const Row& row : {Row{1, 4.4, 4.6}, Row{4, 1.1, 1.2}, Row{0.5, 8.9, 9.1}}) {
        grid.zoom = row.zoom;
        EXPECT_EQ(box->handleUnderPoint({10 - row.hit, 20}), 4) << row.zoom;
        EXPECT_EQ(box->handleUnderPoint({10 - row.missed, 20}), 0) << row.zoom;
    }
    EXPECT_TRUE(box->isContentsUnderPoint({6, 34}));
    EXPECT_FALSE(box->isContentsUnderPoint({5.9, 20}));
    EXPECT_EQ(box->pointOfHandle(6), QPointF(10, 30));
    EXPECT_EQ(box->pointOfHandle(0), QPointF());
}

TEST(CKAdornedGraphic, keeps_its_size_at_the_edge_of_the_frame)
{
    struct Row {
        double dx, dy;
        QPointF start;
    };
    for (const Row& row : {Row{5, -5, {15, 5}}, Row{500, 500, {80, 30}}, Row{-50, -50, {0, 0}}}) {
        const auto box = NewBox();
        box->translateInFrame(row.dx, row.dy, {100, 50});
        EXPECT_EQ(box->shapeStart(), row.start) << row.dx;
        EXPECT_EQ(box->geometricBounds().size(), QSizeF(20, 20)) << row.dx;
    }
}

TEST(CKAdornedGraphic, announces_what_a_pane_shows)
{
    const auto box = NewBox();
    std::string log;
    const auto watch = box->ObserveKey("", [&](std::string_view key, KeyPhase phase) {
        if (phase == KeyPhase::DidChange)
            log.append(key).append(" ");
    });
    const auto heard = [&log] { return std::exchange(log, std::string()); };
    box->setBounds({1, 2, 3, 4});
    EXPECT_EQ(heard(), "statisticsText height width yPosition xPosition drawingBounds bounds ");
    box->setFillOpacity(0.25F);
    EXPECT_NE(heard().find("drawingFill"), std::string::npos) << "the fill goes on";
    EXPECT_NEAR(box->fillOpacity(), 0.25, 0.01);
    box->setHasStrokeON(false);
    box->setStrokeWidthString(QStringLiteral("3.5 pt"));
    EXPECT_TRUE(box->hasStrokeON());
    EXPECT_EQ(box->strokeWidthString(), QStringLiteral("3.5 pt"));
    box->setStrokeWidthString(QStringLiteral("no number"));
    EXPECT_EQ(box->strokeWidth(), 0);
    box->_global = true;
    box->_countingIndex = 7;
    EXPECT_TRUE(box->displayTitle().endsWith(QStringLiteral("B7: 3 mm"))) << "number and value";

    box->_descriptionON = false;
    const CKShapePtr copy = box->copyWithZone();
    EXPECT_FALSE(copy->_descriptionON);
    EXPECT_EQ(copy->strokeWidth(), 0);
    EXPECT_EQ(copy->shapeEnd(), QPointF()) << "the place is the caller's";
}

TEST(CKAdornedGraphic, belongs_to_the_region_that_holds_it)
{
    US_ROIRegDataRec around, beside;
    around.fX1 = around.fY1 = 30;
    around.fUnitsX = ROIUnitType::Centimetre;
    beside.fX0 = 11;
    beside.fX1 = beside.fY1 = 90;
    beside.fUnitsX = ROIUnitType::Second;
    Sequence sequence;
    Grid grid;
    const auto box = NewBox();
    box->_shapeSequence = &sequence;
    EXPECT_EQ(box->regionToUse(), nullptr);
    sequence.regions = {around, beside};
    EXPECT_EQ(box->regionToUse(), nullptr) << "no grid";
    box->_gridController = &grid;
    EXPECT_EQ(box->regionToUse(), sequence.regions.data()) << "its right edge lies on the border";
    box->_targetUSRegion = &sequence.regions[1];
    EXPECT_EQ(box->regionToUse(), nullptr) << "chosen, but the shape leaves it";
    box->_targetUSRegion = nullptr;
    sequence.regions[0].fUnitsX = ROIUnitType::None;
    EXPECT_EQ(box->regionToUse(), nullptr) << "without unit";
}

TEST(CKFrameShapesMgr, numbers_by_the_length_of_its_list)
{
    CKFrameShapesMgr manager;
    const auto a = NewBox(), b = NewBox(), c = NewBox(), d = NewBox();
    for (const auto& box : {a, b, c})
        manager.AppendMeasurement(box);
    manager.SetCurrentMeasurement(c.get());
    manager.RemoveMeasurement(b.get(), true);
    EXPECT_EQ(manager.GetCurrentMeasurement(), c);
    manager.AppendMeasurement(d);
    EXPECT_EQ(d->_countingIndex, 3) << "a number can come up again";
    EXPECT_EQ(c->_countingIndex, 3);
    manager.RemoveMeasurement(c.get(), true);
    EXPECT_EQ(manager.GetCurrentMeasurement(), nullptr);
    manager.RemoveMeasurement(b.get(), true);  // not there any more
    EXPECT_EQ(manager.CountMeasurements(), 2);
}

TEST(CKFrameShapesMgr, takes_along_what_stood_on_a_shape)
{
    CKFrameShapesMgr manager;
    const auto line = NewBox(), angle = NewBox(), onAngle = NewBox(), other = NewBox();
    angle->standsOn = line.get();
    for (const auto& box : {onAngle, angle, other, line})
        manager.AppendMeasurement(box);
    manager.SetCurrentMeasurement(other.get());
    manager.RemoveMeasurement(line.get(), true);
    EXPECT_EQ(manager.AllMeasurementsArray(), (std::vector<CKShapePtr>{onAngle, other}));
    EXPECT_EQ(manager.GetCurrentMeasurement(), other);
    EXPECT_EQ(angle->references(), 0);
    EXPECT_TRUE(angle->disposeIsPending());
}

TEST(CKFrameShapesMgr, shares_a_shape_until_its_last_list_drops_it)
{
    std::vector<std::unique_ptr<CKFrameShapesMgr>> frames;
    auto shape = NewBox();
    const std::weak_ptr<Box> watched = shape;
    for (int i = 0; i < 5; ++i)
        frames.push_back(std::make_unique<CKFrameShapesMgr>());
    for (const auto& frame : frames)
        frame->AppendMeasurement(shape);
    EXPECT_EQ(shape->references(), 5);
    const CKAdornedGraphic* bare = shape.get();
    shape.reset();
    for (int i = 0; i < 4; ++i)
        frames[static_cast<std::size_t>(i)]->RemoveMeasurement(bare, true);
    ASSERT_FALSE(watched.expired());
    EXPECT_TRUE(watched.lock()->isOrphan());
    frames[4]->RemoveMeasurement(bare, false);
    EXPECT_TRUE(watched.expired());
}

TEST(CKFrameShapesMgr, moves_in_the_stack_and_keeps_the_current_one)
{
    struct Row {
        const char* fault;
        void (CKFrameShapesMgr::*move)(const CKAdornedGraphic*);
        int which;
        const char* order;
    };
    const Row rows[] = {
        {"front", &CKFrameShapesMgr::MoveToFront, 0, "bca"},
        {"back", &CKFrameShapesMgr::MoveToBack, 2, "cab"},
        {"forward", &CKFrameShapesMgr::MoveForward, 0, "bac"},
        {"forward on top", &CKFrameShapesMgr::MoveForward, 2, "abc"},
        {"backwards", &CKFrameShapesMgr::MoveBackwards, 2, "acb"},
        {"backwards at the bottom", &CKFrameShapesMgr::MoveBackwards, 0, "abc"},
    };
    for (const Row& row : rows) {
        CKFrameShapesMgr manager;
        const std::vector<CKShapePtr> boxes{NewBox(), NewBox(), NewBox()};
        for (const CKShapePtr& box : boxes)
            manager.AppendMeasurement(box);
        manager.SetCurrentMeasurement(boxes[1].get());
        (manager.*row.move)(boxes[static_cast<std::size_t>(row.which)].get());
        std::string order;
        for (const CKShapePtr& box : manager.AllMeasurementsArray())
            order += static_cast<char>('a' + (std::ranges::find(boxes, box) - boxes.begin()));
        EXPECT_EQ(order, row.order) << row.fault;
        EXPECT_EQ(manager.GetCurrentMeasurement(), boxes[1]) << row.fault;
        manager.MoveToPosition(boxes[0].get(), 99);
        EXPECT_TRUE(manager.ShapeIsOnTop(boxes[0].get())) << row.fault;
        manager.MoveToPosition(boxes[0].get(), -4);
        EXPECT_TRUE(manager.ShapeIsAtBottom(boxes[0].get())) << row.fault;
    }
}

TEST(CKFrameShapesMgr, counts_what_is_selected_and_what_is_straight)
{
    CKFrameShapesMgr manager;
    const auto a = NewBox(), b = NewBox(), stranger = NewBox();
    a->straight = true;
    manager.AppendMeasurement(a);
    manager.AppendMeasurement(b);
    manager.SelectShape(a.get());
    manager.SelectShape(b.get());
    manager.SelectShape(stranger.get());
    EXPECT_EQ(manager.SelectedCount(), 2);
    EXPECT_EQ(manager.GetSelectedMeasurement(), b);
    EXPECT_FALSE(stranger->_selected);
    EXPECT_FALSE(manager.HasTwoOrMoreLines());
    b->straight = true;
    EXPECT_TRUE(manager.HasTwoOrMoreLines());
    manager.DeselectAll();
    EXPECT_EQ(manager.SelectedCount(), 0);
    EXPECT_FALSE(a->_fUseHandles);
    a->_global = true;
    manager.RemoveLocalMeasurements(true);
    EXPECT_EQ(manager.AllMeasurementsArray(), std::vector<CKShapePtr>{a});
    manager.RemoveGlobalMeasurements(true);
    EXPECT_EQ(manager.CountMeasurements(), 0);
}

// Pixels that aren't the ground's.
QRect Inked(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(90, 90, 90))
                ink |= QRect(x, y, 1, 1);
    return ink;
}

TEST(CKAdornedGraphic, is_drawn_as_wide_on_screen_and_shaded_to_the_lower_right_in_every_turn)
{
    Grid grid;
    for (const int turn : {0, 90, 180, 270}) {
        for (const double zoom : {1.0, 4.0}) {
            grid.zoom = zoom;
            const auto box = NewBox(QRectF(10, 10, 10, 10));
            box->_gridController = &grid;
            box->setStrokeColor(Qt::white);
            QImage image(200, 200, QImage::Format_RGB32);
            image.fill(qRgb(90, 90, 90));
            QPainter painter(&image);
            QTransform t;
            t.translate(100, 100);
            t.rotate(turn);
            t.scale(zoom, zoom);
            painter.setTransform(t);
            box->drawContentsInView(&painter, false);
            painter.end();
            const QRect outer = t.mapRect(QRectF(10, 10, 10, 10)).toRect();
            const QPoint left(outer.left(), outer.center().y());
            EXPECT_EQ(image.pixel(left), qRgb(255, 255, 255)) << turn;
            EXPECT_EQ(image.pixel(left - QPoint(1, 0)), qRgb(255, 255, 255)) << turn;
            EXPECT_GE(qRed(image.pixel(left - QPoint(3, 0))), 80) << turn;
            EXPECT_LT(qRed(image.pixel(left + QPoint(1, 0))), 70) << "shadow, " << turn << zoom;
        }
    }
}

TEST(CKAdornedGraphic, has_its_label_upright_above_it_in_every_turn)
{
    for (const int turn : {0, 90, 180, 270}) {
        for (const bool flipped : {false, true}) {
            const auto box = NewBox();
            QTransform t;
            t.translate(100, 100);
            t.scale(flipped ? -2 : 2, 2);
            t.rotate(turn);
            QImage image(200, 200, QImage::Format_RGB32);
            image.fill(qRgb(90, 90, 90));
            QPainter painter(&image);
            box->drawLabel(&painter, t);
            painter.end();
            const QRect ink = Inked(image);
            const QRectF place = t.mapRect(box->geometricBounds());
            EXPECT_GT(ink.width(), ink.height()) << turn << flipped;
            EXPECT_LE(ink.bottom(), place.top()) << turn << flipped;
            EXPECT_GT(ink.bottom(), place.top() - 12) << turn << flipped;
            EXPECT_NEAR(ink.left(), place.left() + 4, 3) << turn << flipped;
        }
    }
}

}  // namespace

// Which pointer stands where: by the tool alone, and over measurements.
#include "app/tools/ToolCursors.h"

#include "app/grid/GridFixture.h"
#include "app/tools/ZELToolsController.h"
#include "util/FourCC.h"

namespace {

// A measurement of any kind by its code; its handles tell whether they are asked for resizing.
class Kind final : public CKAdornedGraphic {
public:
    explicit Kind(std::uint32_t type, bool selected = false) : fType(type)
    {
        _selected = selected;
        setShapeStart({10, 10});
        setShapeEnd({40, 40});
    }
    std::uint32_t shapeType() const override { return fType; }
    QString shapeInitial() const override { return {}; }
    QString shapeName() const override { return {}; }
    QString displayImage() const override { return {}; }
    QString measuredValueText() const override { return {}; }
    bool isPolygon() const override { return fType == FourCC("poly"); }
    ShapeCursor cursorForHandle(ShapeHandle handle, bool forResize) const override
    {
        if (handle == 7)
            return {QString::fromLatin1(kNotAllowedCursor), {}};
        return {QLatin1String(forResize ? "resizeTLBR_cur" : "polygon_close"), {handle, handle}};
    }
    CKShapePtr newOfSameClass() const override { return std::make_shared<Kind>(fType); }

private:
    std::uint32_t fType;
};

constexpr std::uint32_t kLine = FourCC("line"), kAngle = FourCC("angl"), kRect = FourCC("rect"),
                        kArrow = FourCC("arro"), kPoly = FourCC("poly");

std::string Said(const GridCursor& cursor)
{
    switch (cursor.kind) {
        case CursorKind::Arrow:
            return "arrow";
        case CursorKind::Crosshair:
            return "crosshair";
        case CursorKind::PointingHand:
            return "hand";
        case CursorKind::NotAllowed:
            return "not allowed";
        case CursorKind::Drawn:
            break;
    }
    return cursor.picture.toStdString() + " " + std::to_string(cursor.size) + " " +
           std::to_string(cursor.hotSpot.x()) + "," + std::to_string(cursor.hotSpot.y());
}

TEST(ToolCursors, belong_to_their_tools)
{
    const Kind line(kLine), angle(kAngle), arrow(kArrow);
    struct Row {
        std::int32_t tool;
        const CKAdornedGraphic* current;
        const char* cursor;
    };
    const Row rows[] = {
        {kToolSelection, nullptr, "arrow"},
        {kToolWindow, nullptr, "window_cur 24 15,15"},
        {kToolPan, nullptr, "pan_cur 24 7,7"},
        {kToolZoom, nullptr, "zoom_cur 24 7,7"},
        {kToolCrop, nullptr, "crosshair"},
        {kToolLine, nullptr, "crosshair"},
        {kToolRectangle, nullptr, "crosshair"},
        {kToolEllipse, nullptr, "crosshair"},
        {kToolCalibration, nullptr, "crosshair"},
        {kToolText, nullptr, "crosshair"},
        {kToolPolygon, nullptr, "polygon_add 23 12,12"},
        {kToolArrow, nullptr, "arrow_cur 23 11,11"},
        {kToolEyedropper, nullptr, "eyedrop_cur 23 10,10"},
        {kToolAngle, nullptr, "angle_stop_cur 24 2,2"},
        {kToolAngle, &line, "angle_add_cur 24 2,2"},
        {kToolAngle, &angle, "angle_sel_cur 24 2,2"},
        {kToolAngle, &arrow, "angle_stop_cur 24 2,2"},
        {999, nullptr, "arrow"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Said(currentToolCursor(row.tool, row.current)), row.cursor) << row.tool;
}

TEST(ToolCursors, change_over_measurements)
{
    const auto rect = std::make_shared<Kind>(kRect), chosen = std::make_shared<Kind>(kRect, true);
    const auto line = std::make_shared<Kind>(kLine), angle = std::make_shared<Kind>(kAngle);
    const auto arrow = std::make_shared<Kind>(kArrow, true);
    const auto polygon = std::make_shared<Kind>(kPoly), closed = std::make_shared<Kind>(kPoly);
    polygon->_fIsPending = true;
    struct Row {
        const char* fault;
        PointerPlace place;
        const char* cursor;
    };
    const Row rows[] = {
        {"nothing there", {kToolSelection, nullptr, {}, nullptr}, "arrow"},
        {"selection, contents", {kToolSelection, nullptr, {rect, 1, 0}, nullptr}, "hand"},
        {"selection, handle",
         {kToolSelection, nullptr, {chosen, 1, 3}, nullptr},
         "resizeTLBR_cur 18 3,3"},
        {"drawing tool, other shape", {kToolLine, nullptr, {rect, 1, 0}, nullptr}, "crosshair"},
        {"drawing tool, selected one", {kToolLine, nullptr, {chosen, 1, 0}, nullptr}, "hand"},
        {"crop", {kToolCrop, nullptr, {chosen, 1, 4}, nullptr}, "resizeTLBR_cur 18 4,4"},
        {"a refusal", {kToolCrop, nullptr, {chosen, 1, 7}, nullptr}, "not allowed"},
        {"while it is drawn",
         {kToolEllipse, nullptr, {chosen, 1, 3}, chosen.get()},
         "polygon_close 23 3,3"},
        {"another tool", {kToolPan, nullptr, {chosen, 1, 3}, nullptr}, "pan_cur 24 7,7"},
        {"angle, line", {kToolAngle, nullptr, {line, 1, 0}, nullptr}, "angle_stop_cur 24 2,2"},
        {"angle, second line",
         {kToolAngle, line.get(), {line, 1, 1}, nullptr},
         "angle_add_cur 24 2,2"},
        {"angle, angle", {kToolAngle, angle.get(), {angle, 1, 0}, nullptr}, "angle_sel_cur 24 2,2"},
        {"angle, other shape", {kToolAngle, nullptr, {chosen, 1, 3}, nullptr}, "hand"},
        {"angle, kin of lines", {kToolAngle, nullptr, {arrow, 1, 1}, nullptr}, "hand"},
        {"polygon, own handle",
         {kToolPolygon, nullptr, {polygon, 1, 1}, polygon.get()},
         "polygon_close 23 1,1"},
        {"polygon, other handle",
         {kToolPolygon, nullptr, {chosen, 1, 2}, polygon.get()},
         "resizeTLBR_cur 18 2,2"},
        {"polygon, contents",
         {kToolPolygon, nullptr, {chosen, 1, 0}, polygon.get()},
         "polygon_add 23 12,12"},
        {"polygon, no more pending", {kToolPolygon, nullptr, {chosen, 1, 0}, closed.get()}, "hand"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Said(cursorForPointer(row.place)), row.cursor) << row.fault;
}

TEST(ToolCursors, see_what_is_shown_under_the_pointer)
{
    MadeTree made;
    Window window(&made);
    ZELSequenceProxy& proxy = *window.a.currZELSequence();
    proxy.addNewMeasurement(std::make_shared<Kind>(kRect), true);
    const auto at = [&](double x, double y) {
        return Said(
            cursorUnderPoint(window.a, kToolSelection, window.a.framePointToViewPoint({x, y}, 1)));
    };
    EXPECT_EQ(at(25, 25), "hand");
    EXPECT_EQ(at(60, 45), "arrow");
    proxy.setViewShowsMeasurements(false);
    EXPECT_EQ(at(25, 25), "arrow");
}

}  // namespace

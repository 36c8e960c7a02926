#include "app/tools/ToolCursors.h"

#include "app/grid/ToolBox.h"
#include "app/tools/ZELToolsController.h"
#include "util/FourCC.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

struct Picture {
    const char* name;
    int size;
};
constexpr auto kPictures = std::to_array<Picture>({
    {"window_cur", 24},
    {"pan_cur", 24},
    {"zoom_cur", 24},
    {"polygon_add", 23},
    {"polygon_close", 23},
    {"arrow_cur", 23},
    {"eyedrop_cur", 23},
    {"angle_stop_cur", 24},
    {"angle_add_cur", 24},
    {"angle_sel_cur", 24},
    {"resizeTLBR_cur", 18},
    {"resizeTRBL_cur", 18},
    {"resizevert_cur", 20},
    {"resizehorz_cur", 20},
});

constexpr QPoint kAngleHotSpot(2, 2);

GridCursor Drawn(const char* picture, const QPoint& hotSpot)
{
    return GridCursorOf({QString::fromLatin1(picture), hotSpot});
}

GridCursor Standard(CursorKind kind) { return {kind, {}, 0, {}}; }

// Only itself: arrow and calibration line are shapes of their own.
bool IsLine(const CKAdornedGraphic* shape) { return shape && shape->shapeType() == FourCC("line"); }
bool IsAngle(const CKAdornedGraphic* shape)
{
    return shape && shape->shapeType() == FourCC("angl");
}

GridCursor AngleCursor(AngleState state)
{
    if (state == AngleState::AngleChosen)
        return Drawn("angle_sel_cur", kAngleHotSpot);
    return Drawn(state == AngleState::LineChosen ? "angle_add_cur" : "angle_stop_cur",
                 kAngleHotSpot);
}

GridCursor HandleCursor(const PointerPlace& place)
{
    const CKAdornedGraphic* shape = place.hit.graphic.get();
    return GridCursorOf(shape->cursorForHandle(place.hit.handle, shape != place.creating));
}

bool DrawsPolygon(const PointerPlace& place)
{
    return place.creating && place.creating->isPolygon() && place.creating->_fIsPending;
}

// With a pending polygon only its handles count.
GridCursor PolygonCursor(const PointerPlace& place)
{
    const bool onHandle = place.tool == kToolPolygon && place.hit.graphic && place.hit.handle;
    return onHandle ? HandleCursor(place) : currentToolCursor(place.tool, place.currentMeasurement);
}

GridCursor OverShape(const PointerPlace& place)
{
    const CKAdornedGraphic* shape = place.hit.graphic.get();
    if (place.tool == kToolAngle)
        return IsLine(shape) || IsAngle(shape) ? AngleCursor(AngleStateOf(place.currentMeasurement))
                                               : Standard(CursorKind::PointingHand);
    if (place.tool != kToolSelection && !shape->_selected)
        return currentToolCursor(place.tool, place.currentMeasurement);
    return place.hit.handle ? HandleCursor(place) : Standard(CursorKind::PointingHand);
}

}  // namespace

GridCursor GridCursorOf(const ShapeCursor& cursor)
{
    if (cursor.image == QLatin1String(kPointingHandCursor))
        return Standard(CursorKind::PointingHand);
    if (cursor.image == QLatin1String(kCrosshairCursor))
        return Standard(CursorKind::Crosshair);
    if (cursor.image == QLatin1String(kNotAllowedCursor))
        return Standard(CursorKind::NotAllowed);
    const auto picture = std::ranges::find_if(
        kPictures, [&](const Picture& row) { return cursor.image == QLatin1String(row.name); });
    if (picture == kPictures.end())
        return Standard(CursorKind::Arrow);
    return {CursorKind::Drawn, cursor.image, picture->size, cursor.hotSpot};
}

AngleState AngleStateOf(const CKAdornedGraphic* currentMeasurement)
{
    if (IsLine(currentMeasurement))
        return AngleState::LineChosen;
    return IsAngle(currentMeasurement) ? AngleState::AngleChosen : AngleState::Start;
}

GridCursor currentToolCursor(std::int32_t tool, const CKAdornedGraphic* currentMeasurement)
{
    switch (tool) {
        case kToolWindow:
            return Drawn("window_cur", {15, 15});
        case kToolPan:
            return Drawn("pan_cur", {7, 7});
        case kToolZoom:
            return Drawn("zoom_cur", {7, 7});
        case kToolAngle:
            return AngleCursor(AngleStateOf(currentMeasurement));
        case kToolPolygon:
            return Drawn("polygon_add", {12, 12});
        case kToolArrow:
            return Drawn("arrow_cur", {11, 11});
        case kToolEyedropper:
            return Drawn("eyedrop_cur", {10, 10});
        default:
            return Standard(ZELToolsController::IsDrawTool(tool) ? CursorKind::Crosshair
                                                                 : CursorKind::Arrow);
    }
}

GridCursor cursorForPointer(const PointerPlace& place)
{
    if (DrawsPolygon(place))
        return PolygonCursor(place);
    const bool looks = place.tool == kToolSelection || ZELToolsController::IsDrawTool(place.tool);
    return looks && place.hit.graphic ? OverShape(place)
                                      : currentToolCursor(place.tool, place.currentMeasurement);
}

GridCursor cursorUnderPoint(const ZELSequenceGridViewModelController& grid, std::int32_t tool,
                            const QPointF& viewPoint)
{
    const ZELSequenceProxy* proxy = grid.currZELSequence().get();
    if (!proxy)
        return Standard(CursorKind::Arrow);
    const CKShapePtr current = proxy->currentMeasurement();
    GraphicHit hit = grid.graphicUnderPoint(viewPoint, true, 0);
    if (hit.graphic && !hit.graphic->isCrop() && !proxy->viewShowsMeasurements())
        hit = {};  // what nobody sees isn't there
    return cursorForPointer({.tool = tool,
                             .currentMeasurement = current.get(),
                             .hit = hit,
                             .creating = grid.view() ? grid.view()->creatingGraphic() : nullptr});
}

#include "Graphics/CKFrameShapesMgr.h"

#include <algorithm>

CKFrameShapesMgr::~CKFrameShapesMgr() { RemoveAllMeasurements(true); }

void CKFrameShapesMgr::AppendMeasurement(const CKShapePtr& shape)
{
    if (!shape)
        return;
    ++fTotal;
    fShapes.AppendShape(shape);
    shape->addReference();
    shape->_countingIndex = fTotal;
    fSelectedCount = fShapes.CountSelectedShapes();
}

void CKFrameShapesMgr::Recount()
{
    fTotal = fShapes.Count();
    fSelectedCount = fShapes.CountSelectedShapes();
}

void CKFrameShapesMgr::RemoveMeasurement(const CKAdornedGraphic* shape, bool dispose)
{
    if (!Contains(shape))
        return;
    // The current one, where it is another, keeps its part in whatever place it ends up.
    const CKShapePtr current = GetCurrentMeasurement();
    fShapes.RemoveShape(shape, dispose);
    fCurrent = fShapes.PositionOf(current.get());
    Recount();
}

void CKFrameShapesMgr::RemoveCurrentMeasurement(bool dispose)
{
    if (const CKShapePtr current = GetCurrentMeasurement())
        RemoveMeasurement(current.get(), dispose);
}

void CKFrameShapesMgr::RemoveWhere(bool global, bool dispose)
{
    for (const CKShapePtr& shape : AllMeasurementsArray()) {
        if (shape->_global == global)
            RemoveMeasurement(shape.get(), dispose);
    }
}

void CKFrameShapesMgr::RemoveAllMeasurements(bool dispose)
{
    fShapes.RemoveAllShapes(dispose);
    fCurrent = fTotal = fSelectedCount = 0;
}

void CKFrameShapesMgr::MoveToPosition(const CKAdornedGraphic* shape, std::int32_t position)
{
    KeepingCurrent([&] { fShapes.MoveShapeToPosition(shape, position); });
}

void CKFrameShapesMgr::MoveToFront(const CKAdornedGraphic* shape)
{
    KeepingCurrent([&] { fShapes.MoveToFront(shape); });
}

void CKFrameShapesMgr::MoveToBack(const CKAdornedGraphic* shape)
{
    KeepingCurrent([&] { fShapes.MoveToBack(shape); });
}

void CKFrameShapesMgr::MoveForward(const CKAdornedGraphic* shape)
{
    KeepingCurrent([&] { fShapes.MoveForward(shape); });
}

void CKFrameShapesMgr::MoveBackwards(const CKAdornedGraphic* shape)
{
    KeepingCurrent([&] { fShapes.MoveBackwards(shape); });
}

void CKFrameShapesMgr::SelectShape(CKAdornedGraphic* shape)
{
    if (!shape || !Contains(shape) || (shape->_selected && shape->_fUseHandles))
        return;
    shape->_selected = shape->_fUseHandles = true;
    fSelectedCount = fShapes.CountSelectedShapes();
}

void CKFrameShapesMgr::DeSelectShape(CKAdornedGraphic* shape)
{
    if (!shape || !Contains(shape) || (!shape->_selected && !shape->_fUseHandles))
        return;
    shape->_selected = shape->_fUseHandles = false;
    fSelectedCount = fShapes.CountSelectedShapes();
}

void CKFrameShapesMgr::DeselectAll()
{
    for (const CKShapePtr& shape : fShapes.Shapes())
        DeSelectShape(shape.get());
}

CKShapePtr CKFrameShapesMgr::GetSelectedMeasurement() const
{
    return fShapes.TestShapeFor([](const CKAdornedGraphic& shape) { return shape._selected; });
}

CKShapePtr CKFrameShapesMgr::AngleExists(const CKAdornedGraphic& angle,
                                         std::int32_t* position) const
{
    const CKShapePtr found = fShapes.TestShapeFor(
        [&](const CKAdornedGraphic& shape) { return shape.isSameAngleAs(angle); });
    if (position)
        *position = fShapes.PositionOf(found.get());
    return found;
}

bool CKFrameShapesMgr::HasTwoOrMoreLines() const
{
    return std::ranges::count_if(fShapes.Shapes(),
                                 [](const CKShapePtr& shape) { return shape->isStraight(); }) >= 2;
}

void CKFrameShapesMgr::SetPixelDims(float horizontal, float vertical)
{
    fShapes.EachShapeDo(
        [&](CKAdornedGraphic& shape) { shape.setPixelSizeHor(horizontal, vertical); });
}

void CKFrameShapesMgr::SetupForPrinting(bool printing, ShapeSurroundings* controller)
{
    fPrinting = printing;
    fShapes.EachShapeDo([&](CKAdornedGraphic& shape) { shape._gridController = controller; });
}

#include "Graphics/ZELShapeList.h"

#include <algorithm>
#include <ranges>

std::int32_t ZELShapeList::CountSelectedShapes() const
{
    return static_cast<std::int32_t>(
        std::ranges::count_if(fShapes, [](const CKShapePtr& shape) { return shape->_selected; }));
}

bool ZELShapeList::HasGlobalMeasurements() const
{
    return std::ranges::any_of(fShapes, [](const CKShapePtr& shape) { return shape->_global; });
}

bool ZELShapeList::HasLocalMeasurements() const
{
    return std::ranges::any_of(fShapes, [](const CKShapePtr& shape) { return !shape->_global; });
}

CKShapePtr ZELShapeList::GetNthShape(std::int32_t position) const
{
    return position >= 1 && position <= Count() ? fShapes[static_cast<std::size_t>(position - 1)]
                                                : nullptr;
}

std::int32_t ZELShapeList::PositionOf(const CKAdornedGraphic* shape) const
{
    const auto found =
        std::ranges::find(fShapes, shape, [](const CKShapePtr& each) { return each.get(); });
    return found == fShapes.end() ? 0 : static_cast<std::int32_t>(found - fShapes.begin()) + 1;
}

CKShapePtr ZELShapeList::TakeOut(std::int32_t position)
{
    const auto place = fShapes.begin() + (position - 1);
    CKShapePtr shape = std::move(*place);
    fShapes.erase(place);
    return shape;
}

void ZELShapeList::RemoveShape(const CKAdornedGraphic* shape, bool dispose)
{
    const std::int32_t position = PositionOf(shape);
    if (position < 1)
        return;
    OnShapeRemoved(TakeOut(position), dispose);
    Compact(dispose);
}

void ZELShapeList::OnShapeRemoved(const CKShapePtr& shape, bool dispose)
{
    for (const CKShapePtr& left : fShapes)
        left->onMeasurementRemoved(*shape);
    shape->onMeasurementRemoved(*shape);
    shape->removeReference(dispose);
}

// One that goes may make another redundant that stands before it.
void ZELShapeList::Compact(bool dispose)
{
    for (bool again = true; again;) {
        again = false;
        for (std::int32_t position = 1; position <= Count();) {
            if (GetNthShape(position)->isRedundant()) {
                TakeOut(position)->removeReference(dispose);
                again = true;
            } else {
                ++position;
            }
        }
    }
}

void ZELShapeList::RemoveAllShapes(bool dispose)
{
    while (!fShapes.empty())
        OnShapeRemoved(TakeOut(Count()), dispose);
}

void ZELShapeList::EachShapeDo(const std::function<void(CKAdornedGraphic&)>& work) const
{
    for (const CKShapePtr& shape : fShapes)
        work(*shape);
}

CKShapePtr ZELShapeList::TestShapeFor(
    const std::function<bool(const CKAdornedGraphic&)>& test) const
{
    for (const CKShapePtr& shape : std::views::reverse(fShapes)) {
        if (test(*shape))
            return shape;
    }
    return nullptr;
}

void ZELShapeList::MoveShapeToPosition(const CKAdornedGraphic* shape, std::int32_t position)
{
    const std::int32_t before = PositionOf(shape);
    if (before < 1)
        return;
    CKShapePtr taken = TakeOut(before);
    fShapes.insert(fShapes.begin() + std::clamp(position - 1, 0, Count()), std::move(taken));
}

void ZELShapeList::MoveToFront(const CKAdornedGraphic* shape)
{
    MoveShapeToPosition(shape, Count());
}

void ZELShapeList::MoveToBack(const CKAdornedGraphic* shape) { MoveShapeToPosition(shape, 1); }

void ZELShapeList::MoveForward(const CKAdornedGraphic* shape)
{
    MoveShapeToPosition(shape, PositionOf(shape) + 1);
}

void ZELShapeList::MoveBackwards(const CKAdornedGraphic* shape)
{
    MoveShapeToPosition(shape, PositionOf(shape) - 1);
}

bool ZELShapeList::ShapeIsOnTop(const CKAdornedGraphic* shape) const
{
    return !fShapes.empty() && fShapes.back().get() == shape;
}

bool ZELShapeList::ShapeIsAtBottom(const CKAdornedGraphic* shape) const
{
    return !fShapes.empty() && fShapes.front().get() == shape;
}

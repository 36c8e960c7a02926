// The measurements of one frame in the order of stacking: position 1 lies at the bottom and is
// drawn first, the last one on top. Main thread only.
#pragma once
#include "Graphics/CKAdornedGraphic.h"

#include <functional>
#include <vector>

class ZELShapeList {
public:
    ZELShapeList() = default;
    virtual ~ZELShapeList() = default;
    ZELShapeList(const ZELShapeList&) = delete;
    ZELShapeList& operator=(const ZELShapeList&) = delete;

    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(fShapes.size()); }
    [[nodiscard]] std::int32_t CountSelectedShapes() const;
    [[nodiscard]] bool Contains(const CKAdornedGraphic* shape) const
    {
        return PositionOf(shape) > 0;
    }
    [[nodiscard]] bool HasGlobalMeasurements() const;
    [[nodiscard]] bool HasLocalMeasurements() const;
    [[nodiscard]] CKShapePtr GetNthShape(std::int32_t position) const;           // or null
    [[nodiscard]] std::int32_t PositionOf(const CKAdornedGraphic* shape) const;  // 0 none
    [[nodiscard]] const std::vector<CKShapePtr>& Shapes() const { return fShapes; }

    void AppendShape(const CKShapePtr& shape) { fShapes.push_back(shape); }
    // Tells the others and the shape itself; what became redundant by it goes too.
    void RemoveShape(const CKAdornedGraphic* shape, bool dispose);
    void RemoveAllShapes(bool dispose);  // from the last to the first, telling each

    void EachShapeDo(const std::function<void(CKAdornedGraphic&)>& work) const;  // bottom to top
    // The uppermost for which `test` holds, or null.
    [[nodiscard]] CKShapePtr TestShapeFor(
        const std::function<bool(const CKAdornedGraphic&)>& test) const;

    // `position` at most 1 is the bottom, one past the end the top.
    void MoveShapeToPosition(const CKAdornedGraphic* shape, std::int32_t position);
    void MoveToFront(const CKAdornedGraphic* shape);
    void MoveToBack(const CKAdornedGraphic* shape);
    void MoveForward(const CKAdornedGraphic* shape);    // one step, if there is one
    void MoveBackwards(const CKAdornedGraphic* shape);  // the same
    [[nodiscard]] bool ShapeIsOnTop(const CKAdornedGraphic* shape) const;
    [[nodiscard]] bool ShapeIsAtBottom(const CKAdornedGraphic* shape) const;

private:
    CKShapePtr TakeOut(std::int32_t position);
    void OnShapeRemoved(const CKShapePtr& shape, bool dispose);
    void Compact(bool dispose);

    std::vector<CKShapePtr> fShapes;
};

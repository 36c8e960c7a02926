// The measurements of one frame: their list, the one that commands act on, their numbers and their
// selection.
//
// A global measurement stands in the list of every frame as one object. It lives until its last
// list drops it; each removal tells whether it asks for the shape's end, and a shape remembers if
// any did. Whoever still holds it then, for undoing, holds a shape that stands nowhere.
// Main thread only.
#pragma once
#include "Graphics/ZELShapeList.h"

class CKFrameShapesMgr {
public:
    CKFrameShapesMgr() = default;
    virtual ~CKFrameShapesMgr();
    CKFrameShapesMgr(const CKFrameShapesMgr&) = delete;
    CKFrameShapesMgr& operator=(const CKFrameShapesMgr&) = delete;

    [[nodiscard]] std::int32_t CountMeasurements() const { return fShapes.Count(); }
    [[nodiscard]] CKShapePtr GetNthMeasurement(std::int32_t position) const
    {
        return fShapes.GetNthShape(position);
    }
    [[nodiscard]] bool Contains(const CKAdornedGraphic* shape) const
    {
        return fShapes.Contains(shape);
    }
    // From 1; 0 for a shape that isn't there.
    [[nodiscard]] std::int32_t GetMeasurementIndex(const CKAdornedGraphic* shape) const
    {
        return fShapes.PositionOf(shape);
    }
    [[nodiscard]] std::vector<CKShapePtr> AllMeasurementsArray() const { return fShapes.Shapes(); }
    [[nodiscard]] const ZELShapeList& List() const { return fShapes; }

    // On top, with the next number.
    void AppendMeasurement(const CKShapePtr& shape);
    void RemoveMeasurement(const CKAdornedGraphic* shape, bool dispose);
    void RemoveCurrentMeasurement(bool dispose);
    void RemoveGlobalMeasurements(bool dispose) { RemoveWhere(true, dispose); }
    void RemoveLocalMeasurements(bool dispose) { RemoveWhere(false, dispose); }
    void RemoveAllMeasurements(bool dispose);

    // The current one keeps being current wherever it is moved.
    void MoveToPosition(const CKAdornedGraphic* shape, std::int32_t position);
    void MoveToFront(const CKAdornedGraphic* shape);
    void MoveToBack(const CKAdornedGraphic* shape);
    void MoveForward(const CKAdornedGraphic* shape);
    void MoveBackwards(const CKAdornedGraphic* shape);
    [[nodiscard]] bool ShapeIsOnTop(const CKAdornedGraphic* shape) const
    {
        return fShapes.ShapeIsOnTop(shape);
    }
    [[nodiscard]] bool ShapeIsAtBottom(const CKAdornedGraphic* shape) const
    {
        return fShapes.ShapeIsAtBottom(shape);
    }

    void SetCurrentMeasurement(const CKAdornedGraphic* shape)  // none for a shape not in the list
    {
        fCurrent = fShapes.PositionOf(shape);
    }
    [[nodiscard]] CKShapePtr GetCurrentMeasurement() const { return fShapes.GetNthShape(fCurrent); }
    // Selection and handles together.
    void SelectShape(CKAdornedGraphic* shape);
    void DeSelectShape(CKAdornedGraphic* shape);
    void DeselectAll();
    [[nodiscard]] std::int32_t SelectedCount() const { return fSelectedCount; }
    [[nodiscard]] CKShapePtr GetSelectedMeasurement() const;  // the uppermost, or null

    // The uppermost shape that is this angle too, or null; `position` takes its place, 0 for none.
    [[nodiscard]] CKShapePtr AngleExists(const CKAdornedGraphic& angle,
                                         std::int32_t* position) const;
    [[nodiscard]] bool HasTwoOrMoreLines() const;
    void SetPixelDims(float horizontal, float vertical);  // mm a pixel
    void SetupForPrinting(bool printing, ShapeSurroundings* controller);
    [[nodiscard]] bool IsPrinting() const { return fPrinting; }

private:
    void RemoveWhere(bool global, bool dispose);
    void Recount();
    template <typename Move>
    void KeepingCurrent(Move move)
    {
        const CKShapePtr current = GetCurrentMeasurement();
        move();
        SetCurrentMeasurement(current.get());
    }

    ZELShapeList fShapes;
    std::int32_t fCurrent = 0;  // position, 0 none
    std::int32_t fTotal = 0;    // what numbers are given by
    std::int32_t fSelectedCount = 0;
    bool fPrinting = false;
};

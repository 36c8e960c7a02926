// What a drag in a cell does to its frame: pan, zoom, window and level, brightness and contrast.
// While the button is down only the frame of the press changes, so that the picture follows at
// once; the release hands the result to the tool scope by a notification. Every event counts, also
// where paintings are left out between them. A drag that leaves no change posts nothing. Main
// thread only.
#pragma once
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/look/CVOIBlitter.h"

#include <memory>

inline constexpr std::string_view kNoteZoomChanged = "Tool_Zoom_Changed";
inline constexpr const char* kKeyZoom = "Zoom";        // percent
inline constexpr const char* kKeyCellNum = "CellNum";  // index

// A movement or the release: view points, y downward, and the keys that are held.
struct TrackerEvent {
    QPointF point;
    bool shift = false, option = false;
};

class ZELMouseTracker {
public:
    using Grid = ZELSequenceGridViewModelController;

    virtual ~ZELMouseTracker() = default;
    ZELMouseTracker(const ZELMouseTracker&) = delete;
    ZELMouseTracker& operator=(const ZELMouseTracker&) = delete;

    void track(const TrackerEvent& event);
    // The button went up there: as a last movement, then the result is posted.
    void release(const TrackerEvent& event);

protected:
    // `cell` counts from 0; the grid outlives the tracker and shows a sequence.
    ZELMouseTracker(Grid& grid, int cell, const QPointF& press);

    virtual void move(const QPointF& offset, const TrackerEvent& event) = 0;
    virtual void endTracking() = 0;
    // The offset of the pointer; while Shift is held along one axis, the first to win.
    [[nodiscard]] QPointF lockedOffset(const QPointF& offset, bool shift);
    [[nodiscard]] std::int32_t frame() const { return _targetCell + 1; }
    [[nodiscard]] ZELSequenceProxy& proxy() const { return *_grid.currZELSequence(); }
    [[nodiscard]] dk_ImageFrameInfo* frameInfo() const;
    void setNeedsDisplay() const;
    void post(std::string_view name, const QVariantMap& info) const;

    Grid& _grid;
    const int _targetCell;

private:
    enum class Axis { None, Horizontal, Vertical };
    const QPointF _startPoint;
    Axis _mouseMovement = Axis::None;
};

class ZELPanTracker final : public ZELMouseTracker {
public:
    ZELPanTracker(Grid& grid, int cell, const QPointF& press);

protected:
    void move(const QPointF& offset, const TrackerEvent& event) override;
    void endTracking() override;

private:
    QPointF origScrollPos, fLimit;
    bool fMoved = false;
};

// Up enlarges; with Option, from then on, five times as fast.
class ZELZoomTracker final : public ZELMouseTracker {
public:
    ZELZoomTracker(Grid& grid, int cell, const QPointF& press);

protected:
    void move(const QPointF& offset, const TrackerEvent& event) override;
    void endTracking() override;

private:
    float origZoom;  // percent
    bool fWasAutoFit, fFast = false, fMoved = false;
    double fLast = 0;
};

// Right widens the window, up raises its level; a 256th of the greatest width for two points, finer
// and faster with Option and Shift. Display values, so that a step is one of the picture.
class ZELVOITracker final : public ZELMouseTracker {
public:
    ZELVOITracker(Grid& grid, int cell, const QPointF& press);

protected:
    void move(const QPointF& offset, const TrackerEvent& event) override;
    void endTracking() override;

private:
    zelDisplayVOILimits fLimits;
    std::uint32_t winWidthOrig = 0, fWidth = 0;
    std::int32_t winLevelOrig = 0, fLevel = 0;
    double fSpeed = 2;
    bool fKnown = false, fStarted = false;
};

class ZELBnCTracker final : public ZELMouseTracker {
public:
    ZELBnCTracker(Grid& grid, int cell, const QPointF& press);

protected:
    void move(const QPointF& offset, const TrackerEvent& event) override;
    void endTracking() override;

private:
    std::int32_t fBrightnessOrig, fContrastOrig, _brightness, _contrast;
    double fFactor = 1;
    bool fStarted = false;
};

// The tracker of a tool of ZELToolsController.h; null for tools without one.
[[nodiscard]] std::unique_ptr<ZELMouseTracker> NewTrackerForTool(
    std::int32_t tool, ZELSequenceGridViewModelController& grid, int cell, const QPointF& press);

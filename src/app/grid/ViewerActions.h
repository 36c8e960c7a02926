// The commands that change how frames look, for a frame or its whole sequence as the tool scope
// says (any other scope: nothing, but the resets take it for the frame), and those that move
// between sequences. A frame of 0 is the current one of its grid. Main thread only.
#pragma once
#include "app/grid/GridHost.h"
#include "app/grid/GridNotifications.h"
#include "dicom_core/look/zelVOIFunction.h"
#include "platform/NotificationCenter.h"

// What a reset may undo; the numbers are those of the frame table, and its own.
inline constexpr std::int32_t kRevertMeasurements = 8;

class ViewerActions {
public:
    using Grid = ZELSequenceGridViewModelController;

    // Listens to the tools of the window's views too.
    explicit ViewerActions(GridHost* host);

    // ---- zoom ----

    void setZoomTo(double percent, Grid& grid, std::int32_t frame);  // held within the limits
    void autoFitView(Grid& grid, std::int32_t frame);
    void nextZoomValue(Grid& grid, std::int32_t frame = 0);
    void prevZoomValue(Grid& grid, std::int32_t frame = 0);
    void normalZoomValue(Grid& grid, std::int32_t frame = 0);
    void doSegmentZoom(int segment);  // of the tool bar: 0 smaller, 1 100 percent, 2 larger

    // ---- negative and turns ----

    void invertColorsForView(Grid& grid, std::int32_t frame);
    void flipView(Grid& grid, std::int32_t frame, bool vertical);
    void rotateView(Grid& grid, std::int32_t frame, bool toLeft);

    // ---- the active grid ----

    void U_ChangeBrightnessTo(double brightnessOrWidth, double contrastOrLevel);
    void showVOITable(const std::shared_ptr<const zelVOITable>& table);  // of the file
    void originalWWWLorBnC();
    void setCurrentClutID(std::int32_t table);
    void resetColors();
    void resetCLUTs();
    void resetOrientation();
    void resetFramePosition();
    void resetMeasurements();
    void resetAllChanges();
    void selectWholeImage();  // no crops
    // A reset with these flags has something to do; -1 for everything.
    [[nodiscard]] bool canRevertSeqWithFlags(std::int32_t flags) const;

    // ---- between sequences ----

    void gotoNextSequence(Grid& grid) { gotoSequence(grid, true); }
    void gotoPreviousSequence(Grid& grid) { gotoSequence(grid, false); }
    // The next one in the order of the tree, which closes to a ring, that stands in no playing
    // grid; with `forCine` the next that plays. Null for none.
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> U_GetNextSeriesSequenceFor(
        dk_SequenceBase* sequence, bool forCine)
    {
        return walk(sequence, forCine, true);
    }
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> U_GetPreviousSeriesSequenceFor(
        dk_SequenceBase* sequence, bool forCine)
    {
        return walk(sequence, forCine, false);
    }
    // To the grid where it stands already, else into this one. Nothing for null.
    void U_DoJumpView(Grid& grid, const std::shared_ptr<ZELSequenceProxy>& proxy);
    // Tells the window's panes that the user has brought it into the active grid.
    void tellOfSequence(const std::shared_ptr<ZELSequenceProxy>& proxy);
    void switchSequenceMark(Grid& grid);

private:
    [[nodiscard]] Grid* target() const { return fHost->activeSequenceGridController(); }
    [[nodiscard]] ZELSequenceProxy* activeSequence() const;
    [[nodiscard]] bool forAll() const { return fHost->toolScope().isSequence(); }
    [[nodiscard]] Grid* gridOf(const void* view) const;
    // Runs `change` with the selector that the scope makes of `frame`; false when it does nothing.
    template <typename Change>
    bool inScope(Grid& grid, std::int32_t frame, Change change);
    void dropPictures(Grid& grid, std::int32_t frame);
    void redraw(Grid& grid, std::int32_t frame);
    void redrawTarget();
    void clearViewState();
    void zoomDidChange(Grid& grid, std::int32_t frame);
    void gotoSequence(Grid& grid, bool next);
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> walk(dk_SequenceBase* sequence, bool forCine,
                                                         bool next);
    [[nodiscard]] dk_SequenceBase* stepInRing(dk_SequenceBase* sequence, bool next) const;
    [[nodiscard]] bool standsInPlayingGrid(const dk_SequenceBase* sequence) const;
    [[nodiscard]] bool canRevertSequence(std::int32_t flags) const;
    void voiDidChange(const Notification& note);
    void bncDidChange(const Notification& note);
    void panePositionDidChange(const Notification& note);

    GridHost* fHost;  // not owned
    NotificationCenter::Observation fVOI, fBnC, fCenter;
};

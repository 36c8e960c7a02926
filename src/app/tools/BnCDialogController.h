// The sheet that adjusts window width and level of the current frame, or brightness and contrast:
// previews on that frame while it is open, and with OK goes by the tool scope. No widgets. Main
// thread only.
#pragma once
#include "app/grid/ViewerActions.h"
#include "app/grid/ZELSequenceGridViewModelController.h"

class BnCDialogController {
public:
    enum class Row { First, Second };  // width and level, or brightness and contrast

    // For the active grid, whose image is valid (`canOpen`). Host and actions outlive it.
    BnCDialogController(GridHost* host, ViewerActions* actions);
    [[nodiscard]] static bool canOpen(const GridHost& host);

    [[nodiscard]] QString titleOf(Row row) const;
    [[nodiscard]] QString explanationOf(Row row) const;  // the limits, in words
    [[nodiscard]] double minimumOf(Row row) const;
    [[nodiscard]] double maximumOf(Row row) const;
    [[nodiscard]] double valueOf(Row row) const;  // the frame's present one
    // 1, or less where the scale of the frame's window has finer steps; and how many decimals show
    // such a step.
    [[nodiscard]] double step() const;
    [[nodiscard]] int decimals() const;

    [[nodiscard]] bool previewIsOn() const;
    // One control has another value; both rows' values when `row` is none of them.
    void previewImage(Row row, double value);
    void previewBoth(double first, double second);
    void livePreviewOnOff(bool on, double first, double second);
    void accept(double first, double second);
    void cancel();

private:
    void show(double first, double second);
    [[nodiscard]] const zel_TransformRec* record() const;  // null when the frame is gone

    ViewerActions* fActions;
    ZELSequenceGridViewModelController* _theView;
    std::shared_ptr<ZELSequenceProxy> _targetSequence;
    const bool fGray;
    const std::int32_t fFrame;
    double _origWWBrightness = 0, _origWLContrast = 0;
    std::shared_ptr<const zelVOITable> fOrigTable;  // that showed in place of the window; or null
};

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
    [[nodiscard]] std::int32_t minimumOf(Row row) const;
    [[nodiscard]] std::int32_t maximumOf(Row row) const;
    [[nodiscard]] std::int32_t valueOf(Row row) const;  // the frame's present one

    [[nodiscard]] bool previewIsOn() const;
    // One control has another value; both rows' values when `row` is none of them.
    void previewImage(Row row, std::int32_t value);
    void previewBoth(std::int32_t first, std::int32_t second);
    void livePreviewOnOff(bool on, std::int32_t first, std::int32_t second);
    void accept(std::int32_t first, std::int32_t second);
    void cancel();

private:
    void show(float first, float second);

    ViewerActions* fActions;
    ZELSequenceGridViewModelController* _theView;
    std::shared_ptr<ZELSequenceProxy> _targetSequence;
    const bool fGray;
    const std::int32_t fFrame;
    float _origWWBrightness, _origWLContrast;
};

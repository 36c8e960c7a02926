#include "app/tools/BnCDialogController.h"

#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"

namespace {

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

}  // namespace

bool BnCDialogController::canOpen(const GridHost& host)
{
    const ZELSequenceGridViewModelController* grid = host.activeSequenceGridController();
    return grid && grid->currZELSequence() && grid->currZELSequence()->currentImageIsValid() &&
           !grid->cineModeIsON();
}

BnCDialogController::BnCDialogController(GridHost* host, ViewerActions* actions)
    : fActions(actions),
      _theView(host->activeSequenceGridController()),
      _targetSequence(_theView->currZELSequence()),
      fGray(_targetSequence->isDICOMGray()),
      fFrame(_targetSequence->currentFrame()),
      _origWWBrightness(static_cast<float>(_targetSequence->currentWWBrightness())),
      _origWLContrast(static_cast<float>(_targetSequence->currentWLContrast()))
{
    // Of a window the whole number is what is shown; what returns is what was.
    const dk_ImageFrameInfo* info = _targetSequence->theSequence()->GetImageFrameInfo(fFrame);
    if (fGray && info) {
        _origWWBrightness = info->fTransform.voiWidth;
        _origWLContrast = info->fTransform.voiLevel;
    }
}

QString BnCDialogController::titleOf(Row row) const
{
    if (row == Row::First)
        return Word(fGray ? "Window Width" : "Brightness");
    return Word(fGray ? "Window Level" : "Contrast");
}

QString BnCDialogController::explanationOf(Row row) const
{
    return Word(fGray ? "WWWLValuesExplain" : "BCValuesExplain")
        .arg(minimumOf(row))
        .arg(maximumOf(row));
}

std::int32_t BnCDialogController::minimumOf(Row row) const
{
    return row == Row::First ? _targetSequence->theMinWWBrightnessForFrame(fFrame)
                             : _targetSequence->theMinWLContrastForFrame(fFrame);
}

std::int32_t BnCDialogController::maximumOf(Row row) const
{
    return row == Row::First ? _targetSequence->theMaxWWBrightnessForFrame(fFrame)
                             : _targetSequence->theMaxWLContrastForFrame(fFrame);
}

std::int32_t BnCDialogController::valueOf(Row row) const
{
    return row == Row::First ? _targetSequence->theWWBrightnessForFrame(fFrame)
                             : _targetSequence->theWLContrastForFrame(fFrame);
}

bool BnCDialogController::previewIsOn() const { return prefs_BnCDialogPreview(); }

void BnCDialogController::show(float first, float second)
{
    if (fGray)
        _targetSequence->changeVOIForAllFrames(false, first, second);
    else
        _targetSequence->changeBnCForAllFrames(false, static_cast<std::int32_t>(first),
                                               static_cast<std::int32_t>(second));
    if (_theView->view())
        _theView->view()->setNeedsDisplay();
}

void BnCDialogController::previewBoth(std::int32_t first, std::int32_t second)
{
    if (previewIsOn())
        show(static_cast<float>(first), static_cast<float>(second));
}

void BnCDialogController::previewImage(Row row, std::int32_t value)
{
    previewBoth(row == Row::First ? value : valueOf(Row::First),
                row == Row::Second ? value : valueOf(Row::Second));
}

void BnCDialogController::livePreviewOnOff(bool on, std::int32_t first, std::int32_t second)
{
    prefs_Set_BnCDialogPreview(on);
    previewBoth(first, second);
}

// What nobody touched stays as it is, to its decimals.
void BnCDialogController::accept(std::int32_t first, std::int32_t second)
{
    if (first != valueOf(Row::First) || second != valueOf(Row::Second))
        show(static_cast<float>(first), static_cast<float>(second));
    const dk_ImageFrameInfo* info = _targetSequence->theSequence()->GetImageFrameInfo(fFrame);
    if (fGray && info)
        fActions->U_ChangeBrightnessTo(double{info->fTransform.voiWidth},
                                       double{info->fTransform.voiLevel});
    else
        fActions->U_ChangeBrightnessTo(valueOf(Row::First), valueOf(Row::Second));
}

void BnCDialogController::cancel() { show(_origWWBrightness, _origWLContrast); }

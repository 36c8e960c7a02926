#include "app/tools/BnCDialogController.h"

#include "dicom_core/look/WindowText.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMostBnC = 100;

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
      fFrame(_targetSequence->currentFrame())
{
    _origWWBrightness = valueOf(Row::First);
    _origWLContrast = valueOf(Row::Second);
    if (const zel_TransformRec* present = record())
        fOrigTable = present->voiTable;
}

const zel_TransformRec* BnCDialogController::record() const
{
    const dk_ImageFrameInfo* info = _targetSequence->theSequence()->GetImageFrameInfo(fFrame);
    return info ? &info->fTransform : nullptr;
}

QString BnCDialogController::titleOf(Row row) const
{
    if (row == Row::First)
        return Word(fGray ? "Window Width" : "Brightness");
    return Word(fGray ? "Window Level" : "Contrast");
}

QString BnCDialogController::explanationOf(Row row) const
{
    const auto text = [this](double value) { return QString::number(value, 'f', decimals()); };
    return Word(fGray ? "WWWLValuesExplain" : "BCValuesExplain")
        .arg(text(minimumOf(row)), text(maximumOf(row)));
}

double BnCDialogController::minimumOf(Row row) const
{
    const zel_TransformRec* present = record();
    if (fGray && present)
        return double{row == Row::First ? present->voiWidthMin : present->voiLevelMin};
    return -kMostBnC;
}

double BnCDialogController::maximumOf(Row row) const
{
    const zel_TransformRec* present = record();
    if (fGray && present)
        return double{row == Row::First ? present->voiWidthMax : present->voiLevelMax};
    return kMostBnC;
}

double BnCDialogController::valueOf(Row row) const
{
    const zel_TransformRec* present = record();
    if (!present)
        return 0;
    if (fGray)
        return double{row == Row::First ? present->voiWidth : present->voiLevel};
    return row == Row::First ? present->brightness : present->contrast;
}

double BnCDialogController::step() const
{
    const zel_TransformRec* present = record();
    const bool fine = fGray && present && !present->voiInfo.IsPlain();
    return fine ? std::min(1.0, double{present->voiInfo.pixelFactor}) : 1;
}

// As many as the window's own texts have.
int BnCDialogController::decimals() const
{
    if (step() >= 1)
        return 0;
    const std::string text = WindowValueText(record()->voiInfo, step());
    const std::size_t point = text.find('.');
    return point == std::string::npos ? 0 : static_cast<int>(text.size() - point - 1);
}

bool BnCDialogController::previewIsOn() const { return prefs_BnCDialogPreview(); }

void BnCDialogController::show(double first, double second)
{
    if (fGray)
        _targetSequence->changeVOIForAllFrames(false, static_cast<float>(first),
                                               static_cast<float>(second));
    else
        _targetSequence->changeBnCForAllFrames(false, static_cast<std::int32_t>(first),
                                               static_cast<std::int32_t>(second));
    if (_theView->view())
        _theView->view()->setNeedsDisplay();
}

void BnCDialogController::previewBoth(double first, double second)
{
    if (previewIsOn())
        show(first, second);
}

void BnCDialogController::previewImage(Row row, double value)
{
    previewBoth(row == Row::First ? value : valueOf(Row::First),
                row == Row::Second ? value : valueOf(Row::Second));
}

void BnCDialogController::livePreviewOnOff(bool on, double first, double second)
{
    prefs_Set_BnCDialogPreview(on);
    if (first != valueOf(Row::First) || second != valueOf(Row::Second))
        previewBoth(first, second);
}

// What nobody touched stays as it is, a table too.
void BnCDialogController::accept(double first, double second)
{
    // A field shows fewer decimals than a value may have.
    const auto differs = [this](double shown, double present) {
        return std::abs(shown - present) >= step() / 2;
    };
    if (differs(first, valueOf(Row::First)) || differs(second, valueOf(Row::Second)))
        show(first, second);
    const zel_TransformRec* present = record();
    if (fGray && present && present->voiTable)
        fActions->showVOITable(std::shared_ptr(present->voiTable));
    else
        fActions->U_ChangeBrightnessTo(valueOf(Row::First), valueOf(Row::Second));
}

void BnCDialogController::cancel()
{
    show(_origWWBrightness, _origWLContrast);
    if (fGray && fOrigTable)
        _targetSequence->changeVOITableForAllFrames(false, fOrigTable);
}

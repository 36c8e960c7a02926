#include "app/tools/ZELWWWLTextBoxController.h"

#include "app/tools/BnCDialogController.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/Words.h"

#include <cmath>

namespace {

constexpr double kMostWindow = 10000, kMostBnC = 100;  // that may be typed, both ways from 0

}  // namespace

ZELWWWLTextBoxController::ZELWWWLTextBoxController(GridHost* host, ViewerActions* actions,
                                                   std::function<void()> changed)
    : _gridsController(host),
      fActions(actions),
      fChanged(std::move(changed)),
      fPresets(NotificationCenter::Default().AddObserver(
          kNoteWWWLPresetsChanged, [this](const Notification&) { fChanged(); })),
      fWatch(host, {"brightnessString", "contrastString"}, [this] { fChanged(); })
{
}

QString ZELWWWLTextBoxController::text(Box box) const
{
    const ZELSequenceProxy* proxy = target();
    if (!proxy)
        return {};
    return box == Box::Brightness ? proxy->brightnessString() : proxy->contrastString();
}

bool ZELWWWLTextBoxController::mayEdit() const { return target() && target()->isGood(); }

const char* ZELWWWLTextBoxController::imageOf(Box box) const
{
    const bool gray = target() && target()->isDICOMGray();
    if (box == Box::Brightness)
        return gray ? "ww_bw" : "brightness_bw";
    return gray ? "wc_bw" : "contrast_bw";
}

QString ZELWWWLTextBoxController::toolTipOf(Box box) const
{
    const bool gray = target() && target()->isDICOMGray();
    const char* key = gray ? "Image window width" : "Image brightness";
    if (box == Box::Contrast)
        key = gray ? "Image window level" : "Image contrast";
    return ZelWord(kWordsMenuItems, key);
}

// A scale with steps below 1 shows decimals, so they can be typed as well.
bool ZELWWWLTextBoxController::hasDecimals() const
{
    const dk_ImageFrameInfo* info =
        mayEdit() ? target()->theSequence()->GetImageFrameInfo(target()->currentFrame()) : nullptr;
    return info && !info->fTransform.voiInfo.IsPlain();
}

double ZELWWWLTextBoxController::parsed(const QString& typed) const
{
    const bool whole = target() && target()->isDICOMGray() && !hasDecimals();
    return NumberAtStart(CutAt(typed, whole ? "0123456789+-" : "0123456789+-."));
}

bool ZELWWWLTextBoxController::isInRange(double value) const
{
    const bool gray = target() && target()->isDICOMGray();
    return std::abs(value) <= (gray ? kMostWindow : kMostBnC);
}

EditEnd ZELWWWLTextBoxController::textShouldEndEditing(Box box, const QString& typed) const
{
    if (isInRange(parsed(typed)))
        return {};
    return {false, text(box)};
}

void ZELWWWLTextBoxController::changeWWWLValue(Box box, const QString& typed)
{
    const double value = parsed(typed);
    if (!isInRange(value))
        return;
    if (box == Box::Brightness)
        setWWBrightnessValueTo(value);
    else
        setWLContrastValueTo(value);
}

void ZELWWWLTextBoxController::setWWBrightnessValueTo(double value)
{
    if (mayEdit())
        U_ApplyWWBrightness(value, hasDecimals() ? NumberAtStart(text(Box::Contrast))
                                                 : target()->currentWLContrast());
}

void ZELWWWLTextBoxController::setWLContrastValueTo(double value)
{
    if (mayEdit())
        U_ApplyWWBrightness(
            hasDecimals() ? NumberAtStart(text(Box::Brightness)) : target()->currentWWBrightness(),
            value);
}

void ZELWWWLTextBoxController::U_ApplyWWBrightness(double brightness, double contrast)
{
    if (!hasDecimals()) {
        brightness = std::trunc(brightness);
        contrast = std::trunc(contrast);
    }
    fActions->U_ChangeBrightnessTo(brightness, contrast);
    fChanged();
}

// ---- menu ----

std::vector<MenuEntry> ZELWWWLTextBoxController::updateWWWLMenu()
{
    if (!mayEdit() || _gridsController->windowIsClosing())
        return {};
    LevelMenuCommands commands;
    commands.originalWWWLorBnC = [this] {
        fActions->originalWWWLorBnC();
        fChanged();
    };
    commands.selectWWWLPresetValue = [this](int item) { selectWWWLPresetValue(item); };
    commands.selectWWWLMenuValue = [this](int item) { selectWWWLMenuValue(item); };
    commands.selectVOITable = [this](int table) { selectVOITable(table); };
    commands.makePresetAction = makePresetAction;
    commands.editPresetsAction = editPresetsAction;
    if (BnCDialogController::canOpen(*_gridsController))
        commands.openAdjustColorsDialog = openAdjustColorsDialog;
    return constructLevelMenuForSequence(*target(), 0, true, commands);
}

void ZELWWWLTextBoxController::selectWWWLPresetValue(int item)
{
    if (!mayEdit())
        return;
    const std::vector<FileWindow> windows = FileWindowsOf(*target(), 0);
    if (item >= 1 && item <= static_cast<int>(windows.size())) {
        const FileWindow& window = windows[static_cast<std::size_t>(item - 1)];
        U_ApplyWWBrightness(window.width, window.level);
    }
}

void ZELWWWLTextBoxController::selectWWWLMenuValue(int item)
{
    if (!mayEdit())
        return;
    const std::vector<ZELWWWLMenuItem> presets = loadWWWLPresets();
    const int files = static_cast<int>(FileWindowsOf(*target(), 0).size());
    const int preset = UserPresetOfItem(item, files, static_cast<int>(presets.size()));
    if (preset >= 0) {
        const ZELWWWLMenuItem& chosen = presets[static_cast<std::size_t>(preset)];
        U_ApplyWWBrightness(double{chosen.wwidth}, double{chosen.wcenter});
    }
}

void ZELWWWLTextBoxController::selectVOITable(int table)
{
    if (!mayEdit())
        return;
    const std::vector<FileTable> tables = FileTablesOf(*target(), 0);
    if (table >= 0 && table < static_cast<int>(tables.size()))
        fActions->showVOITable(tables[static_cast<std::size_t>(table)].table);
    fChanged();
}

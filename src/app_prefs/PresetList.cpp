#include "app_prefs/PresetList.h"

#include "app/tools/ZELWWWLTextBoxController.h"
#include "platform/AlertWords.h"
#include "platform/NotificationCenter.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kMostValue = 1e9;  // far beyond any file's values
constexpr float kNewWidth = 400, kNewLevel = 40;

std::optional<double> NumberOf(const QString& text)
{
    bool isNumber = false;
    double number = QLocale().toDouble(text.trimmed(), &isNumber);
    if (!isNumber)
        number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (!isNumber || !(std::abs(number) <= kMostValue))  // nor NaN
        return std::nullopt;
    return number;
}

QString Spelled(float number, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return decimals == 0 ? locale.toString(std::round(double{number}), 'f', 0)
                         : locale.toString(double{number}, 'g', decimals);
}

}  // namespace

QString PresetList::textAt(int row, Column column) const
{
    if (!has(row))
        return {};
    const ZELWWWLMenuItem& preset = at(row);
    if (column == Column::Title)
        return preset.itemName.isEmpty() ? ZelWord(kWordsMenuItems, "Unnamed") : preset.itemName;
    return Spelled(column == Column::Level ? preset.wcenter : preset.wwidth, 0);
}

QString PresetList::editTextAt(int row, Column column) const
{
    constexpr int kDigitsOfFloat = 7;
    if (!has(row) || column == Column::Title)
        return textAt(row, column);
    return Spelled(column == Column::Level ? at(row).wcenter : at(row).wwidth, kDigitsOfFloat);
}

bool PresetList::setTextAt(int row, Column column, const QString& text)
{
    if (!has(row))
        return false;
    ZELWWWLMenuItem& preset = fPresets[static_cast<std::size_t>(row)];
    if (column == Column::Title) {
        preset.itemName = text.simplified();
    } else {
        const std::optional<double> number = NumberOf(text);
        const auto value = static_cast<float>(number.value_or(0));
        if (!number || (column == Column::Width && !(value > 0)))
            return false;
        (column == Column::Level ? preset.wcenter : preset.wwidth) = value;
    }
    saveTableValues();
    return true;
}

int PresetList::addPreset(int row)
{
    ZELWWWLMenuItem preset;
    preset.itemName = ZelWord(kWordsMenuItems, "Unnamed");
    preset.wwidth = kNewWidth;
    preset.wcenter = kNewLevel;
    const int place = has(row) ? row + 1 : count();
    fPresets.insert(fPresets.begin() + place, preset);
    saveTableValues();
    return place;
}

int PresetList::addPresetOf(float width, float level)
{
    fPresets.push_back({ZelWord(kWordsMenuItems, "Untitled"), width, level, 0});
    saveTableValues();
    return count() - 1;
}

void PresetList::removePresets(std::vector<int> rows)
{
    std::ranges::sort(rows, std::greater<>());
    const auto again = std::ranges::unique(rows);
    rows.erase(again.begin(), again.end());
    for (const int row : rows) {
        if (has(row))
            fPresets.erase(fPresets.begin() + row);
    }
    saveTableValues();
}

std::optional<int> PresetList::movePreset(int row, int target)
{
    if (!has(row) || target < 0 || target > count() || target == row || target == row + 1)
        return std::nullopt;
    const ZELWWWLMenuItem preset = at(row);
    const int place = row < target ? target - 1 : target;
    fPresets.erase(fPresets.begin() + row);
    fPresets.insert(fPresets.begin() + place, preset);
    saveTableValues();
    return place;
}

bool PresetList::resetToDefaults(const AlertForError& ask)
{
    if (!ask || ask(kZelConfirmPresetReset, QString()) != kFirstButton)
        return false;
    fPresets = loadWWWLPresetsOfTheProgram();
    saveTableValues();
    return true;
}

void PresetList::saveTableValues()
{
    for (int row = 0; row < count(); ++row)
        fPresets[static_cast<std::size_t>(row)].tableID = row;
    if (const QvxStatus status = saveWWWLPresets(fPresets))
        LogLine("presets not saved: " + std::string(StatusText(status)));
    NotificationCenter::Default().Post(kNoteWWWLPresetsChanged, this);
}

#include "app/tools/LevelMenu.h"

#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/Words.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kItemsBeforeUser = 2;  // the empty one and the separator

// What of a frame decides marks and what can be chosen.
struct Window {
    std::int32_t width, level;  // rounded half away from zero
    bool atOriginals, isTable;
    std::int32_t leastWidth, mostWidth, leastLevel, mostLevel;

    [[nodiscard]] bool Is(double otherWidth, double otherLevel) const
    {
        return !isTable && static_cast<std::int32_t>(otherWidth) == width &&
               static_cast<std::int32_t>(otherLevel) == level;
    }
    [[nodiscard]] bool Allows(double otherWidth, double otherLevel) const
    {
        return otherWidth >= leastWidth && otherWidth <= mostWidth && otherLevel >= leastLevel &&
               otherLevel <= mostLevel;
    }
};

std::int32_t Rounded(float value)
{
    return static_cast<std::int32_t>(std::lround(std::clamp(double{value}, -2e9, 2e9)));
}

const zel_TransformRec* RecordOf(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    const std::int32_t number = frame == 0 ? proxy.currentFrame() : frame;
    dk_SequenceBase* sequence = proxy.theSequence();
    const dk_ImageFrameInfo* info = sequence ? sequence->GetImageFrameInfo(number) : nullptr;
    return info ? &info->fTransform : nullptr;
}

Window WindowOf(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    const zel_TransformRec* record = RecordOf(proxy, frame);
    return {.width = record ? Rounded(record->voiWidth) : 0,
            .level = record ? Rounded(record->voiLevel) : 0,
            .atOriginals = record && record->IsVOIAtOriginals(),
            .isTable = record && record->voiTable,
            .leastWidth = proxy.theMinWWBrightnessForFrame(frame),
            .mostWidth = proxy.theMaxWWBrightnessForFrame(frame),
            .leastLevel = proxy.theMinWLContrastForFrame(frame),
            .mostLevel = proxy.theMaxWLContrastForFrame(frame)};
}

MenuEntry Command(const QString& title, bool enabled, bool checked, std::function<void()> perform)
{
    MenuEntry entry;
    entry.kind = MenuEntry::Kind::Command;
    entry.title = title;
    entry.enabled = enabled && perform;
    entry.checked = checked;
    if (perform)
        entry.perform = [work = std::move(perform)](bool) { work(); };
    return entry;
}

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

QString TitleOf(const FileWindow& window, std::size_t number, std::size_t count)
{
    if (!window.name.isEmpty())
        return QStringLiteral("%1 %2 (%3)")
            .arg(Word("Original"), QString::number(number), window.name);
    if (count == 1)
        return Word("Original");
    return QStringLiteral("%1 %2").arg(Word("Original"), QString::number(number));
}

void AddFileWindows(std::vector<MenuEntry>* menu, const std::vector<FileWindow>& windows,
                    const Window& shown, const LevelMenuCommands& commands)
{
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const FileWindow& window = windows[i];
        const int item = static_cast<int>(menu->size());
        menu->push_back(Command(TitleOf(window, i + 1, windows.size()),
                                shown.Allows(window.width, window.level),
                                shown.Is(window.width, window.level),
                                [item, choose = commands.selectWWWLPresetValue] { choose(item); }));
    }
}

void AddUserPresets(std::vector<MenuEntry>* menu, const Window& shown,
                    const LevelMenuCommands& commands)
{
    const std::vector<ZELWWWLMenuItem> presets = loadWWWLPresets();
    if (!presets.empty())
        menu->emplace_back();  // a separator
    for (const ZELWWWLMenuItem& preset : presets) {
        const double width = double{preset.wwidth}, level = double{preset.wcenter};
        const int item = static_cast<int>(menu->size());
        menu->push_back(Command(preset.itemName.isEmpty() ? Word("Unnamed") : preset.itemName,
                                shown.Allows(width, level), shown.Is(width, level),
                                [item, choose = commands.selectWWWLMenuValue] { choose(item); }));
    }
}

void AddFileTables(std::vector<MenuEntry>* menu, const std::vector<FileTable>& tables,
                   const zel_TransformRec* shown, const LevelMenuCommands& commands)
{
    if (!tables.empty())
        menu->emplace_back();
    for (std::size_t i = 0; i < tables.size(); ++i) {
        const FileTable& table = tables[i];
        const QString title =
            table.name.isEmpty() ? Word("Table #").arg(static_cast<int>(i) + 1) : table.name;
        const bool isShown = shown && shown->voiTable && *shown->voiTable == *table.table;
        menu->push_back(Command(title, true, isShown, [i, choose = commands.selectVOITable] {
            choose(static_cast<int>(i));
        }));
    }
}

void AddExtraItems(std::vector<MenuEntry>* menu, bool gray, const LevelMenuCommands& commands)
{
    if (gray) {
        menu->emplace_back();
        menu->push_back(Command(Word("Make Preset"), true, false, commands.makePresetAction));
        menu->push_back(Command(Word("Edit Presets"), true, false, commands.editPresetsAction));
    }
    menu->emplace_back();
    menu->push_back(Command(Word("Adjust..."), true, false, commands.openAdjustColorsDialog));
}

}  // namespace

std::vector<MenuEntry> constructLevelMenuForSequence(const ZELSequenceProxy& proxy,
                                                     std::int32_t frame, bool withExtraItems,
                                                     const LevelMenuCommands& commands)
{
    std::vector<MenuEntry> menu;
    menu.push_back(Command({}, false, false, nullptr));
    const bool gray = proxy.isDICOMGray();
    if (!gray) {
        const bool untouched =
            proxy.theWWBrightnessForFrame(frame) == 0 && proxy.theWLContrastForFrame(frame) == 0;
        menu.push_back(Command(Word("Original"), true, untouched, commands.originalWWWLorBnC));
    } else {
        const Window shown = WindowOf(proxy, frame);
        const std::vector<FileWindow> windows = FileWindowsOf(proxy, frame);
        if (windows.empty())
            menu.push_back(
                Command(Word("Original"), true, shown.atOriginals, commands.originalWWWLorBnC));
        AddFileWindows(&menu, windows, shown, commands);
        AddUserPresets(&menu, shown, commands);
        AddFileTables(&menu, FileTablesOf(proxy, frame), RecordOf(proxy, frame), commands);
    }
    if (withExtraItems)
        AddExtraItems(&menu, gray, commands);
    return menu;
}

int UserPresetOfItem(int item, int fileWindows, int userPresets)
{
    const int preset = item - std::max(fileWindows, 1) - kItemsBeforeUser;
    return preset >= 0 && preset < userPresets ? preset : -1;
}

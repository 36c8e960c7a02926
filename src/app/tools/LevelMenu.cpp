#include "app/tools/LevelMenu.h"

#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/FrameGroups.h"
#include "platform/Words.h"

#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>

namespace {

constexpr int kItemsBeforeUser = 2;  // the empty one and the separator

// What of a frame decides marks and what can be chosen.
struct Window {
    std::int32_t width, level;  // rounded half away from zero
    bool atOriginals;
    std::int32_t leastWidth, mostWidth, leastLevel, mostLevel;

    [[nodiscard]] bool Is(double otherWidth, double otherLevel) const
    {
        return static_cast<std::int32_t>(otherWidth) == width &&
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
    return {record ? Rounded(record->voiWidth) : 0,  record ? Rounded(record->voiLevel) : 0,
            record && record->IsVOIAtOriginals(),    proxy.theMinWWBrightnessForFrame(frame),
            proxy.theMaxWWBrightnessForFrame(frame), proxy.theMinWLContrastForFrame(frame),
            proxy.theMaxWLContrastForFrame(frame)};
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

std::vector<FileWindow> FileWindowsOf(const ZELSequenceProxy& proxy, std::int32_t frame)
{
    std::vector<FileWindow> windows;
    dk_SequenceBase* sequence = proxy.theSequence();
    dk_ImageFrameInfo* info =
        sequence ? sequence->GetImageFrameInfo(frame == 0 ? proxy.currentFrame() : frame) : nullptr;
    if (!info || !proxy.isDICOMGray())
        return windows;
    const zelParserVisit visit(info->fSource);
    if (!visit.Parser())
        return windows;
    const zelFrameGroups groups(visit.Parser());
    const std::int32_t inFile = info->fFrameInFile;
    const std::int32_t count = Parser_GetNumberOfUniqueWindowingPresets(groups, inFile);
    for (std::int32_t i = 1; i <= count; ++i) {
        FileWindow window;
        std::string name;
        if (Parser_GetUniqueWindowingPreset(groups, inFile, i, &window.width, &window.level, &name))
            break;
        window.name = QString::fromStdString(name).trimmed();
        windows.push_back(std::move(window));
    }
    return windows;
}

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

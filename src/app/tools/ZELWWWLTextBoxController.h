// Window width and level of the active grid's frame, or brightness and contrast where it isn't
// gray: two boxes of the tool bar with a menu of presets. No widgets. Main thread only.
#pragma once
#include "app/grid/ViewerActions.h"
#include "app/tools/LevelMenu.h"
#include "app/tools/NumberText.h"
#include "app/tools/TargetWatch.h"

// Posted by the list of presets.
inline constexpr std::string_view kNoteWWWLPresetsChanged = "Pref_WWWLChanged";

class ZELWWWLTextBoxController {
public:
    enum class Box { Brightness, Contrast };  // or width, level

    // Both outlive the controller. `changed`: texts, images or menu are others.
    ZELWWWLTextBoxController(GridHost* host, ViewerActions* actions, std::function<void()> changed);

    [[nodiscard]] QString text(Box box) const;  // empty without a sequence
    [[nodiscard]] bool mayEdit() const;
    [[nodiscard]] const char* imageOf(Box box) const;  // name of the button's icon
    [[nodiscard]] QString toolTipOf(Box box) const;
    [[nodiscard]] EditEnd textShouldEndEditing(Box box, const QString& typed) const;
    void changeWWWLValue(Box box, const QString& typed);  // nothing for what was refused
    // The other value stays what it is; under the tool scope.
    void setWWBrightnessValueTo(double value);
    void setWLContrastValueTo(double value);

    [[nodiscard]] std::vector<MenuEntry> updateWWWLMenu();  // empty without a sequence
    // What the window does; entries without stand disabled.
    std::function<void()> makePresetAction, editPresetsAction, openAdjustColorsDialog;

    void retarget() { fWatch.retarget(); }

private:
    [[nodiscard]] ZELSequenceProxy* target() const
    {
        return TargetWatch::SequenceOf(*_gridsController);
    }
    [[nodiscard]] bool hasDecimals() const;
    [[nodiscard]] double parsed(const QString& typed) const;
    [[nodiscard]] bool isInRange(double value) const;
    void U_ApplyWWBrightness(double brightness, double contrast);
    void selectWWWLPresetValue(int item);
    void selectWWWLMenuValue(int item);
    void selectVOITable(int table);

    GridHost* _gridsController;
    ViewerActions* fActions;
    std::function<void()> fChanged;
    NotificationCenter::Observation fPresets;
    TargetWatch fWatch;
};

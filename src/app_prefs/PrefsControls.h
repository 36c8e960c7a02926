// The controls that panes share: a button with a color, a box for a flag. Each has its words,
// stores what the user chooses by the settings' own rules, and shows what is stored when told so.
// Main thread only.
#pragma once
#include "app_prefs/ColorSettings.h"
#include "app_prefs/FlagSettings.h"

#include <QCheckBox>
#include <QPushButton>
#include <functional>
#include <span>
#include <vector>

class QFormLayout;
class QGroupBox;
class QVBoxLayout;

class ColorButton final : public QPushButton {
    Q_OBJECT

public:
    explicit ColorButton(const ColorSetting& setting, QWidget* parent = nullptr);

    void refresh();
    // As if the user had chosen it in the panel.
    void choose(const QColor& color);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void openPanel();

    const ColorSetting* _setting;
};

// Rows of a form, one a color.
[[nodiscard]] std::vector<ColorButton*> AddColors(std::span<const ColorSetting> settings,
                                                  QFormLayout* form);
[[nodiscard]] std::vector<QCheckBox*> AddFlags(std::span<const FlagSetting> settings,
                                               QVBoxLayout* layout);
// Shows what is stored without storing it again.
void RefreshFlags(std::span<const FlagSetting> settings, const std::vector<QCheckBox*>& boxes);

// A titled group in `layout`; the title is a key of "Preferences".
[[nodiscard]] QGroupBox* AddGroup(const char* title, QVBoxLayout* layout);
// An icon of this window by its file's name, without extension.
[[nodiscard]] QIcon PrefsIcon(const char* name);

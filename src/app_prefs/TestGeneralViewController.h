// The pane "General": first layout, opening, text over images, grids, measurements. Main thread
// only.
#pragma once
#include "app_prefs/PrefsControls.h"
#include "app_prefs/PrefsPane.h"

class QComboBox;
class QFont;
class QLabel;

class TestGeneralViewController final : public PrefsPane {
    Q_OBJECT

public:
    explicit TestGeneralViewController(QWidget* parent = nullptr);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString windowTitle() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    void willBeDisplayed() override;

    [[nodiscard]] QComboBox* gridArrangement() const { return _arrangement; }
    [[nodiscard]] QLabel* fontSample() const { return _sample; }

private:
    void addArrangement(QVBoxLayout* column);
    void addText(QVBoxLayout* column);
    void addMeasurements(QVBoxLayout* column);
    void setGridArrangement(int index);
    void changeFontSize();
    void showFont();

    QComboBox* _arrangement;
    QLabel* _sample;
    std::vector<QCheckBox*> _opening;
    std::vector<ColorButton*> _colors;
};

// The pane "DICOM": merging, text, contrast, colors of what lies over images, localizers, cine.
// Main thread only.
#pragma once
#include "app_prefs/PrefsControls.h"
#include "app_prefs/PrefsPane.h"
#include "app_prefs/SpeedField.h"
#include "platform/NotificationCenter.h"

class QLineEdit;

class DicomPrefsTabController final : public PrefsPane {
    Q_OBJECT

public:
    explicit DicomPrefsTabController(QWidget* parent = nullptr);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString windowTitle() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    void willBeDisplayed() override;

    [[nodiscard]] QLineEdit* speedField() const { return _speed; }
    [[nodiscard]] QCheckBox* enforceSpeed() const { return _cine.back(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addCine(QVBoxLayout* column);
    void endEditingSpeed();

    QLineEdit* _speed;
    SpeedField _speedRules;
    std::vector<QCheckBox*> _dicom, _localizers, _cine;
    std::vector<ColorButton*> _colors;
    NotificationCenter::Observation _enforced;
};

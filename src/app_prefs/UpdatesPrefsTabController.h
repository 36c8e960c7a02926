// The pane "Updates": when was looked for a newer version, and a button that does. Main thread
// only.
#pragma once
#include "app_prefs/PrefsPane.h"
#include "app_prefs/UpdateService.h"

class QLabel;
class QPushButton;

// "Last check" with the date in the user's language, or that there was none.
[[nodiscard]] QString LastCheckText(const std::optional<QDateTime>& lastCheck);

class UpdatesPrefsTabController final : public PrefsPane {
    Q_OBJECT

public:
    // A null service: none is set up, and the pane says so. It outlives the pane otherwise.
    explicit UpdatesPrefsTabController(UpdateService* service, QWidget* parent = nullptr);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString windowTitle() const override;
    [[nodiscard]] QString identifier() const override;
    [[nodiscard]] QIcon image() const override;
    void willBeDisplayed() override;

    [[nodiscard]] QLabel* lastCheck() const { return _lastCheck; }
    [[nodiscard]] QPushButton* button() const { return _button; }
    void checkNow();

private:
    UpdateService* _service;
    QLabel* _lastCheck;
    QPushButton* _button;
};

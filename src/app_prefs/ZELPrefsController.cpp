#include "app_prefs/ZELPrefsController.h"

#include "app_prefs/DicomPrefsTabController.h"
#include "app_prefs/PrefsWindow.h"
#include "app_prefs/TestGeneralViewController.h"
#include "app_prefs/UpdatesPrefsTabController.h"
#include "app_prefs/WLPresetsViewController.h"

ZELPrefsController::ZELPrefsController(Hooks hooks) : _hooks(std::move(hooks)) {}
ZELPrefsController::~ZELPrefsController() = default;

PrefsWindow& ZELPrefsController::made()
{
    if (!_window) {
        _window = std::make_unique<PrefsWindow>();
        _window->addPane(new TestGeneralViewController);
        _window->addPane(new DicomPrefsTabController);
        _presets = new WLPresetsViewController(_hooks.showAlert);
        _window->addPane(_presets);
        _window->addPane(new UpdatesPrefsTabController(_hooks.updates));
    }
    return *_window;
}

void ZELPrefsController::showPreferences(QWidget* near) { showPane(QString(), near); }

void ZELPrefsController::togglePreferencesWindow(QWidget* near)
{
    if (isVisible())
        close();
    else
        showPreferences(near);
}

void ZELPrefsController::showPane(const QString& identifier, QWidget* near)
{
    made().showPane(identifier);
    made().bringUp(near);
}

void ZELPrefsController::offerPreset(float width, float level, QWidget* near)
{
    made();
    showPane(_presets->identifier(), near);
    _presets->offerPreset(width, level);
}

void ZELPrefsController::close()
{
    if (_window)
        _window->close();
}

bool ZELPrefsController::isVisible() const { return _window && _window->isVisible(); }

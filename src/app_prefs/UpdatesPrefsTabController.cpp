#include "app_prefs/UpdatesPrefsTabController.h"

#include "app_prefs/PrefsControls.h"
#include "app_prefs/PrefsWords.h"

#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

QString LastCheckText(const std::optional<QDateTime>& lastCheck)
{
    if (!lastCheck || !lastCheck->isValid())
        return ZelWord(kWordsMain, "Last check never");
    const QString date =
        QLocale().toString(*lastCheck, QStringLiteral("dddd, MMMM d, yyyy h:mm AP"));
    return QStringLiteral("%1 %2").arg(ZelWord(kWordsMain, "Last check"), date);
}

UpdatesPrefsTabController::UpdatesPrefsTabController(UpdateService* service, QWidget* parent)
    : PrefsPane(parent),
      _service(service),
      _lastCheck(new QLabel),
      _button(new QPushButton(PrefsWord("Check now")))
{
    auto* layout = new QVBoxLayout(this);
    _lastCheck->setTextFormat(Qt::PlainText);
    _lastCheck->setWordWrap(true);
    layout->addWidget(_lastCheck);
    _button->setToolTip(PrefsTip("Check now"));
    _button->setAccessibleName(PrefsWord("Check now"));
    _button->setVisible(_service != nullptr);
    connect(_button, &QPushButton::clicked, this, &UpdatesPrefsTabController::checkNow);
    layout->addWidget(_button, 0, Qt::AlignLeft);
    layout->addStretch();
    willBeDisplayed();
}

QString UpdatesPrefsTabController::title() const { return PrefsWord("Updates"); }
QString UpdatesPrefsTabController::windowTitle() const { return PrefsWord("Updates title"); }
QString UpdatesPrefsTabController::identifier() const { return QStringLiteral("Updates"); }
QIcon UpdatesPrefsTabController::image() const { return PrefsIcon("prefs_updates"); }

void UpdatesPrefsTabController::willBeDisplayed()
{
    _lastCheck->setText(_service ? LastCheckText(_service->lastCheck())
                                 : PrefsWord("No update service"));
}

void UpdatesPrefsTabController::checkNow()
{
    if (!_service)
        return;
    _button->setEnabled(false);
    _service->check([pane = QPointer(this)] {
        if (!pane)
            return;
        pane->_button->setEnabled(true);
        pane->willBeDisplayed();
    });
}

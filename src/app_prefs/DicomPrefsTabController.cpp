#include "app_prefs/DicomPrefsTabController.h"

#include "app_prefs/PrefsWords.h"
#include "prefs/PrefsNotes.h"

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

constexpr int kSpeedFieldWidth = 60;  // points

}  // namespace

DicomPrefsTabController::DicomPrefsTabController(QWidget* parent)
    : PrefsPane(parent), _speed(new QLineEdit)
{
    auto* columns = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right);
    _dicom = AddFlags(DicomFlags(), new QVBoxLayout(AddGroup("Images", left)));
    _localizers = AddFlags(LocalizerFlags(), new QVBoxLayout(AddGroup("Localizers", left)));
    _colors = AddColors(DicomColors(), new QFormLayout(AddGroup("Colors over images", right)));
    addCine(right);
    left->addStretch();
    right->addStretch();
    // From a window, where the speed on screen has become the default.
    _enforced = NotificationCenter::Default().AddObserver(kNoteFPSEnforceChanged,
                                                          [this](const Notification& note) {
                                                              if (note.object)
                                                                  willBeDisplayed();
                                                          });
    willBeDisplayed();
}

QString DicomPrefsTabController::title() const { return PrefsWord("DICOM"); }
QString DicomPrefsTabController::windowTitle() const { return PrefsWord("DICOM title"); }
QString DicomPrefsTabController::identifier() const { return QStringLiteral("DICOM"); }
QIcon DicomPrefsTabController::image() const { return PrefsIcon("prefs_dicom"); }

void DicomPrefsTabController::addCine(QVBoxLayout* column)
{
    auto* layout = new QVBoxLayout(AddGroup("Cine", column));
    _cine = AddFlags(CineFlags(), layout);
    _speed->setMaximumWidth(kSpeedFieldWidth);
    _speed->setToolTip(PrefsTip("Default speed"));
    _speed->setAccessibleName(PrefsWord("Default speed"));
    _speed->installEventFilter(this);
    connect(_speed, &QLineEdit::returnPressed, this, [this] {
        endEditingSpeed();
        _speed->selectAll();
    });
    auto* form = new QFormLayout;
    form->addRow(PrefsWord("Default speed") + QLatin1Char(':'), _speed);
    layout->addLayout(form);
}

void DicomPrefsTabController::willBeDisplayed()
{
    RefreshFlags(DicomFlags(), _dicom);
    RefreshFlags(LocalizerFlags(), _localizers);
    RefreshFlags(CineFlags(), _cine);
    for (ColorButton* button : _colors)
        button->refresh();
    _speed->setText(SpeedField::text());
    _speedRules.beginEditing(_speed->text());
}

void DicomPrefsTabController::endEditingSpeed()
{
    _speed->setText(_speedRules.endEditing(_speed->text()));
    _speedRules.beginEditing(_speed->text());
}

bool DicomPrefsTabController::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == _speed && event->type() == QEvent::FocusIn)
        _speedRules.beginEditing(_speed->text());
    else if (watched == _speed && (event->type() == QEvent::FocusOut ||
                                   (event->type() == QEvent::Hide && _speed->isModified())))
        endEditingSpeed();
    return PrefsPane::eventFilter(watched, event);
}

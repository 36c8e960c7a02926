#include "app/recovery/ZELFirstAidWindowController.h"

#include "platform/Words.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

QString Word(const char* key) { return ZelWord("FirstAid", key); }

constexpr int kWidth = 480, kHeightBombed = 392, kHeight = 362, kTextHeight = 80;  // view points

}  // namespace

ZELFirstAidWindowController::ZELFirstAidWindowController(bool hasUpdateCheck, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(Word("First Aid"));
    auto* column = new QVBoxLayout(this);
    title = addExplanation("CrashTitle");
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    _reset = new QRadioButton(Word("Reset all settings"));
    column->addWidget(_reset);
    resetExplain = addExplanation("ResetExplain");
    _collect = new QRadioButton(Word("Collect crash reports"));
    column->addWidget(_collect);
    logsExplain = addExplanation("LogsExplain");
    userText = new QPlainTextEdit;
    userText->setPlaceholderText(Word("UserText"));
    userText->setAccessibleName(Word("UserText"));
    userText->setToolTip(Word("UserText"));
    userText->setTabChangesFocus(true);
    userText->setMaximumHeight(kTextHeight);
    column->addWidget(userText);
    clearLogsCheck = new QCheckBox(Word("Remove older reports afterwards"));
    clearLogsCheck->setChecked(true);
    clearLogsCheck->setToolTip(Word("ClearLogsTip"));
    column->addWidget(clearLogsCheck);
    column->addStretch();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    okButton = buttons->button(QDialogButtonBox::Ok);
    _update = buttons->addButton(Word("Check for Updates"), QDialogButtonBox::ActionRole);
    _update->setEnabled(hasUpdateCheck);
    _update->setToolTip(Word(hasUpdateCheck ? "Check for Updates" : "No update service"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(_update, &QPushButton::clicked, this, [this] { done(kUpdateCheck); });
    connect(_collect, &QRadioButton::toggled, this, [this] { buttonPressed(); });
    column->addWidget(buttons);
    setBombed(false);
}

QLabel* ZELFirstAidWindowController::addExplanation(const char* key)
{
    auto* label = new QLabel(Word(key));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    layout()->addWidget(label);
    return label;
}

void ZELFirstAidWindowController::setBombed(bool bombed)
{
    title->setVisible(bombed);
    resetExplain->setVisible(!bombed);
    QRadioButton* chosen = bombed ? _collect : _reset;
    chosen->setChecked(true);
    chosen->setFocus();
    buttonPressed();
    resize(kWidth, bombed ? kHeightBombed : kHeight);
}

void ZELFirstAidWindowController::buttonPressed()
{
    const bool collects = selectedAction() == Action::Collect;
    okButton->setText(Word(collects ? "Collect" : "Reset"));
    okButton->setDefault(true);
    clearLogsCheck->setEnabled(collects);
    userText->setEnabled(collects);
}

ZELFirstAidWindowController::Action ZELFirstAidWindowController::selectedAction() const
{
    return _collect->isChecked() ? Action::Collect : Action::Reset;
}

QString ZELFirstAidWindowController::textToAdd() const { return userText->toPlainText(); }

bool ZELFirstAidWindowController::cleanUpLogs() const { return clearLogsCheck->isChecked(); }

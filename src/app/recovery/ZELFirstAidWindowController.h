// First aid after a crash, or by the menu: reset all settings, or collect reports and send them.
// Main thread only.
#pragma once
#include <QDialog>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

class ZELFirstAidWindowController final : public QDialog {
    Q_OBJECT

public:
    enum class Action { Reset = 0, Collect = 1 };
    static constexpr int kUpdateCheck = 2;  // how the dialog ends, beside Accepted and Rejected

    explicit ZELFirstAidWindowController(bool hasUpdateCheck, QWidget* parent = nullptr);

    void setBombed(bool bombed);  // the last run crashed
    [[nodiscard]] Action selectedAction() const;
    [[nodiscard]] QString textToAdd() const;
    [[nodiscard]] bool cleanUpLogs() const;

private:
    void buttonPressed();
    QLabel* addExplanation(const char* key);

    QLabel* title;
    QRadioButton *_reset, *_collect;  // aidButtons
    QLabel *resetExplain, *logsExplain;
    QPlainTextEdit* userText;
    QCheckBox* clearLogsCheck;
    QPushButton *okButton, *_update;
};

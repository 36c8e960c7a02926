// The Open dialog: one file or one folder. What can be chosen, and what is said of it, is decided
// by ZELOpenPanelRules. Main thread only.
#pragma once
#include "dicom_core/opening/OpenPanelRules.h"

#include <QFileDialog>

class QCheckBox;
class QLabel;

class OpenPanel final : public QFileDialog {
public:
    // `startFolder` is bytes. A `parent` is blocked while the dialog is up; there may be none.
    OpenPanel(const std::string& startFolder, QWidget* parent);

    // What was chosen, once the dialog is accepted; the shown folder when nothing was selected.
    [[nodiscard]] std::string chosenPath() const;
    [[nodiscard]] std::string shownFolder() const;

protected:
    void accept() override;

private:
    void addAccessory();
    void selectionDidChange();
    void showState();

    ZELOpenPanelRules _rules;
    QLabel* _hint;
    QCheckBox *_ignore, *_recursive;
};

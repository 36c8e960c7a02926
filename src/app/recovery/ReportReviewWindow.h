// Shows all of a report before it leaves: what may point to a patient is marked, and the user
// strikes it, or anything else. Main thread only.
#pragma once
#include "app/recovery/ReportText.h"

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

class ReportReviewWindow final : public QDialog {
    Q_OBJECT

public:
    // `text` has no carriage returns. `find` answers what of a text is to be marked.
    ReportReviewWindow(const QString& text,
                       std::function<std::vector<TextRange>(const QString&)> find,
                       QWidget* parent = nullptr);

    // As long as the text that it began with; see Struck.
    [[nodiscard]] const QString& text() const { return _text; }
    void strikeAll();       // all that is marked
    void strikeSelected();  // what is selected, or the marked part at the cursor
    [[nodiscard]] int marks() const { return static_cast<int>(_marked.size()); }

private:
    void mark();
    void strike(const std::vector<TextRange>& parts);
    void goToNextMark();

    std::function<std::vector<TextRange>(const QString&)> _find;
    QString _text;
    std::vector<TextRange> _marked;
    QPlainTextEdit* _edit;
    QPushButton *_strikeAll, *_strike, *_next;
};

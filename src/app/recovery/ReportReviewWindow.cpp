#include "app/recovery/ReportReviewWindow.h"

#include "platform/Words.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace {

QString Word(const char* key) { return ZelWord("FirstAid", key); }

constexpr QSize kFirstSize(720, 560);  // view points
const QColor kMarkBack(255, 214, 102), kMarkText(Qt::black);

}  // namespace

ReportReviewWindow::ReportReviewWindow(const QString& text,
                                       std::function<std::vector<TextRange>(const QString&)> find,
                                       QWidget* parent)
    : QDialog(parent), _find(std::move(find)), _text(text), _edit(new QPlainTextEdit)
{
    setWindowTitle(Word("Review"));
    auto* column = new QVBoxLayout(this);
    auto* explain = new QLabel(Word("ReviewExplain"));
    explain->setWordWrap(true);
    column->addWidget(explain);
    _edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    _edit->setAccessibleName(Word("Review"));
    _edit->setToolTip(Word("ReviewExplain"));
    _edit->setTabChangesFocus(true);
    // Struck, not rewritten: what the archive holds is struck in the same places.
    _edit->setReadOnly(true);
    _edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _edit->setPlainText(text);
    column->addWidget(_edit, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    const auto add = [&](const char* key, auto act) {
        QPushButton* button = buttons->addButton(Word(key), QDialogButtonBox::ActionRole);
        button->setToolTip(Word(key));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, act);
        return button;
    };
    _strikeAll = add("Strike all marked", [this] { strikeAll(); });
    _strike = add("Strike selected", [this] { strikeSelected(); });
    _strike->setShortcut(Qt::CTRL | Qt::Key_Delete);
    _next = add("Next marked", [this] { goToNextMark(); });
    _next->setShortcut(Qt::Key_F3);
    buttons->addButton(Word("Send"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    connect(_edit, &QPlainTextEdit::textChanged, this, &ReportReviewWindow::mark);
    mark();
    resize(kFirstSize);
}

void ReportReviewWindow::mark()
{
    _marked = _find(_text);
    QList<QTextEdit::ExtraSelection> shown;
    for (const TextRange& range : _marked) {
        QTextEdit::ExtraSelection selection;
        selection.format.setBackground(kMarkBack);
        selection.format.setForeground(kMarkText);
        selection.cursor = QTextCursor(_edit->document());
        selection.cursor.setPosition(range.start);
        selection.cursor.setPosition(range.start + range.length, QTextCursor::KeepAnchor);
        shown.push_back(selection);
    }
    _edit->setExtraSelections(shown);
    _strikeAll->setEnabled(!_marked.empty());
    _next->setEnabled(!_marked.empty());
}

void ReportReviewWindow::strike(const std::vector<TextRange>& parts)
{
    const int at = _edit->textCursor().selectionStart();
    const int line = _edit->verticalScrollBar()->value();
    _text = Struck(_text, parts);
    _edit->setPlainText(_text);
    QTextCursor cursor = _edit->textCursor();
    cursor.setPosition(at);
    _edit->setTextCursor(cursor);
    _edit->verticalScrollBar()->setValue(line);
}

void ReportReviewWindow::strikeAll() { strike(_marked); }

void ReportReviewWindow::strikeSelected()
{
    const QTextCursor cursor = _edit->textCursor();
    const int at = cursor.position();
    if (cursor.hasSelection())
        return strike({{cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()}});
    const auto under = std::ranges::find_if(_marked, [at](const TextRange& range) {
        return range.start <= at && at <= range.start + range.length;
    });
    if (under != _marked.end())
        strike({*under});
}

void ReportReviewWindow::goToNextMark()
{
    if (_marked.empty())
        return;
    const int at = _edit->textCursor().selectionEnd();
    auto next = std::ranges::find_if(_marked, [at](const TextRange& r) { return r.start >= at; });
    if (next == _marked.end())
        next = _marked.begin();
    QTextCursor cursor = _edit->textCursor();
    cursor.setPosition(next->start);
    cursor.setPosition(next->start + next->length, QTextCursor::KeepAnchor);
    _edit->setTextCursor(cursor);
    _edit->setFocus();
}

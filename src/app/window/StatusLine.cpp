#include "app/window/StatusLine.h"

#include "app/window/WindowWords.h"

#include <QLabel>
#include <QLocale>
#include <filesystem>

namespace {

constexpr int kLabelMargin = 6;  // view points, left and right

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), _file(addLabel(true)), _frame(addLabel(false)), _window(addLabel(false))
{
    _frame->setToolTip(ViewerWord("Frame shown, and how many there are"));
}

QLabel* StatusLine::addLabel(bool stretched)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(kLabelMargin, 0, kLabelMargin, 0);
    if (stretched) {
        // A long name is shortened instead of widening the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        addWidget(label, 1);
    } else {
        addPermanentWidget(label);
    }
    return label;
}

void StatusLine::updateFrom(const GridsPane& pane)
{
    const ZELSequenceProxy* proxy = pane.proxy();
    if (!proxy || !proxy->isGood()) {
        _file->clear();
        _frame->setText(ViewerWord("There are no frames to show"));
        return setWindowText({});
    }
    const GridsPane::Caption caption = pane.caption();
    setFileText(pane, caption);
    const QLocale locale;
    _frame->setText(
        ViewerWord("Frame %1 of %2")
            .arg(locale.toString(proxy->currentFrame()), locale.toString(proxy->totalFrames())));
    setWindowText(caption);
}

QString StatusLine::description() const
{
    return QStringList{_file->accessibleName(), _frame->text(), _window->text()}.join(
        QStringLiteral(", "));
}

void StatusLine::setWindowText(const GridsPane::Caption& caption)
{
    QString text;
    if (caption.failed)
        text = ViewerWord("This frame can't be shown");
    else if (!caption.width.empty())
        text =
            ViewerWord("Window %1, level %2")
                .arg(QString::fromStdString(caption.width), QString::fromStdString(caption.level));
    _window->setText(text);
    _window->setVisible(!text.isEmpty());
    _window->setToolTip(!caption.width.empty() ? ViewerWord("Window width and level of this frame")
                                               : QString());
}

void StatusLine::setFileText(const GridsPane& pane, const GridsPane::Caption& caption)
{
    QString name = DisplayText(std::filesystem::path(caption.path).filename().native());
    if (caption.framesOfFile > 1 && caption.framesOfFile < pane.proxy()->totalFrames()) {
        const QLocale locale;
        name =
            ViewerWord("%1 (%2 of %3)")
                .arg(name, locale.toString(caption.frame), locale.toString(caption.framesOfFile));
    }
    _file->setText(
        _file->fontMetrics().elidedText(name, Qt::ElideMiddle, _file->contentsRect().width()));
    _file->setAccessibleName(name);
    _file->setToolTip(PlainToolTip(DisplayText(caption.path)));
}

#include "app/views/NumberBox.h"

#include "app/views/MenuFromEntries.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>

NumberBox::NumberBox(Controller controller, int columns, QWidget* parent)
    : QWidget(parent), _controller(std::move(controller)), _field(new QLineEdit)
{
    auto* box = new QHBoxLayout(this);
    box->setContentsMargins({});
    box->setSpacing(0);
    box->addWidget(_field);
    _field->setFixedWidth(_field->fontMetrics().averageCharWidth() * (columns + 2));
    _field->setFocusPolicy(Qt::StrongFocus);
    _field->installEventFilter(this);
    connect(_field, &QLineEdit::textEdited, this, [this] { _typing = true; });
    connect(_field, &QLineEdit::returnPressed, this, [this] {
        if (endEditing())
            emit done();
    });
    if (_controller.menu) {
        _button = new QToolButton;
        _button->setArrowType(Qt::DownArrow);
        _button->setPopupMode(QToolButton::InstantPopup);
        _button->setAutoRaise(true);
        _button->setFocusPolicy(Qt::TabFocus);
        _button->setMenu(new QMenu(_button));
        connect(_button->menu(), &QMenu::aboutToShow, this, &NumberBox::fillMenu);
        box->addWidget(_button);
    }
    refresh();
}

void NumberBox::fillMenu() { FillMenu(_button->menu(), _controller.menu()); }

void NumberBox::refresh()
{
    const bool mayEdit = _controller.mayEdit();
    _field->setReadOnly(!mayEdit);
    if (_button)
        _button->setEnabled(mayEdit);
    if (_typing)
        return;
    if (const QString text = _controller.text(); text != _field->text())
        _field->setText(text);
}

bool NumberBox::endEditing()
{
    if (!_typing)
        return true;
    const EditEnd end = _controller.shouldEnd(_field->text());
    if (!end.shows.isNull())
        _field->setText(end.shows);
    else
        _controller.apply(_field->text());
    if (!end.ends) {
        _field->selectAll();
        return false;
    }
    _typing = false;
    refresh();
    return true;
}

bool NumberBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, _field, &QLineEdit::selectAll);  // behind the click's own work
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason && !endEditing())
        QTimer::singleShot(0, _field, qOverload<>(&QWidget::setFocus));
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        _typing = false;
        refresh();
        emit done();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

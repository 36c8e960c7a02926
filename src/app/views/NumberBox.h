// A small text box of a tool bar, with a menu where it has one. What may be typed and what becomes
// of it is decided by a controller. Main thread only.
#pragma once
#include "app/tools/MenuEntry.h"
#include "app/tools/NumberText.h"

#include <QLineEdit>
#include <QToolButton>
#include <functional>

class NumberBox final : public QWidget {
    Q_OBJECT

public:
    struct Controller {
        std::function<QString()> text;
        std::function<bool()> mayEdit;
        std::function<EditEnd(const QString&)> shouldEnd;
        std::function<void(const QString&)> apply;
        std::function<std::vector<MenuEntry>()> menu;  // none: no button
    };

    // `columns`: how many digits it shows.
    NumberBox(Controller controller, int columns, QWidget* parent = nullptr);

    void refresh();  // shows what is, unless the user is typing
    [[nodiscard]] QLineEdit* field() const { return _field; }
    [[nodiscard]] QToolButton* menuButton() const { return _button; }

signals:
    void done();  // the keyboard can go back to the picture

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool endEditing();  // false when the user has to go on
    void fillMenu();

    Controller _controller;
    QLineEdit* _field;
    QToolButton* _button = nullptr;
    bool _typing = false;
};

// The tool bar of a window: buttons in groups, each the command of a menu, in the order that the
// user has given them. Main thread only.
#pragma once
#include "app/window/CommandActions.h"
#include "platform/NotificationCenter.h"

#include <QToolBar>

class QToolButton;

class MainToolBar final : public QToolBar {
    Q_OBJECT

public:
    // What the target points to outlives the bar, whose buttons know nothing before the first
    // update.
    explicit MainToolBar(const WindowTarget& target, QWidget* parent = nullptr);
    // Every button as its command's rule has it now.
    void updateToolbarElements();
    // The button that chooses the layout shows this one.
    void selectLayout(int layout);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct Button {
        QAction* action;
        AnyCommand command;
        bool (*isOn)(const WindowTarget&);  // null: as the command says
    };
    void addItems();  // of the user's bar, in place of those that stand
    void addButton(const Button& button, const char* icon, const char* menuForm);
    void addReset();
    void addLayouts();
    void addSpace(bool stretches);

    WindowTarget _target;
    std::vector<Button> _buttons;
    QToolButton* hangingProtocolPopup = nullptr;  // null where the user has taken it out
    int _layout = 0;
    NotificationCenter::Observation _changes;
};

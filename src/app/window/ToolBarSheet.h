// The sheet that puts a tool bar together: what there is at the left, the bar at the right; by
// buttons, by keys, by dragging. Main thread only.
#pragma once
#include "app/window/ToolBarItems.h"

#include <QDialog>

class QListWidget;
class QPushButton;

class ToolBarSheet final : public QDialog {
    Q_OBJECT

public:
    explicit ToolBarSheet(QWidget* parent);

    // What the right list has, in its order.
    [[nodiscard]] std::vector<const ToolBarItem*> chosen() const;
    void accept() override;  // all windows take it

private:
    [[nodiscard]] QListWidget* addList(const char* title);
    QPushButton* addButton(const char* title, void (ToolBarSheet::*act)());
    void fill(const std::vector<const ToolBarItem*>& items);
    void refresh();  // what is in the bar can't be added again
    void add();
    void remove();
    void move(int by);
    void moveUp() { move(-1); }
    void moveDown() { move(1); }
    void restoreDefaults() { fill(DefaultToolBar()); }

    QListWidget *_available, *_shown;
    QPushButton *_add, *_remove, *_up, *_down;
};

// A window with one pane at a time, chosen in its tool bar. Escape and the usual key for closing
// close it. Main thread only.
#pragma once
#include "app_prefs/PrefsPane.h"

#include <QDialog>
#include <vector>

class QActionGroup;
class QStackedWidget;
class QToolBar;

class PrefsWindow final : public QDialog {
    Q_OBJECT

public:
    PrefsWindow();

    void addPane(PrefsPane* pane);  // taken over; behind those that are there
    // The pane that is already chosen for a name that none has.
    void showPane(const QString& identifier);
    void bringUp(QWidget* near);
    [[nodiscard]] PrefsPane* currentPane() const;  // null without panes
    [[nodiscard]] QToolBar* toolBar() const { return _bar; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void choose(PrefsPane* pane);

    QToolBar* _bar;
    QActionGroup* _group;
    QStackedWidget* _stack;
    std::vector<PrefsPane*> _panes;
};

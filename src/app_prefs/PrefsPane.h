// One pane of the preferences window. Main thread only.
#pragma once
#include <QIcon>
#include <QWidget>

class PrefsPane : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    [[nodiscard]] virtual QString title() const = 0;        // in the tool bar
    [[nodiscard]] virtual QString windowTitle() const = 0;  // while it is shown
    [[nodiscard]] virtual QString identifier() const = 0;   // for showPane
    [[nodiscard]] virtual QIcon image() const = 0;
    // Fills its controls from the preferences.
    virtual void willBeDisplayed() = 0;
};

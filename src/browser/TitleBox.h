// A title bar with a gradient: light grays on a light desktop, dark ones on a dark desktop.
#pragma once
#include <QWidget>

class TitleBox final : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

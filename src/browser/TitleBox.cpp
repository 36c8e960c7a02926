#include "browser/TitleBox.h"

#include <QLinearGradient>
#include <QPainter>

void TitleBox::paintEvent(QPaintEvent* /*event*/)
{
    constexpr float kDark = 0.3F;  // of the light grays
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    const auto gray = [dark](float white, float alpha = 1) {
        const float value = dark ? white * kDark : white;
        return QColor::fromRgbF(value, value, value, alpha);
    };
    QLinearGradient fill(0, height(), 0, 0);
    fill.setColorAt(0, gray(0.84F));
    fill.setColorAt(1, gray(0.9F));
    QPainter painter(this);
    painter.fillRect(rect(), fill);
    painter.fillRect(0, 0, width(), 1, gray(0.59F));  // top border, and its inset
    painter.fillRect(0, 1, width(), 1, gray(1, 0.3F));
}

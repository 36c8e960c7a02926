#include "Graphics/ShapeShadow.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace {

constexpr QPointF kOffset(1, 1);  // points of the screen
constexpr double kDarkness = 0.5;

// Blurred by two points: three layers, each wider and lighter, that together are half black.
struct Layer {
    double grown;  // points of the screen
    double alpha;
};
constexpr Layer kLayers[] = {{2, 0.12}, {1, 0.19}, {0, 0.3}};

// The painter moved as the screen sees it.
class Moved {
public:
    Moved(QPainter* painter, const QPointF& by) : fPainter(painter)
    {
        painter->save();
        painter->setTransform(painter->transform() * QTransform::fromTranslate(by.x(), by.y()));
    }
    ~Moved() { fPainter->restore(); }
    Moved(const Moved&) = delete;
    Moved& operator=(const Moved&) = delete;

private:
    QPainter* fPainter;
};

QColor Black(double alpha) { return QColor::fromRgbF(0, 0, 0, static_cast<float>(alpha)); }

// Points of the screen that a unit of the painter takes; quarter turns and one factor.
double ScaleOf(const QPainter& painter)
{
    const QTransform& t = painter.transform();
    const double scale = std::hypot(t.m11(), t.m12());
    return scale > 0 ? scale : 1;
}

}  // namespace

void DrawStrokeShadow(QPainter* painter, const QPainterPath& path, double width)
{
    const Moved moved(painter, kOffset);
    const double scale = ScaleOf(*painter);
    painter->setBrush(Qt::NoBrush);
    for (const Layer& layer : kLayers) {
        painter->setPen(QPen(Black(layer.alpha), width + layer.grown / scale));
        painter->drawPath(path);
    }
}

void DrawFillShadow(QPainter* painter, const QPainterPath& path)
{
    const Moved moved(painter, kOffset);
    painter->fillPath(path, Black(kDarkness));
}

void DrawTextShadow(QPainter* painter, const QPointF& baseline, const QString& text)
{
    const Moved moved(painter, kOffset);
    painter->setPen(Black(kDarkness));
    painter->drawText(baseline, text);
}

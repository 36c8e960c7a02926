#include "dicom_core/annotations/AnnotationText.h"

#include "dicom_core/annotations/PainterScope.h"
#include "prefs/Prefs.h"

#include <QFont>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr float kScaleFontSize = 9.0F;
constexpr float kLargestFontSize = 1000.0F;

std::optional<QFont> sAnnotationFont, sScaleFont;

QFont FontOfSize(float size)
{
    QFont font(prefs_Get_AnnotationsFontName());
    font.setStyleHint(QFont::Monospace);
    // A size in points would follow the resolution of the device, and hinting its pixels.
    font.setPixelSize(static_cast<int>(std::lround(std::clamp(size, 1.0F, kLargestFontSize))));
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void DrawUpright(const QString& text, QPainter& painter, QPointF point, const ZELRGBColor& color)
{
    const PainterScope scope(painter);
    painter.translate(point);
    painter.scale(1, -1);
    painter.setPen(ColorOfHighBytes(color));
    painter.drawText(QPointF(0, 0), text);
}

}  // namespace

const QFont& GetAnnotationFontRef()
{
    if (!sAnnotationFont)
        sAnnotationFont = FontOfSize(prefs_Get_AnnotationsFontSize());
    return *sAnnotationFont;
}

void ClearAnnotationFontRef() { sAnnotationFont.reset(); }

const QFont& GetScaleFontRef()
{
    if (!sScaleFont)
        sScaleFont = FontOfSize(kScaleFontSize);
    return *sScaleFont;
}

void ClearScaleFontRef() { sScaleFont.reset(); }

QRectF CalculateTextBounds(const QString& text, const QPainter& painter, const QFont& font)
{
    if (text.isEmpty())
        return {};
    const QRectF down = QFontMetricsF(font, painter.device()).tightBoundingRect(text);
    return {down.x(), -down.bottom(), down.width(), down.height()};
}

void ShapeDrawStringWithFontX(const QString& text, QPainter& painter, QPointF point,
                              const QFont& font, const ZELRGBColor& color)
{
    if (text.isEmpty())
        return;
    const PainterScope scope(painter);
    painter.setFont(font);
    DrawUpright(text, painter, point + QPointF(1, -1), kAnnotationShadow);
    DrawUpright(text, painter, point, color);
}

double GetLineHeightForFont(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return metrics.ascent() + metrics.descent() + metrics.leading();
}

QString OneLine(QString text)
{
    for (QChar& c : text) {
        const QChar::Category category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            c = u' ';
    }
    return text.trimmed();
}

// Lines of text in the plane of the annotations (AnnotationLayout.h): the painter has been turned
// by the caller so that y runs upward, and scaled so that one unit is one logical pixel; it may
// paint on a screen of any scale factor, on paper or into an image. Text is plain text and stands
// upright. Needs the application object of Qt Gui. Main thread only.
#pragma once
#include "prefs/PrefsColors.h"

#include <QRectF>
#include <QString>

class QFont;
class QPainter;

// Font and size of the preferences; a monospaced one stands in for a font that isn't there. Its
// size is in units of the plane, so that a line is as long on every device. Made once and kept:
// cleared when the preference changes.
[[nodiscard]] const QFont& GetAnnotationFontRef();
void ClearAnnotationFontRef();
// The same at size 9, for the ruler.
[[nodiscard]] const QFont& GetScaleFontRef();
void ClearScaleFontRef();

// Where the pixels of a line lie whose baseline starts at 0, 0: x() and y() are the lower left
// corner, in the plane. All 0 for a text without any.
[[nodiscard]] QRectF CalculateTextBounds(const QString& text, const QPainter& painter,
                                         const QFont& font);
// Twice: in the shadow colour one pixel to the right and below, then in `color`; the baseline
// starts at `point`. The painter's state is left as it was.
void ShapeDrawStringWithFontX(const QString& text, QPainter& painter, QPointF point,
                              const QFont& font, const ZELRGBColor& color);
// Ascent, descent and leading.
[[nodiscard]] double GetLineHeightForFont(const QFont& font);

inline constexpr ZELRGBColor kAnnotationShadow{};  // opaque black

// What a file says on several lines, on one: each line end and each other control character is a
// blank, and there are none at the ends.
[[nodiscard]] QString OneLine(QString text);

// The soft shadow under what is drawn on a frame: one point to the right and one down on the
// screen, however the frame is turned.
#pragma once
class QPainter;
class QPainterPath;
class QPointF;
class QString;

// Of a path that the painter would stroke `width` wide, in its own coordinates.
void DrawStrokeShadow(QPainter* painter, const QPainterPath& path, double width);
void DrawFillShadow(QPainter* painter, const QPainterPath& path);
// Of text at its baseline, in the painter's font. The painter stands upright.
void DrawTextShadow(QPainter* painter, const QPointF& baseline, const QString& text);

// The round badge of a row in the patient list: a mark, or the grid in which a sequence stands.
#pragma once
#include <QRectF>

class QPainter;

inline constexpr int kBadgeMark = -1;

// Fills an oval in `rect`. kBadgeMark: the colour of marks with a tick. Otherwise the colour of
// active cells with `active`, else of inactive ones, paler and on white unless `plain`; the numbers
// 1 to 4 are written on it, others are not. The painter keeps its state.
void DrawCircleWithNumber(QPainter* painter, int number, const QRectF& rect, bool active,
                          bool plain);

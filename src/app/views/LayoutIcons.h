// Icons of a window's layouts, painted from the table of layouts in the colors of the palette at
// hand, so that they are sharp at every scale and follow light and dark. Main thread only.
#pragma once
#include "app/grid/GridLayouts.h"

#include <QIcon>
#include <QRectF>
#include <vector>

// Where the grids of a layout stand in `area`, in their order, `gap` apart.
[[nodiscard]] std::vector<QRectF> LayoutCells(const GridLayout& layout, const QRectF& area,
                                              double gap);

[[nodiscard]] QIcon LayoutIcon(const GridLayout& layout);

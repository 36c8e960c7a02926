// Icons of the tool bars: line drawings in the text's color of the palette at hand, so that they
// are sharp at every scale and follow light and dark. Main thread only.
#pragma once
#include <QIcon>

// `name` is a file among the icons, without ".svg". A missing one paints nothing.
[[nodiscard]] QIcon ToolIcon(const QString& name);

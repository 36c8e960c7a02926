// The pointers over grids as the desktop takes them: its own, or a drawing of resources/cursors at
// the scale of the screen. Keeps what it has drawn. Main thread only; lives no longer than the
// application object.
#pragma once
#include "app/tools/ToolCursors.h"

#include <QCursor>
#include <QHash>
#include <QPair>
#include <QPixmap>

class CursorPictures {
public:
    // In which units the desktop reads the place of a hot spot. Under X11 these are the picture's
    // own pixels, whatever its scale.
    enum class HotSpots { Points, Pixels };
    [[nodiscard]] static HotSpots HotSpotsOfDesktop();

    explicit CursorPictures(HotSpots hotSpots = HotSpotsOfDesktop()) : fHotSpots(hotSpots) {}

    // `pixelRatio`: device pixels a point, of the screen on which it will be seen.
    [[nodiscard]] QCursor cursorFor(const GridCursor& cursor, double pixelRatio);

private:
    [[nodiscard]] QCursor made(const GridCursor& cursor, double pixelRatio) const;

    HotSpots fHotSpots;
    // As many as there are drawings and kinds of screens. A drawing has one hot spot, but for the
    // handles of a shape, which may choose.
    QHash<QPair<QString, double>, QPair<GridCursor, QCursor>> fMade;
};

// The drawing alone, at that scale; null for a name that there is none of.
[[nodiscard]] QPixmap CursorPicture(const QString& picture, int size, double pixelRatio);

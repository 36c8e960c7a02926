// Where lines of text stand in a cell: what is drawn at its size, what is too large for it, and the
// boxes of the lines, one after the other. Arithmetic only, no drawing.
//
// The plane of the annotations has x to the right and y upward: a row of the cell with the vertical
// coordinate v lies at y = -v.
#pragma once
#include "util/FourCC.h"
#include "util/XRect.h"

#include <array>
#include <cstdint>

enum class TextPosition : std::uint32_t {
    None = 0,  // the middle of the cell
    TopLeft = FourCC("tpTL"),
    TopCenter = FourCC("tpTC"),
    TopRight = FourCC("tpTR"),
    LeftCenter = FourCC("tpLC"),
    RightCenter = FourCC("tpRC"),
    BottomLeft = FourCC("tpBL"),
    BottomCenter = FourCC("tpBC"),
    BottomRight = FourCC("tpBR"),
};

// Of a template's number, row by row from the top left corner. The middle, 4, is the top left
// corner too; any other number than 0 to 8 is no position.
[[nodiscard]] TextPosition TextPositionOf(std::int32_t position);
// Lines of these grow upward from the lower edge.
[[nodiscard]] constexpr bool IsBottomPosition(TextPosition position)
{
    return position == TextPosition::BottomLeft || position == TextPosition::BottomCenter ||
           position == TextPosition::BottomRight;
}

// In the plane, whole pixels: `top` is the greater of the two. The text's baseline is the bottom.
struct AnnotationBox {
    std::int32_t top = 0, left = 0, bottom = 0, right = 0;
    bool operator==(const AnnotationBox&) const = default;
};

// Pixels at each edge that letters and ruler take up. Corners don't heed them.
struct AnnotationEdges {
    std::int32_t top = 0, left = 0, bottom = 0, right = 0;
};

class AnnotationLayout {
public:
    AnnotationLayout(const Rect& cell, const AnnotationEdges& edges);

    // Not empty, and 49 or more in both directions.
    [[nodiscard]] static bool CellIsLargeEnough(const Rect& cell);
    // Below 257 in a direction.
    [[nodiscard]] bool IsSmall() const { return fWidth < 257 || fHeight < 257; }
    // Below 129: only what is asked for even if it doesn't fit.
    [[nodiscard]] bool IsTiny() const { return fWidth < 129 || fHeight < 129; }
    // A text of this size takes less than a quarter of the cell.
    [[nodiscard]] bool Fits(double width, double height) const;
    // The box of the next line at a position; sizes are truncated. A corner's lines may leave the
    // cell, those of the other positions are held within it.
    [[nodiscard]] AnnotationBox Place(TextPosition position, double width, double height);

private:
    enum Across : std::uint8_t { FromLeft, Centred, FromRight };
    struct Anchor {
        TextPosition fPosition;
        std::int32_t fY, fX;  // where the next line begins
        Across fAcross;       // what of the box stands at fX
        bool fUpward, fHeld;
    };
    [[nodiscard]] AnnotationBox HeldInCell(AnnotationBox box) const;

    Rect fCell;
    std::int32_t fWidth, fHeight;
    std::array<Anchor, 9> fAnchors;
};

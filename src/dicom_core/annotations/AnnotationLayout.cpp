#include "dicom_core/annotations/AnnotationLayout.h"

#include <algorithm>

namespace {

constexpr std::array kPositions{
    TextPosition::TopLeft,    TextPosition::TopCenter,    TextPosition::TopRight,
    TextPosition::LeftCenter, TextPosition::TopLeft,      TextPosition::RightCenter,
    TextPosition::BottomLeft, TextPosition::BottomCenter, TextPosition::BottomRight};

// Between letters or ruler and the text beside them.
constexpr std::int32_t kGap = 4;

}  // namespace

TextPosition TextPositionOf(std::int32_t position)
{
    if (position < 0 || position >= static_cast<std::int32_t>(kPositions.size()))
        return TextPosition::None;
    return kPositions[static_cast<std::size_t>(position)];
}

bool AnnotationLayout::CellIsLargeEnough(const Rect& cell)
{
    constexpr std::int32_t kLeast = 49;
    return cell.right - cell.left >= kLeast && cell.bottom - cell.top >= kLeast;
}

AnnotationLayout::AnnotationLayout(const Rect& cell, const AnnotationEdges& edges)
    : fCell(cell), fWidth(cell.right - cell.left), fHeight(cell.bottom - cell.top)
{
    using enum TextPosition;
    const std::int32_t n = IsTiny() ? 0 : 1;
    const std::int32_t top = cell.top + n + 1, bottom = cell.bottom - n - 1;
    const std::int32_t left = cell.left + n + 3, right = cell.right - n - 1;
    const std::int32_t middleX = cell.left + fWidth / 2, middleY = -(cell.top + fHeight / 2);
    // The first lines of the two upper corners stand two pixels apart, which is meant.
    const std::int32_t belowTop = -(cell.top + edges.top) - kGap / 2;
    const std::int32_t aboveBottom = -(cell.bottom - edges.bottom) + kGap;
    const std::int32_t besideLeft = cell.left + edges.left + kGap;
    const std::int32_t besideRight = cell.right - edges.right - kGap;
    // clang-format off
    fAnchors = {{
        // position    next y        x            at x       upward held
        {TopLeft,      3 - top,      left,        FromLeft,  false, false},
        {TopRight,     1 - top,      right,       FromRight, false, false},
        {BottomLeft,   5 - bottom,   left,        FromLeft,  true,  false},
        {BottomRight,  5 - bottom,   right,       FromRight, true,  false},
        {TopCenter,    belowTop,     middleX,     Centred,   false, true},
        {BottomCenter, aboveBottom,  middleX,     Centred,   true,  true},
        {LeftCenter,   middleY,      besideLeft,  FromLeft,  false, true},
        {RightCenter,  middleY,      besideRight, FromRight, false, true},
        {None,         middleY,      middleX,     Centred,   false, true},
    }};
    // clang-format on
}

bool AnnotationLayout::Fits(double width, double height) const
{
    const std::int32_t margin = IsSmall() ? 12 : 18;
    return width < fWidth / 2 - margin && height < fHeight / 2 - margin;
}

AnnotationBox AnnotationLayout::Place(TextPosition position, double width, double height)
{
    const auto w = static_cast<std::int32_t>(width), h = static_cast<std::int32_t>(height);
    const auto found = std::ranges::find(fAnchors, position, &Anchor::fPosition);
    Anchor& anchor = found != fAnchors.end() ? *found : fAnchors.back();
    AnnotationBox box;
    box.left = anchor.fX;
    if (anchor.fAcross != FromLeft)
        box.left -= anchor.fAcross == Centred ? w / 2 : w;
    box.right = box.left + w;
    box.top = anchor.fUpward ? anchor.fY + h : anchor.fY;
    box.bottom = box.top - h;
    anchor.fY = anchor.fUpward ? box.top : box.bottom;
    return anchor.fHeld ? HeldInCell(box) : box;
}

// Of a box that is larger than the cell, its left and its top stay inside.
AnnotationBox AnnotationLayout::HeldInCell(AnnotationBox box) const
{
    const std::int32_t width = box.right - box.left, height = box.top - box.bottom;
    box.left = std::max<std::int32_t>(std::min(box.left, fCell.right - width), fCell.left);
    box.top = std::min<std::int32_t>(std::max(box.top, height - fCell.bottom), -fCell.top);
    box.right = box.left + width;
    box.bottom = box.top - height;
    return box;
}

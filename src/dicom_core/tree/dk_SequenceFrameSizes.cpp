// Sizes over the frames of a table.
#include "dicom_core/tree/dk_SequenceFrameInfo.h"

#include <algorithm>

namespace {

constexpr std::int16_t kLargerThanAny = 32000;

Point LargerOf(const Point& a, const Point& b) { return {std::max(a.v, b.v), std::max(a.h, b.h)}; }

// Folds the sizes that `sizeOf` gives for each frame; the first error ends it.
template <typename SizeOf, typename Fold>
QvxStatus FoldSizes(std::vector<dk_ImageFrameInfo>& frames, Point start, Point* size, SizeOf sizeOf,
                    Fold fold)
{
    if (frames.empty())
        return kQvxBadArgument;
    for (dk_ImageFrameInfo& info : frames) {
        Point own;
        if (const QvxStatus status = sizeOf(info, &own))
            return status;
        start = fold(start, own);
    }
    *size = start;
    return kQvxOK;
}

QvxStatus PlainSize(dk_ImageFrameInfo& info, Point* size) { return info.GetFrameSize(size); }

QvxStatus ShownSize(dk_ImageFrameInfo& info, Point* size)
{
    return info.GetEffectiveFrameSize(size, true, true);
}

// The first frame's size, and both sides the larger of the two if another frame lies across.
template <typename SizeOf>
QvxStatus FirstHoldingAll(std::vector<dk_ImageFrameInfo>& frames, Point* size, SizeOf sizeOf)
{
    Point first;
    if (frames.empty())
        return kQvxBadArgument;
    if (const QvxStatus status = sizeOf(frames.front(), &first))
        return status;
    const int turn = frames.front().fTransform.rotation % 180;
    const bool mixed = std::ranges::any_of(frames, [&](const dk_ImageFrameInfo& info) {
        return info.fTransform.rotation % 180 != turn;
    });
    if (mixed)
        first.v = first.h = std::max(first.v, first.h);
    *size = first;
    return kQvxOK;
}

}  // namespace

QvxStatus dk_SequenceFrameInfo::GetMaxFrameSize(Point* size, bool firstForAll)
{
    if (firstForAll && !fFrames.empty())
        return fFrames.front().GetFrameSize(size);
    return FoldSizes(fFrames, {}, size, PlainSize, LargerOf);
}

QvxStatus dk_SequenceFrameInfo::GetMinFrameSize(Point* size, bool firstForAll)
{
    if (firstForAll && !fFrames.empty())
        return fFrames.front().GetFrameSize(size);
    return FoldSizes(fFrames, {kLargerThanAny, kLargerThanAny}, size, PlainSize,
                     [](const Point& a, const Point& b) {
                         return Point{std::min(a.v, b.v), std::min(a.h, b.h)};
                     });
}

QvxStatus dk_SequenceFrameInfo::GetFrameSizeEnvelop(Point* size, bool firstForAll)
{
    return firstForAll ? FirstHoldingAll(fFrames, size, ShownSize)
                       : FoldSizes(fFrames, {}, size, ShownSize, LargerOf);
}

QvxStatus dk_SequenceFrameInfo::GetFrameSizeNormalEnvelop(Point* size, bool firstForAll)
{
    return firstForAll ? FirstHoldingAll(fFrames, size, PlainSize)
                       : FoldSizes(fFrames, {}, size, PlainSize, LargerOf);
}

#include "pixels/PixelCopy.h"

#include "pixels/Guarded.h"
#include "pixels/PaintCopy.h"
#include "pixels/ScaledCopy.h"
#include "pixels/TargetRows.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace {

using End = CopyEnd;

// The samples that a copy works on, and whether means of them make sense.
struct Plan {
    SampleKind kind = SampleKind::ARGB;
    bool smooth = true;
    bool mapped = false;  // indexes change on their way, by `map`
    IndexMap map{};
};

bool SameSize(const End& a, const End& b)
{
    return WidthOf(a.rect) == WidthOf(b.rect) && HeightOf(a.rect) == HeightOf(b.rect);
}

Plan PlanOfIndexes(const End& source, const End& target, bool sameColors)
{
    Plan plan{SampleKind::Index, false, !sameColors, {}};
    // A gray table of 256 entries runs with its indexes: their mean is a gray between.
    plan.smooth = sameColors && source.layout.pixelSize == 8 && IsGrayTable(TableOf(source.view));
    if (plan.mapped) {
        const ColorLookup colors = LookupOf(TableOf(source.view));
        const ColorTable& table = TableOf(target.view);
        std::ranges::transform(colors, plan.map.begin(),
                               [&](const NativePixel& argb) { return NearestEntry(table, argb); });
    }
    return plan;
}

Plan PlanOf(const End& source, const End& target, CopyMode mode)
{
    const PixelLayout &from = source.layout, &to = target.layout;
    const auto isGray16 = [](const PixelLayout& l) { return l.pixelSize == 16 && l.cmpCount == 1; };
    if (from.Indexed() && to.Indexed()) {
        const bool same = from.pixelSize == to.pixelSize &&
                          SameColors(TableOf(source.view), TableOf(target.view));
        if (same && SameSize(source, target) && from.pixelSize == 8)
            return {SampleKind::Native, false, false, {}};
        if (same || (mode != CopyMode::Dither && !IsGrayTable(TableOf(target.view))))
            return PlanOfIndexes(source, target, same);
    } else if (!from.Indexed() && from.pixelSize == to.pixelSize && from.cmpCount == to.cmpCount &&
               SameSize(source, target)) {
        return {SampleKind::Native, false, false, {}};
    }
    if (isGray16(from) && isGray16(to))
        return {SampleKind::Gray16, true, false, {}};
    if (isGray16(from) || (from.Indexed() && IsGrayTable(TableOf(source.view))))
        return {SampleKind::Gray8, true, false, {}};
    return {};
}

// --- rows of equal sizes, and nearest pixels -----------------------------------------------------

int Nearest(int i, int source, int target)
{
    return static_cast<int>((2 * std::int64_t{i} + 1) * source / (2 * std::int64_t{target}));
}

void CopyRows(const Plan& plan, const End& source, const End& target, const Rect& window,
              CopyMode mode)
{
    SourceRows in(source.view, source.layout, source.rect, plan.kind,
                  plan.mapped ? &plan.map : nullptr);
    TargetRows out(target.view, target.layout, window, mode);
    const int first = window.left - target.rect.left, count = WidthOf(window);
    const int step =
        plan.kind == SampleKind::Native ? source.layout.PixelBytes() : SampleBytes(plan.kind);
    std::vector<std::uint8_t> samples(static_cast<std::size_t>(count) *
                                      static_cast<std::size_t>(step));
    for (int row = 0; row < HeightOf(window); ++row) {
        const int sourceRow = row + window.top - target.rect.top;
        const std::uint8_t* direct = in.Direct(sourceRow);
        if (!direct)
            in.Load(sourceRow, first, count, samples.data());
        out.Put(row, plan.kind, direct ? direct + std::ptrdiff_t{first} * step : samples.data());
    }
}

void CopyNearest(const Plan& plan, const End& source, const End& target, const Rect& window,
                 CopyMode mode)
{
    SourceRows in(source.view, source.layout, source.rect, SampleKind::Index,
                  plan.mapped ? &plan.map : nullptr);
    TargetRows out(target.view, target.layout, window, mode);
    const int width = WidthOf(source.rect), height = HeightOf(source.rect);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(width));
    std::vector<std::uint8_t> samples;
    for (int v = window.top; v < window.bottom; ++v) {
        const int sourceRow = Nearest(v - target.rect.top, height, HeightOf(target.rect));
        const std::uint8_t* pixels = in.Direct(sourceRow);
        if (!pixels) {
            in.Load(sourceRow, 0, width, row.data());
            pixels = row.data();
        }
        samples.clear();
        for (int h = window.left; h < window.right; ++h)
            samples.push_back(pixels[Nearest(h - target.rect.left, width, WidthOf(target.rect))]);
        out.Put(v - window.top, SampleKind::Index, samples.data());
    }
}

void CopyWindows(const End& source, const End& target, CopyMode mode,
                 const std::vector<Rect>& windows)
{
    if (mode == CopyMode::Paint) {
        for (const Rect& window : windows)
            PaintPixels(source.view, source.layout, source.rect, target.view, target.layout,
                        target.rect, window);
        return;
    }
    const Plan plan = PlanOf(source, target, mode);
    if (SameSize(source, target) || !plan.smooth) {
        const auto copy = SameSize(source, target) ? CopyRows : CopyNearest;
        for (const Rect& window : windows)
            copy(plan, source, target, window, mode);
        return;
    }
    for (const Rect& window : windows)
        CopyScaled(source, target, window, plan.kind, plan.mapped ? &plan.map : nullptr, mode);
}

// --- what is asked -------------------------------------------------------------------------------

std::vector<Rect> WindowsOf(const End& target, const ClipRegion* clip)
{
    std::vector<Rect> windows;
    LongRect limit;
    if (!SectLRect(RectToLRect(target.rect), RectToLRect(target.view.map.bounds), &limit))
        return windows;
    if (!clip)
        return {LRectToRect(limit)};
    for (const Rect& rect : clip->rects) {
        LongRect window;
        if (SectLRect(limit, RectToLRect(rect), &window))
            windows.push_back(LRectToRect(window));
    }
    return windows;
}

bool ShareMemory(const PixMap& a, const PixMap& b)
{
    const auto span = [](const PixMap& map) {
        const auto begin = reinterpret_cast<std::uintptr_t>(map.baseAddr);
        return std::pair(begin, begin + static_cast<std::uintptr_t>(map.rowBytes) *
                                            static_cast<std::uintptr_t>(HeightOf(map.bounds)));
    };
    const auto [aBegin, aEnd] = span(a);
    const auto [bBegin, bEnd] = span(b);
    return aBegin < bEnd && bBegin < aEnd;
}

// Row by row onto itself needs no second block; every other copy within one block does.
bool SamePlace(const End& a, const End& b)
{
    return a.view.map.baseAddr == b.view.map.baseAddr &&
           a.view.map.rowBytes == b.view.map.rowBytes && a.view.map.bounds == b.view.map.bounds &&
           a.layout.pixelSize == b.layout.pixelSize && a.rect == b.rect;
}

// The rows of the source's rectangle in a block of their own, which the end then names.
std::vector<std::uint8_t> MoveAway(End* source)
{
    PixMap& map = source->view.map;
    const std::uint8_t* first = RowAddress(map, source->rect.top);
    const int rows = HeightOf(source->rect);
    const auto rowBytes = static_cast<std::size_t>(map.rowBytes);
    // The last row of a partial port's memory may end with its own pixels.
    const auto used =
        static_cast<std::size_t>(UsedRowBytes(WidthOf(map.bounds), source->layout.pixelSize));
    std::vector<std::uint8_t> copy(rowBytes * static_cast<std::size_t>(rows));
    for (std::size_t row = 0; row < static_cast<std::size_t>(rows); ++row)
        std::copy_n(first + row * rowBytes, used, copy.data() + row * rowBytes);
    map.baseAddr = copy.data();
    map.bounds.top = source->rect.top;
    map.bounds.bottom = source->rect.bottom;
    return copy;
}

// Sides beyond 16 bits would leave the kernel's exact range.
std::optional<End> EndOf(const PixView& view, const Rect* rect)
{
    const auto layout = LayoutOfPixMap(view.map);
    const Rect wanted = rect ? *rect : view.map.bounds;
    constexpr int kLimit = std::numeric_limits<std::int16_t>::max();
    if (!layout || !view.map.baseAddr || EmptyRect(view.map.bounds) || EmptyRect(wanted) ||
        WidthOf(wanted) > kLimit || HeightOf(wanted) > kLimit)
        return std::nullopt;
    return End{view, *layout, wanted};
}

bool IsMode(CopyMode mode)
{
    return mode == CopyMode::Replace || mode == CopyMode::Paint ||
           mode == CopyMode::ReplaceInverted || mode == CopyMode::Dither;
}

}  // namespace

QvxStatus CopyPixels(const PixView& source, const PixView& target, const Rect* from, const Rect* to,
                     CopyMode mode, const ClipRegion* clip)
{
    return Guarded([&]() -> QvxStatus {
        auto copied = EndOf(source, from);
        const auto written = EndOf(target, to);
        if (!copied || !written || !RectWithin(copied->rect, source.map.bounds) || !IsMode(mode))
            return kQvxBadArgument;
        std::vector<std::uint8_t> moved;
        if (ShareMemory(source.map, target.map) && !SamePlace(*copied, *written))
            moved = MoveAway(&*copied);
        CopyWindows(*copied, *written, mode, WindowsOf(*written, clip));
        return kQvxOK;
    });
}

#include "Qvx2VOIBlitter/VOIKernels.h"
#include "Qvx2VOIBlitter/VOIScales.h"
#include <algorithm>
#include <array>

namespace {

using Kernel = QvxStatus (*)(const VOIParams&, const VOIPixels&);

// One pair of formats. `window` null: the pair has a kernel for curves only.
struct FormatPair {
    std::uint32_t source, destination;
    int sourceBytes, destinationBytes;  // a pixel
    Kernel window;
    Kernel curve;  // takes a ready table
};
// clang-format off
constexpr auto kWindow8 = VOIBlitterBase_ApplyVOITransformation8to8_256;
constexpr auto kWindowMixed = VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB;
constexpr auto kWindow16 = VOIBlitterBase_ApplyVOITransformation16to8;
constexpr auto kWindow16ARGB = VOIBlitterBase_ApplyVOITransformation16to32ARGB;
constexpr auto kFormatPairs = std::to_array<FormatPair>({
    {kPixelFormatIndexed8, kPixelFormatIndexed8, 1, 1, kWindow8,      ApplyCurve8to8},
    {kPixelFormatIndexed8, kPixelFormatGray8,    1, 1, kWindow8,      ApplyCurve8to8},
    {kPixelFormatGray8,    kPixelFormatIndexed8, 1, 1, kWindow8,      ApplyCurve8to8},
    {kPixelFormatGray8,    kPixelFormatGray8,    1, 1, kWindow8,      ApplyCurve8to8},
    {kPixelFormatIndexed8, kPixelFormatARGB32,   1, 4, nullptr,       ApplyCurve8to32ARGB},
    {kPixelFormatGray8,    kPixelFormatARGB32,   1, 4, nullptr,       ApplyCurve8to32ARGB},
    {kPixelFormatMixed32,  kPixelFormatARGB32,   4, 4, kWindowMixed,  kWindowMixed},
    {kPixelFormatGray16,   kPixelFormatIndexed8, 2, 1, kWindow16,     kWindow16},
    {kPixelFormatGray16,   kPixelFormatGray8,    2, 1, kWindow16,     kWindow16},
    {kPixelFormatGray16,   kPixelFormatARGB32,   2, 4, kWindow16ARGB, kWindow16ARGB},
});
// clang-format on

std::uint32_t FormatOf(const PixMap& map)
{
    return map.pixelFormat ? map.pixelFormat : static_cast<std::uint32_t>(map.pixelSize);
}

// Locks a map for the time of a copy and puts its former state back.
class MapLock {
public:
    explicit MapLock(PixMap* map) : fMap(map), fWasLocked(map->locked)
    {
        if (map->baseAddr)
            map->locked = true;
    }
    ~MapLock() { fMap->locked = fWasLocked; }
    MapLock(const MapLock&) = delete;
    MapLock& operator=(const MapLock&) = delete;
    // False for a map whose pixels are gone.
    [[nodiscard]] bool Held() const { return fMap->baseAddr != nullptr; }

private:
    PixMap* fMap;
    bool fWasLocked;
};

// The rectangle lies in the map and may have no area, but no negative side.
bool RectUsable(const PixMap& map, const Rect& r)
{
    return r.bottom >= r.top && r.right >= r.left && RectWithin(r, map.bounds);
}

bool RowsHoldBounds(const PixMap& map, int bytesPerPixel)
{
    return (map.bounds.right - map.bounds.left) * bytesPerPixel <= map.rowBytes;
}

std::ptrdiff_t OffsetOf(const PixMap& map, const Rect& r, int bytesPerPixel)
{
    return std::ptrdiff_t{r.top - map.bounds.top} * map.rowBytes +
           std::ptrdiff_t{r.left - map.bounds.left} * bytesPerPixel;
}

// The copy of both operations: `kernel` is the column of the table to run, `getParams` settles what
// it is run with once all else is known to be right.
template <typename GetParams>
QvxStatus CopyPixels(const VOIBlitter* blit, Kernel FormatPair::* kernel, PixMap* source,
                     PixMap* destination, const Rect* sourceRect, const Rect* destinationRect,
                     GetParams getParams)
{
    if (!IsVOIBlitter(blit) || !source || !destination || !sourceRect || !destinationRect)
        return kQvxBadArgument;
    const Rect from = *sourceRect, to = *destinationRect;
    if (from.bottom - from.top != to.bottom - to.top ||
        from.right - from.left != to.right - to.left)
        return kQvxBadArgument;
    const auto pair = std::ranges::find_if(kFormatPairs, [&](const FormatPair& row) {
        return row.source == FormatOf(*source) && row.destination == FormatOf(*destination);
    });
    if (pair == kFormatPairs.end() || !((*pair).*kernel))
        return kQvxUnsupported;
    if (!RectUsable(*source, from) || !RectUsable(*destination, to) ||
        !RowsHoldBounds(*source, pair->sourceBytes) ||
        !RowsHoldBounds(*destination, pair->destinationBytes))
        return kQvxBadArgument;

    const MapLock sourceLock(source);
    const MapLock destinationLock(destination);
    if (!sourceLock.Held() || !destinationLock.Held())
        return kQvxSeekFailed;
    VOIParams params;
    if (const QvxStatus status = getParams(&params))
        return status;
    return ((*pair).*kernel)(
        params, {from.right - from.left, from.bottom - from.top,
                 source->baseAddr + OffsetOf(*source, from, pair->sourceBytes),
                 destination->baseAddr + OffsetOf(*destination, to, pair->destinationBytes),
                 source->rowBytes, destination->rowBytes});
}

}  // namespace

QvxStatus VOIBlitterBase_VOICopyPixels(const VOIBlitter* blit, std::int32_t level,
                                       std::uint32_t width, PixMap* source, PixMap* destination,
                                       const Rect* sourceRect, const Rect* destinationRect)
{
    return CopyPixels(blit, &FormatPair::window, source, destination, sourceRect, destinationRect,
                      [&](VOIParams* params) {
                          return VOIBlitterBase_GetVOIBounds(blit, level, width, &params->bounds);
                      });
}

QvxStatus Qvx2_VOIBlit_TableCopyPixels(const VOIBlitter* blit, const VOICurve& curve,
                                       PixMap* source, PixMap* destination, const Rect* sourceRect,
                                       const Rect* destinationRect)
{
    constexpr std::size_t kMostEntries = 0x10000;
    const std::size_t count = curve.entries.size();
    if (count < 1 || count > kMostEntries)
        return kQvxBadArgument;
    return CopyPixels(blit, &FormatPair::curve, source, destination, sourceRect, destinationRect,
                      [&](VOIParams* params) {
                          const auto last = curve.first + static_cast<std::int64_t>(count) - 1;
                          *params = {
                              VOIParamTag::BoundsAndTable, {curve.first, last}, curve.entries};
                          return kQvxOK;
                      });
}

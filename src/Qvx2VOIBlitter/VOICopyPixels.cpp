#include "Qvx2VOIBlitter/VOIKernels.h"
#include "Qvx2VOIBlitter/VOIScales.h"
#include <algorithm>
#include <array>

namespace {

using Kernel = QvxStatus (*)(const VOIParams&, const VOIPixels&);

struct FormatPair {
    std::uint32_t source, destination;
    int sourceBytes, destinationBytes;  // a pixel
    Kernel kernel;
};
// clang-format off
constexpr auto kFormatPairs = std::to_array<FormatPair>({
    {kPixelFormatIndexed8, kPixelFormatIndexed8, 1, 1, VOIBlitterBase_ApplyVOITransformation8to8_256},
    {kPixelFormatIndexed8, kPixelFormatGray8,    1, 1, VOIBlitterBase_ApplyVOITransformation8to8_256},
    {kPixelFormatGray8,    kPixelFormatIndexed8, 1, 1, VOIBlitterBase_ApplyVOITransformation8to8_256},
    {kPixelFormatGray8,    kPixelFormatGray8,    1, 1, VOIBlitterBase_ApplyVOITransformation8to8_256},
    {kPixelFormatMixed32,  kPixelFormatARGB32,   4, 4, VOIBlitterBase_ApplyVOITransformation32MixedTo32ARGB},
    {kPixelFormatGray16,   kPixelFormatIndexed8, 2, 1, VOIBlitterBase_ApplyVOITransformation16to8},
    {kPixelFormatGray16,   kPixelFormatGray8,    2, 1, VOIBlitterBase_ApplyVOITransformation16to8},
    {kPixelFormatGray16,   kPixelFormatARGB32,   2, 4, VOIBlitterBase_ApplyVOITransformation16to32ARGB},
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

}  // namespace

QvxStatus VOIBlitterBase_VOICopyPixels(const VOIBlitter* blit, std::int32_t level,
                                       std::uint32_t width, PixMap* source, PixMap* destination,
                                       const Rect* sourceRect, const Rect* destinationRect)
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
    if (pair == kFormatPairs.end())
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
    if (const QvxStatus status = VOIBlitterBase_GetVOIBounds(blit, level, width, &params.bounds))
        return status;
    return pair->kernel(params,
                        {from.right - from.left, from.bottom - from.top,
                         source->baseAddr + OffsetOf(*source, from, pair->sourceBytes),
                         destination->baseAddr + OffsetOf(*destination, to, pair->destinationBytes),
                         source->rowBytes, destination->rowBytes});
}

#include "QvxToolkit/QvxJ2KCost.h"

#include "util/ByteOrder.h"

#include <algorithm>
#include <array>

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint16_t kCodingStyle = 0xFF52, kStyleOfComponent = 0xFF53, kStartOfTile = 0xFF90,
                        kStartOfData = 0xFF93;
constexpr auto kKnownInMainHeader = std::to_array<std::uint16_t>(
    {0xFF50, 0xFF51, 0xFF52, 0xFF53, 0xFF55, 0xFF57, 0xFF59, 0xFF5C, 0xFF5D, 0xFF5E, 0xFF5F, 0xFF60,
     0xFF63, 0xFF64, 0xFF74, 0xFF75, 0xFF77, 0xFF78});
constexpr std::uint32_t kMostLevels = 32;

// Sizes are exponents of 2.
struct Style {
    std::uint32_t fLevels = 0;
    std::uint32_t fBlockWidth = 0, fBlockHeight = 0;
    std::array<std::uint8_t, kMostLevels + 1> fPrecincts{};  // height in the upper four bits
};

bool ReadStyle(Bytes parameters, bool hasPrecincts, Style* style)
{
    if (parameters.size() < 5 || parameters[0] > kMostLevels)
        return false;
    style->fLevels = parameters[0];
    style->fBlockWidth = (parameters[1] & 15u) + 2;
    style->fBlockHeight = (parameters[2] & 15u) + 2;
    style->fPrecincts.fill(0xFF);
    const std::size_t resolutions = style->fLevels + 1u;
    if (hasPrecincts && parameters.size() < 5 + resolutions)
        return false;
    if (hasPrecincts)
        std::copy_n(parameters.begin() + 5, resolutions, style->fPrecincts.begin());
    return true;
}

constexpr std::uint64_t Parts(std::uint64_t size, std::uint32_t exponent)
{
    return (size + (std::uint64_t{1} << exponent) - 1) >> exponent;
}

// Of one component of one tile and one layer, T.800 B.5 to B.7.
QvxJ2KCost CostOfTile(const Style& style, std::uint64_t columns, std::uint64_t rows)
{
    QvxJ2KCost cost;
    for (std::uint32_t resolution = 0; resolution <= style.fLevels; ++resolution) {
        const std::uint64_t width = Parts(columns, style.fLevels - resolution);
        const std::uint64_t height = Parts(rows, style.fLevels - resolution);
        const std::uint32_t across = style.fPrecincts[resolution] & 15u;
        const std::uint32_t down = style.fPrecincts[resolution] >> 4u;
        const std::uint64_t precincts = Parts(width, across) * Parts(height, down);
        // All but the lowest resolution are three bands of half its size.
        const std::uint32_t halves = resolution > 0 ? 1 : 0;
        const std::uint32_t blockWidth =
            std::min(style.fBlockWidth, across - (across ? halves : 0));
        const std::uint32_t blockHeight = std::min(style.fBlockHeight, down - (down ? halves : 0));
        const std::uint64_t blocks =
            Parts(Parts(width, halves), blockWidth) * Parts(Parts(height, halves), blockHeight);
        const std::uint64_t bands = 1 + 2 * halves;
        cost.fPieces += bands * (blocks + precincts);
        cost.fPackets += precincts;
    }
    return cost;
}

// Takes the costliest of what it meets.
class CostReader {
public:
    explicit CostReader(const QvxJ2KHeader& header) : fHeader(header), fCode(header.fCodestream) {}
    QvxStatus Read(QvxJ2KCost* cost, std::string* why);

private:
    // Segments from `at` on, up to the marker `end`; at is behind the last.
    bool ReadSegments(std::uint16_t end, std::size_t* at, bool onlyKnown);
    bool TakeStyle(std::uint16_t marker, Bytes payload);

    const QvxJ2KHeader& fHeader;
    Bytes fCode;
    QvxJ2KCost fOfTile;
    std::uint64_t fLayers = 1;
    std::uint16_t fUnknown = 0;
};

bool CostReader::TakeStyle(std::uint16_t marker, Bytes payload)
{
    const std::size_t front = marker == kCodingStyle ? 5 : fHeader.fComponents < 257 ? 2 : 3;
    if (payload.size() < front)
        return false;
    const std::uint8_t flags = payload[marker == kCodingStyle ? 0 : front - 1];
    Style style;
    if (!ReadStyle(payload.subspan(front), (flags & 1) != 0, &style))
        return false;
    if (marker == kCodingStyle)
        fLayers = std::max<std::uint64_t>(fLayers, LoadBE<std::uint16_t>(payload.data() + 2));
    const QvxJ2KCost cost = CostOfTile(style, std::min(fHeader.fColumns, fHeader.fTileColumns),
                                       std::min(fHeader.fRows, fHeader.fTileRows));
    fOfTile.fPieces = std::max(fOfTile.fPieces, cost.fPieces);
    fOfTile.fPackets = std::max(fOfTile.fPackets, cost.fPackets);
    return true;
}

bool CostReader::ReadSegments(std::uint16_t end, std::size_t* at, bool onlyKnown)
{
    while (*at + 4 <= fCode.size()) {
        const std::uint16_t marker = LoadBE<std::uint16_t>(fCode.data() + *at);
        const std::size_t length = LoadBE<std::uint16_t>(fCode.data() + *at + 2);
        if (marker == end)
            return true;
        if (onlyKnown && std::ranges::find(kKnownInMainHeader, marker) == kKnownInMainHeader.end())
            fUnknown = marker;
        if (length < 2 || fUnknown)
            return false;
        const bool isStyle = marker == kCodingStyle || marker == kStyleOfComponent;
        if (length > fCode.size() - *at - 2)
            return true;  // cut off, for the library as well
        if (isStyle && !TakeStyle(marker, fCode.subspan(*at + 4, length - 2)))
            return false;
        *at += 2 + length;
    }
    return true;
}

QvxStatus CostReader::Read(QvxJ2KCost* cost, std::string* why)
{
    constexpr std::size_t kPartHeader = 12, kLengthAt = 6;
    std::size_t at = 2;
    bool sound = ReadSegments(kStartOfTile, &at, true);
    while (sound && at + kPartHeader <= fCode.size() &&
           LoadBE<std::uint16_t>(fCode.data() + at) == kStartOfTile) {
        const std::uint32_t length = LoadBE<std::uint32_t>(fCode.data() + at + kLengthAt);
        std::size_t inPart = at + kPartHeader;
        sound = ReadSegments(kStartOfData, &inPart, false);
        if (length < kPartHeader || length > fCode.size() - at)
            break;
        at += length;
    }
    if (fUnknown) {
        *why = "the JPEG 2000 stream has an unknown part " + std::to_string(fUnknown);
        return kQvxUnsupported;
    }
    if (!sound) {
        *why = "the JPEG 2000 stream says nothing sound of its coding";
        return kQvxMalformed;
    }
    const std::uint64_t times = fHeader.fTiles * fHeader.fComponents;
    *cost = {fOfTile.fPieces * times, fOfTile.fPackets * times * fLayers};
    return kQvxOK;
}

}  // namespace

QvxStatus QvxCountJ2KCost(const QvxJ2KHeader& header, QvxJ2KCost* cost, std::string* why)
{
    return CostReader(header).Read(cost, why);
}

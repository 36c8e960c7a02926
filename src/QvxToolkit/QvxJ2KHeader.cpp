#include "QvxToolkit/QvxJ2KHeader.h"

#include "util/ByteOrder.h"
#include "util/FourCC.h"

#include <algorithm>

namespace {

constexpr std::uint16_t kStartOfCodestream = 0xFF4F, kSize = 0xFF51, kCodingDefault = 0xFF52,
                        kStartOfTile = 0xFF90;
constexpr std::uint32_t kCodestreamBox = FourCC("jp2c"), kHeaderBox = FourCC("jp2h"),
                        kColorBox = FourCC("colr");
constexpr std::uint32_t kEnumeratedYCC = 18;

using Bytes = std::span<const std::uint8_t>;

struct Box {
    std::uint32_t fType = 0;
    Bytes fPayload;
};

// The box at `*at`, which moves behind it. A box of length 0 takes the rest.
bool NextBox(Bytes bytes, std::size_t* at, Box* box)
{
    if (bytes.size() - *at < 8)
        return false;
    std::uint64_t length = LoadBE<std::uint32_t>(bytes.data() + *at);
    std::size_t header = 8;
    if (length == 1 && bytes.size() - *at >= 16) {
        length = LoadBE<std::uint64_t>(bytes.data() + *at + 8);
        header = 16;
    }
    const std::size_t rest = bytes.size() - *at;
    if (length == 0 || length > rest)
        length = rest;
    if (length < header)
        return false;
    box->fType = LoadBE<std::uint32_t>(bytes.data() + *at + 4);
    box->fPayload = bytes.subspan(*at + header, length - header);
    *at += length;
    return true;
}

// Only enumerated colour spaces say something (T.800 I.5.3.3).
void ReadColorBoxes(Bytes header, QvxJ2KHeader* found)
{
    Box box;
    for (std::size_t at = 0; NextBox(header, &at, &box);) {
        if (box.fType == kColorBox && box.fPayload.size() >= 7 && box.fPayload[0] == 1)
            found->fIsYCC = LoadBE<std::uint32_t>(box.fPayload.data() + 3) == kEnumeratedYCC;
    }
}

Bytes CodestreamOf(Bytes stream, QvxJ2KHeader* found)
{
    if (stream.size() >= 2 && LoadBE<std::uint16_t>(stream.data()) == kStartOfCodestream)
        return stream;
    Box box;
    for (std::size_t at = 0; NextBox(stream, &at, &box);) {
        if (box.fType == kHeaderBox)
            ReadColorBoxes(box.fPayload, found);
        if (box.fType == kCodestreamBox)
            return box.fPayload;
    }
    return {};
}

QvxStatus ReadSize(Bytes payload, QvxJ2KHeader* header, std::string* why)
{
    if (payload.size() < 36 + 3)
        return kQvxMalformed;
    const auto number = [payload](std::size_t at) {
        return std::uint64_t{LoadBE<std::uint32_t>(payload.data() + at)};
    };
    const std::uint64_t right = number(2), bottom = number(6), left = number(10), top = number(14);
    const std::uint64_t tileWidth = number(18), tileHeight = number(22);
    header->fPart2 = (payload[0] & 0x80) != 0;
    header->fComponents = LoadBE<std::uint16_t>(payload.data() + 34);
    if (left != 0 || top != 0 || number(26) != 0 || number(30) != 0 || tileWidth == 0 ||
        tileHeight == 0) {
        *why = "the JPEG 2000 image doesn't begin at 0, or has tiles without size";
        return kQvxUnsupported;
    }
    header->fColumns = static_cast<std::uint32_t>(right);
    header->fRows = static_cast<std::uint32_t>(bottom);
    header->fTileColumns = static_cast<std::uint32_t>(tileWidth);
    header->fTileRows = static_cast<std::uint32_t>(tileHeight);
    header->fTiles =
        ((right + tileWidth - 1) / tileWidth) * ((bottom + tileHeight - 1) / tileHeight);
    if (header->fComponents < 1 || payload.size() < 36 + 3 * std::size_t{header->fComponents})
        return kQvxMalformed;
    for (std::size_t i = 0; i < header->fComponents; ++i) {
        const std::uint8_t* part = payload.data() + 36 + 3 * i;
        if (part[0] != payload[36] || part[1] != 1 || part[2] != 1) {
            *why = "the components of the JPEG 2000 image are not alike";
            return kQvxUnsupported;
        }
    }
    header->fPrecision = (payload[36] & 0x7Fu) + 1u;
    header->fSigned = (payload[36] & 0x80) != 0;
    return kQvxOK;
}

}  // namespace

QvxStatus QvxReadJ2KHeader(Bytes stream, QvxJ2KHeader* header, std::string* why)
{
    *why = "the JPEG 2000 stream has no whole header";
    const Bytes code = CodestreamOf(stream, header);
    if (code.size() < 4 || LoadBE<std::uint16_t>(code.data()) != kStartOfCodestream)
        return kQvxMalformed;
    header->fCodestream = code;
    bool sized = false;
    for (std::size_t at = 2; at + 4 <= code.size();) {
        const std::uint16_t marker = LoadBE<std::uint16_t>(code.data() + at);
        const std::size_t length = LoadBE<std::uint16_t>(code.data() + at + 2);
        if (marker == kStartOfTile)
            break;
        if (length < 2 || at + 2 + length > code.size())
            return kQvxMalformed;
        const Bytes payload = code.subspan(at + 4, length - 2);
        if (marker == kSize && !sized) {
            if (const QvxStatus status = ReadSize(payload, header, why))
                return status;
            sized = true;
        } else if (marker == kCodingDefault && payload.size() >= 5) {
            header->fComponentTransform = payload[4] == 1;
            header->fLossy = payload.size() > 9 && payload[9] == 0;
        }
        at += 2 + length;
    }
    if (!sized)
        return kQvxMalformed;
    why->clear();
    return kQvxOK;
}

bool QvxBoundTileParts(std::span<std::uint8_t> codestream)
{
    constexpr std::size_t kPartHeader = 12, kLengthAt = 6;
    const std::size_t end = codestream.size();
    bool changed = false;
    std::size_t at = 2;
    while (at + 4 <= end && LoadBE<std::uint16_t>(codestream.data() + at) != kStartOfTile)
        at += 2 + std::max<std::size_t>(LoadBE<std::uint16_t>(codestream.data() + at + 2), 2);
    while (at + kPartHeader <= end &&
           LoadBE<std::uint16_t>(codestream.data() + at) == kStartOfTile) {
        const std::uint32_t length = LoadBE<std::uint32_t>(codestream.data() + at + kLengthAt);
        if (length > end - at) {
            StoreBE(codestream.data() + at + kLengthAt, static_cast<std::uint32_t>(end - at));
            changed = true;
        }
        if (length < kPartHeader || changed)
            break;
        at += length;
    }
    return changed;
}

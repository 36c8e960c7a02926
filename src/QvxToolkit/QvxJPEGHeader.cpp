#include "QvxToolkit/QvxJPEGHeader.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint8_t kMarker = 0xFF, kStuffed = 0x00, kStartOfImage = 0xD8, kEndOfImage = 0xD9,
                       kStartOfScan = 0xDA, kRestart0 = 0xD0, kRestart7 = 0xD7, kTemporary = 0x01,
                       kApp0 = 0xE0, kApp14 = 0xEE;
constexpr std::uint8_t kHuffmanTables = 0xC4, kJPEGExtension = 0xC8, kArithmeticTables = 0xCC;

bool BeginsFrame(std::uint8_t marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != kHuffmanTables &&
           marker != kJPEGExtension && marker != kArithmeticTables;
}

bool StandsAlone(std::uint8_t marker)
{
    return marker == kStartOfImage || marker == kTemporary ||
           (marker >= kRestart0 && marker <= kRestart7);
}

// Goes from marker to marker and never back.
class Scanner {
public:
    explicit Scanner(std::span<const std::uint8_t> stream) : fStream(stream) {}

    // The next marker; false at the end of the stream.
    bool Next(std::uint8_t* marker)
    {
        while (fAt + 1 < fStream.size()) {
            const void* found =
                std::memchr(fStream.data() + fAt, kMarker, fStream.size() - 1 - fAt);
            if (!found)
                return false;
            fAt =
                static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - fStream.data());
            const std::uint8_t code = fStream[fAt + 1];
            if (code == kMarker) {  // fill byte
                ++fAt;
                continue;
            }
            fAt += 2;
            if (code == kStuffed)
                continue;
            *marker = code;
            return true;
        }
        return false;
    }
    // The payload of the segment behind the marker, as far as it is there.
    std::span<const std::uint8_t> Segment()
    {
        if (fStream.size() - fAt < 2)
            return {};
        const std::size_t length = std::size_t{fStream[fAt]} << 8 | fStream[fAt + 1];
        const std::size_t end = std::min(fAt + std::max<std::size_t>(length, 2), fStream.size());
        const auto payload = fStream.subspan(fAt + 2, end - fAt - 2);
        fAt = end;
        return payload;
    }

private:
    std::span<const std::uint8_t> fStream;
    std::size_t fAt = 0;
};

bool ReadFrame(std::uint8_t marker, std::span<const std::uint8_t> payload, QvxJPEGHeader* header)
{
    if (payload.size() < 6)
        return false;
    header->fFrameMarker = marker;
    header->fPrecision = payload[0];
    header->fRows = std::uint32_t{payload[1]} << 8 | payload[2];
    header->fColumns = std::uint32_t{payload[3]} << 8 | payload[4];
    header->fComponents = payload[5];
    if (header->fComponents < 1 || header->fComponents > header->fComponent.size() ||
        payload.size() < 6 + 3 * std::size_t{header->fComponents})
        return false;
    for (std::size_t i = 0; i < header->fComponents; ++i) {
        const std::uint8_t factors = payload[7 + 3 * i];
        header->fComponent[i] = {payload[6 + 3 * i], static_cast<std::uint8_t>(factors >> 4),
                                 static_cast<std::uint8_t>(factors & 15)};
        if (factors >> 4 == 0 || (factors & 15) == 0)
            return false;
    }
    return true;
}

bool Names(std::span<const std::uint8_t> payload, const char* name)
{
    const std::size_t length = std::strlen(name);
    return payload.size() >= length && std::memcmp(payload.data(), name, length) == 0;
}

void ReadApplication(std::uint8_t marker, std::span<const std::uint8_t> payload,
                     QvxJPEGHeader* header)
{
    constexpr std::size_t kTransform = 11;
    if (marker == kApp0 && Names(payload, "JFIF"))
        header->fJFIF = true;
    else if (marker == kApp14 && Names(payload, "Adobe") && payload.size() > kTransform)
        header->fAdobeTransform = payload[kTransform];
}

}  // namespace

bool QvxReadJPEGHeader(std::span<const std::uint8_t> stream, QvxJPEGHeader* header,
                       std::string* why)
{
    Scanner scanner(stream);
    std::uint8_t marker = 0;
    while (scanner.Next(&marker) && marker != kEndOfImage) {
        if (StandsAlone(marker))
            continue;
        const auto payload = scanner.Segment();
        if (marker == kStartOfScan) {
            if (header->fFrameMarker == 0)
                break;
            if (!header->IsProgressive() || ++header->fScans > kMaxJPEGScans)
                return true;
        } else if (BeginsFrame(marker)) {
            if (header->fFrameMarker != 0) {
                *why = "the JPEG stream has two frame headers";
                return false;
            }
            if (!ReadFrame(marker, payload, header)) {
                *why = "the frame header of the JPEG stream is damaged";
                return false;
            }
        } else {
            ReadApplication(marker, payload, header);
        }
    }
    if (header->fFrameMarker != 0)
        return true;
    *why = "the JPEG stream has no frame header";
    return false;
}

bool QvxHasJPEGEnd(std::span<const std::uint8_t> stream)
{
    constexpr std::array<std::uint8_t, 2> kEnd{kMarker, kEndOfImage};
    return std::find_end(stream.begin(), stream.end(), kEnd.begin(), kEnd.end()) != stream.end();
}

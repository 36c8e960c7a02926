#include "QvxToolkit/QvxDecoders.h"

#include "util/Log.h"

#include "QvxToolkit/QvxNativeFrame.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include "QvxToolkit/QvxVideo.h"
#include <algorithm>
#include <array>
#include <string_view>

namespace {

// What stands in a file where a UID belongs may be anything, and goes into logs only as one.
bool IsUID(std::string_view text)
{
    constexpr std::size_t kMost = 64;
    return !text.empty() && text.size() <= kMost &&
           text.find_first_not_of("0123456789.") == std::string_view::npos;
}

using std::string_view_literals::operator""sv;

struct StreamStart {
    std::string_view fBytes;
    QvxStreamDecoder fDecoder;
};
// A JPEG stream is looked into further: the marker of its frame tells JPEG-LS apart.
constexpr auto kStarts = std::to_array<StreamStart>({
    {"\xFF\x4F\xFF\x51"sv, QvxDecodeJPEG2000},
    {"\0\0\0\x0CjP  "sv, QvxDecodeJPEG2000},
    {"\xFF\x0A"sv, QvxDecodeJPEGXL},
    {"\0\0\0\x0CJXL "sv, QvxDecodeJPEGXL},
});
constexpr std::uint8_t kMarker = 0xFF, kStartOfImage = 0xD8, kStartOfFrameLS = 0xF7,
                       kStartOfScan = 0xDA;

struct SyntaxRow {
    std::string_view fUID;
    QvxStreamDecoder fDecoder;
};
// Encodings whose frames begin with nothing to know them by, and those of streams with a damaged
// beginning.
constexpr auto kSyntaxes = std::to_array<SyntaxRow>({
    {"1.2.840.10008.1.2.5", QvxDecodeRLE},
    {"1.2.840.10008.1.2.8.1", QvxDecodeDeflated},
    {"1.2.840.10008.1.2.4.80", QvxDecodeJPEGLS},
    {"1.2.840.10008.1.2.4.81", QvxDecodeJPEGLS},
    {"1.2.840.10008.1.2.4.90", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.91", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.92", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.93", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.201", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.202", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.203", QvxDecodeJPEG2000},
    {"1.2.840.10008.1.2.4.110", QvxDecodeJPEGXL},
    {"1.2.840.10008.1.2.4.111", QvxDecodeJPEGXL},
    {"1.2.840.10008.1.2.4.112", QvxDecodeJPEGXL},
});

// The marker segments in front of the first scan have one that begins a frame of JPEG-LS.
bool IsJPEGLS(std::span<const std::uint8_t> bytes)
{
    std::size_t at = 2;
    while (at + 4 <= bytes.size() && bytes[at] == kMarker && bytes[at + 1] != kStartOfScan) {
        if (bytes[at + 1] == kStartOfFrameLS)
            return true;
        if (bytes[at + 1] == kMarker)  // fill byte
            ++at;
        else
            at += 2 + (std::size_t{bytes[at + 2]} << 8 | bytes[at + 3]);
    }
    return false;
}

bool BeginsWith(std::span<const std::uint8_t> bytes, std::string_view start)
{
    return bytes.size() >= start.size() &&
           std::equal(start.begin(), start.end(), bytes.begin(),
                      [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; });
}

QvxStreamDecoder DecoderOf(const QvxFrameRecord& record, std::span<const std::uint8_t> bytes)
{
    const auto row = std::ranges::find(kSyntaxes, record.fTransferSyntax, &SyntaxRow::fUID);
    const QvxStreamDecoder named = row != kSyntaxes.end() ? row->fDecoder : nullptr;
    if (named == QvxDecodeRLE || named == QvxDecodeDeflated)
        return named;
    if (bytes.size() >= 2 && bytes[0] == kMarker && bytes[1] == kStartOfImage)
        return IsJPEGLS(bytes) ? QvxDecodeJPEGLS : QvxDecodeJPEG;
    for (const StreamStart& start : kStarts) {
        if (BeginsWith(bytes, start.fBytes))
            return start.fDecoder;
    }
    return named;
}

QvxStatus DecodeStream(QvxParserRec* reader, const QvxFrameRecord& record,
                       std::uint32_t frameNumber, DecodedFrame* frame, std::string* why)
{
    QvxStream stream;
    if (const QvxStatus status = QvxReadStream(reader, record, frameNumber, &stream))
        return status;
    const QvxStreamDecoder decoder = DecoderOf(record, stream.Bytes());
    if (decoder) {
        frame->fCutShort = stream.fCutShort;
        return decoder(record, stream, frame, why);
    }
    const std::string& uid = record.fTransferSyntax;
    *why = "(0002,0010): no decoder for frames of transfer syntax " +
           (IsUID(uid) ? uid : std::string("unknown"));
    return kQvxUnsupported;
}

}  // namespace

QvxStatus QvxDecodeAnyFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                            std::uint32_t frameNumber, DecodedFrame* frame, std::string* why)
{
    if (!record.fEncapsulated) {
        return record.fForm == QvxSampleForm::Integer
                   ? QvxDecodeNativeFrame(reader, record, frameNumber, frame)
                   : QvxDecodeFloatFrame(reader, record, frameNumber, frame);
    }
    if (QvxIsVideo(record.fTransferSyntax))
        return QvxDecodeVideoFrame(reader, record, frameNumber, frame, why);
    return DecodeStream(reader, record, frameNumber, frame, why);
}

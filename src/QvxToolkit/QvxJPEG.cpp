// JPEG frames: which library takes a stream, and what its colours are.
#include "QvxToolkit/QvxJPEGHeader.h"
#include "QvxToolkit/QvxJPEGModule.h"
#include "QvxToolkit/QvxModule.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include <algorithm>
#include <array>
#include <memory>
#include <turbojpeg.h>

namespace {

bool SaysYBR(QvxPhotometric kind)
{
    return kind == QvxPhotometric::YBRFull || kind == QvxPhotometric::YBRFull422 ||
           kind == QvxPhotometric::YBRPartial || kind == QvxPhotometric::YBRICT ||
           kind == QvxPhotometric::YBRRCT;
}

// What the components of a lossy stream are: the stream's own word first, then the file's. Chroma
// that is coarser than luminance is chroma, whatever the file calls it.
bool HoldsYBR(const QvxFrameRecord& record, const QvxJPEGHeader& header)
{
    if (header.fComponents != 3)
        return false;
    if (header.fAdobeTransform >= 0)
        return header.fAdobeTransform != 0;
    if (header.fJFIF)
        return true;
    const auto& parts = header.fComponent;
    if (parts[0].fID == 'R' && parts[1].fID == 'G' && parts[2].fID == 'B')
        return false;
    return header.IsSubsampled() || SaysYBR(record.fPhotometric);
}

struct TurboClose {
    void operator()(void* handle) const { tjDestroy(handle); }
};
using TurboHandle = std::unique_ptr<void, TurboClose>;

// What the plain library takes a stream of three components for.
bool TurboTakesYBR(const QvxJPEGHeader& header)
{
    if (header.fJFIF || header.fAdobeTransform >= 0)
        return header.fJFIF || header.fAdobeTransform != 0;
    const auto& parts = header.fComponent;
    return parts[0].fID != 'R' || parts[1].fID != 'G' || parts[2].fID != 'B';
}

// The plain library leaves what a cut stream lacks in the middle of the range: rows of nothing else
// at the end of the frame become 0.
void ClearUndecoded(std::uint32_t rows, QvxBytes* samples)
{
    constexpr std::uint8_t kMiddle = 128;
    const auto found = std::find_if(samples->rbegin(), samples->rend(),
                                    [](std::uint8_t byte) { return byte != kMiddle; });
    const std::size_t rowBytes = samples->size() / rows;
    const auto decoded = static_cast<std::size_t>(samples->rend() - found);
    const std::size_t kept = (decoded + rowBytes - 1) / rowBytes * rowBytes;
    std::fill(samples->begin() + static_cast<std::ptrdiff_t>(kept), samples->end(), 0);
}

QvxStatus DecodeByTurbo(const QvxJPEGHeader& header, std::span<const std::uint8_t> stream,
                        QvxBytes* samples, bool* cut, std::string* why)
{
    const TurboHandle handle(tjInitDecompress());
    if (!handle)
        return kQvxNoMemory;
    const int format = header.fComponents == 1 ? TJPF_GRAY : TJPF_RGB;
    const int width = static_cast<int>(header.fColumns), height = static_cast<int>(header.fRows);
    const int result =
        tjDecompress2(handle.get(), stream.data(), static_cast<unsigned long>(stream.size()),
                      samples->data(), width, 0, height, format, TJFLAG_ACCURATEDCT);
    if (result == 0)
        return kQvxOK;
    if (tjGetErrorCode(handle.get()) == TJERR_WARNING) {
        *cut = !QvxHasJPEGEnd(stream);
        if (*cut)
            ClearUndecoded(header.fRows, samples);
        return kQvxOK;
    }
    *why = tjGetErrorStr2(handle.get());
    return kQvxMalformed;
}

QvxStatus DecodeByModule(const QvxJPEGHeader& header, bool turn,
                         std::span<const std::uint8_t> stream, QvxBytes* samples, bool* cut,
                         std::string* why)
{
    const auto decode =
        reinterpret_cast<QvxJPEGDecode>(QvxModuleFunction(kQvxJPEGModule, kQvxJPEGFunction, why));
    if (!decode)
        return kQvxUnsupported;
    std::array<char, 256> reason{};
    QvxJPEGRequest request;
    request.fStream = stream.data();
    request.fStreamBytes = stream.size();
    request.fPrecision = header.fPrecision;
    request.fTurnToRGB = turn ? 1 : 0;
    request.fSamples = samples->data();
    request.fSampleBytes = samples->size();
    request.fReason = reason.data();
    request.fReasonBytes = reason.size();
    const std::int32_t result = decode(&request);
    *cut = result == kQvxJPEGCut;
    if (result == kQvxJPEGFailed)
        *why = reason.data();
    return result == kQvxJPEGFailed ? kQvxMalformed : kQvxOK;
}

// The module holds rows back until it sees what follows them, and a picture of several scans until
// it sees its end. True where a cut stream may give more if it is told that it ends.
bool MayHoldBack(const QvxJPEGHeader& header, const QvxBytes& samples)
{
    if (header.IsProgressive())
        return true;
    std::uint32_t rows = 1;  // that are decoded together
    for (std::uint32_t i = 0; header.IsDCT() && i < header.fComponents; ++i)
        rows = std::max(rows, 8U * header.fComponent[i].fVertical);
    const std::size_t held = samples.size() / header.fRows * std::min(rows + 1, header.fRows);
    return std::any_of(samples.end() - static_cast<std::ptrdiff_t>(held), samples.end(),
                       [](std::uint8_t byte) { return byte != 0; });
}

QvxStatus DecodeCutByModule(const QvxJPEGHeader& header, bool turn,
                            std::span<const std::uint8_t> stream, QvxBytes* samples, bool* cut,
                            std::string* why)
{
    QvxStatus status = DecodeByModule(header, turn, stream, samples, cut, why);
    if (status || !*cut)
        return status;
    std::ranges::fill(*samples, std::uint8_t{0});  // the block was in use: what is missing is 0
    status = DecodeByModule(header, turn, stream, samples, cut, why);
    if (status || QvxHasJPEGEnd(stream) || !MayHoldBack(header, *samples))
        return status;
    QvxBytes ended(stream.begin(), stream.end());
    ended.insert(ended.end(), {0xFF, 0xD9});
    QvxBytes more(samples->size());
    bool ignored = false;
    std::string reason;
    if (DecodeByModule(header, turn, ended, &more, &ignored, &reason) == kQvxOK)
        *samples = std::move(more);
    return kQvxOK;
}

QvxStatus CheckHeader(const QvxFrameRecord& record, const QvxJPEGHeader& header,
                      const QvxStreamFacts& facts, std::size_t streamBytes, std::string* why)
{
    if (!header.IsDCT() && !header.IsLossless()) {
        constexpr std::uint8_t kArithmetic = 0xC9;
        *why = header.fFrameMarker >= kArithmetic
                   ? "an arithmetic-coded JPEG stream: there is no decoder of these"
                   : "a hierarchical JPEG stream: there is no decoder of these";
        return kQvxUnsupported;
    }
    if (header.fRows == 0 || !header.HasWholeFactors()) {
        *why = header.fRows == 0 ? "a JPEG stream that says its number of rows behind them"
                                 : "a JPEG stream of broken sampling factors";
        return kQvxUnsupported;
    }
    if (header.fScans > kMaxJPEGScans) {
        *why = "a JPEG stream of more than " + std::to_string(kMaxJPEGScans) + " scans";
        return kQvxUnsupported;
    }
    if (header.fPrecision > 16 ||
        (header.IsDCT() && header.fPrecision != 8 && header.fPrecision != 12)) {
        *why = "a JPEG stream of " + std::to_string(header.fPrecision) + " bits";
        return kQvxUnsupported;
    }
    if (const QvxStatus status = QvxCheckStream(record, facts, why))
        return status;
    // A block of 64 samples takes some bits, however flat; nothing is set aside on a header's word.
    constexpr std::uint64_t kMostPixelsOfByte = 4096;
    if (record.Pixels() / kMostPixelsOfByte > streamBytes) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    return kQvxOK;
}

}  // namespace

QvxStatus QvxDecodeJPEG(const QvxFrameRecord& record, const QvxStream& stream, DecodedFrame* frame,
                        std::string* why)
{
    QvxJPEGHeader header;
    if (!QvxReadJPEGHeader(stream.Bytes(), &header, why))
        return kQvxMalformed;
    const QvxStreamFacts facts{header.fRows, header.fColumns, header.fComponents, header.fPrecision,
                               header.IsDCT()};
    if (const QvxStatus status = CheckHeader(record, header, facts, stream.fBytes.size(), why))
        return status;
    const std::size_t bytes = record.Pixels() * facts.fSamples * QvxSampleBytes(facts.fPrecision);
    const bool ybr = header.IsDCT() && HoldsYBR(record, header);
    // Where the plain library would read the colours otherwise, the module does as it is told.
    const bool plain = header.IsDCT() && header.fPrecision == 8 &&
                       (header.fComponents == 1 || TurboTakesYBR(header) == ybr);
    QvxBytes samples = plain ? QvxTakeBlock(frame, bytes) : QvxTakeUsedBlock(frame, bytes);
    bool cut = false;
    const QvxStatus status =
        plain ? DecodeByTurbo(header, stream.Bytes(), &samples, &cut, why)
              : DecodeCutByModule(header, ybr, stream.Bytes(), &samples, &cut, why);
    if (status)
        return status;
    const bool lossy = header.IsDCT();
    QvxTakeSamples(record, facts, lossy ? QvxStreamColor::RGB : QvxStreamColor::AsFileSays,
                   std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || cut;
    return kQvxOK;
}

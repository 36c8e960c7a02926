#include "QvxToolkit/QvxVideo.h"

#include "QvxToolkit/QvxClip.h"
#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr std::string_view kSyntaxRoot = "1.2.840.10008.1.2.4.";
// Each also with ".1" behind it: in several fragments.
constexpr auto kClipSyntaxes = std::to_array<std::string_view>(
    {"100", "101", "102", "103", "104", "105", "106", "107", "108"});

constexpr std::uint64_t kLeastPictureBytes = 8;  // a coded picture with its start code

// A claim to go by without a look into the stream.
bool IsCredible(std::uint32_t claimed, const QvxClipStream& stream)
{
    return claimed > 0 && claimed <= kMaxVideoPackets && !stream.IsCutShort() &&
           claimed <= stream.Size() / kLeastPictureBytes;
}

}  // namespace

bool QvxIsVideo(const std::string& transferSyntax)
{
    std::string_view uid = transferSyntax;
    if (!uid.starts_with(kSyntaxRoot))
        return false;
    uid.remove_prefix(kSyntaxRoot.size());
    if (uid.ends_with(".1"))
        uid.remove_suffix(2);
    return std::ranges::find(kClipSyntaxes, uid) != kClipSyntaxes.end();
}

QvxStatus QvxPlaceClip(QvxParserRec* reader, const QvxPixelRun& run, QvxFrameRecord* record,
                       std::string* why)
{
    record->fPixelOffset = run.fOffset;
    QvxClip& clip = QvxClip::Of(reader, *record);
    if (clip.Stream().Size() == 0) {
        *why = "(7FE0,0010) holds no byte of a stream";
        return kQvxEndOfFile;
    }
    const std::uint32_t claimed = run.fClaimedFrames;
    record->fFrames = record->fClaimedFrames = claimed;
    if (IsCredible(claimed, clip.Stream()))
        return kQvxOK;
    std::uint32_t held = 0;
    std::string reason;
    if (clip.Count(*record, &held, &reason) != kQvxOK)
        held = 1;  // which can't be decoded, and says why then
    record->fFrames = claimed > 0 ? std::min(claimed, held) : held;
    record->fClaimedFrames = std::max(claimed, record->fFrames);
    return kQvxOK;
}

QvxStatus QvxDecodeVideoFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                              std::uint32_t frameNumber, DecodedFrame* frame, std::string* why)
{
    const QvxStreamFacts facts = QvxClip::FactsOf(record);
    const std::uint32_t sampleBytes = QvxSampleBytes(facts.fPrecision);
    // 65535 by 65535 of three 4-byte samples: far below 2^63
    const std::uint64_t bytes = record.Pixels() * facts.fSamples * sampleBytes;
    if (const QvxStatus status = QvxCheckStream(record, facts, why))
        return status;
    QvxBytes samples = QvxTakeBlock(frame, static_cast<std::size_t>(bytes));
    QvxClip& clip = QvxClip::Of(reader, record);
    if (const QvxStatus status = clip.Frame(record, frameNumber, samples.data(), why)) {
        frame->fBytes = std::move(samples);
        return status;
    }
    frame->fCutShort = false;
    QvxTakeSamples(record, facts, QvxStreamColor::RGB, std::move(samples), frame);
    return kQvxOK;
}

#include "QvxToolkit/QvxFrameBytes.h"

#include "util/CheckedMath.h"

#include "QvxToolkit/QvxHeaderValue.h"
#include <array>

namespace {

constexpr QvxElementTag kTagNumberOfFrames{0x0028, 0x0008};

struct PixelTag {
    QvxElementTag fTag;
    QvxSampleForm fForm;
};
constexpr auto kPixelTags = std::to_array<PixelTag>({
    {{0x7FE0, 0x0010}, QvxSampleForm::Integer},
    {{0x7FE0, 0x0008}, QvxSampleForm::Float32},
    {{0x7FE0, 0x0009}, QvxSampleForm::Float64},
});

// A top-level element as the walk found it: its value is not touched.
const DicomHeaderDataStruct* TopElement(const ExtraHeaderDataRec& state, QvxElementTag tag)
{
    for (QvxIndex at = state.fListHead; at; at = state.fArena.At(at).fNext) {
        if (state.fArena.At(at).Tag() == tag)
            return &state.fArena.At(at);
    }
    return nullptr;
}

void TakePlace(const ExtraHeaderDataRec& state, const DicomHeaderDataStruct& element,
               QvxPixelRun* run)
{
    run->fBytes = element.VR() == kVRIndexOB;
    run->fOffset = element.fValueOffset;
    run->fDefinite = !element.Undefined();
    run->fStatedLength = run->fDefinite ? element.fLength : 0;
    run->fRoom = run->fOffset < state.fFileSize ? state.fFileSize - run->fOffset : 0;
}

std::uint32_t FramesWithin(std::uint64_t bytes, std::uint64_t frameBits, std::uint64_t stride)
{
    const std::uint64_t bits = bytes * 8;  // of 32-bit sizes: no overflow
    if (bits < frameBits)
        return 0;
    return static_cast<std::uint32_t>(
        std::min<std::uint64_t>((bits - frameBits) / stride + 1, UINT32_MAX));
}

std::uint64_t StrideOf(const QvxPixelRun& run, std::uint64_t frameBits)
{
    const std::uint64_t padded = (frameBits + 7) / 8 * 8;
    const std::uint64_t frames = std::max(run.fClaimedFrames, 1u);
    const auto wholeBytes = CheckedMul(frames, padded / 8);
    return wholeBytes && *wholeBytes <= run.Length() ? padded : frameBits;
}

QvxStatus PlaceEncapsulated(const QvxPixelRun& run, QvxFrameRecord* record, std::string* why)
{
    if (run.fMappedFrames == 0) {
        *why = "(7FE0,0010) holds no whole frame";
        return kQvxEndOfFile;
    }
    record->fFrames = run.fMappedFrames;
    record->fClaimedFrames = std::max(run.fClaimedFrames, run.fMappedFrames);
    return kQvxOK;
}

}  // namespace

QvxStatus QvxFindPixels(QvxParserRec* reader, QvxPixelRun* run, std::string* why)
{
    // Encodings that the walk doesn't know by number must be asked for before frames are mapped.
    std::uint32_t syntax = 0;
    if (Qvx2Reader_GetFileMetaInformation(reader, kMetaTransferSyntax, &syntax) != kQvxOK)
        syntax = kUnknownState;
    std::uint32_t mapped = 0;
    if (Qvx2Reader_GetNumberOfFrames(reader, 0, &mapped) != kQvxOK)
        mapped = 0;  // a header that breaks off may still have all it takes
    run->fClaimedFrames = QvxHeaderCount(reader, kTagNumberOfFrames, INT32_MAX).value_or(0);
    const ExtraHeaderDataRec* state = Qvx2Reader_State(reader);
    for (const PixelTag& place : kPixelTags) {
        const auto* element = state ? TopElement(*state, place.fTag) : nullptr;
        if (!element)
            continue;
        TakePlace(*state, *element, run);
        run->fForm = place.fForm;
        if (place.fForm == QvxSampleForm::Integer) {
            run->fEncapsulated = state->fImageForm == kImageFormEncapsulated;
            run->fMappedFrames = mapped;
        }
        if (run->fDefinite && run->fStatedLength == 0) {
            *why = "the pixel data is empty";
            return kQvxNoSuchElement;
        }
        return kQvxOK;
    }
    *why = "there is no pixel data";
    return kQvxNoSuchElement;
}

QvxStatus QvxPlaceFrames(const QvxPixelRun& run, QvxFrameRecord* record, std::string* why)
{
    if (run.fEncapsulated)
        return PlaceEncapsulated(run, record, why);
    const std::uint64_t samples = record->fHalfChroma ? 2 : record->fSamples;
    // 65535 by 65535 of 3 times 64 bits: far below 2^63
    const std::uint64_t frameBits = record->Pixels() * samples * record->fBitsAllocated;
    record->fFrameBytes = (frameBits + 7) / 8;
    record->fFrameStride = StrideOf(run, frameBits);
    record->fPixelOffset = run.fOffset;
    record->fPixelBytes = run.fRoom;
    const bool wholeCells = record->fBitsAllocated >= 16 && record->fBitsAllocated % 16 == 0;
    record->fWordSwapped = record->fByteOrder == 1 && !run.fBytes && !wholeCells;

    const std::uint32_t there = FramesWithin(run.fRoom, frameBits, record->fFrameStride);
    std::uint32_t claimed = run.fClaimedFrames;
    if (claimed == 0 && run.fDefinite)
        claimed = std::max(FramesWithin(run.fStatedLength, frameBits, record->fFrameStride), 1u);
    else if (claimed == 0)
        claimed = std::max(there, 1u);
    record->fClaimedFrames = claimed;
    record->fFrames = std::max(std::min(claimed, there), 1u);
    if (record->fFrames > 1 || run.Length() >= record->fFrameBytes)
        return kQvxOK;
    record->fPixelBytes = run.Length();  // of a cut frame, what follows the pixels is none of it
    if (record->fPixelBytes < record->fFrameBytes / kLeastPartOfCutFrame) {
        *why = "the pixel data is cut off: " + std::to_string(record->fPixelBytes) + " of " +
               std::to_string(record->fFrameBytes) + " bytes of a frame are there";
        return kQvxEndOfFile;
    }
    return kQvxOK;
}

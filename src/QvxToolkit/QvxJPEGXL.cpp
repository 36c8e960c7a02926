#include "QvxToolkit/QvxJPEGXLModule.h"
#include "QvxToolkit/QvxModule.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include <algorithm>
#include <array>
#include <new>

namespace {

struct Room {
    DecodedFrame* fFrame;
    QvxStreamFacts fFacts;
    QvxBytes fSamples;
};

// Called from within the library: nothing is thrown through it.
void* MakeRoom(void* context, std::uint32_t precision, bool lossy)
{
    auto* room = static_cast<Room*>(context);
    room->fFacts.fPrecision = precision;
    room->fFacts.fLossy = lossy;
    try {
        room->fSamples =
            QvxTakeBlock(room->fFrame, std::size_t{room->fFacts.fRows} * room->fFacts.fColumns *
                                           room->fFacts.fSamples * QvxSampleBytes(precision));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
    return room->fSamples.data();
}

}  // namespace

QvxStatus QvxDecodeJPEGXL(const QvxFrameRecord& record, const QvxStream& stream,
                          DecodedFrame* frame, std::string* why)
{
    // The module compares what the stream says with these.
    const std::uint32_t most = std::min(std::max(record.fBitsAllocated, 8U), 16U);
    const QvxStreamFacts promised{record.fRows, record.fColumns, record.fSamples, most};
    if (const QvxStatus status = QvxCheckStream(record, promised, why))
        return status;
    constexpr std::uint64_t kMostPixelsOfByte = 65536;  // flat areas cost next to nothing
    if (record.Pixels() / kMostPixelsOfByte > stream.fBytes.size()) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    const auto decode = reinterpret_cast<QvxJPEGXLDecode>(
        QvxModuleFunction(kQvxJPEGXLModule, kQvxJPEGXLFunction, why));
    if (!decode)
        return kQvxUnsupported;
    Room room{frame, promised, {}};
    std::array<char, 256> reason{};
    QvxJPEGXLRequest request;
    request.fStream = stream.fBytes.data();
    request.fStreamBytes = stream.fBytes.size();
    request.fRows = record.fRows;
    request.fColumns = record.fColumns;
    request.fSamples = record.fSamples;
    request.fMostPrecision = most;
    request.fMakeRoom = MakeRoom;
    request.fContext = &room;
    request.fReason = reason.data();
    request.fReasonBytes = reason.size();
    const std::int32_t result = decode(&request);
    if (result != kQvxJPEGXLDone && result != kQvxJPEGXLCut) {
        *why = reason.data();
        return kQvxMalformed;
    }
    // The library leaves RGB, whatever it kept inside.
    QvxTakeSamples(record, room.fFacts, QvxStreamColor::RGB, std::move(room.fSamples), frame);
    frame->fCutShort = stream.fCutShort || result == kQvxJPEGXLCut;
    return kQvxOK;
}

#include "QvxToolkit/DecodedFrame.h"

#include "QvxToolkit/QvxDecoders.h"
#include <new>

namespace {

QvxStatus Decode(QvxParserRec* reader, const QvxFrameRecord& record, std::uint32_t frameNumber,
                 DecodedFrame* frame, std::string* why)
{
    const std::string place = "frame " + std::to_string(frameNumber);
    if (frameNumber < 1 || frameNumber > record.fClaimedFrames) {
        *why = "there is no " + place;
        return kQvxBadArgument;
    }
    QvxStatus status = kQvxEndOfFile;
    std::string reason;
    if (frameNumber <= record.fFrames) {
        const QvxReaderUse use(reader);
        status = QvxDecodeAnyFrame(reader, record, frameNumber, frame, &reason);
    }
    if (status == kQvxEndOfFile && reason.empty())
        *why = place + " is cut off";
    else if (status != kQvxOK)
        *why = place + ": " + (reason.empty() ? std::string(StatusText(status)) : reason);
    return status;
}

}  // namespace

QvxStatus DecodeFrame(QvxParserRec* reader, const QvxFrameRecord& record, std::uint32_t frameNumber,
                      DecodedFrame* frame, std::string* why)
{
    if (!reader || !frame)
        return kQvxBadArgument;
    try {
        std::string reason;
        const QvxStatus status = Decode(reader, record, frameNumber, frame, &reason);
        if (status != kQvxOK && why)
            *why = std::move(reason);
        return status;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

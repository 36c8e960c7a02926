#include "QvxToolkit/DecodedFrame.h"

#include "QvxToolkit/QvxDecoders.h"
#include <new>

namespace {

QvxStatus Decode(QvxParserRec* reader, const QvxFrameRecord& record, std::uint32_t frameNumber,
                 DecodedFrame* frame, std::string* why)
{
    if (frameNumber < 1 || frameNumber > record.fClaimedFrames) {
        *why = "there is no frame " + std::to_string(frameNumber);
        return kQvxBadArgument;
    }
    QvxFrameDecoder decoder = nullptr;
    if (const QvxStatus status = QvxPickDecoder(record, &decoder, why))
        return status;
    QvxStatus status = kQvxEndOfFile;
    if (frameNumber <= record.fFrames) {
        const QvxReaderUse use(reader);
        status = decoder(reader, record, frameNumber, frame);
    }
    if (status == kQvxEndOfFile)
        *why = "frame " + std::to_string(frameNumber) + " is cut off";
    else if (status != kQvxOK)
        *why = "frame " + std::to_string(frameNumber) + ": " + std::string(StatusText(status));
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

#include "QvxToolkit/modules/VideoLearner.h"

#include "QvxToolkit/modules/VideoPixels.h"

QvxVideoResult VideoLearner::Open()
{
    fPacket.reset(av_packet_alloc());
    fPicture.reset(av_frame_alloc());
    if (!fPacket || !fPicture)
        return fEnd = kVideoNoMemory;
    fDemuxer.emplace(fBytes);
    if (const QvxVideoResult result = fDemuxer->Open())
        return fEnd = result;
    fIndex->fInOnePiece = fDemuxer->IsInOnePiece();
    return Learn();
}

QvxVideoResult VideoLearner::Learn()
{
    while (fEnd == kVideoDone) {
        const QvxVideoResult result = fDecoder.IsOpen() ? Step() : SendPacket();
        if (result == kVideoDone)
            return kVideoDone;
        if (result != kVideoBroken)
            fEnd = result;
    }
    fDemuxer.reset();
    fDecoder = {};
    fPicture.reset();
    return fEnd;
}

// kVideoBroken: not yet.
QvxVideoResult VideoLearner::Step()
{
    const QvxVideoResult received = fDecoder.Receive(fPicture.get());
    if (received == kVideoDone)
        return TakePicture();
    if (received != kVideoBroken)
        return received;
    return fAllSent ? kVideoEnds : SendPacket();
}

QvxVideoResult VideoLearner::SendPacket()
{
    QvxVideoResult result =
        fIndex->fPackets.size() < kMaxVideoPackets ? fDemuxer->Next(fPacket.get()) : kVideoEnds;
    if (result == kVideoDone && !HasSize(fDemuxer->StatedSize()))
        result = fIndex->fPictures.empty() ? kVideoWrongSize : kVideoEnds;
    if (result == kVideoDone && !fDecoder.IsOpen())
        result = TakeFirst();
    if (result == kVideoEnds && fDecoder.IsOpen()) {
        fAllSent = true;
        result = fDecoder.Send(nullptr, 0);
    } else if (result == kVideoDone) {
        const auto number = static_cast<std::uint32_t>(fIndex->fPackets.size());
        fIndex->fPackets.push_back({fPacket->pos, fPacket->size, IsKey(*fPacket), kNoPicture});
        result = fDecoder.Send(fPacket.get(), number);
    }
    return result == kVideoDone ? kVideoBroken : result;
}

QvxVideoResult VideoLearner::TakeFirst()
{
    fIndex->fCodec.reset(avcodec_parameters_alloc());
    if (!fIndex->fCodec || avcodec_parameters_copy(fIndex->fCodec.get(), fDemuxer->Codec()) < 0)
        return kVideoNoMemory;
    return fDecoder.Open(*fIndex->fCodec, fFormat) == kVideoDone ? kVideoDone : kVideoNotAStream;
}

QvxVideoResult VideoLearner::TakePicture()
{
    if (!HasSize({static_cast<std::uint32_t>(fPicture->height),
                  static_cast<std::uint32_t>(fPicture->width)}))
        return fIndex->fPictures.empty() ? kVideoWrongSize : kVideoEnds;
    VideoPicture picture{kNoPicture, HashOfPicture(*fPicture)};
    const std::int64_t number = fPicture->pts;
    if (number >= 0 && static_cast<std::uint64_t>(number) < fIndex->fPackets.size()) {
        picture.fPacket = static_cast<std::uint32_t>(number);
        std::uint32_t& shown = fIndex->fPackets[picture.fPacket].fPicture;
        if (shown == kNoPicture)
            shown = static_cast<std::uint32_t>(fIndex->fPictures.size());
    }
    fIndex->fPictures.push_back(picture);
    return kVideoDone;
}

// A stream may leave its size open until there is a picture.
bool VideoLearner::HasSize(QvxVideoSize size)
{
    if (size.fRows == 0)
        return true;
    fStated = size;
    return size.fRows == fFormat.fRows && size.fColumns == fFormat.fColumns;
}

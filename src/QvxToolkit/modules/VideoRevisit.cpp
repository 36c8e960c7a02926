#include "QvxToolkit/modules/VideoRevisit.h"

#include "QvxToolkit/modules/VideoPixels.h"

namespace {

constexpr int kMostRests = 64;  // packets of rests behind a jump into a container
constexpr int kMostZeroes = 3;  // that may stand in front of a start code

// The first whole packet behind a jump: it may have kept zeroes that belong to the one before, and
// lost its position when it shares it with the rests of that one.
bool IsSame(const AVPacket& packet, const VideoPacket& wanted)
{
    return (packet.pos == wanted.fPosition || packet.pos < 0) && packet.size >= wanted.fSize &&
           packet.size - wanted.fSize <= kMostZeroes;
}

}  // namespace

QvxVideoResult VideoRevisit::Open()
{
    fPacket.reset(av_packet_alloc());
    fPicture.reset(av_frame_alloc());
    if (!fPacket || !fPicture)
        return kVideoNoMemory;
    if (!fIndex.fInOnePiece) {
        fDemuxer.emplace(fBytes);
        if (const QvxVideoResult result = fDemuxer->Open())
            return result;
    }
    VideoDecoder decoder;
    if (const QvxVideoResult result = decoder.Open(*fIndex.fCodec, fFormat))
        return result;
    fDecoder = std::move(decoder);
    fNext = 0;
    return SendNext();  // parameter sets may stand at the beginning only
}

QvxVideoResult VideoRevisit::Find(std::uint32_t number)
{
    if (fFound == number && number != kNoPicture)
        return kVideoDone;
    if (!fDecoder.IsOpen()) {
        if (const QvxVideoResult result = Open())
            return result;
    }
    const std::uint32_t packet = fIndex.fPictures[number].fPacket;
    std::uint32_t key = packet == kNoPicture ? 0 : KeyBefore(number, packet);
    if (IsOnTheWay(number, key) && RunTo(number) == kVideoDone)
        return kVideoDone;
    const std::uint32_t earlier = key == 0 ? 0 : KeyBefore(number, key - 1);
    for (const std::uint32_t from : {key, earlier, 0U}) {
        QvxVideoResult result = GoTo(from);
        if (result == kVideoDone)
            result = RunTo(number);
        if (result == kVideoDone || from == 0)
            return result;
    }
    return kVideoBroken;
}

std::uint32_t VideoRevisit::KeyBefore(std::uint32_t number, std::uint32_t packet) const
{
    for (std::uint32_t i = packet; i > 0; --i) {
        const VideoPacket& key = fIndex.fPackets[i];
        if (key.fKey && key.fPicture <= number)
            return i;
    }
    return 0;
}

bool VideoRevisit::IsOnTheWay(std::uint32_t number, std::uint32_t key) const
{
    return fFound != kNoPicture && fFound < number && fNext > key;
}

QvxVideoResult VideoRevisit::GoTo(std::uint32_t packet)
{
    fDecoder.Flush();
    fFound = kNoPicture;
    fNext = packet;
    fSeen = 0;
    fFromBeginning = packet == 0;
    fAllSent = fHasPacket = false;
    if (fIndex.fInOnePiece)
        return kVideoDone;
    return fFromBeginning ? fDemuxer->Open() : SeekTo(packet);
}

QvxVideoResult VideoRevisit::SeekTo(std::uint32_t packet)
{
    const VideoPacket& wanted = fIndex.fPackets[packet];
    if (wanted.fPosition < 0 || !fDemuxer->SeekTo(wanted.fPosition))
        return kVideoBroken;
    for (int rests = 0; rests < kMostRests; ++rests) {
        if (const QvxVideoResult result = fDemuxer->Next(fPacket.get()))
            return result;
        fHasPacket = IsSame(*fPacket, wanted);
        if (fHasPacket)
            return kVideoDone;
    }
    return kVideoBroken;
}

QvxVideoResult VideoRevisit::Fetch()
{
    if (fHasPacket) {
        fHasPacket = false;
        return kVideoDone;
    }
    const VideoPacket& wanted = fIndex.fPackets[fNext];
    if (!fIndex.fInOnePiece) {
        const QvxVideoResult result = fDemuxer->Next(fPacket.get());
        return result == kVideoDone && fPacket->size != wanted.fSize ? kVideoBroken : result;
    }
    av_packet_unref(fPacket.get());
    if (av_new_packet(fPacket.get(), wanted.fSize) < 0)
        return kVideoNoMemory;
    if (wanted.fKey)
        fPacket->flags = AV_PKT_FLAG_KEY;
    return fBytes->ReadAll(wanted.fPosition, fPacket->data, wanted.fSize) ? kVideoDone
                                                                          : kVideoBroken;
}

// The packets that were learnt; behind the last of them the end, as it was met in learning or, with
// more to learn, as good as it: all pictures of the index come out.
QvxVideoResult VideoRevisit::SendNext()
{
    if (fAllSent)
        return kVideoEnds;
    if (fNext >= fIndex.fPackets.size()) {
        fAllSent = true;
        return fDecoder.Send(nullptr, 0);
    }
    if (const QvxVideoResult result = Fetch())
        return result;
    return fDecoder.Send(fPacket.get(), fNext++);
}

std::uint32_t VideoRevisit::NumberOfPicture()
{
    if (fFromBeginning)
        return fSeen++;
    const std::int64_t packet = fPicture->pts;
    if (packet < 0 || static_cast<std::uint64_t>(packet) >= fIndex.fPackets.size())
        return kNoPicture;
    return fIndex.fPackets[static_cast<std::size_t>(packet)].fPicture;
}

QvxVideoResult VideoRevisit::RunTo(std::uint32_t number)
{
    fFound = kNoPicture;
    for (;;) {
        const QvxVideoResult received = fDecoder.Receive(fPicture.get());
        if (received == kVideoBroken) {
            if (const QvxVideoResult result = SendNext())
                return result;
            continue;
        }
        if (received != kVideoDone)
            return received;
        const std::uint32_t shown = NumberOfPicture();
        if (shown == number &&
            (fFromBeginning || HashOfPicture(*fPicture) == fIndex.fPictures[number].fHash)) {
            fFound = number;
            return kVideoDone;
        }
        if (shown >= number && shown != kNoPicture)
            return kVideoBroken;
    }
}

// The way back to pictures that have been learnt. A picture is decoded from the last key picture
// that is decoded and shown before it. It counts only if it comes out as it did the first time;
// else it is sought from one key picture earlier, and at last from the beginning, where the count
// of pictures decides. Pictures behind the last one that was found need no key picture. Internal.
#pragma once
#include "QvxToolkit/modules/VideoLearner.h"

class VideoRevisit {
public:
    VideoRevisit(VideoBytes* bytes, const QvxVideoFormat& format, const VideoIndex& index)
        : fBytes(bytes), fFormat(format), fIndex(index)
    {
    }
    // Decodes picture `number`, one of the index.
    [[nodiscard]] QvxVideoResult Find(std::uint32_t number);
    [[nodiscard]] const AVFrame& Picture() const { return *fPicture; }

private:
    [[nodiscard]] QvxVideoResult Open();
    // The last key packet before `packet` that picture `number` can be decoded from; 0 without one.
    [[nodiscard]] std::uint32_t KeyBefore(std::uint32_t number, std::uint32_t packet) const;
    [[nodiscard]] bool IsOnTheWay(std::uint32_t number, std::uint32_t key) const;
    // Makes packet `packet` the next, to a decoder that knows no picture.
    [[nodiscard]] QvxVideoResult GoTo(std::uint32_t packet);
    [[nodiscard]] QvxVideoResult SeekTo(std::uint32_t packet);
    [[nodiscard]] QvxVideoResult RunTo(std::uint32_t number);
    [[nodiscard]] QvxVideoResult SendNext();
    // Packet number fNext into fPacket.
    [[nodiscard]] QvxVideoResult Fetch();
    // Number of the picture that has come; kNoPicture for one that is none of the index.
    [[nodiscard]] std::uint32_t NumberOfPicture();

    VideoBytes* fBytes;
    QvxVideoFormat fFormat;
    const VideoIndex& fIndex;
    std::optional<VideoDemuxer> fDemuxer;  // where packets don't lie in one piece
    VideoDecoder fDecoder;
    VideoOwner<AVPacket> fPacket;
    VideoOwner<AVFrame> fPicture;
    std::uint32_t fFound = kNoPicture;  // number of fPicture
    std::uint32_t fNext = 0;            // packet to send
    std::uint32_t fSeen = 0;            // pictures since the beginning
    bool fFromBeginning = false, fAllSent = false;
    bool fHasPacket = false;  // SeekTo has fetched it already
};

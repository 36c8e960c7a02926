// The one decode of a stream from its beginning, picture by picture, and the index that it leaves.
// Internal.
#pragma once
#include "QvxToolkit/modules/VideoDecoder.h"
#include "QvxToolkit/modules/VideoDemuxer.h"
#include <optional>
#include <vector>

inline constexpr std::uint32_t kNoPicture = UINT32_MAX;

struct VideoPacket {
    std::int64_t fPosition;  // in the container
    std::int32_t fSize;
    bool fKey;
    std::uint32_t fPicture;  // number of its picture, kNoPicture until that is shown
};
struct VideoPicture {
    std::uint32_t fPacket;  // kNoPicture: the decoder did not say
    std::uint64_t fHash;
};

// Packets in the order of decoding, pictures in the order of display; both from 0.
struct VideoIndex {
    std::vector<VideoPacket> fPackets;
    std::vector<VideoPicture> fPictures;
    bool fInOnePiece = false;  // as VideoDemuxer::IsInOnePiece

    struct CodecFree {
        void operator()(AVCodecParameters* codec) const { avcodec_parameters_free(&codec); }
    };
    std::unique_ptr<AVCodecParameters, CodecFree> fCodec;  // from the first packet on
};

class VideoLearner {
public:
    VideoLearner(VideoBytes* bytes, const QvxVideoFormat& format, VideoIndex* index)
        : fBytes(bytes), fFormat(format), fIndex(index)
    {
    }
    // Opens the stream and decodes its first picture.
    [[nodiscard]] QvxVideoResult Open();
    // Decodes one more, which joins the index. Behind the last one kVideoEnds, or what else has
    // ended it, and the same from then on.
    [[nodiscard]] QvxVideoResult Learn();
    // The last picture learnt; null before the first, and once all is learnt.
    [[nodiscard]] const AVFrame* Picture() const { return fPicture.get(); }
    // What the stream has said of its size last.
    [[nodiscard]] QvxVideoSize StatedSize() const { return fStated; }

private:
    [[nodiscard]] QvxVideoResult Step();
    [[nodiscard]] QvxVideoResult SendPacket();
    [[nodiscard]] QvxVideoResult TakeFirst();
    [[nodiscard]] QvxVideoResult TakePicture();
    [[nodiscard]] bool HasSize(QvxVideoSize size);

    VideoBytes* fBytes;
    QvxVideoFormat fFormat;
    VideoIndex* fIndex;
    std::optional<VideoDemuxer> fDemuxer;
    VideoDecoder fDecoder;
    VideoOwner<AVPacket> fPacket;
    VideoOwner<AVFrame> fPicture;
    QvxVideoSize fStated{0, 0};
    QvxVideoResult fEnd = kVideoDone;  // why there is nothing more to learn
    bool fAllSent = false;
};

#include "QvxToolkit/modules/VideoDecoder.h"

namespace {

constexpr int kThreads = 2, kEdges = 192;
constexpr int kMostDamaged = 64;  // pictures that can be waiting at one time, and more

const AVCodec* DecoderOf(AVCodecID codec)
{
    switch (codec) {
        case AV_CODEC_ID_H264:
            return avcodec_find_decoder_by_name("h264");
        case AV_CODEC_ID_HEVC:
            return avcodec_find_decoder_by_name("hevc");
        default:  // takes MPEG-1 as well
            return avcodec_find_decoder_by_name("mpeg2video");
    }
}

// Coded sizes are multiples of up to 64; decoders work with an edge around them.
std::int64_t MostPixels(const QvxVideoFormat& format)
{
    const auto whole = [](std::uint32_t side) {
        return (std::int64_t{side} + 63) / 64 * 64 + kEdges;
    };
    return whole(format.fRows) * whole(format.fColumns);
}

}  // namespace

QvxVideoResult VideoDecoder::Open(const AVCodecParameters& codec, const QvxVideoFormat& format)
{
    const AVCodec* decoder = DecoderOf(codec.codec_id);
    if (!decoder)
        return kVideoNotAStream;
    VideoOwner<AVCodecContext> made(avcodec_alloc_context3(decoder));
    if (!made)
        return kVideoNoMemory;
    if (avcodec_parameters_to_context(made.get(), &codec) < 0)
        return kVideoBroken;
    made->codec_id = decoder->id;
    made->max_pixels = MostPixels(format);
    made->thread_count = kThreads;
    // Without a stated reordering, as the level allows; never a guess that later pictures correct.
    if (codec.codec_id == AV_CODEC_ID_H264)
        made->strict_std_compliance = FF_COMPLIANCE_STRICT;
    if (avcodec_open2(made.get(), decoder, nullptr) < 0)
        return kVideoBroken;
    fCodec = std::move(made);
    return kVideoDone;
}

QvxVideoResult VideoDecoder::Send(AVPacket* packet, std::uint32_t number)
{
    if (packet)
        packet->pts = packet->dts = number;
    const int status = avcodec_send_packet(fCodec.get(), packet);
    return status == AVERROR(ENOMEM) ? kVideoNoMemory : kVideoDone;
}

QvxVideoResult VideoDecoder::Receive(AVFrame* frame)
{
    // A damaged picture is an error of its own; the next may stand behind it.
    for (int damaged = 0; damaged < kMostDamaged; ++damaged) {
        const int status = avcodec_receive_frame(fCodec.get(), frame);
        if (status >= 0)
            return kVideoDone;
        if (status == AVERROR(EAGAIN))
            return kVideoBroken;
        if (status == AVERROR_EOF)
            return kVideoEnds;
        if (status == AVERROR(ENOMEM))
            return kVideoNoMemory;
    }
    return kVideoBroken;
}

// Owners of FFmpeg's objects, and what the files of this module share. Internal.
#pragma once
#include "QvxToolkit/QvxVideoModule.h"
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

struct VideoFree {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
    void operator()(AVIOContext* io) const
    {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
};
template <typename T>
using VideoOwner = std::unique_ptr<T, VideoFree>;

[[nodiscard]] inline bool IsKey(const AVPacket& packet)
{
    return (packet.flags & AV_PKT_FLAG_KEY) != 0;
}

// From coded pictures to shown ones. A packet's number, given as its time, comes back with its
// picture. Internal.
#pragma once
#include "QvxToolkit/modules/VideoParts.h"

class VideoDecoder {
public:
    // For pictures of the format's size; larger ones are refused before memory is taken for them.
    [[nodiscard]] QvxVideoResult Open(const AVCodecParameters& codec, const QvxVideoFormat& format);
    [[nodiscard]] bool IsOpen() const { return fCodec != nullptr; }
    // Packet number `number`, or the end (null). A packet that is no picture gives none.
    [[nodiscard]] QvxVideoResult Send(AVPacket* packet, std::uint32_t number);
    // The next picture in the order of display. kVideoBroken when a packet is wanted first,
    // kVideoEnds behind the last one.
    [[nodiscard]] QvxVideoResult Receive(AVFrame* frame);
    // Forgets all pictures, but not what parameter sets have said.
    void Flush() { avcodec_flush_buffers(fCodec.get()); }

private:
    VideoOwner<AVCodecContext> fCodec;
};

#include "ClipMaker.h"

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

// The encoder of HEVC leaves blocks behind; ours are looked after all the same.
extern "C" const char* __lsan_default_suppressions() { return "leak:libx265"; }

namespace {

struct Free {
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFormatContext* format) const { avformat_free_context(format); }
};

class Maker {
public:
    explicit Maker(const ClipSettings& settings) : fSettings(settings) {}
    bool Open();
    bool Encode(int number);  // behind the last: the end
    std::string Finish();

private:
    void Paint(int number);

    ClipSettings fSettings;
    std::unique_ptr<AVCodecContext, Free> fCodec;
    std::unique_ptr<AVFormatContext, Free> fFormat;
    std::unique_ptr<AVFrame, Free> fFrame{av_frame_alloc()};
    std::unique_ptr<AVPacket, Free> fPacket{av_packet_alloc()};
};

bool Maker::Open()
{
    av_log_set_level(AV_LOG_QUIET);
    const AVCodec* encoder = avcodec_find_encoder_by_name(fSettings.fEncoder);
    AVFormatContext* format = nullptr;
    if (!encoder || avformat_alloc_output_context2(&format, nullptr, fSettings.fContainer, "") < 0)
        return false;
    fFormat.reset(format);
    fCodec.reset(avcodec_alloc_context3(encoder));
    fCodec->width = fFrame->width = fSettings.fColumns;
    fCodec->height = fFrame->height = fSettings.fRows;
    fCodec->pix_fmt = fSettings.fDeep ? AV_PIX_FMT_YUV420P10LE : AV_PIX_FMT_YUV420P;
    fCodec->time_base = {1, 25};
    fCodec->framerate = {25, 1};
    fCodec->bit_rate = 4'000'000;
    fCodec->gop_size = 8;
    fCodec->colorspace = static_cast<AVColorSpace>(fSettings.fMatrix);
    fCodec->color_range = static_cast<AVColorRange>(fSettings.fRange);
    if ((format->oformat->flags & AVFMT_GLOBALHEADER) != 0 || fSettings.fSetsOnce)
        fCodec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    AVDictionary* options = nullptr;
    (void)av_dict_parse_string(&options, fSettings.fOptions, "=", ":", 0);
    const int opened = avcodec_open2(fCodec.get(), encoder, &options);
    av_dict_free(&options);
    AVStream* stream = avformat_new_stream(format, nullptr);
    if (opened < 0 || !stream)
        return false;
    stream->time_base = fCodec->time_base;
    fFrame->format = fCodec->pix_fmt;
    return avcodec_parameters_from_context(stream->codecpar, fCodec.get()) >= 0 &&
           avio_open_dyn_buf(&format->pb) >= 0 && avformat_write_header(format, nullptr) >= 0 &&
           av_frame_get_buffer(fFrame.get(), 0) >= 0;
}

void Maker::Paint(int number)
{
    const auto put = [this](int plane, int column, int row, int value) {
        std::uint8_t* line = fFrame->data[plane] + row * fFrame->linesize[plane];
        if (fSettings.fDeep)
            reinterpret_cast<std::uint16_t*>(line)[column] = static_cast<std::uint16_t>(4 * value);
        else
            line[column] = static_cast<std::uint8_t>(value);
    };
    for (int row = 0; row < fFrame->height; ++row) {
        for (int column = 0; column < fFrame->width; ++column) {
            const bool dark = column < fFrame->width / 2 + number % 5 && row < fFrame->height / 2;
            put(0, column, row, ClipLuma(number) - (dark ? 16 : 0));
            put(1, column / 2, row / 2, kClipCb);
            put(2, column / 2, row / 2, kClipCr);
        }
    }
}

bool Maker::Encode(int number)
{
    const bool isEnd = number >= fSettings.fFrames;
    if (!isEnd) {
        if (av_frame_make_writable(fFrame.get()) < 0)
            return false;
        Paint(number);
        fFrame->pts = number;
    }
    if (avcodec_send_frame(fCodec.get(), isEnd ? nullptr : fFrame.get()) < 0)
        return false;
    while (avcodec_receive_packet(fCodec.get(), fPacket.get()) >= 0) {
        fPacket->duration = 1;
        av_packet_rescale_ts(fPacket.get(), fCodec->time_base, fFormat->streams[0]->time_base);
        if (av_interleaved_write_frame(fFormat.get(), fPacket.get()) < 0)
            return false;
    }
    return true;
}

std::string Maker::Finish()
{
    (void)av_write_trailer(fFormat.get());
    std::uint8_t* bytes = nullptr;
    const int size = avio_close_dyn_buf(fFormat->pb, &bytes);
    fFormat->pb = nullptr;
    const std::unique_ptr<std::uint8_t, void (*)(void*)> owner(bytes, av_free);
    std::string stream(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size));
    if (fSettings.fSetsOnce)
        stream.insert(0, reinterpret_cast<const char*>(fCodec->extradata),
                      static_cast<std::size_t>(fCodec->extradata_size));
    return stream;
}

}  // namespace

std::string MakeClip(const ClipSettings& settings)
{
    Maker maker(settings);
    if (!maker.Open())
        return {};
    for (int i = 0; i <= settings.fFrames; ++i) {
        if (!maker.Encode(i))
            return {};
    }
    return maker.Finish();
}

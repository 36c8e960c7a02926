// The module "jxl": see QvxJPEGXLModule.h.
#include "QvxToolkit/QvxJPEGXLModule.h"
#include <cstdio>
#include <jxl/decode.h>
#include <limits>
#include <memory>

namespace {

struct DecoderDestroy {
    void operator()(JxlDecoder* decoder) const { JxlDecoderDestroy(decoder); }
};

// One run over one stream.
class Run {
public:
    explicit Run(const QvxJPEGXLRequest& request)
        : fRequest(request), fDecoder(JxlDecoderCreate(nullptr))
    {
    }
    std::int32_t Decode();

private:
    std::int32_t Say(std::int32_t result, const char* reason) const
    {
        if (fRequest.fReason && fRequest.fReasonBytes > 0)
            std::snprintf(fRequest.fReason, fRequest.fReasonBytes, "%s", reason);
        return result;
    }
    std::int32_t TakeInfo();
    std::int32_t TakeLayer() const;
    std::int32_t GiveRoom();
    std::int32_t End(bool flushed);
    void SpanBits() const;

    const QvxJPEGXLRequest& fRequest;
    std::unique_ptr<JxlDecoder, DecoderDestroy> fDecoder;
    JxlPixelFormat fFormat{};
    std::uint32_t fPrecision = 0;
    bool fLossy = false;
    void* fRoom = nullptr;
};

// Compared before a pixel is decoded.
std::int32_t Run::TakeInfo()
{
    JxlBasicInfo info{};
    if (JxlDecoderGetBasicInfo(fDecoder.get(), &info) != JXL_DEC_SUCCESS)
        return Say(kQvxJPEGXLFailed, "the JPEG XL stream has no header");
    if (info.xsize != fRequest.fColumns || info.ysize != fRequest.fRows)
        return Say(kQvxJPEGXLDiffers, "the JPEG XL image is of another size than the file says");
    if (info.num_color_channels != fRequest.fSamples || info.num_extra_channels != 0)
        return Say(kQvxJPEGXLDiffers, "the JPEG XL image has another number of samples");
    if (info.exponent_bits_per_sample != 0 || info.bits_per_sample > fRequest.fMostPrecision)
        return Say(kQvxJPEGXLDiffers, "the JPEG XL image has another number of bits");
    if (info.have_animation)
        return Say(kQvxJPEGXLDiffers, "the JPEG XL stream holds several pictures");
    fPrecision = info.bits_per_sample;
    fLossy = info.uses_original_profile == JXL_FALSE;
    fFormat = {fRequest.fSamples, fPrecision <= 8 ? JXL_TYPE_UINT8 : JXL_TYPE_UINT16,
               JXL_NATIVE_ENDIAN, 0};
    return kQvxJPEGXLDone;
}

// A layer may be far larger than the image that it is a part of, and costs its own size.
std::int32_t Run::TakeLayer() const
{
    JxlFrameHeader layer{};
    if (JxlDecoderGetFrameHeader(fDecoder.get(), &layer) != JXL_DEC_SUCCESS)
        return Say(kQvxJPEGXLFailed, "the JPEG XL stream has no sound layer");
    if (!layer.is_last || layer.layer_info.have_crop)
        return Say(kQvxJPEGXLDiffers, "the JPEG XL image is made of layers");
    return kQvxJPEGXLDone;
}

std::int32_t Run::GiveRoom()
{
    std::size_t size = 0;
    if (JxlDecoderImageOutBufferSize(fDecoder.get(), &fFormat, &size) != JXL_DEC_SUCCESS)
        return Say(kQvxJPEGXLFailed, "the JPEG XL stream can't be decoded");
    void* room = fRequest.fMakeRoom(fRequest.fContext, fPrecision, fLossy);
    if (!room ||
        JxlDecoderSetImageOutBuffer(fDecoder.get(), &fFormat, room, size) != JXL_DEC_SUCCESS)
        return Say(kQvxJPEGXLFailed, "there is no room for the JPEG XL image");
    fRoom = room;
    return kQvxJPEGXLDone;
}

template <typename T>
void SpanSamples(T* samples, std::size_t count, std::uint32_t most)
{
    constexpr std::uint64_t kFull = std::numeric_limits<T>::max();
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = static_cast<T>((samples[i] * std::uint64_t{most} + kFull / 2) / kFull);
}

// The library spreads samples over the full range of their type; back to the stream's own bits.
void Run::SpanBits() const
{
    const std::size_t count = std::size_t{fRequest.fRows} * fRequest.fColumns * fRequest.fSamples;
    const std::uint32_t most = (1u << fPrecision) - 1;
    if (fPrecision < 8)
        SpanSamples(static_cast<std::uint8_t*>(fRoom), count, most);
    else if (fPrecision > 8 && fPrecision < 16)
        SpanSamples(static_cast<std::uint16_t*>(fRoom), count, most);
}

std::int32_t Run::End(bool flushed)
{
    if (flushed && fRoom && JxlDecoderFlushImage(fDecoder.get()) == JXL_DEC_SUCCESS) {
        SpanBits();
        return kQvxJPEGXLCut;
    }
    return Say(kQvxJPEGXLFailed,
               flushed ? "the JPEG XL stream is cut off" : "the JPEG XL stream is damaged");
}

std::int32_t Run::Decode()
{
    if (!fDecoder ||
        JxlDecoderSubscribeEvents(fDecoder.get(), JXL_DEC_BASIC_INFO | JXL_DEC_FRAME |
                                                      JXL_DEC_FULL_IMAGE) != JXL_DEC_SUCCESS ||
        JxlDecoderSetCoalescing(fDecoder.get(), JXL_FALSE) != JXL_DEC_SUCCESS ||
        JxlDecoderSetInput(fDecoder.get(), fRequest.fStream, fRequest.fStreamBytes) !=
            JXL_DEC_SUCCESS)
        return Say(kQvxJPEGXLFailed, "the JPEG XL decoder can't be started");
    // Orientations are for photographs: rows stay as they are stored.
    JxlDecoderSetKeepOrientation(fDecoder.get(), JXL_TRUE);
    // The input isn't closed: a stream that breaks off asks for more, and what there is can be had.
    for (;;) {
        std::int32_t result = kQvxJPEGXLDone;
        switch (JxlDecoderProcessInput(fDecoder.get())) {
            case JXL_DEC_BASIC_INFO:
                result = TakeInfo();
                break;
            case JXL_DEC_FRAME:
                result = TakeLayer();
                break;
            case JXL_DEC_NEED_IMAGE_OUT_BUFFER:
                result = GiveRoom();
                break;
            case JXL_DEC_FULL_IMAGE:
            case JXL_DEC_SUCCESS:
                if (!fRoom)
                    return End(false);
                SpanBits();
                return kQvxJPEGXLDone;
            case JXL_DEC_NEED_MORE_INPUT:
                return End(true);
            default:
                return End(false);
        }
        if (result != kQvxJPEGXLDone)
            return result;
    }
}

}  // namespace

extern "C" __attribute__((visibility("default"))) std::int32_t zel_decode_jxl(
    const QvxJPEGXLRequest* request)
{
    return Run(*request).Decode();
}

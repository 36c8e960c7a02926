#include "QvxToolkit/modules/VideoPixels.h"

#include <algorithm>
#include <cstring>

extern "C" {
#include <libavutil/imgutils.h>
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

namespace {

constexpr int kRowAlign = 64, kOne = 1 << 16;
constexpr int kLinesOfSmallPictures = 576;

// As it stands in a stream: not always one of the enumeration.
template <typename Enumeration>
int NumberOf(const Enumeration& value)
{
    static_assert(sizeof value == sizeof(int));
    int number = 0;
    std::memcpy(&number, &value, sizeof number);
    return number;
}

int MatrixOf(const AVFrame& picture)
{
    switch (NumberOf(picture.colorspace)) {
        case AVCOL_SPC_BT709:
            return SWS_CS_ITU709;
        case AVCOL_SPC_FCC:
            return SWS_CS_FCC;
        case AVCOL_SPC_SMPTE240M:
            return SWS_CS_SMPTE240M;
        case AVCOL_SPC_BT2020_NCL:
        case AVCOL_SPC_BT2020_CL:
            return SWS_CS_BT2020;
        case AVCOL_SPC_BT470BG:
        case AVCOL_SPC_SMPTE170M:
            return SWS_CS_ITU601;
        default:
            return picture.height > kLinesOfSmallPictures ? SWS_CS_ITU709 : SWS_CS_ITU601;
    }
}

bool IsFullRange(const AVFrame& picture)
{
    return NumberOf(picture.color_range) == AVCOL_RANGE_JPEG ||
           picture.format == AV_PIX_FMT_YUVJ420P || picture.format == AV_PIX_FMT_YUVJ422P ||
           picture.format == AV_PIX_FMT_YUVJ444P;
}

AVPixelFormat TargetOf(const QvxVideoFormat& format)
{
    if (format.fBits > 8)
        return format.fSamples == 1 ? AV_PIX_FMT_GRAY16 : AV_PIX_FMT_RGB48;
    return format.fSamples == 1 ? AV_PIX_FMT_GRAY8 : AV_PIX_FMT_RGB24;
}

// Samples of whole cells to `bits` bits.
template <typename Sample>
void CopyRow(const std::uint8_t* from, std::size_t count, std::uint32_t bits, std::uint8_t* to)
{
    constexpr auto kCell = static_cast<std::uint32_t>(8 * sizeof(Sample));
    if (bits >= kCell) {
        std::memcpy(to, from, count * sizeof(Sample));
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        Sample sample;
        std::memcpy(&sample, from + i * sizeof sample, sizeof sample);
        sample = static_cast<Sample>(sample >> (kCell - bits));
        std::memcpy(to + i * sizeof sample, &sample, sizeof sample);
    }
}

// Four words at a time, so that no multiplication waits for the one before it.
std::uint64_t HashOfRow(const std::uint8_t* row, std::size_t bytes, std::uint64_t hash)
{
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    std::uint64_t lanes[4] = {hash, hash + 1, hash + 2, hash + 3};
    for (std::size_t i = 0; i < bytes; i += sizeof lanes) {
        std::uint64_t words[4] = {};
        std::memcpy(words, row + i, std::min(sizeof words, bytes - i));
        for (std::size_t lane = 0; lane < 4; ++lane) {
            lanes[lane] = (lanes[lane] ^ words[lane]) * kFactor;
            lanes[lane] ^= lanes[lane] >> 32;
        }
    }
    for (const std::uint64_t lane : lanes)
        hash = (hash ^ lane) * kFactor + 1;
    return hash;
}

}  // namespace

VideoPixels::~VideoPixels() { sws_freeContext(fScaler); }

bool VideoPixels::Prepare(const AVFrame& picture)
{
    const auto source = static_cast<AVPixelFormat>(picture.format);
    if (!sws_isSupportedInput(source))
        return false;
    // Colour of half the resolution is interpolated, not repeated.
    const int flags = SWS_BILINEAR | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT;
    fScaler =
        sws_getCachedContext(fScaler, picture.width, picture.height, source, picture.width,
                             picture.height, TargetOf(fFormat), flags, nullptr, nullptr, nullptr);
    if (!fScaler)
        return false;
    const int* matrix = sws_getCoefficients(MatrixOf(picture));
    // -1 for pictures that have no luminance: nothing to set then
    (void)sws_setColorspaceDetails(fScaler, matrix, IsFullRange(picture) ? 1 : 0, matrix, 1, 0,
                                   kOne, kOne);
    return true;
}

QvxVideoResult VideoPixels::Convert(const AVFrame& picture, void* dest)
{
    if (!Prepare(picture))
        return kVideoBroken;
    const std::size_t samples = std::size_t{fFormat.fColumns} * fFormat.fSamples;
    const std::size_t rowBytes = samples * (fFormat.fBits > 8 ? 2 : 1);
    const std::size_t stride = (rowBytes + kRowAlign - 1) / kRowAlign * kRowAlign + kRowAlign;
    fRows.resize(stride * fFormat.fRows);
    std::uint8_t* const rows[4] = {fRows.data()};
    const int strides[4] = {static_cast<int>(stride)};
    if (sws_scale(fScaler, picture.data, picture.linesize, 0, picture.height, rows, strides) !=
        picture.height)
        return kVideoBroken;
    auto* to = static_cast<std::uint8_t*>(dest);
    for (std::size_t row = 0; row < fFormat.fRows; ++row, to += rowBytes) {
        const std::uint8_t* from = fRows.data() + row * stride;
        if (fFormat.fBits > 8)
            CopyRow<std::uint16_t>(from, samples, fFormat.fBits, to);
        else
            CopyRow<std::uint8_t>(from, samples, fFormat.fBits, to);
    }
    return kVideoDone;
}

std::uint64_t HashOfPicture(const AVFrame& picture)
{
    const auto format = static_cast<AVPixelFormat>(picture.format);
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format);
    std::uint64_t hash = static_cast<std::uint64_t>(picture.format);
    for (int plane = 0; descriptor && plane < av_pix_fmt_count_planes(format); ++plane) {
        const int bytes = av_image_get_linesize(format, picture.width, plane);
        const bool isChroma = plane == 1 || plane == 2;
        const int rows =
            isChroma ? AV_CEIL_RSHIFT(picture.height, descriptor->log2_chroma_h) : picture.height;
        for (int row = 0; row < rows && bytes > 0; ++row)
            hash = HashOfRow(picture.data[plane] + std::ptrdiff_t{row} * picture.linesize[plane],
                             static_cast<std::size_t>(bytes), hash);
    }
    return hash;
}

#include "QvxToolkit/JXLMaker.h"

#include <jxl/encode.h>
#include <memory>

namespace {

// Samples as the library takes them: spread over the whole range of their type.
std::vector<std::uint8_t> SpreadSamples(const StreamPicture& picture)
{
    const std::int64_t most = (1 << picture.bits) - 1, full = picture.bits > 8 ? 65535 : 255;
    std::vector<std::uint8_t> bytes;
    for (const std::int32_t value : picture.values) {
        const std::int64_t spread = (value * full + most / 2) / most;
        bytes.push_back(static_cast<std::uint8_t>(spread & 0xFF));
        if (picture.bits > 8)
            bytes.push_back(static_cast<std::uint8_t>(spread >> 8));
    }
    return bytes;
}

void SetImage(JxlEncoder* encoder, const StreamPicture& picture, bool lossy, int layer)
{
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = layer ? 16 : static_cast<std::uint32_t>(picture.columns);
    info.ysize = layer ? 16 : static_cast<std::uint32_t>(picture.rows);
    info.bits_per_sample = static_cast<std::uint32_t>(picture.bits);
    info.num_color_channels = static_cast<std::uint32_t>(picture.samples);
    info.uses_original_profile = lossy ? JXL_FALSE : JXL_TRUE;
    JxlEncoderSetBasicInfo(encoder, &info);
    JxlColorEncoding color;
    JxlColorEncodingSetToSRGB(&color, picture.samples == 1);
    JxlEncoderSetColorEncoding(encoder, &color);
}

}  // namespace

std::string JPEGXL(const StreamPicture& picture, bool lossy, bool boxed, int layer)
{
    const std::unique_ptr<JxlEncoder, void (*)(JxlEncoder*)> encoder(JxlEncoderCreate(nullptr),
                                                                     JxlEncoderDestroy);
    JxlEncoderUseContainer(encoder.get(), boxed ? JXL_TRUE : JXL_FALSE);
    SetImage(encoder.get(), picture, lossy, layer);
    JxlEncoderFrameSettings* settings = JxlEncoderFrameSettingsCreate(encoder.get(), nullptr);
    JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_EFFORT, 3);
    JxlEncoderSetFrameLossless(settings, lossy ? JXL_FALSE : JXL_TRUE);
    if (layer) {
        JxlFrameHeader header;
        JxlEncoderInitFrameHeader(&header);
        header.layer_info.have_crop = JXL_TRUE;
        header.layer_info.xsize = header.layer_info.ysize = static_cast<std::uint32_t>(layer);
        JxlEncoderSetFrameHeader(settings, &header);
    }
    const std::vector<std::uint8_t> bytes = SpreadSamples(picture);
    const JxlPixelFormat format{static_cast<std::uint32_t>(picture.samples),
                                picture.bits > 8 ? JXL_TYPE_UINT16 : JXL_TYPE_UINT8,
                                JXL_LITTLE_ENDIAN, 0};
    JxlEncoderAddImageFrame(settings, &format, bytes.data(), bytes.size());
    JxlEncoderCloseInput(encoder.get());
    std::string out(4 * bytes.size() + 65536, '\0');
    auto* next = reinterpret_cast<std::uint8_t*>(out.data());
    std::size_t left = out.size();
    JxlEncoderProcessOutput(encoder.get(), &next, &left);
    out.resize(out.size() - left);
    return out;
}

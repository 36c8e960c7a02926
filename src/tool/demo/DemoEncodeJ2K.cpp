#include "tool/demo/DemoEncode.h"
#include "tool/demo/DemoHeader.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <openjpeg.h>

namespace {

struct ImageDestroy {
    void operator()(opj_image_t* image) const noexcept { opj_image_destroy(image); }
};
struct CodecDestroy {
    void operator()(opj_codec_t* codec) const noexcept { opj_destroy_codec(codec); }
};
struct StreamDestroy {
    void operator()(opj_stream_t* stream) const noexcept { opj_stream_destroy(stream); }
};

struct Output {
    std::string bytes;
    std::size_t at = 0;
};

Output& OutputOf(void* data) { return *static_cast<Output*>(data); }

OPJ_SIZE_T Write(void* bytes, OPJ_SIZE_T count, void* data)
{
    Output& out = OutputOf(data);
    try {
        if (out.bytes.size() < out.at + count)
            out.bytes.resize(out.at + count);
        out.bytes.replace(out.at, count, static_cast<const char*>(bytes), count);
    } catch (const std::exception&) {
        return static_cast<OPJ_SIZE_T>(-1);
    }
    out.at += count;
    return count;
}

OPJ_BOOL Seek(OPJ_OFF_T place, void* data)
{
    OutputOf(data).at = static_cast<std::size_t>(place);
    return OPJ_TRUE;
}

OPJ_OFF_T Skip(OPJ_OFF_T count, void* data)
{
    OutputOf(data).at += static_cast<std::size_t>(count);
    return count;
}

std::unique_ptr<opj_image_t, ImageDestroy> Image(const DemoPixelForm& form, std::string_view pixels)
{
    opj_image_cmptparm_t component{};
    component.dx = component.dy = 1;
    component.w = static_cast<OPJ_UINT32>(form.columns);
    component.h = static_cast<OPJ_UINT32>(form.rows);
    component.prec = static_cast<OPJ_UINT32>(form.stored);
    std::unique_ptr<opj_image_t, ImageDestroy> image(
        opj_image_create(1, &component, OPJ_CLRSPC_GRAY));
    if (!image)
        return image;
    image->x1 = component.w;
    image->y1 = component.h;
    const auto bytes = static_cast<std::size_t>(form.allocated / 8);
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(pixels[at]); };
    for (std::size_t i = 0; i < pixels.size() / bytes; ++i)
        image->comps[0].data[i] = bytes == 1 ? byte(i) : byte(2 * i) | byte(2 * i + 1) << 8;
    return image;
}

}  // namespace

QvxStatus DemoEncode_JPEG2000(const DemoPixelForm& form, std::string_view pixels,
                              std::string* stream)
{
    if (form.samples != 1 || form.isSigned)
        return kQvxUnsupported;
    const auto image = Image(form, pixels);
    const std::unique_ptr<opj_codec_t, CodecDestroy> codec(opj_create_compress(OPJ_CODEC_J2K));
    const std::unique_ptr<opj_stream_t, StreamDestroy> sink(opj_stream_default_create(OPJ_FALSE));
    if (!image || !codec || !sink)
        return kQvxNoMemory;
    Output out;
    opj_stream_set_user_data(sink.get(), &out, nullptr);
    opj_stream_set_write_function(sink.get(), Write);
    opj_stream_set_seek_function(sink.get(), Seek);
    opj_stream_set_skip_function(sink.get(), Skip);

    opj_cparameters_t parameters;
    opj_set_default_encoder_parameters(&parameters);
    parameters.tcp_numlayers = 1;
    parameters.tcp_rates[0] = 0;  // all of it: reversible
    parameters.cp_disto_alloc = 1;
    while (1 << (parameters.numresolution - 1) > std::min(form.rows, form.columns))
        --parameters.numresolution;  // a picture can't be halved more often
    if (!opj_setup_encoder(codec.get(), &parameters, image.get()) ||
        !opj_start_compress(codec.get(), image.get(), sink.get()) ||
        !opj_encode(codec.get(), sink.get()) || !opj_end_compress(codec.get(), sink.get()))
        return kQvxNoMemory;
    *stream = std::move(out.bytes);
    return kQvxOK;
}

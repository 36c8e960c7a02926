#include "tool/demo/DemoEncode.h"

#include "tool/demo/DemoHeader.h"

#include <zlib.h>

QvxStatus DemoEncode_Frame(DemoSyntax syntax, const DemoPixelForm& form, std::string_view pixels,
                           std::string* stream)
{
    switch (syntax) {
        case DemoSyntax::RLE:
            return DemoEncode_RLE(form, pixels, stream);
        case DemoSyntax::JPEGBaseline:
            return DemoEncode_JPEG(form, pixels, stream);
        case DemoSyntax::JPEGLossless:
            return DemoEncode_JPEGLossless(form, pixels, stream);
        case DemoSyntax::JPEGLS:
            return DemoEncode_JPEGLS(form, pixels, stream);
        case DemoSyntax::JPEG2000:
            return DemoEncode_JPEG2000(form, pixels, stream);
        default:
            return kQvxUnsupported;
    }
}

QvxStatus DemoEncode_Deflate(std::string_view bytes, std::string* deflated)
{
    constexpr int kRaw = -MAX_WBITS, kMemory = 8;
    z_stream state{};
    if (deflateInit2(&state, Z_BEST_COMPRESSION, Z_DEFLATED, kRaw, kMemory, Z_DEFAULT_STRATEGY) !=
        Z_OK)
        return kQvxNoMemory;
    std::string in(bytes);
    std::string out(deflateBound(&state, static_cast<uLong>(in.size())), '\0');
    state.next_in = reinterpret_cast<Bytef*>(in.data());
    state.avail_in = static_cast<uInt>(in.size());
    state.next_out = reinterpret_cast<Bytef*>(out.data());
    state.avail_out = static_cast<uInt>(out.size());
    const int result = deflate(&state, Z_FINISH);
    out.resize(state.total_out + state.total_out % 2);
    deflateEnd(&state);
    if (result != Z_STREAM_END)
        return kQvxNoMemory;
    *deflated = std::move(out);
    return kQvxOK;
}

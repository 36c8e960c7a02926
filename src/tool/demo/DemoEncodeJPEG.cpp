#include "tool/demo/DemoEncode.h"
#include "tool/demo/DemoHeader.h"

#include <memory>
#include <turbojpeg.h>

namespace {

struct HandleClose {
    void operator()(void* handle) const noexcept { tjDestroy(handle); }
};
struct BytesFree {
    void operator()(unsigned char* bytes) const noexcept { tjFree(bytes); }
};

}  // namespace

QvxStatus DemoEncode_JPEG(const DemoPixelForm& form, std::string_view pixels, std::string* stream)
{
    constexpr int kQuality = 85;
    if (form.samples != 3 || form.allocated != 8)
        return kQvxUnsupported;
    const std::unique_ptr<void, HandleClose> encoder(tjInitCompress());
    if (!encoder)
        return kQvxNoMemory;
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const int failed = tjCompress2(
        encoder.get(), reinterpret_cast<const unsigned char*>(pixels.data()), form.columns, 0,
        form.rows, TJPF_RGB, &bytes, &size, TJSAMP_422, kQuality, TJFLAG_ACCURATEDCT);
    const std::unique_ptr<unsigned char, BytesFree> owner(bytes);
    if (failed)
        return kQvxNoMemory;
    stream->assign(bytes, bytes + size);
    return kQvxOK;
}

#include "tool/demo/DemoEncode.h"
#include "tool/demo/DemoHeader.h"

#include <charls/charls.h>
#include <exception>

QvxStatus DemoEncode_JPEGLS(const DemoPixelForm& form, std::string_view pixels, std::string* stream)
{
    if (form.samples != 1 || form.isSigned)
        return kQvxUnsupported;
    try {
        charls::jpegls_encoder encoder;
        encoder.frame_info({static_cast<std::uint32_t>(form.columns),
                            static_cast<std::uint32_t>(form.rows), form.stored, 1});
        std::string out(encoder.estimated_destination_size(), '\0');
        encoder.destination(out);
        out.resize(encoder.encode(pixels));
        *stream = std::move(out);
        return kQvxOK;
    } catch (const std::exception&) {
        return kQvxNoMemory;
    }
}

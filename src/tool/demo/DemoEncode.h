// Compressed frames of the demo, by the libraries that the toolkit decodes with; RLE and lossless
// JPEG have encoders of their own.
#pragma once
#include "util/StatusCodes.h"

#include <string>
#include <string_view>

struct DemoPixelForm;
enum class DemoSyntax;

// One frame (native: little endian, interleaved, no gaps) as a stream of `syntax`, which is one of
// the encapsulated ones. `stream` is set only on kQvxOK. kQvxUnsupported: not a form that this
// encoder takes (stated with each below); kQvxNoMemory: the library gave up.
[[nodiscard]] QvxStatus DemoEncode_Frame(DemoSyntax syntax, const DemoPixelForm& form,
                                         std::string_view pixels, std::string* stream);

// Any number of samples of 8 or 16 bits (PS3.5 annex G).
[[nodiscard]] QvxStatus DemoEncode_RLE(const DemoPixelForm& form, std::string_view pixels,
                                       std::string* stream);
// RGB of 8 bits, which becomes YCbCr with half the colour across.
[[nodiscard]] QvxStatus DemoEncode_JPEG(const DemoPixelForm& form, std::string_view pixels,
                                        std::string* stream);
// One unsigned sample of 8 to 16 bits; predicted from the left (ITU-T T.81 annex H, selection 1).
[[nodiscard]] QvxStatus DemoEncode_JPEGLossless(const DemoPixelForm& form, std::string_view pixels,
                                                std::string* stream);
// One unsigned sample of 8 to 16 bits.
[[nodiscard]] QvxStatus DemoEncode_JPEGLS(const DemoPixelForm& form, std::string_view pixels,
                                          std::string* stream);
[[nodiscard]] QvxStatus DemoEncode_JPEG2000(const DemoPixelForm& form, std::string_view pixels,
                                            std::string* stream);

// A whole data set as raw deflated bytes of an even number (PS3.5 A.5).
[[nodiscard]] QvxStatus DemoEncode_Deflate(std::string_view bytes, std::string* deflated);

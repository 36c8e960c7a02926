// JPEG XL streams for the tests.
#pragma once
#include "QvxToolkit/StreamMaker.h"

// `layer` above 0: the picture is one square layer of that side upon an image of 16 by 16.
[[nodiscard]] std::string JPEGXL(const StreamPicture& picture, bool lossy = false,
                                 bool boxed = false, int layer = 0);

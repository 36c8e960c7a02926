// Native frames: read with one positioned read, then brought into form. Internal.
#pragma once
#include "QvxToolkit/DecodedFrame.h"

// Integer pixels, gray or colour. May throw std::bad_alloc, as the other does.
[[nodiscard]] QvxStatus QvxDecodeNativeFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                             std::uint32_t frameNumber, DecodedFrame* frame);
// Pixels of 32-bit or 64-bit floats, (7FE0,0008) and (7FE0,0009).
[[nodiscard]] QvxStatus QvxDecodeFloatFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                            std::uint32_t frameNumber, DecodedFrame* frame);

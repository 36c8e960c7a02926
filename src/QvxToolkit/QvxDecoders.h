// Which decoder takes a file's frames. Internal; a decoder of a compressed encoding is entered in
// QvxDecoders.cpp, and nowhere else.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include <string>

// Decodes a frame whose number has been checked: native ones by their form, clips by their transfer
// syntax, others by what their stream begins with, and only where that says nothing by the transfer
// syntax. kQvxUnsupported, with a reason in `why` that names the transfer syntax, when there is no
// decoder. It may throw std::bad_alloc.
[[nodiscard]] QvxStatus QvxDecodeAnyFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                          std::uint32_t frameNumber, DecodedFrame* frame,
                                          std::string* why);

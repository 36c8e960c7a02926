// Which decoder takes a file's frames. Internal; a decoder of a compressed encoding is entered in
// QvxDecoders.cpp, and nowhere else.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include <string>

// Fills a frame whose number has been checked. It may throw std::bad_alloc.
using QvxFrameDecoder = QvxStatus (*)(QvxParserRec* reader, const QvxFrameRecord& record,
                                      std::uint32_t frameNumber, DecodedFrame* frame);

// By native or encapsulated form, then by transfer syntax. kQvxUnsupported, with a reason in `why`
// that names the transfer syntax, when there is none.
[[nodiscard]] QvxStatus QvxPickDecoder(const QvxFrameRecord& record, QvxFrameDecoder* decoder,
                                       std::string* why);

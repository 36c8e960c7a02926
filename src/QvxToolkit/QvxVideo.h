// Clips of MPEG-2, H.264 and HEVC: one stream over all fragments of a file. Internal. The stream's
// index and the open decoder live with the reader, so that paging is quick. PS3.5 8.2.5 to 8.2.8.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include "QvxToolkit/QvxFrameBytes.h"
#include <string>

// True for the transfer syntaxes of clips.
[[nodiscard]] bool QvxIsVideo(const std::string& transferSyntax);

// Fills in the frames of a clip's record: those that (0028,0008) claims. Only when it is missing or
// cannot be true, or the file is cut short, is the stream asked, which decodes it once. A stream
// that nothing can be made of has one frame; decoding it says why. kQvxEndOfFile when no byte of
// the stream is there.
[[nodiscard]] QvxStatus QvxPlaceClip(QvxParserRec* reader, const QvxPixelRun& run,
                                     QvxFrameRecord* record, std::string* why);

// One frame, exact: the same whichever frames were decoded before it. As the decoders of
// QvxStreamDecoders.h; kQvxEndOfFile for a frame that the stream does not hold.
[[nodiscard]] QvxStatus QvxDecodeVideoFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                            std::uint32_t frameNumber, DecodedFrame* frame,
                                            std::string* why);

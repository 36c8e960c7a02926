// The decoders of compressed frames. Each takes the joined bytes of one frame, compares what the
// stream says of itself with the record (QvxCheckStream) before it decodes, and fills the frame.
// kQvxMalformed for a broken stream, kQvxUnsupported for a form that the decoder doesn't know;
// `why` gets a plain reason. What can be saved of a cut stream is decoded, and fCutShort set. They
// may throw std::bad_alloc; exceptions of libraries end inside. Internal.
#pragma once
#include "QvxToolkit/QvxStream.h"

using QvxStreamDecoder = QvxStatus (*)(const QvxFrameRecord& record, const QvxStream& stream,
                                       DecodedFrame* frame, std::string* why);

[[nodiscard]] QvxStatus QvxDecodeRLE(const QvxFrameRecord& record, const QvxStream& stream,
                                     DecodedFrame* frame, std::string* why);
// Baseline, extended, progressive and lossless, by the frame header of the stream.
[[nodiscard]] QvxStatus QvxDecodeJPEG(const QvxFrameRecord& record, const QvxStream& stream,
                                      DecodedFrame* frame, std::string* why);
[[nodiscard]] QvxStatus QvxDecodeJPEGLS(const QvxFrameRecord& record, const QvxStream& stream,
                                        DecodedFrame* frame, std::string* why);
// Part 1, part 2 and high throughput; bare codestreams and boxed ones.
[[nodiscard]] QvxStatus QvxDecodeJPEG2000(const QvxFrameRecord& record, const QvxStream& stream,
                                          DecodedFrame* frame, std::string* why);
[[nodiscard]] QvxStatus QvxDecodeJPEGXL(const QvxFrameRecord& record, const QvxStream& stream,
                                        DecodedFrame* frame, std::string* why);
// Frames deflated one by one, PS3.5 A.4.13.
[[nodiscard]] QvxStatus QvxDecodeDeflated(const QvxFrameRecord& record, const QvxStream& stream,
                                          DecodedFrame* frame, std::string* why);

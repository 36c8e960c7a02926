// What a header says of the graphics beside its pixels: overlay groups (PS3.3 C.9.2), the frames
// that they lie on, and where their bits are. No pixels are read.
//
// A group counts as present if it holds Overlay Type (60xx,0040) at the top level; groups are the
// even ones from 6000 to 601E, and their place among those present makes an overlay's identifier.
// Identifiers handed in count from 1, identifiers handed out from 0; frames count from 1.
// All: kQvxBadArgument without a reader or a result, kQvxResultNotNull for a handle that already
// holds a block, else the reader's codes; results stay as they were on failure.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <span>
#include <vector>

// A handle with a 32-bit count and that many 32-bit numbers.
[[nodiscard]] std::span<const std::int32_t> QvxNumbersOf(const QvxHandle& numbers);

// A walk: group 0, without an error, when there is no further one.
[[nodiscard]] QvxStatus ParserOverlayGetFirstGroup(QvxParserRec* reader, std::uint16_t* group);
[[nodiscard]] QvxStatus ParserOverlayGetNextGroup(QvxParserRec* reader, std::uint16_t* group);
[[nodiscard]] QvxStatus Qvx2_ParserOverlayGetOverlayCountForFile(QvxParserRec* reader,
                                                                 std::uint32_t* count);

// Group 0 for an identifier past the end; an identifier of a group that isn't there is left alone.
[[nodiscard]] QvxStatus Qvx2_ParserOverlayID2Group(QvxParserRec* reader, std::uint32_t identifier,
                                                   std::uint16_t* group);
[[nodiscard]] QvxStatus ParserOverlayGroup2ID(QvxParserRec* reader, std::uint16_t group,
                                              std::uint32_t* identifier);

// (60xx,0015); 1 when it is missing.
[[nodiscard]] QvxStatus ParserOverlayGetOverlayNumberofFrames(QvxParserRec* reader,
                                                              std::uint16_t group,
                                                              std::uint32_t* count);
[[nodiscard]] QvxStatus ParserOverlayGetFrameCountForOverlay(QvxParserRec* reader,
                                                             std::uint32_t identifier,
                                                             std::uint32_t* count);
// Overlays that lie on image frame `frame`: from Image Frame Origin (60xx,0051) on, as many frames
// as the overlay has. Without an origin an overlay lies on frame 1, and the question for any other
// frame gives kQvxNoSuchElement.
[[nodiscard]] QvxStatus ParserOverlayGetOverlayCountForFrame(QvxParserRec* reader,
                                                             std::uint32_t frame,
                                                             std::uint32_t* count);
[[nodiscard]] QvxStatus ParserOverlayGetOverlayIDsForImageFrame(QvxParserRec* reader,
                                                                std::uint32_t frame,
                                                                QvxHandle* identifiers);
// The image frames of an overlay. An overlay with an origin must say its number of frames.
[[nodiscard]] QvxStatus ParserOverlayGetImageIDsForOverlay(QvxParserRec* reader,
                                                           std::uint32_t identifier,
                                                           QvxHandle* frames);

// (60xx,0011) and (60xx,0010), whatever VR the file gives them.
[[nodiscard]] QvxStatus Qvx2_ParserOverlayGetDimensionsFromOverlayGroup(QvxParserRec* reader,
                                                                        std::uint16_t group,
                                                                        std::uint16_t* columns,
                                                                        std::uint16_t* rows);
[[nodiscard]] QvxStatus Qvx2_ParserOverlayGetDimensionsFromOverlayID(QvxParserRec* reader,
                                                                     std::uint32_t identifier,
                                                                     std::uint16_t* columns,
                                                                     std::uint16_t* rows);
// (60xx,0050), counted from 0 here.
[[nodiscard]] QvxStatus ParserOverlayGetOriginFromOverlayGroup(QvxParserRec* reader,
                                                               std::uint16_t group,
                                                               std::int16_t* row,
                                                               std::int16_t* column);
[[nodiscard]] QvxStatus ParserOverlayGetOriginFromOverlayID(QvxParserRec* reader,
                                                            std::uint32_t identifier,
                                                            std::int16_t* row,
                                                            std::int16_t* column);

// One number an overlay, in the order of the groups: where the bytes of its Overlay Data
// (60xx,3000) lie, or, without one, those of the image frame in whose unused bits it stands.
[[nodiscard]] QvxStatus ParserOverlayGetOffsetsAndSizesForFile(QvxParserRec* reader,
                                                               std::vector<std::uint32_t>* offsets,
                                                               std::vector<std::uint32_t>* sizes);

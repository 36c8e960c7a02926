// Colour as files keep it into interleaved red, green and blue, PS3.3 C.7.6.3.1.2. Internal.
#pragma once
#include "QvxToolkit/DecodedFrame.h"
#include <vector>

// Samples by plane, or in the 4:2:2 order Y Y Cb Cr, become the frame's interleaved ones. `samples`
// are of the frame's form, and as many as the record's arrangement has.
void QvxInterleave(const QvxFrameRecord& record, const std::vector<std::uint8_t>& samples,
                   DecodedFrame* frame);
// Turns luminance and chrominance, full or partial range, of any depth; leaves other colour alone:
// what YBR_ICT and YBR_RCT stand for is made and undone by a JPEG 2000 codec alone (PS3.3
// C.7.6.3.1.2), so that elsewhere they are names left behind, and the samples are RGB.
void QvxTurnToRGB(const QvxFrameRecord& record, DecodedFrame* frame);

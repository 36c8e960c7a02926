// How many frames a file has and how they are to be shown. Times are milliseconds.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <vector>

// What a file says of its timing: one time in `fSingle` with a count of 1, or a vector of `fCount`
// entries beside an `fSingle` of 0. A count of 0 says nothing.
struct zelFrameTimes {
    std::int32_t fCount = 0;
    float fSingle = 0;
    std::vector<float> fVector;
};

// The header's count of frames; nothing is mapped. Number of Frames (0028,0008), a negative one
// counting as 1; 0 without Pixel Data; else what the Basic Offset Table has room for, 1 without one
// or in a file of implicit VR.
[[nodiscard]] QvxStatus Parser_GetNumberOfFrames(ParserHandle parser, std::int32_t* count);

// The sources in order: Recommended Display Frame Rate (0008,2144), Cine Rate (0018,0040), Actual
// Frame Duration (0018,1242), each read as a 16-bit whole number that isn't 0; then Frame Time and
// Frame Time Vector, the one first that the Frame Increment Pointer names (PS3.3 C.7.6.5, C.7.6.6).
// The result is the code of the last source tried; `times` is empty then.
[[nodiscard]] QvxStatus Parser_GetFrameTimes(ParserHandle parser, zelFrameTimes* times);

// The tag that (0028,0009) holds; 0, 0 and no error when its bytes are zero.
[[nodiscard]] QvxStatus Parser_GetFrameIncrementPointer(ParserHandle parser, std::uint16_t* group,
                                                        std::uint16_t* element);
// (0018,1065) as it stands. An entry that can't be read is 0; an empty element gives no entries.
[[nodiscard]] QvxStatus Parser_GetFrameTimeVector(ParserHandle parser, std::vector<float>* vector);
// (0018,1063).
[[nodiscard]] QvxStatus Parser_GetSingleFrameTime(ParserHandle parser, float* time);
// The vector without its zero head, which is the time "before" the first frame: all entries move
// one place forward, the last stands twice.
[[nodiscard]] QvxStatus Parser_GetMultipleTimes(ParserHandle parser, std::vector<float>* vector);

// The first two sources alone: what the file wants a viewer to show. False if it states no rate.
[[nodiscard]] bool Parser_GetDisplayRateTime(ParserHandle parser, float* time);

// Preferred Playback Sequencing (0018,1244) plus 1: 1 loops, 2 sweeps. -2 if the file has none, or
// not as US.
[[nodiscard]] std::int32_t Parser_GetDefaultCineType(ParserHandle parser);
// (0028,6010), 0 if missing.
[[nodiscard]] std::int32_t Parser_GetRepresentativeFrameNumber(ParserHandle parser);

// The scaling of samples. Internal to this folder.
#pragma once
#include "util/XRect.h"

#include <cstdint>

enum class ScaleSample : std::uint8_t {
    Gray8,   // one byte
    Gray16,  // one word in the machine's order
    ARGB8,   // four bytes; the first is not looked at and comes out as 255
};
[[nodiscard]] int ScaleSampleBytes(ScaleSample sample);

struct ScaleJob {
    ScaleSample sample = ScaleSample::Gray8;
    int sourceWidth = 0, sourceHeight = 0;  // 1 to 32767, as the next two
    int targetWidth = 0, targetHeight = 0;  // the whole result
    LongRect window;                        // the part of it that is wanted, within it
    bool operator==(const ScaleJob&) const = default;
};

// Where samples come from and go to. Used by one thread at a time; must not throw. A piece of a row
// is named by its first column and its count, and may be asked for more than once.
class ScaleEnds {
public:
    virtual ~ScaleEnds() = default;
    // Samples of source row `row`, which are aligned to their own size.
    virtual void Load(int row, int first, int count, std::uint8_t* samples) = 0;
    // Results of row `row`, row and column counted in the whole result. Rows come from the first
    // to the last but perhaps in strips of columns.
    virtual void Put(int row, int first, int count, const std::uint8_t* samples) = 0;
};

// Hands the window's results to `ends`. Where a side grows a cubic kernel, smooth and through the
// source's own values; where none does a linear one that widens with the ratio, near the area's
// mean, every source pixel counted. Flat pictures stay flat to the bit; results beyond the samples'
// range are cut to it; parts of a picture are those of the whole, bit for bit. Sizes that the
// library behind it does not serve take exact means and straight interpolation (`ScaleByArea`).
// Throws std::bad_alloc only, before or after pieces have been put.
void ScaleSamples(const ScaleJob& job, ScaleEnds* ends);

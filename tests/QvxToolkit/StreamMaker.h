// Compressed streams for the tests: small encoders of our own where a library has none.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

struct StreamPicture {
    int rows = 0, columns = 0, samples = 1, bits = 8;
    bool isSigned = false;
    std::vector<std::int32_t> values;  // interleaved
    [[nodiscard]] std::int32_t At(int v, int h, int sample = 0) const
    {
        return values[static_cast<std::size_t>((v * columns + h) * samples + sample)];
    }
};

// Slopes with noise and hard edges, over the whole range of the bits.
[[nodiscard]] StreamPicture MakePicture(int rows, int columns, int samples, int bits,
                                        bool isSigned = false);
[[nodiscard]] std::string LosslessJPEG(const StreamPicture& picture, int predictor,
                                       bool restarts = false);
[[nodiscard]] std::string LossyJPEG(const StreamPicture& picture, bool subsampled,
                                    bool progressive);
// Three components of 8 bits as they are, and no segment that tells what they are.
[[nodiscard]] std::string BareJPEG(const StreamPicture& picture, bool subsampled);
// Interleave 0 by plane, 1 by line, 2 by sample.
[[nodiscard]] std::string JPEGLS(const StreamPicture& picture, int interleave, int near);
[[nodiscard]] std::string JPEG2000(const StreamPicture& picture, bool boxed, bool tiled,
                                   bool reversible);
// Planes of bytes, the highest first, each with runs and literals.
[[nodiscard]] std::string RLE(const StreamPicture& picture, int bytesOfSample);
[[nodiscard]] std::string Deflated(const std::string& bytes, bool wrapped = false);

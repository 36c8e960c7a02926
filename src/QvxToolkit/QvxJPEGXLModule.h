// What the module "jxl" offers.
#pragma once
#include <cstddef>
#include <cstdint>

inline constexpr const char* kQvxJPEGXLModule = "jxl";
inline constexpr const char* kQvxJPEGXLFunction = "zel_decode_jxl";

// What the file promises; a stream that says otherwise isn't decoded.
struct QvxJPEGXLRequest {
    const std::uint8_t* fStream = nullptr;
    std::size_t fStreamBytes = 0;
    std::uint32_t fRows = 0, fColumns = 0, fSamples = 1;
    std::uint32_t fMostPrecision = 16;
    // Called once the stream has been found to agree, with the precision that it states, and
    // whether its colours are of a kind that is lossy always; answers the block for the samples:
    // interleaved, a byte each up to precision 8, else a word of the host.
    void* (*fMakeRoom)(void* context, std::uint32_t precision, bool lossy) = nullptr;
    void* fContext = nullptr;
    char* fReason = nullptr;  // of fReasonBytes, terminated
    std::size_t fReasonBytes = 0;
};

enum QvxJPEGXLResult : std::int32_t {
    kQvxJPEGXLDone = 0,
    kQvxJPEGXLCut = 1,      // the stream ended; what could be saved is there
    kQvxJPEGXLDiffers = 2,  // it says another size, number of samples, of layers or precision
    kQvxJPEGXLFailed = 3,
};
using QvxJPEGXLDecode = std::int32_t (*)(const QvxJPEGXLRequest* request);

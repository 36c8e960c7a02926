// What the module "dcmtk" offers: JPEG streams that the plain library doesn't decode, extended and
// progressive ones of 12 bits and lossless ones of 2 to 16.
#pragma once
#include <cstddef>
#include <cstdint>

inline constexpr const char* kQvxJPEGModule = "dcmtk";
inline constexpr const char* kQvxJPEGFunction = "zel_decode_jpeg";

struct QvxJPEGRequest {
    const std::uint8_t* fStream = nullptr;
    std::size_t fStreamBytes = 0;
    std::uint32_t fPrecision = 0;  // of the stream's frame header, 1 to 16
    std::uint32_t fTurnToRGB = 0;  // lossy colour of luminance and chrominance
    std::uint8_t* fSamples =
        nullptr;  // interleaved: bytes up to precision 8, else words of the host
    std::size_t fSampleBytes = 0;
    char* fReason = nullptr;  // of fReasonBytes, terminated
    std::size_t fReasonBytes = 0;
};

// What it answers.
enum QvxJPEGResult : std::int32_t {
    kQvxJPEGDone = 0,
    kQvxJPEGCut = 1,  // the stream ended; rows that came before are there
    kQvxJPEGFailed = 2,
};
using QvxJPEGDecode = std::int32_t (*)(const QvxJPEGRequest* request);

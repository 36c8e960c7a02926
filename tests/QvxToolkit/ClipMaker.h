// Small clips for tests, made with FFmpeg's encoders. Each picture is told by its brightness.
#pragma once
#include <string>

struct ClipSettings {
    const char* fEncoder;       // "libx264"
    const char* fContainer;     // name of a muxer: "h264", "mpegts", "mp4"
    const char* fOptions = "";  // "name=value:name=value" of the encoder
    int fFrames = 24;
    int fColumns = 90, fRows = 70;  // no multiples of a block
    bool fDeep = false;             // 10 bits
    bool fSetsOnce = false;         // parameter sets in front of all pictures only
    int fMatrix = 2, fRange = 1;    // AVColorSpace: 2 unspecified; AVColorRange: 1 limited, 2 full
};

// Luminance of picture `number`, from 0, on the scale of 8 bits; chrominance is kClipCb, kClipCr
// everywhere. The upper left quarter is 16 darker, and moves a little.
[[nodiscard]] constexpr int ClipLuma(int number) { return 40 + 7 * number; }
inline constexpr int kClipCb = 100, kClipCr = 150;

// The stream; empty when the encoder fails.
[[nodiscard]] std::string MakeClip(const ClipSettings& settings);

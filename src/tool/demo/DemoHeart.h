// The pictures of the ultrasound clip: one beat of a heart, seen from its tip, with the flow in
// its left half in colour, and the trace of its current below.
#pragma once
#include <string>
#include <vector>

inline constexpr int kHeartColumns = 640, kHeartRows = 480, kHeartFrames = 30;
inline constexpr double kHeartFrame_ms = 30;  // one beat is all frames

struct DemoRegion {
    int left, top, right, bottom;  // the last pixel belongs to it
};
inline constexpr DemoRegion kHeartSector = {50, 36, 589, 415}, kHeartTrace = {50, 430, 589, 471};
// Where all beams begin, and what a pixel of the sector is wide and high.
inline constexpr int kHeartApexX = 320, kHeartApexY = 36;
inline constexpr double kHeartPixel_cm = 0.04;

// RGB, interleaved, rows top-down; one string a frame.
[[nodiscard]] std::vector<std::string> DemoHeart_Frames();

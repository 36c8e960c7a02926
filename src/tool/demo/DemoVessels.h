// The coronary tree of the angiogram, drawn by arithmetic: how thick each place is, and when the
// contrast medium gets there.
#pragma once
#include <vector>

inline constexpr int kVesselSize = 512;  // pixels, across and down

struct DemoVessels {
    std::vector<float> thickness;  // of the vessel, pixels; rows top-down
    std::vector<float> distance;   // from the mouth of the left coronary artery, pixels
    std::vector<float> catheter;   // thickness of the tube that the medium comes through
};

[[nodiscard]] DemoVessels DemoVessels_Make();

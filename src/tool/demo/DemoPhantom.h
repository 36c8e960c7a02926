// The phantom of the demo study: a chest and upper abdomen made of ellipses.
// Patient coordinates in mm (PS3.3 C.7.6.2.1.1): +x to the left, +y to the back, +z to the head.
// The body reaches from z = -215 to 215. Values are Hounsfield units: lung -850, fat -100, spleen
// and muscle 50, kidneys 30, liver 60, blood 45, marrow 220, cortical bone 450 to 650.
#pragma once
#include "tool/demo/DemoSolids.h"

#include <vector>

class DemoPhantom {
public:
    DemoPhantom();
    // What is at the height `z`, in the order in which it covers.
    [[nodiscard]] DemoSlice SliceAt(double z) const;

private:
    std::vector<DemoEllipsoid> fLungVessels, fAbdomen, fChest, fBones;
};

// The parts of a slice that are no fixed solids. `at` is the height in mm.
void DemoBones_AddRibs(DemoSlice* slice, double at, const DemoTube& chestWall);
void DemoBones_AddSpine(DemoSlice* slice, double at);
// Shoulder blades, collar bones and breastbone.
[[nodiscard]] std::vector<DemoEllipsoid> DemoBones_Others();
// Vessels of both lungs, as trees that thin out towards the wall.
[[nodiscard]] std::vector<DemoEllipsoid> DemoLungs_Vessels();

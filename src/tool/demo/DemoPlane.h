// Planes through the phantom whose rows lie level, and what other scanners see in its tissues.
#pragma once
#include "tool/demo/DemoPhantom.h"

#include <cstdint>
#include <functional>
#include <vector>

// A picture's place in the body, in mm: `origin` is the centre of its first pixel, rows run along
// (cos turn, sin turn, 0), columns downwards, tilted by `tilt` from the z axis. Angles in radians.
// Turned by a right angle without tilt it is sagittal, without either coronal.
struct DemoPlane {
    double turn, tilt;
    DemoPoint origin;
    double pixel_mm;
    int rows, columns;

    // Directions of rows and columns (PS3.3 C.7.6.2.1.1), each of length 1, and what stands
    // upright on both.
    [[nodiscard]] DemoPoint AlongRow() const;
    [[nodiscard]] DemoPoint AlongColumn() const;
    [[nodiscard]] DemoPoint Normal() const;
    // The plane whose middle is `by` along the normal from the origin of the coordinates.
    void CentreAt(double by);
};

// Values of all pixels, rows top-down. `valueOf` gives each tissue its value by its Hounsfield
// units and must answer 0 or more; outside the body it is 0.
[[nodiscard]] std::vector<float> DemoPlane_Paint(const DemoPhantom& phantom, const DemoPlane& plane,
                                                 const std::function<float(float hu)>& valueOf);

// Signal of a tissue where water is bright and cortical bone dark, 0 to 1000.
[[nodiscard]] float DemoTissue_MRSignal(float hu);
// `signal` as a coil and its noise leave it: brighter near the back, a little grainy.
void DemoPlane_AddCoil(const DemoPlane& plane, std::uint64_t seed, std::vector<float>* signal);

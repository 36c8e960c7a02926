// Shapes whose every slice is an ellipse, and what a scanner makes of such slices.
// Lengths in mm, values in Hounsfield units.
#pragma once
#include <optional>
#include <vector>

inline constexpr float kAirHU = -1000.0F;

struct DemoPoint {
    double x, y, z;
};

struct DemoInterval {
    double low, high;
};

// An ellipse in a plane of constant z: the points with a*dx*dx + 2*b*dx*dy + c*dy*dy <= 1, where
// dx and dy count from the centre.
struct DemoEllipse {
    double x, y;
    double a, b, c;
    float hu;
    int clip = -1;  // nothing of it shows outside this one (an index into the same slice)

    // With half axes `rx` and `ry`, the first turned by `angle` (radians) from +x towards +y.
    [[nodiscard]] static DemoEllipse Turned(double x, double y, double rx, double ry, double angle,
                                            float hu);
    // Where a line crosses it.
    [[nodiscard]] std::optional<DemoInterval> AlongX(double lineY) const;
    [[nodiscard]] std::optional<DemoInterval> AlongY(double lineX) const;
};

using DemoSlice = std::vector<DemoEllipse>;  // a later one covers an earlier one

// The slice in axes turned by `angle` (radians): the new x axis goes along (cos, sin) of the old
// ones, the new y axis along (-sin, cos).
[[nodiscard]] DemoSlice DemoSlice_Turned(const DemoSlice& slice, double angle);

// An ellipsoid in any position.
class DemoEllipsoid {
public:
    // Half axes along x, y and z; then turned about z by `angle`, +x towards +y.
    DemoEllipsoid(DemoPoint centre, DemoPoint radii, float hu, double angle = 0);
    // Around the line between two points, a little longer than it, so that rods in a chain join.
    [[nodiscard]] static DemoEllipsoid Rod(DemoPoint from, DemoPoint to, double radius, float hu);
    void AddTo(DemoSlice* slice, double z, int clip = -1) const;

private:
    DemoPoint fCentre;
    double fXX, fXY, fXZ, fYY, fYZ, fZZ;  // the points with p * M * p <= 1
    float fHU;
};

// A shape given by its slices at stations of descending z, smooth in between; nothing above the
// first and below the last one.
class DemoTube {
public:
    struct Station {
        double z, x, y, rx, ry;
    };
    DemoTube(std::vector<Station> stations, float hu) : fStations(std::move(stations)), fHU(hu) {}
    [[nodiscard]] std::optional<Station> At(double z) const;
    // With half axes `margin` smaller; only a positive rest is an ellipse. `mirrored`: x negated.
    void AddTo(DemoSlice* slice, double z, double margin = 0, int clip = -1,
               bool mirrored = false) const;

private:
    std::vector<Station> fStations;
    float fHU;
};

// Values along x at height `y` for `row.size()` samples from `x0` on, `step` apart. A border that
// falls between two samples gives the nearer one a value in between.
void DemoSlice_PaintRow(const DemoSlice& slice, double y, double x0, double step,
                        std::vector<float>* row);
// Thickness of water, in mm, that weakens rays along y as much as the slice does, one ray a sample.
// Crossings are computed, not sampled, so that smooth shapes give smooth pictures.
void DemoSlice_Project(const DemoSlice& slice, double x0, double step, std::vector<float>* row);

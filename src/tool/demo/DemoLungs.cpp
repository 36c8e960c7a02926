#include "tool/demo/DemoNoise.h"
#include "tool/demo/DemoPhantom.h"

#include <cmath>

namespace {

constexpr float kBlood = 40;
constexpr int kGenerations = 5;

struct Branch {
    DemoPoint from, direction;  // of length 1
    double length, radius;
    int generation;
};

DemoPoint Bent(const DemoPoint& d, double by, DemoNoise* noise)
{
    const auto turn = [&] { return by * (2 * noise->Uniform() - 1); };
    const DemoPoint e = {d.x + turn(), d.y + turn(), d.z + turn()};
    const double length = std::sqrt(e.x * e.x + e.y * e.y + e.z * e.z);
    return {e.x / length, e.y / length, e.z / length};
}

void Grow(const Branch& branch, DemoNoise* noise, std::vector<DemoEllipsoid>* vessels)
{
    const DemoPoint& p = branch.from;
    const DemoPoint& d = branch.direction;
    const DemoPoint end = {p.x + d.x * branch.length, p.y + d.y * branch.length,
                           p.z + d.z * branch.length};
    vessels->push_back(DemoEllipsoid::Rod(p, end, branch.radius, kBlood));
    if (branch.generation == kGenerations)
        return;
    for (int i = 0; i < 2; ++i) {
        const double shrink = 0.72 + 0.16 * noise->Uniform();
        Grow({end, Bent(d, 0.75, noise), branch.length * shrink, branch.radius * 0.74,
              branch.generation + 1},
             noise, vessels);
    }
}

}  // namespace

std::vector<DemoEllipsoid> DemoLungs_Vessels()
{
    // Directions of the first branches of the left lung; the right one mirrors them.
    static constexpr DemoPoint kFirst[] = {
        {0.55, -0.35, 0.75},  {0.60, 0.45, 0.66},  {0.85, -0.50, 0.15}, {0.88, 0.40, 0.20},
        {0.70, -0.45, -0.55}, {0.62, 0.05, -0.78}, {0.55, 0.60, -0.58}, {0.25, 0.45, -0.85},
    };
    DemoNoise noise(20240115);
    std::vector<DemoEllipsoid> vessels;
    for (const int side : {-1, 1}) {
        for (const DemoPoint& d : kFirst)
            Grow({{side * 34.0, 6, 42}, Bent({side * d.x, d.y, d.z}, 0.15, &noise), 32, 4.6, 0},
                 &noise, &vessels);
    }
    return vessels;
}

#include "tool/demo/DemoPhantom.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr float kCortex = 650, kMarrow = 220, kCartilage = 110, kDisc = 90;
constexpr double kPitch = 25;    // from one vertebra, and one rib, to the next
constexpr double kTopRib = 172;  // where the first rib leaves the spine
constexpr double kRibDrop = 38;  // by which a rib falls in a radian around the body
constexpr double kRibHalfHeight = 6.5, kRibHalfDepth = 4.2;

// How far rib `index` reaches, in radians from the middle of the back.
double RibReach(int index) { return index < 7 ? 2.62 : index < 10 ? 2.2 : 1.35; }

double SpineY(double z) { return 60 + 5 * std::sin(z / 80); }

void AddBone(DemoSlice* slice, const DemoEllipse& shape, double rx, double ry, double angle,
             double wall)
{
    slice->push_back(shape);
    if (rx > wall && ry > wall)
        slice->push_back(
            DemoEllipse::Turned(shape.x, shape.y, rx - wall, ry - wall, angle, kMarrow));
}

void AddRib(DemoSlice* slice, double phi, int side, const DemoTube::Station& wall)
{
    constexpr double kBoneReach = 2.1;  // further to the front it is cartilage
    const double rx = wall.rx + 6, ry = wall.ry + 6;
    const double x = side * rx * std::sin(phi), y = wall.y + ry * std::cos(phi);
    const double alongX = side * rx * std::cos(phi), alongY = -ry * std::sin(phi);
    const double half = kRibHalfHeight / kRibDrop * std::hypot(alongX, alongY);
    const double angle = std::atan2(alongY, alongX);
    if (phi > kBoneReach)
        slice->push_back(DemoEllipse::Turned(x, y, half, kRibHalfDepth, angle, kCartilage));
    else
        AddBone(slice, DemoEllipse::Turned(x, y, half, kRibHalfDepth, angle, kCortex), half,
                kRibHalfDepth, angle, 1.6);
}

// 1 at `middle`, rounding off to 0 at `half` away from it.
double Round(double place, double middle, double half)
{
    const double u = (place - middle) / half;
    return u * u < 1 ? std::sqrt(1 - u * u) : 0;
}

// What surrounds the spinal canal behind the body at height `y`, `place` in a vertebra.
void AddArch(DemoSlice* slice, double y, double place)
{
    constexpr double kWall = 1.6;
    if (const double size = Round(place, 0.6, 0.28); size > 0.1) {
        for (const int side : {-1, 1}) {
            const double turn = 0.45 * side, pedicle = 5 * size, length = 14 * size;
            AddBone(slice, DemoEllipse::Turned(side * 13.0, y + 17, pedicle, 9, 0, kCortex),
                    pedicle, 9, 0, kWall);
            AddBone(
                slice,
                DemoEllipse::Turned(side * (13 + 12 * size), y + 26, length, 4.5, turn, kCortex),
                length, 4.5, turn, kWall);
        }
    }
    const double lamina = Round(place, 0.5, 0.42);
    slice->push_back(DemoEllipse::Turned(0, y + 25.5, 12 + 4 * lamina, 9.5 + 2.5 * lamina, 0,
                                         lamina > 0 ? kCortex : 45));
    if (const double size = Round(place, 0.25, 0.4); size > 0.1)
        AddBone(slice, DemoEllipse::Turned(0, y + 33 + 11 * size, 4, 13 * size, 0, 450), 4,
                13 * size, 0, kWall);
    slice->push_back(DemoEllipse::Turned(0, y + 24, 10, 8.5, 0, 10));
    slice->push_back(DemoEllipse::Turned(0, y + 24, 5.5, 4.5, 0, 40));
}

}  // namespace

void DemoBones_AddRibs(DemoSlice* slice, double at, const DemoTube& chestWall)
{
    const auto wall = chestWall.At(at);
    if (!wall)
        return;
    for (int i = 0; i < 12; ++i) {
        const double phi = (kTopRib - kPitch * i - at) / kRibDrop;
        if (phi < 0.3 || phi > RibReach(i))
            continue;
        AddRib(slice, phi, -1, *wall);
        AddRib(slice, phi, 1, *wall);
    }
}

void DemoBones_AddSpine(DemoSlice* slice, double at)
{
    const double y = SpineY(at);
    // Place within a vertebra: 0 at the middle of the disc below it, 1 at that above.
    const double place = (at - kTopRib) / kPitch - std::floor((at - kTopRib) / kPitch);
    const double toDisc = std::min(place, 1 - place) * kPitch;  // mm
    const double waist = 1.8 * std::sin(std::numbers::pi * place);
    const double rx = 19 - waist, ry = 16 - waist;
    if (toDisc < 2.6) {
        slice->push_back(DemoEllipse::Turned(0, y, rx - 1, ry - 1, 0, kDisc));
    } else {
        const bool endPlate = toDisc < 4.2;
        AddBone(slice, DemoEllipse::Turned(0, y, rx, ry, 0, kCortex), rx, ry, 0,
                endPlate ? 5.0 : 1.8);
    }
    AddArch(slice, y, place);
}

std::vector<DemoEllipsoid> DemoBones_Others()
{
    std::vector<DemoEllipsoid> bones;
    for (const int side : {-1, 1}) {
        const double angle = -0.95 * side;
        const DemoPoint blade = {side * 104.0, 76, 92};
        bones.push_back(DemoEllipsoid(blade, {40, 5, 62}, 450, angle));
        bones.push_back(DemoEllipsoid(blade, {37, 2.4, 58}, kMarrow, angle));
        const DemoPoint inner = {side * 16.0, -60, 134}, outer = {side * 130.0, -4, 158};
        bones.push_back(DemoEllipsoid::Rod(inner, outer, 6.5, kCortex));
        bones.push_back(DemoEllipsoid::Rod(inner, outer, 4, kMarrow));
    }
    bones.push_back(DemoEllipsoid({0, -90, 55}, {17, 7, 84}, 350));
    bones.push_back(DemoEllipsoid({0, -90, 55}, {14, 4.5, 80}, 150));
    return bones;
}

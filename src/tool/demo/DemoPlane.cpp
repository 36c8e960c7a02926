#include "tool/demo/DemoPlane.h"

#include "tool/demo/DemoNoise.h"

#include <algorithm>
#include <array>
#include <cmath>

DemoPoint DemoPlane::AlongRow() const { return {std::cos(turn), std::sin(turn), 0}; }

DemoPoint DemoPlane::AlongColumn() const
{
    return {-std::sin(turn) * std::sin(tilt), std::cos(turn) * std::sin(tilt), -std::cos(tilt)};
}

DemoPoint DemoPlane::Normal() const
{
    const DemoPoint r = AlongRow(), c = AlongColumn();
    return {r.y * c.z - r.z * c.y, r.z * c.x - r.x * c.z, r.x * c.y - r.y * c.x};
}

void DemoPlane::CentreAt(double by)
{
    const DemoPoint r = AlongRow(), c = AlongColumn(), n = Normal();
    const double across = (columns - 1) * pixel_mm / 2, down = (rows - 1) * pixel_mm / 2;
    origin = {n.x * by - r.x * across - c.x * down, n.y * by - r.y * across - c.y * down,
              n.z * by - r.z * across - c.z * down};
}

std::vector<float> DemoPlane_Paint(const DemoPhantom& phantom, const DemoPlane& plane,
                                   const std::function<float(float hu)>& valueOf)
{
    std::vector<float> image, row(static_cast<std::size_t>(plane.columns));
    const DemoPoint c = plane.AlongColumn();
    const double u = std::cos(plane.turn), v = std::sin(plane.turn);
    for (int y = 0; y < plane.rows; ++y) {
        const double down = y * plane.pixel_mm;
        const DemoPoint at = {plane.origin.x + down * c.x, plane.origin.y + down * c.y,
                              plane.origin.z + down * c.z};
        DemoSlice slice = DemoSlice_Turned(phantom.SliceAt(at.z), plane.turn);
        for (DemoEllipse& ellipse : slice)
            ellipse.hu = valueOf(ellipse.hu) + kAirHU;  // above what the row is filled with
        DemoSlice_PaintRow(slice, at.y * u - at.x * v, at.x * u + at.y * v, plane.pixel_mm, &row);
        for (const float value : row)
            image.push_back(value - kAirHU);
    }
    return image;
}

float DemoTissue_MRSignal(float hu)
{
    struct Row {
        float hu, signal;
    };
    static constexpr auto kRows = std::to_array<Row>({
        {-1000, 0},  // gas
        {-850, 30},  // lung
        {-100, 620},
        {-60, 600},  // fat
        {-50, 300},
        {5, 980},    // water, bile, cerebrospinal fluid
        {20, 420},   // skin, walls
        {30, 560},   // kidney
        {40, 330},   // vessels, spinal cord
        {45, 140},   // flowing blood
        {50, 230},   // muscle
        {55, 260},   // heart
        {60, 290},   // liver
        {90, 520},   // disc
        {110, 160},  // cartilage
        {220, 430},  // marrow
        {350, 120},
        {450, 40},  // cortical bone
    });
    if (hu <= kRows.front().hu)
        return kRows.front().signal;
    const auto* const above = std::ranges::lower_bound(kRows, hu, {}, &Row::hu);
    if (above == kRows.end())
        return kRows.back().signal;
    const Row& below = *(above - 1);
    const float part = (hu - below.hu) / (above->hu - below.hu);
    return below.signal + part * (above->signal - below.signal);
}

void DemoPlane_AddCoil(const DemoPlane& plane, std::uint64_t seed, std::vector<float>* signal)
{
    constexpr double kBack_mm = 110, kReach_mm = 420;
    constexpr float kNoise = 14;
    const DemoPoint r = plane.AlongRow(), c = plane.AlongColumn();
    DemoNoise noise(seed);
    for (std::size_t i = 0; i < signal->size(); ++i) {
        const auto columns = static_cast<std::size_t>(plane.columns);
        const double across = static_cast<double>(i % columns) * plane.pixel_mm;
        const double down = static_cast<double>(i / columns) * plane.pixel_mm;
        const double x = plane.origin.x + across * r.x + down * c.x;
        const double y = plane.origin.y + across * r.y + down * c.y;
        const double z = plane.origin.z + across * r.z + down * c.z;
        const double far = std::hypot(x, y - kBack_mm, z) / kReach_mm;
        const float value = (*signal)[i] * static_cast<float>(1.25 / (1 + far * far));
        // The magnitude of a complex signal: noise never makes it negative.
        (*signal)[i] = std::hypot(value + kNoise * noise.Normal(), kNoise * noise.Normal());
    }
}

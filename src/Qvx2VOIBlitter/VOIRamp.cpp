#include "Qvx2VOIBlitter/VOIRamp.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr std::int64_t kLast16 = 0xFFFF;

std::uint16_t Cut16(std::int64_t value)
{
    return static_cast<std::uint16_t>(std::clamp<std::int64_t>(value, 0, kLast16));
}

// A window wholly to one side of the values becomes a short one beside them, with the same grays.
VOIBounds NextToValues(const VOIBounds& bounds)
{
    if (bounds.hi < 0)
        return {-1, 0};
    return bounds.lo > kLast16 ? VOIBounds{kLast16, kLast16 + 1} : bounds;
}

void SetPosition(const VOIBounds& bounds, VOIRamp* ramp)
{
    ramp->down = Cut16(bounds.lo);
    ramp->up = Cut16(-bounds.lo);
    ramp->n = Cut16(bounds.hi - bounds.lo);
}

void SetWhole(VOIRamp* ramp)
{
    ramp->form = VOIRampForm::Whole;
    const std::int64_t n = ramp->n;
    // A short ramp's factor must stay below 16 bits.
    while (n << ramp->shift <= 255)
        ++ramp->shift;
    const std::int64_t whole = n << ramp->shift;
    ramp->factor = Cut16((2 * 255 * (kLast16 + 1) + whole) / (2 * whole));
}

// The positions at which two rising lines of n can part, with the grays they must have there: those
// next to (k - 1/2) n / 255, where the gray becomes k.
class RampEdges {
public:
    explicit RampEdges(std::int32_t n)
    {
        const auto length = static_cast<float>(n);
        for (std::int32_t at = 0; at < kEdges; ++at) {
            const std::int32_t position = (2 * (at / 2) + 1) * n / 510 + at % 2;
            const float v = static_cast<float>(position) / length * 255.0F;
            const auto r = static_cast<std::int32_t>(v);
            fPositions[at] = position;
            fGrays[at] = r + (v - static_cast<float>(r) >= 0.5F ? 1 : 0);
        }
    }
    // Whether position * slope rounds to these grays. A double holds the exact product; the sum
    // with 2^52 and a half of it leaves the nearest whole number in its last bits.
    [[nodiscard]] bool LieOn(float slope) const
    {
        constexpr double kWhole = 6755399441055744.0;
        double parted = 0;
        for (std::int32_t at = 0; at < kEdges; ++at) {
            const double gray = static_cast<double>(fPositions[at]) * slope + kWhole - kWhole;
            parted += std::abs(gray - fGrays[at]);
        }
        return parted == 0;
    }

private:
    static constexpr std::int32_t kEdges = 2 * 255;
    std::int32_t fPositions[kEdges], fGrays[kEdges];
};

// Leaves the ramp as it is if there is none.
void FindLine(VOIRamp* ramp)
{
    constexpr int kTried = 2;  // slopes to each side; more of them find nothing new
    const RampEdges edges(ramp->n);
    const float straight = 255.0F / static_cast<float>(ramp->n);
    for (const float direction : {1.0F, 0.0F}) {
        float slope = straight;
        for (int tried = 0; tried <= kTried; ++tried) {
            if (edges.LieOn(slope)) {
                ramp->form = VOIRampForm::Line;
                ramp->slope = slope;
                return;
            }
            slope = std::nextafter(slope, direction);
        }
    }
}

// False where positions need more than 32 bits.
bool SetDivided(const VOIBounds& bounds, VOIRamp* ramp)
{
    const std::int64_t last = std::min(bounds.hi, kLast16);
    if (last - bounds.lo > std::numeric_limits<std::int32_t>::max())
        return false;
    ramp->form = VOIRampForm::Divided;
    ramp->first = Cut16(bounds.lo);
    ramp->last = Cut16(last);
    ramp->base = static_cast<std::int32_t>(-bounds.lo);
    ramp->length = static_cast<float>(bounds.hi - bounds.lo);
    return true;
}

}  // namespace

bool MakeVOIRamp(VOIBounds bounds, const VOIRampUse& use, VOIRamp* ramp)
{
    bounds = NextToValues(bounds);
    const std::int64_t n = bounds.hi - bounds.lo;
    VOIRamp made;
    made.use = use;
    if (n <= kLast16)
        SetPosition(bounds, &made);
    if (n <= kLastWholeLength)
        SetWhole(&made);
    else if (!SetDivided(bounds, &made))
        return false;
    else if (n <= kLast16)
        FindLine(&made);
    *ramp = made;
    return true;
}

#include "tool/demo/DemoSolids.h"

#include <algorithm>
#include <cmath>

namespace {

// Roots around the middle of a*t*t + 2*b*t + c <= 0.
std::optional<DemoInterval> Roots(double a, double b, double c)
{
    const double root = b * b - a * c;
    if (root <= 0)
        return std::nullopt;
    const double half = std::sqrt(root) / a, middle = -b / a;
    return DemoInterval{middle - half, middle + half};
}

std::optional<DemoInterval> Clipped(const DemoSlice& slice, const DemoEllipse& ellipse, double line,
                                    bool alongX)
{
    const auto of = [&](const DemoEllipse& e) { return alongX ? e.AlongX(line) : e.AlongY(line); };
    auto span = of(ellipse);
    if (!span || ellipse.clip < 0)
        return span;
    const auto limit = of(slice[static_cast<std::size_t>(ellipse.clip)]);
    if (!limit)
        return std::nullopt;
    span->low = std::max(span->low, limit->low);
    span->high = std::min(span->high, limit->high);
    return span->low < span->high ? span : std::nullopt;
}

// A ray as stretches of one value each; what is painted last covers what was there.
class Ray {
public:
    void Paint(DemoInterval span, float hu)
    {
        const auto first = std::ranges::lower_bound(fStarts, span.low, {}, &Start::y);
        const auto last = std::ranges::upper_bound(fStarts, span.high, {}, &Start::y);
        const float behind = last == fStarts.begin() ? kAirHU : std::prev(last)->hu;
        const auto at = fStarts.erase(first, last);
        const Start both[] = {{span.low, hu}, {span.high, behind}};
        fStarts.insert(at, std::begin(both), std::end(both));
    }
    [[nodiscard]] float WaterThickness() const
    {
        double sum = 0;
        for (std::size_t i = 1; i < fStarts.size(); ++i)
            sum += (fStarts[i].y - fStarts[i - 1].y) * (fStarts[i - 1].hu - kAirHU);
        return static_cast<float>(sum / 1000.0);
    }

private:
    struct Start {
        double y;
        float hu;
    };
    std::vector<Start> fStarts;  // ascending; air in front of the first
};

}  // namespace

DemoEllipse DemoEllipse::Turned(double x, double y, double rx, double ry, double angle, float hu)
{
    const double u = std::cos(angle), v = std::sin(angle);
    const double p = 1 / (rx * rx), q = 1 / (ry * ry);
    return {x, y, p * u * u + q * v * v, (p - q) * u * v, p * v * v + q * u * u, hu};
}

std::optional<DemoInterval> DemoEllipse::AlongX(double lineY) const
{
    const double dy = lineY - y;
    auto span = Roots(a, b * dy, c * dy * dy - 1);
    if (span) {
        span->low += x;
        span->high += x;
    }
    return span;
}

std::optional<DemoInterval> DemoEllipse::AlongY(double lineX) const
{
    const double dx = lineX - x;
    auto span = Roots(c, b * dx, a * dx * dx - 1);
    if (span) {
        span->low += y;
        span->high += y;
    }
    return span;
}

DemoSlice DemoSlice_Turned(const DemoSlice& slice, double angle)
{
    const double u = std::cos(angle), v = std::sin(angle);
    DemoSlice turned = slice;
    for (DemoEllipse& e : turned) {
        const DemoEllipse old = e;
        e.x = old.x * u + old.y * v;
        e.y = old.y * u - old.x * v;
        e.a = old.a * u * u + 2 * old.b * u * v + old.c * v * v;
        e.b = (old.c - old.a) * u * v + old.b * (u * u - v * v);
        e.c = old.a * v * v - 2 * old.b * u * v + old.c * u * u;
    }
    return turned;
}

DemoEllipsoid::DemoEllipsoid(DemoPoint centre, DemoPoint radii, float hu, double angle)
    : fCentre(centre), fXZ(0), fYZ(0), fZZ(1 / (radii.z * radii.z)), fHU(hu)
{
    const DemoEllipse flat = DemoEllipse::Turned(0, 0, radii.x, radii.y, angle, hu);
    fXX = flat.a;
    fXY = flat.b;
    fYY = flat.c;
}

DemoEllipsoid DemoEllipsoid::Rod(DemoPoint from, DemoPoint to, double radius, float hu)
{
    constexpr double kOverlap = 1.12;
    const DemoPoint d = {to.x - from.x, to.y - from.y, to.z - from.z};
    const double length = std::sqrt(d.x * d.x + d.y * d.y + d.z * d.z);
    const double across = 1 / (radius * radius);
    const double half = std::max(radius, length / 2 * kOverlap);
    const double extra = (1 / (half * half) - across) / (length * length);
    DemoEllipsoid rod({(from.x + to.x) / 2, (from.y + to.y) / 2, (from.z + to.z) / 2},
                      {radius, radius, radius}, hu);
    rod.fXX = across + extra * d.x * d.x;
    rod.fXY = extra * d.x * d.y;
    rod.fXZ = extra * d.x * d.z;
    rod.fYY = across + extra * d.y * d.y;
    rod.fYZ = extra * d.y * d.z;
    rod.fZZ = across + extra * d.z * d.z;
    return rod;
}

void DemoEllipsoid::AddTo(DemoSlice* slice, double z, int clip) const
{
    const double dz = z - fCentre.z;
    const double determinant = fXX * fYY - fXY * fXY;
    const double u = (fXY * fYZ - fYY * fXZ) / determinant * dz;  // of the slice's centre
    const double v = (fXY * fXZ - fXX * fYZ) / determinant * dz;
    const double rest = 1 - (fZZ * dz + fXZ * u + fYZ * v) * dz;
    if (rest <= 0)
        return;
    slice->push_back({fCentre.x + u, fCentre.y + v, fXX / rest, fXY / rest, fYY / rest, fHU, clip});
}

std::optional<DemoTube::Station> DemoTube::At(double z) const
{
    const auto below = std::ranges::find_if(fStations, [z](const Station& s) { return s.z <= z; });
    if (below == fStations.end() || z > fStations.front().z)
        return std::nullopt;
    if (below == fStations.begin())
        return *below;
    // A cubic through both neighbours; its slope at each is that between the ones around it.
    const Station& q = *below;
    const Station& p = *std::prev(below);
    const Station& o = std::prev(below) == fStations.begin() ? p : *std::prev(below, 2);
    const Station& r = std::next(below) == fStations.end() ? q : *std::next(below);
    const double h = q.z - p.z, t = (z - p.z) / h;
    const auto between = [&](double Station::* field) {
        const double before = (q.*field - o.*field) / (q.z - o.z) * h;
        const double after = (r.*field - p.*field) / (r.z - p.z) * h;
        const double rise = q.*field - p.*field;
        return p.*field +
               t * (before + t * (3 * rise - 2 * before - after + t * (before + after - 2 * rise)));
    };
    return Station{z, between(&Station::x), between(&Station::y), between(&Station::rx),
                   between(&Station::ry)};
}

void DemoTube::AddTo(DemoSlice* slice, double z, double margin, int clip, bool mirrored) const
{
    const auto at = At(z);
    if (!at || at->rx <= margin || at->ry <= margin)
        return;
    auto ellipse = DemoEllipse::Turned(mirrored ? -at->x : at->x, at->y, at->rx - margin,
                                       at->ry - margin, 0, fHU);
    ellipse.clip = clip;
    slice->push_back(ellipse);
}

void DemoSlice_PaintRow(const DemoSlice& slice, double y, double x0, double step,
                        std::vector<float>* row)
{
    std::ranges::fill(*row, kAirHU);
    const double end = static_cast<double>(row->size());
    for (const DemoEllipse& ellipse : slice) {
        const auto span = Clipped(slice, ellipse, y, true);
        if (!span)
            continue;
        // In samples; sample i covers i to i + 1.
        const double low = std::clamp((span->low - x0) / step + 0.5, 0.0, end);
        const double high = std::clamp((span->high - x0) / step + 0.5, 0.0, end);
        const auto blend = [&](double at, double part) {
            if (part > 0 && at < end) {
                float& sample = (*row)[static_cast<std::size_t>(at)];
                sample += static_cast<float>(part) * (ellipse.hu - sample);
            }
        };
        const double first = std::floor(low), last = std::floor(high);
        if (first == last) {
            blend(first, high - low);
            continue;
        }
        blend(first, first + 1 - low);
        std::fill(row->begin() + static_cast<std::ptrdiff_t>(first) + 1,
                  row->begin() + static_cast<std::ptrdiff_t>(last), ellipse.hu);
        blend(last, high - last);
    }
}

void DemoSlice_Project(const DemoSlice& slice, double x0, double step, std::vector<float>* row)
{
    std::vector<Ray> rays(row->size());
    for (const DemoEllipse& ellipse : slice) {
        const double half = std::sqrt(ellipse.c / (ellipse.a * ellipse.c - ellipse.b * ellipse.b));
        const double low = std::max(0.0, std::ceil((ellipse.x - half - x0) / step));
        const double high = std::min(static_cast<double>(row->size()),
                                     std::floor((ellipse.x + half - x0) / step) + 1);
        for (double i = low; i < high; ++i) {
            const auto span = Clipped(slice, ellipse, x0 + i * step, false);
            if (span)
                rays[static_cast<std::size_t>(i)].Paint(*span, ellipse.hu);
        }
    }
    std::ranges::transform(rays, row->begin(), &Ray::WaterThickness);
}

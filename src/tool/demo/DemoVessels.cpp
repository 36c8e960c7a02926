#include "tool/demo/DemoVessels.h"

#include "tool/demo/DemoNoise.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

struct Place {
    double x, y;
};

std::size_t At(int x, int y)
{
    return static_cast<std::size_t>(y) * kVesselSize + static_cast<std::size_t>(x);
}

// A ball of `radius`: what is thinner at its pixels becomes as thick, and as far, as it.
void Stamp(Place at, double radius, double distance, std::vector<float>* thickness,
           std::vector<float>* distances)
{
    const int reach = static_cast<int>(radius) + 1;
    const int cx = static_cast<int>(std::lround(at.x)), cy = static_cast<int>(std::lround(at.y));
    for (int y = std::max(0, cy - reach); y <= std::min(kVesselSize - 1, cy + reach); ++y) {
        for (int x = std::max(0, cx - reach); x <= std::min(kVesselSize - 1, cx + reach); ++x) {
            const double left = radius * radius - std::pow(x - at.x, 2) - std::pow(y - at.y, 2);
            if (left <= 0)
                continue;
            const auto thick = static_cast<float>(2 * std::sqrt(left));
            if (thick > (*thickness)[At(x, y)]) {
                (*thickness)[At(x, y)] = thick;
                if (distances)
                    (*distances)[At(x, y)] = static_cast<float>(distance);
            }
        }
    }
}

struct Branch {
    std::vector<Place> course;
    double first, last;  // radii
    double distance;     // of its beginning
    int children;
};

// A place on the smooth curve through the points of a course; `along` from 0 to their number
// less 1.
Place CurveAt(const std::vector<Place>& course, double along)
{
    const int last = static_cast<int>(course.size()) - 1;
    const int i = std::clamp(static_cast<int>(along), 0, last - 1);
    const double t = along - i;
    const auto point = [&](int k) {
        return course[static_cast<std::size_t>(std::clamp(k, 0, last))];
    };
    const auto mix = [t](double a, double b, double c, double d) {
        return b + t / 2 * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a)));
    };
    const Place a = point(i - 1), b = point(i), c = point(i + 1), d = point(i + 2);
    return {mix(a.x, b.x, c.x, d.x), mix(a.y, b.y, c.y, d.y)};
}

class Tree {
public:
    explicit Tree(DemoVessels* out) : fNoise(31), fOut(out) {}
    void Draw(const Branch& branch)
    {
        constexpr int kSteps = 60;  // from one point of the course to the next
        const int count = (static_cast<int>(branch.course.size()) - 1) * kSteps;
        double distance = branch.distance;
        Place before = branch.course.front();
        for (int i = 0; i <= count; ++i) {
            const double part = static_cast<double>(i) / count;
            const Place at = CurveAt(branch.course, static_cast<double>(i) / kSteps);
            distance += std::hypot(at.x - before.x, at.y - before.y);
            const double radius = branch.first + part * (branch.last - branch.first);
            Stamp(at, radius * Narrowing(distance, branch), distance, &fOut->thickness,
                  &fOut->distance);
            if (branch.children > 0 && i % (count / (branch.children + 1)) == 0 && i > 0 &&
                i < count)
                DrawChild(at, {at.x - before.x, at.y - before.y}, radius, distance,
                          branch.children - 1);
            before = at;
        }
    }

private:
    // What the examination was made for: a narrow place in the first large branch.
    static double Narrowing(double distance, const Branch& branch)
    {
        const double far = (distance - 118) / 9;
        return branch.first > 5.5 ? 1 - 0.68 * std::exp(-far * far) : 1;
    }
    // One more to the side, alternately left and right.
    void DrawChild(Place from, Place direction, double radius, double distance, int children)
    {
        fSide = -fSide;
        const double length = 46 + 50 * fNoise.Uniform();
        double angle =
            std::atan2(direction.y, direction.x) + fSide * (0.6 + 0.4 * fNoise.Uniform());
        std::vector<Place> course = {from};
        for (int i = 0; i < 4; ++i) {
            angle += -0.22 * fSide + 0.5 * (fNoise.Uniform() - 0.5);
            const Place last = course.back();
            course.push_back(
                {last.x + length / 4 * std::cos(angle), last.y + length / 4 * std::sin(angle)});
        }
        Draw({course, radius * 0.62, 0.7, distance, std::min(children, 2)});
    }

    DemoNoise fNoise;
    double fSide = 1;
    DemoVessels* fOut;
};

}  // namespace

DemoVessels DemoVessels_Make()
{
    const std::vector<float> empty(std::size_t{kVesselSize} * kVesselSize);
    DemoVessels vessels = {empty, empty, empty};
    Tree tree(&vessels);
    // The main stem, then the branch in front and the one around the heart.
    tree.Draw({{{150, 128}, {172, 134}, {196, 142}}, 7, 6.4, 0, 0});
    tree.Draw(
        {{{196, 142}, {250, 150}, {312, 190}, {362, 258}, {398, 338}, {404, 412}}, 6, 1.6, 48, 5});
    tree.Draw({{{196, 142}, {214, 190}, {226, 250}, {262, 318}, {306, 366}}, 5, 1.4, 48, 4});

    const std::vector<Place> tube = {{60, 511}, {52, 400}, {62, 250}, {86, 120},
                                     {122, 74}, {152, 98}, {150, 128}};
    for (int i = 0; i <= 6 * 200; ++i)
        Stamp(CurveAt(tube, i / 200.0), 3.4, 0, &vessels.catheter, nullptr);
    return vessels;
}

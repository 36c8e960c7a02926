#include "tool/demo/DemoHeart.h"

#include "tool/demo/DemoGlyphs.h"
#include "tool/demo/DemoNoise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr double kReach = 379, kHalfAngle = 0.79;  // of the sector: pixels, radians

// Echoes grainy as tissue's are, on a grid of depth and angle.
class Speckle {
public:
    Speckle() : fGrain(std::size_t{kDepths} * kAngles)
    {
        DemoNoise noise(77);
        for (float& grain : fGrain)
            grain = std::hypot(noise.Normal(), noise.Normal()) / 1.25F;
    }
    [[nodiscard]] float At(double depth, double angle) const
    {
        const double d = std::clamp(depth / kReach, 0.0, 1.0) * (kDepths - 2);
        const double a = std::clamp(angle / kHalfAngle / 2 + 0.5, 0.0, 1.0) * (kAngles - 2);
        const auto row = static_cast<std::size_t>(d), column = static_cast<std::size_t>(a);
        const auto down = static_cast<float>(d - std::floor(d));
        const auto across = static_cast<float>(a - std::floor(a));
        const float* upper = fGrain.data() + row * kAngles + column;
        const float* lower = upper + kAngles;
        return (upper[0] * (1 - across) + upper[1] * across) * (1 - down) +
               (lower[0] * (1 - across) + lower[1] * across) * down;
    }

private:
    static constexpr int kDepths = 220, kAngles = 130;
    std::vector<float> fGrain;
};

// How the chambers stand at a time of the beat, `time` from 0 to 1. Places are pixels from the
// beams' origin: x to the right, y down.
class Beat {
public:
    explicit Beat(double time)
        : fSqueeze(Bump(time, 0.22, 0.22)),
          fOpening(std::max(Bump(time, 0.58, 0.14), 0.7 * Bump(time, 0.88, 0.09))),
          fFlow(0.9 * fOpening - Bump(time, 0.22, 0.16))
    {
    }
    // Of all that sends an echo at (x, y): 0 for blood to 1.
    [[nodiscard]] double Echo(double x, double y) const
    {
        if (IsValve(x, y))
            return 0.95;
        double wall = 9;  // how far outside of the nearest cavity, 1 at its border
        for (int i = 0; i < 4; ++i)
            wall = std::min(wall, Distance(i, x, y));
        if (wall < 1)
            return 0.05;
        const double heart = std::hypot((x - 3) / 128, (y - 205) / 176);
        if (heart > 1)
            return heart < 1.035 ? 1.0 : 0.34;  // the bright bag around it
        return wall < 1.04 ? 0.8 : 0.58;
    }
    // Speed of blood towards the probe, -1 to 1; 0 outside of the left chambers.
    [[nodiscard]] double Flow(double x, double y) const
    {
        if (Distance(0, x, y) > 0.93 && Distance(1, x, y) > 0.93)
            return 0;
        const double aside = (x - 52) / 42;
        return fFlow * std::max(0.0, 1 - aside * aside) * std::exp(-std::abs(y - 235) / 110);
    }
    [[nodiscard]] double Shift() const { return 1 + 0.035 * fSqueeze; }

private:
    static double Bump(double time, double middle, double half)
    {
        const double far = std::remainder(time - middle, 1.0) / half;
        return std::abs(far) < 1 ? 0.5 + 0.5 * std::cos(std::numbers::pi * far) : 0;
    }
    // Left ventricle and atrium, right ventricle and atrium.
    [[nodiscard]] double Distance(int chamber, double x, double y) const
    {
        struct Chamber {
            double x, y, rx, ry, squeeze;  // the last is the part by which a beat narrows it
        };
        static constexpr std::array<Chamber, 4> kChambers = {{{52, 155, 44, 92, 0.30},
                                                              {50, 302, 45, 46, -0.14},
                                                              {-48, 168, 36, 80, 0.22},
                                                              {-46, 304, 42, 42, -0.12}}};
        const Chamber& c = kChambers[static_cast<std::size_t>(chamber)];
        const double part = 1 - c.squeeze * fSqueeze;
        return std::hypot((x - c.x) / (c.rx * part), (y - c.y) / (c.ry * (1 + part) / 2));
    }
    // Two leaflets a valve, from the ring at 250 below; they swing up towards the ventricle.
    [[nodiscard]] bool IsValve(double x, double y) const
    {
        const double lift = 4 + 30 * fOpening, length = 21 - 9 * fOpening;
        for (const auto& [left, right] : {std::pair{10.0, 94.0}, std::pair{-84.0, -12.0}}) {
            const double inside = std::min(x - left, right - x);
            const double along = inside / (length * 2);
            if (inside > 0 && along < 1 && std::abs(250 - lift * along - y) < 2.2)
                return true;
        }
        return false;
    }

    double fSqueeze, fOpening, fFlow;
};

class Picture {
public:
    Picture() : fBytes(std::size_t{kHeartColumns} * kHeartRows * 3, '\0') {}
    void Set(int x, int y, double r, double g, double b)
    {
        const auto at = static_cast<std::size_t>(y * kHeartColumns + x) * 3;
        fBytes[at] = Byte(r);
        fBytes[at + 1] = Byte(g);
        fBytes[at + 2] = Byte(b);
    }
    void Write(int left, int top, std::string_view text)
    {
        DemoGlyphs_Draw(text, [&](int x, int y) {
            for (int i = 0; i < 4; ++i)
                Set(left + 2 * x + i % 2, top + 2 * y + i / 2, 210, 210, 190);
        });
    }
    [[nodiscard]] std::string TakeBytes() { return std::move(fBytes); }

private:
    static char Byte(double value)
    {
        return static_cast<char>(static_cast<unsigned char>(std::clamp(value, 0.0, 255.0)));
    }
    std::string fBytes;
};

// Towards the probe from red to yellow, away from it from blue to cyan.
void SetFlow(Picture* picture, int x, int y, double flow)
{
    const double strong = 90 + 165 * std::min(1.0, 1.4 * std::abs(flow));
    const double pale = 230 * std::max(0.0, 1.5 * std::abs(flow) - 0.35);
    if (flow > 0)
        picture->Set(x, y, strong, pale, 20);
    else
        picture->Set(x, y, 20, pale, strong);
}

void DrawSector(const Beat& beat, const Speckle& speckle, DemoNoise* noise, Picture* picture)
{
    constexpr double kLeast = 0.1;  // slower flow isn't coloured
    // Where flow is looked for: angles and depths.
    constexpr double kBoxAngle = 0.2, kBoxHalf = 0.34, kBoxTop = 80, kBoxBottom = 352;
    for (int row = kHeartSector.top; row <= kHeartSector.bottom; ++row) {
        for (int column = kHeartSector.left; column <= kHeartSector.right; ++column) {
            const double x = column - kHeartApexX, y = row - kHeartApexY;
            const double depth = std::hypot(x, y), angle = std::atan2(x, y);
            if (depth < 8 || depth > kReach || std::abs(angle) > kHalfAngle)
                continue;
            const double inBox =
                std::min({kBoxHalf - std::abs(angle - kBoxAngle), (depth - kBoxTop) / depth,
                          (kBoxBottom - depth) / depth});
            if (std::abs(inBox * depth) < 0.8) {
                picture->Set(column, row, 190, 190, 190);
                continue;
            }
            const double flow = inBox > 0 ? beat.Flow(x, y) : 0;
            if (std::abs(flow) > kLeast) {
                SetFlow(picture, column, row, flow);
                continue;
            }
            const auto grain = static_cast<double>(speckle.At(depth * beat.Shift(), angle));
            const double gain = 1 - 0.35 * depth / kReach;
            const double echo = beat.Echo(x, y) * gain * (0.35 + 0.65 * grain);
            const double gray = 230 * std::sqrt(std::min(1.2, echo)) - 18 +
                                6 * static_cast<double>(noise->Normal());
            picture->Set(column, row, gray, gray, gray * 1.02);
        }
    }
}

// The current of the heart at a time of the beat, -1 to 1.
double Current(double time)
{
    const auto wave = [time](double middle, double half, double height) {
        const double far = (time - middle) / half;
        return height * std::exp(-far * far);
    };
    return wave(0.90, 0.03, 0.16) + wave(0.02, 0.008, -0.15) + wave(0.05, 0.011, 1.0) +
           wave(0.08, 0.009, -0.3) + wave(0.33, 0.05, 0.28);
}

// Two beats side by side; a bar stands at the time that the frame shows.
void DrawTrace(double time, Picture* picture)
{
    constexpr int kWidth = kHeartTrace.right - kHeartTrace.left + 1, kBase = 462, kHeight = 28;
    const auto level = [](int x) {
        const double at = 2.0 * x / kWidth;
        return kBase - static_cast<int>(std::lround(kHeight * Current(at - std::floor(at))));
    };
    for (int x = 0; x < kWidth; ++x) {
        const int from = level(x), to = level(std::max(0, x - 1));
        for (int y = std::min(from, to); y <= std::max(from, to) + 1; ++y)
            picture->Set(kHeartTrace.left + x, y, 60, 220, 90);
    }
    const int bar = kHeartTrace.left + static_cast<int>(time * kWidth / 2);
    for (int y = kHeartTrace.top; y <= kHeartTrace.bottom; ++y)
        picture->Set(bar, y, 230, 200, 60);
}

void DrawScales(Picture* picture)
{
    constexpr int kCentimetre = static_cast<int>(1 / kHeartPixel_cm + 0.5);
    for (int y = 0; y <= kReach; y += kCentimetre) {
        const int length = y % (5 * kCentimetre) == 0 ? 10 : 5;
        for (int x = 0; x < length; ++x)
            picture->Set(600 - x, kHeartApexY + y, 200, 200, 200);
    }
    for (int y = 0; y < 120; ++y) {
        for (int x = 0; x < 12; ++x)
            SetFlow(picture, 612 + x, 60 + y, (59.5 - y) / 60);
    }
    picture->Write(16, 12, "ZELORA DEMO");
    picture->Write(16, 30, "2D COLOR");
}

}  // namespace

std::vector<std::string> DemoHeart_Frames()
{
    const Speckle speckle;
    std::vector<std::string> frames;
    for (int i = 0; i < kHeartFrames; ++i) {
        const double time = static_cast<double>(i) / kHeartFrames;
        DemoNoise noise(static_cast<std::uint64_t>(i + 1) << 16);
        Picture picture;
        DrawSector(Beat(time), speckle, &noise, &picture);
        DrawTrace(time, &picture);
        DrawScales(&picture);
        frames.push_back(picture.TakeBytes());
    }
    return frames;
}

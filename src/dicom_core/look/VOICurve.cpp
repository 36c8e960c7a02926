#include "dicom_core/look/VOICurve.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace {

constexpr std::size_t kGrays8 = 256, kGrays16 = 65536;

// From a display value to the user's, exact as doubles are.
class UserScale {
public:
    explicit UserScale(const zelVOIBlitterInfo& info)
        : fInverted(info.photometric == kPhotometricInverted),
          fShift(info.pixelShift),
          fRange(info.pixelRange),
          fFactor(info.pixelFactor),
          fOffset(info.pixelOffset)
    {
    }
    [[nodiscard]] double Of(double display) const
    {
        const double steps = display + fShift;
        return (fInverted ? fRange - steps : steps) * fFactor + fOffset;
    }
    [[nodiscard]] bool Inverted() const { return fInverted; }
    [[nodiscard]] double Step() const { return fFactor; }

private:
    bool fInverted;
    double fShift, fRange, fFactor, fOffset;
};

// The user values where a linear window is black and where it is white.
struct Ramp {
    double fBlack, fWhite;
};

Ramp RampOf(const zel_TransformRec& record, const UserScale& scale,
            const std::optional<zelPixelRange>& range)
{
    const double width = record.voiWidth, level = record.voiLevel;
    Ramp ramp{level - width / 2, level + width / 2};
    if (record.voiFunction == zelVOIFunction::Linear && width >= 1)
        ramp.fWhite -= 1;  // the window's last value is white
    if (range) {
        const double a = scale.Of(range->minimum), b = scale.Of(range->maximum);
        ramp = {std::max(ramp.fBlack, std::min(a, b)), std::min(ramp.fWhite, std::max(a, b))};
        ramp.fWhite = std::max(ramp.fWhite, ramp.fBlack + scale.Step());
    }
    return ramp;
}

std::uint8_t Rounded(double gray)
{
    return static_cast<std::uint8_t>(std::clamp(gray, 0.0, 255.0) + 0.5);
}

// Calls `gray` with the user value of each display value; it answers 0 for black to 255.
template <typename Gray>
void Fill(const UserScale& scale, std::vector<std::uint8_t>* grays, const Gray& gray)
{
    const double turn = scale.Inverted() ? 1 : -1;  // inverted pixels turn what is stored inverted
    const double start = scale.Inverted() ? 0 : 255;
    for (std::size_t i = 0; i < grays->size(); ++i)
        (*grays)[i] = Rounded(start + turn * gray(scale.Of(static_cast<double>(i))));
}

void FillTable(const UserScale& scale, const zelVOITable& table, std::vector<std::uint8_t>* grays)
{
    const double most = table.Greatest();
    // Beyond its ends a table goes on as it ends, so that any value can be cut to them.
    const auto first = static_cast<double>(table.fFirst), last = static_cast<double>(table.Last());
    Fill(scale, grays, [&](double user) {
        const auto input = std::llround(std::clamp(user, first, last));
        return table.Of(input) * 255 / most;
    });
}

void FillSigmoid(const UserScale& scale, const zel_TransformRec& record,
                 std::vector<std::uint8_t>* grays)
{
    const double width = record.voiWidth > 0 ? record.voiWidth : scale.Step();
    const double steepness = -4 / width, level = record.voiLevel;
    Fill(scale, grays,
         [=](double user) { return 255 / (1 + std::exp(steepness * (user - level))); });
}

void FillRamp(const UserScale& scale, const Ramp& ramp, std::vector<std::uint8_t>* grays)
{
    const double span = ramp.fWhite - ramp.fBlack;
    Fill(scale, grays, [&](double user) {
        if (user <= ramp.fBlack)
            return 0.0;
        return user >= ramp.fWhite || !(span > 0) ? 255.0 : (user - ramp.fBlack) / span * 255;
    });
}

}  // namespace

bool NeedsVOICurve(const zel_TransformRec& record, bool hasRange)
{
    if (record.voiTable || record.voiFunction != zelVOIFunction::Linear)
        return true;
    const zelVOIBlitterInfo& info = record.voiInfo;
    return !hasRange && (!info.IsPlain() || info.photometric == kPhotometricInverted ||
                         record.voiLevel != std::trunc(record.voiLevel));
}

QvxStatus MakeVOICurve(const zel_TransformRec& record, const std::optional<zelPixelRange>& range,
                       std::vector<std::uint8_t>* grays)
{
    if (record.voiInfo.pixelFormat == 0 || !grays)
        return kQvxBadArgument;
    try {
        const bool bytes = record.voiInfo.pixelFormat == kPixelFormatGray8;
        const UserScale scale(record.voiInfo);
        std::vector<std::uint8_t> made(bytes ? kGrays8 : kGrays16);
        if (record.voiTable)
            FillTable(scale, *record.voiTable, &made);
        else if (record.voiFunction == zelVOIFunction::Sigmoid)
            FillSigmoid(scale, record, &made);
        else
            FillRamp(scale, RampOf(record, scale, range), &made);
        *grays = std::move(made);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

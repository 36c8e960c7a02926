#include "dicom_core/look/CVOIBlitter.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace {

// Pinned to what a width can be; 0 for a NaN.
std::uint32_t WholeWidth(double width)
{
    constexpr double kMost = std::numeric_limits<std::uint32_t>::max();
    return width > 0 ? static_cast<std::uint32_t>(std::min(width, kMost)) : 0;
}

double HalfAway(double width) { return std::round(width); }
double HalfUp(double width) { return width + 0.5; }
double Cut(double width) { return width; }

// A user width in display steps. `rounding` is that of the plain scale; a scale with a factor
// rounds half away from zero, and its smallest width is one step.
template <typename Rounding>
std::uint32_t DisplayWidth(const zelVOIBlitterInfo& info, float width, Rounding rounding)
{
    if (info.IsPlain())
        return WholeWidth(rounding(width));
    return std::max(WholeWidth(HalfAway(width / info.pixelFactor)), 1U);
}

// The frame was set up, and its scale can be used.
bool InfoUsable(const zelVOIBlitterInfo& info)
{
    return info.pixelFormat != 0 && info.pixelFactor > 0 && std::isfinite(info.pixelFactor) &&
           std::isfinite(info.pixelOffset);
}

// The plain arithmetic is defined for these; one with a factor is for the same.
QvxStatus CheckFormat(const zelVOIBlitterInfo& info)
{
    const bool inverted = info.photometric == kPhotometricInverted;
    return inverted && !IsGrayPixelFormat(info.pixelFormat) ? kQvxMalformed : kQvxOK;
}

}  // namespace

CVOIBlitter::CVOIBlitter()
{
    if (Qvx2_VOIBlit_New(&fBlit))
        fBlit.reset();
}

QvxStatus CVOIBlitter::UserToDisplay(const zel_TransformRec& record, float user,
                                     std::int32_t* display) const
{
    const zelVOIBlitterInfo& info = record.voiInfo;
    if (!IsOpen() || !InfoUsable(info) || !display)
        return kQvxBadArgument;
    if (info.IsPlain())
        return Qvx2_VOIBlit_ConvertBetweenUserAndDisplayValues(
            fBlit.get(), QvxVOIDirection::UserToDisplay, info.pixelFormat, info.Scale(), display,
            &user);
    if (const QvxStatus status = CheckFormat(info))
        return status;
    double steps = (user - info.pixelOffset) / info.pixelFactor;
    if (info.photometric == kPhotometricInverted)
        steps = info.pixelRange - steps;
    *display = TruncatedLessShift(steps, info.pixelShift);
    return kQvxOK;
}

QvxStatus CVOIBlitter::DisplayToUser(const zel_TransformRec& record, std::int32_t display,
                                     float* user) const
{
    const zelVOIBlitterInfo& info = record.voiInfo;
    if (!IsOpen() || !InfoUsable(info) || !user)
        return kQvxBadArgument;
    if (info.IsPlain())
        return Qvx2_VOIBlit_ConvertBetweenUserAndDisplayValues(
            fBlit.get(), QvxVOIDirection::DisplayToUser, info.pixelFormat, info.Scale(), &display,
            user);
    if (const QvxStatus status = CheckFormat(info))
        return status;
    double steps = static_cast<double>(display) + info.pixelShift;
    if (info.photometric == kPhotometricInverted)
        steps = info.pixelRange - steps;
    *user = static_cast<float>(steps * info.pixelFactor + info.pixelOffset);
    return kQvxOK;
}

QvxStatus CVOIBlitter::GetWindow(const zel_TransformRec& record, Window* window) const
{
    Window made;
    if (const QvxStatus status = UserToDisplay(record, record.voiLevel, &made.level))
        return status;
    made.width = DisplayWidth(record.voiInfo, record.voiWidth, HalfAway);
    *window = made;
    return kQvxOK;
}

QvxStatus CVOIBlitter::ClipToNothing()
{
    return Qvx2_VOIBlit_SetVOIBoundsClippingOption(fBlit.get(), QvxVOIBoundsClippingOption::None);
}

QvxStatus CVOIBlitter::ClipTo(std::int32_t pixelMinimum, std::int32_t pixelMaximum)
{
    if (pixelMaximum < pixelMinimum)
        return kQvxBadArgument;
    if (const QvxStatus status =
            Qvx2_VOIBlit_SetPixelBounds(fBlit.get(), pixelMinimum, pixelMaximum))
        return status;
    return Qvx2_VOIBlit_SetVOIBoundsClippingOption(fBlit.get(),
                                                   QvxVOIBoundsClippingOption::PixelBounds);
}

QvxStatus CVOIBlitter::MakeCurve(const zel_TransformRec& record, const PixelRange& range,
                                 std::vector<std::uint8_t>* grays) const
{
    if (!IsOpen() || !InfoUsable(record.voiInfo))
        return kQvxBadArgument;
    if (const QvxStatus status = CheckFormat(record.voiInfo))
        return status;
    return MakeVOICurve(record, range, grays);
}

QvxStatus CVOIBlitter::CopyWindowed(const zel_TransformRec& record, const PixelRange& range,
                                    PixMap* source, PixMap* destination, const Rect& sourceRect,
                                    const Rect& destinationRect)
{
    if (NeedsVOICurve(record, range.has_value())) {
        std::vector<std::uint8_t> grays;
        if (const QvxStatus status = MakeCurve(record, range, &grays))
            return status;
        return Qvx2_VOIBlit_TableCopyPixels(fBlit.get(), {0, grays}, source, destination,
                                            &sourceRect, &destinationRect);
    }
    Window window;
    if (const QvxStatus status = GetWindow(record, &window))
        return status;
    return Qvx2_VOIBlit_VOICopyPixels(fBlit.get(), window.level, window.width, source, destination,
                                      &sourceRect, &destinationRect);
}

QvxStatus CVOIBlitter::CopyPixelsTo8Bits(const zel_TransformRec& record, PixMap* source,
                                         PixMap* destination, const Rect& sourceRect,
                                         const Rect& destinationRect)
{
    if (const QvxStatus status = ClipToNothing())
        return status;
    return CopyWindowed(record, std::nullopt, source, destination, sourceRect, destinationRect);
}

QvxStatus CVOIBlitter::CopyPixelsTo8Bits(const zel_TransformRec& record, std::int32_t pixelMinimum,
                                         std::int32_t pixelMaximum, PixMap* source,
                                         PixMap* destination, const Rect& sourceRect,
                                         const Rect& destinationRect)
{
    if (const QvxStatus status = ClipTo(pixelMinimum, pixelMaximum))
        return status;
    return CopyWindowed(record, zelPixelRange{pixelMinimum, pixelMaximum}, source, destination,
                        sourceRect, destinationRect);
}

QvxStatus CVOIBlitter::BuildWindowed(const zel_TransformRec& record, const PixelRange& range,
                                     const ColorTable** table)
{
    if (!table)
        return kQvxBadArgument;
    VOIScale256 scale;
    if (NeedsVOICurve(record, range.has_value())) {
        std::vector<std::uint8_t> grays;
        if (const QvxStatus status = MakeCurve(record, range, &grays))
            return status;
        if (grays.size() != scale.size())
            return kQvxBadArgument;
        std::ranges::transform(grays, scale.begin(),
                               [](std::uint8_t gray) { return static_cast<std::uint8_t>(~gray); });
    } else {
        Window window;
        if (const QvxStatus status = GetWindow(record, &window))
            return status;
        if (const QvxStatus status =
                Qvx2_VOIBlit_GetVOIScale256(fBlit.get(), window.level, window.width, &scale))
            return status;
    }
    if (const QvxStatus status = FillTable(scale))
        return status;
    *table = &*fTable;
    return kQvxOK;
}

QvxStatus CVOIBlitter::GetCTableForVOI(const zel_TransformRec& record, const ColorTable** table)
{
    if (const QvxStatus status = ClipToNothing())
        return status;
    return BuildWindowed(record, std::nullopt, table);
}

QvxStatus CVOIBlitter::GetCTableForVOI(const zel_TransformRec& record, std::int32_t pixelMinimum,
                                       std::int32_t pixelMaximum, const ColorTable** table)
{
    if (const QvxStatus status = ClipTo(pixelMinimum, pixelMaximum))
        return status;
    return BuildWindowed(record, zelPixelRange{pixelMinimum, pixelMaximum}, table);
}

QvxStatus CVOIBlitter::BuildCTableForVOI(std::int32_t level, std::uint32_t width)
{
    VOIScale256 scale;
    if (const QvxStatus status = Qvx2_VOIBlit_GetVOIScale256(fBlit.get(), level, width, &scale))
        return status;
    return FillTable(scale);
}

// `scale` has the gray of each display value, 0 is black.
QvxStatus CVOIBlitter::FillTable(const VOIScale256& scale)
{
    try {
        if (!fTable)
            fTable = SystemColorTable(kPixelFormatGray8);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    if (fTable->SizeField() == 255) {
        for (std::size_t i = 0; i < scale.size(); ++i) {
            ColorSpec& entry = fTable->fEntries[i];
            entry.red = entry.green = entry.blue =
                static_cast<std::uint16_t>(scale[255 - i] * 257);  // a byte, doubled to 16 bits
        }
    }
    CTabChanged(&*fTable);
    return kQvxOK;
}

QvxStatus CVOIBlitter::EnhanceVOIValues(std::int32_t pixelMinimum, std::int32_t pixelMaximum,
                                        std::int32_t* level, std::uint32_t* width) const
{
    if (!IsOpen() || !level || !width || pixelMaximum < pixelMinimum)
        return kQvxBadArgument;
    const auto clamped = [&](std::int64_t value) {
        return std::clamp<std::int64_t>(value, pixelMinimum, pixelMaximum);
    };
    const std::int64_t start = std::int64_t{*level} - (*width >> 1);
    const std::int64_t lo = clamped(start), top = clamped(start + *width);
    *width = static_cast<std::uint32_t>(top - lo);
    *level = static_cast<std::int32_t>((top + lo) / 2);
    return kQvxOK;
}

QvxStatus U_NewVOIBlitter(std::unique_ptr<CVOIBlitter>* blitter)
{
    blitter->reset();
    try {
        *blitter = std::make_unique<CVOIBlitter>();
    } catch (const std::bad_alloc&) {
        return kQvxOK;  // null says it
    }
    if (!(*blitter)->IsOpen())
        blitter->reset();
    return kQvxOK;
}

void U_DeleteVOIBlitter(std::unique_ptr<CVOIBlitter>* blitter) { blitter->reset(); }

QvxStatus U_GetDisplayVOILimits(const zel_TransformRec& record, zelDisplayVOILimits* limits)
{
    if (!limits)
        return kQvxBadArgument;
    const CVOIBlitter blitter;
    std::int32_t a = 0, b = 0;
    if (const QvxStatus status = blitter.UserToDisplay(record, record.voiLevelMin, &a))
        return status;
    if (const QvxStatus status = blitter.UserToDisplay(record, record.voiLevelMax, &b))
        return status;
    *limits = {DisplayWidth(record.voiInfo, record.voiWidthMin, HalfUp), std::min(a, b),
               DisplayWidth(record.voiInfo, record.voiWidthMax, HalfUp), std::max(a, b)};
    return kQvxOK;
}

QvxStatus U_GetDisplayVOIParams(const zel_TransformRec& record, std::uint32_t* width,
                                std::int32_t* level)
{
    if (!width || !level)
        return kQvxBadArgument;
    if (const QvxStatus status = CVOIBlitter().UserToDisplay(record, record.voiLevel, level))
        return status;
    *width = DisplayWidth(record.voiInfo, record.voiWidth, Cut);
    return kQvxOK;
}

QvxStatus U_SetDisplayVOIParams(zel_TransformRec* record, std::int32_t pixelMinimum,
                                std::int32_t pixelMaximum, std::uint32_t width, std::int32_t level,
                                bool enhance)
{
    if (!record)
        return kQvxBadArgument;
    const CVOIBlitter blitter;
    if (enhance)
        if (const QvxStatus status =
                blitter.EnhanceVOIValues(pixelMinimum, pixelMaximum, &level, &width))
            return status;
    float user = 0;
    if (const QvxStatus status = blitter.DisplayToUser(*record, level, &user))
        return status;
    record->RecordVOI(static_cast<float>(width * record->voiInfo.pixelFactor), user);
    return kQvxOK;
}

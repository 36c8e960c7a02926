#include "QvxToolkit/QvxColor.h"

#include <algorithm>

namespace {

template <typename T>
void CopySample(const std::uint8_t* from, std::size_t fromIndex, std::uint8_t* to,
                std::size_t toIndex)
{
    std::memcpy(to + toIndex * sizeof(T), from + fromIndex * sizeof(T), sizeof(T));
}

template <typename T>
void InterleavePlanes(const std::uint8_t* planes, std::uint8_t* dest, std::size_t pixels)
{
    for (std::size_t i = 0; i < pixels; ++i) {
        for (std::size_t plane = 0; plane < 3; ++plane)
            CopySample<T>(planes, plane * pixels + i, dest, 3 * i + plane);
    }
}

template <typename T>
void SpreadChroma(const std::uint8_t* samples, std::uint8_t* dest, std::size_t pixels)
{
    for (std::size_t i = 0; i + 1 < pixels; i += 2) {
        for (std::size_t half = 0; half < 2; ++half) {
            CopySample<T>(samples, 2 * i + half, dest, 3 * (i + half));
            CopySample<T>(samples, 2 * i + 2, dest, 3 * (i + half) + 1);
            CopySample<T>(samples, 2 * i + 3, dest, 3 * (i + half) + 2);
        }
    }
}

template <typename T>
void Interleave(const QvxFrameRecord& record, const std::uint8_t* samples, std::uint8_t* dest)
{
    if (record.fHalfChroma)
        SpreadChroma<T>(samples, dest, record.Pixels());
    else
        InterleavePlanes<T>(samples, dest, record.Pixels());
}

// PS3.3 C.7.6.3.1.2: the partial range leaves room below black (16 of 255) and above white.
struct YBRToRGB {
    double fLuminance = 1, fBlack = 0;
    double fRedOfCr = 1.402, fGreenOfCb = -0.344136, fGreenOfCr = -0.714136, fBlueOfCb = 1.772;
};
constexpr YBRToRGB kFullRange{};
constexpr YBRToRGB kPartialRange{1.164383, 16, 1.596027, -0.391762, -0.812968, 2.017232};

template <typename T>
void TurnToRGB(const YBRToRGB& rule, std::uint32_t stored, std::uint8_t* bytes, std::size_t pixels)
{
    const double middle = static_cast<double>(std::uint64_t{1} << (stored - 1));
    const double most = 2 * middle - 1;
    const double black = rule.fBlack * middle / 128;
    const auto rounded = [most](double value) {
        return static_cast<T>(std::clamp(value + 0.5, 0.0, most));
    };
    for (std::size_t i = 0; i < pixels; ++i) {
        T sample[3];
        std::memcpy(sample, bytes + i * sizeof sample, sizeof sample);
        const double y = (sample[0] - black) * rule.fLuminance;
        const double cb = sample[1] - middle, cr = sample[2] - middle;
        sample[0] = rounded(y + rule.fRedOfCr * cr);
        sample[1] = rounded(y + rule.fGreenOfCb * cb + rule.fGreenOfCr * cr);
        sample[2] = rounded(y + rule.fBlueOfCb * cb);
        std::memcpy(bytes + i * sizeof sample, sample, sizeof sample);
    }
}

}  // namespace

void QvxInterleave(const QvxFrameRecord& record, const std::vector<std::uint8_t>& samples,
                   DecodedFrame* frame)
{
    std::uint8_t* dest = frame->fBytes.data();
    switch (BytesOfForm(frame->fForm)) {
        case 1:
            return Interleave<std::uint8_t>(record, samples.data(), dest);
        case 2:
            return Interleave<std::uint16_t>(record, samples.data(), dest);
        default:
            return Interleave<std::uint32_t>(record, samples.data(), dest);
    }
}

void QvxTurnToRGB(const QvxFrameRecord& record, DecodedFrame* frame)
{
    const QvxPhotometric kind = record.fPhotometric;
    const bool isYBR = kind == QvxPhotometric::YBRFull || kind == QvxPhotometric::YBRFull422 ||
                       kind == QvxPhotometric::YBRPartial;
    if (!isYBR || record.IsGray())
        return;
    const YBRToRGB& rule = kind == QvxPhotometric::YBRPartial ? kPartialRange : kFullRange;
    std::uint8_t* bytes = frame->fBytes.data();
    const std::size_t pixels = record.Pixels();
    switch (BytesOfForm(frame->fForm)) {
        case 1:
            return TurnToRGB<std::uint8_t>(rule, record.fBitsStored, bytes, pixels);
        case 2:
            return TurnToRGB<std::uint16_t>(rule, record.fBitsStored, bytes, pixels);
        default:
            return TurnToRGB<std::uint32_t>(rule, record.fBitsStored, bytes, pixels);
    }
}

// From stored gray values to display values; QvxCodec.h has the rules. Internal.
#pragma once
#include "QvxToolkit/QvxCodec.h"
#include <cstdint>

// How float pixels become whole ones: quantum = round((value - fLow) / fStep).
struct QvxQuantum {
    double fLow = 0, fStep = 1;
    std::int64_t fMost = 0;  // the greatest quantum
};

// display = fBase + fTimes * (stored >> fDrop), and 0 to fMaximum for all values of the scale.
struct QvxDisplayScale {
    QvxPixelInfo fInfo;
    int fDrop = 0;
    std::int64_t fBase = 0, fTimes = 1;
    std::int32_t fMaximum = 0;
    QvxQuantum fQuantum;                     // of float pixels: `stored` is the quantum then
    const QvxLookupTable* fTable = nullptr;  // the record's; its entry is `stored` then
};

inline constexpr std::int32_t kGray16Maximum = 65535;

[[nodiscard]] QvxDisplayScale QvxMakeDisplayScale(const QvxFrameRecord& record,
                                                  const DecodedFrame* frame);

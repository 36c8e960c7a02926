// The record 'DPIF' that the base buffer keeps beside a gray frame, so that a frame which was
// decoded once needs no decoder to be windowed again.
#pragma once
#include "dicom_core/look/CVOIBlitter.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

inline constexpr std::uint32_t kTagDPIF = FourCC("DPIF");

struct zelDPIFRecord {
    zelVOIBlitterInfo voiInfo;
    std::int32_t pixelMinimum = 0, pixelMaximum = 0;  // display values, padding left out
    std::int32_t unread = 0, reserved = 0;
    zelDisplayVOILimits limits;
    bool operator==(const zelDPIFRecord&) const = default;
};

inline constexpr std::size_t kDPIFFixedSize = 52;
// The fixed part is 13 longs in the machine's order: the first five fields of `voiInfo`; pixel
// minimum, pixel maximum, one that nobody reads; a reserved one; minimum width, maximum width,
// minimum level, maximum level. Behind it stand the factor and the offset, both doubles.
using zelDPIFBytes = std::array<std::byte, kDPIFFixedSize + 2 * sizeof(double)>;

[[nodiscard]] zelDPIFBytes PackDPIFRecord(const zelDPIFRecord& record);
// A fixed part alone means a factor of 1 and an offset of 0. kQvxBadArgument for fewer bytes, or
// for a pixel format of 0.
[[nodiscard]] QvxStatus UnpackDPIFRecord(std::span<const std::byte> bytes, zelDPIFRecord* record);

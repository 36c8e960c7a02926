// What a decoder knows of the pixels of a gray frame, and the record of it that the base buffer
// keeps beside the frame, so that a buffered frame needs no decoder.
#pragma once
#include "dicom_core/look/CVOIBlitter.h"
#include "dicom_core/store/zel_ImageBuffer.h"

class DicomCodec;

inline constexpr std::uint32_t kTagDPIF = FourCC("DPIF");

struct zelFrameFacts {
    zelVOIBlitterInfo voiInfo;
    std::int32_t pixelMinimum = 0, pixelMaximum = 0;  // display values, padding left out
    zelDisplayVOILimits limits;
};

// The codec must have decoded the frame last. `properties` as of OffscreenForFrame.h.
[[nodiscard]] QvxStatus FactsFromCodec(const DicomCodec& codec, std::uint32_t properties,
                                       zelFrameFacts* facts);
// False when there is no buffer (null), no such frame in it or no record beside it.
[[nodiscard]] bool FindBufferedFacts(const zel_ImageBuffer* buffer, std::int32_t primary,
                                     std::int32_t secondary, zelFrameFacts* facts);
// 52 bytes in the machine's order, and behind them the factor and the offset of the display scale.
[[nodiscard]] QvxStatus StoreBufferedFacts(zel_ImageBuffer* buffer, std::int32_t primary,
                                           std::int32_t secondary, const zelFrameFacts& facts);

// What a decoder knows of the pixels of a gray frame, and where the base buffer keeps it beside the
// frame, so that a buffered frame needs no decoder.
#pragma once
#include "dicom_core/look/zelDPIFRecord.h"
#include "dicom_core/store/zel_ImageBuffer.h"

class DicomCodec;

// The codec must have decoded the frame last. `properties` as of OffscreenForFrame.h.
[[nodiscard]] QvxStatus FactsFromCodec(const DicomCodec& codec, std::uint32_t properties,
                                       zelDPIFRecord* facts);
// False when there is no buffer (null), no such frame in it or no record beside it.
[[nodiscard]] bool FindBufferedFacts(const zel_ImageBuffer* buffer, std::int32_t primary,
                                     std::int32_t secondary, zelDPIFRecord* facts);
[[nodiscard]] QvxStatus StoreBufferedFacts(zel_ImageBuffer* buffer, std::int32_t primary,
                                           std::int32_t secondary, const zelDPIFRecord& facts);

// A frame's pixels as its decoder gives them, not yet turned nor windowed, in the form in which the
// base buffer keeps them: the road that documents and the decoding ahead share.
#pragma once
#include "dicom_core/look/zelDPIFRecord.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "pixels/zel_Offscreen.h"

#include "qpix/DicomCodec.h"
#include <cstdint>
#include <memory>

class CImporterPlus;

// Gray DICOM frames of the properties of OffscreenForFrame.h: they go through a codec, which knows
// afterwards what the pixels mean.
[[nodiscard]] bool IsDicomGrayFrame(std::uint32_t properties);

// Fills `offscreen` with the importer's current image; where that is smaller, it stands in the
// middle of black. `codec` may be null for other than gray DICOM frames. The importer's codes.
[[nodiscard]] QvxStatus DecodeFrame(CImporterPlus* importer, std::uint32_t properties,
                                    DicomCodec* codec, zel_Offscreen* offscreen);

// Keeps a decoded frame, with `facts` beside it unless they are null. The buffer's codes.
[[nodiscard]] QvxStatus StoreDecodedFrame(zel_ImageBuffer* buffer, zel_Offscreen* offscreen,
                                          std::int32_t primary, std::int32_t secondary,
                                          std::uint32_t storePriority, std::uint32_t insertLimit,
                                          const zelDPIFRecord* facts);
// The same for one that has been written already.
[[nodiscard]] QvxStatus StoreWrittenFrame(zel_ImageBuffer* buffer, WrittenPixels pixels,
                                          std::int32_t primary, std::int32_t secondary,
                                          std::uint32_t storePriority, std::uint32_t insertLimit,
                                          const zelDPIFRecord* facts);

// Where the road of a frame begins: the pixel format in which it lives.
#pragma once
#include "pixels/zel_Offscreen.h"

#include "qpix/CImporterPlus.h"
#include <cstdint>
#include <memory>

// Bits of the frame properties. A DICOM frame of 8-bit gray has 11, of 16-bit gray 7, of colour 1.
inline constexpr std::uint32_t kFrameIsDicom = 1;
inline constexpr std::uint32_t kFrameIsGray = 2;
inline constexpr std::uint32_t kFrameIsSixteenBit = 4;
inline constexpr std::uint32_t kFrameIsIndexed = 8;

inline constexpr std::int32_t kMaxFrameSide = 32000;

// A white offscreen that suits image `frame` of the importer, whose current image is the same
// afterwards.
//   bounds      its size; null for the image's own
//   properties  of the frame; may be null
// kQvxBadArgument for a side outside of 1 to kMaxFrameSide, kQvxNoMemory, else the importer's
// codes.
[[nodiscard]] QvxStatus U_NewOffscreenForFrame(CImporter& importer, std::int32_t frame,
                                               std::unique_ptr<zel_Offscreen>* offscreen,
                                               const Rect* bounds, std::uint32_t* properties);

// One frame of a sequence: its file, what the user did to it, what is known of it.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"
#include "util/StatusCodes.h"
#include "util/XRect.h"

#include <cstdint>

class dk_ImageFile;
class zelImageSource;

// Handicap bits of a frame's health; 0 is healthy.
inline constexpr std::uint32_t kHandicapNoBlitter = 256;
inline constexpr std::uint32_t kHandicapNoPixelRange = 512;

class dk_ImageFrameInfo {
public:
    // Height and width in pixels, kept from the first call on. kQvxBadArgument without an importer.
    [[nodiscard]] QvxStatus GetFrameSize(Point* size);
    // With the pixel aspect ratio applied, and turned as the frame is.
    [[nodiscard]] QvxStatus GetEffectiveFrameSize(Point* size, bool applyAspect,
                                                  bool applyRotation);
    [[nodiscard]] QvxStatus GetFrameSizeWithAspectRatio(Point* size);
    // Vertical by horizontal, 16.16; 0 if the file has none. The displayed one is that of the
    // turned frame.
    [[nodiscard]] std::int32_t GetPixelAspectRatio();
    [[nodiscard]] std::int32_t GetDisplayedPixelAspectRatio();
    [[nodiscard]] QvxStatus GetImageVisibleRect(LongRect* rect);
    // Display values; kQvxBadArgument for a maximum below its minimum.
    [[nodiscard]] QvxStatus SetPixelVOILimits(std::uint32_t minU, std::int32_t minS,
                                              std::uint32_t maxU, std::int32_t maxS);
    void GetPixelVOILimits(std::uint32_t* minU, std::int32_t* minS, std::uint32_t* maxU,
                           std::int32_t* maxS) const;
    void SetActualPixelValuesRange(std::int32_t minimum, std::int32_t maximum);
    void GetActualPixelValuesRange(std::int32_t* minimum, std::int32_t* maximum) const;
    // Transform, colours, limits, range, duration, size and health; not file, source and number.
    void CopySettingsTo(dk_ImageFrameInfo* other) const;
    void RevertAllTransformations();
    void AddToFrameHealth(std::uint32_t bits);

    dk_ImageFile* fImageFile = nullptr;  // not owned
    zelImageSource* fSource = nullptr;   // not owned
    std::int32_t fFrameInFile = -1;      // from 1
    zel_TransformRec fTransform;
    std::int32_t fColorTable = 0;  // 0 none
    std::uint32_t fPixelMinU = 0, fPixelMaxU = 0;
    std::int32_t fPixelMinS = 0, fPixelMaxS = 0;
    std::int32_t fActualMin = 0, fActualMax = 0;  // 0, 0 unknown
    float fFrameDuration = 0;                     // ms, set when the frame times are loaded
    Point fFrameSize;                             // 0 until asked
    std::uint32_t fFrameHealth = 0;
};

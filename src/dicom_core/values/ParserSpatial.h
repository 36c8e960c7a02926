// Where a file's image lies in the patient, and how large its pixels are, by the top level of the
// file. FrameGroups.h has the same questions for one frame of an enhanced object. A missing element
// is nothing unusual: the stated default stands then, beside a code for callers that care. What is
// not a finite number counts as unreadable.
#pragma once
#include "dicom_core/values/PlaneValues.h"

#include <cstdint>
#include <string>
#include <string_view>

// (0020,1041) in millimetres, 0 if missing.
[[nodiscard]] double Parser_GetSliceLocation(ParserHandle parser);

// The letters of the body at the four edges of the picture: L R (left, right), P A (back, front),
// H F (head, feet), the strongest direction first. Empty where two directions are equally strong or
// nothing is known. A lone value of (0020,0020) goes whole into `top`, at most 31 bytes. None of
// the four may be null.
void Parser_GetFramePositionStrings(ParserHandle parser, std::string* top, std::string* left,
                                    std::string* bottom, std::string* right);

// Pixel Spacing (0028,0030), the first value multiplied by the aspect factors' ratio. Both are 0
// when the result isn't kQvxOK: kQvxNoSuchElement, kQvxBadMultiplicity, kQvxMalformed. Imager Pixel
// Spacing isn't consulted: it is not the size in the patient.
[[nodiscard]] QvxStatus Parser_GetPixelDimensions(ParserHandle parser, float* first, float* second);
// Both dimensions are above 0.
[[nodiscard]] bool Parser_FileHasScaleInfo(ParserHandle parser);

// Two whole numbers whose larger is about 1000, from Pixel Aspect Ratio (0028,0034), or else from
// the ratio of the spacing. 1000 and 1000 for a ratio below 0.1, above 10 or unreadable.
[[nodiscard]] QvxStatus Qvx2_ParserGetPixelAspectRatioFactors(ParserHandle parser,
                                                              std::int32_t* first,
                                                              std::int32_t* second);

// (0020,0032). All three are 0 when the result isn't kQvxOK.
[[nodiscard]] QvxStatus Parser_GetImagePosition(ParserHandle parser, double* x, double* y,
                                                double* z);
// (0020,0037) and the normal. A value that can't be read counts as 2, which no cosine is. Without
// an orientation `cosines` stays as it is.
[[nodiscard]] QvxStatus Parser_GetFramePositionCosines(ParserHandle parser, zelCosines* cosines);
// All of it for an image of that many columns and rows. The code is that of the cosines; everything
// else is filled whatever it is.
[[nodiscard]] QvxStatus Parser_GetPositionOrientationSpacingAndSize(ParserHandle parser,
                                                                    std::int32_t columns,
                                                                    std::int32_t rows,
                                                                    zelPlane* plane);
// There are three position values, six of orientation, and a Frame of Reference UID (0020,0052).
[[nodiscard]] bool Parser_HasSpatialLocationFields(ParserHandle parser);

inline constexpr std::string_view kLocalizerType = "LOCALIZER";
// One value of Image Type (0008,0008) is kLocalizerType.
[[nodiscard]] bool Parser_ImageTypeIsLocalizer(ParserHandle parser);
// Number of items of Referenced Image Sequence (0008,1140), 0 if missing.
[[nodiscard]] std::int32_t Parser_CountLocalizerRefs(ParserHandle parser);

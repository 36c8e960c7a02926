// How a file's Modality (0008,0060) changes the program's behaviour: one table, and a question for
// each of its columns. Each question comes in two forms, on the text of the element (compared
// whole and by case) and on the four-character code; a modality that the table doesn't hold gets
// the default that stands behind the question. Constant tables; any thread.
#pragma once
#include <array>
#include <cstdint>
#include <string_view>

using ModalityType = std::uint32_t;

// Four characters are the code themselves, the first in the highest byte; none are four blanks. Of
// any other text the first two characters stand behind two blanks: "CT" is "  CT".
[[nodiscard]] constexpr ModalityType DicomUtil_ModalityFromString(std::string_view text)
{
    const auto at = [text](std::size_t place) {
        return place < text.size() ? ModalityType{static_cast<unsigned char>(text[place])} : 0x20u;
    };
    if (text.size() == 4)
        return at(0) << 24 | at(1) << 16 | at(2) << 8 | at(3);
    return 0x20200000u | at(0) << 8 | at(1);
}

// One row of the table.
struct ZELModalityPrefs {
    std::string_view fName;
    std::int32_t fIndexGridPosition;
    std::string_view fSequenceName;  // what the user sees one sequence called
    bool fCineAutoplay, fFramesAreOneSequence, fCineOnOpen, fMultiLoopCine;
    bool fDemographics, fScale, fLocalizers, fSplit;
    std::int16_t fFrameGrid[2];  // first and second; 0, 0 leaves it to the number of frames
    ModalityType fType = DicomUtil_ModalityFromString(fName);
};

// clang-format off
inline constexpr auto kModalityPrefs = std::to_array<ZELModalityPrefs>({
    // name  index sequence autoplay one    on open multi  demogr scale  localz split  frame grid
    { "XA",   4,   "Scene", true,    false, true,   true,  false, false, false, false, { 1, 1 } },
    { "US",   3,   "Clip",  true,    false, true,   true,  false, false, false, false, { 1, 1 } },
    { "IVUS", 3,   "Clip",  true,    false, true,   true,  false, false, false, false, { 1, 1 } },
    { "CT",   4,   "File",  false,   true,  false,  false, true,  true,  true,  true,  { 0, 0 } },
    { "MR",   4,   "File",  false,   true,  false,  false, true,  true,  true,  true,  { 0, 0 } },
    { "CR",   4,   "File",  false,   false, false,  false, true,  true,  false, false, { 0, 0 } },
    { "PT",   4,   "File",  false,   true,  false,  false, true,  true,  false, true,  { 0, 0 } },
    { "NM",   4,   "File",  false,   false, false,  false, true,  true,  false, true,  { 1, 1 } },
    { "DX",   4,   "Image", false,   false, false,  false, true,  true,  false, false, { 0, 0 } },
    { "SC",   4,   "Image", false,   true,  false,  false, true,  true,  false, false, { 0, 0 } },
    // An image that isn't DICOM.
    { "file", 4,   "File",  false,   false, false,  false, false, false, false, false, { 1, 1 } },
});
// clang-format on

// Each file of the series is a sequence of its own. Default true.
[[nodiscard]] bool Modality_HasSingleFileSequences(std::string_view modality);
[[nodiscard]] bool Modality_HasSingleFileSequences(ModalityType modality);
// All frames of the series form one sequence: the opposite of the above, but true for CR and DX
// too, whose files are shown together and counted apart. Default false.
[[nodiscard]] bool Modality_SeriesIsSingleSequence(std::string_view modality);
[[nodiscard]] bool Modality_SeriesIsSingleSequence(ModalityType modality);
// Default false, these and all below.
[[nodiscard]] bool Modality_HasCineOnOpen(std::string_view modality);
[[nodiscard]] bool Modality_HasCineOnOpen(ModalityType modality);
[[nodiscard]] bool Modality_HasMultiLoopCine(std::string_view modality);
[[nodiscard]] bool Modality_HasMultiLoopCine(ModalityType modality);
[[nodiscard]] bool Modality_HasCineAutoplay(std::string_view modality);
[[nodiscard]] bool Modality_HasCineAutoplay(ModalityType modality);
[[nodiscard]] bool Modality_SupportsLocalizers(std::string_view modality);
[[nodiscard]] bool Modality_SupportsLocalizers(ModalityType modality);
[[nodiscard]] bool Modality_SupportsSplit(std::string_view modality);
[[nodiscard]] bool Modality_SupportsSplit(ModalityType modality);
[[nodiscard]] bool Modality_HasDemographics(std::string_view modality);
[[nodiscard]] bool Modality_HasDemographics(ModalityType modality);
[[nodiscard]] bool Modality_HasScale(std::string_view modality);
[[nodiscard]] bool Modality_HasScale(ModalityType modality);

// Default "file".
[[nodiscard]] std::string_view Modality_GetSequenceName(std::string_view modality);
[[nodiscard]] std::string_view Modality_GetSequenceName(ModalityType modality);
// Default 0.
[[nodiscard]] std::int32_t Modality_GetPreferedIndexGridPosition(std::string_view modality);
[[nodiscard]] std::int32_t Modality_GetPreferedIndexGridPosition(ModalityType modality);
// Default 0, 0. The outs may not be null.
void Modality_GetPreferedFrameGridSetup(std::string_view modality, std::int32_t* first,
                                        std::int32_t* second);
void Modality_GetPreferedFrameGridSetup(ModalityType modality, std::int32_t* first,
                                        std::int32_t* second);

// The grid for a number of frames: grows from 1, 1 to 3, 3 for nine of them, and falls back to
// 2, 2 for more, which are then paged. 0, 0 for no frames.
void DicomUtil_GridSetupForTotalFrames(std::int32_t frames, std::int32_t* first,
                                       std::int32_t* second);

// What an enhanced multi-frame object says of single frames (PS3.3 C.7.6.16). Each operation stands
// beside the one of its name in ParserSpatial.h, ParserWindows.h or ParserTiming.h: a frame's own
// item of (5200,9230) comes first, then the shared one of (5200,9229), and where neither states the
// value, the plain operation answers. So they do for any file, with or without groups, whatever its
// class. Frames count from 1.
#pragma once
#include "dicom_core/values/ParserSpatial.h"
#include "dicom_core/values/ParserTiming.h"
#include "dicom_core/values/ParserWindows.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The groups of one file, four bytes a frame. An item is read when it is first asked for; hold a
// QvxReaderUse over a run of questions. Valid as long as the reader's references are.
class zelFrameGroups {
public:
    zelFrameGroups() = default;
    // Groups that can't be read count as missing.
    explicit zelFrameGroups(ParserHandle parser);

    [[nodiscard]] ParserHandle Parser() const { return fParser; }
    // Frames with an item of their own; 0 for an ordinary file.
    [[nodiscard]] std::int32_t FrameCount() const;

    // `element` in the first item of sequence `macro`: the frame's own, else the shared one; None
    // if neither has it. `item` (may be null) is the item that it was found in.
    [[nodiscard]] QvxElementRef Find(std::int32_t frame, QvxElementTag macro, QvxElementTag element,
                                     QvxElementRef* item = nullptr) const;
    // Sequence `macro` itself.
    [[nodiscard]] QvxElementRef Macro(std::int32_t frame, QvxElementTag macro) const;

private:
    // The frame's own group, then the shared one.
    [[nodiscard]] std::array<QvxElementRef, 2> GroupsOf(std::int32_t frame) const;

    ParserHandle fParser = nullptr;
    QvxElementRef fShared = QvxElementRef::None;
    std::vector<QvxElementRef> fFrames;
};

// Pixel Spacing of the Pixel Measures, or a projection's Object Pixel Spacing in Center of Beam;
// with the aspect correction of the plain operation.
[[nodiscard]] QvxStatus Parser_GetPixelDimensions(const zelFrameGroups& groups, std::int32_t frame,
                                                  float* first, float* second);
[[nodiscard]] bool Parser_FileHasScaleInfo(const zelFrameGroups& groups, std::int32_t frame);
[[nodiscard]] QvxStatus Qvx2_ParserGetPixelAspectRatioFactors(const zelFrameGroups& groups,
                                                              std::int32_t frame,
                                                              std::int32_t* first,
                                                              std::int32_t* second);
// Plane Position and Plane Orientation in the patient. Those in a volume's or a slide's own
// coordinates say nothing of the body and are not taken.
[[nodiscard]] QvxStatus Parser_GetImagePosition(const zelFrameGroups& groups, std::int32_t frame,
                                                double* x, double* y, double* z);
[[nodiscard]] QvxStatus Parser_GetFramePositionCosines(const zelFrameGroups& groups,
                                                       std::int32_t frame, zelCosines* cosines);
void Parser_GetFramePositionStrings(const zelFrameGroups& groups, std::int32_t frame,
                                    std::string* top, std::string* left, std::string* bottom,
                                    std::string* right);
[[nodiscard]] QvxStatus Parser_GetPositionOrientationSpacingAndSize(const zelFrameGroups& groups,
                                                                    std::int32_t frame,
                                                                    std::int32_t columns,
                                                                    std::int32_t rows,
                                                                    zelPlane* plane);
[[nodiscard]] bool Parser_HasSpatialLocationFields(const zelFrameGroups& groups,
                                                   std::int32_t frame);

// Frame Type of any class's frame type sequence in place of Image Type.
[[nodiscard]] bool Parser_ImageTypeIsLocalizer(const zelFrameGroups& groups, std::int32_t frame);
[[nodiscard]] std::int32_t Parser_CountLocalizerRefs(const zelFrameGroups& groups,
                                                     std::int32_t frame);

// Frame VOI LUT. Names come from the item that has the numbers.
[[nodiscard]] std::int32_t Parser_GetNumberOfWindowingPresets(const zelFrameGroups& groups,
                                                              std::int32_t frame);
[[nodiscard]] QvxStatus Parser_GetWindowingPreset(const zelFrameGroups& groups, std::int32_t frame,
                                                  std::int32_t index, std::int32_t* width,
                                                  std::int32_t* center, std::string* name);
[[nodiscard]] std::int32_t Parser_GetNumberOfUniqueWindowingPresets(const zelFrameGroups& groups,
                                                                    std::int32_t frame);
[[nodiscard]] QvxStatus Parser_GetUniqueWindowingPreset(const zelFrameGroups& groups,
                                                        std::int32_t frame, std::int32_t index,
                                                        std::int32_t* width, std::int32_t* center,
                                                        std::string* name);

// The times of all frames. A rate that the file states for display comes first. Then the steps of
// the frames in time, if each one is later than the one before: Temporal Position Time Offset,
// Frame Reference DateTime, Frame Acquisition DateTime. Then the plain operation, and only after it
// Frame Acquisition Duration: a projection's exposure is much shorter than the gap to the next. A
// source counts only if it has a value for every frame. Equal times become a single one.
[[nodiscard]] QvxStatus Parser_GetFrameTimes(const zelFrameGroups& groups, zelFrameTimes* times);

// Annotations that tell how a frame is shown: which of how many, how large, under which window.
#pragma once
#include "dicom_core/annotations/TextFieldAnnotation.h"

enum class SequenceFieldType : std::int32_t {
    None = 0,  // says nothing
    FrameCounter = 1,
    TotalFrames = 2,
    Scale = 4,
    Window = 5,
};
// Of a template's number: 3 is the window there, and what isn't known is None.
[[nodiscard]] SequenceFieldType SequenceFieldTypeOf(std::int32_t elemType);

//   FrameCounter  "Frm 3/10"; only where a sequence's cine opens with it
//   TotalFrames   "Total frames 10"
//   Scale         "Scale: 150%", with two decimals unless they are 0, by the zoom of the frame's
//                 record, which its owner keeps up to date under auto-fit too
//   Window        "WL: 40, WW: 400" of gray DICOM frames, rounded half away from zero, with the
//                 decimals of one step of the scale where that isn't plain (zelVOIBlitterInfo.h);
//                 of any other frame "B: 10%, C: -5%" unless both are 0
[[nodiscard]] QString SequenceFieldText(SequenceFieldType type, dk_SequenceBase& sequence,
                                        const zel_TransformRec& record);

class SequenceFieldAnnotation final : public TextFieldAnnotation {
public:
    SequenceFieldAnnotation(TextPosition position, SequenceFieldType type,
                            const QString& prefix = {});
    [[nodiscard]] QString GetText(const AnnotatedFrame& frame) const override;

private:
    SequenceFieldType fType;
};

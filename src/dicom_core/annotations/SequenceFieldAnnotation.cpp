#include "dicom_core/annotations/SequenceFieldAnnotation.h"

#include "dicom_core/look/WindowText.h"

#include <cmath>

namespace {

QString FrameCounter(dk_SequenceBase& sequence)
{
    if (!Modality_HasCineOnOpen(sequence.GetModality()))
        return {};
    return QStringLiteral("Frm %1/%2")
        .arg(sequence.GetCurrentFrameIndex())
        .arg(sequence.GetNumberOfFrames());
}

QString Scale(dk_SequenceBase& sequence, const zel_TransformRec& record)
{
    if (!sequence.GetCurrentSource())
        return {};
    const double percent = record.zoom / static_cast<double>(kZoomOne) * 100.0 + 0.005;
    const bool whole = std::trunc(percent) * 100.0 == std::trunc(percent * 100.0);
    return QStringLiteral("Scale: %1%").arg(percent, 0, 'f', whole ? 0 : 2);
}

QString Window(dk_SequenceBase& sequence, const zel_TransformRec& record)
{
    if (sequence.IsDICOMGray()) {
        const auto text = [&record](float value) {
            return QString::fromStdString(WindowValueText(record.voiInfo, value));
        };
        return QStringLiteral("WL: %1, WW: %2").arg(text(record.voiLevel), text(record.voiWidth));
    }
    if (record.brightness == 0 && record.contrast == 0)
        return {};
    return QStringLiteral("B: %1%, C: %2%").arg(record.brightness).arg(record.contrast);
}

}  // namespace

SequenceFieldType SequenceFieldTypeOf(std::int32_t elemType)
{
    switch (elemType) {
        case 1:
            return SequenceFieldType::FrameCounter;
        case 2:
            return SequenceFieldType::TotalFrames;
        case 3:
            return SequenceFieldType::Window;
        case 4:
            return SequenceFieldType::Scale;
        default:
            return SequenceFieldType::None;
    }
}

QString SequenceFieldText(SequenceFieldType type, dk_SequenceBase& sequence,
                          const zel_TransformRec& record)
{
    switch (type) {
        case SequenceFieldType::FrameCounter:
            return FrameCounter(sequence);
        case SequenceFieldType::TotalFrames:
            return QStringLiteral("Total frames %1").arg(sequence.GetNumberOfFrames());
        case SequenceFieldType::Scale:
            return Scale(sequence, record);
        case SequenceFieldType::Window:
            return Window(sequence, record);
        case SequenceFieldType::None:
            break;
    }
    return {};
}

SequenceFieldAnnotation::SequenceFieldAnnotation(TextPosition position, SequenceFieldType type,
                                                 const QString& prefix)
    : TextFieldAnnotation(position, {}, prefix), fType(type)
{
}

QString SequenceFieldAnnotation::GetText(const AnnotatedFrame& frame) const
{
    return WithPrefix(fPrefix, SequenceFieldText(fType, frame.fSequence, frame.fInfo.fTransform));
}

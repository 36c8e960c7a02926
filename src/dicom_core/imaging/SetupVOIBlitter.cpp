#include "dicom_core/imaging/SetupVOIBlitter.h"

#include "dicom_core/imaging/BufferedFacts.h"
#include "dicom_core/look/WindowSetup.h"
#include "dicom_core/tree/dk_DicomSequence.h"

#include "qpix/CImporterPlus.h"
#include "qpix/DicomCodec.h"
#include "qpix/OffscreenForFrame.h"
#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t kNoMeaning = kHandicapNoBlitter | kHandicapNoPixelRange;

// The user's limits of one frame.
struct UserLimits {
    float minWidth = 0, maxWidth = 0, minLevel = 0, maxLevel = 0;
    void Include(const UserLimits& other)
    {
        minWidth = std::min(minWidth, other.minWidth);
        maxWidth = std::max(maxWidth, other.maxWidth);
        minLevel = std::min(minLevel, other.minLevel);
        maxLevel = std::max(maxLevel, other.maxLevel);
    }
};

// The steps of one set-up; each that fails has marked the frame's health.
class FrameSetup {
public:
    FrameSetup(dk_Sequence* sequence, DicomCodec* codec, dk_ImageFrameInfo* frame,
               std::uint32_t properties, zel_ImageBuffer* buffer)
        : fSequence(sequence),
          fCodec(codec),
          fFrame(frame),
          fProperties(properties),
          fBuffer(buffer)
    {
    }
    QvxStatus Run();

private:
    QvxStatus Fail(QvxStatus status, std::uint32_t health = kHandicapNoPixelRange)
    {
        fFrame->AddToFrameHealth(health);
        return status;
    }
    QvxStatus LearnMeaning();
    void LearnLook();
    void AllowStatedWindow();
    QvxStatus LimitFrame();
    QvxStatus LimitSequence();
    QvxStatus LimitsOf(const dk_ImageFrameInfo& info, UserLimits* limits) const;
    QvxStatus MergedLimits(UserLimits* limits) const;
    void AdoptSibling();

    dk_Sequence* fSequence;
    DicomCodec* fCodec;
    dk_ImageFrameInfo* fFrame;
    std::uint32_t fProperties;
    zel_ImageBuffer* fBuffer;
    zelWindowFacts fFacts;
};

// From the record beside a buffered frame, else from the codec.
QvxStatus FrameSetup::LearnMeaning()
{
    zelDPIFRecord known;
    const std::int32_t source = fFrame->fSource->SourceID();
    if (!FindBufferedFacts(fBuffer, fFrame->fFrameInFile, source, &known))
        if (const QvxStatus status = FactsFromCodec(*fCodec, fProperties, &known))
            return Fail(status, kNoMeaning);
    fFrame->fTransform.voiInfo = known.voiInfo;
    fFrame->SetActualPixelValuesRange(known.pixelMinimum, known.pixelMaximum);
    fFacts.pixelMinimum = known.pixelMinimum;
    fFacts.pixelMaximum = known.pixelMaximum;
    fFacts.codecLimits = known.limits;
    AllowStatedWindow();
    return LimitFrame();
}

// The curve of the file's windows, and the table that its default stands for. The importer's
// current image is the frame.
void FrameSetup::LearnLook()
{
    fFacts.hasDefault = fFrame->fSource->GetTheDefaultVOIValuesFromImporter(&fFacts.defaultWidth,
                                                                            &fFacts.defaultLevel);
    QvxDefaultWindow look;
    CImporterPlus* importer = fFrame->fSource->GetImporter();
    if (!importer || importer->GetDefaultWindow(&look))
        return;
    fFacts.function = look.fFunction;
    if (fFacts.hasDefault)
        fFacts.defaultTable = look.fTable;
}

// A window that the file states is a right one, even where it is wider than all that the pixels
// could be: cut to them, it would show them in other grays.
void FrameSetup::AllowStatedWindow()
{
    constexpr std::int32_t kMost = 1 << 24;  // of the file's word
    std::int32_t level = 0;
    if (!fFacts.hasDefault || !std::isfinite(fFacts.defaultLevel) ||
        CVOIBlitter().UserToDisplay(fFrame->fTransform, fFacts.defaultLevel, &level))
        return;
    zelDisplayVOILimits& limits = fFacts.codecLimits;
    const double width = std::ceil(fFacts.defaultWidth / fFrame->fTransform.voiInfo.pixelFactor);
    if (width > limits.maxWidth)
        limits.maxWidth = static_cast<std::uint32_t>(std::min<double>(width, kMost));
    limits.minLevel = std::min(limits.minLevel, std::max(level, -kMost));
    limits.maxLevel = std::max(limits.maxLevel, std::min(level, kMost));
}

QvxStatus FrameSetup::LimitFrame()
{
    zelWindowSetup setup;
    if (const QvxStatus status = WindowSetup_Limits(fFacts, &setup))
        return Fail(status);
    if (const QvxStatus status =
            fFrame->SetPixelVOILimits(setup.limits.minWidth, setup.limits.minLevel,
                                      setup.limits.maxWidth, setup.limits.maxLevel))
        return Fail(status);
    return kQvxOK;
}

QvxStatus FrameSetup::LimitsOf(const dk_ImageFrameInfo& info, UserLimits* limits) const
{
    zelDisplayVOILimits display;
    info.GetPixelVOILimits(&display.minWidth, &display.minLevel, &display.maxWidth,
                           &display.maxLevel);
    zel_TransformRec record;
    record.voiInfo = info.fTransform.voiInfo;
    if (const QvxStatus status = WindowSetup_RecordLimits(display, &record))
        return status;
    *limits = {record.voiWidthMin, record.voiWidthMax, record.voiLevelMin, record.voiLevelMax};
    return kQvxOK;
}

// Display values of frames with one scale are merged as they are; where a step of one frame is not
// worth that of another (PET), the user's values are.
QvxStatus FrameSetup::MergedLimits(UserLimits* limits) const
{
    zelDisplayVOILimits merged;
    if (const QvxStatus status = fSequence->GetSequenceVOILimits(
            &merged.minWidth, &merged.minLevel, &merged.maxWidth, &merged.maxLevel))
        return status;
    dk_ImageFrameInfo sum = *fFrame;
    sum.fPixelMinU = merged.minWidth;
    sum.fPixelMinS = merged.minLevel;
    sum.fPixelMaxU = merged.maxWidth;
    sum.fPixelMaxS = merged.maxLevel;
    const zelVOIBlitterInfo& own = fFrame->fTransform.voiInfo;
    const auto& frames = fSequence->GetSequenceFrameInfo()->fFrames;
    const auto otherScale = [&own](const dk_ImageFrameInfo& info) {
        const zelVOIBlitterInfo& other = info.fTransform.voiInfo;
        return other.pixelFormat != 0 &&
               (other.pixelFactor != own.pixelFactor || other.pixelOffset != own.pixelOffset);
    };
    if (std::ranges::none_of(frames, otherScale))
        return LimitsOf(sum, limits);
    if (const QvxStatus status = LimitsOf(*fFrame, limits))
        return status;
    for (const dk_ImageFrameInfo& info : frames) {
        UserLimits other;
        if (info.fTransform.voiInfo.pixelFormat != 0 && LimitsOf(info, &other) == kQvxOK)
            limits->Include(other);
    }
    return kQvxOK;
}

QvxStatus FrameSetup::LimitSequence()
{
    UserLimits limits;
    if (const QvxStatus status = MergedLimits(&limits))
        return Fail(status);
    for (dk_ImageFrameInfo& info : fSequence->GetSequenceFrameInfo()->fFrames) {
        // No width is below a step of the frame's own.
        const auto step = static_cast<float>(info.fTransform.voiInfo.pixelFactor);
        info.fTransform.SetVOIWidthLimits(std::max(limits.minWidth, step), limits.maxWidth);
        info.fTransform.SetVOILevelLimits(limits.minLevel, limits.maxLevel);
    }
    return kQvxOK;
}

// The first other frame that was set up before decides.
void FrameSetup::AdoptSibling()
{
    zel_TransformRec& own = fFrame->fTransform;
    for (const dk_ImageFrameInfo& info : fSequence->GetSequenceFrameInfo()->fFrames) {
        const zel_TransformRec& other = info.fTransform;
        if (&info == fFrame || other.voiInfo.pixelFormat == 0)
            continue;
        if (other.IsVOIAtOriginals())
            own.RecordVOI(own.voiWidthOriginal, own.voiLevelOriginal);
        else
            own.AdoptVOI(other);
        return;
    }
}

QvxStatus FrameSetup::Run()
{
    const bool first = fFrame->fTransform.voiInfo.pixelFormat == 0;
    if (!fFrame->fSource || (fProperties & (kFrameIsSixteenBit | kFrameIsGray)) == 0)
        return Fail(kQvxBadArgument, kNoMeaning);
    LearnLook();
    if (first)
        if (const QvxStatus status = LearnMeaning())
            return status;
    if (const QvxStatus status = LimitSequence())
        return status;
    WindowSetup_RecordOriginals(fFacts, &fFrame->fTransform);
    if (first)
        AdoptSibling();
    return kQvxOK;
}

}  // namespace

QvxStatus SetupVOIBlitter(dk_SequenceBase* sequence, DicomCodec* codec, dk_ImageFrameInfo* frame,
                          std::uint32_t properties, zel_ImageBuffer* buffer)
{
    constexpr std::uint32_t kDicomGray = kFrameIsDicom | kFrameIsGray;
    if ((properties & kDicomGray) != kDicomGray)
        return kQvxOK;
    auto* frames = dynamic_cast<dk_Sequence*>(sequence);
    if (!frames || !codec || !frame || !frames->GetVOIBlitter() || !frames->GetSequenceFrameInfo())
        return kQvxBadArgument;
    return FrameSetup(frames, codec, frame, properties, buffer).Run();
}

QvxStatus U_SetDisplayVOIParams(dk_ImageFrameInfo* frame, std::uint32_t width, std::int32_t level,
                                bool enhance)
{
    if (!frame)
        return kQvxBadArgument;
    const CVOIBlitter blitter;
    if (enhance) {
        std::int32_t minimum = 0, maximum = 0;
        frame->GetActualPixelValuesRange(&minimum, &maximum);
        if (const QvxStatus status = blitter.EnhanceVOIValues(minimum, maximum, &level, &width))
            return status;
    }
    float user = 0;
    if (const QvxStatus status = blitter.DisplayToUser(frame->fTransform, level, &user))
        return status;
    const double factor = frame->fTransform.voiInfo.pixelFactor;
    frame->fTransform.RecordVOI(static_cast<float>(width * factor), user);
    return kQvxOK;
}

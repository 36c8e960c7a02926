// What the user does to frames of a table.
#include "dicom_core/tree/dk_SequenceFrameInfo.h"

namespace {

// Runs `edit` on the frames that `frame` selects.
template <typename Edit>
void OnFrames(dk_SequenceFrameInfo* table, std::int32_t frame, Edit edit)
{
    if (frame == dk_SequenceFrameInfo::kAllFrames) {
        for (dk_ImageFrameInfo& info : table->fFrames)
            edit(info);
    } else if (dk_ImageFrameInfo* info = table->GetImageFrameInfo(frame)) {
        edit(*info);
    }
}

bool WindowChanged(const zel_TransformRec& transform) { return !transform.IsVOIAtOriginals(); }

void RevertWindow(zel_TransformRec* transform)
{
    transform->RecordVOI(transform->voiWidthOriginal, transform->voiLevelOriginal);
    transform->ResetBnC();
}

void RevertOne(dk_ImageFrameInfo* info, std::int32_t flags)
{
    if (flags & (kRevertColors | kRevertWindow))
        RevertWindow(&info->fTransform);
    if (flags & kRevertColors)
        info->fTransform.invert = false;
    if (flags & (kRevertColors | kRevertColorTable))
        info->fColorTable = 0;
    if (flags & kRevertScroll)
        info->fTransform.scroll = {};
}

bool CanRevertOne(const dk_ImageFrameInfo& info, std::int32_t flags)
{
    const zel_TransformRec& transform = info.fTransform;
    if ((flags & kRevertColors) &&
        (transform.invert || WindowChanged(transform) || transform.brightness != 0 ||
         transform.contrast != 0 || info.fColorTable != 0))
        return true;
    if ((flags & kRevertColorTable) && info.fColorTable != 0)
        return true;
    if ((flags & kRevertScroll) &&
        (transform.rotation != 0 || transform.vertFlip || transform.horzFlip))
        return true;
    if ((flags & kRevertScrolled) && (transform.scroll.x != 0 || transform.scroll.y != 0))
        return true;
    return flags == kRevertAll && (info.fColorTable != 0 || !transform.autoFit);
}

}  // namespace

void dk_SequenceFrameInfo::RevertAllTransformations(std::int32_t frame)
{
    OnFrames(this, frame, [](dk_ImageFrameInfo& info) { info.RevertAllTransformations(); });
    if (frame == kAllFrames)
        fCineRate = kRateOne;
}

void dk_SequenceFrameInfo::SetFrameZoom(std::int32_t frame, std::int32_t zoom)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { info.fTransform.zoom = zoom; });
}

void dk_SequenceFrameInfo::SetFrameScroll(std::int32_t frame, CGPoint scroll)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { info.fTransform.scroll = scroll; });
}

void dk_SequenceFrameInfo::SetFrameAutoFit(std::int32_t frame, bool autoFit)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { info.fTransform.autoFit = autoFit; });
}

void dk_SequenceFrameInfo::InvertFrame(std::int32_t frame)
{
    OnFrames(this, frame,
             [](dk_ImageFrameInfo& info) { info.fTransform.invert = !info.fTransform.invert; });
}

void dk_SequenceFrameInfo::ResetFrameInvert(std::int32_t frame)
{
    OnFrames(this, frame, [](dk_ImageFrameInfo& info) { info.fTransform.invert = false; });
}

void dk_SequenceFrameInfo::VerticalFlipFrame(std::int32_t frame)
{
    OnFrames(this, frame, [](dk_ImageFrameInfo& info) { info.fTransform.RecVertFlip(); });
}

void dk_SequenceFrameInfo::HorizontalFlipFrame(std::int32_t frame)
{
    OnFrames(this, frame, [](dk_ImageFrameInfo& info) { info.fTransform.RecHorzFlip(); });
}

void dk_SequenceFrameInfo::ResetFrameFlips(std::int32_t frame)
{
    OnFrames(this, frame, [](dk_ImageFrameInfo& info) {
        if (info.fTransform.vertFlip)
            info.fTransform.RecVertFlip();
        if (info.fTransform.horzFlip)
            info.fTransform.RecHorzFlip();
    });
}

void dk_SequenceFrameInfo::RotateFrame(std::int32_t frame, std::int16_t degrees)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { info.fTransform.RecRotation(degrees); });
}

void dk_SequenceFrameInfo::SetFrameVOI(std::int32_t frame, float width, float level)
{
    OnFrames(this, frame,
             [&](dk_ImageFrameInfo& info) { info.fTransform.RecordVOI(width, level); });
}

void dk_SequenceFrameInfo::SetFrameVOITable(std::int32_t frame,
                                            const std::shared_ptr<const zelVOITable>& table)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { info.fTransform.RecordVOITable(table); });
}

void dk_SequenceFrameInfo::SetFrameBnC(std::int32_t frame, std::int32_t brightness,
                                       std::int32_t contrast)
{
    OnFrames(this, frame,
             [&](dk_ImageFrameInfo& info) { info.fTransform.RecordBnC(brightness, contrast); });
}

void dk_SequenceFrameInfo::ResetFrameVOI(std::int32_t frame)
{
    OnFrames(this, frame, [](dk_ImageFrameInfo& info) {
        info.fTransform.RecordVOI(info.fTransform.voiWidthOriginal,
                                  info.fTransform.voiLevelOriginal);
    });
}

void dk_SequenceFrameInfo::SetFrameColorTable(std::int32_t frame, std::int32_t table)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { info.fColorTable = table; });
}

void dk_SequenceFrameInfo::RevertFrame(std::int32_t frame, std::int32_t flags)
{
    OnFrames(this, frame, [&](dk_ImageFrameInfo& info) { RevertOne(&info, flags); });
}

bool dk_SequenceFrameInfo::CanRevertFrame(std::int32_t frame, std::int32_t flags) const
{
    bool can = frame == kAllFrames && flags == kRevertAll && fCineRate != kRateOne;
    // Looks only; the table is not changed.
    OnFrames(const_cast<dk_SequenceFrameInfo*>(this), frame,
             [&](const dk_ImageFrameInfo& info) { can = can || CanRevertOne(info, flags); });
    return can;
}

#include "app/grid/Localizers.h"

#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/values/ModalityRules.h"
#include "prefs/Prefs.h"

#include <algorithm>

namespace {

dk_Sequence* DicomSequenceOf(const ZELSequenceGridViewModelController& grid)
{
    return dynamic_cast<dk_Sequence*>(grid.curr_dkSequence());
}

bool SupportsLocalizers(const ZELSequenceGridViewModelController* grid)
{
    dk_SequenceBase* sequence = grid->curr_dkSequence();
    return sequence && Modality_SupportsLocalizers(sequence->GetModality());
}

bool ShareFrameOfReference(dk_Sequence* active, dk_Sequence* other, std::int32_t frame)
{
    std::string here, there;
    return active->GetFrameOfReferenceUID(0, &there) == kQvxOK &&
           other->GetFrameOfReferenceUID(frame, &here) == kQvxOK && here == there;
}

// The frames of the active sequence whose outlines are drawn, in that order.
std::vector<std::int32_t> FramesToProject(const dk_Sequence& active, std::int32_t current,
                                          std::int32_t total)
{
    const std::int32_t low = std::max(active.fFirstNormalFrame, 1);
    const std::int32_t high = active.fLastNormalFrame < 2 ? total : active.fLastNormalFrame;
    std::vector<std::int32_t> frames;
    if (prefs_ShowFirstLastLocalizerLines() && total >= 2)
        frames = {low, high};
    if (low <= current && current <= high)
        frames.push_back(current);
    return frames;
}

}  // namespace

std::vector<QLineF> LocalizerLinesOf(ZELSequenceGridViewModelController& active,
                                     ZELSequenceGridViewModelController& grid, std::int32_t frame)
{
    dk_Sequence* theirs = DicomSequenceOf(active);
    dk_Sequence* ours = DicomSequenceOf(grid);
    if (!theirs || !ours || !theirs->HasLocalizerSpatialData() ||
        !ours->HasLocalizerSpatialData() || !ShareFrameOfReference(theirs, ours, frame))
        return {};
    const auto onto = grid.planeOfFrame(frame);
    if (!onto)
        return {};
    std::vector<QLineF> lines;
    const ZELSequenceProxy& proxy = *active.currZELSequence();
    for (const std::int32_t each :
         FramesToProject(*theirs, proxy.currentFrame(), proxy.totalFrames())) {
        if (const auto& plane = active.planeOfFrame(each)) {
            const auto edges = ProjectedOutline(*plane, *onto);
            lines.insert(lines.end(), edges.begin(), edges.end());
        }
    }
    return lines;
}

bool LocalizerSwitch::canShowLocalizers() const
{
    return std::ranges::count_if(fHost->gridControllers(), SupportsLocalizers) > 1;
}

void LocalizerSwitch::showHideLocalizers()
{
    fShows = !fShows;
    redrawOthers();
}

void LocalizerSwitch::redrawOthers()
{
    const auto grids = fHost->gridControllers();
    if (grids.size() < 2)
        return;
    for (ZELSequenceGridViewModelController* grid : grids) {
        if (!grid->isTheActiveGrid() && !grid->cineModeIsON() && grid->view())
            grid->view()->setNeedsDisplay();
    }
}

void LocalizerSwitch::updateLocalizers()
{
    const auto grids = fHost->gridControllers();
    if (!fShows || grids.size() < 2)
        return;
    for (ZELSequenceGridViewModelController* grid : grids) {
        if (!grid->isTheActiveGrid() && !grid->cineModeIsON() && SupportsLocalizers(grid) &&
            grid->view())
            grid->view()->setNeedsDisplay();
    }
}

LocalizerSwitch::Item LocalizerSwitch::menuItem() const
{
    const bool enabled = fHost->gridControllers().size() >= 2 && canShowLocalizers();
    return {enabled, enabled && fShows,
            enabled && fShows ? "Hide Reference Lines" : "Show Reference Lines"};
}

LocalizerSwitch::Item LocalizerSwitch::toolbarSegment() const
{
    const bool enabled = fHost->gridControllers().size() >= 2 && canShowLocalizers();
    return {enabled, enabled && fShows, nullptr};
}

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
    const dk_Sequence* theirs = DicomSequenceOf(active);
    if (!theirs || !SupportsLocalizers(&active) || !SupportsLocalizers(&grid))
        return {};
    // By the planes, which are read once: this is asked at every painting.
    const ZELSequenceProxy& proxy = *active.currZELSequence();
    const auto onto = grid.planeOfFrame(frame);
    const auto current = active.planeOfFrame(proxy.currentFrame());
    if (!onto || !current || onto->frameOfReference != current->frameOfReference)
        return {};
    std::vector<QLineF> lines;
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
    redrawAllOthers();
}

void LocalizerSwitch::redrawOthers()
{
    if (fShows)
        redrawAllOthers();
}

void LocalizerSwitch::redrawAllOthers()
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

// From one sequence to another.
#include "app/grid/ViewerActions.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/ModalityRules.h"
#include "prefs/Prefs.h"

#include <algorithm>

dk_SequenceBase* ViewerActions::stepInRing(dk_SequenceBase* sequence, bool next) const
{
    const ZELDcmTree& tree = *fHost->tree();
    dk_SequenceBase* found = next ? tree.nextGoodSequence_DICOMFrom(sequence)
                                  : tree.prevGoodSequence_DICOMFrom(sequence);
    if (found)
        return found;
    return next ? tree.firstGoodSequence_DICOM() : tree.lastGoodSequence_DICOM();
}

bool ViewerActions::standsInPlayingGrid(const dk_SequenceBase* sequence) const
{
    return std::ranges::any_of(fHost->gridControllers(), [&](const Grid* grid) {
        return grid->curr_dkSequence() == sequence && grid->cineModeIsON();
    });
}

std::shared_ptr<ZELSequenceProxy> ViewerActions::walk(dk_SequenceBase* sequence, bool forCine,
                                                      bool next)
{
    const ZELDcmTree* tree = fHost->tree();
    if (!tree || !sequence)
        return nullptr;
    if (forCine && fHost->hasSingleCineSequence())
        return fHost->proxyOf(sequence);
    if (!tree->hasMoreThanOneGoodSequences())
        return nullptr;
    const bool markedOnly =
        forCine && prefs_Cine_TraverseRespectsMarked() && tree->hasMarkedSequences();
    const auto serves = [&](dk_SequenceBase* found) {
        if (!forCine)
            return !standsInPlayingGrid(found);
        return found->GetNumberOfFrames() > 1 && Modality_HasCineAutoplay(found->GetModality()) &&
               (!markedOnly || found->fMarked);
    };
    dk_SequenceBase* first = stepInRing(sequence, next);
    for (dk_SequenceBase* found = first; found && found != sequence;) {
        if (serves(found))
            return fHost->proxyOf(found);
        found = stepInRing(found, next);
        if (found == first)  // the sequence itself is not among the good ones
            break;
    }
    return nullptr;
}

void ViewerActions::gotoSequence(Grid& grid, bool next)
{
    U_DoJumpView(grid, walk(grid.curr_dkSequence(), false, next));
}

void ViewerActions::U_DoJumpView(Grid& grid, const std::shared_ptr<ZELSequenceProxy>& proxy)
{
    if (!proxy || !proxy->theSequence())
        return;
    for (Grid* each : fHost->gridControllers()) {
        if (each->curr_dkSequence() == proxy->theSequence()) {
            fHost->activateGrid(*each);
            each->revealCurrentCell();
            return;
        }
    }
    if (grid.cineModeIsON())
        fHost->cineStage().stopCine(grid);
    fHost->changeSequenceTo(proxy, grid);
    if (prefs_HasCineAutoplay() && Modality_HasCineAutoplay(proxy->theSequence()->GetModality()) &&
        !grid.cineModeIsON())
        fHost->cineStage().startCine(grid, 0);
    if (!grid.cineModeIsON()) {
        grid.revealCurrentCell();
        if (grid.view())
            grid.view()->setNeedsDisplay();
    }
    tellOfSequence(proxy);
}

void ViewerActions::tellOfSequence(const std::shared_ptr<ZELSequenceProxy>& proxy)
{
    const auto pointer = [](const void* p) { return QVariant::fromValue(const_cast<void*>(p)); };
    NotificationCenter::Default().Post(
        kNoteGridDidChangeSequence, fHost->windowKey(),
        {{QLatin1String(kKeyNewDkSequence), pointer(proxy->theSequence())},
         {QLatin1String(kKeyNewSequence), QVariant::fromValue(proxy)},
         {QLatin1String(kKeyWindow), pointer(fHost->windowKey())}});
}

void ViewerActions::switchSequenceMark(Grid& grid)
{
    ZELSequenceProxy* proxy = grid.currZELSequence().get();
    if (!proxy || !proxy->isGood())
        return;
    proxy->setUserMarked(!proxy->userMarked());
    fHost->updateNodeForSequence(proxy->theSequence());
}

// Which layout a tree opens in, and which sequences its grids show.
#include "app/grid/MultiGridViewController.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"

#include <algorithm>

namespace {

using Grid = ZELSequenceGridViewModelController;
using Proxy = std::shared_ptr<ZELSequenceProxy>;

constexpr double kClearlyLonger = 1.3;  // of a view's sides

int LayoutForCount(int sequences)
{
    switch (sequences) {
        case 1:
            return 651;
        case 2:
            return 653;
        case 3:
            return 656;
        default:
            return 664;
    }
}

// What the old grids show, as far as there are new ones.
std::vector<Proxy> KeptProxies(const MultiGridViewController& old, int grids)
{
    std::vector<Proxy> kept = old.theSequenceProxies();
    if (static_cast<int>(kept.size()) <= grids)
        return kept;
    kept.resize(static_cast<std::size_t>(grids));
    const Grid* active = old.activeSequenceGridController();
    if (old.seqGridIDForController(active) > grids)
        kept.back() = active->currZELSequence();
    return kept;
}

}  // namespace

int LayoutForOpening(const ZELDcmTree& tree)
{
    const int wanted = prefs_SequenceInitialGridArrangement();
    const int grids = NumGridsForControllerWithID(wanted);
    if (wanted != 0 && grids > 0 && grids <= tree.numberOfGoodSequencesFast())
        return wanted;
    if (wanted == 0)
        return LayoutForCount(tree.numberOfHangingSequences());
    const int sequences = tree.numberOfGoodSequencesFast();
    return sequences == 0 ? kSingleGridLayout : LayoutForCount(sequences);
}

void HangSequences(MultiGridViewController* layout, const MultiGridViewController* old,
                   GridHost* host)
{
    std::vector<Proxy> proxies;
    if (old)
        proxies = KeptProxies(*old, layout->numGrids());
    proxies.resize(static_cast<std::size_t>(layout->numGrids()));
    const auto stands = [&](const dk_SequenceBase* sequence) {
        return std::ranges::any_of(proxies, [sequence](const Proxy& each) {
            return each && each->theSequence() == sequence;
        });
    };
    dk_SequenceBase* next = host->tree()->firstGoodSequence_DICOM();
    // Only those that are new: one that was left empty stays so.
    for (auto place = static_cast<std::size_t>(old ? old->numGrids() : 0); place < proxies.size();
         ++place) {
        while (!proxies[place] && next) {
            if (!stands(next))
                proxies[place] = host->proxyOf(next);
            next = host->tree()->nextGoodSequence_DICOMFrom(next);
        }
    }
    for (std::size_t i = 0; i < proxies.size(); ++i) {
        Grid& grid = *layout->gridWithNumber(static_cast<int>(i) + 1);
        grid.setCurrZELSequence(proxies[i]);
        dk_SequenceBase* sequence = grid.curr_dkSequence();
        if (!sequence)
            continue;
        const dk_SequenceViewState& state = *sequence->GetViewState();
        grid.setGridRowsTo(state.fCurrRows, state.fCurrColumns, false);
        host->updateNodeForSequence(sequence);
    }
    const int number = old ? old->seqGridIDForController(old->activeSequenceGridController()) : 1;
    layout->setActiveSequenceGridController(
        layout->gridWithNumber(std::clamp(number, 1, layout->numGrids())));
    if (!old)
        return;
    for (const Proxy& each : old->theSequenceProxies()) {
        if (each && each->theSequence() && !stands(each->theSequence()))
            host->updateNodeForSequence(each->theSequence());
    }
}

void FitGridDimsToView(Grid& grid, const QSizeF& view)
{
    if (!grid.curr_dkSequence() || view.isEmpty())
        return;
    const dk_SequenceViewState& state = *grid.curr_dkSequence()->GetViewState();
    const auto [few, many] = std::minmax(state.fCurrRows, state.fCurrColumns);
    std::int32_t rows = state.fCurrRows, columns = state.fCurrColumns;
    if (view.height() / view.width() > kClearlyLonger) {
        rows = many;
        columns = few;
    } else if (view.width() / view.height() > kClearlyLonger) {
        rows = few;
        columns = many;
    }
    grid.setGridRowsTo(rows, columns, false);
}

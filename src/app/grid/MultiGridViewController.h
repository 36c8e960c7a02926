// The grids of a window: how many its layout has, which one is active, which sequence stands in
// which. It makes the grids' models and answers for them what GridHost is asked; menus, tool boxes
// and panes act on the active one. Observes the notifications that change what other grids than the
// active one show. Main thread only.
#pragma once
#include "app/grid/GridHost.h"
#include "app/grid/GridLayouts.h"
#include "app/grid/Localizers.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "platform/NotificationCenter.h"

// Posted by the preferences.
inline constexpr std::string_view kNoteOverlayColorChanged = "Pref_OverlayColorChanged";
inline constexpr std::string_view kNoteActiveCellColorChanged = "Pref_ActiveCellColorChanged";
inline constexpr std::string_view kNoteLocalizerColorChanged = "Pref_LocalizerColorChanged";
inline constexpr std::string_view kNoteLocalizerChanged = "Pref_LocalizerChanged";

class MultiGridViewController final : public ObservableKeys {
public:
    using Grid = ZELSequenceGridViewModelController;
    using Proxy = std::shared_ptr<ZELSequenceProxy>;

    // `layout` is one of GridLayouts.h; the host outlives the controller. All grids are empty, and
    // the first is active.
    MultiGridViewController(GridHost* host, int layout);
    ~MultiGridViewController();

    // ---- the grids. Their numbers count from 1; 0 is none ----

    [[nodiscard]] int protocolItemTag() const { return _protocolItemTag; }
    [[nodiscard]] int numGrids() const { return static_cast<int>(fGridControllerArray.size()); }
    [[nodiscard]] std::vector<Grid*> theSequenceViewControllers() const;
    [[nodiscard]] std::vector<Proxy> theSequenceProxies() const;  // null for an empty grid
    [[nodiscard]] Grid* gridWithNumber(int number) const;         // null beyond the last
    [[nodiscard]] int seqGridIDForController(const Grid* grid) const;
    [[nodiscard]] int seqGridIDForSequence(const dk_SequenceBase* sequence) const;
    [[nodiscard]] Grid* controllerWithSequence(const ZELSequenceProxy* proxy) const;
    [[nodiscard]] Grid* controllerWithDkSequence(const dk_SequenceBase* sequence) const;

    // ---- the active one. Keys: "activeSequenceGridController", "targetSequence" ----

    [[nodiscard]] Grid* activeSequenceGridController() const
    {
        return _activeSequenceGridController;
    }
    void setActiveSequenceGridController(Grid* grid);
    [[nodiscard]] GridSurface* targetGridView() const;
    [[nodiscard]] ZELSequenceProxy* targetSequence() const;
    void setTargetSequence(Proxy proxy) { changeSequenceTo(std::move(proxy), *targetGrid()); }

    // ---- which sequence stands where ----

    void changeSequenceTo(Proxy proxy, Grid& grid);
    // As chosen by the user: one that stands in another grid changes places with this grid's, one
    // that doesn't comes in, and plays where that is wanted.
    void U_ActivateSequence(const Proxy& proxy, Grid& grid);
    // Both stand in grids, or nothing happens. What played goes on playing in its new place.
    void exchangeActiveSequence(const ZELSequenceProxy* one, const ZELSequenceProxy* other);

    // ---- values for boxes and menus, of the target sequence ----

    [[nodiscard]] int currentGridMenuID() const;
    void setCurrentGridMenuID(int setup);
    // A menu's identifier of a colour table: the table's plus 1, and 0 for none.
    [[nodiscard]] int currentClutMenuItemID() const;
    void setCurrentClutMenuItemID(int item);  // by the tool scope
    [[nodiscard]] bool currentInvert() const;

    [[nodiscard]] LocalizerSwitch& localizers() { return _localizers; }
    [[nodiscard]] const LocalizerSwitch& localizers() const { return _localizers; }

    void redrawAllViews();

private:
    [[nodiscard]] Grid* targetGrid() const { return _activeSequenceGridController; }
    // Runs `change` while another grid is the active one, so that whoever watches the active grid
    // sees one change from what was before to what is after it.
    void withActiveAside(const std::function<void()>& change);
    // The crop tool, if it is at work on this grid, lets go and takes hold again around `change`.
    void aroundCrop(Grid& grid, const std::function<void()>& change);
    void U_ExchangeSequencesBetweenController(Grid& one, Grid& other);
    void takeGridDims(Grid& grid);
    void reloadNode(dk_SequenceBase* sequence);
    [[nodiscard]] bool isOfThisWindow(const Notification& note) const;
    void activeGrid_DidChangeNotification(const Notification& note);
    void updateForNewFrame(const Notification& note);

    GridHost* _host;  // not owned
    const int _protocolItemTag;
    std::vector<std::unique_ptr<Grid>> fGridControllerArray;
    Grid* _activeSequenceGridController;
    LocalizerSwitch _localizers;
    std::vector<NotificationCenter::Observation> _observations;
};

// ---- which sequences a layout shows ----

// The layout in which a tree opens: that of the preferences if the tree has sequences enough for
// it, else by how many there are.
[[nodiscard]] int LayoutForOpening(const ZELDcmTree& tree);
// Fills the grids of a new layout: with what the old one's grids show, in their order (the last one
// takes the old active sequence where it would have no place), then with the tree's next sequences
// that have frames. The active grid keeps its number. `old` may be null.
void HangSequences(MultiGridViewController* layout, const MultiGridViewController* old,
                   GridHost* host);
// Rows and columns of a grid turned to fit its view: a high view has more rows, a wide one fewer.
void FitGridDimsToView(ZELSequenceGridViewModelController& grid, const QSizeF& view);

// What grids, and the commands on them, ask of the window around them. Main thread only.
#pragma once
#include "app/grid/CineStage.h"
#include "app/grid/ToolBox.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class ZELDcmTree;
class ZELSequenceGridViewModelController;
class ZELSequenceProxy;
class dk_SequenceBase;

class GridHost {
public:
    virtual ~GridHost() = default;

    // ---- the grids of the window ----

    [[nodiscard]] virtual std::vector<ZELSequenceGridViewModelController*> gridControllers()
        const = 0;
    // The one that menus and tool bars act on; null without grids.
    [[nodiscard]] virtual ZELSequenceGridViewModelController* activeSequenceGridController()
        const = 0;
    virtual void activateGrid(ZELSequenceGridViewModelController& grid) = 0;  // and its keys
    virtual void changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy,
                                  ZELSequenceGridViewModelController& grid) = 0;
    // The same for a choice of the user's: one that stands in a grid already changes places.
    virtual void U_ActivateSequence(std::shared_ptr<ZELSequenceProxy> proxy,
                                    ZELSequenceGridViewModelController& grid) = 0;
    [[nodiscard]] virtual bool showLocalizers() const = 0;
    [[nodiscard]] virtual int protocolItemTag() const = 0;  // the layout, of GridLayouts.h
    // `keepOld`: sequences keep their grids where the new layout has such.
    virtual void switchToSequenceViewWithID(int layout, bool keepOld) = 0;

    // ---- the window ----

    virtual void openGridSetupDialog(ZELSequenceGridViewModelController& grid) = 0;
    [[nodiscard]] virtual bool zelWindowIsReady() const = 0;
    [[nodiscard]] virtual bool windowIsClosing() const = 0;
    [[nodiscard]] virtual const void* windowKey() const = 0;  // as notifications name it
    virtual void refreshZoomMenu() = 0;
    virtual void refreshWindowControls() = 0;  // window and level
    virtual void refreshToolbarItems() = 0;
    virtual void refreshRegionsMenu() = 0;
    virtual void revealFile(const std::string& path) = 0;

    // ---- what the window shows ----

    [[nodiscard]] virtual ZELDcmTree* tree() const = 0;
    [[nodiscard]] virtual std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence) = 0;
    virtual void updateNodeForSequence(dk_SequenceBase* sequence) = 0;
    [[nodiscard]] virtual bool hasSingleCineSequence() const = 0;

    [[nodiscard]] virtual ToolBox& toolBox() = 0;
    [[nodiscard]] virtual ToolScope& toolScope() = 0;
    [[nodiscard]] virtual CineStage& cineStage() = 0;
    // From another thread: runs it on the main thread and returns when it has run.
    virtual void callOnMainThreadAndWait(const std::function<void()>& call) = 0;
};

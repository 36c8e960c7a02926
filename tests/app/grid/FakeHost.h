// A window's part around grids, and a grid's view, that write down what is asked of them.
#pragma once
#include "app/grid/GridHost.h"
#include "app/grid/ZELSequenceGridViewModelController.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

using Words = std::vector<std::string>;
using Grid = ZELSequenceGridViewModelController;

// A grid's view. Its name stands before each line of the log.
class FakeSurface final : public GridSurface {
public:
    FakeSurface(std::string name, Words* log) : fName(std::move(name)), fLog(log) {}
    void setNeedsDisplay() override { Write("all"); }
    void setNeedsDisplayForFrame(std::int32_t frame) override
    {
        Write("frame " + std::to_string(frame));
    }
    void viewportDidChange() override { Write("viewport"); }
    void updateTrackingAreas() override { Write("tracking"); }
    void closePendingMeasurements(bool close) override { Write(close ? "close" : "drop"); }
    void stopEditing() override { Write("stop editing"); }

private:
    void Write(const std::string& what) { fLog->push_back(fName + " " + what); }
    std::string fName;
    Words* fLog;
};

class FakeHost : public GridHost, public ToolBox, public CineStage {
public:
    explicit FakeHost(ZELDcmTree* tree) : fTree(tree) {}

    std::vector<Grid*> gridControllers() const override { return grids; }
    Grid* activeSequenceGridController() const override { return active; }
    void activateGrid(Grid& grid) override
    {
        active = &grid;
        log.push_back("activate");
    }
    void changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid) override
    {
        log.push_back("change sequence");
        grid.setCurrZELSequence(std::move(proxy));
    }
    void U_ActivateSequence(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid) override
    {
        log.push_back("activate sequence");
        grid.setCurrZELSequence(std::move(proxy));
    }
    bool showLocalizers() const override { return localizers; }
    int protocolItemTag() const override { return layout; }
    void switchToSequenceViewWithID(int id, bool keepOld) override
    {
        log.push_back("layout " + std::to_string(id) + (keepOld ? " keeping" : ""));
        layout = id;
    }
    void openGridSetupDialog(Grid&) override { log.push_back("grid dialog"); }
    bool zelWindowIsReady() const override { return ready; }
    bool windowIsClosing() const override { return closing; }
    const void* windowKey() const override { return this; }
    void refreshZoomMenu() override { log.push_back("zoom menu"); }
    void refreshWindowControls() override { log.push_back("window controls"); }
    void refreshToolbarItems() override { log.push_back("toolbar"); }
    void refreshRegionsMenu() override { log.push_back("regions menu"); }
    void revealFile(const std::string& path) override { log.push_back("reveal " + path); }
    ZELDcmTree* tree() const override { return fTree; }
    std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence) override
    {
        auto& proxy = fProxies[sequence];
        if (!proxy)
            proxy = std::make_shared<ZELSequenceProxy>(sequence);
        return proxy;
    }
    void updateNodeForSequence(dk_SequenceBase*) override { log.push_back("node"); }
    bool hasSingleCineSequence() const override { return singleCine; }
    ToolBox& toolBox() override { return *this; }
    ToolScope& toolScope() override { return scope; }
    CineStage& cineStage() override { return *this; }
    void callOnMainThreadAndWait(const std::function<void()>& call) override { call(); }

    std::int32_t currentTool() const override { return tool; }
    bool isDrawingCrop() const override { return drawingCrop; }
    void U_FreezeTheCrop(Grid&) override { log.push_back("freeze crop"); }
    void U_ActivateTheCrop(Grid&) override { log.push_back("activate crop"); }

    bool isAvailable() const override { return hasCine; }
    void playAllCines() override { log.push_back("play all"); }
    void stopAllCines() override { log.push_back("stop all"); }
    void startCine(Grid& grid, std::int32_t fromFrame) override
    {
        log.push_back(fromFrame > 0 ? "start cine at " + std::to_string(fromFrame) : "start cine");
        grid.setCineModeIsON(true);
    }
    void stopCine(Grid& grid) override
    {
        log.push_back("stop cine");
        grid.setCineModeIsON(false);
    }

    // What has been asked since the last call.
    Words Take() { return std::exchange(log, {}); }

    Words log;
    std::vector<Grid*> grids;
    Grid* active = nullptr;
    ToolScope scope;
    std::int32_t tool = 0;
    bool ready = true, closing = false, singleCine = false, drawingCrop = false;
    bool localizers = false, hasCine = true;
    int layout = 651;

private:
    ZELDcmTree* fTree;
    std::map<dk_SequenceBase*, std::shared_ptr<ZELSequenceProxy>> fProxies;
};

// The one grid of a window, with what it needs around it: its tools, its commands and the proxies
// of the tree's sequences. Main thread only.
#pragma once
#include "app/tools/ZELToolsController.h"
#include "app/views/ZELSequenceGridView.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

class GridPane final : public GridHost, private ToolBox, private CineStage {
public:
    // What is said of the current frame under its picture.
    struct Caption {
        std::string path;
        int frame = 1, framesOfFile = 1;
        bool failed = false;       // its picture could not be made
        std::string width, level;  // of its window; empty for other than gray
    };

    explicit GridPane(ZELDcmTree* tree);  // outlives the pane
    ~GridPane() override;

    [[nodiscard]] ZELSequenceGridView* view() const
    {
        return _view;
    }  // its parent's, once it has one
    [[nodiscard]] ViewerActions& actions() { return _actions; }
    [[nodiscard]] ZELToolsController& tools() { return _tools; }
    [[nodiscard]] ZELSequenceGridViewModelController& grid() { return _grid; }
    [[nodiscard]] ZELSequenceProxy* proxy() const { return _grid.currZELSequence().get(); }
    void showSequence(dk_SequenceBase* sequence);  // null for none
    [[nodiscard]] Caption caption() const;         // with a sequence of frames only

    // Called when another sequence came in by a command, and when the controls of the window should
    // look again.
    std::function<void(dk_SequenceBase*)> sequenceChanged;

    [[nodiscard]] std::vector<ZELSequenceGridViewModelController*> gridControllers() const override;
    [[nodiscard]] ZELSequenceGridViewModelController* activeSequenceGridController() const override;
    void activateGrid(ZELSequenceGridViewModelController& grid) override;
    void changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy,
                          ZELSequenceGridViewModelController& grid) override;
    void U_ActivateSequence(std::shared_ptr<ZELSequenceProxy> proxy,
                            ZELSequenceGridViewModelController& grid) override
    {
        changeSequenceTo(std::move(proxy), grid);
    }
    [[nodiscard]] bool showLocalizers() const override { return false; }
    [[nodiscard]] int protocolItemTag() const override { return 651; }
    void switchToSequenceViewWithID(int /*layout*/, bool /*keepOld*/) override {}
    void openGridSetupDialog(ZELSequenceGridViewModelController& /*grid*/) override {}
    [[nodiscard]] bool zelWindowIsReady() const override { return true; }
    [[nodiscard]] bool windowIsClosing() const override { return false; }
    [[nodiscard]] const void* windowKey() const override { return this; }
    void refreshZoomMenu() override {}
    void refreshWindowControls() override {}
    void refreshToolbarItems() override {}
    void refreshRegionsMenu() override {}
    void revealFile(const std::string& path) override;
    [[nodiscard]] ZELDcmTree* tree() const override { return _tree; }
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence) override;
    void updateNodeForSequence(dk_SequenceBase* /*sequence*/) override {}
    [[nodiscard]] bool hasSingleCineSequence() const override { return false; }
    [[nodiscard]] ToolBox& toolBox() override { return *this; }
    [[nodiscard]] ToolScope& toolScope() override { return _scope; }
    [[nodiscard]] CineStage& cineStage() override { return *this; }
    void callOnMainThreadAndWait(const std::function<void()>& call) override { call(); }

private:
    // There is no crop and no cine yet.
    [[nodiscard]] std::int32_t currentTool() const override { return _tools.currentTool(); }
    [[nodiscard]] bool isDrawingCrop() const override { return false; }
    void U_FreezeTheCrop(ZELSequenceGridViewModelController& /*grid*/) override {}
    void U_ActivateTheCrop(ZELSequenceGridViewModelController& /*grid*/) override {}
    [[nodiscard]] bool isAvailable() const override { return false; }
    void startCine(ZELSequenceGridViewModelController& /*grid*/,
                   std::int32_t /*fromFrame*/) override
    {
    }
    void playAllCines() override {}
    void stopAllCines() override {}
    void stopCine(ZELSequenceGridViewModelController& /*grid*/) override {}
    void zoomDidChange(const Notification& note);

    ZELDcmTree* _tree;
    std::map<dk_SequenceBase*, std::shared_ptr<ZELSequenceProxy>> _proxies;
    ToolScope _scope;
    ZELToolsController _tools;
    ZELSequenceGridViewModelController _grid;
    FrameNavigation _navigation;
    ViewerActions _actions;
    NotificationCenter::Observation _zoomed;
    ZELSequenceGridView* _view;
};

// The grids of a window in their layout, with what they need around them: tools, commands and the
// proxies of the tree's sequences. Main thread only.
#pragma once
#include "app/draw/AnnotationLook.h"
#include "app/tools/SelectedTool.h"
#include "app/tools/ZELToolsController.h"
#include "app/views/GridLayoutView.h"
#include "app/views/ViewerBoxes.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>

class GridsPane final : public QWidget, public GridHost, private ToolBox, private CineStage {
    Q_OBJECT

public:
    using Grid = ZELSequenceGridViewModelController;

    // What is said of the active grid's current frame under the pictures.
    struct Caption {
        std::string path;
        int frame = 1, framesOfFile = 1;
        bool failed = false;       // its picture could not be made
        std::string width, level;  // of its window; empty for other than gray
    };

    // Opens the layout that the preferences or the number of sequences ask for. The tree outlives
    // the pane.
    explicit GridsPane(ZELDcmTree* tree, QWidget* parent = nullptr);
    ~GridsPane() override;

    [[nodiscard]] MultiGridViewController& multiGridController() const { return *_grids; }
    [[nodiscard]] Grid& grid() const { return *_grids->activeSequenceGridController(); }
    [[nodiscard]] ZELSequenceProxy* proxy() const { return _grids->targetSequence(); }
    [[nodiscard]] ZELDraggingSequenceGridView* view() const { return _layout->viewOf(&grid()); }
    [[nodiscard]] GridLayoutView* layoutView() const { return _layout; }
    [[nodiscard]] ViewerActions& actions() { return _actions; }
    [[nodiscard]] ZELToolsController& tools() { return _tools; }
    [[nodiscard]] ViewerBoxes* boxes() const { return _boxes; }
    void openAdjustColorsDialog();  // where there is an image to adjust
    // Goes to the grid where it stands, or brings it into the active one.
    void showSequence(dk_SequenceBase* sequence);
    [[nodiscard]] Caption caption() const;  // with a sequence of frames only

    // Called when another sequence is the active one.
    std::function<void(dk_SequenceBase*)> targetChanged;

    [[nodiscard]] std::vector<Grid*> gridControllers() const override;
    [[nodiscard]] Grid* activeSequenceGridController() const override;
    void activateGrid(Grid& grid) override;
    void changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid) override;
    void U_ActivateSequence(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid) override;
    [[nodiscard]] bool showLocalizers() const override;
    [[nodiscard]] int protocolItemTag() const override { return _grids->protocolItemTag(); }
    void switchToSequenceViewWithID(int layout, bool keepOld) override;
    void openGridSetupDialog(Grid& grid) override;
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

signals:
    void cellsPainted();

private:
    // There is no crop and no cine yet.
    [[nodiscard]] std::int32_t currentTool() const override { return _tools.currentTool(); }
    [[nodiscard]] bool isDrawingCrop() const override { return false; }
    void U_FreezeTheCrop(Grid& /*grid*/) override {}
    void U_ActivateTheCrop(Grid& /*grid*/) override {}
    [[nodiscard]] bool isAvailable() const override { return false; }
    void startCine(Grid& /*grid*/, std::int32_t /*fromFrame*/) override {}
    void stopCine(Grid& /*grid*/) override {}
    void playAllCines() override {}
    void stopAllCines() override {}
    void tellOfTarget();

    ZELDcmTree* _tree;
    std::map<dk_SequenceBase*, std::shared_ptr<ZELSequenceProxy>> _proxies;
    ToolScope _scope;
    ZELToolsController _tools;
    SelectedTool _selectedTool{this, &_tools};
    FrameNavigation _navigation;
    AnnotationLook _annotationLook{this};
    ViewerActions _actions;
    std::shared_ptr<MultiGridViewController> _grids;
    ObservableKeys::Watch _target;
    GridLayoutView* _layout = nullptr;  // a child
    QPointer<ViewerBoxes> _boxes;       // of the window's tool bar, which owns them
};

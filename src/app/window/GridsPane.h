// The grids of a window in their layout, with what they need around them: tools and commands. Main
// thread only.
#pragma once
#include "app/draw/AnnotationLook.h"
#include "app/tools/SelectedTool.h"
#include "app/tools/ZELToolsController.h"
#include "app/views/GridLayoutView.h"
#include "app/views/ViewerBoxes.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>

// What the grids ask of the window around them.
class GridsWindow {
public:
    virtual ~GridsWindow() = default;
    [[nodiscard]] virtual const void* windowKey() const = 0;  // as notifications name it
    [[nodiscard]] virtual bool zelWindowIsReady() const = 0;
    [[nodiscard]] virtual bool windowIsClosing() const = 0;
    [[nodiscard]] virtual std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence) = 0;
    virtual void updateNodeForSequence(dk_SequenceBase* sequence) = 0;
    virtual void updateToolbarElements() = 0;
};

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

    // Opens the layout that the preferences or the number of sequences ask for. Window and tree
    // outlive the pane.
    GridsPane(GridsWindow* window, ZELDcmTree* tree, QWidget* parent = nullptr);
    ~GridsPane() override;

    [[nodiscard]] MultiGridViewController& multiGridController() const { return *_grids; }
    [[nodiscard]] Grid& grid() const { return *_grids->activeSequenceGridController(); }
    [[nodiscard]] ZELSequenceProxy* proxy() const { return _grids->targetSequence(); }
    [[nodiscard]] ZELDraggingSequenceGridView* view() const { return _layout->viewOf(&grid()); }
    [[nodiscard]] GridLayoutView* layoutView() const { return _layout; }
    [[nodiscard]] ViewerActions& actions() { return _actions; }
    [[nodiscard]] ZELToolsController& tools() { return _tools; }
    [[nodiscard]] FrameNavigation& navigation() { return _navigation; }
    [[nodiscard]] ViewerBoxes* boxes() const { return _boxes; }
    void openAdjustColorsDialog();  // where there is an image to adjust
    // The user's choice of a sequence from a list: into the active grid, or in exchange for it.
    // Nothing for the one that stands there, or without frames.
    void handleDoubleClickOnSequenceItem(dk_SequenceBase* sequence);
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
    [[nodiscard]] bool zelWindowIsReady() const override { return _window->zelWindowIsReady(); }
    [[nodiscard]] bool windowIsClosing() const override { return _window->windowIsClosing(); }
    [[nodiscard]] const void* windowKey() const override { return _window->windowKey(); }
    void refreshZoomMenu() override;
    void refreshWindowControls() override;
    void refreshToolbarItems() override { _window->updateToolbarElements(); }
    void refreshRegionsMenu() override {}  // made anew whenever it shows
    void revealFile(const std::string& path) override;
    static void revealFiles(const std::vector<std::string>& paths);
    [[nodiscard]] ZELDcmTree* tree() const override { return _tree; }
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence) override;
    void updateNodeForSequence(dk_SequenceBase* sequence) override
    {
        _window->updateNodeForSequence(sequence);
    }
    [[nodiscard]] bool hasSingleCineSequence() const override;
    [[nodiscard]] ToolBox& toolBox() override { return *this; }
    [[nodiscard]] ToolScope& toolScope() override { return ToolScope::Shared(); }
    [[nodiscard]] CineStage& cineStage() override { return *this; }
    void callOnMainThreadAndWait(const std::function<void()>& call) override { call(); }

    void stopAllCines() override {}

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
    void tellOfTarget();

    GridsWindow* _window;
    ZELDcmTree* _tree;
    ZELToolsController _tools;
    SelectedTool _selectedTool{this, &_tools};
    FrameNavigation _navigation;
    AnnotationLook _annotationLook{this};
    ViewerActions _actions;
    std::shared_ptr<MultiGridViewController> _grids;
    ObservableKeys::Watch _target, _scope;
    GridLayoutView* _layout = nullptr;  // a child
    QPointer<ViewerBoxes> _boxes;       // of the window's tool bar, which owns them
};

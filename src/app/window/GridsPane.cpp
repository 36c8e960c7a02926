#include "app/window/GridsPane.h"

#include "app/views/AdjustSheet.h"
#include "app/views/GridSetupSheet.h"
#include "dicom_core/look/WindowText.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "platform/FileManager.h"

#include "qpix/zelImageSource.h"
#include <QDesktopServices>
#include <QFile>
#include <QUrl>
#include <QVBoxLayout>
#include <filesystem>
#include <utility>

GridsPane::GridsPane(GridsWindow* window, ZELDcmTree* tree, QWidget* parent)
    : QWidget(parent), _window(window), _tree(tree), _navigation(this), _actions(this)
{
    _tools.changeToolTo(kToolWindow);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins({});
    switchToSequenceViewWithID(LayoutForOpening(*tree), false);
    _layout->showOneAfterTheOther();
    _boxes = new ViewerBoxes(this, &_actions);
    _boxes->windowController().openAdjustColorsDialog = [this] { openAdjustColorsDialog(); };
    connect(_boxes, &ViewerBoxes::done, this, [this] { view()->setFocus(); });
    _scope = ToolScope::Shared().ObserveKey("toolScope", [this](std::string_view, KeyPhase phase) {
        if (phase == KeyPhase::DidChange)
            _window->updateToolbarElements();
    });
}

// Layouts go before what they name.
GridsPane::~GridsPane()
{
    _target = {};
    delete _boxes;
    qDeleteAll(findChildren<GridLayoutView*>(QString(), Qt::FindDirectChildrenOnly));
}

// The old layout may be asking for this, out of one of its menus, so it goes later.
void GridsPane::switchToSequenceViewWithID(int layout, bool /*keepOld*/)
{
    if (!ControllerWithID(layout))
        return;
    auto grids = std::make_shared<MultiGridViewController>(this, layout);
    HangSequences(grids.get(), _grids.get(), this);
    if (_grids)
        grids->localizers().setShowLocalizers(_grids->localizers().showLocalizers());
    GridLayoutView* old = std::exchange(
        _layout, new GridLayoutView(grids, {nullptr, &_tools, &_navigation, &_actions}));
    _grids = std::move(grids);
    _target = _grids->ObserveKey("targetSequence", [this](std::string_view, KeyPhase phase) {
        if (phase == KeyPhase::DidChange)
            tellOfTarget();
    });
    if (old) {
        old->hide();
        QWidget::layout()->removeWidget(old);
        old->deleteLater();
    }
    QWidget::layout()->addWidget(_layout);
    connect(_layout, &GridLayoutView::cellsPainted, this, &GridsPane::cellsPainted);
    if (old)
        view()->becomeFirstResponder();
    tellOfTarget();
}

void GridsPane::tellOfTarget()
{
    if (_boxes)
        _boxes->retarget();
    if (targetChanged && proxy())
        targetChanged(proxy()->theSequence());
}

void GridsPane::handleDoubleClickOnSequenceItem(dk_SequenceBase* sequence)
{
    if (!sequence || !sequence->IsGood() || (proxy() && proxy()->theSequence() == sequence))
        return;
    const std::shared_ptr<ZELSequenceProxy> chosen = proxyOf(sequence);
    U_ActivateSequence(chosen, grid());
    _actions.tellOfSequence(chosen);
}

GridsPane::Caption GridsPane::caption() const
{
    Caption caption;
    dk_SequenceBase* sequence = grid().curr_dkSequence();
    const dk_ImageFrameInfo* info =
        sequence ? sequence->GetImageFrameInfo(proxy()->currentFrame()) : nullptr;
    if (!info || !info->fSource)
        return caption;
    std::int32_t frames = 1;
    if (info->fSource->GetFrameCount(&frames))
        frames = 1;
    caption.path = info->fSource->GetDataPath();
    caption.frame = info->fFrameInFile;
    caption.framesOfFile = frames;
    caption.failed = grid().pictures().hasFailed(proxy()->currentFrame());
    const zel_TransformRec& record = info->fTransform;
    if (!caption.failed && proxy()->isDICOMGray() && record.voiWidth > 0) {
        caption.width = WindowValueText(record.voiInfo, record.voiWidth);
        caption.level = WindowValueText(record.voiInfo, record.voiLevel);
    }
    return caption;
}

std::vector<GridsPane::Grid*> GridsPane::gridControllers() const
{
    return _grids ? _grids->theSequenceViewControllers() : std::vector<Grid*>();
}

GridsPane::Grid* GridsPane::activeSequenceGridController() const
{
    return _grids ? _grids->activeSequenceGridController() : nullptr;
}

void GridsPane::activateGrid(Grid& grid)
{
    if (ZELDraggingSequenceGridView* view = _layout->viewOf(&grid))
        view->becomeFirstResponder();
}

void GridsPane::changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid)
{
    _grids->changeSequenceTo(std::move(proxy), grid);
}

void GridsPane::U_ActivateSequence(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid)
{
    _grids->U_ActivateSequence(proxy, grid);
}

// The sheet goes with its layout.
void GridsPane::openGridSetupDialog(Grid& grid)
{
    auto* sheet = new GridSetupSheet(&grid, _layout);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void GridsPane::openAdjustColorsDialog()
{
    if (!BnCDialogController::canOpen(*this))
        return;
    auto* sheet = new AdjustSheet(this, &_actions, _layout);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

bool GridsPane::showLocalizers() const { return _grids && _grids->localizers().showLocalizers(); }

void GridsPane::revealFile(const std::string& path) { revealFiles({path}); }

void GridsPane::revealFiles(const std::vector<std::string>& paths)
{
    RevealInFileManager(paths, [](const std::string& folder) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(folder.c_str())));
    });
}

std::shared_ptr<ZELSequenceProxy> GridsPane::proxyOf(dk_SequenceBase* sequence)
{
    return _window->proxyOf(sequence);
}

bool GridsPane::hasSingleCineSequence() const { return _tree->hasSingleCine(); }

void GridsPane::refreshZoomMenu()
{
    if (_boxes)
        _boxes->refresh();
}

void GridsPane::refreshWindowControls() { refreshZoomMenu(); }

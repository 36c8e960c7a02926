#include "viewer/GridPane.h"

#include "app/tools/MouseTrackers.h"
#include "dicom_core/look/WindowText.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"

#include "qpix/zelImageSource.h"
#include <QDesktopServices>
#include <QUrl>
#include <filesystem>

namespace {

QColor ActiveColor()
{
    const ZELColor color = prefs_Get_ActiveCellColor();
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

}  // namespace

GridPane::GridPane(ZELDcmTree* tree)
    : _tree(tree),
      _grid(this),
      _navigation(this),
      _actions(this),
      _zoomed(NotificationCenter::Default().AddObserver(
          kNoteZoomChanged, [this](const Notification& note) { zoomDidChange(note); })),
      _view(new ZELSequenceGridView({&_grid, &_tools, &_navigation, &_actions}))
{
    _tools.changeToolTo(kToolWindow);
    GridLook look;
    look.selectionBorderColor = ActiveColor();
    _view->setLook(look);
}

// The view belongs to the window's widgets by now, and shows this grid no longer.
GridPane::~GridPane() { delete _view; }

void GridPane::showSequence(dk_SequenceBase* sequence)
{
    _grid.setCurrZELSequence(sequence ? proxyOf(sequence) : nullptr);
    if (sequence) {
        const dk_SequenceViewState& state = *sequence->GetViewState();
        _grid.setGridRowsTo(state.fCurrRows, state.fCurrColumns, true);
    }
    _view->viewportDidChange();
    _view->setNeedsDisplay();
}

GridPane::Caption GridPane::caption() const
{
    Caption caption;
    dk_SequenceBase* sequence = _grid.curr_dkSequence();
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
    caption.failed = _grid.pictures().hasFailed(proxy()->currentFrame());
    const zel_TransformRec& record = info->fTransform;
    if (!caption.failed && proxy()->isDICOMGray() && record.voiWidth > 0) {
        caption.width = WindowValueText(record.voiInfo, record.voiWidth);
        caption.level = WindowValueText(record.voiInfo, record.voiLevel);
    }
    return caption;
}

std::vector<ZELSequenceGridViewModelController*> GridPane::gridControllers() const
{
    return {const_cast<ZELSequenceGridViewModelController*>(&_grid)};
}

ZELSequenceGridViewModelController* GridPane::activeSequenceGridController() const
{
    return const_cast<ZELSequenceGridViewModelController*>(&_grid);
}

void GridPane::activateGrid(ZELSequenceGridViewModelController& /*grid*/) { _view->setFocus(); }

void GridPane::changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy,
                                ZELSequenceGridViewModelController& /*grid*/)
{
    dk_SequenceBase* sequence = proxy->theSequence();
    showSequence(sequence);
    if (sequenceChanged)
        sequenceChanged(sequence);
}

void GridPane::revealFile(const std::string& path)
{
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(folder.string())));
}

std::shared_ptr<ZELSequenceProxy> GridPane::proxyOf(dk_SequenceBase* sequence)
{
    auto& proxy = _proxies[sequence];
    if (!proxy)
        proxy = std::make_shared<ZELSequenceProxy>(sequence);
    return proxy;
}

void GridPane::zoomDidChange(const Notification& note)
{
    if (note.object == static_cast<GridSurface*>(_view))
        _actions.setZoomTo(note.userInfo.value(QLatin1String(kKeyZoom)).toDouble(), _grid, 0);
}

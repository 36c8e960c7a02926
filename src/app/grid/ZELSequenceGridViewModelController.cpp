// The model's links, its sequence, its shape and its pictures.
#include "app/grid/ZELSequenceGridViewModelController.h"

#include "app/grid/GridSetups.h"
#include "dicom_core/tree/dk_DicomSequence.h"
#include "platform/NotificationCenter.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <algorithm>
#include <cmath>

namespace {

const std::vector<DerivedKey>& GridKeys()
{
    static const std::vector<DerivedKey> keys{
        {"curr_dkSequence", {"currZELSequence"}},
        {"gridSetupID", {"currZELSequence", "currZELSequence.viewGridSetupID"}},
        {"inSingleFrameMode", {"currZELSequence", "gridSetupID"}},
    };
    return keys;
}

std::int32_t Fixed(double factor)
{
    return static_cast<std::int32_t>(std::clamp(factor * kZoomOne, 1.0, 2147483647.0));
}

}  // namespace

ZELSequenceGridViewModelController::ZELSequenceGridViewModelController(GridHost* host,
                                                                       bool printing)
    : ObservableKeys(GridKeys()), _host(host), _printingGrid(printing)
{
}

ZELSequenceGridViewModelController::~ZELSequenceGridViewModelController() { prepareToRelease(); }

// Shapes may outlive the grid that drew them last.
void ZELSequenceGridViewModelController::forgetShapes()
{
    if (!_currZELSequence)
        return;
    const auto forget = [this](const CKShapePtr& shape) {
        if (shape && shape->_gridController == this)
            shape->_gridController = nullptr;
    };
    for (std::int32_t frame = 1; frame <= _currZELSequence->totalFrames(); ++frame) {
        std::ranges::for_each(_currZELSequence->measurementsForFrame(frame), forget);
        forget(_currZELSequence->cropForFrame(frame));
    }
}

void ZELSequenceGridViewModelController::prepareToRelease()
{
    forgetShapes();
    _proxyWatches.clear();
    _pictures.setSequence(nullptr);
    gridView = nullptr;
    _host = nullptr;
}

bool ZELSequenceGridViewModelController::isTheActiveGrid() const
{
    return _host && _host->activeSequenceGridController() == this;
}

bool ZELSequenceGridViewModelController::windowIsReady() const
{
    return _host && _host->zelWindowIsReady();
}

bool ZELSequenceGridViewModelController::windowIsUsable() const
{
    return windowIsReady() && !_host->windowIsClosing();
}

dk_SequenceBase* ZELSequenceGridViewModelController::curr_dkSequence() const
{
    return _currZELSequence ? _currZELSequence->theSequence() : nullptr;
}

void ZELSequenceGridViewModelController::setCurrZELSequence(std::shared_ptr<ZELSequenceProxy> proxy)
{
    if (proxy == _currZELSequence)
        return;
    Announce({"currZELSequence"}, [&] {
        forgetShapes();
        _proxyWatches.clear();
        _currZELSequence = std::move(proxy);
        _sequenceDisplayInfo._theSequence = _currZELSequence.get();
        sequenceDidChange();
        watchProxy();
    });
}

// Also a proxy may come to show another sequence.
void ZELSequenceGridViewModelController::sequenceDidChange()
{
    _planes.clear();
    _pictures.setSequence(curr_dkSequence());
    _frameBefore = resolved(0);
    _cineFrame_LastPlayed = 0;
    _viewport.setPhotoCount(photoCountForPhotoView());
}

void ZELSequenceGridViewModelController::watchProxy()
{
    if (!_currZELSequence)
        return;
    const auto watch = [this](std::string_view key, auto didChange) {
        _proxyWatches.push_back(_currZELSequence->ObserveKey(
            key, [didChange](std::string_view, KeyPhase phase) { didChange(phase); }));
    };
    watch("currentFrame", [this](KeyPhase phase) {
        if (phase == KeyPhase::DidChange)
            currentFrameDidChange();
    });
    watch("theSequence", [this](KeyPhase phase) {
        if (phase == KeyPhase::DidChange) {
            sequenceDidChange();
        } else {
            forgetShapes();
            _pictures.setSequence(nullptr);
        }
    });
    watch("viewGridSetupID", [this](KeyPhase phase) {
        if (phase == KeyPhase::DidChange && curr_dkSequence()) {
            const dk_SequenceViewState& state = *curr_dkSequence()->GetViewState();
            setGridRowsTo(state.fCurrRows, state.fCurrColumns, false);
        }
    });
}

// ---- shape ----

void ZELSequenceGridViewModelController::U_UpdateGridSizeAndFrame(const QSizeF& content,
                                                                  double pixelRatio)
{
    _viewport.setContent(content, pixelRatio);
    _viewport.setPhotoCount(photoCountForPhotoView());
}

void ZELSequenceGridViewModelController::setGridRowsTo(int rows, int columns, bool force)
{
    const bool same = rows == _viewport.gridRows() && columns == _viewport.gridCols();
    if (same && !force)
        return;
    const auto reshape = [&] {
        const std::int32_t frame = _currZELSequence ? _currZELSequence->currentFrame() : 0;
        if (dk_SequenceBase* sequence = curr_dkSequence())
            sequence->GetViewState()->SetCurrGridDims(rows, columns);
        _sequenceDisplayInfo._numberRows = rows;
        _sequenceDisplayInfo._numberColumns = columns;
        _viewport.setGridDims(rows, columns);
        _viewport.setPhotoCount(photoCountForPhotoView());
        if (_currZELSequence)
            _currZELSequence->setCurrentFrame(frame);
        if (gridView) {
            gridView->viewportDidChange();
            gridView->setNeedsDisplay();
        }
        if (!_printingGrid)
            revealCurrentCell();
    };
    const auto change = [&] {
        if (_currZELSequence)
            _currZELSequence->Announce({"viewGridSetupID"}, reshape);
        else
            reshape();
    };
    if (same)
        change();
    else
        Announce({"gridSetupID"}, change);
}

void ZELSequenceGridViewModelController::setGridSetupID(int setup)
{
    if (const GridShape* shape = GridShapeOf(setup))
        setGridRowsTo(shape->rows, shape->columns, false);
}

int ZELSequenceGridViewModelController::gridSetupID() const
{
    return GridSetupIDFromRows(_viewport.gridRows(), _viewport.gridCols());
}

void ZELSequenceGridViewModelController::doubleClickOnPhotoAtIndex(int /*index*/)
{
    const dk_SequenceBase* sequence = curr_dkSequence();
    if (!sequence)
        return;
    const dk_SequenceViewState& state = *curr_dkSequence()->GetViewState();
    if (state.fCurrRows == 1 && state.fCurrColumns == 1)
        setGridRowsTo(state.fLastRows, state.fLastColumns, false);
    else
        setGridSetupID(0);
}

// ---- pictures ----

std::int32_t ZELSequenceGridViewModelController::photoCountForPhotoView() const
{
    return _currZELSequence ? _currZELSequence->totalFrames() : 0;
}

CellPhoto ZELSequenceGridViewModelController::photoAtIndex(int index)
{
    if (!curr_dkSequence())
        return {};
    const std::int32_t frame = index + 1;
    const dk_ImageFrameInfo* info = curr_dkSequence()->GetImageFrameInfo(frame);
    if (!info)
        return {};
    const std::int32_t zoomBefore = info->fTransform.zoom;
    adjustSetupForFrame(frame);
    if (frame == _currZELSequence->currentFrame() && info->fTransform.zoom != zoomBefore)
        ++_cellsZoomState;
    return _pictures.photo(frame, geometryForFrame(frame), _viewport.pixelRatio());
}

CellPhoto ZELSequenceGridViewModelController::fastPhotoAtIndex(int index)
{
    const CellPhoto kept = _pictures.fastPhoto(index + 1, geometryForFrame(index + 1));
    return kept.isNull() ? photoAtIndex(index) : kept;
}

void ZELSequenceGridViewModelController::removeFrameBufferForFrame(std::int32_t frame)
{
    _pictures.remove(resolved(frame));
}

void ZELSequenceGridViewModelController::adjustSetupForFrame(std::int32_t frame)
{
    dk_SequenceBase* sequence = curr_dkSequence();
    const std::int32_t number = resolved(frame);
    dk_ImageFrameInfo* info = sequence ? sequence->GetImageFrameInfo(number) : nullptr;
    zel_GridFrameInfoItem* cell = info ? sequence->GetCellInfo(number) : nullptr;
    LongRect turned;
    if (!cell || info->GetImageVisibleRect(&turned) || EmptyRect(turned))
        return;
    const CellGeometry geometry = geometryForFrame(number);
    if (info->fTransform.autoFit)
        info->fTransform.zoom = Fixed(geometry.zoom());
    cell->width = turned.right;
    cell->height = turned.bottom;
    // The zoom and the pixels' aspect, so that the record's display size is what is drawn.
    const double zoom = info->fTransform.zoom / double{kZoomOne};
    cell->horzScale = Fixed(zoom * geometry.imageSize().width() / turned.right);
    cell->vertScale = Fixed(zoom * geometry.imageSize().height() / turned.bottom);
    const QPointF most = getTransformedScrollMaxForCell(number - 1);
    cell->scrollPoint = {std::clamp(cell->scrollPoint.x, 0.0F, static_cast<float>(most.x())),
                         std::clamp(cell->scrollPoint.y, 0.0F, static_cast<float>(most.y()))};
}

// The movie layer waits meanwhile, so that frame and picture belong together.
void ZELSequenceGridViewModelController::willDisplayImage(std::int32_t frame)
{
    if (!_host)
        return;
    _host->callOnMainThreadAndWait([this, frame] {
        if (frame < 1 || frame == _cineFrame_LastPlayed)
            return;
        _cineFrame_LastPlayed = frame;
        NotificationCenter::Default().Post(kNoteFrameDidChangeCine, gridView,
                                           {{QLatin1String(kKeyNewCellIndex), frame - 1}});
    });
}

void ZELSequenceGridViewModelController::revealFileForFrame(std::int32_t frame)
{
    dk_SequenceBase* sequence = curr_dkSequence();
    const dk_ImageFrameInfo* info =
        sequence ? sequence->GetImageFrameInfo(resolved(frame)) : nullptr;
    if (info && info->fSource && _host)
        _host->revealFile(info->fSource->GetDataPath());
}

// ---- pixels ----

bool ZELSequenceGridViewModelController::pixelColorInfoForPoint(const QPointF& point,
                                                                std::int32_t frame,
                                                                CKPixelInfo* info)
{
    const FramePixels pixels(curr_dkSequence(), resolved(frame));
    if (!pixels.isRead() || !pixels.InfoAt(point, info))
        return false;
    const FramePixels shown(curr_dkSequence(), resolved(frame), FramePixels::Looks::Shown);
    return shown.ColorAt(point, &info->pixColor);
}

QvxStatus ZELSequenceGridViewModelController::iteratePixelInRect(const QRectF& rect,
                                                                 std::int32_t frame,
                                                                 const CKPixelVisitor& visitor,
                                                                 CKMetricsParams* params)
{
    const FramePixels pixels(curr_dkSequence(), resolved(frame));
    return pixels.Iterate(rect, visitor, params);
}

// ---- reference lines ----

const std::optional<FramePlane>& ZELSequenceGridViewModelController::planeOfFrame(
    std::int32_t frame)
{
    std::optional<FramePlane>& plane = _planes[frame];
    if (!plane)
        plane = FramePlaneOf(dynamic_cast<dk_Sequence*>(curr_dkSequence()), frame);
    return plane;
}

#include "app/views/GridLayoutView.h"

#include "Graphics/CKGraphic.h"
#include "prefs/Prefs.h"

#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kDividerWidth = 4;  // points
const QColor kInactiveBorder = QColor::fromRgbF(1.0F, 0.69F, 0.13F);

}  // namespace

GridLayoutView::GridLayoutView(std::shared_ptr<MultiGridViewController> controller,
                               const ZELSequenceGridView::Links& links, QWidget* parent)
    : QWidget(parent), _grids(std::move(controller))
{
    for (ZELSequenceGridViewModelController* grid : _grids->theSequenceViewControllers()) {
        ZELSequenceGridView::Links own = links;
        own.grid = grid;
        auto* view = new ZELDraggingSequenceGridView(own);
        view->setObjectName(QStringLiteral("grid%1").arg(_views.size() + 1));
        connect(view, &MUPhotoView::cellsPainted, this, &GridLayoutView::cellsPainted);
        _views.push_back(view);
    }
    const GridLayout* layout = ControllerWithID(_grids->protocolItemTag());
    const GridLayout single = kGridLayouts.front();
    const GridLayout& shape = layout ? *layout : single;
    const Qt::Orientation parts = shape.partsStacked ? Qt::Vertical : Qt::Horizontal;
    const Qt::Orientation within = shape.partsStacked ? Qt::Horizontal : Qt::Vertical;
    QSplitter* whole = addSplit(parts);
    std::size_t next = 0;
    for (const int count : shape.part)
        addPart(whole, count, within, &next);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(whole);
    _watch = _grids->ObserveKey("activeSequenceGridController",
                                [this](std::string_view, KeyPhase phase) {
                                    if (phase == KeyPhase::DidChange)
                                        updateBorders();
                                });
    _colors = NotificationCenter::Default().AddObserver(
        kNoteActiveCellColorChanged, [this](const Notification&) { updateBorders(); });
    updateBorders();
}

// Before the controller's grids, which they name.
GridLayoutView::~GridLayoutView() { qDeleteAll(_views); }

QSplitter* GridLayoutView::addSplit(Qt::Orientation orientation)
{
    auto* split = new QSplitter(orientation);
    split->setHandleWidth(kDividerWidth);
    split->setChildrenCollapsible(false);
    _splits.push_back(split);
    return split;
}

void GridLayoutView::addPart(QSplitter* across, int count, Qt::Orientation along, std::size_t* next)
{
    if (count < 1)
        return;
    QSplitter* part = count > 1 ? addSplit(along) : across;
    for (int i = 0; i < count; ++i)
        part->addWidget(_views[(*next)++]);
    if (part != across)
        across->addWidget(part);
}

void GridLayoutView::U_FixSplitViewDividers()
{
    constexpr int kShare = 1 << 16;  // the splitter makes equal parts of equal wishes
    for (QSplitter* split : _splits)
        split->setSizes(QList<int>(split->count(), kShare));
}

// With their first real size; later the user's dividers stand.
void GridLayoutView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (std::exchange(_fitted, true))
        return;
    U_FixSplitViewDividers();
    fitGridDims();
}

ZELDraggingSequenceGridView* GridLayoutView::viewOf(
    const ZELSequenceGridViewModelController* grid) const
{
    const int number = _grids->seqGridIDForController(grid);
    return number > 0 ? _views[static_cast<std::size_t>(number - 1)] : nullptr;
}

void GridLayoutView::updateBorders()
{
    const QColor active = ColorOf(prefs_Get_ActiveCellColor());
    for (ZELDraggingSequenceGridView* view : _views) {
        GridLook look = view->look();
        const bool isActive =
            &view->sequenceGridController() == _grids->activeSequenceGridController();
        look.selectionBorderColor = isActive ? active : kInactiveBorder;
        view->setLook(look);
    }
}

void GridLayoutView::showOneAfterTheOther()
{
    for (ZELDraggingSequenceGridView* view : _views)
        view->setShowsCells(&view->sequenceGridController() ==
                            _grids->activeSequenceGridController());
    // Queued: by then what was painted is on the screen.
    connect(this, &GridLayoutView::cellsPainted, this, &GridLayoutView::showNext,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

bool GridLayoutView::showsAll() const
{
    return std::ranges::all_of(_views, &MUPhotoView::showsCells);
}

void GridLayoutView::showNext()
{
    const auto next = std::ranges::find_if_not(_views, &MUPhotoView::showsCells);
    if (next != _views.end())
        (*next)->setShowsCells(true);
    else
        disconnect(this, &GridLayoutView::cellsPainted, this, &GridLayoutView::showNext);
}

void GridLayoutView::fitGridDims()
{
    for (ZELDraggingSequenceGridView* view : _views)
        FitGridDimsToView(view->sequenceGridController(), view->size());
}

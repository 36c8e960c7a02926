#include "browser/ZELPatientOutlineView.h"

#include "app/grid/GridNotifications.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "app/views/MenuFromEntries.h"
#include "browser/BrowserNotifications.h"
#include "browser/RowDelegate.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "platform/Words.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <algorithm>

namespace {

constexpr int kIndentation = 12;  // points
// A long list is laid out anew a few times a second while its thumbnails come in.
constexpr int kLongList = 1000, kLongListLayout_ms = 200;

}  // namespace

ZELPatientOutlineView::ZELPatientOutlineView(PatTreeDataSource* source, BrowserHost* host,
                                             QWidget* parent)
    : QTreeView(parent), _source(source), _host(host)
{
    setHeaderHidden(true);
    setAccessibleName(ZelWord(kWordsMain, "Patient Browser"));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setDragDropMode(QAbstractItemView::DragOnly);
    setExpandsOnDoubleClick(false);
    setTextElideMode(Qt::ElideRight);
    setItemDelegate(new RowDelegate(source, this));
    setModel(source);
    _relayout.setSingleShot(true);
    connect(&_relayout, &QTimer::timeout, this, [this] { relayoutRows(); });
    connect(source, &PatTreeDataSource::needsDisplay, viewport(), [this] { viewport()->update(); });
    connect(source, &PatTreeDataSource::rowHeightsChanged, this, [this] {
        if (!_relayout.isActive())
            _relayout.start(_source->sequenceNodes().size() < kLongList ? 0 : kLongListLayout_ms);
    });
    connect(source, &PatTreeDataSource::modelAboutToBeReset, this, [this] {
        const auto nodes = selectedNodes();
        _selectedBefore = nodes.empty() ? nullptr : nodes.front();
    });
    connect(source, &PatTreeDataSource::modelReset, this, [this] { adaptToMode(); });
    // Patients stay open.
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        if (!index.parent().isValid())
            expand(index);
    });
    observeGrids();
    adaptToMode();
}

ZELPatientOutlineView::~ZELPatientOutlineView() = default;

void ZELPatientOutlineView::observeGrids()
{
    NotificationCenter& center = NotificationCenter::Default();
    const auto isHere = [this](const Notification& note) {
        return note.userInfo.value(QLatin1String(kKeyWindow)).value<void*>() == _host->windowKey();
    };
    _observations.push_back(center.AddObserver(kNoteGridDidChange, [this, isHere](
                                                                       const Notification& note) {
        if (!isHere(note))
            return;
        // Whoever makes the grid the active one may hear of it after us.
        const auto* grid = static_cast<const ZELSequenceGridViewModelController*>(
            note.userInfo.value(QLatin1String(kKeyNewGridController)).value<void*>());
        _source->updateGridIDs();
        U_SelectRowFor_dkSequence(grid ? grid->curr_dkSequence() : _host->activeSequence(), false);
    }));
    _observations.push_back(
        center.AddObserver(kNoteGridDidChangeSequence, [this, isHere](const Notification& note) {
            if (!isHere(note))
                return;
            _source->updateGridIDs();
            auto* sequence = static_cast<dk_SequenceBase*>(
                note.userInfo.value(QLatin1String(kKeyNewDkSequence)).value<void*>());
            if (sequence)
                U_SelectRowFor_dkSequence(sequence, true);
        }));
}

// ---- modes and heights --------------------------------------------------------------------------

void ZELPatientOutlineView::adaptToMode()
{
    const bool iconOnly = _source->iconOnly();
    setRootIsDecorated(false);
    setIndentation(iconOnly ? 0 : kIndentation);
    QPalette colors;  // pictures alone stand on black, as in grids
    if (iconOnly) {
        colors.setColor(QPalette::Base, Qt::black);
        colors.setColor(QPalette::Text, Qt::white);
    }
    viewport()->setPalette(colors);
    setPalette(colors);
    if (!iconOnly)
        U_ExpandTreeToSequences();
    const QModelIndex index = _source->indexOf(std::exchange(_selectedBefore, nullptr));
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

void ZELPatientOutlineView::U_ExpandTreeToSequences() { expandAll(); }

// What the user looks at stays where it is when rows above it change their heights.
void ZELPatientOutlineView::relayoutRows()
{
    const QPersistentModelIndex top = indexAt(QPoint(1, 1));
    const int before = visualRect(top).top();
    doItemsLayout();
    if (top.isValid() && verticalScrollBar()->value() > 0)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + visualRect(top).top() -
                                      before);
}

void ZELPatientOutlineView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    if (_source->iconOnly() && event->oldSize().width() != event->size().width())
        scheduleDelayedItemsLayout();
}

// ---- selection ----------------------------------------------------------------------------------

// Headings can have the keyboard, to be opened and closed, but the selection stays.
QItemSelectionModel::SelectionFlags ZELPatientOutlineView::selectionCommand(
    const QModelIndex& index, const QEvent* event) const
{
    if (index.isValid() && !(index.flags() & Qt::ItemIsSelectable))
        return QItemSelectionModel::NoUpdate;
    return QTreeView::selectionCommand(index, event);
}

std::vector<DicomElemChildNode*> ZELPatientOutlineView::selectedNodes() const
{
    std::vector<DicomElemChildNode*> nodes;
    if (selectionModel()) {
        for (const QModelIndex& index : selectionModel()->selectedIndexes())
            nodes.push_back(PatTreeDataSource::nodeAt(index));
    }
    std::ranges::sort(nodes, {}, [this](const auto* node) { return _source->leafRowOf(node); });
    return nodes;
}

void ZELPatientOutlineView::selectionChanged(const QItemSelection& selected,
                                             const QItemSelection& gone)
{
    QTreeView::selectionChanged(selected, gone);
    outlineViewSelectionDidChange();
}

void ZELPatientOutlineView::outlineViewSelectionDidChange()
{
    const QModelIndexList rows = selectionModel()->selectedIndexes();
    QModelIndex row = currentIndex();
    if (!rows.contains(row))
        row = rows.isEmpty() ? QModelIndex() : rows.front();
    DicomElemChildNode* node = PatTreeDataSource::nodeAt(row);
    dk_SequenceBase* sequence = node ? node->sequence() : _host->activeSequence();
    if (node && !sequence)
        return;
    const std::shared_ptr<ZELSequenceProxy> proxy = _source->proxyOf(sequence);
    NotificationCenter::Default().Post(
        kNotePatientSelectionDidChange, _host->windowKey(),
        {{QLatin1String(kKeyNewDkSequence), QVariant::fromValue(static_cast<void*>(sequence))},
         {QLatin1String(kKeyMultiSeqsSelected), rows.size() > 1},
         {QLatin1String(kKeyNewSequence), QVariant::fromValue(proxy)}});
}

void ZELPatientOutlineView::U_SelectRowFor_dkSequence(dk_SequenceBase* sequence, bool reveal)
{
    setTargetNode(sequence ? _source->nodeFor(sequence) : nullptr, reveal);
}

void ZELPatientOutlineView::setTargetNode(DicomElemChildNode* node, bool reveal)
{
    _source->setTargetNode(node);
    const QModelIndex index = _source->indexOf(node);
    if (!index.isValid())
        return;
    if (reveal) {
        for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
            expand(above);
        scrollTo(index);
    }
    // Without scrolling, which making it current would do.
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
}

// ---- what the user does -------------------------------------------------------------------------

void ZELPatientOutlineView::activate(const QModelIndex& index)
{
    DicomElemChildNode* node = PatTreeDataSource::nodeAt(index);
    if (node && node->sequence())
        _host->doubleClickOnPatientListRow(node->sequence());
    else if (node && node->level() > 0)
        setExpanded(index, !isExpanded(index));
}

void ZELPatientOutlineView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        activate(index);
}

// Letters search in a list that has the keys; elsewhere they choose tools.
bool ZELPatientOutlineView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool plain = !(key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier));
        if (plain && !key->text().isEmpty() && key->text().front().isLetterOrNumber()) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void ZELPatientOutlineView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        activate(currentIndex());
    else
        QTreeView::keyPressEvent(event);
}

// A search asks for all titles, which a disc would have to read.
void ZELPatientOutlineView::keyboardSearch(const QString& text)
{
    if (_source->tree() && !_source->tree()->isOnSlowMedia())
        QTreeView::keyboardSearch(text);
}

// The row that was pressed comes first: it is the one that is carried.
void ZELPatientOutlineView::startDrag(Qt::DropActions actions)
{
    const QModelIndex pressed = currentIndex();
    if (pressed.isValid() && selectionModel()->isSelected(pressed) &&
        selectionModel()->selectedIndexes().size() > 1)
        _source->setDragFirst(pressed);
    QTreeView::startDrag(actions);
    _source->setDragFirst({});
}

// ---- the menu -----------------------------------------------------------------------------------

void ZELPatientOutlineView::forgetContextualRow()
{
    _contextualRowClicked = -1;
    _contextualRowIsSelected = false;
}

MenuEntry ZELPatientOutlineView::menuForRow(const QModelIndex& index)
{
    DicomElemChildNode* node = PatTreeDataSource::nodeAt(index);
    BrowserMenuTarget target;
    target.source = _source;
    target.host = _host;
    target.selected = selectedNodes();
    forgetContextualRow();
    if (node && node->sequence()) {
        target.clicked = node;
        target.isSelected = selectionModel()->isSelected(index);
        _contextualRowClicked = index.row();
        _contextualRowIsSelected = target.isSelected;
    }
    target.afterAction = [this] { forgetContextualRow(); };
    return U_BrowserMenu(target);
}

void ZELPatientOutlineView::contextMenuEvent(QContextMenuEvent* event)
{
    if (_host->windowHasSheetOpen())
        return;
    QModelIndex index = indexAt(event->pos());
    QPoint place = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        index = currentIndex();
        place = viewport()->mapToGlobal(visualRect(index).center());
    }
    const std::unique_ptr<QMenu> menu = NewMenu(menuForRow(index), window());
    menu->exec(place);
}

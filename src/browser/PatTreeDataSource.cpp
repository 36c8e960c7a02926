#include "browser/PatTreeDataSource.h"

#include "app/grid/MultiGridViewController.h"
#include "app/grid/ZELSequenceProxy.h"
#include "app/views/SequenceMime.h"
#include "browser/BrowserNotifications.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "prefs/Prefs.h"

PatTreeDataSource::PatTreeDataSource(BrowserHost* host, QObject* parent)
    : QAbstractItemModel(parent), _host(host), _iconSize(prefs_PreviewPictSize())
{
    _work.pixelsAreReady = [this](DicomElemChildNode* node) { return pixelsAreReady(node); };
    _work.createPreviewIconFor = [this](DicomElemChildNode* node) { createPreviewIconFor(node); };
    _work.updateTextsFor = [this](DicomElemChildNode* node) { updateTextsFor(node); };
    for (QTimer* timer : {&_iconCalculator, &_recalculator, &_noteTimer})
        timer->setSingleShot(true);
    connect(&_iconCalculator, &QTimer::timeout, this, [this] { prepareNodeIcon(); });
    connect(&_recalculator, &QTimer::timeout, this, [this] { reloadAllIcons(); });
    connect(&_noteTimer, &QTimer::timeout, this, [this] { tellNoted(); });
    NotificationCenter& center = NotificationCenter::Default();
    _observations.push_back(center.AddObserver(
        kNoteCellImageCalcFinished,
        [this](const Notification& note) {
            auto* node = static_cast<DicomElemChildNode*>(
                note.userInfo.value(QLatin1String(kKeyCellNode)).value<void*>());
            handleImageCalc(node, note.userInfo.value(QLatin1String(kKeyCellImage)).value<QImage>(),
                            note.userInfo.value(QLatin1String(kKeyCellImageHeight)).toFloat());
        },
        this));
    _observations.push_back(center.AddObserver(
        kNoteActiveCellColorChanged, [this](const Notification&) { emit needsDisplay(); }));
    // A colour well posts at every move.
    _observations.push_back(
        center.AddObserver(kNoteOverlayColorChanged,
                           [this](const Notification&) { _recalculator.start(kColorsReload_ms); }));
}

PatTreeDataSource::~PatTreeDataSource()
{
    pauseIconCalculator();
    if (_tree)
        _tree->setSequenceProxies(nullptr);
}

void PatTreeDataSource::setupWithDicomTree(ZELDcmTree* tree)
{
    beginResetModel();
    pauseIconCalculator();
    _work.clear();
    _ahead.Forget();
    _awaited = nullptr;
    if (_tree)
        _tree->setSequenceProxies(nullptr);
    _tree = tree;
    _notedRows.clear();
    _nodes.clear();
    _leafRows.clear();
    _shown.clear();
    _thumbnailBytes = 0;
    fTargetDicomNode = nullptr;
    _rootDicomNode = U_NodesOfTree(tree ? tree->patientTreeRoot() : nullptr);
    _leaves = _rootDicomNode->sequenceNodes();
    for (DicomElemChildNode* node : _leaves) {
        _leafRows.emplace(node, static_cast<int>(_leafRows.size()));
        for (; node && _nodes.emplace(node->dicomTreeElem(), node).second; node = node->parent()) {
        }
    }
    _work.start(static_cast<int>(_leaves.size()));
    if (tree)
        tree->setSequenceProxies(this);
    updateGridIDs();
    endResetModel();
}

// ---- nodes --------------------------------------------------------------------------------------

DicomElemChildNode* PatTreeDataSource::nodeFor(const dk_DicomBaseElem* element) const
{
    const auto found = _nodes.find(element);
    return found == _nodes.end() ? nullptr : found->second;
}

DicomElemChildNode* PatTreeDataSource::nodeForZELSequence(const ZELSequenceProxy* proxy) const
{
    return proxy && proxy->theSequence() ? nodeFor(proxy->theSequence()) : nullptr;
}

void PatTreeDataSource::setTargetNode(DicomElemChildNode* node)
{
    if (node == fTargetDicomNode)
        return;
    if (fTargetDicomNode)
        fTargetDicomNode->setIsTarget(false);
    fTargetDicomNode = node;
    if (node)
        node->setIsTarget(true);
    emit needsDisplay();
}

void PatTreeDataSource::updateGridIDs()
{
    for (DicomElemChildNode* node : _leaves)
        node->setGridID(0);
    int grid = 0;
    for (const dk_SequenceBase* sequence : _host->sequencesInGrids()) {
        ++grid;
        DicomElemChildNode* node = sequence ? nodeFor(sequence) : nullptr;
        if (node && node->gridID() == 0)
            node->setGridID(grid);
    }
    emit needsDisplay();
}

void PatTreeDataSource::updateNodeForSequence(dk_SequenceBase* sequence)
{
    tellOfRow(nodeFor(sequence));
}

// ---- modes --------------------------------------------------------------------------------------

void PatTreeDataSource::setIconSize(int size)
{
    if (size == _iconSize)
        return;
    const bool otherRows = IsIconOnly(size) != iconOnly();
    if (otherRows)
        beginResetModel();
    _iconSize = size;
    prefs_Set_PreviewPictSize(size);
    if (otherRows)
        endResetModel();
    else
        emit rowHeightsChanged();
    emit iconSizeChanged(size);
}

// ---- work ---------------------------------------------------------------------------------------

IconWorkQueue::Surroundings PatTreeDataSource::surroundings() const
{
    return {_host->fastPatientListStartON(), _host->inQTModalMode(), textOnly()};
}

void PatTreeDataSource::scheduleTick()
{
    if (!_workIsHeld && _work.pending() > 0 && _work.weCanStillCalculate() &&
        !_iconCalculator.isActive())
        _iconCalculator.start(_tree && _tree->isOnSlowMedia() ? kIconTick_ms : 0);
}

void PatTreeDataSource::prepareNodeIcon()
{
    const bool slow = _tree && _tree->isOnSlowMedia();
    QElapsedTimer spent;
    spent.start();
    IconWorkQueue::Tick tick{};
    do {
        tick = _work.prepareNodeIcon(surroundings());
    } while (tick == IconWorkQueue::Tick::Worked && !slow && spent.elapsed() < kIconTickWork_ms);
    if (tick == IconWorkQueue::Tick::Worked)
        scheduleTick();
    else if (tick == IconWorkQueue::Tick::Preparing)
        _iconCalculator.start(kPreparingTick_ms);
    else if (tick == IconWorkQueue::Tick::Waiting)
        _iconCalculator.start(kIconTick_ms);
}

void PatTreeDataSource::reloadAllIcons()
{
    pauseIconCalculator();
    _work.removeAllPendingIconWorkers();
    for (DicomElemChildNode* node : _leaves)
        node->clearNooodeImage();
    _shown.clear();
    _thumbnailBytes = 0;
    restartIconCalculator(_work.pending() + static_cast<int>(_leaves.size()));
    _notedHeights = true;
    _noteTimer.start(0);
}

void PatTreeDataSource::setWorkHeld(bool held)
{
    _workIsHeld = held;
    if (held)
        _iconCalculator.stop();
    else
        scheduleTick();
}

void PatTreeDataSource::pauseIconCalculator()
{
    _work.pause();
    _iconCalculator.stop();
}

void PatTreeDataSource::restartIconCalculator(int expected)
{
    _work.restart(expected);
    scheduleTick();
}

// ---- the tree's proxies -------------------------------------------------------------------------

std::shared_ptr<ZELSequenceProxy> PatTreeDataSource::proxyOf(dk_SequenceBase* sequence)
{
    DicomElemChildNode* node = nodeFor(sequence);
    return node ? node->theSequenceProxy() : nullptr;
}

ZELSequenceProxy* PatTreeDataSource::ProxyOf(dk_SequenceBase* sequence)
{
    DicomElemChildNode* node = nodeFor(sequence);
    return node && node->hasSequenceProxy() ? node->theSequenceProxy().get() : nullptr;
}

void PatTreeDataSource::EnsureProxyOf(dk_SequenceBase* sequence)
{
    static_cast<void>(proxyOf(sequence));
}

bool PatTreeDataSource::HasCrops(dk_SequenceBase* sequence)
{
    const ZELSequenceProxy* proxy = ProxyOf(sequence);
    return proxy && proxy->hasCrops();
}

// ---- drags --------------------------------------------------------------------------------------

QStringList PatTreeDataSource::mimeTypes() const
{
    return {QLatin1String(kTreeNodePasteboardType)};
}

QMimeData* PatTreeDataSource::mimeData(const QModelIndexList& indexes) const
{
    const QModelIndex first =
        _dragFirst.isValid() || indexes.isEmpty() ? QModelIndex(_dragFirst) : indexes.front();
    DicomElemChildNode* node = nodeAt(first);
    return node && node->isDraggable()
               ? new SequenceMime(kTreeNodePasteboardType, node->theSequenceProxy(),
                                  _host->windowKey())
               : nullptr;
}

// The patient browser's rows: nodes beside a tree as an item model, in the mode that the icon size
// stands for, and the thumbnails and texts that they wait for, made between events. Answers for the
// tree's proxies, which nodes own. The tree and the host outlive it. Main thread only.
//
// On a tree of slow media a tick comes every 0.3 s and does one job. On any other, ticks follow one
// another through the event loop while there is work, and each goes on for up to 12 ms. What takes
// long of a thumbnail, reading slow media and decoding large frames, is done on another thread.
#pragma once
#include "app/nodes/IconWorkQueue.h"
#include "app/nodes/NodeTree.h"
#include "browser/BrowserHost.h"
#include "browser/RowLook.h"
#include "dicom_core/imaging/DecodeAhead.h"
#include "dicom_core/opening/OpenObserver.h"
#include "platform/NotificationCenter.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QPersistentModelIndex>
#include <QTimer>
#include <unordered_map>
#include <unordered_set>

class ZELDcmTree;

inline constexpr int kIconTick_ms = 300, kIconTickWork_ms = 12;
inline constexpr int kPreparingTick_ms = 5;  // while pixels are on their way
inline constexpr std::int64_t kDecodedAtOnce = std::int64_t{1} << 20;  // pixels of a frame
inline constexpr int kColorsReload_ms = 500;
inline constexpr std::size_t kThumbnailsLimit = std::size_t{256} << 20;  // bytes
inline constexpr int kLeastThumbnails = 256;  // more than can be seen at a time

class PatTreeDataSource final : public QAbstractItemModel, public SequenceProxies {
    Q_OBJECT

public:
    explicit PatTreeDataSource(BrowserHost* host, QObject* parent = nullptr);
    ~PatTreeDataSource() override;

    void setupWithDicomTree(ZELDcmTree* tree);  // null: no rows
    [[nodiscard]] ZELDcmTree* tree() const { return _tree; }

    // ---- nodes ----

    [[nodiscard]] DicomElemChildNode* rootDicomNode() const { return _rootDicomNode.get(); }
    [[nodiscard]] const std::vector<DicomElemChildNode*>& sequenceNodes() const { return _leaves; }
    [[nodiscard]] DicomElemChildNode* nodeFor(const dk_DicomBaseElem* element) const;  // or null
    [[nodiscard]] DicomElemChildNode* nodeForZELSequence(const ZELSequenceProxy* proxy) const;
    [[nodiscard]] static DicomElemChildNode* nodeAt(const QModelIndex& index);  // or null
    [[nodiscard]] int leafRowOf(const DicomElemChildNode* node) const;  // in tree order; or -1
    [[nodiscard]] QModelIndex indexOf(const DicomElemChildNode* node) const;
    // The sequence of the active grid; null for none.
    void setTargetNode(DicomElemChildNode* node);
    [[nodiscard]] DicomElemChildNode* targetNode() const { return fTargetDicomNode; }
    void updateGridIDs();                                   // asks the host
    void reloadData() { emit needsDisplay(); }              // rows that show are asked for anew
    void updateNodeForSequence(dk_SequenceBase* sequence);  // its row is painted anew

    // ---- modes ----

    [[nodiscard]] int iconSize() const { return _iconSize; }
    void setIconSize(int size);  // kept as a preference
    [[nodiscard]] bool iconOnly() const { return IsIconOnly(_iconSize); }
    [[nodiscard]] bool textOnly() const { return IsTextOnly(_iconSize); }

    // ---- rows ----

    [[nodiscard]] int heightOfRowByItem(const QModelIndex& index, int outlineWidth) const;
    // The row is being displayed: puts what it waits for in front.
    [[nodiscard]] RowLook willDisplayCell(const QModelIndex& index, int rowHeight, bool expanded);
    [[nodiscard]] QString toolTipOf(const QModelIndex& index) const;

    // ---- work ----

    void reloadAllIcons();
    // Held: work waits for something more urgent, as the first pictures of a window.
    void setWorkHeld(bool held);
    void pauseIconCalculator();
    void restartIconCalculator(int expected);  // 0: what is pending
    void handleImageCalc(DicomElemChildNode* node, const QImage& image, float height);
    // Beyond `bytes` the thumbnails go that were displayed longest ago, to be made again when their
    // rows are; but at least `least` stay.
    void setThumbnailsLimit(std::size_t bytes, int least);
    [[nodiscard]] const IconWorkQueue& iconWork() const { return _work; }
    [[nodiscard]] bool isTicking() const { return _iconCalculator.isActive(); }

    // ---- the tree's proxies ----

    [[nodiscard]] ZELSequenceProxy* ProxyOf(dk_SequenceBase* sequence) override;
    void EnsureProxyOf(dk_SequenceBase* sequence) override;
    [[nodiscard]] bool HasCrops(dk_SequenceBase* sequence) override;
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return 1; }
    [[nodiscard]] bool hasChildren(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    // The row that a drag of several carries; invalid: the first of them.
    void setDragFirst(const QModelIndex& index) { _dragFirst = index; }
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;

signals:
    void rowHeightsChanged();
    void needsDisplay();
    void iconSizeChanged(int size);

private:
    void prepareNodeIcon();  // the tick
    [[nodiscard]] bool pixelsAreReady(DicomElemChildNode* node);
    [[nodiscard]] bool takesLong(dk_SequenceBase* sequence, std::int32_t frame) const;
    void createPreviewIconFor(DicomElemChildNode* node);
    void updateTextsFor(DicomElemChildNode* node);
    void scheduleTick();
    void noteLater(DicomElemChildNode* node, bool height);
    void tellNoted();
    void tellOfRow(const DicomElemChildNode* node);
    [[nodiscard]] IconWorkQueue::Surroundings surroundings() const;
    void keepThumbnailsBounded();
    [[nodiscard]] bool showsSequence(const QModelIndex& index) const;

    BrowserHost* _host;
    ZELDcmTree* _tree = nullptr;
    std::unique_ptr<DicomElemChildNode> _rootDicomNode;
    std::vector<DicomElemChildNode*> _leaves;  // sequences in tree order
    std::unordered_map<const dk_DicomBaseElem*, DicomElemChildNode*> _nodes;
    std::unordered_map<const DicomElemChildNode*, int> _leafRows;
    std::unordered_map<DicomElemChildNode*, std::int64_t> _shown;  // thumbnails, and when displayed
    std::int64_t _displays = 0;
    std::size_t _thumbnailBytes = 0, _thumbnailsLimit = kThumbnailsLimit;
    int _leastThumbnails = kLeastThumbnails;
    DicomElemChildNode* fTargetDicomNode = nullptr;
    int _iconSize;
    IconWorkQueue _work;
    DecodeAhead _ahead;
    const DicomElemChildNode* _awaited = nullptr;  // whose frame is decoded
    QTimer _iconCalculator, _recalculator, _noteTimer;
    std::unordered_set<const DicomElemChildNode*> _notedRows;
    bool _notedHeights = false;
    bool _workIsHeld = false;
    QPersistentModelIndex _dragFirst;
    std::vector<NotificationCenter::Observation> _observations;
};

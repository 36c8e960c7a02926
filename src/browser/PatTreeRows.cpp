// The item model of PatTreeDataSource, and what its rows show.
#include "app/grid/ZELSequenceProxy.h"
#include "app/nodes/RepresentativeFrame.h"
#include "browser/BrowserNotifications.h"
#include "browser/PatTreeDataSource.h"
#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFrameInfo.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "util/Log.h"

#include <algorithm>

DicomElemChildNode* PatTreeDataSource::nodeAt(const QModelIndex& index)
{
    return index.isValid() ? static_cast<DicomElemChildNode*>(index.internalPointer()) : nullptr;
}

int PatTreeDataSource::leafRowOf(const DicomElemChildNode* node) const
{
    const auto leaf = _leafRows.find(node);
    return leaf == _leafRows.end() ? -1 : leaf->second;
}

QModelIndex PatTreeDataSource::indexOf(const DicomElemChildNode* node) const
{
    if (!node || node == _rootDicomNode.get())
        return {};
    int row = node->childIndexInParent();
    if (iconOnly())
        row = leafRowOf(node);
    if (row < 0)
        return {};
    return createIndex(row, 0, const_cast<DicomElemChildNode*>(node));
}

QModelIndex PatTreeDataSource::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column != 0 || row >= rowCount(parent))
        return {};
    if (iconOnly())
        return createIndex(row, 0, _leaves[static_cast<std::size_t>(row)]);
    const DicomElemChildNode* above = parent.isValid() ? nodeAt(parent) : _rootDicomNode.get();
    return createIndex(row, 0, above->childAtIndex(row));
}

QModelIndex PatTreeDataSource::parent(const QModelIndex& index) const
{
    const DicomElemChildNode* node = nodeAt(index);
    return node && !iconOnly() ? indexOf(node->parent()) : QModelIndex();
}

int PatTreeDataSource::rowCount(const QModelIndex& parent) const
{
    if (!_rootDicomNode)
        return 0;
    if (iconOnly())
        return parent.isValid() ? 0 : static_cast<int>(_leaves.size());
    return parent.isValid() ? nodeAt(parent)->numberOfChildren()
                            : _rootDicomNode->numberOfChildren();
}

bool PatTreeDataSource::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QVariant PatTreeDataSource::data(const QModelIndex& index, int role) const
{
    DicomElemChildNode* node = nodeAt(index);
    if (!node)
        return {};
    if (role == Qt::DisplayRole)
        return node->description();
    if (role == Qt::ToolTipRole)
        return QStringLiteral("<span>%1</span>")
            .arg(
                toolTipOf(index).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
    if (role == Qt::AccessibleTextRole)
        return toolTipOf(index).replace(QLatin1Char('\n'), QLatin1String(", "));
    return {};
}

Qt::ItemFlags PatTreeDataSource::flags(const QModelIndex& index) const
{
    constexpr Qt::ItemFlags kSequence =
        Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    if (!index.isValid())
        return Qt::NoItemFlags;
    return showsSequence(index) ? kSequence : Qt::ItemFlags(Qt::ItemIsEnabled);
}

bool PatTreeDataSource::showsSequence(const QModelIndex& index) const
{
    const DicomElemChildNode* node = nodeAt(index);
    return node && node->sequence();
}

// ---- rows ---------------------------------------------------------------------------------------

int PatTreeDataSource::heightOfRowByItem(const QModelIndex& index, int outlineWidth) const
{
    return showsSequence(index)
               ? U_CalcCellRowHeight(_iconSize, nodeAt(index)->iconHeight(), outlineWidth)
               : kHeadingHeight;
}

RowLook PatTreeDataSource::willDisplayCell(const QModelIndex& index, int rowHeight, bool expanded)
{
    constexpr int kIconAbove = 23, kTwoLinesAbove = 33, kThreeLinesAbove = 49;
    DicomElemChildNode* node = nodeAt(index);
    RowLook look;
    look.title = node->description();
    look.iconSize = _iconSize;
    if (!node->sequence()) {
        look.kind = node->level() == 0 ? RowLook::Kind::Patient : RowLook::Kind::Parent;
        if (!expanded)
            look.gridsBelow = node->gridIDsBelow();
        return look;
    }
    if (!textOnly() && rowHeight > kIconAbove) {
        _work.checkItemIconAndMoveToTop(node);
        look.icon = node->repIcon();
        if (const auto shown = _shown.find(node); shown != _shown.end())
            shown->second = ++_displays;
        look.iconHeight = node->iconHeight();
    }
    look.gridID = node->gridID();
    look.isTarget = node->isTarget();
    look.isMarked = node->userMarked();
    if (!iconOnly()) {
        const bool fast = _host->fastPatientListStartON() && node->textMissing();
        const bool lines3 = rowHeight > kThreeLinesAbove;
        _work.checkItemTextAndMoveToTop(node);
        look.subtitle = node->subtitleString(lines3, rowHeight > kTwoLinesAbove, fast);
        if (lines3)
            look.dims = node->dimensionStringFast(fast);
    }
    scheduleTick();
    return look;
}

// In full what the list may show only in part, and the series of a sequence that stands for one.
QString PatTreeDataSource::toolTipOf(const QModelIndex& index) const
{
    DicomElemChildNode* node = nodeAt(index);
    if (!node)
        return {};
    QStringList lines{node->description()};
    if (dk_SequenceBase* sequence = node->sequence()) {
        constexpr std::int32_t kSeriesLevel = 2;
        dk_DicomBaseElem* series = sequence->GetParent();
        if (series && series->GetDicomTreeLevel() == kSeriesLevel && !nodeFor(series))
            lines.append(QString::fromStdString(
                EscapedText(series->CopyDKTitle().simplified().toStdString())));
        lines.append(node->dimensionStringFast(_host->fastPatientListStartON()));
    }
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

// ---- what becomes ready -------------------------------------------------------------------------

// False while another thread decodes its frame.
bool PatTreeDataSource::pixelsAreReady(DicomElemChildNode* node)
{
    dk_SequenceBase* sequence = node->sequence();
    const std::int32_t frame = sequence->GetRepresentativeFrameNumber();
    if (_awaited != node) {
        _ahead.Collect(nullptr, 0);  // of rows that were more urgent before
        if (!takesLong(sequence, frame))
            return true;
        _ahead.Request(sequence, {&frame, 1});
    }
    _awaited = _ahead.IsPending(sequence, frame) ? node : nullptr;
    if (!_awaited)
        _ahead.Collect(sequence, frame);
    return !_awaited;
}

// Where it takes a thread, since the time it takes can't be cut.
bool PatTreeDataSource::takesLong(dk_SequenceBase* sequence, std::int32_t frame) const
{
    dk_ImageFrameInfo* info = sequence->GetImageFrameInfo(frame);
    if (!info || !info->fSource || CheckIfCellInBaseBuffer(sequence, frame))
        return false;
    if (_tree && _tree->isOnSlowMedia())
        return true;
    Point size;
    return !info->GetFrameSize(&size) && std::int64_t{size.h} * size.v > kDecodedAtOnce;
}

void PatTreeDataSource::createPreviewIconFor(DicomElemChildNode* node)
{
    QImage image = U_RepresentativeFrameImageFor(node->sequence(), false);
    if (image.isNull()) {
        image = QImage(1, 1, QImage::Format_RGB32);
        image.fill(Qt::white);
    }
    if (image.allGray())  // a quarter of the bytes
        image = image.convertToFormat(QImage::Format_Grayscale8);
    NotificationCenter::Default().Post(
        kNoteCellImageCalcFinished, this,
        {{QLatin1String(kKeyCellNode), QVariant::fromValue(static_cast<void*>(node))},
         {QLatin1String(kKeyCellImage), image},
         {QLatin1String(kKeyCellImageHeight), U_IconHeightOf(image)}});
}

void PatTreeDataSource::updateTextsFor(DicomElemChildNode* node)
{
    NotificationCenter::Default().Post(
        kNoteCellImageCalcFinished, this,
        {{QLatin1String(kKeyCellNode), QVariant::fromValue(static_cast<void*>(node))}});
}

void PatTreeDataSource::handleImageCalc(DicomElemChildNode* node, const QImage& image, float height)
{
    if (image.isNull()) {
        node->setNooodeTextOK();
        return noteLater(node, false);
    }
    const float before = node->iconHeight();
    if (node->iconMissing()) {
        node->setNooodeImage(image, height);
        _shown[node] = ++_displays;
        _thumbnailBytes += static_cast<std::size_t>(image.sizeInBytes());
        keepThumbnailsBounded();
    }
    noteLater(node, node->iconHeight() != before);
}

void PatTreeDataSource::noteLater(DicomElemChildNode* node, bool height)
{
    _notedRows.insert(node);
    _notedHeights = _notedHeights || height;
    if (!_noteTimer.isActive())
        _noteTimer.start(0);
}

void PatTreeDataSource::tellNoted()
{
    const auto rows = std::exchange(_notedRows, {});
    if (std::exchange(_notedHeights, false))
        emit rowHeightsChanged();
    for (const DicomElemChildNode* node : rows)
        tellOfRow(node);
}

void PatTreeDataSource::tellOfRow(const DicomElemChildNode* node)
{
    const QModelIndex index = indexOf(node);
    if (index.isValid())
        emit dataChanged(index, index);
}

// ---- what is kept -------------------------------------------------------------------------------

void PatTreeDataSource::setThumbnailsLimit(std::size_t bytes, int least)
{
    _thumbnailsLimit = bytes;
    _leastThumbnails = least;
    keepThumbnailsBounded();
}

// Drops down to three quarters, so that it is seldom done.
void PatTreeDataSource::keepThumbnailsBounded()
{
    if (_thumbnailBytes <= _thumbnailsLimit)
        return;
    std::vector<std::pair<std::int64_t, DicomElemChildNode*>> oldest;
    for (const auto& [node, display] : _shown)
        oldest.emplace_back(display, node);
    std::ranges::sort(oldest);
    for (const auto& [display, node] : oldest) {
        if (_thumbnailBytes <= _thumbnailsLimit / 4 * 3 ||
            static_cast<int>(_shown.size()) <= _leastThumbnails)
            break;
        _thumbnailBytes -= static_cast<std::size_t>(node->repIcon().sizeInBytes());
        node->clearNooodeImage();
        _shown.erase(node);
        _work.expectIcons(1);
    }
}

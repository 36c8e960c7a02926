#include "app_prefs/PresetTableModel.h"

#include "app_prefs/PrefsWords.h"

#include <QCoreApplication>
#include <QMimeData>
#include <algorithm>

namespace {

constexpr const char* kRowType = "WWWLPresetDnDDataType";
constexpr const char* kHeaders[] = {"presetTitle", "wcPreset", "wwPreset"};

PresetList::Column ColumnOf(const QModelIndex& index)
{
    return static_cast<PresetList::Column>(index.column());
}

}  // namespace

PresetTableModel::PresetTableModel(PresetList* list, QObject* parent)
    : QAbstractTableModel(parent), _list(list)
{
}

void PresetTableModel::reset()
{
    beginResetModel();
    endResetModel();
}

int PresetTableModel::addPreset(int row)
{
    const int place = row >= 0 && row < rowCount() ? row + 1 : rowCount();
    beginInsertRows({}, place, place);
    const int added = _list->addPreset(row);
    endInsertRows();
    return added;
}

int PresetTableModel::addPresetOf(float width, float level)
{
    beginInsertRows({}, rowCount(), rowCount());
    const int added = _list->addPresetOf(width, level);
    endInsertRows();
    return added;
}

void PresetTableModel::removePresets(const std::vector<int>& rows)
{
    beginResetModel();
    _list->removePresets(rows);
    endResetModel();
}

std::optional<int> PresetTableModel::movePreset(int row, int target)
{
    const bool moves = row >= 0 && row < rowCount() && target >= 0 && target <= rowCount() &&
                       beginMoveRows({}, row, row, {}, target);  // false where it would stay
    if (!moves)
        return std::nullopt;
    const std::optional<int> place = _list->movePreset(row, target);
    endMoveRows();
    return place;
}

int PresetTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : _list->count();
}

int PresetTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : PresetList::kColumns;
}

QVariant PresetTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return _list->textAt(index.row(), ColumnOf(index));
    if (role == Qt::EditRole)
        return _list->editTextAt(index.row(), ColumnOf(index));
    if (role == Qt::TextAlignmentRole && index.column() > 0)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

bool PresetTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() ||
        !_list->setTextAt(index.row(), ColumnOf(index), value.toString()))
        return false;
    emit dataChanged(index, index);
    return true;
}

QVariant PresetTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= PresetList::kColumns)
        return {};
    if (role == Qt::DisplayRole)
        return PrefsWord(kHeaders[section]);
    return role == Qt::ToolTipRole ? PrefsTip(kHeaders[section]) : QVariant();
}

// Rows are dragged, and dropped between others, never onto one.
Qt::ItemFlags PresetTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
}

Qt::DropActions PresetTableModel::supportedDropActions() const { return Qt::MoveAction; }
QStringList PresetTableModel::mimeTypes() const { return {QLatin1String(kRowType)}; }

// Of this table in this run of the program alone.
QByteArray PresetTableModel::mark() const
{
    return QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
           QByteArray::number(reinterpret_cast<quintptr>(this)) + ' ';
}

QMimeData* PresetTableModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty())
        return nullptr;
    auto* data = new QMimeData;  // the drag takes it
    data->setData(QLatin1String(kRowType), mark() + QByteArray::number(indexes.front().row()));
    return data;
}

bool PresetTableModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int /*row*/,
                                       int /*column*/, const QModelIndex& parent) const
{
    return action == Qt::MoveAction && !parent.isValid() && data &&
           data->data(QLatin1String(kRowType)).startsWith(mark());
}

bool PresetTableModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                    int column, const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    const int source = data->data(QLatin1String(kRowType)).mid(mark().size()).toInt();
    // Below the last row there is none.
    const std::optional<int> place = movePreset(source, row < 0 ? rowCount() : row);
    if (place)
        emit moved(*place);
    return place.has_value();
}

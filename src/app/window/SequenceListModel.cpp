#include "app/window/SequenceListModel.h"

#include "app/window/WindowWords.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>
#include <algorithm>

namespace {

QString TitleOf(const TreeRow& row)
{
    const QString title = row.element->CopyDKTitle();
    return title.isEmpty() ? ViewerWord("Untitled") : DisplayText(title.toStdString());
}

// Headings stand in front of what belongs to them.
QString Indented(const TreeRow& row)
{
    static constexpr QChar kEnSpace(0x2002);
    return QString(row.level, kEnSpace) + TitleOf(row);
}

// "CT" of the code of two blanks, C and T; nothing where the file tells none.
QString ModalityOf(const TreeRow& row)
{
    const ModalityType modality = row.Sequence()->GetModality();
    if (modality == kModalityNone || modality == kModalityPlainFile ||
        modality == kModalityOtherDicom)
        return {};
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(modality >> shift & 0xFF);
    return DisplayText(text).trimmed();
}

QString TextOf(const TreeRow& row, int column)
{
    if (column == SequenceListModel::kTitle)
        return Indented(row);
    if (!row.IsSequence())
        return {};
    return column == SequenceListModel::kModality
               ? ModalityOf(row)
               : QLocale().toString(row.Sequence()->GetNumberOfFrames());
}

int AlignmentOf(int column)
{
    const Qt::Alignment side =
        column == SequenceListModel::kFrames ? Qt::AlignRight : Qt::AlignLeft;
    return static_cast<int>((side | Qt::AlignVCenter).toInt());
}

QVariant HeadingLook(int role)
{
    if (role == Qt::FontRole) {
        QFont font = QGuiApplication::font();
        font.setBold(true);
        return font;
    }
    // It can't be chosen, but it isn't grayed out either.
    if (role == Qt::ForegroundRole)
        return QGuiApplication::palette().brush(QPalette::Active, QPalette::Text);
    return {};
}

}  // namespace

int SequenceListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_rows.size());
}

int SequenceListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant SequenceListModel::data(const QModelIndex& index, int role) const
{
    const TreeRow& row = treeRow(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return TextOf(row, index.column());
        case Qt::AccessibleTextRole:
            return index.column() == kTitle ? TitleOf(row) : TextOf(row, index.column());
        case Qt::ToolTipRole:
            return PlainToolTip(TitleOf(row));
        case Qt::TextAlignmentRole:
            return AlignmentOf(index.column());
        default:
            return row.IsSequence() ? QVariant() : HeadingLook(role);
    }
}

QVariant SequenceListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static constexpr const char* kTitles[kColumns] = {"Sequence", "Modality", "Frames"};
    return ViewerWord(kTitles[section]);
}

Qt::ItemFlags SequenceListModel::flags(const QModelIndex& index) const
{
    // Without flags the keyboard passes over the headings.
    return treeRow(index.row()).IsSequence() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                                                   Qt::ItemNeverHasChildren | Qt::ItemIsDragEnabled
                                             : Qt::NoItemFlags;
}

QMimeData* SequenceListModel::mimeData(const QModelIndexList& indexes) const
{
    return indexes.isEmpty() || !dataOfDrag ? nullptr
                                            : dataOfDrag(treeRow(indexes.front().row()).Sequence());
}

const TreeRow& SequenceListModel::treeRow(int row) const
{
    return _rows[static_cast<std::size_t>(row)];
}

QModelIndex SequenceListModel::indexOf(const dk_SequenceBase* sequence) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (_rows[static_cast<std::size_t>(row)].IsSequence() &&
            _rows[static_cast<std::size_t>(row)].Sequence() == sequence)
            return index(row, 0);
    }
    return {};
}

QModelIndex SequenceListModel::firstSequence() const
{
    const auto first = std::ranges::find_if(_rows, &TreeRow::IsSequence);
    return first == _rows.end() ? QModelIndex() : index(static_cast<int>(first - _rows.begin()), 0);
}

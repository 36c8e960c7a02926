#include "browser/InfoTableSource.h"

#include "app/grid/GridNotifications.h"
#include "app/grid/ZELSequenceGridViewModelController.h"
#include "browser/BrowserNotifications.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/ElementText.h"

#include <QFont>

namespace {

template <typename T>
T* PointerIn(const Notification& note, const char* key)
{
    return static_cast<T*>(note.userInfo.value(QLatin1String(key)).value<void*>());
}

InfoFields FieldsOf(dk_SequenceBase* sequence)
{
    dk_ImageFile* file = sequence ? sequence->GetCurrentImageFile() : nullptr;
    const ParserHandle parser = file ? sequence->GetCurrentParser() : ParserHandle{};
    if (!parser)
        return {};
    return FilledInfoFields(getInfoFieldsArrayCopy(), [&](const BaseInfoField& field) {
        const QvxElementTag tag{static_cast<std::uint16_t>(field.fieldGroup()),
                                static_cast<std::uint16_t>(field.fieldElem())};
        return ParserUtil_GetElemText(parser, file->GetCharacterEncoding(), tag)
            .value_or(QString())
            .simplified();
    });
}

QFont HeadingFont()
{
    QFont font;
    font.setPixelSize(kInfoTextPixels);
    font.setBold(true);
    return font;
}

}  // namespace

InfoTableSource::InfoTableSource(const void* windowKey, QObject* parent)
    : QAbstractTableModel(parent), _windowKey(windowKey)
{
    NotificationCenter& center = NotificationCenter::Default();
    for (const std::string_view name : {kNoteGridDidChange, kNoteGridDidChangeSequence})
        _observations.push_back(center.AddObserver(
            name, [this](const Notification& note) { changeDisplayedInfo(note); }));
    _observations.push_back(center.AddObserver(
        kNotePatientSelectionDidChange,
        [this](const Notification& note) { changeDisplayedInfoForPatientList(note); }, _windowKey));
}

void InfoTableSource::changeDisplayedInfo(const Notification& note)
{
    if (PointerIn<void>(note, kKeyWindow) == _windowKey)
        U_CheckAndSetNewTableSequenceFor(note);
}

void InfoTableSource::changeDisplayedInfoForPatientList(const Notification& note)
{
    U_CheckAndSetNewTableSequenceFor(note);
}

void InfoTableSource::U_CheckAndSetNewTableSequenceFor(const Notification& note)
{
    if (note.userInfo.value(QLatin1String(kKeyMultiSeqsSelected)).toBool())
        return setTableSequenceTo(nullptr);
    auto* sequence = PointerIn<dk_SequenceBase>(note, kKeyNewDkSequence);
    const auto* grid = PointerIn<ZELSequenceGridViewModelController>(note, kKeyNewGridController);
    if (!sequence && grid)
        sequence = grid->curr_dkSequence();
    setTableSequenceTo(sequence);
}

void InfoTableSource::setTableSequenceTo(dk_SequenceBase* sequence)
{
    if (sequence == _theSequence)
        return;
    beginResetModel();
    _theSequence = sequence;
    _theFields = FieldsOf(sequence);
    endResetModel();
}

// ---- rows ---------------------------------------------------------------------------------------

const CategoryInfoField* InfoTableSource::fieldAt(int row) const
{
    return row >= 0 && row < rowCount() ? _theFields[static_cast<std::size_t>(row)].get() : nullptr;
}

bool InfoTableSource::isHeading(int row) const
{
    const CategoryInfoField* field = fieldAt(row);
    return field && !dynamic_cast<const BaseInfoField*>(field);
}

int InfoTableSource::heightOfRow(int row) const
{
    return isHeading(row) ? kInfoHeadingHeight : kInfoRowHeight;
}

int InfoTableSource::totalTableHeight() const
{
    int height = rowCount() - 1;
    for (int row = 0; row < rowCount(); ++row)
        height += heightOfRow(row);
    return height;
}

int InfoTableSource::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(_theFields.size());
}

int InfoTableSource::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kInfoColumns;
}

QVariant InfoTableSource::data(const QModelIndex& index, int role) const
{
    const CategoryInfoField* entry = fieldAt(index.row());
    if (role == Qt::FontRole && isHeading(index.row()))
        return HeadingFont();
    const bool text = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    if (!entry || (!text && role != Qt::ToolTipRole))
        return {};
    const auto* field = dynamic_cast<const BaseInfoField*>(entry);
    QString shown;
    if (!field)
        shown = index.column() == kInfoTitle ? entry->categoryTitle().toUpper() : QString();
    else
        shown = index.column() == kInfoTitle ? field->fieldTitle() : field->fieldContent();
    if (!text)
        return QStringLiteral("<span>%1</span>").arg(shown.toHtmlEscaped());
    return shown;
}

Qt::ItemFlags InfoTableSource::flags(const QModelIndex& index) const
{
    return isHeading(index.row()) ? Qt::ItemFlags(Qt::ItemIsEnabled)
                                  : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}

#include "dicom_core/tree/dk_Series.h"

#include "dicom_core/tree/TitleData.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/UniText.h"

namespace {

constexpr QvxElementTag kBodyPart{0x0018, 0x0015};
constexpr QvxElementTag kSeriesDescription{0x0008, 0x103E};
constexpr int kModeMarked = 1;

// Does `holds` for every sequence of the series? Not without one.
template <typename Test>
bool HoldsForAll(const dk_Series& series, const Test& holds)
{
    for (dk_DicomBaseElem* child = series.GetFirstChild(); child; child = child->GetNext())
        if (!holds(static_cast<dk_SequenceBase*>(child)))
            return false;
    return series.GetFirstChild() != nullptr;
}

}  // namespace

dk_Series::dk_Series(const DicomImageFileRec& record)
    : dk_SequenceParent(record),
      fSeriesUID(record.recSeriesUID),
      fSeriesNumber(record.recSeriesNumber),
      fSeriesDescription(record.recSeriesDescription),
      fBodyPart(record.recBodyPart),
      fModalityStr(record.recModality.View())
{
}

ModalityType dk_Series::GetModality() { return DicomUtil_ModalityFromString(fModalityStr.View()); }

std::int32_t dk_Series::GetRepresentativeChildIndex(const dk_SequenceBase* sequence)
{
    return GetChildIndex(sequence);
}

dk_SequenceBase* dk_Series::GetIndexedSequence(std::int32_t n)
{
    return static_cast<dk_SequenceBase*>(GetChild(n));
}

std::int32_t dk_Series::GetNumMarkedSequences() { return GetNumChildren(kModeMarked); }

bool dk_Series::SeriesIs_XAUS()
{
    return HoldsForAll(*this, [](dk_SequenceBase* sequence) { return sequence->Is_XAUS(); });
}

bool dk_Series::SeriesHas_SingleFileSequences()
{
    return HoldsForAll(*this, [](dk_SequenceBase* sequence) {
        return Modality_HasSingleFileSequences(sequence->GetModality());
    });
}

// Both descriptions at once: one mark stands for both.
void dk_Series::ReadTitleData(bool wide)
{
    const bool described = wide ? fWideSeriesDescription.has_value() : !fSeriesDescription.Empty();
    if (fTitleDataRead || (described && fSeriesNumber != 0 && !fBodyPart.Empty()))
        return;
    const TitleFileVisit visit(this);
    const ParserHandle parser = visit.Parser();
    if (!parser)
        return;
    if (fSeriesNumber == 0)
        fSeriesNumber = visit.File()->GetSeriesNumber();
    FillTitleField(parser, kBodyPart, &fBodyPart);
    FillTitleField(parser, kSeriesDescription, &fSeriesDescription);
    if (!fWideSeriesDescription)
        static_cast<void>(Parser_GetElementTextUni(parser, visit.File()->GetCharacterEncoding(),
                                                   kSeriesDescription, &fWideSeriesDescription));
    fTitleDataRead = true;
}

std::string dk_Series::GetDKTitle()
{
    ReadTitleData(false);
    const std::string text = JoinedTitle({fSeriesDescription.Str(), fBodyPart.Str()});
    std::string title;
    if (!text.empty())
        title = (fSeriesNumber != 0 ? "Se " + std::to_string(fSeriesNumber) + ": " : "Se : ") +
                text + " ";
    else
        title = fSeriesNumber != 0 ? "Se " + std::to_string(fSeriesNumber)
                                   : "Se #" + std::to_string(GetIndexInBranch());
    return fModalityStr.Empty() ? title : title + " (" + fModalityStr.Str() + ")";
}

QString dk_Series::CopyDKTitle()
{
    ReadTitleData(true);
    dk_ImageFile* file = TitleFileOf(this);
    QString description = WithoutTrailingSpaces(fWideSeriesDescription.value_or(QString()));
    if (!fWideSeriesDescription)  // the file is out of reach, but a directory may have told
        description = DecodedTitleText(file, fSeriesDescription.View());
    const QString text = JoinedTitle({description, DecodedTitleText(file, fBodyPart.View())});
    QString title;
    if (!text.isEmpty())
        title =
            (fSeriesNumber != 0 ? "Se " + QString::number(fSeriesNumber) + ": " : QString("Se: ")) +
            text;
    else
        title = fSeriesNumber != 0 ? "Se " + QString::number(fSeriesNumber)
                                   : "Se #" + QString::number(GetIndexInBranch());
    return fModalityStr.Empty() ? title
                                : title + " (" + DecodedTitleText(file, fModalityStr.View()) + ")";
}

#include "dicom_core/tree/dk_Study.h"

#include "dicom_core/tree/TitleData.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/values/TextFormats.h"
#include "dicom_core/values/UniText.h"

namespace {

constexpr QvxElementTag kStudyUID{0x0020, 0x000D};
constexpr QvxElementTag kStudyID{0x0020, 0x0010};
constexpr QvxElementTag kAccessionNumber{0x0008, 0x0050};
constexpr QvxElementTag kStudyDate{0x0008, 0x0020};
constexpr QvxElementTag kStudyDescription{0x0008, 0x1030};
constexpr int kModeMarked = 1;

// Parts of a title; `last` is for a study that has none of them.
template <typename Text>
Text StudyTitle(const Text& id, const Text& date, const Text& description, const Text& last)
{
    Text title;
    if (id.size() != 0)
        title = id + Text(": ");
    title += date;
    if (description.size() != 0)
        title += (title.size() != 0 ? Text(", ") : Text()) + description;
    return Text("St ") + (title.size() != 0 ? title : last);
}

}  // namespace

dk_Study::dk_Study(const DicomImageFileRec& record)
    : dk_SequenceParent(record),
      fStudyUID(record.recStudyUID),
      fAccessionNumber(record.recAccessionNumber),
      fStudyID(record.recStudyID),
      fStudyDate(record.recStudyDate),
      fStudyTime(record.recStudyTime),
      fStudyDescription(record.recStudyDescription)
{
}

std::int32_t dk_Study::GetNumberRepresentatives()
{
    const dk_DicomBaseElem* first = GetFirstChild();
    return first && first->GetNumChildren() > 0 ? GetNumGrandChildren() : 0;
}

std::int32_t dk_Study::GetRepresentativeChildIndex(const dk_SequenceBase* sequence)
{
    return GetGrandChildIndex(sequence);
}

dk_SequenceBase* dk_Study::GetIndexedSequence(std::int32_t n)
{
    return static_cast<dk_SequenceBase*>(GetGrandChild(n));
}

std::int32_t dk_Study::GetNumMarkedSequences() { return GetNumGrandChildren(kModeMarked); }

void dk_Study::ReadTitleData(bool wide)
{
    bool& done = wide ? fWideTitleDataRead : fTitleDataRead;
    const bool described = wide ? fWideStudyDescription.has_value() : !fStudyDescription.Empty();
    if (done || (described && !fStudyID.Empty() && !fStudyDate.Empty() && !fStudyUID.Empty() &&
                 !fAccessionNumber.Empty()))
        return;
    const TitleFileVisit visit(this);
    const ParserHandle parser = visit.Parser();
    if (!parser)
        return;
    FillTitleField(parser, kStudyUID, &fStudyUID);
    FillTitleField(parser, kStudyID, &fStudyID);
    if (IsZeroID(fStudyID.View()))
        fStudyID.Clear();
    if (const auto number =
            TitleText(parser, kAccessionNumber, decltype(fAccessionNumber)::kCapacity))
        fAccessionNumber.Assign(*number);  // known or not
    FillTitleField(parser, kStudyDate, &fStudyDate);
    FillTitleField(parser, kStudyDescription, &fStudyDescription);
    if (wide && !fWideStudyDescription)
        static_cast<void>(Parser_GetElementTextUni(parser, visit.File()->GetCharacterEncoding(),
                                                   kStudyDescription, &fWideStudyDescription));
    done = true;
}

std::string dk_Study::GetDKTitle()
{
    ReadTitleData(false);
    return StudyTitle(fStudyID.Str(), DicomUtil_FormatDicomDateStr(fStudyDate.View()),
                      fStudyDescription.Str(),
                      fStudyUID.Empty() ? std::string(": --") : fStudyUID.Str());
}

QString dk_Study::CopyDKTitle()
{
    ReadTitleData(true);
    dk_ImageFile* file = TitleFileOf(this);
    const QString uid = DecodedTitleText(file, fStudyUID.View());
    return StudyTitle(DecodedTitleText(file, fStudyID.View()),
                      DecodedTitleText(file, DicomUtil_FormatDicomDateStr(fStudyDate.View())),
                      WithoutTrailingSpaces(fWideStudyDescription.value_or(QString())),
                      uid.isEmpty() ? QString(":--") : uid);
}

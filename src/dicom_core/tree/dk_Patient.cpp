#include "dicom_core/tree/dk_Patient.h"

#include "dicom_core/tree/TitleData.h"
#include "dicom_core/values/TrimText.h"
#include "dicom_core/values/UniText.h"
#include "platform/Words.h"

#include <QStringList>

namespace {

constexpr QvxElementTag kPatientName{0x0010, 0x0010};
constexpr QvxElementTag kPatientID{0x0010, 0x0020};
constexpr QvxElementTag kPatientSex{0x0010, 0x0040};
constexpr int kModeMarked = 1;

QString Anonymized() { return ZelWord(kWordsMain, "Anonymized"); }

}  // namespace

dk_Patient::dk_Patient(const DicomImageFileRec& record)
    : dk_DicomBaseElem(record),
      fPatientName(record.recPatientName),
      fPatientID(record.recPatientID),
      fPatientSex(record.recPatientSex)
{
}

std::int32_t dk_Patient::GetNumMarkedSequences()
{
    std::int32_t count = 0;
    for (dk_DicomBaseElem* study = GetFirstChild(); study; study = study->GetNext())
        count += study->GetNumGrandChildren(kModeMarked);
    return count;
}

// Here, other than on the levels below, what the file says replaces what is known.
void dk_Patient::ReadTitleData(bool wide)
{
    const bool hasName = wide ? fWidePatientName.has_value() : !fPatientName.Empty();
    bool& done = wide ? fWideTitleDataRead : fTitleDataRead;
    if (done || (hasName && !fPatientID.Empty() && !fPatientSex.Empty()))
        return;
    const TitleFileVisit visit(this);
    const ParserHandle parser = visit.Parser();
    if (!parser)
        return;
    if (auto name = TitleText(parser, kPatientName, decltype(fPatientName)::kCapacity)) {
        TrimCarets(&*name);
        TrimTrailingSpaces(&*name);
        fPatientName.Assign(*name);
    }
    if (wide)
        static_cast<void>(Parser_GetElementTextUni(parser, visit.File()->GetCharacterEncoding(),
                                                   kPatientName, &fWidePatientName));
    if (const auto id = TitleText(parser, kPatientID, decltype(fPatientID)::kCapacity))
        fPatientID.Assign(*id);
    if (const auto sex = TitleText(parser, kPatientSex, decltype(fPatientSex)::kCapacity))
        fPatientSex.Assign(*sex);
    done = true;
}

std::string dk_Patient::GetDKTitle()
{
    ReadTitleData(false);
    if (!fPatientName.Empty())
        return JoinedTitle({fPatientName.Str(), fPatientSex.Str(), fPatientID.Str()});
    return JoinedTitle({fPatientID.Empty() ? "Anonymized" : fPatientID.Str(), fPatientSex.Str()});
}

QString dk_Patient::CopyDKTitle()
{
    ReadTitleData(true);
    dk_ImageFile* file = TitleFileOf(this);
    QString name = WithoutTrailingSpaces(WithoutCarets(fWidePatientName.value_or(QString())));
    if (name.isEmpty())  // the file is out of reach, but a directory may have told
        name = WithoutTrailingSpaces(DecodedTitleText(file, fPatientName.View()));
    const QString sex = WithoutTrailingSpaces(DecodedTitleText(file, fPatientSex.View()));
    const QString id = WithoutTrailingSpaces(DecodedTitleText(file, fPatientID.View()));
    if (!name.isEmpty())
        return JoinedTitle({name, sex, id});
    return JoinedTitle({id.isEmpty() ? Anonymized() : id, sex});
}

// ---- the name as people say it ------------------------------------------------------------------

namespace {

constexpr qsizetype kMostComponents = 5;  // family, given, middle, prefix, suffix

QString GivenAndFamily(const QString& family, const QString& given, const QString& middle)
{
    const QString name =
        given.isEmpty() || family.isEmpty() ? given + family : given + ' ' + family;
    return JoinedTitle({name, middle});
}

QString ProperName(const QString& wideName)
{
    QStringList parts = wideName.split('^');
    if (parts.size() < 2 || parts.size() > kMostComponents)
        return wideName.trimmed();
    for (QString& part : parts)
        part = part.trimmed();
    parts.resize(kMostComponents);
    const QString& prefix = parts[3];
    const QString name = GivenAndFamily(parts[0], parts[1], parts[2]);
    return JoinedTitle({prefix.isEmpty() ? name : (prefix + ' ' + name).trimmed(), parts[4]});
}

}  // namespace

std::optional<QString> dk_Patient::Copy_ProperPatientName()
{
    if (!fProperPatientName) {
        if (!fWidePatientName)
            static_cast<void>(CopyDKTitle());
        if (!fWidePatientName)
            return std::nullopt;
        const QString name = ProperName(*fWidePatientName);
        fProperPatientName = name.isEmpty() ? Anonymized() : name;
    }
    return fProperPatientName;
}

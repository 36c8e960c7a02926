// The file itself: its source, copies of it, its place in the order, what it is called.
#include "dicom_core/tree/dk_ImageFile.h"

#include "util/Log.h"

#include <algorithm>
#include <array>

dk_ImageFile::dk_ImageFile() : fImageID(zelImageSource::NextID()) {}

dk_ImageFile::dk_ImageFile(const DicomImageFileRec& record)
    : dk_DicomBaseElem(record),
      fSeriesNumber(record.recSeriesNumber ? record.recSeriesNumber : -1),
      fInstanceNumber(record.recInstanceNumber ? record.recInstanceNumber : -1),
      fNumFrames(record.recNumFrames),
      fModalityCode(DicomUtil_ModalityFromString(record.recModality.View())),
      fImageID(zelImageSource::NextID())
{
}

dk_ImageFile::~dk_ImageFile()
{
    fCharEncoding.reset();
    fParserInfo.reset();
    SetSourceFile(nullptr);
}

// ---- the source ---------------------------------------------------------------------------------

QvxStatus dk_ImageFile::SetSourceFile(const FileRef& file, FileImportMode mode)
{
    auto source = std::make_unique<zelImageSource>();
    if (const QvxStatus status = source->ImportFromFSSpec(file, mode))
        return status;
    if (!source->IsValid())
        return kQvxBadArgument;
    SetSourceFile(source.release());
    return kQvxOK;
}

void dk_ImageFile::SetSourceFile(zelImageSource* source)
{
    if (source)
        source->AddReference();
    if (fSource)
        fSource->RemoveReference(true);
    fSource = source;
}

void dk_ImageFile::SetParserInfoData(const DicomImageFileRec& record)
{
    fParserInfo = std::make_unique<DicomImageFileRec>(record);
}

bool dk_ImageFile::HasLoadedDICOMParser() const { return fSource && fSource->HasReadHeader(); }

ParserHandle dk_ImageFile::GetDICOMParser()
{
    return fSource ? fSource->GetDicomParser() : nullptr;
}

bool dk_ImageFile::HasFileOnDisk() const { return !fCacheCopyTried || !fSourceSpec.Empty(); }

std::string dk_ImageFile::PathURL() const
{
    if (!fFileSpec.Empty() || !fSource)
        return FileURLOf(fFileSpec);
    return fSource->GetFileURL();
}

// ---- copies -------------------------------------------------------------------------------------

std::unique_ptr<dk_ImageFile> dk_ImageFile::Duplicate()
{
    auto copy = std::make_unique<dk_ImageFile>();
    copy->fRelPath = fRelPath;
    copy->fFileName = fFileName;
    copy->fHasFileSpec = fHasFileSpec;
    copy->fCacheCopyTried = fCacheCopyTried;
    copy->fTitleDataRead = fTitleDataRead;
    copy->fWideTitleDataRead = fWideTitleDataRead;
    copy->fMarked = fMarked;
    copy->fFileSpec = fFileSpec;
    copy->fSourceSpec = fSourceSpec;
    if (fParserInfo)
        copy->SetParserInfoData(*fParserInfo);
    copy->fSeriesNumber = fSeriesNumber;
    copy->fInstanceNumber = fInstanceNumber;
    copy->fSOPClassUID = fSOPClassUID;
    copy->fImageComments = fImageComments;
    copy->fCommentsRead = fCommentsRead;
    copy->fNumFrames = fNumFrames;
    copy->fAspectV = fAspectV;
    copy->fAspectH = fAspectH;
    copy->fModalityCode = fModalityCode;
    copy->fHasOverlays = fHasOverlays;
    copy->SetSourceFile(fSource);
    return copy;
}

std::unique_ptr<dk_DicomBaseElem> dk_ImageFile::MakeClone()
{
    auto clone = Duplicate();
    clone->fIsClone = true;
    if (fSource) {
        // The id is what pictures of both are kept under.
        auto source = std::make_unique<zelImageSource>(fSource->SourceID());
        source->ImportFromSource(*fSource);
        clone->SetSourceFile(source.release());
    }
    return clone;
}

// By patient's name and ID, study date (newer first), study and series UID, series number, instance
// number, instance UID. So the series' number tells apart only series that share a UID.
bool dk_ImageFile::IsBefore(const dk_ImageFile* other) const
{
    const DicomImageFileRec& a = *fParserInfo;
    const DicomImageFileRec& b = *other->fParserInfo;
    if (const auto order = a.recPatientName <=> b.recPatientName; order != 0)
        return order < 0;
    if (const auto order = a.recPatientID <=> b.recPatientID; order != 0)
        return order < 0;
    if (const auto order = b.recStudyDate <=> a.recStudyDate; order != 0)
        return order < 0;
    if (const auto order = a.recStudyUID <=> b.recStudyUID; order != 0)
        return order < 0;
    if (const auto order = a.recSeriesUID <=> b.recSeriesUID; order != 0)
        return order < 0;
    if (a.recSeriesNumber != b.recSeriesNumber)
        return a.recSeriesNumber < b.recSeriesNumber;
    if (a.recInstanceNumber != b.recInstanceNumber)
        return a.recInstanceNumber < b.recInstanceNumber;
    return a.recSOPInstanceUID <= b.recSOPInstanceUID;
}

// ---- titles -------------------------------------------------------------------------------------

namespace {

constexpr std::int32_t kLastPaddedNumber = 9;

bool IsNumberedByModality(ModalityType modality)
{
    return modality != DicomUtil_ModalityFromString("XA") &&
           modality != DicomUtil_ModalityFromString("US") &&
           modality != DicomUtil_ModalityFromString("IVUS");
}

}  // namespace

std::string dk_ImageFile::GetDKTitle()
{
    const bool loaded = HasLoadedDICOMParser();  // a title is not what a file is opened for first
    const std::int32_t number = loaded ? GetInstanceNumber() : fInstanceNumber;
    std::string title;
    if (number > 0 && IsNumberedByModality(loaded ? GetModality() : fModalityCode))
        title.append(number <= kLastPaddedNumber ? " " : "").append(std::to_string(number)) += ": ";
    return title + GetExportTitle();
}

QString dk_ImageFile::CopyDKTitle() { return QString::fromStdString(EscapedText(GetDKTitle())); }

std::string dk_ImageFile::GetExportTitle()
{
    return fSource ? fSource->GetFileName() : fFileName.Str();
}

QString dk_ImageFile::Copy_DK_ExportTitle()
{
    QString title = Copy_DK_DisplayTitle();
    for (const char* suffix : std::array{".dcm", ".dicm", ".DCM", ".DICM"})
        if (title.endsWith(QLatin1String(suffix))) {
            title.chop(QLatin1String(suffix).size());
            break;
        }
    return title;
}

QString dk_ImageFile::Copy_DK_DisplayTitle()
{
    return QString::fromStdString(EscapedText(GetExportTitle()));
}

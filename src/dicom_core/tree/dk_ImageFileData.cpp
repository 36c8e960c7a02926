// What the header says, cached. A number that can't be read stays unknown: a later call tries
// again.
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/values/FrameGroups.h"
#include "dicom_core/values/ParserOverlays.h"
#include "dicom_core/values/ParserSpatial.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/ParserValues.h"
#include "dicom_core/values/TrimText.h"

#include <algorithm>

namespace {

constexpr std::int32_t kUsualAspect = 1000;  // the smaller factor of pixels not wider than high

// Does the record tell what the header holds, so that the file needn't be opened? One that came
// from a directory only tells what the directory holds.
bool IsOfHeader(const DicomImageFileRec* record)
{
    return record && record->recType == kDirRecordOther;
}

QvxStatus ReadNumber(zelImageSource* source, std::uint16_t element, std::int32_t* number)
{
    const zelParserVisit visit(source);
    std::int32_t read = 0;
    const QvxStatus status = Parser_GetElementValueAsLong(visit.Parser(), QvxElementRef::None,
                                                          0x0020, element, 1, &read);
    if (!status)
        *number = read;
    return status;
}

}  // namespace

void dk_ImageFile::SetModality_Externally(std::string_view modality)
{
    fModalityCode = DicomUtil_ModalityFromString(modality);
    if (fNumFrames <= 0 && !Modality_HasSingleFileSequences(modality))
        fNumFrames = 1;  // without a look at the file
}

ModalityType dk_ImageFile::GetModality()
{
    if (fModalityCode != kModalityUnknown)
        return fModalityCode;
    if (IsOfHeader(fParserInfo.get()) && !fParserInfo->recModality.Empty()) {
        fModalityCode = DicomUtil_ModalityFromString(fParserInfo->recModality.View());
        return fModalityCode;
    }
    constexpr std::size_t kModalityBytes = 16;
    const zelParserVisit visit(fSource);
    std::string text;
    if (!visit.Parser())
        fModalityCode = kModalityPlainFile;
    else if (Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None, 0x0008, 0x0060, 1,
                                             kModalityBytes, &text) ||
             text.empty())
        fModalityCode = kModalityOtherDicom;
    else
        fModalityCode = DicomUtil_ModalityFromString(text);
    return fModalityCode;
}

std::int32_t dk_ImageFile::GetInstanceNumber()
{
    if (fInstanceNumber == -1 && IsOfHeader(fParserInfo.get()))
        fInstanceNumber = fParserInfo->recInstanceNumber;
    if (fInstanceNumber == -1 && ReadNumber(fSource, 0x0013, &fInstanceNumber))
        return 0;
    return fInstanceNumber;
}

std::int32_t dk_ImageFile::GetSeriesNumber()
{
    if (fSeriesNumber == -1 && IsOfHeader(fParserInfo.get()))
        fSeriesNumber = fParserInfo->recSeriesNumber;
    if (fSeriesNumber == -1 && ReadNumber(fSource, 0x0011, &fSeriesNumber))
        return 0;
    return fSeriesNumber;
}

std::string_view dk_ImageFile::GetSOPClassUID()
{
    if (fSOPClassUID.Empty()) {
        const zelParserVisit visit(fSource);
        std::string text;
        if (!Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None, 0x0008, 0x0016, 1,
                                             decltype(fSOPClassUID)::kCapacity, &text))
            fSOPClassUID.Assign(text);
    }
    return fSOPClassUID.View();
}

std::string_view dk_ImageFile::GetImageComments()
{
    const zelParserVisit visit(fCommentsRead ? nullptr : fSource);
    if (visit.Parser()) {
        fCommentsRead = true;
        std::string text;
        if (!Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None, 0x0020, 0x4000,
                                             kAllValues, decltype(fImageComments)::kCapacity,
                                             &text)) {
            TrimNewlines(&text);
            fImageComments.Assign(text);
        }
    }
    return fImageComments.View();
}

std::int32_t dk_ImageFile::GetNumberOfFrames()
{
    std::int32_t count = 0;
    if (fNumFrames <= 0 && fSource && !fSource->GetFrameCount(&count))
        fNumFrames = count;
    return fNumFrames;
}

void dk_ImageFile::GetAspectRatio(std::int32_t* vertical, std::int32_t* horizontal)
{
    if ((fAspectV == 0 || fAspectH == 0) && fSource && fSource->IsValid()) {
        fAspectV = fAspectH = 1;
        const zelParserVisit visit(fSource->IsDICOM() ? fSource : nullptr);
        std::int32_t v = 0, h = 0;
        const zelFrameGroups groups(visit.Parser());
        if (visit.Parser() && !Qvx2_ParserGetPixelAspectRatioFactors(groups, 1, &v, &h) && v > 0 &&
            h > 0) {
            // Of a ratio below 1 the factors have the larger one first: pixels wider than high.
            fAspectV = std::min(v, h) < kUsualAspect ? std::min(v, h) : v;
            fAspectH = std::min(v, h) < kUsualAspect ? std::max(v, h) : h;
        }
    }
    *vertical = fAspectV;
    *horizontal = fAspectH;
}

const dk_DicomCharacterEncoding& dk_ImageFile::GetCharacterEncoding()
{
    if (!fCharEncoding) {
        const zelParserVisit visit(fSource);
        fCharEncoding = std::make_unique<dk_DicomCharacterEncoding>(visit.Parser());
    }
    return *fCharEncoding;
}

bool dk_ImageFile::HasDICOMOverlays()
{
    if (fHasOverlays < 0) {
        const zelParserVisit visit(fSource);
        if (!visit.Parser())
            return false;
        fHasOverlays = Parser_FileHasOverlays(visit.Parser()) ? 1 : 0;
    }
    return fHasOverlays == 1;
}

#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/tree/dk_Patient.h"
#include "dicom_core/values/ParserText.h"

#include <algorithm>

dk_Sequence::dk_Sequence(const DicomImageFileRec& record, bool fromDICOMDIR)
    : dk_SequenceBase(record), fFromDICOMDIR(fromDICOMDIR)
{
    fModalityStr.Assign(record.recModality.View());
}

ModalityType dk_Sequence::GetModality()
{
    if (fModalityCode != kModalityUnknown)
        return fModalityCode;
    if (!fModalityStr.Empty())
        fModalityCode = DicomUtil_ModalityFromString(fModalityStr.View());
    else if (auto* file = static_cast<dk_ImageFile*>(GetFirstChild()))
        fModalityCode = file->GetModality();
    return fModalityCode;
}

std::int32_t dk_Sequence::GetNumberOfFrames()
{
    if (fFrameInfo.fNumFrames >= 0)
        return fFrameInfo.fNumFrames;
    std::int64_t frames = 0;
    if (fFromDICOMDIR && !fModalityStr.Empty() &&
        !Modality_HasSingleFileSequences(fModalityStr.View())) {
        frames = GetNumChildren();  // spares opening every file of a disc
    } else {
        for (dk_DicomBaseElem* file = GetFirstChild(); file; file = file->GetNext())
            frames += std::max(static_cast<dk_ImageFile*>(file)->GetNumberOfFrames(), 0);
    }
    fFrameInfo.fNumFrames = static_cast<std::int32_t>(std::min<std::int64_t>(frames, INT32_MAX));
    return fFrameInfo.fNumFrames;
}

bool dk_Sequence::AllParsersLoaded()
{
    for (dk_DicomBaseElem* file = GetFirstChild(); file && !fAllParsersLoaded;
         file = file->GetNext())
        if (!static_cast<dk_ImageFile*>(file)->HasLoadedDICOMParser())
            return false;
    fAllParsersLoaded = true;
    return true;
}

bool dk_Sequence::AllFilesOnDisk()
{
    for (dk_DicomBaseElem* file = GetFirstChild(); file && !fAllFilesOnDisk; file = file->GetNext())
        if (!static_cast<dk_ImageFile*>(file)->HasFileOnDisk())
            return false;
    fAllFilesOnDisk = true;
    return true;
}

const std::vector<US_ROIRegDataRec>* dk_Sequence::GetROIData()
{
    if (fROINumber < 0) {
        const ModalityType modality = GetModality();
        if (modality != DicomUtil_ModalityFromString("US") &&
            modality != DicomUtil_ModalityFromString("IVUS"))
            return nullptr;
        fROINumber = 0;
        dk_ImageFile* file = GetCurrentImageFile();
        const zelParserVisit visit(file ? file->GetSource() : nullptr);
        if (visit.Parser() && Parser_GetUSROIData(visit.Parser(), &fROIData) == kQvxOK)
            fROINumber = static_cast<std::int32_t>(fROIData.size());
    }
    return fROINumber > 0 ? &fROIData : nullptr;
}

std::int32_t dk_Sequence::GetROINumber()
{
    static_cast<void>(GetROIData());
    return std::max(fROINumber, 0);
}

QvxStatus dk_Sequence::GetSequenceVOILimits(std::uint32_t* minU, std::int32_t* minS,
                                            std::uint32_t* maxU, std::int32_t* maxS)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    bool found = false;
    dk_ImageFrameInfo sum;
    for (std::size_t i = 0; table && i < table->fFrames.size(); ++i) {
        const dk_ImageFrameInfo& info = table->fFrames[i];
        if (info.fTransform.voiInfo.pixelFormat == 0)  // not set up
            continue;
        if (!found)
            sum = info;
        found = true;
        sum.fPixelMinU = std::min(sum.fPixelMinU, info.fPixelMinU);
        sum.fPixelMaxU = std::max(sum.fPixelMaxU, info.fPixelMaxU);
        sum.fPixelMinS = std::min(sum.fPixelMinS, info.fPixelMinS);
        sum.fPixelMaxS = std::max(sum.fPixelMaxS, info.fPixelMaxS);
    }
    if (!found)
        return kQvxBadArgument;
    sum.GetPixelVOILimits(minU, minS, maxU, maxS);
    return kQvxOK;
}

QvxStatus dk_Sequence::GetFrameOfReferenceUID(std::int32_t frame, std::string* uid)
{
    const dk_ImageFrameInfo* info = GetImageFrameInfo(frame);
    const zelParserVisit visit(info ? info->fSource : nullptr);
    if (!visit.Parser())
        return kQvxBadArgument;
    return Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None, 0x0020, 0x0052, 1,
                                           256, uid);
}

std::optional<QString> dk_Sequence::Copy_ProperPatientName()
{
    dk_Patient* patient = GetNumChildren() == 1 ? GetThePatient() : nullptr;
    return patient ? patient->Copy_ProperPatientName() : std::nullopt;
}

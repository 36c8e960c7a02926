#include "dicom_core/tree/dk_SequenceBase.h"

#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/tree/dk_Patient.h"
#include "dicom_core/values/FrameGroups.h"
#include "dicom_core/values/ParserSpatial.h"
#include "dicom_core/values/ParserTiming.h"

#include <algorithm>

namespace {

dk_ImageFile* FirstFile(const dk_SequenceBase& sequence)
{
    return static_cast<dk_ImageFile*>(sequence.GetFirstChild());
}

dk_ImageFile* NextFile(const dk_ImageFile* file)
{
    return static_cast<dk_ImageFile*>(file->GetNext());
}

// More frames than a file of ordinary size has: before a record is made for each, the data decide
// how many there are.
constexpr std::int32_t kManyFrames = 1000;

std::int32_t FramesThatAreThere(dk_ImageFile* file)
{
    const std::int32_t stated = file->GetNumberOfFrames();
    if (stated <= kManyFrames)
        return stated;
    const zelParserVisit visit(file->GetSource());
    std::uint32_t mapped = 0;
    if (!visit.Parser() || Qvx2Reader_GetNumberOfFrames(visit.Parser(), 0, &mapped) != kQvxOK)
        return kManyFrames;
    return static_cast<std::int32_t>(std::min<std::uint32_t>(mapped, INT32_MAX));
}

}  // namespace

dk_SequenceBase::dk_SequenceBase(const DicomImageFileRec& record) : dk_ModalityBaseElem(record) {}

dk_SequenceBase::~dk_SequenceBase()
{
    fVOIBlitter.reset();
    fViewState.reset();
    fCellInfo.reset();
}

// ---- parts made on first use --------------------------------------------------------------------

dk_SequenceViewState* dk_SequenceBase::GetViewState()
{
    if (!fViewState)
        fViewState = std::make_unique<dk_SequenceViewState>(GetModality(), GetNumberOfFrames());
    return fViewState.get();
}

void dk_SequenceBase::ClearViewState()
{
    if (fViewState)
        fViewState->Revert(GetModality(), GetNumberOfFrames());
}

dk_SequenceFrameInfo* dk_SequenceBase::GetSequenceFrameInfo()
{
    if (fFrameInfo.fFrames.empty() && BuildFrameInfo() != kQvxOK)
        return nullptr;
    return &fFrameInfo;
}

CVOIBlitter* dk_SequenceBase::GetVOIBlitter()
{
    if (!fVOIBlitter)
        U_NewVOIBlitter(&fVOIBlitter);
    return fVOIBlitter.get();
}

std::vector<zel_GridFrameInfoItem>* dk_SequenceBase::GetSequenceCellInfo()
{
    if (!fCellInfo) {
        const dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
        if (!table)
            return nullptr;
        fCellInfo = std::make_unique<std::vector<zel_GridFrameInfoItem>>(table->fFrames.size());
    }
    return fCellInfo.get();
}

zel_GridFrameInfoItem* dk_SequenceBase::GetCellInfo(std::int32_t frame)
{
    std::vector<zel_GridFrameInfoItem>* cells = GetSequenceCellInfo();
    if (!cells || frame < 1 || static_cast<std::size_t>(frame) > cells->size())
        return nullptr;
    return &(*cells)[static_cast<std::size_t>(frame) - 1];
}

void dk_SequenceBase::ClearSequenceCellInfo() { fCellInfo.reset(); }

// ---- frames -------------------------------------------------------------------------------------

std::int32_t dk_SequenceBase::GetNumberOfFrames() { return std::max(fFrameInfo.fNumFrames, 0); }

QvxStatus dk_SequenceBase::BuildFrameInfo()
{
    if (GetNumberOfFrames() < 1)
        return kQvxBadArgument;
    fFrameInfo.fFrames.clear();
    fFrameInfo.fCurrentFrame = 0;
    fFrameInfo.fFrameTimesLoaded = false;
    fFrameInfo.fTotalDuration = -1.0F;
    for (dk_ImageFile* file = FirstFile(*this); file; file = NextFile(file)) {
        const std::int32_t count = FramesThatAreThere(file);
        for (std::int32_t k = 1; k <= count; ++k) {
            dk_ImageFrameInfo& info = fFrameInfo.fFrames.emplace_back();
            info.fImageFile = file;
            info.fSource = file->GetSource();
            info.fFrameInFile = k;
        }
    }
    fFrameInfo.fFrames.shrink_to_fit();
    // What the table holds is the count from now on, whatever was taken for granted before.
    fFrameInfo.fNumFrames = static_cast<std::int32_t>(fFrameInfo.fFrames.size());
    if (fFrameInfo.fFrames.empty())
        return kQvxBadArgument;
    fFrameInfo.fCurrentFrame = 1;
    return kQvxOK;
}

dk_ImageFrameInfo* dk_SequenceBase::GetImageFrameInfo(std::int32_t frame)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetImageFrameInfo(frame) : nullptr;
}

dk_ImageFile* dk_SequenceBase::GetFrameImageFile(std::int32_t frame)
{
    const dk_ImageFrameInfo* info = GetImageFrameInfo(frame);
    return info ? info->fImageFile : nullptr;
}

ParserHandle dk_SequenceBase::GetFrameParser(std::int32_t frame)
{
    dk_ImageFile* file = GetFrameImageFile(frame);
    return file ? file->GetDICOMParser() : nullptr;
}

std::int32_t dk_SequenceBase::FirstFrameInImageFile(const dk_ImageFile* wanted)
{
    const dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    if (!table)
        return 0;
    const auto found = std::ranges::find(table->fFrames, wanted, &dk_ImageFrameInfo::fImageFile);
    return found != table->fFrames.end()
               ? static_cast<std::int32_t>(found - table->fFrames.begin()) + 1
               : 0;
}

std::int32_t dk_SequenceBase::FirstFrameInZelSource(const zelImageSource* wanted)
{
    const dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    if (!table)
        return 0;
    const auto found = std::ranges::find(table->fFrames, wanted, &dk_ImageFrameInfo::fSource);
    return found != table->fFrames.end()
               ? static_cast<std::int32_t>(found - table->fFrames.begin()) + 1
               : 0;
}

void dk_SequenceBase::SetCurrentFrameIndex(std::int32_t frame)
{
    // A table that is made later would begin at its first frame again.
    if (frame >= 1 && frame <= GetNumberOfFrames() && GetImageFrameInfo(frame))
        fFrameInfo.fCurrentFrame = frame;
}

dk_ImageFile* dk_SequenceBase::GetCurrentImageFile()
{
    if (fFrameInfo.fCurrentFrame < 2)
        return FirstFile(*this);  // without a table
    return GetFrameImageFile(fFrameInfo.fCurrentFrame);
}

ParserHandle dk_SequenceBase::GetCurrentParser()
{
    dk_ImageFile* file = GetCurrentImageFile();
    return file ? file->GetDICOMParser() : nullptr;
}

zelImageSource* dk_SequenceBase::GetCurrentSource()
{
    dk_ImageFile* file = GetCurrentImageFile();
    return file ? file->GetSource() : nullptr;
}

bool dk_SequenceBase::IsDICOMGray()
{
    zelImageSource* source = GetCurrentSource();
    return source && source->IsDICOMGray();
}

std::int32_t dk_SequenceBase::GetRepresentativeFrameNumber()
{
    if (fRepresentativeFrame < 0)
        fRepresentativeFrame = 1;
    return fRepresentativeFrame;
}

dk_ImageFrameInfo* dk_SequenceBase::GetRepresentativeImageFrameInfo()
{
    return GetImageFrameInfo(GetRepresentativeFrameNumber());
}

// ---- facts --------------------------------------------------------------------------------------

dk_DicomBaseElem* dk_SequenceBase::GetSequenceParent()
{
    return Modality_SeriesIsSingleSequence(GetModality()) ? GetGrandParent() : GetParent();
}

dk_Patient* dk_SequenceBase::GetThePatient()
{
    for (dk_DicomBaseElem* elem = this; elem; elem = elem->GetParent())
        if (elem->GetDicomTreeLevel() == 0)
            return static_cast<dk_Patient*>(elem);
    return nullptr;
}

bool dk_SequenceBase::Is_XAUS()
{
    const ModalityType modality = GetModality();
    return modality == DicomUtil_ModalityFromString("US") ||
           modality == DicomUtil_ModalityFromString("XA") ||
           modality == DicomUtil_ModalityFromString("IVUS");
}

bool dk_SequenceBase::HasBuiltInScaleInfo()
{
    if (fHasScaleInfo < 0) {
        fHasScaleInfo = 0;
        for (dk_ImageFile* file = FirstFile(*this); file && fHasScaleInfo == 0;
             file = NextFile(file)) {
            if (!file->GetSource() || !file->GetSource()->IsDICOM())
                break;
            const zelParserVisit visit(file->GetSource());
            if (visit.Parser() && Parser_FileHasScaleInfo(zelFrameGroups(visit.Parser()), 1))
                fHasScaleInfo = 1;
        }
    }
    return fHasScaleInfo == 1;
}

bool dk_SequenceBase::HasPixelSizeData()
{
    return HasBuiltInScaleInfo() || GetViewState()->fManualPixelScale != 0;
}

// Frames are shown with square pixels where the file tells their shape: one axis has more pixels
// then than are stored, and they are smaller.
void dk_SequenceBase::GetPixelDimensions(float* first, float* second)
{
    *first = *second = GetViewState()->fManualPixelScale;
    for (dk_ImageFile* file = FirstFile(*this); file && *first == 0; file = NextFile(file)) {
        const zelParserVisit visit(file->GetSource());
        if (!visit.Parser())
            continue;
        const zelFrameGroups groups(visit.Parser());
        zelPlane plane;
        // Its code is that of the orientation, which plays no part.
        static_cast<void>(Parser_GetPositionOrientationSpacingAndSize(groups, 1, 0, 0, &plane));
        if (!(plane.fRowSpacing > 0) || !(plane.fColumnSpacing > 0))
            continue;
        std::int32_t vertical = 0, horizontal = 0;
        file->GetAspectRatio(&vertical, &horizontal);
        const bool known = vertical > 0 && horizontal > 0;
        const double ratio = known ? static_cast<double>(vertical) / horizontal : 1;
        *first = static_cast<float>(plane.fColumnSpacing * std::min(ratio, 1.0));
        *second = static_cast<float>(plane.fRowSpacing / std::max(ratio, 1.0));
        return;
    }
}

bool dk_SequenceBase::HasDICOMOverlays()
{
    if (fHasOverlays >= 0 || !IsDICOM())
        return fHasOverlays == 1;
    bool found = false;
    for (dk_ImageFile* file = FirstFile(*this); file && !found; file = NextFile(file))
        found = file->HasLoadedDICOMParser() && file->HasDICOMOverlays();
    if (found)
        fHasOverlays = 1;
    else if (AllParsersLoaded())
        fHasOverlays = 0;
    return found;
}

bool dk_SequenceBase::HasColorize()
{
    return std::ranges::any_of(fFrameInfo.fFrames,
                               [](const dk_ImageFrameInfo& info) { return info.fColorTable != 0; });
}

// No frame of any sequence is kept between two drawings yet.
bool dk_SequenceBase::AllFramesAreInBaseBuffer() { return false; }

QvxStatus dk_SequenceBase::GetBaseBufferIDsForSequenceFrame(std::int32_t frame,
                                                            std::int32_t* frameInFile,
                                                            std::int32_t* sourceID)
{
    const dk_ImageFrameInfo* info = GetImageFrameInfo(frame);
    if (!info || !info->fSource)
        return kQvxBadArgument;
    *sourceID = info->fSource->SourceID();
    *frameInFile = info->fFrameInFile;
    return kQvxOK;
}

std::int32_t dk_SequenceBase::GetDefaultCineType()
{
    const zelParserVisit visit(GetCurrentSource());
    return Parser_GetDefaultCineType(visit.Parser());
}

std::int32_t dk_SequenceBase::CountHandicaps(std::uint32_t mask) const
{
    return static_cast<std::int32_t>(std::ranges::count_if(
        fFrameInfo.fFrames,
        [&](const dk_ImageFrameInfo& info) { return (info.fFrameHealth & mask) != 0; }));
}

std::uint32_t dk_SequenceBase::GetHandicapSum(std::uint32_t mask) const
{
    std::uint32_t sum = 0;
    for (const dk_ImageFrameInfo& info : fFrameInfo.fFrames)
        sum |= info.fFrameHealth & mask;
    return sum;
}

bool dk_SequenceBase::FramesOfOneFile() { return GetNumChildren() == 1; }

bool dk_SequenceBase::SingleFileTiming() { return Modality_HasSingleFileSequences(GetModality()); }

// What is viewed: an ordered run of frames out of one or more files, with its look and its caches.
// A child of a series, parent of image files. Frames count from 1.
#pragma once
#include "dicom_core/look/CVOIBlitter.h"
#include "dicom_core/look/GridFrameTransDoc.h"
#include "dicom_core/look/dk_SequenceViewState.h"
#include "dicom_core/tree/dk_SequenceFrameInfo.h"
#include "dicom_core/tree/dk_SequenceParent.h"
#include "dicom_core/values/USRegions.h"

#include <memory>
#include <optional>
#include <vector>

class ZELSequenceProxy;
class dk_ImageFile;
class dk_Patient;

class dk_SequenceBase : public dk_ModalityBaseElem {
public:
    dk_SequenceBase() = default;
    explicit dk_SequenceBase(const DicomImageFileRec& record);
    ~dk_SequenceBase() override;

    virtual void MakeCloneSequence(dk_SequenceBase* clone);
    [[nodiscard]] virtual bool AllParsersLoaded() { return false; }
    [[nodiscard]] virtual dk_DicomBaseElem*
    GetSequenceParent();  // the study where that is one sequence
    [[nodiscard]] virtual dk_Patient* GetThePatient();
    [[nodiscard]] virtual bool IsDICOM() const { return false; }
    [[nodiscard]] virtual bool IsExtracted() const { return false; }
    [[nodiscard]] virtual bool IsGood() { return GetNumberOfFrames() > 0; }
    [[nodiscard]] virtual std::int32_t GetNumberOfFrames();
    [[nodiscard]] virtual dk_ImageFile* GetCurrentImageFile();
    [[nodiscard]] virtual ParserHandle GetCurrentParser();
    [[nodiscard]] virtual const std::vector<US_ROIRegDataRec>* GetROIData() { return nullptr; }
    [[nodiscard]] virtual std::int32_t GetROINumber() { return 0; }
    [[nodiscard]] virtual bool AllFilesOnDisk() { return true; }
    // Takes over frames and files of `other`, which is left without children.
    virtual void AppendSequence(dk_SequenceBase* other);

    [[nodiscard]] std::int32_t GetDicomTreeLevel() const override { return 3; }
    [[nodiscard]] std::string GetExportTitle() override;
    [[nodiscard]] bool Is_XAUS() override;

    // Parts made on first use.
    [[nodiscard]] dk_SequenceViewState* GetViewState();
    [[nodiscard]] dk_SequenceFrameInfo* GetSequenceFrameInfo();  // built; null if that can't be
    [[nodiscard]] CVOIBlitter* GetVOIBlitter();
    [[nodiscard]] std::vector<zel_GridFrameInfoItem>* GetSequenceCellInfo();
    [[nodiscard]] zel_GridFrameInfoItem* GetCellInfo(std::int32_t frame);
    void ClearSequenceCellInfo();
    void ClearViewState();

    // Frame access.
    QvxStatus BuildFrameInfo();  // a new table; kQvxBadArgument when there is no frame
    [[nodiscard]] dk_ImageFrameInfo* GetImageFrameInfo(std::int32_t frame);
    [[nodiscard]] dk_ImageFile* GetFrameImageFile(std::int32_t frame);
    [[nodiscard]] ParserHandle GetFrameParser(std::int32_t frame);
    [[nodiscard]] std::int32_t FirstFrameInImageFile(const dk_ImageFile* file);  // 0 none
    [[nodiscard]] std::int32_t FirstFrameInZelSource(const zelImageSource* source);
    void SetCurrentFrameIndex(std::int32_t frame);  // ignored outside of the count
    [[nodiscard]] std::int32_t GetCurrentFrameIndex() const { return fFrameInfo.fCurrentFrame; }
    [[nodiscard]] zelImageSource* GetCurrentSource();
    [[nodiscard]] bool IsDICOMGray();
    [[nodiscard]] std::int32_t GetRepresentativeFrameNumber();
    void SetRepresentativeFrameNumber(std::int32_t frame) { fRepresentativeFrame = frame; }
    [[nodiscard]] dk_ImageFrameInfo* GetRepresentativeImageFrameInfo();

    // Tree order across the whole tree.
    [[nodiscard]] dk_SequenceBase* GetNextSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetPrevSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetNextGoodSequence_DICOM();
    [[nodiscard]] dk_SequenceBase* GetPrevGoodSequence_DICOM();

    // Facts.
    [[nodiscard]] bool HasPixelSizeData();
    [[nodiscard]] bool HasBuiltInScaleInfo();
    // Millimetres that a pixel of frame coordinates (aspect-corrected) takes along a row, and down
    // a column; the user's calibration comes first. 0 unknown.
    void GetPixelDimensions(float* first, float* second);
    [[nodiscard]] bool HasDICOMOverlays();
    [[nodiscard]] bool HasColorize();
    [[nodiscard]] bool AllFramesAreInBaseBuffer();
    // The key under which a frame's picture is kept: primary and secondary number.
    [[nodiscard]] QvxStatus GetBaseBufferIDsForSequenceFrame(std::int32_t frame,
                                                             std::int32_t* frameInFile,
                                                             std::int32_t* sourceID);
    [[nodiscard]] std::int32_t GetDefaultCineType();
    [[nodiscard]] std::int32_t CountHandicaps(std::uint32_t mask) const;
    [[nodiscard]] std::uint32_t GetHandicapSum(std::uint32_t mask) const;

    // Timing and sizes, from the table.
    [[nodiscard]] float GetTotalSequenceDuration();
    [[nodiscard]] float GetFrameDuration(std::int32_t frame);
    [[nodiscard]] float GetTimePosOfFrame(std::int32_t frame);
    [[nodiscard]] std::int32_t GetFrameForTimePos(float time);
    [[nodiscard]] QvxStatus GetMinFrameSize(Point* size);
    [[nodiscard]] QvxStatus GetMaxFrameSize(Point* size);
    [[nodiscard]] QvxStatus GetMaxFrameSizeFast(Point* size);
    [[nodiscard]] QvxStatus GetFrameSizeEnvelop(Point* size);
    [[nodiscard]] QvxStatus GetFrameSizeNormalEnvelop(Point* size);
    [[nodiscard]] float GetBuiltInSequenceFPS();
    [[nodiscard]] float GetCurrentCineSpeed();
    void SetCurrentCineSpeed(float fps);
    [[nodiscard]] std::int32_t GetCurrentCineRate() const { return fFrameInfo.fCineRate; }
    [[nodiscard]] std::int32_t GetCurrentAdjustedCineRate();

    [[nodiscard]] ZELSequenceProxy* GetSequenceProxy() const { return fSequenceProxy; }
    void SetSequenceProxy(ZELSequenceProxy* proxy) { fSequenceProxy = proxy; }

protected:
    [[nodiscard]] bool FramesOfOneFile();  // exactly one child
    [[nodiscard]] bool SingleFileTiming();
    void CopyBaseFieldsTo(dk_SequenceBase* other) const;

    // In the order in which they are freed: mapper, look, cells, then table and children.
    dk_SequenceFrameInfo fFrameInfo;
    std::unique_ptr<std::vector<zel_GridFrameInfoItem>> fCellInfo;
    std::unique_ptr<dk_SequenceViewState> fViewState;
    std::unique_ptr<CVOIBlitter> fVOIBlitter;
    ZELSequenceProxy* fSequenceProxy = nullptr;  // not owned, set by the proxy itself
    ModalityType fModalityCode = kModalityUnknown;
    std::int16_t fHasScaleInfo = -1;  // -1 unknown, 0 no, 1 yes
    std::int16_t fHasOverlays = -1;
    std::int32_t fRepresentativeFrame = -1;  // -1 not chosen
};

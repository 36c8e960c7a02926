// The leaf of the tree: one file, its source, what its header says, and cached answers. Getters
// look at their caches first; where they must read, the header is walked for the moment and
// dropped.
#pragma once
#include "dicom_core/tree/dk_SequenceParent.h"
#include "dicom_core/values/CharacterEncoding.h"

#include "qpix/zelImageSource.h"
#include <memory>

class dk_ImageFile final : public dk_DicomBaseElem {
public:
    dk_ImageFile();
    explicit dk_ImageFile(const DicomImageFileRec& record);
    ~dk_ImageFile() override;

    // Imports the file and takes the source; kQvxBadArgument if that gives none that can be used,
    // else the import's codes. After a failure the file has the source that it had.
    [[nodiscard]] QvxStatus SetSourceFile(const FileRef& file, FileImportMode mode);
    void SetSourceFile(zelImageSource* source);  // counts a reference; null clears
    [[nodiscard]] zelImageSource* GetSource() const { return fSource; }

    void SetParserInfoData(const DicomImageFileRec& record);
    [[nodiscard]] const DicomImageFileRec* GetParserInfoData() const { return fParserInfo.get(); }

    [[nodiscard]] std::unique_ptr<dk_DicomBaseElem> MakeClone() override;
    [[nodiscard]] std::unique_ptr<dk_ImageFile> Duplicate();  // shares the source
    // The order of an open; see the comment in the source. Needs both records.
    [[nodiscard]] bool IsBefore(const dk_ImageFile* other) const;

    [[nodiscard]] bool HasLoadedDICOMParser() const;  // the header has been read and can be again
    [[nodiscard]] ParserHandle GetDICOMParser();      // open until the source releases it; or null
    [[nodiscard]] bool HasFileOnDisk() const;
    [[nodiscard]] std::string PathURL() const;

    void SetModality_Externally(std::string_view modality);
    [[nodiscard]] virtual ModalityType GetModality();
    [[nodiscard]] std::int32_t GetInstanceNumber();
    [[nodiscard]] std::int32_t GetSeriesNumber();
    [[nodiscard]] std::string_view GetSOPClassUID();
    [[nodiscard]] std::string_view GetImageComments();
    [[nodiscard]] std::int32_t GetNumberOfFrames();
    void GetAspectRatio(std::int32_t* vertical, std::int32_t* horizontal);
    [[nodiscard]] const dk_DicomCharacterEncoding& GetCharacterEncoding();
    [[nodiscard]] bool HasDICOMOverlays();  // false while the file can't be read
    [[nodiscard]] std::int32_t GetImageID() const { return fImageID; }

    [[nodiscard]] std::string GetDKTitle() override;
    [[nodiscard]] QString CopyDKTitle() override;
    [[nodiscard]] std::string GetExportTitle() override;
    [[nodiscard]] QString Copy_DK_ExportTitle() override;
    [[nodiscard]] QString Copy_DK_DisplayTitle() override;
    [[nodiscard]] std::int32_t GetDicomTreeLevel() const override { return 4; }

private:
    std::unique_ptr<DicomImageFileRec> fParserInfo;
    zelImageSource* fSource = nullptr;                      // one reference is held
    std::int32_t fSeriesNumber = -1, fInstanceNumber = -1;  // -1 unknown
    BoundedText<65> fSOPClassUID;
    BoundedText<256> fImageComments;
    bool fCommentsRead = false;
    std::int8_t fHasOverlays = -1;            // -1 unknown
    std::int32_t fNumFrames = 0;              // 0 unknown
    std::int32_t fAspectV = 0, fAspectH = 0;  // 0 unknown
    ModalityType fModalityCode = kModalityUnknown;
    std::int32_t fImageID;
    std::unique_ptr<dk_DicomCharacterEncoding> fCharEncoding;
};

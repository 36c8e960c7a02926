// The importer instance of DICOM files: frames through the toolkit's decoders.
#pragma once
#include "util/PixMap.h"

#include "QvxToolkit/QvxFrameRecord.h"
#include "QvxToolkit/QvxOverlayPlane.h"
#include "qpix/GraphicsImporter.h"
#include <optional>
#include <string>
#include <vector>

class DicomImporter final : public GraphicsImporter {
public:
    [[nodiscard]] std::uint32_t Subtype() const override { return kImporterDicom; }
    [[nodiscard]] std::string_view ComponentName() const override { return "DICOM"; }
    [[nodiscard]] std::string_view MIMEType() const override { return "application/dicom"; }

    // Opens the file; its header is walked when an image is first asked for. All that ask for one
    // give kQvxNoSuchElement for a file that states no size of an image. One that does, but whose
    // pixels are missing or beyond the decoders, counts one image, whose size is known and whose
    // description and draw answer the reason.
    [[nodiscard]] QvxStatus SetDataFile(const FileRef& file) override;
    [[nodiscard]] FileIdentity DataIdentity() const override;
    [[nodiscard]] QvxStatus Validate(bool* valid) override;
    [[nodiscard]] QvxStatus GetImageCount(std::int32_t* count) override;
    [[nodiscard]] QvxStatus GetNaturalBounds(Rect* bounds) override;
    // Codec type 'DICM'; depth 8 with gray table 40, or depth 16 with 'cspc' 'b16g', or depth 32;
    // 'DVPA' where the file has a window.
    [[nodiscard]] QvxStatus GetImageDescription(ImageDescription* description) override;
    // Offsets of an inflated data set are those of its inflated form.
    [[nodiscard]] QvxStatus GetDataOffsetAndSize(std::uint32_t* offset,
                                                 std::uint32_t* size) override;
    [[nodiscard]] QvxStatus ReadData(void* dest, std::uint32_t offset, std::uint32_t size) override;
    [[nodiscard]] QvxStatus GetImageDataInfo(std::uint32_t selector, std::uint32_t* code) override;
    [[nodiscard]] QvxStatus GetVOIChoices(std::vector<QvxVOIChoice>* choices) override;
    [[nodiscard]] QvxStatus GetDefaultWindow(QvxDefaultWindow* window) override;
    [[nodiscard]] QvxStatus GetOverlayCount(std::int32_t* count) override;
    [[nodiscard]] QvxStatus SetOverlayIndex(std::int32_t index) override;
    [[nodiscard]] QvxStatus GetOverlayBounds(Rect* bounds) override;
    [[nodiscard]] QvxStatus GetOverlayImageDescription(ImageDescription* description) override;
    [[nodiscard]] QvxStatus GetOverlayDataOffsetAndSize(std::uint32_t* offset,
                                                        std::uint32_t* size) override;
    // A frame that can't be decoded is told of in the log, with the reason.
    [[nodiscard]] QvxStatus Draw(COffscreen& target, DicomCodec* codec) override;

private:
    [[nodiscard]] QvxStatus Load();
    [[nodiscard]] QvxStatus ReadHeader();
    [[nodiscard]] QvxStatus ReadSize();
    [[nodiscard]] const QvxOverlay* SelectedOverlay();
    [[nodiscard]] QvxStatus LoadOverlays();
    [[nodiscard]] QvxStatus DecodeInto(const PixMap& map, DicomCodec& codec);
    [[nodiscard]] bool FillsWhole(COffscreen& target, const Rect& source) const;
    [[nodiscard]] QvxStatus DrawThroughCopy(COffscreen& target, const Rect& source,
                                            DicomCodec& codec);
    [[nodiscard]] Rect NaturalBounds() const;

    QvxReaderPtr fReader;
    QvxFrameRecord fRecord;
    std::optional<QvxStatus> fHeaderStatus;  // of reading the header, once that was tried
    QvxStatus fRecordStatus = kQvxOK;        // of what it says of its pixels
    std::string fRecordReason;
    std::vector<QvxOverlay> fOverlays;  // of image fOverlayImage
    std::int32_t fOverlayImage = 0;     // 0: none looked at
    std::size_t fOverlayIndex = 0;      // from 1; 0 none selected
    std::uint32_t fWidth = 0, fHeight = 0;
};

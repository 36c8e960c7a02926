// An importer instance: one open image file of one kind, and the geometry of its next draw. Images
// count from 1. The operations of the kind are virtual; the file is idle between calls.
// One thread at a time.
#pragma once
#include "util/FileRef.h"
#include "util/FourCC.h"
#include "util/ImageDescription.h"
#include "util/StatusCodes.h"

#include "QvxToolkit/QvxCodec.h"
#include "qpix/MatrixRecord.h"
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

class COffscreen;
class DicomCodec;

inline constexpr std::uint32_t kImporterDicom = FourCC("DICM");

inline constexpr std::uint32_t kImageDataStoredAs = FourCC("G_CT");
inline constexpr std::uint32_t kStoredLossyJPEG = FourCC("JLSY");

// What one of several images in a file is.
enum IndexedImageKind : std::uint32_t {
    kImageKindThumbnail = 1,
    kImageKindLayer = 2,
    kImageKindPage = 4,
    kImageKindResolution = 8,
};

// How well a decoder is to work; larger is better and slower.
inline constexpr std::int32_t kQualityCopy = 768;
inline constexpr std::int32_t kQualitySequence = 1023;
inline constexpr std::int32_t kQualityFrame = 1024;

// What a call of Validate means: kQvxOK, kQvxNotOfKind for a clean no, or the failure.
[[nodiscard]] inline QvxStatus StatusOfValidation(QvxStatus status, bool valid)
{
    if (status == kQvxOK)
        return valid ? kQvxOK : kQvxNotOfKind;
    return status == kQvxImporterValid ? kQvxOK : status;
}

class GraphicsImporter {
public:
    GraphicsImporter() = default;
    virtual ~GraphicsImporter() = default;
    GraphicsImporter(const GraphicsImporter&) = delete;
    GraphicsImporter& operator=(const GraphicsImporter&) = delete;

    // Kind of file, and the kind behind any alias of it.
    [[nodiscard]] virtual std::uint32_t Subtype() const = 0;
    [[nodiscard]] virtual std::uint32_t BaseSubtype() const { return Subtype(); }
    [[nodiscard]] virtual std::string_view ComponentName() const = 0;
    [[nodiscard]] virtual std::string_view MIMEType() const = 0;

    // Binds the instance to a file, in place of the one before. Fails for what it can't import.
    [[nodiscard]] virtual QvxStatus SetDataFile(const FileRef& file) = 0;
    [[nodiscard]] const FileRef& DataFile() const { return fFile; }
    // Which state of which file it has opened, if the kind knows.
    [[nodiscard]] virtual FileIdentity DataIdentity() const { return {}; }
    // Is the file of the importer's kind? kQvxImporterValid says yes as well.
    [[nodiscard]] virtual QvxStatus Validate(bool* valid) = 0;

    [[nodiscard]] virtual QvxStatus GetImageCount(std::int32_t* count) = 0;
    [[nodiscard]] std::int32_t ImageIndex() const { return fImageIndex; }
    // kQvxBadArgument for an image that isn't there.
    [[nodiscard]] QvxStatus SetImageIndex(std::int32_t index);

    // Of the current image: 0, 0, height, width, pinned to 16 bits.
    [[nodiscard]] virtual QvxStatus GetNaturalBounds(Rect* bounds) = 0;
    [[nodiscard]] virtual QvxStatus GetImageDescription(ImageDescription* description) = 0;
    // Where the current image's stored bytes lie in the file, and any bytes of it.
    [[nodiscard]] virtual QvxStatus GetDataOffsetAndSize(std::uint32_t* offset,
                                                         std::uint32_t* size) = 0;
    [[nodiscard]] virtual QvxStatus ReadData(void* dest, std::uint32_t offset,
                                             std::uint32_t size) = 0;
    // How the stored pixels are coded: selector 'G_CT' gives a four-character code, of which
    // kStoredLossyJPEG is the one that others must know. kQvxUnsupported for another selector and
    // for kinds that can't tell.
    [[nodiscard]] virtual QvxStatus GetImageDataInfo(std::uint32_t selector, std::uint32_t* code);
    // The looks that the file offers for the current image, and the one that it is shown with
    // first. kQvxUnsupported for kinds without any.
    [[nodiscard]] virtual QvxStatus GetVOIChoices(std::vector<QvxVOIChoice>* choices);
    [[nodiscard]] virtual QvxStatus GetDefaultWindow(QvxDefaultWindow* window);
    // What the current image is beside others of its file: bits of IndexedImageKind.
    [[nodiscard]] virtual std::uint32_t ImageKind() { return 0; }
    // The overlays of the current image, from 1; kinds without any answer a count of 0.
    [[nodiscard]] virtual QvxStatus GetOverlayCount(std::int32_t* count);
    // kQvxBadArgument for one that isn't there. The rest answers of the one selected last.
    [[nodiscard]] virtual QvxStatus SetOverlayIndex(std::int32_t index);
    // In pixels of the image; it may reach beyond them.
    [[nodiscard]] virtual QvxStatus GetOverlayBounds(Rect* bounds);
    // How the bytes below become a plane of one bit a pixel: OverlayDescription.h.
    [[nodiscard]] virtual QvxStatus GetOverlayImageDescription(ImageDescription* description);
    // Where they lie, for ReadData.
    [[nodiscard]] virtual QvxStatus GetOverlayDataOffsetAndSize(std::uint32_t* offset,
                                                                std::uint32_t* size);
    // Decodes the current image into the target as matrix, mode and quality say. `codec` is null
    // or a decoder of the kind that is to do it and remember the frame.
    // kQvxDrawStopped when the user stopped it, kQvxUnsupported for a matrix that turns.
    [[nodiscard]] virtual QvxStatus Draw(COffscreen& target, DicomCodec* codec) = 0;

    [[nodiscard]] const MatrixRecord& Matrix() const { return fMatrix; }
    void SetMatrix(const MatrixRecord& matrix) { fMatrix = matrix; }
    [[nodiscard]] const Rect& SourceRect() const { return fSourceRect; }
    void SetSourceRect(const Rect& r) { fSourceRect = r; }
    [[nodiscard]] std::int16_t GraphicsMode() const { return fMode; }
    void SetGraphicsMode(std::int16_t mode) { fMode = mode; }
    [[nodiscard]] std::int32_t Quality() const { return fQuality; }
    void SetQuality(std::int32_t quality) { fQuality = quality; }

protected:
    void BindFile(const FileRef& file);

private:
    FileRef fFile;
    std::int32_t fImageIndex = 1;
    MatrixRecord fMatrix;
    Rect fSourceRect;  // empty: the whole image
    std::int16_t fMode = 0;
    std::int32_t fQuality = kQualityFrame;
};

// One open image file as the system uses it: an importer instance with what is cached of the
// current image. Images count from 1. Every operation gives kQvxNoImporter without an instance,
// kQvxBadArgument for a missing destination. One thread at a time; who reads another image than the
// current one puts the index back.
#pragma once
#include "pixels/RGBColor.h"

#include "qpix/GraphicsImporter.h"
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class CImporter {
public:
    explicit CImporter(std::unique_ptr<GraphicsImporter> instance);
    virtual ~CImporter();
    CImporter(const CImporter&) = delete;
    CImporter& operator=(const CImporter&) = delete;

    [[nodiscard]] virtual QvxStatus CountImages(std::int32_t* count);
    // Another index than the current one drops what is cached, makes the matrix the identity and
    // the source rectangle the whole of the new image. The current index changes nothing.
    [[nodiscard]] virtual QvxStatus SetCurrentImage(std::int32_t index);
    [[nodiscard]] virtual QvxStatus GetCurrentImage(std::int32_t* index);
    // Fills the cache of GetImageDesc.
    [[nodiscard]] virtual QvxStatus LoadImageDesc();

    // Of the current image. The description is borrowed until the image changes.
    [[nodiscard]] QvxStatus GetImageDesc(const ImageDescription** description);
    [[nodiscard]] QvxStatus GetDepth(std::int32_t* depth);         // a gray depth is above 32
    [[nodiscard]] QvxStatus GetColorSpace(std::uint32_t* format);  // 'cspc', else the depth
    [[nodiscard]] QvxStatus GetSize(Point* size);
    [[nodiscard]] QvxStatus GetNaturalBounds(Rect* bounds);

    // Where the next draw puts the image.
    [[nodiscard]] QvxStatus GetMatrix(MatrixRecord* matrix) const;
    [[nodiscard]] QvxStatus SetMatrix(const MatrixRecord& matrix);
    // The matrix that fits the natural bounds into `bounds`; kQvxBadArgument if either is empty.
    [[nodiscard]] QvxStatus SetBounds(const Rect& bounds);

    [[nodiscard]] QvxStatus GetDataRef(FileRef* file) const;
    // Which state of that file is open, not known for some kinds.
    [[nodiscard]] QvxStatus GetDataIdentity(FileIdentity* identity) const;
    // Place of the stored bytes of the current image in its file.
    [[nodiscard]] QvxStatus GetDataOffsetAndSize(std::uint32_t* offset, std::uint32_t* size);
    [[nodiscard]] QvxStatus ReadData(void* dest, std::uint32_t offset, std::uint32_t size);
    // Those bytes.
    [[nodiscard]] QvxStatus GetCompressedData(std::vector<std::byte>* data);
    [[nodiscard]] QvxStatus GetMIMEType(std::string* type) const;
    [[nodiscard]] QvxStatus GetImportComponentInfo(std::string* name, std::uint32_t* subtype) const;
    // What each image of the file is: bits of IndexedImageKind. Made once, by looking at each
    // image; files of a single image, and of very many pages, are not walked.
    [[nodiscard]] QvxStatus LoadIndexedImageInfo();
    // Of image `index`, from 1; 0 for one that isn't there, and before the table was made.
    [[nodiscard]] std::uint32_t GetIndexedImageType(std::int32_t index) const;
    // Is the file of the kind of its importer? kQvxImporterValid or kQvxOK with an answer.
    [[nodiscard]] QvxStatus Validate(bool* valid);

    // Fills the offscreen with white and draws the current image under the matrix, one that does
    // more than move it by way of a clone at its natural size. kQvxUserCanceled when the user
    // stopped it, kQvxUnsupported for a matrix that turns. Mode, quality and matrix of the
    // instance are put back. The colour is for graphics modes that use one; those here use none.
    [[nodiscard]] QvxStatus DrawOnOffscreen(COffscreen& offscreen, std::int32_t quality,
                                            std::int16_t mode, RGBColor color);
    // The same straight from the decoder; `codec`, if given, does it and remembers the frame.
    // `description` null: the cached one.
    [[nodiscard]] QvxStatus DecompressOnOffscreen(COffscreen& offscreen,
                                                  const ImageDescription* description,
                                                  std::int32_t quality, std::int16_t mode,
                                                  DicomCodec* codec);

protected:
    [[nodiscard]] GraphicsImporter* Instance() const { return fInstance.get(); }
    void DropCache() { fImageDesc.reset(); }

private:
    [[nodiscard]] QvxStatus DrawPlain(COffscreen& offscreen, std::int32_t quality,
                                      std::int16_t mode);
    [[nodiscard]] QvxStatus ReadImageKinds(std::int32_t count);
    void InjectFakeFlashPixIndexedImageInfo();
    [[nodiscard]] QvxStatus DrawThroughClone(COffscreen& offscreen, std::int16_t mode);

    std::unique_ptr<GraphicsImporter> fInstance;
    std::optional<ImageDescription> fImageDesc;
    std::vector<std::uint32_t> fImageKinds;  // by image, empty until loaded
};

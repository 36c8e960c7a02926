// One image in one temporary file, a QuickTime image file: the atom 'idat' with the pixels, then
// 'idsc' with their description. All numbers are big-endian, rows are padded to 16 bytes.
// Rectangles of the pixels are read and written in place. A store that isn't in use has its file
// closed. Owned by its buffer; one thread at a time.
//
// All: kQvxBadArgument for a bad argument or rectangle, kQvxNoMemory; of files kQvxDiskFull,
// kQvxDirectoryFull and kQvxTooManyFiles, else an errno.
#pragma once
#include "pixels/Port.h"
#include "util/ImageDescription.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

struct DiskPix {
    std::string fPath;
    int fFile = -1;  // open descriptor, -1 when closed
    std::uint32_t fPixelFormat = 0;
    ImageDescription fDescription;  // with the table, if one goes with the file
    std::int32_t fWidth = 0, fHeight = 0;
    std::int16_t fPixelSize = 0;  // bits in the file; 0 for compressed bytes
    std::int32_t fRowBytes = 0;   // in the file
    std::int64_t fDataOffset = 8, fDataSize = 0;

    DiskPix() = default;
    ~DiskPix();  // closes; the file stays
    DiskPix(const DiskPix&) = delete;
    DiskPix& operator=(const DiskPix&) = delete;
};
using DiskPixPtr = std::unique_ptr<DiskPix>;

// Bits of a pixel of this format in memory. kQvxBadArgument for no format.
[[nodiscard]] QvxStatus GetRealPixelSize(std::uint32_t format, std::int16_t* size);

// Creates the file, which must not be there, at its final size, and leaves it open. Format 24 holds
// three bytes a pixel, R, G, B. `table` goes with the file when the format's description has a
// table of its own; null: the system's. Resolutions are 16.16 dots an inch. After a failure there
// is no file.
[[nodiscard]] QvxStatus DiskPixQTIFCreate(DiskPixPtr* store, const std::string& path,
                                          std::uint32_t pixelFormat, int width, int height,
                                          const ColorTable* table, std::int32_t horzResolution,
                                          std::int32_t vertResolution);
// The same for compressed bytes, which are written at once.
[[nodiscard]] QvxStatus DiskPixQTIFCreateCompressed(DiskPixPtr* store, const std::string& path,
                                                    const ImageDescription& description,
                                                    std::span<const std::byte> bytes);
// Closes it and deletes the file.
void DiskPixDispose(DiskPixPtr* store);
void DiskPixCloseFileRef(DiskPix* store);
[[nodiscard]] QvxStatus DiskPixUpdateFileRef(DiskPix* store);  // opens it if it is closed

// Pixels of a rectangle of the image, from or to `memory`, whose rows are `memoryRowBytes` apart.
// The rectangle lies in the image and begins on a byte; an empty one is done at once.
[[nodiscard]] QvxStatus DiskPixGetTilePixels(DiskPix* store, const Rect& rect, std::uint8_t* memory,
                                             std::int32_t memoryRowBytes);
[[nodiscard]] QvxStatus DiskPixSetTilePixels(DiskPix* store, const Rect& rect,
                                             const std::uint8_t* memory,
                                             std::int32_t memoryRowBytes);
// With a buffer that several rows fit in, a rectangle of the image's whole height moves in groups
// of rows, small enough for the processor's caches however large the buffer is. Whole rows that lie
// in memory as in the file need no buffer and move at once.
[[nodiscard]] QvxStatus DiskPixGetTilePixelsEx(DiskPix* store, const Rect& rect,
                                               std::uint8_t* memory, std::int32_t memoryRowBytes,
                                               std::span<std::uint8_t> buffer);
[[nodiscard]] QvxStatus DiskPixSetTilePixelsEx(DiskPix* store, const Rect& rect,
                                               const std::uint8_t* memory,
                                               std::int32_t memoryRowBytes,
                                               std::span<std::uint8_t> buffer);
// Memory of A, R, G, B against a file of format 24, through a buffer that is larger than a row.
// What is read has 0 in its first byte; what is written loses it.
[[nodiscard]] QvxStatus DiskPixGetTilePixelsRGBtoARGB(DiskPix* store, const Rect& rect,
                                                      std::uint8_t* memory,
                                                      std::int32_t memoryRowBytes,
                                                      std::span<std::uint8_t> buffer);
[[nodiscard]] QvxStatus DiskPixSetTilePixelsARGBtoRGB(DiskPix* store, const Rect& rect,
                                                      const std::uint8_t* memory,
                                                      std::int32_t memoryRowBytes,
                                                      std::span<std::uint8_t> buffer);

// All of the data, padding included.
[[nodiscard]] QvxStatus DiskPixLoadImageData(DiskPix* store, std::vector<std::byte>* data);
[[nodiscard]] QvxStatus DiskPixGetImageDescription(const DiskPix& store,
                                                   ImageDescription* description);
[[nodiscard]] std::uint32_t DiskPixGetPixelFormat(const DiskPix& store);
// 'PXMP' for pixels, the description's codec type for compressed bytes.
[[nodiscard]] std::uint32_t DiskPixGetImageType(const DiskPix& store);

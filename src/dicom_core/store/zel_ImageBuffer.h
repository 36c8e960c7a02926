// A keyed store of decoded frames, with a budget of bytes, priorities, locks and an eviction of
// what was used least lately. Frames lie in temporary files (pixels/DiskPix.h), not in memory; a
// store in memory of the same behaviour stands beside it. Keys are a primary id, never 0, and a
// secondary id: a frame's number in its file and the number of that file, so that one file's frames
// are neighbours. Main thread only; the counter of accesses is shared by all buffers.
//
// kQvxBadArgument for a bad argument, an unknown type or a key that is taken, kZelBufferFull when
// there is no room and nothing that may go, kQvxFileNotFound without a temporary folder,
// kQvxNoMemory. A store that fails leaves images and bytes as they were, but for what was evicted
// before.
#pragma once
#include "pixels/COffscreenUtils.h"
#include "pixels/DiskPix.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <span>
#include <utility>
#include <vector>

inline constexpr std::uint32_t kBufferOnDisk = FourCC("DSPX");
inline constexpr std::uint32_t kBufferInMemory = FourCC("MBUF");

inline constexpr std::uint32_t kInsertPixels = FourCC("PXMP");
inline constexpr std::uint32_t kInsertCompressed = FourCC("jpeg");

inline constexpr std::uint32_t kAllPriorities = 0xFFFFFFFF;  // as a limit: all may be evicted
inline constexpr std::int32_t kDefaultBufferLimit = 0x40000000;
inline constexpr std::int32_t kBaseBufferIOBytes = 0x14000000;  // of the application's buffer

struct ImageInsertionParams {
    const Port* source = nullptr;  // of kInsertPixels
    Rect rect;                     // within the source, empty for all of it
    std::uint32_t type = kInsertPixels;
    std::int32_t primaryID = 0, secondaryID = 0;
    std::uint32_t storagePriority = 1;
    std::uint32_t makeRoomLimit = kAllPriorities;  // only lower priorities are evicted for it
    // Of kInsertCompressed: the description and the bytes.
    const ImageDescription* description = nullptr;
    std::span<const std::byte> bytes;
};

// Pixels in a file as a buffer on disk keeps them, not yet of any buffer: written on whatever
// thread has them, so that the main thread needn't. Deletes the file unless a buffer has taken it.
class WrittenPixels {
public:
    WrittenPixels() = default;
    ~WrittenPixels() { DiskPixDispose(&fDisk); }
    WrittenPixels(WrittenPixels&&) = default;
    WrittenPixels& operator=(WrittenPixels&&) = default;

    // `rect` of the port, a whole number of bytes from its left edge, to a new file at `path`,
    // through `block`, larger than a row where the port has 32 bits. The codes of DiskPix.h; after
    // a failure there is no file.
    [[nodiscard]] QvxStatus Write(const Port& port, const Rect& rect, const std::string& path,
                                  std::span<std::uint8_t> block);
    explicit operator bool() const { return fDisk != nullptr; }

private:
    friend class zel_ImageBuffer;
    DiskPixPtr fDisk;  // closed
    std::int64_t fBytes = 0;
};

struct ImageBufferInfo {
    static constexpr std::uint32_t kLocked = 1;  // lock bit: must not be disposed
    static constexpr std::uint32_t kStale = 1;   // flag of the grids

    std::uint32_t fStorageType = kBufferOnDisk;
    DiskPixPtr fDisk;
    std::unique_ptr<CQTOffscreen> fMemory;
    std::vector<std::byte> fAuxData;
    std::uint32_t fAuxTag = 0;  // 0: no auxiliary data
    std::int32_t fPrimaryID = 0, fSecondaryID = 0;
    std::uint32_t fAccessStamp = 0;
    std::uint32_t fPriority = 0;
    std::uint32_t fLock = 0, fFlags = 0;
    std::int32_t fWidth = 0, fHeight = 0;
    std::int64_t fBytes = 0;  // counted against the budget
};

// Draws compressed bytes on a part of a port.
using ImageDecompressor =
    std::function<QvxStatus(const ImageDescription& description, std::span<const std::byte> bytes,
                            Port* target, const Rect& rect)>;

class zel_ImageBuffer {
public:
    explicit zel_ImageBuffer(std::uint32_t type = kBufferOnDisk);
    virtual ~zel_ImageBuffer();
    zel_ImageBuffer(const zel_ImageBuffer&) = delete;
    zel_ImageBuffer& operator=(const zel_ImageBuffer&) = delete;

    // Evicts down to the new limit. kQvxBadArgument if it is negative.
    [[nodiscard]] QvxStatus SetBufLimit(std::int32_t bytes);
    // The block that pixels pass through: set aside, but no memory before it is used, and then of a
    // few groups of rows only. 0 frees it; one that can't be had leaves the old one; a negative
    // size does nothing. 32-bit frames need it.
    void SetIOBufferSize(std::int32_t bytes);
    [[nodiscard]] std::int32_t IOBufferSize() const { return fIOSize; }
    [[nodiscard]] std::int64_t CalcMaxAvailableSpace() const;
    [[nodiscard]] std::int64_t BytesUsed() const { return fUsed; }
    [[nodiscard]] std::size_t CountImages() const { return fImages.size(); }
    void SetDecompressor(ImageDecompressor decompressor) { fDecompress = std::move(decompressor); }

    [[nodiscard]] QvxStatus AddNewImage(const ImageInsertionParams& params);
    // Writes the pixels in place where format and size are those of the stored image; else replaces
    // it, or adds.
    [[nodiscard]] QvxStatus UpdateImage(const ImageInsertionParams& params);
    [[nodiscard]] QvxStatus UpdateImage(const Port& source, const Rect& rect, std::int32_t primary,
                                        std::int32_t secondary);
    // Adds what has been written; only ids, priority and limit of `params` matter. What isn't taken
    // is deleted. kQvxBadArgument for a buffer in memory too.
    [[nodiscard]] QvxStatus TakeImage(WrittenPixels pixels, const ImageInsertionParams& params);
    [[nodiscard]] bool IsOnDisk() const { return fType == kBufferOnDisk; }
    // Into `rect` of the target (null: all of it), scaled if it has another size.
    [[nodiscard]] QvxStatus DrawImageByID(std::int32_t primary, std::int32_t secondary,
                                          Port* target, const Rect* rect);

    // Valid until the image goes. Null for a primary id of 0 and for no such image.
    [[nodiscard]] const ImageBufferInfo* GetImageInfoByID(std::int32_t primary,
                                                          std::int32_t secondary) const;
    [[nodiscard]] bool GetImageSizeByID(std::int32_t primary, std::int32_t secondary,
                                        std::int32_t* width, std::int32_t* height) const;
    // True when the tag matches and the block is no longer than `size`; it is copied then.
    [[nodiscard]] bool GetImageAuxInfoByID(std::int32_t primary, std::int32_t secondary,
                                           std::uint32_t tag, void* data, std::size_t size) const;
    [[nodiscard]] QvxStatus SetImageAuxInfoByID(std::int32_t primary, std::int32_t secondary,
                                                std::uint32_t tag, const void* data,
                                                std::size_t size);
    bool DisposeImageByID(std::int32_t primary, std::int32_t secondary);
    void DisposeImagesBySecondaryID(std::int32_t secondary);
    void DisposeImagesByFlags(std::uint32_t mask);  // those that have all of these flags
    void Reset();                                   // all of them

    void ChangeAllPriorities(std::uint32_t from, std::uint32_t to);
    // Mode 0 sets, -1 only lowers, 1 only raises.
    void SetImageStoragePriorityByID(std::int32_t primary, std::int32_t secondary,
                                     std::uint32_t priority, std::int32_t mode);
    // Each false, and nothing done, for no such image.
    [[nodiscard]] bool GetImageStoragePriorityByID(std::int32_t primary, std::int32_t secondary,
                                                   std::uint32_t* priority) const;
    [[nodiscard]] bool GetImageFlagsByID(std::int32_t primary, std::int32_t secondary,
                                         std::uint32_t* flags) const;
    bool SetImageFlagsByID(std::int32_t primary, std::int32_t secondary, std::uint32_t flags);
    bool UpdateImageFlagsByID(std::int32_t primary, std::int32_t secondary, std::uint32_t flags);
    void UpdateImageFlagsBySecondaryID(std::int32_t secondary, std::uint32_t flags);
    bool SetImageLockByID(std::int32_t primary, std::int32_t secondary, std::uint32_t lock);
    [[nodiscard]] bool GetImageLockByID(std::int32_t primary, std::int32_t secondary,
                                        std::uint32_t* lock) const;

    // Evicts images of lower priorities than `limit` until `bytes` more fit.
    [[nodiscard]] QvxStatus MakeRoom(std::int64_t bytes, std::uint32_t limit);

private:
    // Secondary id first: the order of the images.
    using Key = std::pair<std::int32_t, std::int32_t>;
    using Images = std::map<Key, ImageBufferInfo>;
    // Priority, stamp, key: the first that isn't locked goes first.
    using Turn = std::pair<std::pair<std::uint32_t, std::uint32_t>, Key>;

    static Key KeyOf(std::int32_t primary, std::int32_t secondary) { return {secondary, primary}; }
    static Turn TurnOf(const ImageBufferInfo& info);
    [[nodiscard]] ImageBufferInfo* Find(std::int32_t primary, std::int32_t secondary);
    void Renew(ImageBufferInfo* info, std::uint32_t priority, std::uint32_t stamp);
    void Touch(ImageBufferInfo* info);
    void SetPriority(ImageBufferInfo* info, std::uint32_t priority);
    Images::iterator Dispose(Images::iterator image);
    [[nodiscard]] Images::iterator ChooseImageToDispose(std::uint32_t limit);
    [[nodiscard]] QvxStatus Insert(ImageBufferInfo info);
    [[nodiscard]] QvxStatus CheckInsertion(const ImageInsertionParams& params, Rect* rect) const;
    // Makes room, runs `create`, and once more after a shortage that more room may help against.
    [[nodiscard]] QvxStatus CreateWithRoom(std::int64_t bytes, std::uint32_t limit,
                                           const std::function<QvxStatus()>& create);
    [[nodiscard]] QvxStatus AddNewImage_DiskPix_Pixmap(const ImageInsertionParams& params,
                                                       const Rect& rect);
    [[nodiscard]] QvxStatus AddNewImage_DiskPix_Compressed(const ImageInsertionParams& params);
    [[nodiscard]] QvxStatus AddNewImage_MemBuf(const ImageInsertionParams& params,
                                               const Rect& rect);
    [[nodiscard]] QvxStatus InsertWritten(WrittenPixels pixels, ImageBufferInfo info);
    [[nodiscard]] QvxStatus UpdateInPlace(const ImageInsertionParams& params, const Rect& rect,
                                          ImageBufferInfo* info);
    [[nodiscard]] QvxStatus DrawDisk(DiskPix* disk, Port* target, const Rect& rect);
    [[nodiscard]] QvxStatus ReadTile(DiskPix* disk, Port* target, const Rect& rect);
    [[nodiscard]] QvxStatus DrawCompressed(DiskPix* disk, Port* target, const Rect& rect);
    [[nodiscard]] std::span<std::uint8_t> IOBuffer() const;
    void FreeIOBuffer();

    std::uint32_t fType;
    Images fImages;
    std::set<Turn> fTurns;
    std::uint8_t* fIOBlock = nullptr;  // mapped, not allocated
    std::int32_t fIOSize = 0;
    std::int32_t fLimit = kDefaultBufferLimit;
    std::int64_t fUsed = 0;
    ImageDecompressor fDecompress;
};

// The buffer of the whole program, null until the program makes it.
extern zel_ImageBuffer* gAppBaseBuffer;

// Bytes that pixels of a format take without padding; 0 when an argument is not positive.
[[nodiscard]] std::int64_t CalcQTImageDataSize(std::uint32_t pixelFormat, std::int32_t width,
                                               std::int32_t height);
// 32 and 24 stand for one another; others stay.
[[nodiscard]] std::uint32_t GWorldPixelFormatToDiskPixPixelFormat(std::uint32_t format);
[[nodiscard]] std::uint32_t DiskPixPixelFormatToGWorldPixelFormat(std::uint32_t format);

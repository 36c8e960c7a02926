// An offscreen: the port in which a frame is decoded, turned and windowed, with the description of
// the image that it holds. Plain memory: it is always there and never purged.
// One thread at a time.
#pragma once
#include "pixels/PixView.h"
#include "util/ImageDescription.h"

#include <memory>

// Sizes are pixels, 1 to 32767; rectangles are (top, left, bottom, right), null for the whole.
// Status of all: kQvxBadArgument for a bad argument, an empty rectangle or an offscreen that holds
// no port; kQvxNoMemory. A failed `Create` leaves the offscreen empty.
class COffscreen {
public:
    COffscreen() = default;
    virtual ~COffscreen() = default;
    COffscreen(const COffscreen&) = delete;
    COffscreen& operator=(const COffscreen&) = delete;

    // Each drops what was held and makes a white port. The description is copied, with its
    // resolutions and its colour table; without one it is made from the port.
    //   pixelFormat     PixelFormat.h; here 24 becomes 32
    //   horz, vert      resolutions, 16.16 dots an inch
    //   temporary       kept as a note of where the caller wanted the memory
    [[nodiscard]] virtual QvxStatus Create(const ImageDescription& description, int width,
                                           int height, bool temporary);
    [[nodiscard]] virtual QvxStatus Create(std::uint32_t pixelFormat, int width, int height,
                                           bool temporary);
    [[nodiscard]] virtual QvxStatus Create(std::uint32_t pixelFormat, int width, int height,
                                           std::int32_t horz, std::int32_t vert, bool temporary);
    [[nodiscard]] virtual QvxStatus Unpurge();
    [[nodiscard]] virtual bool InMemory() const;
    [[nodiscard]] virtual bool GetPurgeable() const;
    virtual void SetPurgeable(bool purgeable);

    [[nodiscard]] virtual QvxStatus FillWithColor(RGBColor color);

    // PixelCopy.h says how pixels change between formats and sizes.
    [[nodiscard]] virtual QvxStatus CopyPixelsTo(Port* target, const Rect* from = nullptr,
                                                 const Rect* to = nullptr,
                                                 CopyMode mode = CopyMode::Replace,
                                                 const ClipRegion* clip = nullptr) const;
    [[nodiscard]] virtual QvxStatus CopyPixelsTo(const PixMap& target, const Rect* from = nullptr,
                                                 const Rect* to = nullptr,
                                                 CopyMode mode = CopyMode::Replace,
                                                 const ClipRegion* clip = nullptr) const;
    // The same at a quality, and with `to` within the target: `DecompressPixmap`.
    [[nodiscard]] virtual QvxStatus DecompressPixelsTo(Port* target, const Rect* from,
                                                       const Rect* to, int quality, CopyMode mode,
                                                       const ClipRegion* clip) const;
    [[nodiscard]] virtual QvxStatus DecompressPixelsTo(const PixMap& target, const Rect* from,
                                                       const Rect* to, int quality, CopyMode mode,
                                                       const ClipRegion* clip) const;

    // Turns every colour into its complement. Pixels of 2 to 15 bits stay and the whole table turns
    // over, whatever the rectangle; of others the rectangle's pixels turn over, alpha excepted.
    // `temporary` is where a copy would go; nothing is copied here.
    [[nodiscard]] virtual QvxStatus Invert(const Rect* rect = nullptr, bool temporary = false);

    [[nodiscard]] virtual Port* GetGWorldPtr() const;  // owned by the offscreen; null when empty
    [[nodiscard]] virtual PixMap GetPixMapHandle() const;  // no base address when empty
    // Copies: of what the offscreen was made from, and of what was made of its port.
    [[nodiscard]] virtual QvxStatus GetOrigImageDesc(ImageDescription* description) const;
    [[nodiscard]] virtual QvxStatus GetMadeImageDesc(ImageDescription* description) const;
    virtual void Destroy();

    // A new offscreen of the rectangle's size, from the description that this one was made from,
    // with its pixels and its present colour table.
    [[nodiscard]] QvxStatus Clone(const Rect* rect, bool temporary,
                                  std::unique_ptr<COffscreen>* clone) const;

    [[nodiscard]] int Width() const { return fWidth; }
    [[nodiscard]] int Height() const { return fHeight; }
    [[nodiscard]] bool InTemporaryMemory() const { return fInTemporaryMemory; }

protected:
    [[nodiscard]] QvxStatus MakePort(std::uint32_t format, const ImageDescription* description,
                                     int width, int height, std::int32_t horz, std::int32_t vert,
                                     bool temporary);
    // Makes `clone`, a new object, what `Clone` says.
    [[nodiscard]] QvxStatus CloneInto(COffscreen* clone, const Rect* rect, bool temporary) const;
    [[nodiscard]] const ImageDescription* OrigImageDesc() const { return fOrigDesc.get(); }

private:
    std::int16_t fWidth = 0, fHeight = 0;
    bool fInTemporaryMemory = false;
    std::unique_ptr<Port> fPort;
    std::unique_ptr<ImageDescription> fOrigDesc;  // a made one if none was given
    std::unique_ptr<ImageDescription> fMadeDesc;
};

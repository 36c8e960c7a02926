// What every document that can be drawn offers: how far it has come, its size, its pixels.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"
#include "pixels/PixView.h"

#include <cstdint>

// How far a document has come.
inline constexpr std::int32_t kDocMade = 1;           // perhaps with a sequence, no frame
inline constexpr std::int32_t kDocFrameSelected = 2;  // a frame and its importer are known
inline constexpr std::int32_t kDocImported = 3;       // the frame is in the offscreens

// Why a document has no frame.
inline constexpr std::int32_t kHandicapNone = 0;
inline constexpr std::int32_t kHandicapNoSuchFrame = 1;
inline constexpr std::int32_t kHandicapNoChildren = 2;
inline constexpr std::int32_t kHandicapNoSequence = 3;
inline constexpr std::int32_t kHandicapNoFrameYet = 4;

// `source` is a part of the document's picture, null for all of it; `destination` a part of the
// target, null for all of it; the picture is scaled from one to the other.
class zel_BaseDoc {
public:
    virtual ~zel_BaseDoc() = default;
    zel_BaseDoc(const zel_BaseDoc&) = delete;
    zel_BaseDoc& operator=(const zel_BaseDoc&) = delete;

    [[nodiscard]] virtual std::int32_t GetStatus() const { return fStatus; }
    [[nodiscard]] virtual std::int32_t GetHandicap() const { return fHandicap; }
    [[nodiscard]] virtual QvxStatus CopyPixelsToGWorldL(Port* target, const LongRect* source,
                                                        const Rect* destination, CopyMode mode,
                                                        const ClipRegion* clip) = 0;
    [[nodiscard]] virtual QvxStatus CopyPixelsToPixMapL(const PixMap& target,
                                                        const LongRect* source,
                                                        const Rect* destination, CopyMode mode,
                                                        const ClipRegion* clip) = 0;
    [[nodiscard]] virtual QvxStatus DecompressToGWorldL(Port* target, const LongRect* source,
                                                        const Rect* destination, int quality,
                                                        CopyMode mode, const ClipRegion* clip) = 0;
    [[nodiscard]] virtual QvxStatus DecompressToPixMapL(const PixMap& target,
                                                        const LongRect* source,
                                                        const Rect* destination, int quality,
                                                        CopyMode mode, const ClipRegion* clip) = 0;
    [[nodiscard]] virtual std::int32_t GetWidth() const = 0;  // pixels
    [[nodiscard]] virtual std::int32_t GetHeight() const = 0;
    [[nodiscard]] virtual std::int32_t GetFramesTotal() const = 0;
    [[nodiscard]] virtual std::int32_t GetZoomVal() const = 0;  // 16.16
    virtual void SetZoomVal(std::int32_t zoom) = 0;
    virtual void DoCopy() {}  // no document of ours goes to a clipboard by itself
    [[nodiscard]] virtual QvxStatus LoadImage() = 0;
    // The look of what is shown; null when nothing is.
    [[nodiscard]] virtual zel_TransformRec* GetTransformations() = 0;

protected:
    zel_BaseDoc() = default;
    std::int32_t fStatus = kDocMade;
    std::int32_t fHandicap = kHandicapNoFrameYet;
};

// A document of a picture with a look of its own.
class QTImageDoc : public zel_BaseDoc {
public:
    [[nodiscard]] QvxStatus LoadImage() override { return kQvxOK; }
    [[nodiscard]] zel_TransformRec* GetTransformations() override { return nullptr; }

protected:
    zel_TransformRec fTransformations;
};

// One frame of a sequence as finished pixels. A short-lived worker: a caller makes one, loads a
// frame, draws, and drops it. What the user did to a frame lives in the frame's record, which the
// document reads, and whose window it sets up.
//
// The status climbs: made, frame selected, imported; a failed import falls back to selected.
// Offscreens: the imported one holds the frame as decoded, then turned; a 16-bit frame is windowed
// from it into a back buffer of 8-bit gray. Readers get the one or the other, "exported".
// Windowing, negative and colours of an 8-bit frame are its colour table's, the pixels stay.
//
// kQvxBadArgument for an operation above the document's status. One thread at a time.
#pragma once
#include "dicom_core/imaging/FlagBitsAttacher.h"
#include "dicom_core/imaging/zel_BaseDoc.h"
#include "dicom_core/look/CVOIBlitter.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "pixels/zel_Offscreen.h"

#include "qpix/DicomCodec.h"
#include <functional>
#include <memory>

class CImporterPlus;
class dk_ImageFrameInfo;
class dk_SequenceBase;

// Which of the user's edits of a frame a picture shows. Off: the image's own window without
// negative, brightness and contrast; no colour table; no turn and no flip.
struct zelEditsShown {
    bool window = true, colors = true, geometry = true;
};

class zel_QTViewerDoc : public QTImageDoc {
public:
    zel_QTViewerDoc() = default;
    ~zel_QTViewerDoc() override = default;

    // ---- loading ----

    // Binds the document to a sequence, null for none, and selects its current frame if it has one.
    [[nodiscard]] QvxStatus SetSequence(dk_SequenceBase* sequence);
    void ResetImageSource(dk_SequenceBase* sequence);
    [[nodiscard]] QvxStatus SetCurrentImageFrame(std::int32_t frame);  // from 1
    // Selects the sequence's current frame and imports it; failures are logged.
    [[nodiscard]] virtual QvxStatus LoadImageSource();
    [[nodiscard]] virtual QvxStatus ImportCurrentSeqFrame();
    [[nodiscard]] QvxStatus LoadImage() override { return LoadImageSource(); }
    // The steps of an import after which pixels, or only their looks, are renewed.
    [[nodiscard]] QvxStatus UpdateImportedOffscreen();
    [[nodiscard]] QvxStatus UpdateExportedOffscreen();

    // What the frames pass through; null: nothing. Not owned.
    void AttachExternalBuffer(zel_ImageBuffer* buffer, std::uint32_t storePriority,
                              std::uint32_t insertLimit);
    void DetachExternalBuffer() { fBuffer = nullptr; }
    void SetEditsShown(const zelEditsShown& shown) { fShown = shown; }  // of the next import

    // ---- reading ----

    [[nodiscard]] std::int32_t GetHandicap() const override;
    [[nodiscard]] std::int32_t GetWidth() const override;  // of the exported offscreen, or 0
    [[nodiscard]] std::int32_t GetHeight() const override;
    // With the displayed pixel aspect ratio applied to one of the two.
    [[nodiscard]] std::int32_t GetEffectiveWidth() const;
    [[nodiscard]] std::int32_t GetEffectiveHeight() const;
    [[nodiscard]] QvxStatus GetOriginalBounds(Rect* bounds) const;  // of the image in its file
    [[nodiscard]] Rect GetDocBounds() const;
    [[nodiscard]] std::int32_t GetFramesTotal() const override;  // -1 below status 2
    [[nodiscard]] zel_TransformRec* GetTransformations() override;
    [[nodiscard]] std::int32_t GetZoomVal() const override;
    void SetZoomVal(std::int32_t zoom) override;
    // Factors; each may be null.
    void GetZoomLimits(double* minimum, double* maximum) const;
    // The window in display values, its width rounded half away from zero.
    [[nodiscard]] QvxStatus GetDisplayVOIParams(std::uint32_t* width, std::int32_t* level) const;
    [[nodiscard]] bool CanUseExternalBuffer() const { return fBuffer != nullptr; }
    [[nodiscard]] bool CanImportFromExternalBuffer(std::int32_t primary,
                                                   std::int32_t secondary) const;
    [[nodiscard]] std::uint32_t FrameProperties() const { return fProperties; }
    [[nodiscard]] bool IsDicom() const { return fIsDicom; }
    [[nodiscard]] bool IsVOIReady() const { return fVOIReady; }
    [[nodiscard]] dk_ImageFrameInfo* CurrentFrame() const { return fFrame; }
    // Owned by the document; null below status 3.
    [[nodiscard]] zel_Offscreen* ImportedOffscreen() const { return fImported.get(); }
    [[nodiscard]] zel_Offscreen* ExportedOffscreen() const { return fExported; }

    // ---- drawing ----

    [[nodiscard]] QvxStatus CopyPixelsToGWorldL(Port* target, const LongRect* source,
                                                const Rect* destination, CopyMode mode,
                                                const ClipRegion* clip) override;
    [[nodiscard]] QvxStatus CopyPixelsToPixMapL(const PixMap& target, const LongRect* source,
                                                const Rect* destination, CopyMode mode,
                                                const ClipRegion* clip) override;
    [[nodiscard]] QvxStatus DecompressToGWorldL(Port* target, const LongRect* source,
                                                const Rect* destination, int quality, CopyMode mode,
                                                const ClipRegion* clip) override;
    [[nodiscard]] QvxStatus DecompressToPixMapL(const PixMap& target, const LongRect* source,
                                                const Rect* destination, int quality, CopyMode mode,
                                                const ClipRegion* clip) override;
    [[nodiscard]] QvxStatus CopyPixelsToGWorldS(Port* target, const Rect* source,
                                                const Rect* destination, CopyMode mode,
                                                const ClipRegion* clip);
    [[nodiscard]] QvxStatus CopyPixelsToPixMapS(const PixMap& target, const Rect* source,
                                                const Rect* destination, CopyMode mode,
                                                const ClipRegion* clip);
    [[nodiscard]] QvxStatus DecompressToGWorldS(Port* target, const Rect* source,
                                                const Rect* destination, int quality, CopyMode mode,
                                                const ClipRegion* clip);
    [[nodiscard]] QvxStatus DecompressToPixMapS(const PixMap& target, const Rect* source,
                                                const Rect* destination, int quality, CopyMode mode,
                                                const ClipRegion* clip);

    void DisposeDicomCodec() { fCodec.reset(); }

protected:
    // How the log calls a failed load.
    [[nodiscard]] virtual const char* LoadWords() const { return "LoadImageSource"; }

private:
    // Bits of an offscreen's flags.
    static constexpr std::uint32_t kInverted = 1, kColorized = 2;
    enum class Turn : std::int32_t { Vertical = 0, Horizontal = 1, By90 = 2, By180 = 3, By270 = 4 };

    [[nodiscard]] DicomCodec* GetDicomCodec();
    [[nodiscard]] CVOIBlitter* Blitter();
    [[nodiscard]] bool IsDicomGray() const;
    [[nodiscard]] zel_TransformRec ShownRecord() const;  // of the frame, less the edits not shown
    [[nodiscard]] QvxStatus FallBack(QvxStatus status);
    [[nodiscard]] QvxStatus Step(const std::function<QvxStatus()>& step);
    [[nodiscard]] std::int32_t AspectRatio() const;
    [[nodiscard]] QvxStatus DrawOnOffscreenViaBuffer();
    [[nodiscard]] bool DrawFromBuffer(std::int32_t primary, std::int32_t secondary);
    void StoreInBuffer(std::int32_t primary, std::int32_t secondary);
    [[nodiscard]] QvxStatus DrawOnOffscreen();
    [[nodiscard]] QvxStatus SetupVOIBlitter();
    [[nodiscard]] QvxStatus ApplyTransformations();
    [[nodiscard]] QvxStatus DoTransform(Turn turn);
    [[nodiscard]] QvxStatus TurnByQuarter(Turn turn);
    [[nodiscard]] QvxStatus PrepareExportedOffscreen();
    [[nodiscard]] QvxStatus OrganizeVOIBuffer();
    [[nodiscard]] QvxStatus ImportedToExportedOffscreenSync();
    [[nodiscard]] QvxStatus ApplyWindow();
    [[nodiscard]] QvxStatus PassThroughBlitter();
    [[nodiscard]] QvxStatus ApplyVOIOnCTable();
    [[nodiscard]] QvxStatus EnforceCTable(const ColorTable& table);
    [[nodiscard]] QvxStatus ApplyInvert();
    [[nodiscard]] QvxStatus ColorizeIndexedImage(zel_Offscreen* offscreen, bool honorInvert);
    [[nodiscard]] QvxStatus ColorizeRGBImage();
    [[nodiscard]] QvxStatus CheckSource(const LongRect* source, Rect* from) const;

    dk_SequenceBase* fSequence = nullptr;
    dk_ImageFrameInfo* fFrame = nullptr;
    std::unique_ptr<DicomCodec> fCodec;     // on first need
    std::unique_ptr<CVOIBlitter> fBlitter;  // on first need
    std::unique_ptr<zel_Offscreen> fImported;
    zel_Offscreen* fExported = nullptr;  // one of the two beside it
    std::unique_ptr<zel_Offscreen> fVOIBack;
    zel_ImageBuffer* fBuffer = nullptr;
    std::uint32_t fStorePriority = 2, fInsertLimit = 3;
    FlagBitsAttacher fFlags;
    std::uint32_t fProperties = 0;  // OffscreenForFrame.h
    CImporterPlus* fImporter = nullptr;
    bool fIsDicom = false, fVOIReady = false;
    zelEditsShown fShown;
};

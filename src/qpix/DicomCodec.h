// The DICOM decompressor of one viewer: what it was told before a frame, and what it knows of the
// frame that it decoded last. Keeps that frame's stored values, and their block for the next one.
// One thread at a time.
#pragma once
#include "QvxToolkit/QvxCodec.h"
#include <cstdint>
#include <optional>
#include <string>

inline constexpr std::uint32_t kCodecHintsFrame = 162;  // a frame for the screen
inline constexpr std::uint32_t kCodecHintsMovie = 163;  // a sample of a movie
inline constexpr std::uint32_t kCodecHintsMask = 170;   // a frame that others are subtracted from
inline constexpr std::uint32_t kCodecHintMasked = 64;   // added: the frame has a mask

// How far a mask is moved before it is subtracted, in pixels.
struct QvxMaskDisplacementRec {
    float fHorizontal = 0, fVertical = 0;
};

class DicomCodec {
public:
    // Passed on with each frame; their bits mean nothing to the program.
    void SetHints(std::uint32_t hints) { fHints = hints; }
    [[nodiscard]] std::uint32_t Hints() const { return fHints; }

    // A mask of the size and format of the frames to come, which it must outlive: of gray frames
    // the difference is shown, about the middle of the display scale (PS3.3 C.7.6.10). The mask is
    // moved by whole pixels, where it ends nothing is subtracted. The next frame uses it up.
    void SetMaskPixels(const PixMap& mask) { fMask = mask; }
    void SetMaskDisplacement(const QvxMaskDisplacementRec& by) { fDisplacement = by; }
    void SetMasking(bool on) { fMasking = on; }

    // Decodes frame `frame` (from 1) into `map`, whose size and format are those of the record.
    // Codes of DecodeFrame and QvxCodecFillPixels; after a failure no frame is known, and
    // `why`, if given, has the reason.
    [[nodiscard]] QvxStatus Decode(QvxParserRec* reader, const QvxFrameRecord& record,
                                   std::uint32_t frame, const PixMap& map,
                                   std::string* why = nullptr);

    // The rest answers of the frame decoded last: kQvxBadArgument when there is none.
    // kQvxBadArgument too when its pixels are in another format.
    [[nodiscard]] QvxStatus VOIBlitterInit(std::uint32_t format) const;
    [[nodiscard]] QvxStatus GetPixelInfo(QvxPixelInfo* info) const;
    [[nodiscard]] QvxStatus GetDisplayVOILimits(QvxVOILimits* limits) const;
    // Smallest and largest display value of a gray frame, padding left out.
    [[nodiscard]] QvxStatus GetPixelRange(std::int32_t* minimum, std::int32_t* maximum) const;
    [[nodiscard]] QvxStatus GetPixelFormat(std::uint32_t* format) const;
    // Null when there is none. Valid until the next frame.
    [[nodiscard]] const DecodedFrame* StoredValues() const;

private:
    void SubtractMask(const PixMap& map);

    std::uint32_t fHints = kCodecHintsFrame;
    std::optional<QvxFrameRecord> fRecord;
    DecodedFrame fStored;
    std::int32_t fPixelMinimum = 0, fPixelMaximum = 0;
    PixMap fMask;
    QvxMaskDisplacementRec fDisplacement;
    bool fMasking = false;
};

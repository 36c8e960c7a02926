// The DICOM decompressor of one viewer: what it was told before a frame, and what it knows of the
// frame that it decoded last. Keeps that frame's stored values, and their block for the next one.
// One thread at a time.
#pragma once
#include "QvxToolkit/QvxCodec.h"
#include <cstdint>
#include <optional>

inline constexpr std::uint32_t kCodecHintsFrame = 162;  // a frame for the screen
inline constexpr std::uint32_t kCodecHintsMovie = 163;  // a sample of a movie

class DicomCodec {
public:
    // Passed on with each frame; their bits mean nothing to the program.
    void SetHints(std::uint32_t hints) { fHints = hints; }
    [[nodiscard]] std::uint32_t Hints() const { return fHints; }

    // Decodes frame `frame` (from 1) into `map`, whose size and format are those of the record.
    // Codes of DecodeFrame and QvxCodecFillPixels; after a failure no frame is known.
    [[nodiscard]] QvxStatus Decode(QvxParserRec* reader, const QvxFrameRecord& record,
                                   std::uint32_t frame, const PixMap& map);

    // The rest answers of the frame decoded last: kQvxBadArgument when there is none.
    [[nodiscard]] QvxStatus GetPixelInfo(QvxPixelInfo* info) const;
    [[nodiscard]] QvxStatus GetDisplayVOILimits(QvxVOILimits* limits) const;
    // Smallest and largest display value of a gray frame, padding left out.
    [[nodiscard]] QvxStatus GetPixelRange(std::int32_t* minimum, std::int32_t* maximum) const;
    [[nodiscard]] QvxStatus GetPixelFormat(std::uint32_t* format) const;
    // Null when there is none. Valid until the next frame.
    [[nodiscard]] const DecodedFrame* StoredValues() const;

private:
    std::uint32_t fHints = kCodecHintsFrame;
    std::optional<QvxFrameRecord> fRecord;
    DecodedFrame fStored;
    std::int32_t fPixelMinimum = 0, fPixelMaximum = 0;
};

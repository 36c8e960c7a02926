// The stored values of one frame, decoded, in host order: before rescale, window, palette and
// padding. `stats`, `--raw` and the offscreens all come from it.
#pragma once
#include "QvxToolkit/QvxFrameRecord.h"
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

// By the stored bits, however many are allocated.
enum class DecodedForm : std::uint8_t {
    UInt8,    // unsigned, up to 8 stored bits
    UInt16,   // unsigned, up to 16
    Int16,    // signed, up to 16
    Int32,    // signed, up to 32
    UInt32,   // unsigned, up to 32
    Float64,  // float pixel data of either width
};

struct DecodedFrame {
    std::uint32_t fRows = 0, fColumns = 0,
                  fSamples = 1;  // samples interleaved, rows top-down, no padding
    DecodedForm fForm = DecodedForm::UInt8;
    std::vector<std::uint8_t> fBytes;  // rows * columns * samples values of fForm, host order
    bool fIsRGB = false;               // samples are red, green, blue
    bool fCutShort = false;            // the file ends within the frame; the rest is 0
    [[nodiscard]] std::size_t Count() const { return std::size_t{fRows} * fColumns * fSamples; }
};

// The samples of a frame as values of type T, which must be that of its form.
template <typename T>
struct SampleView {
    const std::uint8_t* fBytes;
    std::size_t fCount;
    T operator[](std::size_t i) const
    {
        T value;
        std::memcpy(&value, fBytes + i * sizeof(T), sizeof(T));
        return value;
    }
};

// Calls `use` with the SampleView of the frame's form.
template <typename Use>
auto VisitSamples(const DecodedFrame& frame, Use&& use)
{
    const std::uint8_t* bytes = frame.fBytes.data();
    const std::size_t count = frame.Count();
    switch (frame.fForm) {
        case DecodedForm::UInt8:
            return use(SampleView<std::uint8_t>{bytes, count});
        case DecodedForm::UInt16:
            return use(SampleView<std::uint16_t>{bytes, count});
        case DecodedForm::Int16:
            return use(SampleView<std::int16_t>{bytes, count});
        case DecodedForm::Int32:
            return use(SampleView<std::int32_t>{bytes, count});
        case DecodedForm::UInt32:
            return use(SampleView<std::uint32_t>{bytes, count});
        default:
            return use(SampleView<double>{bytes, count});
    }
}

[[nodiscard]] constexpr std::size_t BytesOfForm(DecodedForm form)
{
    switch (form) {
        case DecodedForm::UInt8:
            return 1;
        case DecodedForm::UInt16:
        case DecodedForm::Int16:
            return 2;
        case DecodedForm::Float64:
            return 8;
        default:
            return 4;
    }
}

// Decodes frame `frameNumber` (from 1). Gray values are masked to the stored bits, shifted down
// from the high bit and sign-extended. Colour comes interleaved, YBR turned to RGB. kQvxBadArgument
// for a frame that isn't there, kQvxUnsupported for an encoding without a decoder, kQvxEndOfFile
// for one that there should be, but whose bytes are cut off. The only frame of a cut file is
// decoded as far as it is there. `frame` may be reused: its block keeps its capacity; it is of no
// use after a failure. `why` gets a plain reason on failure; may be null.
[[nodiscard]] QvxStatus DecodeFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                    std::uint32_t frameNumber, DecodedFrame* frame,
                                    std::string* why = nullptr);

// Over all samples. Floats that are no finite number don't count; all 0 when none does.
struct DecodedStats {
    double fMinimum = 0, fMaximum = 0, fMean = 0;
};
[[nodiscard]] DecodedStats StatsOf(const DecodedFrame& frame);
// The canonical bytes that checksums are made of: gray and palette one little-endian int32 a
// sample; colour up to 8 bits the bytes R, G, B; deeper colour int32 interleaved; float float64.
// Palette frames give their indexes. Empty when memory ran out.
[[nodiscard]] std::vector<std::uint8_t> CanonicalBytes(const DecodedFrame& frame);

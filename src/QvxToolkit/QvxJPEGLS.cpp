// JPEG-LS frames, lossless and near-lossless.
#include "QvxToolkit/QvxStreamDecoders.h"
#include <charls/charls.h>
#include <exception>

namespace {

constexpr std::uint8_t kMarker = 0xFF, kStartOfFrame = 0xF7, kStartOfScan = 0xDA,
                       kEndOfImage = 0xD9;

struct LSHeader {
    QvxStreamFacts fFacts;
    std::uint32_t fInterleave = 0;  // 0 by plane, 1 by line, 2 by sample
};

// Reads up to the first scan, whose header tells how samples lie.
bool ReadHeader(std::span<const std::uint8_t> bytes, LSHeader* header)
{
    bool framed = false;
    for (std::size_t at = 2; at + 4 <= bytes.size() && bytes[at] == kMarker;) {
        const std::uint8_t code = bytes[at + 1];
        if (code == kMarker) {  // fill byte
            ++at;
            continue;
        }
        const std::size_t length = std::size_t{bytes[at + 2]} << 8 | bytes[at + 3];
        if (length < 2 || at + 2 + length > bytes.size())
            return false;
        const std::uint8_t* payload = bytes.data() + at + 4;
        if (code == kStartOfFrame && length >= 8) {
            header->fFacts = {std::uint32_t{payload[1]} << 8 | payload[2],
                              std::uint32_t{payload[3]} << 8 | payload[4], payload[5], payload[0]};
            framed = true;
        } else if (code == kStartOfScan) {
            const std::size_t components = length >= 3 ? payload[0] : 0;
            if (!framed || length < 6 + 2 * components)
                return false;
            // Near-lossless samples may come out beyond the stored bits.
            header->fFacts.fLossy = payload[1 + 2 * components] != 0;
            header->fInterleave = payload[2 + 2 * components];
            return header->fInterleave <= 2;
        }
        at += 2 + length;
    }
    return false;
}

// The library runs on for minutes behind the end of a stream that breaks off; in front of the
// marker of an image's end it stops.
std::span<const std::uint8_t> WithEnd(std::span<const std::uint8_t> stream, QvxBytes* closed)
{
    const std::size_t size = stream.size();
    if (size >= 2 && stream[size - 2] == kMarker && stream[size - 1] == kEndOfImage)
        return stream;
    closed->reserve(size + 2);
    closed->assign(stream.begin(), stream.end());
    closed->insert(closed->end(), {kMarker, kEndOfImage});
    return *closed;
}

// What came before a fault is in `samples`, which the library fills from the top.
bool Decode(std::span<const std::uint8_t> stream, QvxBytes* samples, std::string* why)
{
    try {
        charls::jpegls_decoder decoder;
        decoder.source(stream.data(), stream.size());
        decoder.read_header();
        if (decoder.destination_size() > samples->size()) {
            *why = "the JPEG-LS stream has more samples than its frame";
            return false;
        }
        decoder.decode(samples->data(), samples->size());
        return true;
    } catch (const std::exception& fault) {
        *why = fault.what();
        return false;
    }
}

}  // namespace

QvxStatus QvxDecodeJPEGLS(const QvxFrameRecord& record, const QvxStream& stream,
                          DecodedFrame* frame, std::string* why)
{
    LSHeader header;
    if (!ReadHeader(stream.Bytes(), &header)) {
        *why = "the JPEG-LS stream has no whole header";
        return kQvxMalformed;
    }
    const QvxStreamFacts& facts = header.fFacts;
    if (facts.fPrecision < 2 || facts.fPrecision > 16) {
        *why = "a JPEG-LS stream of " + std::to_string(facts.fPrecision) + " bits";
        return kQvxUnsupported;
    }
    if (const QvxStatus status = QvxCheckStream(record, facts, why))
        return status;
    // A run takes a bit for at most 32,768 pixels, and no line goes without one.
    if (stream.fBytes.size() < record.fRows / 8) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    QvxBytes samples =
        QvxTakeBlock(frame, record.Pixels() * facts.fSamples * QvxSampleBytes(facts.fPrecision));
    std::string fault;
    QvxBytes closed;
    const bool whole = Decode(WithEnd(stream.Bytes(), &closed), &samples, &fault);
    bool any = whole;
    for (std::size_t i = 0; i < samples.size() && !any; ++i)
        any = samples[i] != 0;
    if (!any) {
        *why = fault;
        return kQvxMalformed;
    }
    if (facts.fSamples > 1 && header.fInterleave == 0)
        samples = QvxInterleavePlanes(facts, samples);
    QvxTakeSamples(record, facts, QvxStreamColor::AsFileSays, std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || !whole;
    return kQvxOK;
}

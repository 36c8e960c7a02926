// JPEG 2000 frames, high throughput ones included: the library decodes into planes of 32-bit
// numbers, which are packed here.
#include "QvxToolkit/QvxJ2KCost.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include <algorithm>
#include <cstring>
#include <memory>
#include <openjpeg.h>
#include <thread>

namespace {

// More tiles than that are made to keep a machine busy, not to show a picture.
constexpr std::uint64_t kFewTiles = 64, kPixelsOfTile = 256;
// The library sets aside half a kilobyte and more for each precinct and code block.
constexpr std::uint64_t kMostPieces = std::uint64_t{1} << 21;
// Each packet takes a byte, or would if the stream weren't cut.
constexpr std::uint64_t kFewPackets = std::uint64_t{1} << 16, kMostPacketsOfByte = 16;
// Threads pay from about this size on.
constexpr std::uint64_t kPixelsForThreads = std::uint64_t{1} << 18;
constexpr unsigned kMostThreads = 8;

// The stream, as the library reads it.
struct MemoryStream {
    std::span<const std::uint8_t> fBytes;
    std::size_t fAt = 0;
};

OPJ_SIZE_T ReadMemory(void* buffer, OPJ_SIZE_T count, void* data)
{
    auto* stream = static_cast<MemoryStream*>(data);
    const std::size_t there = std::min<std::size_t>(count, stream->fBytes.size() - stream->fAt);
    if (there == 0)
        return static_cast<OPJ_SIZE_T>(-1);
    std::memcpy(buffer, stream->fBytes.data() + stream->fAt, there);
    stream->fAt += there;
    return there;
}

OPJ_OFF_T SkipMemory(OPJ_OFF_T count, void* data)
{
    auto* stream = static_cast<MemoryStream*>(data);
    const auto at = static_cast<OPJ_OFF_T>(stream->fAt) + count;
    const auto end = static_cast<OPJ_OFF_T>(stream->fBytes.size());
    if (at < 0)
        return -1;
    stream->fAt = static_cast<std::size_t>(std::min(at, end));
    return count;
}

OPJ_BOOL SeekMemory(OPJ_OFF_T to, void* data)
{
    auto* stream = static_cast<MemoryStream*>(data);
    if (to < 0 || static_cast<std::size_t>(to) > stream->fBytes.size())
        return OPJ_FALSE;
    stream->fAt = static_cast<std::size_t>(to);
    return OPJ_TRUE;
}

struct CodecClose {
    void operator()(opj_codec_t* codec) const { opj_destroy_codec(codec); }
};
struct StreamClose {
    void operator()(opj_stream_t* stream) const { opj_stream_destroy(stream); }
};
struct ImageClose {
    void operator()(opj_image_t* image) const { opj_image_destroy(image); }
};
using CodecPtr = std::unique_ptr<opj_codec_t, CodecClose>;
using StreamPtr = std::unique_ptr<opj_stream_t, StreamClose>;
using ImagePtr = std::unique_ptr<opj_image_t, ImageClose>;

// The last line of the library's complaints; the rest goes nowhere.
void TakeMessage(const char* message, void* why)
{
    auto* text = static_cast<std::string*>(why);
    *text = message;
    while (!text->empty() && (text->back() == '\n' || text->back() == ' '))
        text->pop_back();
}
void DropMessage(const char*, void*) {}

CodecPtr MakeCodec(std::uint64_t pixels, std::string* fault)
{
    // Of a JP2 only the codestream goes to the library: palettes and channel definitions of boxes
    // mean nothing here, components stay as they are.
    CodecPtr codec(opj_create_decompress(OPJ_CODEC_J2K));
    if (!codec)
        return nullptr;
    opj_set_error_handler(codec.get(), TakeMessage, fault);
    opj_set_warning_handler(codec.get(), DropMessage, nullptr);
    opj_set_info_handler(codec.get(), DropMessage, nullptr);
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    if (!opj_setup_decoder(codec.get(), &parameters) ||
        !opj_decoder_set_strict_mode(codec.get(), OPJ_FALSE))
        return nullptr;
    const unsigned threads = std::min(std::thread::hardware_concurrency(), kMostThreads);
    if (threads > 1 && pixels >= kPixelsForThreads)
        opj_codec_set_threads(codec.get(), static_cast<int>(threads));
    return codec;
}

StreamPtr MakeStream(MemoryStream* memory)
{
    StreamPtr stream(
        opj_stream_create(std::min<std::size_t>(std::max<std::size_t>(memory->fBytes.size(), 4096),
                                                OPJ_J2K_STREAM_CHUNK_SIZE),
                          OPJ_TRUE));
    if (!stream)
        return nullptr;
    opj_stream_set_user_data(stream.get(), memory, nullptr);
    opj_stream_set_user_data_length(stream.get(), memory->fBytes.size());
    opj_stream_set_read_function(stream.get(), ReadMemory);
    opj_stream_set_skip_function(stream.get(), SkipMemory);
    opj_stream_set_seek_function(stream.get(), SeekMemory);
    return stream;
}

QvxStatus Decode(std::span<const std::uint8_t> bytes, std::uint64_t pixels, ImagePtr* image,
                 std::string* why)
{
    std::string fault;
    MemoryStream memory{bytes};
    const CodecPtr codec = MakeCodec(pixels, &fault);
    const StreamPtr stream = MakeStream(&memory);
    if (!codec || !stream)
        return kQvxNoMemory;
    opj_image_t* read = nullptr;
    const bool headed = opj_read_header(stream.get(), codec.get(), &read) != OPJ_FALSE;
    ImagePtr made(read);
    if (!headed || !made || !opj_decode(codec.get(), stream.get(), made.get())) {
        *why = fault.empty() ? "the JPEG 2000 stream can't be decoded" : fault;
        return kQvxMalformed;
    }
    opj_end_decompress(codec.get(), stream.get());
    *image = std::move(made);
    return kQvxOK;
}

// Is it the image that the header promised, with all its planes?
bool IsAsPromised(const opj_image_t& image, const QvxStreamFacts& facts)
{
    if (image.numcomps != facts.fSamples)
        return false;
    for (OPJ_UINT32 i = 0; i < image.numcomps; ++i) {
        const opj_image_comp_t& part = image.comps[i];
        if (!part.data || part.w != facts.fColumns || part.h != facts.fRows)
            return false;
    }
    return true;
}

template <typename T>
void Pack(const opj_image_t& image, const QvxJ2KHeader& header, std::uint8_t* samples)
{
    const std::size_t pixels = std::size_t{image.comps[0].w} * image.comps[0].h;
    const std::size_t parts = image.numcomps;
    const std::int64_t half = std::int64_t{1} << (header.fPrecision - 1);
    const auto low = static_cast<std::int32_t>(header.fSigned ? -half : 0);
    const auto high = static_cast<std::int32_t>(
        std::min<std::int64_t>(header.fSigned ? half - 1 : 2 * half - 1, INT32_MAX));
    auto* out = samples;
    if (parts == 1) {
        const OPJ_INT32* plane = image.comps[0].data;
        for (std::size_t i = 0; i < pixels; ++i) {
            const auto value = static_cast<T>(std::clamp(plane[i], low, high));
            std::memcpy(out + i * sizeof(T), &value, sizeof(T));
        }
        return;
    }
    for (std::size_t part = 0; part < parts; ++part) {
        const OPJ_INT32* plane = image.comps[part].data;
        for (std::size_t i = 0; i < pixels; ++i) {
            const auto value = static_cast<T>(std::clamp(plane[i], low, high));
            std::memcpy(out + (i * parts + part) * sizeof(T), &value, sizeof(T));
        }
    }
}

QvxBytes PackSamples(const opj_image_t& image, const QvxJ2KHeader& header,
                     const QvxStreamFacts& facts, DecodedFrame* frame)
{
    const std::uint32_t sampleBytes = QvxSampleBytes(facts.fPrecision);
    QvxBytes samples = QvxTakeBlock(
        frame, std::size_t{facts.fRows} * facts.fColumns * facts.fSamples * sampleBytes);
    if (sampleBytes == 1)
        Pack<std::uint8_t>(image, header, samples.data());
    else if (sampleBytes == 2)
        Pack<std::uint16_t>(image, header, samples.data());
    else
        Pack<std::uint32_t>(image, header, samples.data());
    return samples;
}

// The codec's own transform leaves RGB, and so does a JP2 that names luminance and chrominance
// once these are turned; else the file's header is all there is.
void TakeSamples(const QvxFrameRecord& record, const QvxJ2KHeader& header,
                 const QvxStreamFacts& facts, QvxBytes&& samples, DecodedFrame* frame)
{
    if (header.fIsYCC && !header.fComponentTransform) {
        QvxFrameRecord asNamed(record);
        asNamed.fPhotometric = QvxPhotometric::YBRFull;
        return QvxTakeSamples(asNamed, facts, QvxStreamColor::AsFileSays, std::move(samples),
                              frame);
    }
    const bool turned = header.fComponentTransform && !header.fIsYCC;
    QvxTakeSamples(record, facts, turned ? QvxStreamColor::RGB : QvxStreamColor::AsFileSays,
                   std::move(samples), frame);
}

// A reversible stream may have been cut to a size: then its file says that it is lossy.
bool MayBeLossy(const QvxFrameRecord& record, const QvxJ2KHeader& header)
{
    const std::string& uid = record.fTransferSyntax;
    return header.fLossy || uid == "1.2.840.10008.1.2.4.91" || uid == "1.2.840.10008.1.2.4.93" ||
           uid == "1.2.840.10008.1.2.4.203";
}

QvxStatus CheckCost(const QvxJ2KHeader& header, std::string* why)
{
    QvxJ2KCost cost;
    if (const QvxStatus status = QvxCountJ2KCost(header, &cost, why))
        return status;
    if (cost.fPieces > kMostPieces) {
        *why = "a JPEG 2000 image of " + std::to_string(cost.fPieces) + " pieces";
        return kQvxUnsupported;
    }
    if (cost.fPackets > kFewPackets + kMostPacketsOfByte * header.fCodestream.size()) {
        *why = "the stream is far too short for its " + std::to_string(cost.fPackets) + " packets";
        return kQvxMalformed;
    }
    return kQvxOK;
}

QvxStatus CheckHeader(const QvxFrameRecord& record, const QvxJ2KHeader& header,
                      const QvxStreamFacts& facts, std::size_t streamBytes, std::string* why)
{
    if (header.fPart2 && header.fComponents != record.fSamples) {
        *why = "a JPEG 2000 codestream whose components are several frames";
        return kQvxUnsupported;
    }
    if (const QvxStatus status = QvxCheckStream(record, facts, why))
        return status;
    // The library's planes are of 32 bits, and it keeps as much again while it decodes.
    if (record.Pixels() * facts.fSamples * 4 > kMaxDecodedBytes || facts.fPrecision > 31 ||
        header.fTiles > kFewTiles + record.Pixels() / kPixelsOfTile) {
        *why = "a JPEG 2000 image that is too large";
        return kQvxUnsupported;
    }
    // An empty code block takes a share of a bit; nothing is set aside on a header's word alone.
    constexpr std::uint64_t kMostPixelsOfByte = 65536;
    if (record.Pixels() / kMostPixelsOfByte > streamBytes) {
        *why = "the stream is far too short for its frame";
        return kQvxMalformed;
    }
    return CheckCost(header, why);
}

}  // namespace

QvxStatus QvxDecodeJPEG2000(const QvxFrameRecord& record, const QvxStream& stream,
                            DecodedFrame* frame, std::string* why)
{
    QvxJ2KHeader header;
    if (const QvxStatus status = QvxReadJ2KHeader(stream.Bytes(), &header, why))
        return status;
    const QvxStreamFacts facts{header.fRows, header.fColumns, header.fComponents, header.fPrecision,
                               MayBeLossy(record, header)};
    if (const QvxStatus status = CheckHeader(record, header, facts, stream.fBytes.size(), why))
        return status;
    ImagePtr image;
    QvxBytes bounded(header.fCodestream.begin(), header.fCodestream.end());
    const bool cut = QvxBoundTileParts(bounded);
    if (const QvxStatus status = Decode(bounded, record.Pixels(), &image, why))
        return status == kQvxMalformed && header.fPart2 ? kQvxUnsupported : status;
    if (!IsAsPromised(*image, facts)) {
        *why = "the JPEG 2000 stream lacks a component";
        return kQvxMalformed;
    }
    QvxBytes samples = PackSamples(*image, header, facts, frame);
    image.reset();
    TakeSamples(record, header, facts, std::move(samples), frame);
    frame->fCutShort = stream.fCutShort || cut;
    return kQvxOK;
}

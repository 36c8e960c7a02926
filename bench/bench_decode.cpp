// Decoding a frame of a file against the bare library call on the same stream: JPEG lossless,
// JPEG-LS, JPEG 2000; run-length encoding against a copy of what comes out.
#include "PairedRatio.h"
#include "fixtures/DicomBuilder.h"

#include "QvxToolkit/DecodedFrame.h"
#include "QvxToolkit/QvxJPEGModule.h"
#include "QvxToolkit/QvxModule.h"
#include "QvxToolkit/StreamMaker.h"
#include <charls/charls.h>
#include <cstring>
#include <functional>
#include <openjpeg.h>
#include <random>
#include <thread>

namespace {

constexpr int kSide = 1024;
constexpr double kNearBare = 1 / 0.95, kRLELimit = 1 / 0.5;

struct DecodeFile {
    DecodeFile(const StreamPicture& picture, const char* uid, const std::string& stream)
    {
        DicomBuilder file;
        file.Meta(uid).CommonHeader();
        file.Image({.rows = kSide,
                    .columns = kSide,
                    .bits = static_cast<std::uint16_t>(picture.bits > 8 ? 16 : 8),
                    .stored = static_cast<std::uint16_t>(picture.bits)});
        file.Encapsulated({{stream}});
        (void)Qvx2Parser_OpenBytes(&reader, file.ByteVector(), kQvxProgramOptions);
        sound = QvxMakeFrameRecord(reader.get(), &record) == kQvxOK;
    }
    void Decode()
    {
        if (!sound || DecodeFrame(reader.get(), record, 1, &frame) != kQvxOK)
            std::abort();
    }
    QvxReaderPtr reader;
    QvxFrameRecord record;
    DecodedFrame frame;
    bool sound = false;
};

void BareLossless(const std::string& stream, std::vector<std::uint8_t>* out)
{
    static const auto decode = reinterpret_cast<QvxJPEGDecode>(
        QvxModuleFunction(kQvxJPEGModule, kQvxJPEGFunction, nullptr));
    QvxJPEGRequest request;
    request.fStream = reinterpret_cast<const std::uint8_t*>(stream.data());
    request.fStreamBytes = stream.size();
    request.fPrecision = 16;
    request.fSamples = out->data();
    request.fSampleBytes = out->size();
    if (!decode || decode(&request) != kQvxJPEGDone)
        std::abort();
}

void BareLS(const std::string& stream, std::vector<std::uint8_t>* out)
{
    charls::jpegls_decoder decoder;
    decoder.source(stream.data(), stream.size());
    decoder.read_header();
    decoder.decode(out->data(), out->size());
}

struct Memory {
    const std::string* bytes;
    std::size_t at = 0;
};

// As fast as the library goes: its planes are the result.
void BareJ2K(const std::string& stream, int threads)
{
    Memory memory{&stream};
    opj_stream_t* source = opj_stream_create(1 << 20, OPJ_TRUE);
    opj_stream_set_user_data(source, &memory, nullptr);
    opj_stream_set_user_data_length(source, stream.size());
    opj_stream_set_read_function(source, [](void* to, OPJ_SIZE_T count, void* data) -> OPJ_SIZE_T {
        auto* from = static_cast<Memory*>(data);
        const std::size_t there = std::min<std::size_t>(count, from->bytes->size() - from->at);
        if (there == 0)
            return static_cast<OPJ_SIZE_T>(-1);
        std::memcpy(to, from->bytes->data() + from->at, there);
        from->at += there;
        return there;
    });
    opj_stream_set_skip_function(source, [](OPJ_OFF_T count, void* data) -> OPJ_OFF_T {
        static_cast<Memory*>(data)->at += static_cast<std::size_t>(count);
        return count;
    });
    opj_stream_set_seek_function(source, [](OPJ_OFF_T to, void* data) -> OPJ_BOOL {
        static_cast<Memory*>(data)->at = static_cast<std::size_t>(to);
        return OPJ_TRUE;
    });
    opj_codec_t* codec = opj_create_decompress(OPJ_CODEC_J2K);
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    opj_setup_decoder(codec, &parameters);
    if (threads > 1)
        opj_codec_set_threads(codec, threads);
    opj_image_t* image = nullptr;
    if (!opj_read_header(source, codec, &image) || !opj_decode(codec, source, image))
        std::abort();
    benchmark::DoNotOptimize(image->comps[0].data);
    opj_image_destroy(image);
    opj_destroy_codec(codec);
    opj_stream_destroy(source);
}

bool gHeld = true;

void Compare(benchmark::State& state, const char* what, DecodeFile file,
             const std::function<void()>& bare, double limit)
{
    const PairedRatio ratio = MeasurePairs([&] { file.Decode(); }, bare);
    gHeld = ReportRatio(state, what, ratio, limit) && gHeld;
}

// Google Benchmark counts the one turn; the pairs are measured within it.
void Once(benchmark::State& state, void (*work)(benchmark::State&))
{
    for (auto _ : state)
        work(state);
}

void Lossless(benchmark::State& state)
{
    const auto picture = MakePicture(kSide, kSide, 1, 16);
    const std::string stream = LosslessJPEG(picture, 1);
    std::vector<std::uint8_t> out(2 * kSide * kSide);
    Compare(
        state, "JPEG lossless, 16 bits, against the bare decoder",
        DecodeFile(picture, "1.2.840.10008.1.2.4.70", stream), [&] { BareLossless(stream, &out); },
        kNearBare);
}
BENCHMARK_CAPTURE(Once, Lossless, Lossless)->Iterations(1);

void LS(benchmark::State& state)
{
    const auto picture = MakePicture(kSide, kSide, 1, 16);
    const std::string stream = JPEGLS(picture, 0, 0);
    std::vector<std::uint8_t> out(2 * kSide * kSide);
    Compare(
        state, "JPEG-LS, 16 bits, against the bare decoder",
        DecodeFile(picture, "1.2.840.10008.1.2.4.80", stream), [&] { BareLS(stream, &out); },
        kNearBare);
}
BENCHMARK_CAPTURE(Once, LS, LS)->Iterations(1);

void J2K(benchmark::State& state)
{
    const auto picture = MakePicture(kSide, kSide, 1, 16);
    const std::string stream = JPEG2000(picture, false, false, true);
    const int threads = static_cast<int>(std::thread::hardware_concurrency());
    Compare(
        state, "JPEG 2000, 16 bits, against the bare decoder on all cores",
        DecodeFile(picture, "1.2.840.10008.1.2.4.90", stream), [&] { BareJ2K(stream, threads); },
        kNearBare);
    Compare(
        state, "JPEG 2000, 16 bits, against the bare decoder on one core",
        DecodeFile(picture, "1.2.840.10008.1.2.4.90", stream), [&] { BareJ2K(stream, 1); },
        kNearBare);
}
BENCHMARK_CAPTURE(Once, J2K, J2K)->Iterations(1);

// Air around a body of soft shapes with the noise of a slice of 12 bits, or of its upper 8.
StreamPicture Slice(int bits)
{
    StreamPicture picture{kSide, kSide, 1, bits, false, {}};
    std::mt19937 random(1);
    std::normal_distribution<double> noise(0, 12);
    for (int v = 0; v < kSide; ++v)
        for (int h = 0; h < kSide; ++h) {
            const double dv = v - kSide / 2, dh = h - kSide / 2;
            const double soft = 1050 + 400 * std::sin(h / 60.0) * std::cos(v / 45.0);
            const bool air = dv * dv + dh * dh > 400.0 * 400.0;
            const auto value = static_cast<std::int32_t>(air ? 24 : soft + noise(random));
            picture.values.push_back(bits > 8 ? value : value >> 4);
        }
    return picture;
}

void RunLength(benchmark::State& state)
{
    for (const int bits : {8, 16}) {
        const auto picture = Slice(bits);
        DecodeFile file(picture, "1.2.840.10008.1.2.5", RLE(picture, bits / 8));
        file.Decode();
        const std::vector<std::uint8_t> from(file.frame.fBytes);
        std::vector<std::uint8_t> to(from.size(), 1);
        Compare(
            state, bits == 8 ? "RLE, 8 bits, against a copy" : "RLE, 16 bits, against a copy",
            DecodeFile(picture, "1.2.840.10008.1.2.5", RLE(picture, bits / 8)),
            [&] {
                std::memcpy(to.data(), from.data(), from.size());
                benchmark::ClobberMemory();
            },
            kRLELimit);
    }
}
BENCHMARK_CAPTURE(Once, RunLength, RunLength)->Iterations(1);

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return gHeld ? 0 : 1;
}

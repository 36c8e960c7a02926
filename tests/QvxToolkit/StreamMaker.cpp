#include "QvxToolkit/StreamMaker.h"

#include <charls/charls.h>
#include <cstring>
#include <openjpeg.h>
#include <random>
#include <turbojpeg.h>
#include <zlib.h>

namespace {

// Bits into bytes, highest first, with the zero byte that JPEG puts behind FF.
class BitWriter {
public:
    void Put(std::uint32_t bits, int count)
    {
        for (int i = count - 1; i >= 0; --i) {
            fByte = static_cast<std::uint8_t>(fByte << 1 | (bits >> i & 1));
            if (++fCount == 8)
                Flush();
        }
    }
    void Align()
    {
        while (fCount > 0)
            Put(1, 1);
    }
    std::string out;

private:
    void Flush()
    {
        out += static_cast<char>(fByte);
        if (fByte == 0xFF)
            out += '\0';
        fByte = 0;
        fCount = 0;
    }
    std::uint8_t fByte = 0;
    int fCount = 0;
};

void Word(std::string* out, int value)
{
    *out += static_cast<char>(value >> 8);
    *out += static_cast<char>(value & 0xFF);
}

// Each category has a code of five bits: its own number.
void PutDifference(BitWriter* bits, std::int32_t difference)
{
    std::int32_t d = static_cast<std::int16_t>(difference & 0xFFFF);
    if (d == -32768) {
        bits->Put(16, 5);
        return;
    }
    int category = 0;
    for (std::int32_t size = std::abs(d); size > 0; size >>= 1)
        ++category;
    bits->Put(static_cast<std::uint32_t>(category), 5);
    if (category > 0)
        bits->Put(static_cast<std::uint32_t>(d < 0 ? d - 1 : d) & ((1u << category) - 1), category);
}

std::int32_t Predicted(const StreamPicture& p, int v, int h, int s, int predictor, bool firstRow)
{
    if (firstRow && h == 0)
        return 1 << (p.bits - 1);
    if (firstRow)
        return p.At(v, h - 1, s);
    if (h == 0)
        return p.At(v - 1, h, s);
    const std::int32_t a = p.At(v, h - 1, s), b = p.At(v - 1, h, s), c = p.At(v - 1, h - 1, s);
    switch (predictor) {
        case 1:
            return a;
        case 2:
            return b;
        case 3:
            return c;
        case 4:
            return a + b - c;
        case 5:
            return a + ((b - c) >> 1);
        case 6:
            return b + ((a - c) >> 1);
        default:
            return (a + b) >> 1;
    }
}

std::vector<std::uint8_t> PackedSamples(const StreamPicture& picture)
{
    std::vector<std::uint8_t> bytes;
    for (const std::int32_t value : picture.values) {
        bytes.push_back(static_cast<std::uint8_t>(value & 0xFF));
        if (picture.bits > 8)
            bytes.push_back(static_cast<std::uint8_t>(value >> 8 & 0xFF));
    }
    return bytes;
}

// What a stream writes, wherever it goes back to.
struct Written {
    std::string bytes;
    std::size_t at = 0;
};

OPJ_SIZE_T WriteBytes(void* buffer, OPJ_SIZE_T count, void* data)
{
    auto* out = static_cast<Written*>(data);
    out->bytes.resize(std::max(out->bytes.size(), out->at + count));
    std::memcpy(out->bytes.data() + out->at, buffer, count);
    out->at += count;
    return count;
}

OPJ_BOOL SeekBytes(OPJ_OFF_T to, void* data)
{
    static_cast<Written*>(data)->at = static_cast<std::size_t>(to);
    return OPJ_TRUE;
}

OPJ_OFF_T SkipBytes(OPJ_OFF_T count, void* data)
{
    static_cast<Written*>(data)->at += static_cast<std::size_t>(count);
    return count;
}

}  // namespace

StreamPicture MakePicture(int rows, int columns, int samples, int bits, bool isSigned)
{
    StreamPicture picture{rows, columns, samples, bits, isSigned, {}};
    std::minstd_rand random(static_cast<unsigned>(rows * columns + bits));
    const std::int32_t span = 1 << bits, low = isSigned ? -span / 2 : 0;
    for (int v = 0; v < rows; ++v)
        for (int h = 0; h < columns; ++h)
            for (int s = 0; s < samples; ++s) {
                std::int64_t value = std::int64_t{span} * (v + h) / (rows + columns) +
                                     static_cast<std::int64_t>(random() % 3) - 1;
                if ((v / 4 + h / 4 + s) % 5 == 0)
                    value = span - 1;
                if (v == rows - 1)
                    value = 0;
                picture.values.push_back(
                    low + static_cast<std::int32_t>(std::clamp<std::int64_t>(value, 0, span - 1)));
            }
    return picture;
}

std::string LosslessJPEG(const StreamPicture& p, int predictor, bool restarts)
{
    std::string out = "\xFF\xD8\xFF\xC3";
    Word(&out, 8 + 3 * p.samples);
    out += static_cast<char>(p.bits);
    Word(&out, p.rows);
    Word(&out, p.columns);
    out += static_cast<char>(p.samples);
    for (int s = 0; s < p.samples; ++s)
        out += {static_cast<char>(s + 1), '\x11', '\0'};
    out += "\xFF\xC4";
    Word(&out, 2 + 17 + 17);
    out += '\0';
    for (int length = 1; length <= 16; ++length)
        out += length == 5 ? '\x11' : '\0';
    for (char category = 0; category <= 16; ++category)
        out += category;
    if (restarts) {
        out += "\xFF\xDD";
        Word(&out, 4);
        Word(&out, p.columns);
    }
    out += "\xFF\xDA";
    Word(&out, 6 + 2 * p.samples);
    out += static_cast<char>(p.samples);
    for (int s = 0; s < p.samples; ++s)
        out += {static_cast<char>(s + 1), '\0'};
    out += {static_cast<char>(predictor), '\0', '\0'};
    BitWriter bits;
    for (int v = 0; v < p.rows; ++v) {
        for (int h = 0; h < p.columns; ++h)
            for (int s = 0; s < p.samples; ++s)
                PutDifference(&bits,
                              p.At(v, h, s) - Predicted(p, v, h, s, predictor, v == 0 || restarts));
        if (restarts && v + 1 < p.rows) {
            bits.Align();
            bits.out += {'\xFF', static_cast<char>(0xD0 + v % 8)};
        }
    }
    bits.Align();
    return out + bits.out + "\xFF\xD9";
}

std::string LossyJPEG(const StreamPicture& picture, bool subsampled, bool progressive)
{
    const std::vector<std::uint8_t> bytes = PackedSamples(picture);
    const tjhandle handle = tjInitCompress();
    unsigned char* stream = nullptr;
    unsigned long size = 0;
    const int chroma = picture.samples == 1 ? TJSAMP_GRAY : subsampled ? TJSAMP_420 : TJSAMP_444;
    tjCompress2(handle, bytes.data(), picture.columns, 0, picture.rows,
                picture.samples == 1 ? TJPF_GRAY : TJPF_RGB, &stream, &size, chroma, 98,
                progressive ? TJFLAG_PROGRESSIVE : 0);
    const std::string out(reinterpret_cast<char*>(stream), size);
    tjFree(stream);
    tjDestroy(handle);
    return out;
}

std::string BareJPEG(const StreamPicture& picture, bool subsampled)
{
    const std::size_t pixels = picture.values.size() / 3;
    std::vector<std::uint8_t> planes(picture.values.size());
    for (std::size_t i = 0; i < picture.values.size(); ++i)
        planes[i % 3 * pixels + i / 3] = static_cast<std::uint8_t>(picture.values[i]);
    const unsigned char* starts[] = {planes.data(), planes.data() + pixels,
                                     planes.data() + 2 * pixels};
    const int strides[] = {picture.columns, picture.columns, picture.columns};
    const tjhandle handle = tjInitCompress();
    unsigned char* stream = nullptr;
    unsigned long size = 0;
    tjCompressFromYUVPlanes(handle, starts, picture.columns, strides, picture.rows,
                            subsampled ? TJSAMP_420 : TJSAMP_444, &stream, &size, 98, 0);
    std::string out(reinterpret_cast<char*>(stream), size);
    tjFree(stream);
    tjDestroy(handle);
    return out.erase(2, 18);  // JFIF
}

std::string JPEGLS(const StreamPicture& picture, int interleave, int near)
{
    std::vector<std::uint8_t> bytes = PackedSamples(picture);
    if (interleave == 0 && picture.samples > 1) {
        const std::size_t size = picture.bits > 8 ? 2 : 1, parts = picture.values.size() * size;
        std::vector<std::uint8_t> planes(parts);
        const std::size_t pixels = picture.values.size() / 3;
        for (std::size_t i = 0; i < picture.values.size(); ++i)
            std::memcpy(planes.data() + (i % 3 * pixels + i / 3) * size, bytes.data() + i * size,
                        size);
        bytes = planes;
    }
    charls::jpegls_encoder encoder;
    encoder.frame_info({static_cast<std::uint32_t>(picture.columns),
                        static_cast<std::uint32_t>(picture.rows), picture.bits, picture.samples});
    encoder.interleave_mode(static_cast<charls::interleave_mode>(interleave)).near_lossless(near);
    std::string out(encoder.estimated_destination_size() + 1024, '\0');
    encoder.destination(out.data(), out.size());
    out.resize(encoder.encode(bytes));
    return out;
}

std::string JPEG2000(const StreamPicture& picture, bool boxed, bool tiled, bool reversible)
{
    opj_cparameters_t parameters;
    opj_set_default_encoder_parameters(&parameters);
    parameters.tcp_numlayers = 1;
    parameters.cp_disto_alloc = 1;
    parameters.tcp_rates[0] = reversible ? 0 : 4;
    parameters.irreversible = reversible ? 0 : 1;
    parameters.numresolution = 3;
    parameters.tcp_mct = picture.samples == 3 ? 1 : 0;
    if (tiled) {
        parameters.tile_size_on = OPJ_TRUE;
        parameters.cp_tdx = parameters.cp_tdy = 16;
    }
    std::vector<opj_image_cmptparm_t> parts(static_cast<std::size_t>(picture.samples));
    for (auto& part : parts) {
        part = {};
        part.dx = part.dy = 1;
        part.w = static_cast<OPJ_UINT32>(picture.columns);
        part.h = static_cast<OPJ_UINT32>(picture.rows);
        part.prec = static_cast<OPJ_UINT32>(picture.bits);
        part.sgnd = picture.isSigned ? 1 : 0;
    }
    opj_image_t* image = opj_image_create(static_cast<OPJ_UINT32>(parts.size()), parts.data(),
                                          parts.size() == 3 ? OPJ_CLRSPC_SRGB : OPJ_CLRSPC_GRAY);
    image->x1 = static_cast<OPJ_UINT32>(picture.columns);
    image->y1 = static_cast<OPJ_UINT32>(picture.rows);
    for (std::size_t i = 0; i < picture.values.size(); ++i)
        image->comps[i % parts.size()].data[i / parts.size()] = picture.values[i];
    opj_codec_t* codec = opj_create_compress(boxed ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K);
    Written out;
    opj_stream_t* stream = opj_stream_create(1 << 20, OPJ_FALSE);
    opj_stream_set_user_data(stream, &out, nullptr);
    opj_stream_set_write_function(stream, WriteBytes);
    opj_stream_set_seek_function(stream, SeekBytes);
    opj_stream_set_skip_function(stream, SkipBytes);
    opj_setup_encoder(codec, &parameters, image);
    opj_start_compress(codec, image, stream);
    opj_encode(codec, stream);
    opj_end_compress(codec, stream);
    opj_stream_destroy(stream);
    opj_destroy_codec(codec);
    opj_image_destroy(image);
    return out.bytes;
}

std::string RLE(const StreamPicture& picture, int bytesOfSample)
{
    std::vector<std::string> segments;
    for (int s = 0; s < picture.samples; ++s) {
        for (int byte = bytesOfSample - 1; byte >= 0; --byte) {
            std::string plane, packed;
            for (int v = 0; v < picture.rows; ++v)
                for (int h = 0; h < picture.columns; ++h)
                    plane += static_cast<char>(picture.At(v, h, s) >> (8 * byte) & 0xFF);
            const auto runAt = [&plane](std::size_t at) {
                std::size_t run = 1;
                while (at + run < plane.size() && run < 128 && plane[at + run] == plane[at])
                    ++run;
                return run;
            };
            for (std::size_t i = 0; i < plane.size();) {
                if (const std::size_t run = runAt(i); run > 2) {
                    packed += {static_cast<char>(1 - static_cast<int>(run)), plane[i]};
                    i += run;
                    continue;
                }
                std::size_t end = i + 1;
                while (end < plane.size() && end - i < 128 && runAt(end) < 3)
                    ++end;
                packed += static_cast<char>(end - i - 1);
                packed += plane.substr(i, end - i);
                i = end;
            }
            if (packed.size() % 2)
                packed += '\x80';
            segments.push_back(packed);
        }
    }
    std::string header(64, '\0');
    std::uint32_t offset = 64;
    header[0] = static_cast<char>(segments.size());
    std::string body;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        std::memcpy(header.data() + 4 + 4 * i, &offset, 4);
        offset += static_cast<std::uint32_t>(segments[i].size());
        body += segments[i];
    }
    return header + body;
}

std::string Deflated(const std::string& bytes, bool wrapped)
{
    z_stream state{};
    deflateInit2(&state, 9, Z_DEFLATED, wrapped ? 15 : -15, 9, Z_DEFAULT_STRATEGY);
    std::string out(bytes.size() + 1000, '\0');
    state.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    state.avail_in = static_cast<uInt>(bytes.size());
    state.next_out = reinterpret_cast<Bytef*>(out.data());
    state.avail_out = static_cast<uInt>(out.size());
    deflate(&state, Z_FINISH);
    out.resize(state.total_out);
    deflateEnd(&state);
    return out;
}

// Compressed frames: what they decode to, what is saved of cut ones, and what is refused before a
// byte is decoded.
#include "QvxToolkit/QvxJPEGHeader.h"
#include "QvxToolkit/QvxStreamDecoders.h"
#include "QvxToolkit/StreamMaker.h"
#include "QvxToolkit/ToolkitFixture.h"
#include <gtest/gtest.h>

namespace {

constexpr std::string_view kLossless = "1.2.840.10008.1.2.4.57",
                           kExtended = "1.2.840.10008.1.2.4.51", kLS = "1.2.840.10008.1.2.4.80",
                           kJ2K = "1.2.840.10008.1.2.4.90", kJ2KLossy = "1.2.840.10008.1.2.4.91",
                           kDeflatedFrames = "1.2.840.10008.1.2.8.1";

ImageHead HeadOf(const StreamPicture& picture)
{
    ImageHead head;
    head.rows = static_cast<std::uint16_t>(picture.rows);
    head.columns = static_cast<std::uint16_t>(picture.columns);
    head.samples = static_cast<std::uint16_t>(picture.samples);
    head.allocated = picture.bits > 8 ? 16 : 8;
    head.stored = static_cast<std::uint16_t>(picture.bits);
    head.highBit = static_cast<std::uint16_t>(picture.bits - 1);
    head.isSigned = picture.isSigned ? 1 : 0;
    head.photometric = picture.samples == 3 ? "RGB" : "MONOCHROME2";
    return head;
}

ToolkitFile FileOf(const StreamPicture& picture, std::string_view uid, const std::string& stream)
{
    return ToolkitFile(ImageFile(HeadOf(picture), uid).Encapsulated({{stream}}));
}

std::vector<double> Wanted(const StreamPicture& picture)
{
    return {picture.values.begin(), picture.values.end()};
}

double GreatestDifference(const std::vector<double>& a, const std::vector<double>& b)
{
    double greatest = a.size() == b.size() ? 0 : 1e9;
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i)
        greatest = std::max(greatest, std::abs(a[i] - b[i]));
    return greatest;
}

// Of the first values, how many are right before one is wrong.
std::size_t RightAtTheTop(const std::vector<double>& got, const StreamPicture& picture)
{
    std::size_t right = 0;
    while (right < got.size() && got[right] == picture.values[right])
        ++right;
    return right;
}

}  // namespace

TEST(Streams, lossless_ones_give_every_sample_back)
{
    struct Row {
        std::string what;
        std::string_view uid;
        StreamPicture picture;
        std::string stream;
    };
    std::vector<Row> rows;
    for (int predictor = 1; predictor <= 7; ++predictor)
        for (const int bits : {2, 8, 10, 12, 16}) {
            const auto picture = MakePicture(19, 33, 1, bits);
            rows.push_back({"predictor " + std::to_string(predictor), kLossless, picture,
                            LosslessJPEG(picture, predictor)});
        }
    const auto restarted = MakePicture(9, 20, 1, 12), color = MakePicture(9, 20, 3, 8);
    rows.push_back({"restarts", kLossless, restarted, LosslessJPEG(restarted, 1, true)});
    rows.push_back({"colour", kLossless, color, LosslessJPEG(color, 1)});
    for (const int bits : {4, 8, 12, 16}) {
        const auto gray = MakePicture(21, 30, 1, bits);
        rows.push_back({"LS", kLS, gray, JPEGLS(gray, 0, 0)});
        rows.push_back({"J2K", kJ2K, gray, JPEG2000(gray, false, false, true)});
        rows.push_back({"RLE", kUidRle, gray, RLE(gray, bits > 8 ? 2 : 1)});
        const auto negative = MakePicture(21, 30, 1, bits, true);
        rows.push_back({"J2K signed", kJ2K, negative, JPEG2000(negative, false, false, true)});
        rows.push_back({"RLE signed", kUidRle, negative, RLE(negative, bits > 8 ? 2 : 1)});
    }
    for (const int interleave : {0, 1, 2})
        rows.push_back({"LS colour", kLS, color, JPEGLS(color, interleave, 0)});
    rows.push_back({"RLE colour", kUidRle, color, RLE(color, 1)});
    rows.push_back(
        {"J2K colour, turned by the codec", kJ2K, color, JPEG2000(color, false, false, true)});
    const auto large = MakePicture(40, 50, 1, 12);
    rows.push_back({"tiles", kJ2K, large, JPEG2000(large, false, true, true)});
    rows.push_back({"a box around it, and another syntax", kJ2KLossy, large,
                    JPEG2000(large, true, false, true)});
    rows.push_back({"JPEG-LS under the name of JPEG", kLossless, large, JPEGLS(large, 0, 0)});
    std::string cells;
    for (const std::int32_t value : large.values)
        cells += {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8)};
    rows.push_back({"deflated", kDeflatedFrames, large, Deflated(cells)});
    rows.push_back({"deflated, wrapped", kDeflatedFrames, large, Deflated(cells, true)});
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what + ", " + std::to_string(row.picture.bits) + " bits");
        ToolkitFile file = FileOf(row.picture, row.uid, row.stream);
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_EQ(file.Values(), Wanted(row.picture)) << file.why;
        EXPECT_FALSE(file.frame.fCutShort);
    }
}

TEST(Streams, lossy_ones_come_near_in_the_right_colours)
{
    const auto gray = MakePicture(32, 48, 1, 8), color = [] {
        StreamPicture picture{32, 48, 3, 8, false, {}};
        for (int i = 0; i < 32 * 48; ++i)
            picture.values.insert(picture.values.end(), {200, 60 + i / 48, 20});
        return picture;
    }();
    struct Row {
        const char* what;
        std::string_view uid;
        const StreamPicture& picture;
        std::string stream;
        const char* photometric;
        double tolerance;
    };
    auto bright = MakePicture(32, 48, 1, 12);
    bright.bits = 16;
    std::string halfChroma;  // 200, 100, 50 in full range
    for (int i = 0; i < 32 * 48 / 2; ++i)
        halfChroma += "\x7C\x7C\x56\xB6";
    const StreamPicture plain = [] {
        StreamPicture picture{32, 48, 3, 8, false, {}};
        for (int i = 0; i < 32 * 48; ++i)
            picture.values.insert(picture.values.end(), {200, 100, 50});
        return picture;
    }();
    const Row rows[] = {
        {"gray", kUidJpegBaseline, gray, LossyJPEG(gray, false, false), "MONOCHROME2", 16},
        {"progressive", kExtended, gray, LossyJPEG(gray, false, true), "MONOCHROME2", 16},
        {"chroma", kUidJpegBaseline, color, LossyJPEG(color, false, false), "YBR_FULL_422", 3},
        {"JFIF outweighs a header of RGB", kUidJpegBaseline, color, LossyJPEG(color, true, false),
         "RGB", 3},
        {"near-lossless", "1.2.840.10008.1.2.4.81", gray, JPEGLS(gray, 0, 3), "MONOCHROME2", 3},
        {"near-lossless beyond the stored bits", "1.2.840.10008.1.2.4.81", bright,
         JPEGLS(bright, 0, 3), "MONOCHROME2", 3},
        {"deflated, half of the chrominance", kDeflatedFrames, plain, Deflated(halfChroma),
         "YBR_FULL_422", 2},
        {"irreversible", kJ2KLossy, color, JPEG2000(color, false, false, false), "YBR_ICT", 4},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        ImageHead head = HeadOf(row.picture);
        head.photometric = row.photometric;
        if (&row.picture == &bright) {
            head.stored = 12;
            head.highBit = 11;
        }
        ToolkitFile file(ImageFile(head, row.uid).Encapsulated({{row.stream}}));
        EXPECT_LE(GreatestDifference(file.Values(), Wanted(row.picture)), row.tolerance)
            << file.why;
    }
}

TEST(Streams, what_came_before_a_cut_is_shown)
{
    const auto gray = MakePicture(40, 50, 1, 12), bytes = MakePicture(40, 50, 1, 8);
    struct Row {
        const char* what;
        std::string_view uid;
        const StreamPicture& picture;
        std::string stream;
    };
    const Row rows[] = {
        {"JPEG lossless", kLossless, gray, LosslessJPEG(gray, 1)},
        {"JPEG-LS", kLS, gray, JPEGLS(gray, 0, 0)},
        {"RLE", kUidRle, bytes, RLE(bytes, 1)},
        {"deflated", kDeflatedFrames, bytes,
         Deflated({reinterpret_cast<const char*>(
                       std::vector<std::uint8_t>(bytes.values.begin(), bytes.values.end()).data()),
                   bytes.values.size()})},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        ToolkitFile file =
            FileOf(row.picture, row.uid, row.stream.substr(0, row.stream.size() * 3 / 4));
        const auto got = file.Values();
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_TRUE(file.frame.fCutShort);
        EXPECT_GT(RightAtTheTop(got, row.picture), row.picture.values.size() / 3);
        EXPECT_EQ(got.size(), row.picture.values.size());
    }
    ToolkitFile half = FileOf(gray, kJ2K, JPEG2000(gray, false, false, true).substr(0, 1200));
    EXPECT_EQ(half.Values().size(), gray.values.size()) << half.why;
    EXPECT_TRUE(half.frame.fCutShort);
    ToolkitFile lossy =
        FileOf(bytes, kUidJpegBaseline, LossyJPEG(bytes, false, false).substr(0, 700));
    EXPECT_EQ(lossy.Values().size(), bytes.values.size()) << lossy.why;
    EXPECT_TRUE(lossy.frame.fCutShort);
}

TEST(Streams, what_disagrees_with_the_file_is_refused_before_it_is_decoded)
{
    const auto small = MakePicture(8, 8, 1, 8), color = MakePicture(8, 8, 3, 8);
    const auto deep = MakePicture(8, 8, 1, 16);
    const std::string many = [&small] {
        std::string stream = LossyJPEG(small, false, true);
        const std::size_t scan = stream.find("\xFF\xDA");
        const std::string one = stream.substr(scan, stream.find("\xFF", scan + 4) - scan);
        for (int i = 0; i < 120; ++i)
            stream.insert(scan, one);
        return stream;
    }();
    // Of a sound stream: its size, its layers, its code blocks.
    std::string pieces = JPEG2000(small, false, false, true), layers = pieces;
    const std::size_t style = pieces.find("\xFF\x52");
    for (const std::size_t side : {8, 12, 24, 28})
        pieces.replace(side, 4, {'\0', '\0', '\x40', '\0'});
    pieces[style + 10] = pieces[style + 11] = 0;
    pieces.resize(8192);
    layers.replace(style + 6, 2, "\xFF\xFF");
    std::string frames = JPEG2000(color, false, false, true);
    frames[6] = '\x80';
    std::string segments = RLE(small, 1), offsets = RLE(small, 1);
    segments[0] = 2;
    offsets[4] = 1;
    struct Row {
        const char* fault;
        std::string_view uid;
        ImageHead head;
        std::string stream;
        QvxStatus status;
        const char* reason;
    };
    const auto with = [](ImageHead head, int rows, int columns) {
        head.rows = static_cast<std::uint16_t>(rows);
        head.columns = static_cast<std::uint16_t>(columns);
        return head;
    };
    const Row rows[] = {
        {"rows", kLossless, with(HeadOf(small), 9, 8), LosslessJPEG(small, 1), kQvxMalformed,
         "rows"},
        {"columns", kLS, with(HeadOf(small), 8, 7), JPEGLS(small, 0, 0), kQvxMalformed, "columns"},
        {"samples", kJ2K, HeadOf(small), JPEG2000(color, false, false, true), kQvxMalformed,
         "samples"},
        {"bits", kJ2K, HeadOf(small), JPEG2000(deep, false, false, true), kQvxMalformed, "bits"},
        {"the smallest code blocks", kJ2K, with(HeadOf(small), 16384, 16384), pieces,
         kQvxUnsupported, "pieces"},
        {"layers without packets", kJ2K, HeadOf(small), layers, kQvxMalformed, "packets"},
        {"several frames in a codestream", "1.2.840.10008.1.2.4.93", HeadOf(small), frames,
         kQvxUnsupported, "several frames"},
        {"scans without end", kExtended, HeadOf(small), many, kQvxUnsupported, "100 scans"},
        {"no frame header", kLossless, HeadOf(small), std::string("\xFF\xD8\xFF\xD9", 4),
         kQvxMalformed, "no frame header"},
        {"segments", kUidRle, HeadOf(small), segments, kQvxMalformed, "segments"},
        {"an offset into the header", kUidRle, HeadOf(small), offsets, kQvxMalformed, "segment 1"},
        {"a huge frame of a few bytes", kUidRle, with(HeadOf(small), 30000, 30000), RLE(small, 1),
         kQvxMalformed, "too short"},
        {"noise", kJ2K, HeadOf(small), "some bytes that are no stream", kQvxMalformed, "header"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile(row.head, row.uid).Encapsulated({{row.stream}}));
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_TRUE(file.Values().empty());
        EXPECT_EQ(file.status, row.status) << file.why;
        EXPECT_NE(file.why.find(row.reason), std::string::npos) << file.why;
    }
}

TEST(Streams, frames_of_several_fragments_are_joined)
{
    const auto picture = MakePicture(19, 33, 1, 12);
    const std::string stream = LosslessJPEG(picture, 1);
    const std::size_t third = stream.size() / 3;
    ToolkitFile file(ImageFile(HeadOf(picture), kLossless)
                         .Encapsulated({{stream.substr(0, third), stream.substr(third, third),
                                         stream.substr(2 * third)}}));
    EXPECT_EQ(file.Values(), Wanted(picture)) << file.why;
}

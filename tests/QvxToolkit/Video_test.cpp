// Clips: every frame is the right one, whichever was decoded before it; and what becomes of streams
// that are cut, are something else, or don't speak of their frames.
#include "ClipMaker.h"
#include "ToolkitFixture.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr const char* kMPEG2 = "1.2.840.10008.1.2.4.100";
constexpr const char* kH264 = "1.2.840.10008.1.2.4.102";
constexpr const char* kHEVC = "1.2.840.10008.1.2.4.107.1";

struct ClipFile {
    const char* uid = kH264;
    const char* frames = "24";
    std::uint16_t rows = 70, samples = 3, allocated = 8, stored = 8;
    std::size_t fragments = 3;
    DicomOffsetTable table = DicomOffsetTable::Empty;
};

DicomBuilder FileOf(const std::string& stream, const ClipFile& clip)
{
    const ImageHead head{.rows = clip.rows,
                         .columns = 90,
                         .allocated = clip.allocated,
                         .stored = clip.stored,
                         .highBit = static_cast<std::uint16_t>(clip.stored - 1),
                         .samples = clip.samples,
                         .photometric = clip.samples == 3 ? "YBR_PARTIAL_420" : "MONOCHROME2",
                         .frames = clip.frames};
    DicomFrame fragments;
    const std::size_t each = (stream.size() / clip.fragments + 2) / 2 * 2;
    for (std::size_t at = 0; at < stream.size(); at += each)
        fragments.emplace_back(stream.substr(at, each));
    return ImageFile(head, clip.uid).Encapsulated({fragments}, clip.table);
}

// Luminance of the lower right part, as it is shown.
double GrayOf(const DecodedFrame& frame)
{
    const std::size_t pixel = (std::size_t{60} * frame.fColumns + 75) * frame.fSamples;
    const auto sample = [&](std::size_t i) { return double{1} * frame.fBytes[pixel + i]; };
    return frame.fSamples == 1 ? sample(0)
                               : 0.299 * sample(0) + 0.587 * sample(1) + 0.114 * sample(2);
}
// Of the picture that a limited-range luminance of this number gives.
double ShownGray(int number) { return (ClipLuma(number) - 16) * 255.0 / 219; }

// clang-format off
struct StreamRow { const char* fault; ClipSettings settings; const char* uid; };
const StreamRow kStreams[] = {
    {"B pictures of an open group", {"mpeg2video", "mpeg2video", "bf=2"}, kMPEG2},
    {"program stream: pictures across packets", {"mpeg2video", "vob", "bf=2"}, kMPEG2},
    {"transport stream", {"mpeg2video", "mpegts", "bf=2"}, kMPEG2},
    {"parameter sets at the beginning only",
     {.fEncoder = "libx264", .fContainer = "h264", .fOptions = "preset=veryfast:bf=3", .fSetsOnce = true}, kH264},
    {"open groups", {"libx264", "h264", "preset=veryfast:bf=3:x264-params=open-gop=1"}, kH264},
    {"no key picture after the first", {"libx264", "h264", "preset=ultrafast:intra-refresh=1"}, kH264},
    {"pictures in packets of their own", {"libx264", "mpegts", "preset=veryfast:bf=3"}, kH264},
    {"an edit list, and parameter sets in a box", {"libx264", "mp4", "preset=veryfast:bf=3"}, kH264},
    {"leading pictures", {"libx265", "hevc", "preset=ultrafast:x265-params=log-level=none:pools=none:bframes=3:open-gop=1:keyint=8"}, kHEVC},
    {"HEVC in a container", {"libx265", "mp4", "preset=ultrafast:x265-params=log-level=none:pools=none:bframes=3:keyint=8"}, kHEVC},
};
// clang-format on

TEST(Video, any_order_gives_the_frames_of_a_decode_in_order)
{
    for (const StreamRow& row : kStreams) {
        SCOPED_TRACE(row.fault);
        const std::string stream = MakeClip(row.settings);
        ASSERT_FALSE(stream.empty());
        ToolkitFile file(FileOf(stream, {.uid = row.uid}));
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_EQ(file.record.fFrames, 24u);
        std::vector<std::vector<std::uint8_t>> frames;
        for (std::uint32_t n = 1; n <= 24; ++n) {
            ASSERT_EQ(DecodeFrame(file.reader.get(), file.record, n, &file.frame, &file.why),
                      kQvxOK)
                << file.why;
            EXPECT_NEAR(GrayOf(file.frame), ShownGray(static_cast<int>(n) - 1), 4) << n;
            frames.push_back(file.frame.fBytes);
        }
        std::uint32_t n = 0;
        for (int i = 0; i < 60; ++i) {  // strides of 5 backwards, then one forwards, and again
            n = (n + (i % 3 == 2 ? 1 : 19)) % 24;
            ASSERT_EQ(DecodeFrame(file.reader.get(), file.record, n + 1, &file.frame), kQvxOK);
            EXPECT_TRUE(file.frame.fBytes == frames[n]) << n;
        }
        ToolkitFile other(FileOf(stream, {.uid = row.uid, .fragments = 1}));
        for (const std::uint32_t last : {24u, 1u, 12u}) {  // no frame in front of it was asked for
            ASSERT_EQ(DecodeFrame(other.reader.get(), other.record, last, &other.frame), kQvxOK);
            EXPECT_TRUE(other.frame.fBytes == frames[last - 1]) << last;
        }
    }
}

TEST(Video, frames_are_those_that_the_stream_holds)
{
    const std::string stream =
        MakeClip({"libx264", "h264", "preset=ultrafast:x264-params=sliced-threads=0"});
    const struct {
        const char* fault;
        ClipFile clip;
        bool cut;  // a third of the stream is missing
        std::uint32_t least, most, claimed;
    } rows[] = {
        {"no claim", {.frames = ""}, false, 24, 24, 24},
        {"a table with one entry",
         {.fragments = 1, .table = DicomOffsetTable::Filled},
         false,
         24,
         24,
         24},
        {"no item for the table", {.table = DicomOffsetTable::Missing}, false, 24, 24, 24},
        {"a claim that no stream of this size holds",
         {.frames = "2000000000"},
         false,
         24,
         24,
         2000000000},
        {"fewer claimed", {.frames = "7"}, false, 7, 7, 7},
        {"a cut file", {}, true, 4, 20, 24},
        {"a cut file without a claim", {.frames = ""}, true, 4, 20, 20},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        std::string bytes = FileOf(stream, row.clip).Bytes();
        if (row.cut)
            bytes.resize(bytes.size() - stream.size() / 3);
        QvxReaderPtr reader;
        QvxFrameRecord record;
        std::string why;
        ASSERT_EQ(Qvx2Parser_OpenBytes(&reader, AsByteVector(bytes), kQvxProgramOptions), kQvxOK);
        ASSERT_EQ(QvxMakeFrameRecord(reader.get(), &record, &why), kQvxOK) << why;
        EXPECT_GE(record.fFrames, row.least);
        EXPECT_LE(record.fFrames, row.most);
        EXPECT_LE(record.fClaimedFrames, row.claimed);
        DecodedFrame frame;
        for (std::uint32_t n = 1; n < record.fFrames; ++n) {
            ASSERT_EQ(DecodeFrame(reader.get(), record, n, &frame, &why), kQvxOK) << n << why;
            EXPECT_NEAR(GrayOf(frame), ShownGray(static_cast<int>(n) - 1), 4) << n;
        }
        EXPECT_EQ(DecodeFrame(reader.get(), record, record.fFrames, &frame, &why), kQvxOK) << why;
        if (record.fClaimedFrames > record.fFrames) {
            EXPECT_EQ(DecodeFrame(reader.get(), record, record.fFrames + 1, &frame, &why),
                      kQvxEndOfFile);
        }
    }
    // What opening counts stays so once the frames have been mapped.
    const ToolkitFile table(FileOf(stream, {.table = DicomOffsetTable::Filled}));
    std::uint32_t claimed = 0;
    EXPECT_EQ(Qvx2Reader_GetNumberOfFrames(table.reader.get(), kFramesClaimed, &claimed), kQvxOK);
    EXPECT_EQ(claimed, 24u);
    // The header promises more than a whole stream has: found out when it is asked for.
    ToolkitFile more(FileOf(stream, {.frames = "26"}));
    EXPECT_EQ(more.record.fFrames, 26u);
    EXPECT_EQ(DecodeFrame(more.reader.get(), more.record, 25, &more.frame, &more.why),
              kQvxEndOfFile);
    EXPECT_EQ(more.why, "frame 25 is cut off");
    EXPECT_EQ(DecodeFrame(more.reader.get(), more.record, 24, &more.frame), kQvxOK);
}

TEST(Video, what_is_no_clip_of_the_file_is_refused)
{
    const std::string stream = MakeClip({"libx264", "h264", "preset=ultrafast"});
    const std::string other =
        MakeClip({.fEncoder = "mjpeg", .fContainer = "mp4", .fOptions = "strict=-2"});
    std::string noise(20000, '\0');
    for (std::size_t i = 0; i < noise.size(); ++i)
        noise[i] = static_cast<char>(i * 2654435761u >> 13);
    std::string blown =
        MakeClip({"libx264", "h264",
                  "preset=ultrafast:g=250"});  // the first start code's parameter set is not one
    std::ranges::fill(blown.begin() + 5, blown.begin() + 400, '\x5A');
    const std::string kNone = "no stream of MPEG-2, H.264 or HEVC", kBroken = "can't be decoded";
    const struct {
        const char* fault;
        std::string stream;
        ClipFile clip;
        std::string reason;
    } rows[] = {
        {"another height", stream, {.rows = 72}, "rows in the stream: 70, the file says 72"},
        {"noise", noise, {}, ""},
        {"noise that nobody counts", noise, {.frames = ""}, ""},
        {"text", std::string(3000, 'x'), {}, kNone},
        {"another codec", other, {}, kNone},
        {"no parameter sets", blown, {}, kBroken},
        {"one byte", "\x47", {.fragments = 1}, kNone},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(FileOf(row.stream, row.clip));
        ASSERT_EQ(file.status, kQvxOK) << file.why;
        EXPECT_EQ(DecodeFrame(file.reader.get(), file.record, 1, &file.frame, &file.why),
                  kQvxMalformed);
        EXPECT_NE(file.why.find(row.reason), std::string::npos) << file.why;
    }
    EXPECT_EQ(ToolkitFile(FileOf("", {})).status, kQvxEndOfFile);
}

// Red, green and blue of luminance and chrominance, by the standard's equations.
struct ColorRow {
    const char* fault;
    int matrix, range;  // as ClipSettings
    double kr, kb;
    bool full;
};
const ColorRow kColors[] = {
    {"unspecified, small", 2, 1, 0.299, 0.114, false},
    {"BT.709", 1, 1, 0.2126, 0.0722, false},
    {"full range", 2, 2, 0.299, 0.114, true},
};

TEST(Video, colour_is_by_range_and_matrix_of_the_stream)
{
    for (const ColorRow& row : kColors) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(FileOf(MakeClip({.fEncoder = "libx264",
                                          .fContainer = "h264",
                                          .fOptions = "preset=ultrafast:qp=1",
                                          .fFrames = 12,
                                          .fMatrix = row.matrix,
                                          .fRange = row.range}),
                                {.frames = "12"}));
        ASSERT_EQ(DecodeFrame(file.reader.get(), file.record, 12, &file.frame, &file.why), kQvxOK)
            << file.why;
        const double y = row.full ? ClipLuma(11) : (ClipLuma(11) - 16) * 255.0 / 219;
        const double scale = row.full ? 1 : 255.0 / 224;
        const double red = y + 2 * (1 - row.kr) * (kClipCr - 128) * scale;
        const double blue = y + 2 * (1 - row.kb) * (kClipCb - 128) * scale;
        const double green = (y - row.kr * red - row.kb * blue) / (1 - row.kr - row.kb);
        const std::uint8_t* pixel = file.frame.fBytes.data() + (std::size_t{60} * 90 + 75) * 3;
        EXPECT_NEAR(pixel[0], red, 2);
        EXPECT_NEAR(pixel[1], green, 2);
        EXPECT_NEAR(pixel[2], blue, 2);
    }
}

TEST(Video, gray_and_deep_records_get_samples_of_their_own)
{
    const std::string plain = MakeClip({"libx264", "h264", "preset=ultrafast:qp=1"});
    ToolkitFile gray(FileOf(plain, {.samples = 1}));
    ASSERT_EQ(gray.Values(24).size(), 90u * 70) << gray.why;
    EXPECT_NEAR(GrayOf(gray.frame), ShownGray(23), 2);

    const std::string deep = MakeClip({.fEncoder = "libx264",
                                       .fContainer = "h264",
                                       .fOptions = "preset=ultrafast:qp=1",
                                       .fDeep = true});
    ToolkitFile ten(FileOf(deep, {.samples = 1, .allocated = 16, .stored = 10}));
    const std::vector<double> values = ten.Values(24);
    ASSERT_EQ(values.size(), 90u * 70) << ten.why;
    EXPECT_NEAR(values[60 * 90 + 75], (ClipLuma(23) - 16) * 1023.0 / 219, 4);
    ToolkitFile eight(FileOf(deep, {}));
    ASSERT_EQ(eight.Values(24).size(), 90u * 70 * 3) << eight.why;
    EXPECT_NEAR(GrayOf(eight.frame), ShownGray(23), 3);
}

}  // namespace

// JPEG streams: what their colours are taken for, and what is done with odd ends.
#include "QvxToolkit/QvxStreamDecoders.h"
#include "QvxToolkit/StreamMaker.h"
#include <gtest/gtest.h>

namespace {

QvxFrameRecord RecordOf(const StreamPicture& picture, QvxPhotometric photometric)
{
    QvxFrameRecord record;
    record.fRows = static_cast<std::uint32_t>(picture.rows);
    record.fColumns = static_cast<std::uint32_t>(picture.columns);
    record.fSamples = static_cast<std::uint32_t>(picture.samples);
    record.fBitsStored = static_cast<std::uint32_t>(picture.bits);
    record.fBitsAllocated = picture.bits > 8 ? 16 : 8;
    record.fHighBit = record.fBitsStored - 1;
    record.fPhotometric = photometric;
    record.fEncapsulated = true;
    return record;
}

struct Decoded {
    Decoded(const StreamPicture& picture, const std::string& stream,
            QvxPhotometric photometric = QvxPhotometric::Monochrome2)
        : columns(picture.columns)
    {
        Decode(picture, stream, photometric);
    }
    // Into the block of the frame before.
    void Decode(const StreamPicture& picture, const std::string& stream,
                QvxPhotometric photometric = QvxPhotometric::Monochrome2)
    {
        QvxStream bytes;
        bytes.fBytes.assign(stream.begin(), stream.end());
        status = QvxDecodeJPEG(RecordOf(picture, photometric), bytes, &frame, &why);
    }
    [[nodiscard]] int At(int v, int h) const
    {
        const auto index = static_cast<std::size_t>(v * columns + h);
        if (BytesOfForm(frame.fForm) == 1)
            return frame.fBytes[index];
        std::uint16_t word = 0;
        std::memcpy(&word, frame.fBytes.data() + 2 * index, sizeof word);
        return word;
    }
    int columns;
    DecodedFrame frame;
    QvxStatus status;
    std::string why;
};

// Brighter than anything that a missing row is taken for.
StreamPicture Bright(int rows, int bits)
{
    StreamPicture picture = MakePicture(rows, 64, 1, bits);
    for (auto& value : picture.values)
        value = value / 2 + 50;
    return picture;
}

std::string Adobe(char transform)
{
    return std::string(
               "\xFF\xEE\0\x0E"
               "Adobe\0\x64\0\0\0\0",
               15) +
           transform;
}

}  // namespace

TEST(JPEG, the_stream_says_what_its_colours_are_before_the_file_does)
{
    StreamPicture picture{16, 16, 3, 8, false, {}};
    for (int i = 0; i < 16 * 16; ++i)
        picture.values.insert(picture.values.end(), {150, 100, 140});
    const std::string jfif("\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0", 18);
    struct Row {
        const char* what;
        std::string segment, ids;
        bool subsampled;
        QvxPhotometric file;
        bool isYBR;
    };
    constexpr auto kRGB = QvxPhotometric::RGB, kYBR = QvxPhotometric::YBRFull422;
    const Row rows[] = {
        {"Adobe says RGB, the file not", Adobe(0), "\1\2\3", false, kYBR, false},
        {"Adobe says RGB, JFIF not", jfif + Adobe(0), "\1\2\3", false, kYBR, false},
        {"Adobe says chrominance", Adobe(1), "RGB", false, kRGB, true},
        {"JFIF", jfif, "\1\2\3", false, kRGB, true},
        {"named R, G and B", "", "RGB", false, kYBR, false},
        {"named so, of several sizes", "", "RGB", true, kYBR, false},
        {"the file says RGB", "", "\1\2\3", false, kRGB, false},
        {"the file says RGB, of several sizes", "", "\1\2\3", true, kRGB, true},
        {"the file says chrominance", "", "\1\2\3", false, kYBR, true},
        {"the file says what JPEG 2000 makes", "", "\1\2\3", false, QvxPhotometric::YBRICT, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        std::string stream = BareJPEG(picture, row.subsampled);
        const std::size_t frame = stream.find("\xFF\xC0"), scan = stream.find("\xFF\xDA");
        for (std::size_t i = 0; i < 3; ++i) {
            stream[frame + 10 + 3 * i] = row.ids[i];
            stream[scan + 5 + 2 * i] = row.ids[i];
        }
        stream.insert(2, row.segment);
        const Decoded got(picture, stream, row.file);
        ASSERT_EQ(got.status, kQvxOK) << got.why;
        const int wanted[2][3] = {{150, 100, 140}, {167, 151, 100}};
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(got.frame.fBytes[3 * 100 + i], wanted[row.isYBR ? 1 : 0][i], 3) << i;
        EXPECT_TRUE(got.frame.fIsRGB);
    }
}

TEST(JPEG, odd_ends_and_gaps_lose_no_row)
{
    const auto bytes = Bright(80, 8), deep = Bright(40, 12);
    const std::string lossy = LossyJPEG(bytes, false, false), lossless = LosslessJPEG(deep, 1);
    const auto without = [](const std::string& stream) {
        return stream.substr(0, stream.size() - 2);
    };
    const auto filled = [](std::string stream) { return stream.insert(2, "\xFF\xFF\xFF"); };
    struct Row {
        const char* what;
        const StreamPicture& picture;
        std::string stream;
        bool cut;
    };
    const Row rows[] = {
        {"no end marker, lossy", bytes, without(lossy), true},
        {"no end marker, lossless", deep, without(lossless), true},
        {"junk behind the end, lossy", bytes, lossy + "some junk", false},
        {"junk behind the end, lossless", deep, lossless + "some junk", false},
        {"junk before the end", bytes, without(lossy) + "junk\xFF\xD9", false},
        {"fill bytes, lossy", bytes, filled(lossy), false},
        {"fill bytes, lossless", deep, filled(lossless), false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const Decoded got(row.picture, row.stream);
        ASSERT_EQ(got.status, kQvxOK) << got.why;
        EXPECT_EQ(got.frame.fCutShort, row.cut);
        for (const int v : {0, row.picture.rows / 2, row.picture.rows - 1})
            EXPECT_NEAR(got.At(v, 33), row.picture.At(v, 33), 16) << v;
    }
}

TEST(JPEG, rows_behind_a_cut_are_0)
{
    const auto bytes = Bright(80, 8), deep = Bright(40, 12);
    const std::string lossy = LossyJPEG(bytes, false, false), lossless = LosslessJPEG(deep, 1);
    for (const auto& [picture, stream] : {std::pair(&bytes, &lossy), std::pair(&deep, &lossless)}) {
        Decoded got(*picture, *stream);
        EXPECT_NE(got.At(picture->rows - 1, 20), 0);
        got.Decode(*picture, stream->substr(0, stream->size() / 2));
        ASSERT_EQ(got.status, kQvxOK) << got.why;
        EXPECT_TRUE(got.frame.fCutShort);
        EXPECT_NEAR(got.At(4, 20), picture->At(4, 20), 16);
        for (int h = 0; h < picture->columns; ++h)
            EXPECT_EQ(got.At(picture->rows - 1, h), 0) << h;
    }
}

TEST(JPEG, forms_without_a_decoder_are_named)
{
    const auto bytes = Bright(80, 8);
    const auto with = [&bytes](std::size_t at, char byte) {
        std::string stream = LossyJPEG(bytes, false, false);
        stream[stream.find("\xFF\xC0") + at] = byte;
        return stream;
    };
    std::string rowless = with(5, '\0');
    rowless[rowless.find("\xFF\xC0") + 6] = '\0';
    const std::pair<std::string, const char*> rows[] = {
        {with(1, '\xC9'), "arithmetic"}, {with(1, '\xC5'), "hierarchical"},
        {with(11, '\x51'), "sampling"},  {with(4, '\x09'), "9 bits"},
        {rowless, "number of rows"},
    };
    for (const auto& [stream, reason] : rows) {
        const Decoded got(bytes, stream);
        EXPECT_EQ(got.status, kQvxUnsupported) << reason;
        EXPECT_NE(got.why.find(reason), std::string::npos) << got.why;
    }
}

// The gate: which headers are read how, and which are refused.
#include "ToolkitFixture.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using Record = QvxFrameRecord;
using Builder = DicomBuilder;

// What a case writes between the common header and the end, and what the record must be then.
struct HeadRow {
    const char* fault;
    std::function<void(Builder&)> write;
    QvxStatus status;
    std::function<bool(const Record&)> isRight = [](const Record&) { return true; };
};

void CheckHeads(const std::vector<HeadRow>& rows)
{
    for (const HeadRow& row : rows) {
        SCOPED_TRACE(row.fault);
        Builder builder;
        builder.Meta(kUidExplicitLittle).CommonHeader();
        row.write(builder);
        ToolkitFile file(builder);
        EXPECT_EQ(file.status, row.status) << file.why;
        EXPECT_EQ(file.why.empty(), file.status == kQvxOK);
        EXPECT_TRUE(file.status != kQvxOK || row.isRight(file.record));
    }
}

Builder& Size(Builder& file, int rows, int columns)
{
    return file.Element(0x0028, 0x0010, "US", rows).Element(0x0028, 0x0011, "US", columns);
}

Builder& Pixels(Builder& file) { return file.NativePixels(std::string(12, '\1')); }

Builder& Bits(Builder& file, int allocated, int stored, int highBit)
{
    Size(file, 2, 3).Element(0x0028, 0x0100, "US", allocated);
    file.Element(0x0028, 0x0101, "US", stored).Element(0x0028, 0x0102, "US", highBit);
    return Pixels(file);
}

Builder& Frames(Builder& file, const char* count)
{
    return Pixels(Size(file, 1, 3).Element(0x0028, 0x0008, "IS", count));
}

// clang-format off
TEST(FrameRecord, bits)
{
    const auto are = [](std::uint32_t allocated, std::uint32_t stored, std::uint32_t highBit) {
        return [=](const Record& r) {
            return r.fBitsAllocated == allocated && r.fBitsStored == stored && r.fHighBit == highBit;
        };
    };
    CheckHeads({
        {"nothing said", [](Builder& f) { Pixels(Size(f, 2, 3)); }, kQvxOK, are(16, 16, 15)},
        {"only the stored ones",
         [](Builder& f) { Pixels(Size(f, 2, 3).Element(0x0028, 0x0101, "US", 7)); }, kQvxOK, are(8, 7, 6)},
        {"more stored than allocated", [](Builder& f) { Bits(f, 8, 12, 11); }, kQvxOK, are(8, 8, 7)},
        {"no room below the high bit", [](Builder& f) { Bits(f, 16, 12, 5); }, kQvxOK, are(16, 12, 11)},
        {"a high bit outside",         [](Builder& f) { Bits(f, 16, 12, 16); }, kQvxOK, are(16, 12, 11)},
        {"none",                       [](Builder& f) { Bits(f, 0, 0, 0); }, kQvxMalformed},
        {"beyond reason",              [](Builder& f) { Bits(f, 65535, 12, 11); }, kQvxMalformed},
        {"wider than any sample",      [](Builder& f) { Bits(f, 64, 64, 63); }, kQvxUnsupported},
        {"no form for cells of 40",    [](Builder& f) { Bits(f, 40, 12, 11); }, kQvxUnsupported},
    });
}

TEST(FrameRecord, size_and_pixels)
{
    const auto frames = [](std::uint32_t there, std::uint32_t claimed) {
        return [=](const Record& r) {
            return r.fFrames == there && r.fClaimedFrames == claimed && !r.fEncapsulated;
        };
    };
    CheckHeads({
        {"a report",     [](Builder&) {}, kQvxNoSuchElement},
        {"no size",      [](Builder& f) { Pixels(f); }, kQvxNoSuchElement},
        {"no rows",      [](Builder& f) { Pixels(Size(f, 0, 3)); }, kQvxNoSuchElement},
        {"no pixels",    [](Builder& f) { Size(f, 2, 3); }, kQvxNoSuchElement},
        {"empty pixels", [](Builder& f) { Size(f, 2, 3).NativePixels(""); }, kQvxNoSuchElement},
        {"size as text",
         [](Builder& f) { Pixels(f.Element(0x0028, 0x0010, "IS", "2").Element(0x0028, 0x0011, "IS", "3")); },
         kQvxOK, frames(1, 1)},
        {"size beyond 16 bits",
         [](Builder& f) { Pixels(f.Element(0x0028, 0x0010, "UL", 65536).Element(0x0028, 0x0011, "US", 1)); },
         kQvxMalformed},
        {"memory on the word of a header", [](Builder& f) { Pixels(Size(f, 65535, 65535)); }, kQvxEndOfFile},
        {"pixels larger than the file",
         [](Builder& f) { Pixels(Size(f, 2, 3)).StateLength(0xBFFFFFF0); }, kQvxOK, frames(1, 268435454)},
        {"undefined length without items",
         [](Builder& f) { Pixels(Size(f, 2, 3)).StateLength(0xFFFFFFFF); }, kQvxOK, frames(1, 1)},
        {"no number of frames",       [](Builder& f) { Frames(f, "x"); }, kQvxOK, frames(2, 2)},
        {"a negative one",            [](Builder& f) { Frames(f, "-4"); }, kQvxOK, frames(2, 2)},
        {"a number, then rubbish",    [](Builder& f) { Frames(f, "1A"); }, kQvxOK, frames(1, 1)},
        {"more than the data",        [](Builder& f) { Frames(f, "2147483647"); }, kQvxOK, frames(2, 2147483647)},
    });
}

TEST(FrameRecord, samples_and_photometric)
{
    const auto colour = [](int samples, const char* photometric, int rows) {
        return [=](Builder& f) {
            if (samples >= 0)
                f.Element(0x0028, 0x0002, "US", samples);
            if (*photometric)
                f.Element(0x0028, 0x0004, "CS", photometric);
            Pixels(Size(f, rows, 2).Element(0x0028, 0x0100, "US", 8));
        };
    };
    const auto is = [](std::uint32_t samples, QvxPhotometric photometric) {
        return [=](const Record& r) { return r.fSamples == samples && r.fPhotometric == photometric; };
    };
    // 2 rows of 2 pixels in 12 bytes are colour, 6 rows are gray
    CheckHeads({
        {"nothing said",                 colour(-1, "", 2), kQvxOK, is(1, QvxPhotometric::Unknown)},
        {"three samples of nothing",     colour(3, "", 2), kQvxOK, is(3, QvxPhotometric::Unknown)},
        {"a word that is none",          colour(1, "GREY", 6), kQvxOK, is(1, QvxPhotometric::Unknown)},
        {"small letters",                colour(3, "rgb", 2), kQvxOK, is(3, QvxPhotometric::RGB)},
        {"colour without samples",       colour(-1, "RGB", 2), kQvxOK, is(3, QvxPhotometric::RGB)},
        {"colour of one, by the bytes",  colour(1, "YBR_FULL", 2), kQvxOK, is(3, QvxPhotometric::YBRFull)},
        {"gray called colour",           colour(1, "RGB", 6), kQvxOK, is(1, QvxPhotometric::Monochrome2)},
        {"colour called gray",           colour(3, "MONOCHROME1", 2), kQvxOK, is(3, QvxPhotometric::RGB)},
        {"gray of three samples",        colour(3, "MONOCHROME1", 6), kQvxOK, is(1, QvxPhotometric::Monochrome1)},
        {"four samples",                 colour(4, "CMYK", 2), kQvxUnsupported},
    });
}

TEST(FrameRecord, rescale)
{
    const auto rescaled = [](const char* slope, const char* intercept) {
        return [=](Builder& f) {
            Size(f, 2, 3).Element(0x0028, 0x1052, "DS", intercept).Element(0x0028, 0x1053, "DS", slope);
            Pixels(f);
        };
    };
    const auto groups = [](std::uint16_t element, std::vector<double> slopes) {
        return [=](Builder& f) {
            std::vector<Item> items;
            for (const double slope : slopes)
                items.push_back(Item().Sequence(0x0028, 0x9145, {Item()
                    .Element(0x0028, 0x1052, "DS", "-5").Element(0x0028, 0x1053, "DS", slope)}));
            Pixels(Size(f, 2, 3).Sequence(0x5200, element, items));
        };
    };
    const auto is = [](double slope, double intercept) {
        return [=](const Record& r) { return r.fSlope == slope && r.fIntercept == intercept; };
    };
    CheckHeads({
        {"more digits than a float has", rescaled("5.6120501942e-06", "-1024"), kQvxOK, is(5.6120501942e-06, -1024)},
        {"a slope of 0",                 rescaled("0", "7"), kQvxOK, is(1, 7)},
        {"no numbers",                   rescaled("inf", "nan"), kQvxOK, is(1, 0)},
        {"beyond reason",                rescaled("1e300", "1e300"), kQvxOK, is(1, 0)},
        {"empty",                        rescaled("", ""), kQvxOK, is(1, 0)},
        {"shared by all frames",         groups(0x9229, {3}), kQvxOK, is(3, -5)},
        {"the same in every frame",      groups(0x9230, {2, 2}), kQvxOK, is(2, -5)},
        {"of its own in each frame",     groups(0x9230, {2, 4}), kQvxOK, is(2, -5)},
    });
}

TEST(FrameRecord, padding_is_read_as_stored)
{
    const struct { const char* fault; std::uint16_t isSigned; const char* vr; int value; std::int64_t stored; } rows[] = {
        {"unsigned letters, signed pixels", 1, "US", 63536, -2000},
        {"signed letters, unsigned pixels", 0, "SS", -1, 65535},
        {"as it should be",                 1, "SS", -2000, -2000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        ToolkitFile file(ImageFile({.isSigned = row.isSigned})
                             .Element(0x0028, 0x0120, row.vr, row.value).NativePixels({1, 2}));
        EXPECT_TRUE(file.record.fHasPadding);
        EXPECT_EQ(file.record.fPaddingLow, row.stored);
        EXPECT_EQ(file.record.fPaddingHigh, row.stored);
    }
}
// clang-format on

}  // namespace

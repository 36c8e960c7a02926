#include "Qvx2VOIBlitter/VOIVectorRows.h"

// This file is compiled once for each kind of processor: foreach_target.h includes it again.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Qvx2VOIBlitter/VOIVectorRows.cpp"
#include <algorithm>
#include <bit>
#include <cstring>
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

static_assert(std::endian::native == std::endian::little, "swaps big-endian words always");
HWY_BEFORE_NAMESPACE();
namespace zel_voi {
namespace HWY_NAMESPACE {  // NOLINT: one namespace for each kind of processor
namespace hn = hwy::HWY_NAMESPACE;

// Pixels of a block that goes through a table.
constexpr std::size_t kBlock = 512;
constexpr std::size_t kTogether = 8;  // entries read before they are written in one

#if HWY_TARGET == HWY_SCALAR
bool RampRows16to8(const VOIRamp&, const VOIPixels&) { return false; }
bool RampRows16to32ARGB(const VOIRamp&, const VOIPixels&) { return false; }
bool RampRowsMixedTo32ARGB(const VOIRamp&, const VOIPixels&) { return false; }

inline void IndexBlock(const VOILookup& lookup, const std::uint8_t* in, std::size_t count,
                       std::uint16_t* index)
{
    for (std::size_t x = 0; x < count; ++x) {
        const int value =
            std::clamp<int>(in[2 * x] << 8 | in[2 * x + 1], lookup.first, lookup.last);
        index[x] = static_cast<std::uint16_t>(value - lookup.first);
    }
}

inline void GrayToARGB(const std::uint8_t* gray, std::uint8_t flip, std::size_t count,
                       std::uint8_t* out)
{
    for (std::size_t x = 0; x < count; ++x) {
        const auto g = static_cast<std::uint8_t>(gray[x] ^ flip);
        const std::uint8_t pixel[4] = {255, g, g, g};
        std::memcpy(out + 4 * x, pixel, sizeof pixel);
    }
}

#else
using Words = hn::ScalableTag<std::uint16_t>;
using Bytes = hn::Repartition<std::uint8_t, Words>;
using Longs = hn::Repartition<std::uint32_t, Words>;
using SignedLongs = hn::Repartition<std::int32_t, Words>;
using Floats = hn::Repartition<float, Words>;
using WordVec = hn::Vec<Words>;
using LongVec = hn::Vec<Longs>;

// A picture of so many bytes is written past the caches, where it would not stay anyway, and read
// so far ahead that the reads run on over the ends of memory pages.
constexpr std::size_t kStreamBytes = std::size_t{32} << 20;
constexpr std::size_t kAhead = 4096;
constexpr std::size_t kCacheLine = 64;

HWY_INLINE WordVec LoadWords(const std::uint8_t* in)
{
    return hn::BitCast(Words(), hn::LoadU(Bytes(), in));  // `in` needs no alignment
}

HWY_INLINE WordVec Swapped(WordVec words)
{
    alignas(16) static constexpr std::uint8_t kOther[16] = {1, 0, 3,  2,  5,  4,  7,  6,
                                                            9, 8, 11, 10, 13, 12, 15, 14};
    const Bytes d8;
    return hn::BitCast(Words(),
                       hn::TableLookupBytes(hn::BitCast(d8, words), hn::LoadDup128(d8, kOther)));
}

HWY_INLINE WordVec Position(const VOIRamp& r, WordVec value)
{
    const Words d;
    const WordVec above = hn::SaturatedSub(value, hn::Set(d, r.down));
    return hn::Min(hn::SaturatedAdd(above, hn::Set(d, r.up)), hn::Set(d, r.n));
}

// Runs `gray` over the even and the odd words, 32 bits each.
template <class Gray>
HWY_INLINE WordVec EachAsLong(WordVec words, const Gray& gray)
{
    const Longs d32;
    const LongVec two = hn::BitCast(d32, words);
    const LongVec even = gray.Longs32(hn::And(two, hn::Set(d32, 0xFFFFU)));
    const LongVec odd = gray.Longs32(hn::ShiftRight<16>(two));
    return hn::BitCast(Words(), hn::Or(even, hn::ShiftLeft<16>(odd)));
}

// The ramps take words as values and give grays 0 to 255 in their place.
template <bool kShort>
struct WholeRamp {
    VOIRamp r;
    HWY_INLINE WordVec operator()(WordVec value) const
    {
        const Words d;
        const WordVec n = hn::Set(d, r.n);
        const WordVec i = Position(r, value);
        WordVec low = i;
        if constexpr (kShort)
            low = hn::ShiftLeftSame(i, r.shift);
        low = hn::MulHigh(low, hn::Set(d, r.factor));
        // One more where 255 i less low n reaches half of n: the sign of what is missing, less 1.
        const auto half = static_cast<std::uint16_t>((r.n + 1) / 2 - 1);
        const WordVec missing = hn::Sub(hn::Add(hn::Mul(low, n), hn::Set(d, half)),
                                        hn::Mul(i, hn::Set(d, std::uint16_t{255})));
        return hn::Add(low, hn::ShiftRight<15>(missing));
    }
};

#if HWY_NATIVE_FMA
struct LineRamp {
    VOIRamp r;
    HWY_INLINE WordVec operator()(WordVec value) const
    {
        return EachAsLong(Position(r, value), *this);
    }
    HWY_INLINE LongVec Longs32(LongVec i) const
    {
        // The sum with 2^23, rounded once, holds the nearest whole number in its low bits.
        const Floats df;
        const auto position = hn::ConvertTo(df, hn::BitCast(SignedLongs(), i));
        const auto sum = hn::MulAdd(position, hn::Set(df, r.slope), hn::Set(df, 8388608.0F));
        return hn::And(hn::BitCast(Longs(), sum), hn::Set(Longs(), 0xFFU));
    }
};
#endif

struct DividedRamp {
    VOIRamp r;
    HWY_INLINE WordVec operator()(WordVec value) const
    {
        const Words d;
        return EachAsLong(hn::Min(hn::Max(value, hn::Set(d, r.first)), hn::Set(d, r.last)), *this);
    }
    HWY_INLINE LongVec Longs32(LongVec value) const
    {
        const Floats df;
        const SignedLongs di;
        const auto i = hn::ConvertTo(df, hn::Add(hn::BitCast(di, value), hn::Set(di, r.base)));
        // Half, less its last bit: truncating the sum rounds every float of 0 to 255 half up.
        const auto v = hn::Add(hn::Mul(hn::Div(i, hn::Set(df, r.length)), hn::Set(df, 255.0F)),
                               hn::Set(df, 0.49999997F));
        return hn::BitCast(Longs(), hn::ConvertTo(di, v));
    }
};

// A gray in the lowest byte of each 32 bits, spread over all four.
HWY_INLINE LongVec Spread(LongVec gray)
{
    alignas(16) static constexpr std::uint8_t kLowest[16] = {0, 0, 0, 0, 4,  4,  4,  4,
                                                             8, 8, 8, 8, 12, 12, 12, 12};
    const Bytes d8;
    return hn::BitCast(Longs(),
                       hn::TableLookupBytes(hn::BitCast(d8, gray), hn::LoadDup128(d8, kLowest)));
}

HWY_INLINE LongVec ARGBPixels(LongVec gray)
{
    return hn::Or(Spread(gray), hn::Set(Longs(), 0xFFU));
}

template <bool kStream>
HWY_INLINE void Write(hn::Vec<Bytes> bytes, std::uint8_t* out)
{
    if constexpr (kStream)
        hn::Stream(bytes, Bytes(), out);
    else
        hn::StoreU(bytes, Bytes(), out);
}

// A step turns kIn bytes a pixel into kOut, so many pixels at once as Count() says.
template <class Ramp, bool kBigEndian>
struct WordStep {
    Ramp ramp;
    HWY_INLINE WordVec Grays(const std::uint8_t* in) const
    {
        WordVec words = LoadWords(in);
        if constexpr (kBigEndian)
            words = Swapped(words);
        else
            words = hn::Xor(words, hn::Set(Words(), ramp.r.use.wordFlip));
        return hn::Xor(ramp(words), hn::Set(Words(), ramp.r.use.grayFlip));
    }
};

template <class Ramp, bool kBigEndian>
struct StepTo8 : WordStep<Ramp, kBigEndian> {
    static constexpr std::size_t kIn = 2, kOut = 1;
    static std::size_t Count() { return hn::Lanes(Bytes()); }
    template <bool kStream>
    HWY_INLINE void Run(const std::uint8_t* in, std::uint8_t* out) const
    {
        const Bytes d8;
        const auto lower = hn::BitCast(d8, this->Grays(in));
        const auto upper = hn::BitCast(d8, this->Grays(in + hn::Lanes(d8)));
        Write<kStream>(hn::ConcatEven(d8, upper, lower), out);
    }
};

template <class Ramp>
struct StepToARGB : WordStep<Ramp, true> {
    static constexpr std::size_t kIn = 2, kOut = 4;
    static std::size_t Count() { return hn::Lanes(Words()); }
    template <bool kStream>
    HWY_INLINE void Run(const std::uint8_t* in, std::uint8_t* out) const
    {
        const Bytes d8;
        const Longs d32;
        const WordVec grays = this->Grays(in);
        const hn::Half<Words> half;
        const auto lower = hn::PromoteTo(d32, hn::LowerHalf(half, grays));
        const auto upper = hn::PromoteTo(d32, hn::UpperHalf(half, grays));
        Write<kStream>(hn::BitCast(d8, ARGBPixels(lower)), out);
        Write<kStream>(hn::BitCast(d8, ARGBPixels(upper)), out + hn::Lanes(d8));
    }
};

template <class Ramp>
struct StepMixed : WordStep<Ramp, false> {
    static constexpr std::size_t kIn = 4, kOut = 4;
    static std::size_t Count() { return hn::Lanes(Longs()); }
    template <bool kStream>
    HWY_INLINE void Run(const std::uint8_t* in, std::uint8_t* out) const
    {
        const Longs d32;
        const LongVec words = hn::BitCast(d32, LoadWords(in));
        // The upper word of each pixel takes part in vain.
        const LongVec gray =
            hn::Or(Spread(hn::BitCast(d32, this->Grays(in))), hn::Set(d32, 0xFF000000U));
        const auto isGray = hn::Eq(hn::ShiftRight<24>(words), hn::Zero(d32));
        Write<kStream>(hn::BitCast(Bytes(), hn::IfThenElse(isGray, gray, words)), out);
    }
};

struct StepIndex {
    static constexpr std::size_t kIn = 2, kOut = 2;
    VOILookup lookup;
    static std::size_t Count() { return hn::Lanes(Words()); }
    template <bool kStream>
    HWY_INLINE void Run(const std::uint8_t* in, std::uint8_t* out) const
    {
        const Words d;
        const WordVec first = hn::Set(d, lookup.first);
        const WordVec value = hn::Max(Swapped(LoadWords(in)), first);
        const WordVec index = hn::Sub(hn::Min(value, hn::Set(d, lookup.last)), first);
        Write<kStream>(hn::BitCast(Bytes(), index), out);
    }
};

struct StepGrayToARGB {
    static constexpr std::size_t kIn = 1, kOut = 4;
    std::uint32_t flip;
    static std::size_t Count() { return hn::Lanes(Longs()); }
    template <bool kStream>
    HWY_INLINE void Run(const std::uint8_t* in, std::uint8_t* out) const
    {
        const Longs d32;
        const auto gray = hn::PromoteTo(d32, hn::LoadU(hn::Rebind<std::uint8_t, Longs>(), in));
        Write<kStream>(hn::BitCast(Bytes(), ARGBPixels(hn::Xor(gray, hn::Set(d32, flip)))), out);
    }
};

// Fewer pixels than a step has, by way of a block of its own: nothing beside them is touched.
template <class Step>
HWY_NOINLINE void RunPart(const Step step, const std::uint8_t* in, std::uint8_t* out,
                          std::size_t count)
{
    constexpr std::size_t kMost = 2 * hn::MaxLanes(Bytes());
    HWY_ALIGN std::uint8_t from[kMost] = {};
    HWY_ALIGN std::uint8_t to[kMost];
    std::memcpy(from, in, count * Step::kIn);
    step.template Run<false>(from, to);
    std::memcpy(out, to, count * Step::kOut);
}

// A hint: beyond the end of the pixels it does nothing.
HWY_INLINE void ReadAhead(const std::uint8_t* in, std::size_t bytes)
{
    const auto at = reinterpret_cast<std::uintptr_t>(in) + kAhead;
    for (std::size_t k = 0; k < bytes; k += kCacheLine)
        hwy::Prefetch(reinterpret_cast<const std::uint8_t*>(at + k));
}

// The step comes by value: what is written to `out` can't change it, so that it stays in registers.
template <bool kStream, class Step>
HWY_INLINE void RunRow(const Step step, const std::uint8_t* in, std::uint8_t* out,
                       std::size_t count)
{
    std::size_t x = 0;
    if constexpr (kStream) {  // up to the first aligned vector
        const std::size_t past = reinterpret_cast<std::uintptr_t>(out) % hn::Lanes(Bytes());
        x = std::min(count, (past ? hn::Lanes(Bytes()) - past : 0) / Step::kOut);
        if (x)
            RunPart(step, in, out, x);
    }
    for (const std::size_t n = Step::Count(); x + n <= count; x += n) {
        if constexpr (kStream)
            ReadAhead(in + x * Step::kIn, n * Step::kIn);
        step.template Run<kStream>(in + x * Step::kIn, out + x * Step::kOut);
    }
    if (x < count)
        RunPart(step, in + x * Step::kIn, out + x * Step::kOut, count - x);
}

template <bool kStream, class Step>
void RunRows(const Step& step, const VOIPixels& pixels)
{
    auto count = static_cast<std::size_t>(pixels.width);
    auto rows = static_cast<std::size_t>(pixels.height);
    if (static_cast<std::size_t>(pixels.sourceRowBytes) == count * Step::kIn &&
        static_cast<std::size_t>(pixels.destinationRowBytes) == count * Step::kOut) {
        count *= rows;  // rows without gaps are one row
        rows = 1;
    }
    for (std::size_t y = 0; y < rows; ++y) {
        const auto row = static_cast<std::ptrdiff_t>(y);
        RunRow<kStream>(step, pixels.source + row * pixels.sourceRowBytes,
                        pixels.destination + row * pixels.destinationRowBytes, count);
    }
}

template <class Step>
bool Run(const Step& step, const VOIPixels& pixels)
{
    const std::size_t written = static_cast<std::size_t>(pixels.width) *
                                static_cast<std::size_t>(pixels.height) * Step::kOut;
    // Streaming needs pixels that meet the edges of vectors in every row.
    const auto starts = reinterpret_cast<std::uintptr_t>(pixels.destination) |
                        static_cast<std::size_t>(pixels.destinationRowBytes);
    if (written >= kStreamBytes && starts % Step::kOut == 0 &&
        pixels.source != pixels.destination) {
        RunRows<true>(step, pixels);
        hwy::FlushStream();
    } else {
        RunRows<false>(step, pixels);
    }
    return true;
}

// Runs the step `Step<Ramp>` for the form of the ramp.
template <template <class> class Step>
bool RunRamp(const VOIRamp& ramp, const VOIPixels& pixels)
{
    if (ramp.form == VOIRampForm::Whole)
        return ramp.shift ? Run(Step<WholeRamp<true> >{{{ramp}}}, pixels)
                          : Run(Step<WholeRamp<false> >{{{ramp}}}, pixels);
#if HWY_NATIVE_FMA
    if (ramp.form == VOIRampForm::Line)
        return Run(Step<LineRamp>{{{ramp}}}, pixels);
#endif
    return Run(Step<DividedRamp>{{{ramp}}}, pixels);
}

template <class Ramp>
using BigTo8 = StepTo8<Ramp, true>;
template <class Ramp>
using NativeTo8 = StepTo8<Ramp, false>;

bool RampRows16to8(const VOIRamp& ramp, const VOIPixels& pixels)
{
    return ramp.use.bigEndian ? RunRamp<BigTo8>(ramp, pixels) : RunRamp<NativeTo8>(ramp, pixels);
}

bool RampRows16to32ARGB(const VOIRamp& ramp, const VOIPixels& pixels)
{
    return RunRamp<StepToARGB>(ramp, pixels);
}

bool RampRowsMixedTo32ARGB(const VOIRamp& ramp, const VOIPixels& pixels)
{
    return RunRamp<StepMixed>(ramp, pixels);
}

inline void IndexBlock(const VOILookup& lookup, const std::uint8_t* in, std::size_t count,
                       std::uint16_t* index)
{
    RunRow<false>(StepIndex{lookup}, in, reinterpret_cast<std::uint8_t*>(index), count);
}

inline void GrayToARGB(const std::uint8_t* gray, std::uint8_t flip, std::size_t count,
                       std::uint8_t* out)
{
    RunRow<false>(StepGrayToARGB{flip}, gray, out, count);
}

#endif

// Runs `block(source, destination, count)` over all rows, block by block.
template <std::size_t kIn, std::size_t kOut, class Block>
void ForEachBlock(const VOIPixels& pixels, Block block)
{
    const auto width = static_cast<std::size_t>(pixels.width);
    for (std::ptrdiff_t y = 0; y < pixels.height; ++y) {
        const std::uint8_t* in = pixels.source + y * pixels.sourceRowBytes;
        std::uint8_t* out = pixels.destination + y * pixels.destinationRowBytes;
        for (std::size_t x = 0; x < width; x += kBlock)
            block(in + x * kIn, out + x * kOut, std::min(kBlock, width - x));
    }
}

// The positions are made in vectors; only the reads of the table go pixel by pixel.
void LookUpBlock(const VOILookup& lookup, const std::uint8_t* in, std::uint8_t* out,
                 std::size_t count)
{
    std::uint16_t index[kBlock];
    IndexBlock(lookup, in, count, index);
    const std::uint8_t* entries = lookup.entries;
    std::size_t x = 0;
    for (; x + kTogether <= count; x += kTogether) {
        std::uint8_t some[kTogether];
        for (std::size_t k = 0; k < kTogether; ++k)
            some[k] = entries[index[x + k]];
        std::memcpy(out + x, some, sizeof some);
    }
    for (; x < count; ++x)
        out[x] = entries[index[x]];
}

void TableRows16to8(const VOILookup& lookup, const VOIPixels& pixels)
{
    ForEachBlock<2, 1>(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::size_t count) {
        LookUpBlock(lookup, in, out, count);
    });
}

void TableRows16to32ARGB(const VOILookup& lookup, const VOIPixels& pixels)
{
    ForEachBlock<2, 4>(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::size_t count) {
        std::uint8_t gray[kBlock];
        LookUpBlock(lookup, in, gray, count);
        GrayToARGB(gray, 255, count, out);
    });
}

void TableRows8to32ARGB(const VOIScale256& table, const VOIPixels& pixels)
{
    ForEachBlock<1, 4>(pixels, [&](const std::uint8_t* in, std::uint8_t* out, std::size_t count) {
        std::uint8_t gray[kBlock];
        for (std::size_t x = 0; x < count; ++x)
            gray[x] = table[in[x]];
        GrayToARGB(gray, 0, count, out);
    });
}

}  // namespace HWY_NAMESPACE
}  // namespace zel_voi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace zel_voi {
HWY_EXPORT(RampRows16to8);
HWY_EXPORT(RampRows16to32ARGB);
HWY_EXPORT(RampRowsMixedTo32ARGB);
HWY_EXPORT(TableRows16to8);
HWY_EXPORT(TableRows16to32ARGB);
HWY_EXPORT(TableRows8to32ARGB);
}  // namespace zel_voi

using namespace zel_voi;

bool VOIRampRows16to8(const VOIRamp& ramp, const VOIPixels& pixels)
{
    return HWY_DYNAMIC_DISPATCH(RampRows16to8)(ramp, pixels);
}

bool VOIRampRows16to32ARGB(const VOIRamp& ramp, const VOIPixels& pixels)
{
    return HWY_DYNAMIC_DISPATCH(RampRows16to32ARGB)(ramp, pixels);
}

bool VOIRampRowsMixedTo32ARGB(const VOIRamp& ramp, const VOIPixels& pixels)
{
    return HWY_DYNAMIC_DISPATCH(RampRowsMixedTo32ARGB)(ramp, pixels);
}

void VOITableRows16to8(const VOILookup& lookup, const VOIPixels& pixels)
{
    HWY_DYNAMIC_DISPATCH(TableRows16to8)(lookup, pixels);
}

void VOITableRows16to32ARGB(const VOILookup& lookup, const VOIPixels& pixels)
{
    HWY_DYNAMIC_DISPATCH(TableRows16to32ARGB)(lookup, pixels);
}

void VOITableRows8to32ARGB(const VOIScale256& table, const VOIPixels& pixels)
{
    HWY_DYNAMIC_DISPATCH(TableRows8to32ARGB)(table, pixels);
}

#endif  // HWY_ONCE

#include "tool/demo/DemoEncode.h"
#include "tool/demo/DemoHeader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

namespace {

constexpr std::size_t kCategories = 17;  // of differences, by their number of bits
// Code lengths from the most frequent category on. Together they leave the code of ones only free.
constexpr std::array<int, kCategories> kLengths = {2, 2, 3,  3,  3,  4,  5,  6, 7,
                                                   8, 9, 10, 11, 12, 13, 14, 15};

std::size_t CategoryOf(int difference)
{
    return static_cast<std::size_t>(
        std::bit_width(static_cast<std::uint32_t>(difference < 0 ? -difference : difference)));
}

// Each sample less its left neighbour, less the upper one where a row begins (T.81 H.1.2.1); in
// the range -32767 to 32768, as differences are taken modulo 65536.
std::vector<int> Differences(const DemoPixelForm& form, std::string_view pixels)
{
    const auto bytes = static_cast<std::size_t>(form.allocated / 8);
    const auto columns = static_cast<std::size_t>(form.columns);
    const auto value = [&](std::size_t i) {
        const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(pixels[at]); };
        return bytes == 1 ? byte(i) : byte(2 * i) | byte(2 * i + 1) << 8;
    };
    std::vector<int> differences(pixels.size() / bytes);
    for (std::size_t i = 0; i < differences.size(); ++i) {
        const int first = 1 << (form.stored - 1);
        const int predicted = i % columns ? value(i - 1) : i ? value(i - columns) : first;
        const int difference = (value(i) - predicted) & 0xFFFF;
        differences[i] = difference > 0x8000 ? difference - 0x10000 : difference;
    }
    return differences;
}

std::array<std::size_t, kCategories> ByFrequency(const std::vector<int>& differences)
{
    std::array<std::size_t, kCategories> counts{}, order{};
    for (const int difference : differences)
        ++counts[CategoryOf(difference)];
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, [&](auto a, auto b) { return counts[a] > counts[b]; });
    return order;
}

class BitWriter {
public:
    explicit BitWriter(std::string* out) : fOut(out) {}
    void Put(std::uint32_t bits, int count)
    {
        fBits = fBits << count | bits;
        for (fCount += count; fCount >= 8; fCount -= 8)
            PutByte(static_cast<std::uint8_t>(fBits >> (fCount - 8)));
    }
    void Finish()
    {
        if (fCount > 0)
            Put((1U << (8 - fCount)) - 1, 8 - fCount);
    }

private:
    void PutByte(std::uint8_t byte)
    {
        fOut->push_back(static_cast<char>(byte));
        if (byte == 0xFF)
            fOut->push_back('\0');  // no marker
    }
    std::string* fOut;
    std::uint64_t fBits = 0;
    int fCount = 0;  // of the low bits that still wait
};

void AppendBytes(std::string* out, std::initializer_list<std::size_t> bytes)
{
    for (const std::size_t byte : bytes)
        out->push_back(static_cast<char>(byte & 0xFF));
}

void AppendHead(std::string* out, const DemoPixelForm& form,
                const std::array<std::size_t, kCategories>& order)
{
    const auto rows = static_cast<std::size_t>(form.rows);
    const auto columns = static_cast<std::size_t>(form.columns);
    AppendBytes(out, {0xFF, 0xD8, 0xFF, 0xC4, 0, 3 + 16 + kCategories, 0});
    for (int length = 1; length <= 16; ++length)
        AppendBytes(out, {static_cast<std::size_t>(std::ranges::count(kLengths, length))});
    for (const std::size_t category : order)
        AppendBytes(out, {category});
    AppendBytes(out, {0xFF, 0xC3, 0, 11, static_cast<std::size_t>(form.stored), rows >> 8, rows,
                      columns >> 8, columns, 1, 1, 0x11, 0});
    AppendBytes(out, {0xFF, 0xDA, 0, 8, 1, 1, 0, 1, 0, 0});
}

}  // namespace

QvxStatus DemoEncode_JPEGLossless(const DemoPixelForm& form, std::string_view pixels,
                                  std::string* stream)
{
    if (form.samples != 1 || form.isSigned)
        return kQvxUnsupported;
    const std::vector<int> differences = Differences(form, pixels);
    const auto order = ByFrequency(differences);
    std::array<std::pair<std::uint32_t, int>, kCategories> codes{};
    std::uint32_t code = 0;
    for (std::size_t i = 0; i < kCategories; ++i) {
        if (i > 0)
            code = (code + 1) << (kLengths[i] - kLengths[i - 1]);
        codes[order[i]] = {code, kLengths[i]};
    }
    std::string out;
    AppendHead(&out, form, order);
    BitWriter bits(&out);
    for (const int difference : differences) {
        const std::size_t category = CategoryOf(difference);
        bits.Put(codes[category].first, codes[category].second);
        const int extra = static_cast<int>(category);
        if (extra > 0 && extra < 16) {
            const int below = difference < 0 ? (1 << extra) - 1 : 0;
            bits.Put(static_cast<std::uint32_t>(difference + below), extra);
        }
    }
    bits.Finish();
    AppendBytes(&out, {0xFF, 0xD9});
    *stream = std::move(out);
    return kQvxOK;
}

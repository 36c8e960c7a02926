#include "tool/demo/DemoDataSet.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>

namespace {

constexpr std::uint32_t kPixelData = 0x7FE00010, kUndefinedLength = 0xFFFFFFFF;
constexpr std::uint32_t kItem = 0xFFFEE000, kSequenceEnd = 0xFFFEE0DD;

bool HasLongLength(std::string_view vr) { return vr == "OB" || vr == "OW" || vr == "SQ"; }

// How many bytes of a value change places in the other byte order.
std::size_t UnitOf(std::string_view vr)
{
    if (vr == "US" || vr == "SS" || vr == "OW" || vr == "AT")
        return 2;
    if (vr == "UL" || vr == "SL")
        return 4;
    return vr == "FD" ? 8 : 1;
}

void ReverseUnits(std::string* bytes, std::size_t unit)
{
    for (auto at = bytes->begin(); at != bytes->end(); at += static_cast<std::ptrdiff_t>(unit))
        std::reverse(at, at + static_cast<std::ptrdiff_t>(unit));
}

template <typename T>
void Append(std::string* out, T number, bool bigEndian)
{
    std::string bytes;
    DemoAppendLE(&bytes, number);
    if (bigEndian)
        std::ranges::reverse(bytes);
    *out += bytes;
}

void AppendTag(std::string* out, std::uint32_t tag, bool bigEndian)
{
    Append(out, static_cast<std::uint16_t>(tag >> 16), bigEndian);
    Append(out, static_cast<std::uint16_t>(tag & 0xFFFF), bigEndian);
}

void AppendHead(std::string* out, std::uint32_t tag, std::string_view vr, std::uint32_t length,
                const DemoSyntaxRow& syntax)
{
    AppendTag(out, tag, syntax.bigEndian);
    if (!syntax.explicitVR) {
        Append(out, length, syntax.bigEndian);
        return;
    }
    out->append(vr);
    if (HasLongLength(vr)) {
        out->append(2, '\0');
        Append(out, length, syntax.bigEndian);
    } else {
        Append(out, static_cast<std::uint16_t>(length), syntax.bigEndian);
    }
}

std::uint32_t Size(const std::string& bytes) { return static_cast<std::uint32_t>(bytes.size()); }

}  // namespace

void DemoDataSet::Put(std::uint32_t tag, std::string_view vr, std::string bytes)
{
    if (bytes.size() % 2)
        bytes += vr == "UI" || vr == "OB" || vr == "OW" ? '\0' : ' ';
    fElements[tag] = {std::string(vr), std::move(bytes)};
}

void DemoDataSet::Text(std::uint32_t tag, std::string_view vr, std::string_view text)
{
    Put(tag, vr, std::string(text));
}

void DemoDataSet::Decimals(std::uint32_t tag, const std::vector<double>& numbers)
{
    std::string text;
    for (const double number : numbers) {
        // A DS holds 16 characters: nine digits leave room for sign, point and exponent.
        std::array<char, 16> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                       std::chars_format::general, 9)
                             .ptr;
        text.append(text.empty() ? "" : "\\").append(digits.data(), end);
    }
    Text(tag, "DS", text);
}

void DemoDataSet::Integer(std::uint32_t tag, int number)
{
    Text(tag, "IS", std::to_string(number));
}

void DemoDataSet::Short(std::uint32_t tag, int number, std::string_view vr)
{
    Shorts(tag, {number}, vr);
}

void DemoDataSet::Shorts(std::uint32_t tag, std::initializer_list<int> numbers, std::string_view vr)
{
    std::string bytes;
    for (const int number : numbers)
        DemoAppendLE(&bytes, static_cast<std::uint16_t>(number));
    Put(tag, vr, bytes);
}

void DemoDataSet::Longs(std::uint32_t tag, std::initializer_list<std::int64_t> numbers,
                        std::string_view vr)
{
    std::string bytes;
    for (const std::int64_t number : numbers)
        DemoAppendLE(&bytes, static_cast<std::uint32_t>(number));
    Put(tag, vr, bytes);
}

void DemoDataSet::Double(std::uint32_t tag, double number)
{
    std::string bytes;
    DemoAppendLE(&bytes, std::bit_cast<std::uint64_t>(number));
    Put(tag, "FD", bytes);
}

void DemoDataSet::TagOf(std::uint32_t tag, std::uint32_t other)
{
    std::string bytes;
    AppendTag(&bytes, other, false);
    Put(tag, "AT", bytes);
}

void DemoDataSet::Words(std::uint32_t tag, std::string bytes) { Put(tag, "OW", std::move(bytes)); }

void DemoDataSet::Items(std::uint32_t tag, std::vector<DemoDataSet> items)
{
    fElements[tag] = {"SQ", "", std::move(items)};
}

void DemoDataSet::Pixels(std::string bytes, std::string_view vr)
{
    Put(kPixelData, vr, std::move(bytes));
}

void DemoDataSet::Fragments(const std::vector<std::string>& frames)
{
    const DemoSyntaxRow& little = DemoSyntax_Row(DemoSyntax::ImplicitLittle);
    std::string offsets, body;
    for (const std::string& frame : frames) {
        DemoAppendLE(&offsets, Size(body));
        AppendHead(&body, kItem, "", Size(frame) + Size(frame) % 2, little);
        body.append(frame).append(frame.size() % 2, '\0');
    }
    std::string bytes;
    AppendHead(&bytes, kItem, "", Size(offsets), little);
    bytes.append(offsets).append(body);
    AppendHead(&bytes, kSequenceEnd, "", 0, little);
    fElements[kPixelData] = {"OB", std::move(bytes), {}, true};
}

std::string DemoDataSet::ValueOf(std::uint32_t tag) const
{
    const auto element = fElements.find(tag);
    return element != fElements.end() ? element->second.bytes : std::string();
}

void DemoDataSet::Copy(std::uint32_t tag, const DemoDataSet& from)
{
    if (const auto element = from.fElements.find(tag); element != from.fElements.end())
        fElements[tag] = element->second;
}

std::string DemoDataSet::Encoded(DemoSyntax syntax) const
{
    const DemoSyntaxRow& row = DemoSyntax_Row(syntax);
    std::string out;
    for (const auto& [tag, value] : fElements) {
        std::string bytes = value.bytes;
        if (row.bigEndian)
            ReverseUnits(&bytes, UnitOf(value.vr));
        for (const DemoDataSet& item : value.items) {
            const std::string content = item.Encoded(syntax);
            AppendTag(&bytes, kItem, row.bigEndian);
            Append(&bytes, Size(content), row.bigEndian);
            bytes += content;
        }
        AppendHead(&out, tag, value.vr, value.encapsulated ? kUndefinedLength : Size(bytes), row);
        out += bytes;
    }
    return out;
}

// The elements of one data set of the demo, and how they stand in a file.
#pragma once
#include "tool/demo/DemoSyntax.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <vector>

// Elements are kept in ascending order whatever the order of the calls; a later call for a tag
// replaces an earlier one. Tags are (group << 16 | element). A value is padded to an even length as
// its VR wants it.
class DemoDataSet {
public:
    void Text(std::uint32_t tag, std::string_view vr, std::string_view text);
    void Decimals(std::uint32_t tag, const std::vector<double>& numbers);   // DS
    void Integer(std::uint32_t tag, int number);                            // IS
    void Short(std::uint32_t tag, int number, std::string_view vr = "US");  // US or SS
    void Shorts(std::uint32_t tag, std::initializer_list<int> numbers, std::string_view vr = "US");
    void Longs(std::uint32_t tag, std::initializer_list<std::int64_t> numbers,
               std::string_view vr = "UL");  // UL or SL
    void Double(std::uint32_t tag, double number);
    void TagOf(std::uint32_t tag, std::uint32_t other);  // AT
    void Words(std::uint32_t tag, std::string bytes);    // OW, little endian
    void Items(std::uint32_t tag, std::vector<DemoDataSet> items);
    void Item(std::uint32_t tag, const DemoDataSet& item) { Items(tag, {item}); }
    void Pixels(std::string bytes, std::string_view vr);  // (7FE0,0010): OW little endian, or OB
    // (7FE0,0010) in fragments, one a frame, behind a table of where they begin (PS3.5 A.4).
    void Fragments(const std::vector<std::string>& frames);

    // The value in little endian, padding included; empty when there is none.
    [[nodiscard]] std::string ValueOf(std::uint32_t tag) const;
    // Takes over the value of `tag` from another data set, if it has it.
    void Copy(std::uint32_t tag, const DemoDataSet& from);
    // As bytes of a file, sequences and items with their lengths stated. Not deflated.
    [[nodiscard]] std::string Encoded(DemoSyntax syntax) const;

private:
    struct Value {
        std::string vr, bytes;
        std::vector<DemoDataSet> items = {};
        bool encapsulated = false;
    };
    void Put(std::uint32_t tag, std::string_view vr, std::string bytes);

    std::map<std::uint32_t, Value> fElements;
};

// A number's bytes appended, the lowest first.
template <typename T>
void DemoAppendLE(std::string* out, T number)
{
    for (std::size_t i = 0; i < sizeof(T); ++i)
        out->push_back(static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i) & 0xFF));
}

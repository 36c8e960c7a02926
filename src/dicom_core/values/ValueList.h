// Elements found, and all values of a text element in one pass: asking for them one by one costs
// the square of their number.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The first `maximum` bytes of an element as they stand in the file. kQvxNoMemory among others.
[[nodiscard]] QvxStatus TextOfElement(ParserHandle parser, QvxElementRef element,
                                      std::uint32_t maximum, std::string* text);

// None without one.
[[nodiscard]] inline QvxElementRef TopLevelElement(ParserHandle parser, QvxElementTag tag)
{
    QvxElementRef found = QvxElementRef::None;
    return Qvx2Reader_FindElement(parser, QvxElementRef::None, tag, &found) ? QvxElementRef::None
                                                                            : found;
}

// `take(std::string_view)` for each value, with its blanks, until it answers false.
template <typename Take>
void ForEachValue(std::string_view text, Take take)
{
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find('\\', start);
        if (!take(text.substr(start, end - start)) || end == std::string_view::npos)
            return;
        start = end + 1;
    }
}

// Is one of the values, but for blanks and NULs at its end, the text `wanted`?
[[nodiscard]] bool ElementHasValue(ParserHandle parser, QvxElementRef element,
                                   std::string_view wanted);

// The first `maximum` values as floats, whatever numbers they are; what can't be read is 0.
[[nodiscard]] QvxStatus Parser_GetElementValuesAsFloats(ParserHandle parser, QvxElementRef element,
                                                        std::int32_t maximum,
                                                        std::vector<float>* values);
// The same as whole numbers, each as Parser_GetElementValueAsLong has it.
[[nodiscard]] QvxStatus Parser_GetElementValuesAsLongs(ParserHandle parser, QvxElementRef element,
                                                       std::int32_t maximum,
                                                       std::vector<std::int32_t>* values);

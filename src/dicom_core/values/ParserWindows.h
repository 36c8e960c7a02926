// The window presets that a file states (PS3.3 C.11.2.1.2). Indexes count from 1. Widths and
// centers are the file's numbers cut toward 0 to whole ones.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstdint>
#include <string>

// Where presets lie: (0028,1050), (0028,1051) and (0028,1055). None: there is no such element.
struct zelWindowElements {
    QvxElementRef fCenter = QvxElementRef::None;
    QvxElementRef fWidth = QvxElementRef::None;
    QvxElementRef fName = QvxElementRef::None;
};

// Number of values of (0028,1050), 0 if missing.
[[nodiscard]] std::int32_t Parser_GetNumberOfWindowingPresets(ParserHandle parser);
// One preset. What it lacks is 0, or an empty name, and no error; so is an index out of range. A
// name has at most 63 bytes. kQvxBadArgument for a null argument.
[[nodiscard]] QvxStatus Parser_GetWindowingPreset(ParserHandle parser, std::int32_t index,
                                                  std::int32_t* width, std::int32_t* center,
                                                  std::string* name);

// Presets whose numbers no earlier one has. Beyond kMaxUniquePresets none is looked at.
inline constexpr std::int32_t kMaxUniquePresets = 1024;
[[nodiscard]] std::int32_t Parser_GetNumberOfUniqueWindowingPresets(ParserHandle parser);
// As Parser_GetWindowingPreset, `index` counting the distinct ones; the name is that of the first.
[[nodiscard]] QvxStatus Parser_GetUniqueWindowingPreset(ParserHandle parser, std::int32_t index,
                                                        std::int32_t* width, std::int32_t* center,
                                                        std::string* name);

// The same on elements that the caller has found.
[[nodiscard]] zelWindowElements WindowElementsOfFile(ParserHandle parser);
[[nodiscard]] std::int32_t WindowCount(ParserHandle parser, const zelWindowElements& elements);
[[nodiscard]] QvxStatus WindowPreset(ParserHandle parser, const zelWindowElements& elements,
                                     std::int32_t index, std::int32_t* width, std::int32_t* center,
                                     std::string* name);
[[nodiscard]] std::int32_t UniqueWindowCount(ParserHandle parser,
                                             const zelWindowElements& elements);
[[nodiscard]] QvxStatus UniqueWindowPreset(ParserHandle parser, const zelWindowElements& elements,
                                           std::int32_t index, std::int32_t* width,
                                           std::int32_t* center, std::string* name);

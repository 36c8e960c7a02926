// Values of elements as bounded text and as numbers, by tag or by reference, and what the program
// asks of a file before it takes it in. Text is the file's own bytes. Value indexes count from 1.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

// ---- text -------------------------------------------------------------------------------------

// A text block as a plain string of at most size - 1 bytes, which ends at the block's first NUL.
// Empty for a null handle. Throws std::bad_alloc.
void CopyTextHandleToCString(const QvxHandle& handle, std::size_t size, std::string* text);
// A new block with the text, without a terminator. kQvxNoMemory.
[[nodiscard]] QvxStatus CopyCStringToTextHandle(std::string_view text, QvxHandle* handle);

inline constexpr std::int32_t kAllValues = -1;

// Value number `index` without its trailing blanks; `size` is the byte limit of the field with its
// terminator, so that at most size - 1 bytes are stored. kAllValues joins all values, each without
// its trailing blanks, by one backslash and breaks off at the limit; an empty value keeps its place
// between two backslashes.
// `text` is cleared first and stays empty on failure: kQvxNoSuchElement if there is no element,
// kQvxNoValue for an empty value among others, else the reader's codes. An element without any
// value gives an empty text and kQvxOK.
[[nodiscard]] QvxStatus Parser_GetElementValueInCString(ParserHandle parser, QvxElementRef element,
                                                        std::int32_t index, std::size_t size,
                                                        std::string* text);
// The same by tag, below `parent` or at the top level.
[[nodiscard]] QvxStatus Parser_GetElementValueInCString(ParserHandle parser, QvxElementRef parent,
                                                        std::uint16_t group, std::uint16_t element,
                                                        std::int32_t index, std::size_t size,
                                                        std::string* text);

// All values of an element, trimmed and joined as above. With `skipEmpty` an empty value adds
// nothing, not even its backslash. What stands behind the first MiB of a text is not looked at.
[[nodiscard]] QvxStatus Parser_JoinElementValues(ParserHandle parser, QvxElementRef element,
                                                 bool skipEmpty, std::size_t size,
                                                 std::string* text);

// ---- numbers (see also ParserValues.h) --------------------------------------------------------

// A float for an element of 32-bit floats (or DS), else a whole number, widened by the sign of its
// own kind; an unsigned word of 32 bits is kept bit for bit.
using ParserNumber = std::variant<std::int32_t, float>;
// Value number `index` and its kind, below `parent` or at the top level. kQvxUnsupported for
// doubles and for what is no number, kQvxNoSuchElement if there is no element.
[[nodiscard]] QvxStatus Parser_GetElementValue(ParserHandle parser, QvxElementRef parent,
                                               std::uint16_t group, std::uint16_t element,
                                               std::int32_t index, QvxNumericValueType* type,
                                               ParserNumber* value);

// Parser_GetElementValueAsLong as a plain result, 0 on any failure. ULong takes the same 32 bits.
[[nodiscard]] std::int32_t GetNumericElemValueAsLong(ParserHandle parser, QvxElementRef element,
                                                     std::int32_t index);
[[nodiscard]] std::uint32_t GetNumericElemValueAsULong(ParserHandle parser, QvxElementRef element,
                                                       std::int32_t index);

// ---- queries on the file ----------------------------------------------------------------------

// False only for a Modality of exactly "SR". A file without one is acceptable.
[[nodiscard]] bool Parser_FileModalityIsAcceptable(ParserHandle parser);
// The header claims at least one frame.
[[nodiscard]] bool Parser_FileHasPixelData(ParserHandle parser);
// Is it a media directory, by its Media Storage SOP Class (PS3.3 F.3)? The outs may be null; they
// start at 0 and tell of (0004,1220) in any file: the number of its records, and its reference.
[[nodiscard]] bool Parser_FileIsDICOMDIR(ParserHandle parser, std::uint32_t* recordCount = nullptr,
                                         QvxElementRef* sequence = nullptr);

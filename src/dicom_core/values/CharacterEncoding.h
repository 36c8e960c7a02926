// Specific Character Set (0008,0005) of one file: a list of encodings, one for each of its values.
// An encoding is a number of a string encoding table, of which only the set that it stands for
// matters here.
#pragma once
#include "dicom_core/values/CodeExtensions.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <QString>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

inline constexpr std::uint32_t kEncodingLatin1 = 0x201;
inline constexpr std::uint32_t kEncodingMacJapanese = 0x80000001;
inline constexpr std::uint32_t kEncodingISO2022JP1 = 0x80000822;
inline constexpr std::uint32_t kEncodingJISX0212 = 0x623;
inline constexpr std::uint32_t kEncodingEUCKR = 0x80000940;
inline constexpr std::uint32_t kEncodingNone = 0xFFFFFFFF;  // decoding gives nothing

// The encoding of a term, which is compared whole, without trailing blanks and by its first 63
// characters. kEncodingNone for any other, the "ISO 2022 IR" forms of the one-byte sets included.
[[nodiscard]] std::uint32_t CDicomStringToCharEncoding(std::string_view term);

// Name for platform/TextConverter.h of the set that an encoding stands for; null for a number of
// no set.
[[nodiscard]] const char* ConverterOfEncoding(std::uint32_t encoding);

// One encoding for each value of (0008,0005), of which no more than 64 count. Missing or without
// values: ISO 8859-1 alone; an empty first value is ISO 8859-1 too. A later value that is empty or
// can't be read is kEncodingNone. The status is that of the last value read, and `encodings` is
// filled with any but kQvxNoMemory and kQvxBadArgument.
[[nodiscard]] QvxStatus Parser_GetCharacterEncodings(ParserHandle parser,
                                                     std::vector<std::uint32_t>* encodings);

class dk_DicomCharacterEncoding {
public:
    dk_DicomCharacterEncoding() = default;  // holds no encodings
    // Those of the file; a null parser has none.
    explicit dk_DicomCharacterEncoding(ParserHandle parser);
    virtual ~dk_DicomCharacterEncoding() = default;
    dk_DicomCharacterEncoding(const dk_DicomCharacterEncoding&) = default;
    dk_DicomCharacterEncoding& operator=(const dk_DicomCharacterEncoding&) = default;

    [[nodiscard]] std::span<const std::uint32_t> Encodings() const { return fEncodings; }

    // The encoding that the escape sequence at `*position` selects; the position moves to the last
    // byte of the sequence. 0, and the position stays, when there is no ESC or no such sequence.
    [[nodiscard]] static std::uint32_t FindTargetEncoding(std::string_view bytes,
                                                          std::size_t* position);

    // Any text of the file as the standard reads it, with every defined term and escape sequence
    // (CodeExtensions.h), whatever the encodings above can do.
    [[nodiscard]] QString DecodeText(std::string_view bytes) const;

private:
    std::vector<std::uint32_t> fEncodings;
    std::vector<zelCharSet> fCharSets;  // of the same values
};

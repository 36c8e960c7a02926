// Text with code extension techniques as the standard has them (PS3.5 6.1.2.5): escape sequences
// designate sets to the lower half (G0) and the upper half (G1) of the bytes, and a delimiter
// brings back the sets of the first value of (0008,0005). Every defined term of PS3.3 C.12.1.1.2
// counts.
#pragma once
#include <QString>
#include <cstdint>
#include <span>
#include <string_view>

// A character set, as the standard's terms and escape sequences name them. Stored one for each
// value of (0008,0005).
enum class zelCharSet : std::uint8_t {
    Default,  // ISO-IR 6; upper-half bytes, which it has none of, nearly always are Latin 1
    Unknown,  // bytes below 128 are ASCII, the others stand for nothing
    Latin1,
    Latin2,
    Latin3,
    Latin4,
    Cyrillic,
    Arabic,
    Greek,
    Hebrew,
    Latin5,
    Latin9,
    Thai,      // TIS 620
    JISX0201,  // one byte: Latin letters below, half-width katakana above
    JISX0208,  // two bytes a character, as the next three
    JISX0212,
    Korean,
    Chinese,  // GB 2312
    UTF8,     // the last three stand alone: no escape sequences
    GB18030,
    GBK,
};

// The set of a term, which may be spelled with any case and signs between its letters and digits
// ("ISO_IR 100", "ISO 2022 IR 100", "ISO_2022_IR_100"). An empty term is the default repertoire.
[[nodiscard]] zelCharSet CharSetOfTerm(std::string_view term);

// The text of `bytes` in a file that declares these sets, in the order of (0008,0005); none is the
// default repertoire. A sequence that the standard knows is followed whether its set is declared
// or not. Delimiters are "^", "=", "\\", CR, LF, FF and TAB in text of any kind. What can't be
// decoded becomes U+FFFD, an ESC that begins no known sequence too.
[[nodiscard]] QString TextWithCodeExtensions(std::string_view bytes,
                                             std::span<const zelCharSet> declared);

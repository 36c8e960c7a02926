#include "dicom_core/values/CharacterEncoding.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <string>

namespace {

constexpr QvxElementTag kTagSpecificCharacterSet{0x0008, 0x0005};
constexpr char kEscape = '\x1B';
constexpr std::size_t kLongestTerm = 63;
// Bounds of a list that anyone means; each value is searched from the list's beginning.
constexpr std::int32_t kMaxTerms = 64;
constexpr std::uint32_t kMaxListBytes = 8192;

struct EncodingRow {
    std::string_view fTerm;
    std::uint32_t fEncoding;
    const char* fConverter;
};
// clang-format off
constexpr auto kEncodings = std::to_array<EncodingRow>({
    {"ISO_IR 100",      kEncodingLatin1,      "ISO-8859-1"   },
    {"ISO_IR 101",      0x202,                "ISO-8859-2"   },
    {"ISO_IR 109",      0x80000203,           "ISO-8859-3"   },
    {"ISO_IR 110",      0x80000204,           "ISO-8859-4"   },
    {"ISO_IR 144",      0x80000205,           "ISO-8859-5"   },
    {"ISO_IR 126",      0x80000207,           "ISO-8859-7"   },
    {"ISO_IR 138",      0x80000208,           "ISO-8859-8"   },
    {"ISO_IR 127",      0x80000206,           "ISO-8859-6"   },
    {"GB18030",         0x80000632,           "GB18030"      },
    {"ISO_IR 192",      0x8000100,            "UTF-8"        },
    {"UTF-8",           4,                    "UTF-8"        },
    {"ISO 2022 IR 149", kEncodingEUCKR,       "EUC-KR"       },
    {"ISO 2022 IR 13",  kEncodingMacJapanese, "Shift_JIS"    },
    {"ISO_IR 13",       kEncodingMacJapanese, "Shift_JIS"    },
    {"ISO 2022 IR 87",  kEncodingISO2022JP1,  "ISO-2022-JP-1"},
    {"ISO_IR 159",      kEncodingJISX0212,    "ISO-2022-JP-1"},  // reads ESC $ ( D
    {"ISO_2022_IR_6",   kEncodingLatin1,      "ISO-8859-1"   },
});

struct EscapeRow {
    std::string_view fBehind;  // the bytes behind ESC
    std::uint32_t fEncoding;
};
// In the order in which they are tried: a row that is the beginning of a later one hides it.
constexpr auto gEscSequences = std::to_array<EscapeRow>({
    {"$B",  kEncodingISO2022JP1 },
    {"(B",  kEncodingLatin1     },
    {"(I",  kEncodingLatin1     },
    {")I",  kEncodingMacJapanese},
    {"(J",  kEncodingMacJapanese},
    {")J",  kEncodingMacJapanese},
    {"$(D", kEncodingJISX0212   },
    {"$)D", kEncodingJISX0212   },
    {"$B",  kEncodingISO2022JP1 },
    {"$)B", kEncodingISO2022JP1 },
    {"$(",  kEncodingJISX0212   },
    {"$(C", kEncodingEUCKR      },
    {"$)C", kEncodingEUCKR      },
});
// clang-format on

// One value of (0008,0005); none when it can't be read.
using Term = std::optional<std::string>;

// At least one term, unless memory ran out.
QvxStatus ReadTerms(ParserHandle parser, std::vector<Term>* terms)
{
    terms->clear();
    QvxElementRef element = QvxElementRef::None;
    QvxElementDataInfo info;
    if (Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagSpecificCharacterSet, &element) ==
        kQvxOK) {
        if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info)) {
            terms->emplace_back();
            return status;
        }
    }
    if (info.fMultiplicity < 1) {
        terms->emplace_back("");
        return kQvxOK;
    }
    const std::int32_t count =
        info.fDataSize > kMaxListBytes ? 1 : std::min(info.fMultiplicity, kMaxTerms);
    QvxStatus status = kQvxOK;
    for (std::int32_t index = 1; index <= count; ++index) {
        QvxHandle text;
        status = Qvx2Reader_GetElementDataAsText(parser, element, index, &text);
        if (status == kQvxOK)
            terms->emplace_back(std::string(text.Text().substr(0, kLongestTerm)));
        else
            terms->emplace_back(status == kQvxNoValue && index == 1 ? Term("") : Term());
    }
    return status;
}

// An empty first value is the default repertoire, one superset of which serves for it.
std::vector<std::uint32_t> EncodingsOf(const std::vector<Term>& terms)
{
    std::vector<std::uint32_t> encodings;
    for (const Term& term : terms) {
        const bool isDefault = encodings.empty() && term && term->empty();
        encodings.push_back(isDefault ? kEncodingLatin1
                            : term    ? CDicomStringToCharEncoding(*term)
                                      : kEncodingNone);
    }
    return encodings;
}

}  // namespace

std::uint32_t CDicomStringToCharEncoding(std::string_view term)
{
    term = term.substr(0, kLongestTerm);
    term = term.substr(0, term.find_last_not_of(' ') + 1);
    const auto row = std::ranges::find(kEncodings, term, &EncodingRow::fTerm);
    return row != kEncodings.end() ? row->fEncoding : kEncodingNone;
}

const char* ConverterOfEncoding(std::uint32_t encoding)
{
    const auto row = std::ranges::find(kEncodings, encoding, &EncodingRow::fEncoding);
    return row != kEncodings.end() ? row->fConverter : nullptr;
}

QvxStatus Parser_GetCharacterEncodings(ParserHandle parser, std::vector<std::uint32_t>* encodings)
{
    if (!parser || !encodings)
        return kQvxBadArgument;
    try {
        std::vector<Term> terms;
        const QvxStatus status = ReadTerms(parser, &terms);
        *encodings = EncodingsOf(terms);
        return status;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

dk_DicomCharacterEncoding::dk_DicomCharacterEncoding(ParserHandle parser)
{
    if (!parser)
        return;
    try {
        std::vector<Term> terms;
        (void)ReadTerms(parser, &terms);
        fEncodings = EncodingsOf(terms);
        for (const Term& term : terms)
            fCharSets.push_back(CharSetOfTerm(term.value_or("")));
    } catch (const std::bad_alloc&) {
        fEncodings.clear();
        fCharSets.clear();
    }
}

std::uint32_t dk_DicomCharacterEncoding::FindTargetEncoding(std::string_view bytes,
                                                            std::size_t* position)
{
    if (*position >= bytes.size() || bytes[*position] != kEscape)
        return 0;
    const std::string_view behind = bytes.substr(*position + 1);
    for (const EscapeRow& row : gEscSequences) {
        if (behind.starts_with(row.fBehind)) {
            *position += row.fBehind.size();
            return row.fEncoding;
        }
    }
    return 0;
}

QString dk_DicomCharacterEncoding::DecodeText(std::string_view bytes) const
{
    return TextWithCodeExtensions(bytes, fCharSets);
}

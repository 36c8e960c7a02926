#include "dicom_core/values/CodeExtensions.h"

#include "platform/TextConverter.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

constexpr char kEscape = '\x1B';

// Converters, in the order of zelCharSet. Each leaves the bytes below 128 as ASCII.
constexpr auto kConverters = std::to_array<const char*>({
    "ISO-8859-1", "US-ASCII",   "ISO-8859-1", "ISO-8859-2", "ISO-8859-3", "ISO-8859-4",
    "ISO-8859-5", "ISO-8859-6", "ISO-8859-7", "ISO-8859-8", "ISO-8859-9", "ISO-8859-15",
    "TIS-620",    "Shift_JIS",  "EUC-JP",     "EUC-JP",     "EUC-KR",     "GB2312",
    "UTF-8",      "GB18030",    "GBK",
});
static_assert(kConverters.size() == static_cast<std::size_t>(zelCharSet::GBK) + 1);

const char* ConverterOf(zelCharSet set) { return kConverters[static_cast<std::size_t>(set)]; }
bool StandsAlone(zelCharSet set) { return set >= zelCharSet::UTF8; }
bool IsJapaneseTwoByte(zelCharSet set)
{
    return set == zelCharSet::JISX0208 || set == zelCharSet::JISX0212;
}

struct TermRow {
    std::string_view fNumber;  // of the ISO registry
    zelCharSet fSet;
};
constexpr auto kTerms = std::to_array<TermRow>({
    {"6", zelCharSet::Default},
    {"100", zelCharSet::Latin1},
    {"101", zelCharSet::Latin2},
    {"109", zelCharSet::Latin3},
    {"110", zelCharSet::Latin4},
    {"144", zelCharSet::Cyrillic},
    {"127", zelCharSet::Arabic},
    {"126", zelCharSet::Greek},
    {"138", zelCharSet::Hebrew},
    {"148", zelCharSet::Latin5},
    {"203", zelCharSet::Latin9},
    {"166", zelCharSet::Thai},
    {"13", zelCharSet::JISX0201},
    {"87", zelCharSet::JISX0208},
    {"159", zelCharSet::JISX0212},
    {"149", zelCharSet::Korean},
    {"58", zelCharSet::Chinese},
    {"192", zelCharSet::UTF8},
});

struct EscapeRow {
    std::string_view fBehind;  // the bytes behind ESC
    bool fUpper;               // designates G1, else G0
    zelCharSet fSet;           // in G0: Default is ASCII, JISX0201 is katakana
};
// PS3.3 C.12.1.1.2, tables C.12-3 and C.12-4; then some that only older systems write. The Latin
// letters of JIS X 0201 are read as ASCII: the yen sign stands where files mean a backslash.
// clang-format off
constexpr auto kEscapes = std::to_array<EscapeRow>({
    {"(B",  false, zelCharSet::Default },
    {"(J",  false, zelCharSet::Default },
    {"$B",  false, zelCharSet::JISX0208},
    {"$(D", false, zelCharSet::JISX0212},
    {"-A",  true,  zelCharSet::Latin1  },
    {"-B",  true,  zelCharSet::Latin2  },
    {"-C",  true,  zelCharSet::Latin3  },
    {"-D",  true,  zelCharSet::Latin4  },
    {"-L",  true,  zelCharSet::Cyrillic},
    {"-G",  true,  zelCharSet::Arabic  },
    {"-F",  true,  zelCharSet::Greek   },
    {"-H",  true,  zelCharSet::Hebrew  },
    {"-M",  true,  zelCharSet::Latin5  },
    {"-b",  true,  zelCharSet::Latin9  },
    {"-T",  true,  zelCharSet::Thai    },
    {")I",  true,  zelCharSet::JISX0201},
    {"$)C", true,  zelCharSet::Korean  },
    {"$)A", true,  zelCharSet::Chinese },
    {"(I",  false, zelCharSet::JISX0201},
    {"$@",  false, zelCharSet::JISX0208},
    {"$(C", false, zelCharSet::Korean  },
    {"$A",  false, zelCharSet::Chinese },
    {")J",  true,  zelCharSet::JISX0201},
    {"$)B", true,  zelCharSet::JISX0208},
    {"$)D", true,  zelCharSet::JISX0212},
});
// clang-format on

// The upper half at the beginning of a value and behind each delimiter: that of the first value.
// Where it has none, the first declared set that has one stands in: values whose escape sequence
// was forgotten, or not repeated behind a delimiter, still come out.
zelCharSet FirstUpper(std::span<const zelCharSet> declared)
{
    const auto hasNone = [](zelCharSet set) {
        return set == zelCharSet::Default || IsJapaneseTwoByte(set);
    };
    const auto found = std::ranges::find_if_not(declared, hasNone);
    return found != declared.end() ? *found : zelCharSet::Default;
}

bool IsControlDelimiter(char byte)
{
    return byte == '\r' || byte == '\n' || byte == '\f' || byte == '\t';
}
bool IsGraphicDelimiter(char byte) { return byte == '^' || byte == '=' || byte == '\\'; }

enum class Half { Control, Lower, Upper };
Half HalfOf(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    if (value >= 0x80)
        return Half::Upper;
    return value > 0x20 && value < 0x7F ? Half::Lower : Half::Control;
}

// The codes of either half as the converter of the set wants them: in the upper half, and those of
// JIS X 0212 with the byte in front that tells them from JIS X 0208.
std::string UpperForm(std::string_view run, zelCharSet set)
{
    std::string form;
    for (std::size_t i = 0; i < run.size(); ++i) {
        if (set == zelCharSet::JISX0212 && i % 2 == 0)
            form += '\x8F';
        form += static_cast<char>(static_cast<unsigned char>(run[i]) | 0x80u);
    }
    return form;
}

class Splitter {
public:
    Splitter(std::string_view bytes, zelCharSet firstUpper)
        : fBytes(bytes), fFirstUpper(firstUpper), fUpper(firstUpper)
    {
    }
    QString Text()
    {
        for (std::size_t i = 0; i < fBytes.size();) {
            if (fBytes[i] == kEscape) {
                i += TakeEscape(i);
            } else {
                if (EndsSets(fBytes[i])) {
                    Flush(i, i);
                    fLower = zelCharSet::Default;
                    fUpper = fFirstUpper;
                }
                ++i;
            }
        }
        Flush(fBytes.size(), fBytes.size());
        return fText;
    }

private:
    // In a set of the lower half, graphic bytes are characters of that set, not delimiters.
    [[nodiscard]] bool EndsSets(char byte) const
    {
        if (fLower == zelCharSet::Default && fUpper == fFirstUpper)
            return false;
        return IsControlDelimiter(byte) ||
               (fLower == zelCharSet::Default && IsGraphicDelimiter(byte));
    }
    // Follows the sequence at `place`; answers its length, 1 when it is none.
    std::size_t TakeEscape(std::size_t place)
    {
        const std::string_view behind = fBytes.substr(place + 1);
        const auto row = std::ranges::find_if(kEscapes, [behind](const EscapeRow& candidate) {
            return behind.starts_with(candidate.fBehind);
        });
        if (row == kEscapes.end()) {
            Flush(place, place + 1);
            fText += QChar(QChar::ReplacementCharacter);
            return 1;
        }
        Flush(place, place + 1 + row->fBehind.size());
        (row->fUpper ? fUpper : fLower) = row->fSet;
        return 1 + row->fBehind.size();
    }
    // Decodes what came since the last piece, up to `end`; the next piece begins at `next`.
    void Flush(std::size_t end, std::size_t next)
    {
        const std::string_view piece = fBytes.substr(fStart, end - fStart);
        fStart = next;
        if (piece.empty())
            return;
        if (fLower == zelCharSet::Default && fUpper != zelCharSet::JISX0212)
            fText += TextFromBytesLenient(piece, ConverterOf(fUpper));
        else
            AppendByHalves(piece);
    }
    void AppendByHalves(std::string_view piece)
    {
        for (std::size_t i = 0; i < piece.size();) {
            const Half half = HalfOf(piece[i]);
            std::size_t end = i + 1;
            while (end < piece.size() && HalfOf(piece[end]) == half)
                ++end;
            const std::string_view run = piece.substr(i, end - i);
            const zelCharSet set = half == Half::Upper ? fUpper : fLower;
            if (half == Half::Control || (half == Half::Lower && set == zelCharSet::Default))
                fText += TextFromBytesLenient(run, "US-ASCII");
            else if (half == Half::Lower || set == zelCharSet::JISX0212)
                fText += TextFromBytesLenient(UpperForm(run, set), ConverterOf(set));
            else
                fText += TextFromBytesLenient(run, ConverterOf(set));
            i = end;
        }
    }

    std::string_view fBytes;
    zelCharSet fFirstUpper, fUpper, fLower = zelCharSet::Default;
    std::size_t fStart = 0;
    QString fText;
};

}  // namespace

zelCharSet CharSetOfTerm(std::string_view term)
{
    std::string name;
    for (const char letter : term.substr(0, 63)) {
        if ((letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z'))
            name += letter;
        else if (letter >= 'a' && letter <= 'z')
            name += static_cast<char>(letter - 'a' + 'A');
    }
    if (name.empty())
        return zelCharSet::Default;
    if (name == "UTF8")
        return zelCharSet::UTF8;
    if (name == "GB18030")
        return zelCharSet::GB18030;
    if (name == "GBK")
        return zelCharSet::GBK;
    for (const std::string_view prefix : {"ISOIR", "ISO2022IR"}) {
        if (!name.starts_with(prefix))
            continue;
        const auto row = std::ranges::find(kTerms, std::string_view(name).substr(prefix.size()),
                                           &TermRow::fNumber);
        return row != kTerms.end() ? row->fSet : zelCharSet::Unknown;
    }
    return zelCharSet::Unknown;
}

QString TextWithCodeExtensions(std::string_view bytes, std::span<const zelCharSet> declared)
{
    const auto alone = std::ranges::find_if(declared, StandsAlone);
    if (alone != declared.end())
        return TextFromBytesLenient(bytes, ConverterOf(*alone));
    return Splitter(bytes, FirstUpper(declared)).Text();
}

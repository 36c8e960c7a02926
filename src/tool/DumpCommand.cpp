// zelora dump FILE
// One line an element: (gggg,eeee) VR length @offset name = value. Each line is bounded, whatever
// the value, and depth is what the reader allows: the output grows with the file and no faster.
#include "tool/CommandLine.h"
#include "tool/ElementVisit.h"
#include "tool/OpenedFile.h"
#include "util/Log.h"

#include "Qvx2Parser/QvxDictionary.h"
#include <algorithm>
#include <cstdio>

namespace {

constexpr std::size_t kShownText = 96;  // bytes of a text
constexpr std::size_t kShownBytes = 16;
constexpr std::int32_t kShownValues = 8;

template <typename... Values>
std::string Formatted(const char* format, Values... values)
{
    char text[64];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

std::string TagText(std::uint16_t group, std::uint16_t element)
{
    return Formatted("(%04X,%04X)", group, element);
}

// The two letters of a VR code; "--" when none is known.
std::string VRText(QvxVR code)
{
    const auto word = static_cast<std::uint32_t>(code);
    const std::string letters{static_cast<char>(word >> 8 & 0xFF), static_cast<char>(word & 0xFF)};
    return letters == "ND" || letters == "  " ? "--" : letters;
}

std::string ShownBytes(QvxParserRec* reader, const VisitedElement& element, std::size_t most)
{
    std::string bytes(std::min<std::size_t>(most, element.fInfo.fDataSize), '\0');
    const QvxStatus status = Qvx2Reader_GetElementData(
        reader, element.fRef, static_cast<std::uint32_t>(bytes.size()), bytes.data());
    return status == kQvxOK ? bytes : std::string();
}

std::string TextValue(QvxParserRec* reader, const VisitedElement& element)
{
    std::string text = ShownBytes(reader, element, kShownText);
    const bool cut = element.fInfo.fDataSize > kShownText;
    if (cut) {  // not within a character
        while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80)
            text.pop_back();
        if (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0)
            text.pop_back();
    } else {
        text.resize(text.find_last_not_of(std::string_view(" \0", 2)) + 1);
    }
    return EscapedText(text) + (cut ? "..." : "");
}

std::string NumericValue(QvxParserRec* reader, const VisitedElement& element)
{
    std::string text;
    for (std::int32_t i = 1; i <= element.fInfo.fMultiplicity; ++i) {
        if (i > kShownValues)
            return text + "\\...";
        QvxHandle number;
        if (Qvx2Reader_GetElementDataAsText(reader, element.fRef, i, &number) != kQvxOK)
            break;
        text.append(i > 1 ? "\\" : "").append(number.Text());
    }
    return text;
}

std::string TagValue(QvxParserRec* reader, const VisitedElement& element)
{
    QvxElementValue value;
    if (Qvx2Reader_GetElementDataAsValue(reader, element.fRef, 1, &value) != kQvxOK ||
        value.fType != QvxNumericValueType::Tag)
        return {};
    return TagText(value.fTag[0], value.fTag[1]) + (element.fInfo.fMultiplicity > 1 ? "..." : "");
}

std::string BinaryValue(QvxParserRec* reader, const VisitedElement& element)
{
    std::string text;
    for (const char c : ShownBytes(reader, element, kShownBytes))
        text += Formatted("%02X ", static_cast<unsigned>(static_cast<unsigned char>(c)));
    if (!text.empty() && element.fInfo.fDataSize <= kShownBytes)
        text.pop_back();
    return text + (text.empty() || element.fInfo.fDataSize <= kShownBytes ? "" : "...");
}

std::string ValueText(QvxParserRec* reader, const VisitedElement& element, const std::string& vr)
{
    const std::uint32_t size = element.fInfo.fDataSize;
    const bool isPixels = element.fTag == QvxElementTag{0x7FE0, 0x0010};
    if (element.fTag.group == 0xFFFE || vr == "SQ" || size == 0 || size == kUndefinedLength ||
        isPixels)
        return {};
    switch (GetElementSuperType(static_cast<QvxVRIndex>(GetDCM_VR_Index(element.fInfo.fVR)))) {
        case QvxSuperType::Text:
            return TextValue(reader, element);
        case QvxSuperType::Numeric:
            return NumericValue(reader, element);
        case QvxSuperType::Binary:
            break;
    }
    return vr == "AT" ? TagValue(reader, element) : BinaryValue(reader, element);
}

class DumpLines final : public ElementVisitor {
public:
    explicit DumpLines(QvxParserRec* reader) : fReader(reader) {}
    [[nodiscard]] QvxStatus Fault() const { return fFault; }

    void Element(const VisitedElement& element) override
    {
        std::string line =
            Indent(element.fDepth) + TagText(element.fTag.group, element.fTag.element);
        const bool isItem = element.fTag == QvxElementTag{0xFFFE, 0xE000};
        if (element.fStatus != kQvxOK) {
            fFault = element.fStatus;
            Say(line + Formatted(" @%u not readable: ", element.fTagOffset) +
                std::string(StatusText(element.fStatus)) + '\n');
            return;
        }
        const std::string vr = VRText(element.fInfo.fVR);
        const std::uint32_t size = element.fInfo.fDataSize;
        line += ' ' + (isItem ? "--" : vr);
        line += size == kUndefinedLength ? " undefined" : Formatted(" %u", size);
        line += Formatted(" @%u ", element.fTagOffset) + Name(element);
        const std::string value = ValueText(fReader, element, vr);
        Say(line + (value.empty() ? "" : " = " + value) + '\n');
    }
    void Delimiter(QvxElementTag tag, std::uint32_t tagOffset, int depth) override
    {
        Say(Indent(depth) + TagText(tag.group, tag.element) + Formatted(" -- 0 @%u ", tagOffset) +
            (tag.element == 0xE00D ? "End of Item\n" : "End of Sequence\n"));
    }
    void Unreadable(QvxStatus status, int depth) override
    {
        fFault = status;
        Say(Indent(depth) + "(not readable from here: " + std::string(StatusText(status)) + ")\n");
    }

private:
    static std::string Indent(int depth)
    {
        return std::string(static_cast<std::size_t>(depth) * 2, ' ');
    }

    std::string Name(const VisitedElement& element)
    {
        if (element.fInPixels)
            return element.fDepth > 1 ? "Fragment" : fFrame++ == 0 ? "Offset Table" : FrameName();
        QvxDictInfo info;
        if (Qvx2Reader_GetDictInfoForTag(fReader, element.fTag, &info) == kQvxOK &&
            !info.name.empty())
            return std::string(info.name);
        return element.fTag.group % 2 ? "Private" : "Unknown";
    }
    [[nodiscard]] std::string FrameName() const { return Formatted("Frame %d", fFrame - 1); }

    QvxParserRec* fReader;
    int fFrame = 0;  // items met directly below the pixels; the first one is the table
    QvxStatus fFault = kQvxOK;
};

}  // namespace

int RunDump(CommandWords words)
{
    const ParsedWords parsed = ParseWords(words, {});
    if (!parsed.fProblem.empty() || parsed.fPaths.size() != 1)
        return WrongUsage(parsed.fProblem.empty() ? "dump takes one file" : parsed.fProblem);
    const std::string& path = parsed.fPaths[0];
    QvxReaderPtr reader;
    std::string why;
    // What can be read is shown, and then the fault.
    if (OpenDicomFile(path, &reader, &why) != kQvxOK && !reader)
        return Failure(path, why);
    DumpLines lines(reader.get());
    VisitElements(reader.get(), &lines);
    if (why.empty() && lines.Fault() != kQvxOK)
        why = "not readable in full: " + std::string(StatusText(lines.Fault()));
    return why.empty() ? kExitOK : Failure(path, why);
}

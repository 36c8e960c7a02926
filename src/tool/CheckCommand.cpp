// zelora check PATH...
// What runs over damaged files use: everything that a file holds is touched once.
#include "tool/CommandLine.h"
#include "tool/ElementVisit.h"
#include "tool/OpenedFile.h"
#include "util/Log.h"

#include "QvxToolkit/DecodedFrame.h"
#include <algorithm>

namespace {

// A value list is searched from its start for each of its values, so of a long one only the first
// values and the last are asked for.
constexpr std::int32_t kValuesAsked = 32;

constexpr bool IsAnswer(QvxStatus status)
{
    return status == kQvxOK || status == kQvxNoValue || status == kQvxWrongVR ||
           status == kQvxBadMultiplicity;  // an empty value, or one of another kind
}

class ReadEverything final : public ElementVisitor {
public:
    explicit ReadEverything(QvxParserRec* reader) : fReader(reader) {}
    [[nodiscard]] std::uint64_t Unread() const { return fUnread; }

    void Element(const VisitedElement& element) override
    {
        if (element.fStatus != kQvxOK) {
            ++fUnread;
            return;
        }
        const std::int32_t values = element.fInfo.fMultiplicity;
        bool read = true;
        for (std::int32_t i = 1; i <= std::min(values, kValuesAsked); ++i)
            read = ReadValue(element.fRef, i) && read;
        if (values > kValuesAsked)
            read = ReadValue(element.fRef, values) && read;
        fUnread += read ? 0 : 1;
    }
    void Delimiter(QvxElementTag, std::uint32_t, int) override {}
    void Unreadable(QvxStatus, int) override { ++fUnread; }

private:
    bool ReadValue(QvxElementRef ref, std::int32_t index)
    {
        QvxHandle text;
        QvxElementValue value;
        const QvxStatus asText = Qvx2Reader_GetElementDataAsText(fReader, ref, index, &text);
        const QvxStatus asValue = Qvx2Reader_GetElementDataAsValue(fReader, ref, index, &value);
        return IsAnswer(asText) && IsAnswer(asValue);
    }

    QvxParserRec* fReader;
    std::uint64_t fUnread = 0;  // elements
};

// "12 frames, 3 not decodable", or why there is none. `any` says whether there is one.
std::string DecodeAll(QvxParserRec* reader, bool* any)
{
    QvxFrameRecord record;
    std::string why;
    if (const QvxStatus status = QvxMakeFrameRecord(reader, &record, &why))
        return "no frames (" + (why.empty() ? std::string(StatusText(status)) : why) + ')';
    *any = record.fFrames > 0;
    const QvxReaderUse use(reader);
    DecodedFrame frame;
    std::uint32_t failed = 0;
    for (std::uint32_t i = 1; i <= record.fFrames; ++i)
        failed += DecodeFrame(reader, record, i, &frame) == kQvxOK ? 0 : 1;
    std::string text =
        std::to_string(record.fFrames) + (record.fFrames == 1 ? " frame" : " frames");
    if (failed > 0)
        text += ", " + std::to_string(failed) + " not decodable";
    if (record.fClaimedFrames > record.fFrames)
        text += ", " + std::to_string(record.fClaimedFrames - record.fFrames) + " missing";
    return text;
}

int CheckOne(const std::string& path)
{
    QvxReaderPtr reader;
    std::string why;
    if (OpenDicomFile(path, &reader, &why) != kQvxOK)
        return Failure(path, why);
    ReadEverything everything(reader.get());
    VisitElements(reader.get(), &everything);
    bool anyFrame = false;
    std::string line = path + ": opened, " + DecodeAll(reader.get(), &anyFrame);
    if (!why.empty() && !anyFrame)  // damaged, and nothing to show for it
        return Failure(path, why);
    if (everything.Unread() > 0)
        line += ", " + std::to_string(everything.Unread()) + " elements not readable";
    if (!why.empty())
        line += ", " + why;
    Say(EscapedText(line) + '\n');
    return kExitOK;
}

}  // namespace

int RunCheck(CommandWords words)
{
    const ParsedWords parsed = ParseWords(words, {});
    if (!parsed.fProblem.empty() || parsed.fPaths.empty())
        return WrongUsage(parsed.fProblem.empty() ? "check which file?" : parsed.fProblem);
    int code = kExitOK;
    for (const std::string& path : parsed.fPaths)
        code = std::max(code, CheckOne(path));
    return code;
}

// zelora stats [--frames ends|all] FILE...
#include "tool/CommandLine.h"
#include "tool/OpenedFile.h"
#include "util/Log.h"
#include "util/Sha256.h"

#include "QvxToolkit/DecodedFrame.h"
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

// First, middle and last frame, each once.
std::vector<std::uint32_t> Ends(std::uint32_t frames)
{
    std::vector<std::uint32_t> ends{1, frames / 2 + 1, frames};
    for (std::uint32_t& frame : ends)
        frame = std::min(frame, frames);
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    return ends;
}

// Whole numbers without a point, others with as many digits as bring them back.
std::string NumberText(double number)
{
    std::array<char, 400> text{};
    const bool whole = std::trunc(number) == number && std::abs(number) < 1e15;
    const auto result = whole ? std::to_chars(text.data(), text.data() + text.size(), number,
                                              std::chars_format::fixed)
                              : std::to_chars(text.data(), text.data() + text.size(), number);
    return {text.data(), result.ptr};
}

std::string StatsLine(const std::string& path, const QvxFrameRecord& record, std::uint32_t number,
                      const DecodedFrame& frame, std::span<const std::uint8_t> canonical)
{
    const DecodedStats stats = StatsOf(frame);
    std::array<char, 400> mean{};
    std::snprintf(mean.data(), mean.size(), "%.6f", stats.fMean);
    std::string line = EscapedText(path);
    for (const std::uint32_t count :
         {number, record.fFrames, frame.fRows, frame.fColumns, frame.fSamples})
        line += '\t' + std::to_string(count);
    line += '\t' + EscapedText(record.fTransferSyntax);
    line += '\t' + NumberText(stats.fMinimum) + '\t' + NumberText(stats.fMaximum);
    return line + '\t' + mean.data() + '\t' + Sha256Of(canonical) + '\n';
}

int StatsOfFile(const std::string& path, bool allFrames)
{
    QvxReaderPtr reader;
    std::string why;
    if (OpenDicomFile(path, &reader, &why) != kQvxOK)
        return Failure(path, why);
    QvxFrameRecord record;
    if (const QvxStatus status = QvxMakeFrameRecord(reader.get(), &record, &why))
        return Failure(path, why.empty() ? StatusText(status) : why);
    const QvxReaderUse use(reader.get());
    const std::vector<std::uint32_t> ends = Ends(record.fFrames);
    const auto count = allFrames ? record.fFrames : static_cast<std::uint32_t>(ends.size());
    DecodedFrame frame;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::uint32_t number = allFrames ? i + 1 : ends[i];
        if (const QvxStatus status = DecodeFrame(reader.get(), record, number, &frame, &why))
            return Failure(path, "frame " + std::to_string(number) + ": " +
                                     (why.empty() ? std::string(StatusText(status)) : why));
        const std::vector<std::uint8_t> canonical = CanonicalBytes(frame);
        if (canonical.empty())
            return Failure(path, StatusText(kQvxNoMemory));
        Say(StatsLine(path, record, number, frame, canonical));
    }
    return kExitOK;
}

}  // namespace

int RunStats(CommandWords words)
{
    const ParsedWords parsed = ParseWords(words, {{"--frames", true}});
    const std::string frames = parsed.Value("--frames", "ends");
    if (!parsed.fProblem.empty() || parsed.fPaths.empty())
        return WrongUsage(parsed.fProblem.empty() ? "stats of which file?" : parsed.fProblem);
    if (frames != "ends" && frames != "all")
        return WrongUsage("--frames is \"ends\" or \"all\"");
    int code = kExitOK;
    for (const std::string& path : parsed.fPaths)
        code = std::max(code, StatsOfFile(path, frames == "all"));
    return code;
}

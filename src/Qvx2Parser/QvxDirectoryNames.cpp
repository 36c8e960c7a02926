#include "Qvx2Parser/QvxDirectoryNames.h"

#include <algorithm>
#include <array>

namespace {

// Numbers 1 to 24, in order.
constexpr auto kRecordTypes = std::to_array<std::string_view>({
    "PATIENT",         "STUDY",           "SERIES",       "IMAGE",
    "OVERLAY",         "MODALITY LUT",    "VOI LUT",      "CURVE",
    "TOPIC",           "VISIT",           "RESULTS",      "INTERPRETATION",
    "STUDY COMPONENT", "STORED PRINT",    "RT DOSE",      "RT STRUCTURE SET",
    "RT PLAN",         "RT TREAT RECORD", "PRESENTATION", "WAVEFORM",
    "SR DOCUMENT",     "KEY OBJECT DOC",  "MRDR",         "PRIVATE",
});
static_assert(kRecordTypes.size() == kDirRecordOther - 1);

constexpr std::string_view kSeparators = "/:\\";

}  // namespace

std::int32_t DicomUtil_DirRecordType(std::string_view text)
{
    const auto row = std::ranges::find(kRecordTypes, text);
    return static_cast<std::int32_t>(row - kRecordTypes.begin()) + 1;
}

void DicomUtil_RefFileIDToPath(std::string_view text, std::string* path)
{
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    const std::size_t first = text.find_first_not_of(kSeparators);
    text = first == std::string_view::npos ? std::string_view() : text.substr(first);
    std::string made = ":";
    for (const char letter : text)
        made += kSeparators.find(letter) != std::string_view::npos ? ':' : letter;
    *path = std::move(made);
}

void DicomUtil_SplitFilenameFromRelPathToParent(std::string* path, std::string* name)
{
    name->clear();
    const std::size_t last = path->rfind(':');
    if (path->size() < 2 || last == std::string::npos || last == 0)
        return;
    *name = path->substr(last + 1);
    path->resize(last);
}

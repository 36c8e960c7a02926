#include "platform/AlertWords.h"

#include "platform/Words.h"

#include <algorithm>
#include <array>

namespace {

struct AlertRow {
    QvxStatus fCode;
    const char* fMessage;      // a format of the name
    const char* fInformative;  // null for none; a format too for the question
    bool fIsQuestion;
};

// clang-format off
constexpr auto kAlerts = std::to_array<AlertRow>({
    // code                     message                   informative               question
    { kZelNoPatientInFile,      "FileCannotBeOpened",     nullptr,                  false },
    { kZelNoPatientInFolder,    "NoDICOMFilesFound",      nullptr,                  false },
    { kZelNoPatientInDirectory, "DICOMDIRNoImagesFound",  "NoDICOMDIRImagesFound",  false },
    { kZelRecentFailed,         "RecentDocError",         "RecentWillBeDeleted",    false },
    { kQvxNotOfKind,            "FileCannotBeOpened",     "BadImage",               false },
    { kZelConfirmPresetReset,   "ResetToWWWLDefaults",    "ResetToWWWLExplain",     true  },
});
// clang-format on

QString Word(const char* key) { return ZelWord(kWordsErrors, key); }

}  // namespace

ZELAlertWords AlertWordsForError(QvxStatus code, const QString& name)
{
    ZELAlertWords words;
    const auto row = std::ranges::find(kAlerts, code, &AlertRow::fCode);
    if (row == kAlerts.end()) {
        words.buttons = {Word("OK")};
        return words;
    }
    words.message = Word(row->fMessage).replace(QLatin1String("%1"), name);
    if (row->fInformative)
        words.informative = Word(row->fInformative).replace(QLatin1String("%1"), name);
    words.buttons = {Word("OK")};
    if (row->fIsQuestion)
        words.buttons = {Word("Reset"), Word("Cancel")};
    return words;
}

// The words of the alert that a status code gives. No alert is shown here.
#pragma once
#include "util/StatusCodes.h"

#include <QString>
#include <vector>

inline constexpr QvxStatus kZelConfirmPresetReset = 4;  // not an error: a question

struct ZELAlertWords {
    QString message, informative;  // empty when there is none
    std::vector<QString> buttons;  // at least one, the first is the default
};

// `name` is what the user would call the thing, a file or folder name as a rule. A code without
// words of its own gets the button alone. Never ask for kQvxUserCanceled: that one stays silent.
[[nodiscard]] ZELAlertWords AlertWordsForError(QvxStatus code, const QString& name);

// The text of a crash report, and what of it may point to a patient or the user. Main thread only.
#pragma once
#include <QString>
#include <QVariantMap>
#include <vector>

struct ReportParts {
    QString userText;
    bool logsInText = false;  // the logs stand in the text, as nothing can be attached
    std::vector<QString> crashLogs, hangLogs;
    QString systemLog;
    QString systemVersion, model;
    int processors = 1;
    double clock_GHz = 0;  // 0: not known
    QString userName;
    int userID = 0;
    QString application;
    std::vector<QString> volumes;  // as URLs
    QVariantMap preferences;
};
[[nodiscard]] QString ReportText(const ReportParts& parts);
// What this machine, user and program are; the logs and the user's text are left empty.
[[nodiscard]] ReportParts PartsOfThisMachine(const QString& application);

[[nodiscard]] QString U_SystemVersionString();
[[nodiscard]] QString UKMachineName();

// Parts of a text, in its order, without overlap; counts of QChars.
struct TextRange {
    int start = 0, length = 0;
    bool operator==(const TextRange&) const = default;
};
// Absolute paths and file URLs, the user's name and home folder, and whatever the preferences hold
// of folders and documents: these may name patients.
[[nodiscard]] std::vector<TextRange> RevealingRanges(const QString& text, const ReportParts& parts);
// The text with these parts struck out, and every other place where the same words stand.
[[nodiscard]] QString Struck(QString text, const std::vector<QString>& words);

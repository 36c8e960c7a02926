// The text of a crash report, and what of it may point to a patient or the user. Main thread only.
#pragma once
#include <QString>
#include <QVariantMap>
#include <functional>
#include <vector>

struct ReportLog {
    QString name;  // of its file, without folder
    QString text;
};

struct ReportParts {
    QString userText;
    std::vector<ReportLog> crashLogs, hangLogs;
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
// What this machine, user and program are; the logs and the user's text are left empty.
[[nodiscard]] ReportParts PartsOfThisMachine(const QString& application);

// A report is shown as one text, and leaves as a text, or as a shorter one with an archive of the
// logs: so it is kept in pieces.
struct ReportPiece {
    QString text;
    bool staysInMail = true;  // also where an archive holds the logs
    QString entry = {};       // of the archive; empty: none
};
[[nodiscard]] std::vector<ReportPiece> ReportPieces(const ReportParts& parts);
[[nodiscard]] QString WholeText(const std::vector<ReportPiece>& pieces);
[[nodiscard]] QString TextBesideArchive(const std::vector<ReportPiece>& pieces);
// The whole text; where `size` of it says more than `most`, every log is cut to its beginning.
[[nodiscard]] QString TextWithin(std::vector<ReportPiece> pieces, qsizetype most,
                                 const std::function<qsizetype(const QString&)>& size);

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
// Asterisks in place of these parts, and of every other place where the same words stand. Lines
// and places stay where they are.
[[nodiscard]] QString Struck(QString text, const std::vector<TextRange>& parts);
// The same pieces of a whole text of the same length.
[[nodiscard]] std::vector<ReportPiece> PiecesOf(const QString& whole,
                                                std::vector<ReportPiece> pieces);

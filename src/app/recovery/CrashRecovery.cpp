#include "app/recovery/CrashRecovery.h"

#include "app/recovery/CrashReports.h"
#include "app/recovery/Relaunch.h"
#include "app/recovery/ReportReviewWindow.h"
#include "app/recovery/ZELFirstAidWindowController.h"
#include "platform/Folders.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <filesystem>

namespace {

constexpr const char* kSupportAddress = "support@zelora.example";

QString Subject()
{
    return ZelWord("VendorStrings_zel", "Program Crash Report")
        .arg(QCoreApplication::applicationVersion());
}

// "&" begins the next part of such a link, so it is escaped too.
bool OpenMailLink(const QString& subject, const QString& body)
{
    const auto escaped = [](const QString& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    return QDesktopServices::openUrl(
        QUrl(QStringLiteral("mailto:%1?subject=%2&Body=%3")
                 .arg(QLatin1String(kSupportAddress), escaped(subject), escaped(body)),
             QUrl::StrictMode));
}

bool SendByDesktop(const QString& subject, const QString& body, const std::string& attachment)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
    return !program.isEmpty() &&
           QProcess::startDetached(
               program, {QStringLiteral("--utf8"), QStringLiteral("--subject"), subject,
                         QStringLiteral("--body"), body, QStringLiteral("--attach"),
                         QFile::decodeName(attachment.c_str()), QLatin1String(kSupportAddress)});
}

struct Logs {
    std::vector<std::string> crashes, hangs;  // paths
    QString system;
};

std::vector<QString> TextsOf(const std::vector<std::string>& paths)
{
    std::vector<QString> texts;
    for (const std::string& path : paths)
        texts.push_back(QString::fromStdString(ReportFileText(path)));
    return texts;
}

std::vector<ZipEntry> EntriesOf(const Logs& logs, const std::vector<QString>& struck)
{
    const auto clean = [&](const QString& text) { return Struck(text, struck).toStdString(); };
    std::vector<ZipEntry> entries;
    for (const auto* paths : {&logs.crashes, &logs.hangs}) {
        for (const std::string& path : *paths)
            entries.push_back({std::filesystem::path(path).filename().native(),
                               clean(QString::fromStdString(ReportFileText(path)))});
    }
    entries.push_back({"system.log", clean(logs.system)});
    return entries;
}

}  // namespace

MailWays MailWaysOfDesktop() { return {SendByDesktop, OpenMailLink}; }

CrashRecovery::CrashRecovery(Setup setup)
    : _setup(std::move(setup)), _locks(_setup.dataFolder, _setup.place, _setup.running)
{
}

CrashRecovery::~CrashRecovery()
{
    if (_logs.empty())
        return;
    std::error_code ignored;
    std::filesystem::remove(_logs, ignored);
}

void CrashRecovery::U_UpdateCrashCounter()
{
    prefs_Set_NumberOfCrashes(prefs_NumberOfCrashes() + 1);
    prefs_Synchronize();
}

void CrashRecovery::U_UpdateRunCounter()
{
    prefs_Set_NumberOfRuns_Current(prefs_NumberOfRuns_Current() + 1);
    prefs_Synchronize();
}

bool CrashRecovery::doSpecialApplicationStartup(bool didCrash, QWidget* over)
{
    ZELFirstAidWindowController window(_setup.checkForUpdates != nullptr, over);
    window.setBombed(didCrash);
    const int result = window.exec();
    _locks.U_ClearCrashSemaphore(false, true);
    if (result == ZELFirstAidWindowController::kUpdateCheck) {
        _setup.checkForUpdates();
        return false;
    }
    if (result != QDialog::Accepted)
        return true;
    if (window.selectedAction() == ZELFirstAidWindowController::Action::Reset) {
        U_ClearPrefsAndRelaunchApp();
        return false;
    }
    U_EmailOurCrashLogs(window.textToAdd(), window.cleanUpLogs(), over);
    return true;
}

bool CrashRecovery::U_EmailOurCrashLogs(const QString& text, bool cleanUp, QWidget* over)
{
    const std::string& name = _setup.programName;
    const Logs logs{U_CollectCrashReportPaths(name, reportsFolder(), kCrashSuffix),
                    U_CollectCrashReportPaths(name, reportsFolder(), kHangSuffix),
                    QString::fromStdString(SystemLogText(name))};
    ReportParts parts = PartsOfThisMachine(QString::fromStdString(_setup.place));
    parts.userText = text;
    // All of it is shown, also what goes as an attachment.
    parts.logsInText = true;
    parts.crashLogs = TextsOf(logs.crashes);
    parts.hangLogs = TextsOf(logs.hangs);
    parts.systemLog = logs.system;
    ReportReviewWindow review(
        ReportText(parts), [&](const QString& shown) { return RevealingRanges(shown, parts); },
        over);
    if (review.exec() != QDialog::Accepted)
        return false;
    // The text that was seen is what leaves; the archive holds the same logs, struck likewise.
    const std::string archive =
        zipCrashLogs(_setup.temporaryFolder, EntriesOf(logs, review.struckWords()));
    bool sent = !archive.empty() && _setup.mail.withAttachment(Subject(), review.text(), archive);
    if (sent) {
        if (!_logs.empty())
            std::filesystem::remove(_logs);
        _logs = archive;
    } else {
        std::error_code ignored;
        std::filesystem::remove(archive, ignored);
        sent = _setup.mail.asText(Subject(), review.text());
    }
    if (sent && cleanUp)
        clearOlderCrashLogs(name, reportsFolder());
    return sent;
}

void CrashRecovery::U_ClearPrefsAndRelaunchApp()
{
    if (!RelaunchAfterEnd(_setup.place))
        LogLine("relaunchMe tool NOT found.");
    else
        prefs_RemoveAll();
    _setup.terminate();
}

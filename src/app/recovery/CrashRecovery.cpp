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
#include <QEventLoop>
#include <QFile>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <filesystem>

namespace {

constexpr const char* kSupportAddress = "support@zelora.example";

QString Subject()
{
    return ZelWord("VendorStrings_zel", "Program Crash Report")
        .arg(QCoreApplication::applicationVersion());
}

// A system takes no longer words on a command line, which is how links reach mail programs.
constexpr qsizetype kMostOfLink = 100'000;

qsizetype SizeInLink(const QString& text) { return QUrl::toPercentEncoding(text).size(); }

void SayNotSent(const std::string& folder, QWidget* over)
{
    QMessageBox box(QMessageBox::Warning, ZelWord("FirstAid", "First Aid"),
                    ZelWord("FirstAid", "NotSent"), QMessageBox::Ok, over);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        ZelWord("FirstAid", "NotSentExplain")
            .arg(QLatin1String(kSupportAddress), QFile::decodeName(folder.c_str())));
    box.exec();
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

// The command ends as soon as a mail program has the letter, or stays with it for as long as that
// is open; one that can't find any ends with a code, at once.
bool SendByDesktop(const QString& subject, const QString& body, const std::string& attachment)
{
    constexpr int kPatience_ms = 5000;
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
    if (program.isEmpty())
        return false;
    auto* command = new QProcess(qApp);
    QEventLoop loop;
    QTimer::singleShot(kPatience_ms, &loop, &QEventLoop::quit);
    QObject::connect(command, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(command, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QObject::connect(command, &QProcess::finished, command, &QObject::deleteLater);
    command->start(program,
                   {QStringLiteral("--utf8"), QStringLiteral("--subject"), subject,
                    QStringLiteral("--body"), body, QStringLiteral("--attach"),
                    QFile::decodeName(attachment.c_str()), QLatin1String(kSupportAddress)});
    if (command->state() != QProcess::NotRunning)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return command->state() == QProcess::Running ||
           (command->error() != QProcess::FailedToStart && command->exitCode() == 0);
}

std::vector<ReportLog> LogsOf(const std::vector<std::string>& paths)
{
    std::vector<ReportLog> logs;
    for (const std::string& path : paths)
        logs.push_back({QString::fromStdString(std::filesystem::path(path).filename().native()),
                        QString::fromStdString(ReportFileText(path))});
    return logs;
}

std::vector<ZipEntry> EntriesOf(const std::vector<ReportPiece>& pieces)
{
    std::vector<ZipEntry> entries;
    for (const ReportPiece& piece : pieces) {
        if (!piece.entry.isEmpty())
            entries.push_back({piece.entry.toStdString(), piece.text.toStdString()});
    }
    return entries;
}

QString PathWithoutExtension(const std::string& path)
{
    const std::filesystem::path whole(path);
    return QFile::decodeName((whole.parent_path() / whole.stem()).c_str());
}

void RemoveFile(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
}

}  // namespace

MailWays MailWaysOfDesktop() { return {SendByDesktop, OpenMailLink}; }

CrashRecovery::CrashRecovery(Setup setup)
    : _setup(std::move(setup)), _locks(_setup.dataFolder, _setup.place, _setup.running)
{
}

CrashRecovery::~CrashRecovery()
{
    if (!_logs.empty())
        RemoveFile(_logs);
}

void CrashRecovery::keepLastReports() const
{
    constexpr int kKept = 10;
    clearOlderCrashLogs(_setup.programName, reportsFolder(), kKept);
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
    ReportParts parts = PartsOfThisMachine(PathWithoutExtension(_setup.place));
    parts.userText = text;
    parts.crashLogs = LogsOf(U_CollectCrashReportPaths(name, reportsFolder(), kCrashSuffix));
    parts.hangLogs = LogsOf(U_CollectCrashReportPaths(name, reportsFolder(), kHangSuffix));
    parts.systemLog = QString::fromStdString(SystemLogText(name));
    // All of it is shown, also what goes in the archive, and leaves as it was seen.
    const std::vector<ReportPiece> pieces = ReportPieces(parts);
    ReportReviewWindow review(
        WholeText(pieces), [&](const QString& shown) { return RevealingRanges(shown, parts); },
        over);
    if (review.exec() != QDialog::Accepted)
        return false;
    const std::vector<ReportPiece> seen = PiecesOf(review.text(), pieces);
    const std::string archive = zipCrashLogs(_setup.temporaryFolder(), EntriesOf(seen));
    bool sent =
        !archive.empty() && _setup.mail.withAttachment(Subject(), TextBesideArchive(seen), archive);
    if (sent) {
        if (!_logs.empty())
            RemoveFile(_logs);
        _logs = archive;
    } else {
        if (!archive.empty())
            RemoveFile(archive);
        sent = _setup.mail.asText(Subject(), TextWithin(seen, kMostOfLink, SizeInLink));
    }
    if (!sent)
        SayNotSent(reportsFolder(), over);
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

// zelora-viewer [PATH…]: shows files, folders and discs in windows; without a path it asks for one.
// Whatever stands on the command line is a path; there are no options. Ends with code 1 and a line
// on standard error for each that failed when nothing could be opened.
//
// With ZELORA_SNAPSHOT=FILE.png in the environment it saves a picture of the first window there and
// ends; with QT_QPA_PLATFORM=offscreen too it does so without a display.
#include "app/recovery/CrashHandler.h"
#include "app/shell/DisplayGone.h"
#include "app/shell/ZELAppDelegate.h"
#include "platform/Folders.h"
#include "platform/HandOver.h"
#include "platform/RunningCopies.h"
#include "prefs/Prefs.h"
#include "util/Log.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

namespace {

// Qt would abort.
bool HasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

std::optional<QString> SnapshotPath()
{
    if (!qEnvironmentVariableIsSet("ZELORA_SNAPSHOT"))
        return std::nullopt;
    return QFile::decodeName(qgetenv("ZELORA_SNAPSHOT"));
}

// Paths that mean the same in the process that takes them.
std::vector<std::string> Absolute(const std::vector<std::string>& paths)
{
    std::vector<std::string> absolute;
    for (const std::string& path : paths) {
        std::error_code failed;
        const std::filesystem::path full = std::filesystem::absolute(path, failed);
        absolute.push_back(failed || path.empty() ? path : full.native());
    }
    return absolute;
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN);  // a line for a terminal that has gone is no reason to end
    std::vector<std::string> paths(argv + std::min(1, argc), argv + argc);
    const std::optional<QString> snapshot = SnapshotPath();
    if (paths.empty() && (snapshot || !HasDisplay())) {
        LogLine("zelora-viewer: give at least one file or folder to open");
        return 1;
    }
    if (!HasDisplay()) {
        LogLine("zelora-viewer: there is no display to open a window on");
        return 1;
    }
    prefs_InitializeForApplication();
    const std::string place = PlaceOfProgram(), meeting = snapshot ? "" : MeetingFolder();
    const std::unique_ptr<HandOver> handOver = HandOverOrStart(meeting, place, Absolute(paths));
    if (!handOver)
        return 0;  // the copy that runs has taken them
    const RunningCopies copies(meeting, place);
    const std::string dataFolder = UserDataFolder();
    if (!snapshot && !dataFolder.empty())
        InstallCrashHandler(dataFolder + "/CrashReports", "zelora-viewer");
    EndInOrderWithoutDisplay();
    int programName = 1;  // the rest is paths, in which Qt would look for options of its own
    QApplication application(programName, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Zelora Viewer"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.zelora.Viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELORA_VERSION));
    // The toolkit's own words, where they are installed.
    QTranslator toolkitWords;
    if (toolkitWords.load(QLocale::system(), QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitWords);
    ZELAppDelegate viewer(snapshot, {dataFolder, place, [&copies] { return copies.places(); }});
    handOver->setReceived(
        [&viewer](std::vector<std::string> more) { return viewer.takeOver(std::move(more)); });
    viewer.start(std::move(paths));
    return QApplication::exec();
}

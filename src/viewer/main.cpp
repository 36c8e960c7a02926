// zelora-viewer PATH…: shows the frames of files, and of the files in folders, in a window.
// Whatever stands on the command line is a path; there are no options. Ends with code 1 and a line
// on standard error when nothing could be opened.
//
// With ZELORA_SNAPSHOT=FILE.png in the environment it saves a picture of the finished window there
// and ends; with QT_QPA_PLATFORM=offscreen too it does so without a display.
#include "util/Log.h"
#include "viewer/CandidateFiles.h"
#include "viewer/FrameListDelegate.h"
#include "viewer/ViewerWindow.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <filesystem>
#include <string>
#include <vector>

namespace {

// How long the first readable file may be looked for before there is a window.
constexpr std::chrono::milliseconds kBeforeWindow{100};

// Names of what was opened, for the title bar.
QString TitleFor(const std::vector<std::string>& paths)
{
    std::error_code error;
    std::filesystem::path full = std::filesystem::absolute(paths.front(), error).lexically_normal();
    if (!full.has_filename())  // it ended in a slash
        full = full.parent_path();
    const auto& last = full.has_filename() ? full.filename() : full;
    QString name = QString::fromStdString(EscapedText(last.native()));
    if (paths.size() > 1)
        name = QCoreApplication::translate("Viewer", "%1 and %2 more")
                   .arg(name, QLocale().toString(qulonglong{paths.size() - 1}));
    // Qt takes a lone "[*]" for the place of its mark for changed documents.
    return name.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

// Qt would abort.
bool HasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

int ShowWindow(FrameListDelegate* delegate, const std::vector<std::string>& paths)
{
    ViewerWindow window(delegate);
    window.setWindowTitle(TitleFor(paths));
    if (qEnvironmentVariableIsSet("ZELORA_SNAPSHOT"))
        window.saveSnapshotTo(QFile::decodeName(qgetenv("ZELORA_SNAPSHOT")));
    window.show();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> paths(argv + 1, argv + std::max(1, argc));
    if (paths.empty()) {
        LogLine("zelora-viewer: give at least one file or folder to open");
        return 1;
    }
    CandidateList candidates = CandidateFiles(paths);
    for (const std::string& problem : candidates.problems)
        LogLine("zelora-viewer: " + problem);
    const std::size_t named = candidates.files.size() + candidates.problems.size();
    FrameListDelegate delegate(std::move(candidates.files));
    delegate.readHeaders(kBeforeWindow, 1);
    if (delegate.allHeadersRead() && delegate.frames().FrameCount() == 0) {
        if (named > 1)
            LogLine("zelora-viewer: nothing could be opened");
        return 1;
    }
    if (!HasDisplay()) {
        LogLine("zelora-viewer: there is no display to open a window on");
        return 1;
    }
    int programName = 1;  // the rest is paths, in which Qt would look for options of its own
    QApplication application(programName, argv);
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Zelora Viewer"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.zelora.Viewer"));
    return ShowWindow(&delegate, paths);
}

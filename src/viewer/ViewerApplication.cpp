#include "viewer/ViewerApplication.h"

#include "dicom_core/annotations/PrepareSequenceAnnotations.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/store/TempFolder.h"
#include "platform/AlertWords.h"
#include "platform/VolumeWatcher.h"
#include "prefs/Prefs.h"
#include "viewer/OpenPanel.h"
#include "viewer/ViewerWindow.h"
#include "viewer/ViewerWords.h"

#include "qpix/CImporterFactory.h"
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <sys/stat.h>

namespace {

void SayProblem(const std::string& text) { LogLine("zelora-viewer: " + text); }

// A path that goes on meaning the same thing in another run, whose working folder is another one.
std::string FullPath(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code failed;
    const std::string standard = StandardisedPath(path);
    if (fs::equivalent(path, standard, failed))
        return standard;
    const fs::path full = fs::absolute(path, failed);  // ".." behind a link leads elsewhere
    return failed ? path : full.string();
}

}  // namespace

ViewerApplication::ViewerApplication(std::optional<QString> snapshotPath)
    : _snapshotPath(std::move(snapshotPath)),
      _progressWindow([this] { _controller.cancelOpen(); }),
      _controller(this, this, &_progressWindow, isAttended() ? &_recents : nullptr)
{
    // Between two opens no window may stand, and an alert is no window to stay for.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

ViewerApplication::~ViewerApplication()
{
    _baseBuffer.reset();
    RemoveProgramTempFolder();
}

void ViewerApplication::start(std::vector<std::string> paths)
{
    CImporterPlusFactory::InitFactory();
    InstallSequenceAnnotations();
    _baseBuffer = std::make_unique<zel_ImageBuffer>();
    _baseBuffer->SetIOBufferSize(kBaseBufferIOBytes);
    gAppBaseBuffer = _baseBuffer.get();
    _recents.loadSavedRecents();
    openPaths(std::move(paths));
    if (isAttended())
        enqueue([this] { finishStart(); });
}

void ViewerApplication::finishStart()
{
    SweepDeadTempFolders();
    if (prefs_DoAutoOpenDICOMCDs())
        _controller.openMountedCDsOnStartup();
    _volumes = NewVolumeWatcher([this](const std::string& point) { diskMounted(point); });
    InitializeAppDefaults();
    _controller.delayedOpenFile();
}

void ViewerApplication::diskMounted(const std::string& mountPoint)
{
    if (_controller.inQTModalMode())
        _controller.deviceDidMount(mountPoint);  // keeps it for later
    else
        enqueue([this, mountPoint] { _controller.deviceDidMount(mountPoint); });
}

// --- Requests ------------------------------------------------------------------------------------

void ViewerApplication::enqueue(Job job)
{
    _jobs.push_back(std::move(job));
    QTimer::singleShot(0, this, &ViewerApplication::runJobs);
}

void ViewerApplication::runJobs()
{
    if (_jobRuns)  // an event that came in while a request runs
        return;
    _jobRuns = true;
    while (!_jobs.empty()) {
        const Job job = std::move(_jobs.front());
        _jobs.pop_front();
        job();
    }
    _jobRuns = false;
    leaveIfDone();
}

void ViewerApplication::leaveIfDone()
{
    std::erase_if(_windows, [](const auto& window) { return !window->isVisible(); });
    if (_windows.empty() && _laterCalls == 0)
        QCoreApplication::exit(_hasFailed && !_hasOpened ? 1 : 0);
}

void ViewerApplication::openPath(const std::string& path)
{
    struct stat info{};
    if (stat(path.c_str(), &info) == 0) {
        _controller.basic_openFile(FullPath(path));
        return;
    }
    const int error = errno;
    _hasFailed = true;
    SayProblem((path.empty() ? "empty path" : path) + ": " + std::string(StatusText(error)));
    gOpenFileCalled = true;
    showAlert(AlertWordsForError(kZelNoPatientInFile, DisplayText(LastComponent(path))));
}

std::function<void()> ViewerApplication::eventServer()
{
    // What the user does meanwhile waits, but for the Cancel button: see OpenProgressWindow.
    return [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
}

void ViewerApplication::callLater(double seconds, std::function<void()> call)
{
    const std::chrono::duration<double> pause(seconds);
    ++_laterCalls;
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(pause), this,
                       [this, call = std::move(call)] {
                           --_laterCalls;
                           enqueue(call);
                       });
}

std::optional<OpenHost::Picked> ViewerApplication::runOpenPanel(const std::string& startFolder)
{
    if (!isAttended())
        return std::nullopt;
    OpenPanel panel(startFolder, QApplication::activeWindow());
    if (panel.exec() != QDialog::Accepted)
        return std::nullopt;
    return Picked{{panel.chosenPath()}, panel.shownFolder()};
}

// --- What a request ends in ----------------------------------------------------------------------

ViewerWindow* ViewerApplication::windowOf(const ZELRecentDocument& document) const
{
    for (const auto& window : _windows)
        if (window->isVisible() && window->windowDoc().matches(document))
            return window.get();
    return nullptr;
}

bool ViewerApplication::docIsAlreadyOpen(const ZELRecentDocument& document)
{
    return windowOf(document) != nullptr;
}

void ViewerApplication::bringDocWindowToFront(const ZELRecentDocument& document)
{
    if (ViewerWindow* window = windowOf(document))
        window->bringToFront();
}

void ViewerApplication::ShowAlertForError(QvxStatus code, const std::string& name)
{
    _hasFailed = true;
    const ZELAlertWords words = AlertWordsForError(code, DisplayText(name));
    const QString text = QStringList{words.message, words.informative}.join(QLatin1Char(' '));
    SayProblem(words.message.isEmpty() ? name + ": " + std::string(StatusText(code))
                                       : text.trimmed().toStdString());
    showAlert(words);
}

void ViewerApplication::showAlert(const ZELAlertWords& words)
{
    if (!isAttended())
        return;
    QMessageBox alert(QMessageBox::Warning, QGuiApplication::applicationDisplayName(),
                      words.message, QMessageBox::NoButton, QApplication::activeWindow());
    alert.setInformativeText(words.informative);
    for (const QString& button : words.buttons)
        alert.addButton(button, QMessageBox::AcceptRole);
    for (QLabel* label : alert.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);  // the name in it is anything
    alert.exec();
}

void ViewerApplication::treeIsReady(std::unique_ptr<ZELDcmTree> tree,
                                    const std::string& represented,
                                    const ZELRecentDocument& document)
{
    _hasOpened = true;
    ViewerCommands* commands = this;  // a private base
    _windows.push_back(
        std::make_unique<ViewerWindow>(commands, std::move(tree), represented, document));
    ViewerWindow* window = _windows.back().get();
    if (_snapshotPath && _windows.size() == 1)
        window->whenPainted([this, window] { saveSnapshot(window); });
    window->show();
}

void ViewerApplication::saveSnapshot(ViewerWindow* window)
{
    const bool saved = window->grab().save(*_snapshotPath, "PNG");
    if (!saved)
        SayProblem("can't save a picture as " + _snapshotPath->toStdString());
    QCoreApplication::exit(saved ? 0 : 1);
}

// --- What windows ask for ------------------------------------------------------------------------

void ViewerApplication::openFromDialog()
{
    enqueue([this] { _controller.doOpenMenuCommand(); });
}

void ViewerApplication::openPaths(std::vector<std::string> paths)
{
    for (std::string& path : paths)
        enqueue([this, path = std::move(path)] { openPath(path); });
}

void ViewerApplication::openRecent(std::size_t index)
{
    enqueue([this, index] { _controller.openZELRecentDoc(index); });
}

void ViewerApplication::windowClosed()
{
    enqueue([] {});  // the window goes once its own event is over
}

void ViewerApplication::quit()
{
    for (const auto& window : _windows)
        window->close();
}

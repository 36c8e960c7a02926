#include "app/shell/ZELAppDelegate.h"

#include "app/shell/Alerts.h"
#include "app/shell/HelpPages.h"
#include "app/shell/OpenPanel.h"
#include "app/shell/QuitSignals.h"
#include "app/shell/StartWindow.h"
#include "app/window/WindowWords.h"
#include "app/window/ZELMainWindowController.h"
#include "dicom_core/annotations/PrepareSequenceAnnotations.h"
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/store/TempFolder.h"
#include "platform/AlertWords.h"
#include "platform/Folders.h"
#include "platform/VolumeWatcher.h"
#include "prefs/ColorTableFiles.h"
#include "prefs/Prefs.h"

#include "qpix/CImporterFactory.h"
#include <QApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr const char* kProgramName = "zelora-viewer";
constexpr rlim_t kOpenFiles = 10240;
constexpr std::chrono::seconds kPatienceForPicture{10};

// As many descriptors as long folders need; the hard limit stays.
void RaiseFileLimit()
{
    rlimit limit{};
    const bool known = getrlimit(RLIMIT_NOFILE, &limit) == 0;
    const rlim_t wanted = std::min(kOpenFiles, limit.rlim_max);
    if (known && limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = wanted;
    if (!known || setrlimit(RLIMIT_NOFILE, &limit) != 0)
        LogLine("setrlimit error: " + std::to_string(errno) + " cur: " +
                std::to_string(limit.rlim_cur) + " max: " + std::to_string(limit.rlim_max));
}

bool HoldsKeysOfFirstAid()
{
    constexpr Qt::KeyboardModifiers kKeys = Qt::AltModifier | Qt::ControlModifier;
    return (QGuiApplication::queryKeyboardModifiers() & kKeys) == kKeys;
}

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

ZELAppDelegate::ZELAppDelegate(std::optional<QString> snapshotPath,
                               ProgramSurroundings surroundings)
    : _snapshotPath(std::move(snapshotPath)),
      _progressWindow([this] { _controller.cancelOpen(); }),
      _controller(this, this, &_progressWindow, isAttended() ? &_recents : nullptr),
      _preferences({[](int code, const QString& name) {
                        return RunAlert(AlertWordsForError(code, name),
                                        QApplication::activeWindow());
                    },
                    nullptr})
{
    CrashRecovery::Setup recovery;
    recovery.programName = kProgramName;
    recovery.dataFolder = std::move(surroundings.dataFolder);
    recovery.temporaryFolder = [] { return GetProgramTempFolder(); };
    recovery.place = std::move(surroundings.place);
    recovery.running = std::move(surroundings.running);
    recovery.terminate = [this] { quit(); };
    _recovery = std::make_unique<CrashRecovery>(std::move(recovery));
    // Between two opens no window may stand, and an alert is no window to stay for.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

ZELAppDelegate::~ZELAppDelegate() { applicationWillTerminate(); }

// --- Start ---------------------------------------------------------------------------------------

void ZELAppDelegate::start(std::vector<std::string> paths)
{
    applicationWillFinishLaunching();
    applicationDidFinishLaunching();
    if (!isAttended())
        return openPaths(std::move(paths));
    _pathsAtStart = std::move(paths);
    const bool crashed = _recovery->locks().U_CrashSemaphoreExists();
    if (crashed)
        CrashRecovery::U_UpdateCrashCounter();
    if (crashed || HoldsKeysOfFirstAid())
        enqueue([this, crashed] { doSpecialApplicationStartup(crashed); });
    else
        finishNormalApplicationStartup();
}

// Before any window.
void ZELAppDelegate::doSpecialApplicationStartup(bool didCrash)
{
    if (_recovery->doSpecialApplicationStartup(didCrash, nullptr))
        finishNormalApplicationStartup();
}

void ZELAppDelegate::applicationWillFinishLaunching()
{
    RaiseFileLimit();
    if (isAttended())
        _signals = std::make_unique<QuitSignals>([this] { quit(); });
    CImporterPlusFactory::InitFactory();
}

void ZELAppDelegate::applicationDidFinishLaunching()
{
    InitializeAppDefaults();
    _recents.loadSavedRecents();
    _baseBuffer = std::make_unique<zel_ImageBuffer>();
    _baseBuffer->SetIOBufferSize(kBaseBufferIOBytes);
    gAppBaseBuffer = _baseBuffer.get();
    prefs_SetCLUTLoader(loadCLUTTables);
    InstallSequenceAnnotations();
}

void ZELAppDelegate::finishNormalApplicationStartup()
{
    if (_quits)  // asked to, within first aid
        return;
    _recovery->locks().U_ClearCrashSemaphore(true, false);
    _recovery->locks().U_WriteCrashSemaphore();
    CrashRecovery::U_UpdateRunCounter();
    openPaths(std::exchange(_pathsAtStart, {}));
    enqueue([this] { openDiscs(); });
}

void ZELAppDelegate::openDiscs()
{
    SweepDeadTempFolders();
    RemoveAbandonedCacheFolders();
    _recovery->keepLastReports();
    if (prefs_DoAutoOpenDICOMCDs())
        _controller.openMountedCDsOnStartup();
    _volumes = NewVolumeWatcher([this](const std::string& point) { diskMounted(point); });
    _controller.delayedOpenFile();
}

bool ZELAppDelegate::takeOver(std::vector<std::string> paths)
{
    if (_quits)
        return false;
    if (paths.empty()) {
        if (ZELMainWindowController* window = topmostViewerWindow())
            window->bringToFront();
        else if (_startWindow && _startWindow->isVisible())
            _startWindow->activateWindow();
    }
    openPaths(std::move(paths));
    return true;
}

// --- End -----------------------------------------------------------------------------------------

void ZELAppDelegate::applicationShouldTerminate()
{
    for (const auto& window : _windows)
        window->setWindowClosing();
}

void ZELAppDelegate::applicationWillTerminate()
{
    for (const auto& window : _windows)
        window->imagesDB().cleanCacheFiles();
    _volumes.reset();
    _preferences.close();
    _windows.clear();
    _baseBuffer.reset();
    RemoveProgramTempFolder();
    // Also after a reset, whose run has no lock but that of the one before.
    if (isAttended())
        _recovery->locks().U_ClearCrashSemaphore(true, false);
    CImporterPlusFactory::DeinitFactory();
}

void ZELAppDelegate::diskMounted(const std::string& mountPoint)
{
    if (_controller.inQTModalMode())
        _controller.deviceDidMount(mountPoint);  // keeps it for later
    else
        enqueue([this, mountPoint] { _controller.deviceDidMount(mountPoint); });
}

// --- Requests ------------------------------------------------------------------------------------

void ZELAppDelegate::enqueue(Job job)
{
    if (!_quits)
        append(std::move(job));
}

void ZELAppDelegate::append(Job job)
{
    _jobs.push_back(std::move(job));
    QTimer::singleShot(0, this, &ZELAppDelegate::runJobs);
}

void ZELAppDelegate::runJobs()
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

void ZELAppDelegate::leaveIfDone()
{
    std::erase_if(_windows, [](const auto& window) { return !window->isVisible(); });
    if (_quits || (!isAttended() && _windows.empty() && _laterCalls == 0))
        QCoreApplication::exit(_hasFailed && !_hasOpened ? 1 : 0);
    if (_quits || !isAttended() || _laterCalls > 0)
        return;
    // The desktop has no menu for a program without a window.
    if (!_windows.empty()) {
        if (_startWindow)
            _startWindow->hide();
    } else {
        if (!_startWindow) {
            AppCommands* commands = this;  // a private base
            _startWindow = std::make_unique<StartWindow>(commands);
            QObject::connect(_startWindow.get(), &StartWindow::closed, this, [this] { quit(); });
        }
        _startWindow->reloadRecents();
        _startWindow->show();
    }
}

void ZELAppDelegate::openPath(const std::string& path)
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

std::function<void()> ZELAppDelegate::eventServer()
{
    // What the user does meanwhile waits, but for the Cancel button: see OpenProgressWindow.
    return [] { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); };
}

void ZELAppDelegate::callLater(double seconds, std::function<void()> call)
{
    const std::chrono::duration<double> pause(seconds);
    ++_laterCalls;
    QTimer::singleShot(std::chrono::duration_cast<std::chrono::milliseconds>(pause), this,
                       [this, call = std::move(call)] {
                           --_laterCalls;
                           enqueue(call);
                       });
}

std::optional<OpenHost::Picked> ZELAppDelegate::runOpenPanel(const std::string& startFolder)
{
    if (!isAttended() || _quits)
        return std::nullopt;
    OpenPanel panel(startFolder, QApplication::activeWindow());
    if (panel.exec() != QDialog::Accepted)
        return std::nullopt;
    return Picked{{panel.chosenPath()}, panel.shownFolder()};
}

// --- What a request ends in ----------------------------------------------------------------------

ZELMainWindowController* ZELAppDelegate::windowOf(const ZELRecentDocument& document) const
{
    for (const auto& window : _windows)
        if (window->isVisible() && window->windowDoc().matches(document))
            return window.get();
    return nullptr;
}

bool ZELAppDelegate::docIsAlreadyOpen(const ZELRecentDocument& document)
{
    return windowOf(document) != nullptr;
}

void ZELAppDelegate::bringDocWindowToFront(const ZELRecentDocument& document)
{
    if (ZELMainWindowController* window = windowOf(document))
        window->bringToFront();
}

void ZELAppDelegate::ShowAlertForError(QvxStatus code, const std::string& name)
{
    _hasFailed = true;
    const ZELAlertWords words = AlertWordsForError(code, DisplayText(name));
    const QString text = QStringList{words.message, words.informative}.join(QLatin1Char(' '));
    SayProblem(words.message.isEmpty() ? name + ": " + std::string(StatusText(code))
                                       : text.trimmed().toStdString());
    showAlert(words);
}

void ZELAppDelegate::showAlert(const ZELAlertWords& words)
{
    if (!isAttended() || _quits)
        return;
    RunAlert(words, QApplication::activeWindow());
}

void ZELAppDelegate::treeIsReady(std::unique_ptr<ZELDcmTree> tree, const std::string& represented,
                                 const ZELRecentDocument& document)
{
    _hasOpened = true;
    AppCommands* commands = this;  // a private base
    _windows.push_back(std::make_unique<ZELMainWindowController>(commands, std::move(tree),
                                                                 represented, document));
    ZELMainWindowController* window = _windows.back().get();
    if (_snapshotPath && _windows.size() == 1)
        window->whenPainted(!_snapshotPath->isEmpty(), [this, window] { saveSnapshot(window); });
    window->show();
    window->setZelWindowIsReady();
}

void ZELAppDelegate::saveSnapshot(ZELMainWindowController* window)
{
    // A picture waits for the list's thumbnails too.
    const QDeadlineTimer patience(_snapshotPath->isEmpty() ? std::chrono::seconds(0)
                                                           : kPatienceForPicture);
    QCoreApplication::sendPostedEvents();
    while (!window->listIsComplete() && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const bool saved = _snapshotPath->isEmpty() || window->grab().save(*_snapshotPath, "PNG");
    if (!saved)
        SayProblem("can't save a picture as " + _snapshotPath->toStdString());
    QCoreApplication::exit(saved ? 0 : 1);
}

// --- What windows ask for ------------------------------------------------------------------------

void ZELAppDelegate::openFromDialog()
{
    enqueue([this] { _controller.doOpenMenuCommand(); });
}

void ZELAppDelegate::openPaths(std::vector<std::string> paths)
{
    for (std::string& path : paths)
        enqueue([this, path = std::move(path)] { openPath(path); });
}

void ZELAppDelegate::openRecent(const ZELRecentDocument& document)
{
    enqueue([this, document] {
        const auto& list = _recents.list();
        const auto found = std::ranges::find_if(
            list, [&](const ZELRecentDocument& each) { return each.matches(document); });
        if (found != list.end())
            _controller.openZELRecentDoc(static_cast<std::size_t>(found - list.begin()));
    });
}

void ZELAppDelegate::windowClosed()
{
    enqueue([] {});  // the window goes once its own event is over
}

// Carried out later: who asks may be a window that goes.
void ZELAppDelegate::quit()
{
    _quits = true;
    _jobs.clear();  // nothing opens any more
    append([this] {
        applicationShouldTerminate();
        for (const auto& window : _windows)
            window->close();
    });
    _controller.cancelOpen();
    while (QWidget* modal = QApplication::activeModalWidget()) {
        if (!modal->close())
            break;
    }
}

std::vector<QWidget*> ZELAppDelegate::viewerWindows() const
{
    std::vector<QWidget*> open;
    for (const auto& window : _windows)
        if (window->isVisible())
            open.push_back(window.get());
    return open;
}

ZELMainWindowController* ZELAppDelegate::topmostViewerWindow() const
{
    ZELMainWindowController* found = nullptr;
    for (const auto& window : _windows)
        if (window->isVisible() && (!found || window->activation() > found->activation()))
            found = window.get();
    return found;
}

void ZELAppDelegate::showHidePreferencesWindow()
{
    _preferences.togglePreferencesWindow(QApplication::activeWindow());
}

void ZELAppDelegate::showPreferencesPane(const char* pane)
{
    _preferences.showPane(QString::fromLatin1(pane), QApplication::activeWindow());
}

void ZELAppDelegate::offerPreset(float width, float level)
{
    _preferences.offerPreset(width, level, QApplication::activeWindow());
}

void ZELAppDelegate::showFirstAidWindow()
{
    _recovery->doSpecialApplicationStartup(false, QApplication::activeWindow());
}

void ZELAppDelegate::showHelp() { ShowHelp(QApplication::activeWindow()); }
void ZELAppDelegate::showAcknowledgments() { ShowAcknowledgments(QApplication::activeWindow()); }
void ZELAppDelegate::showAbout() { ShowAbout(QApplication::activeWindow()); }

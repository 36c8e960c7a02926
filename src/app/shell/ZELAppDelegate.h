// The program's life from start to end: what is loaded and in which order, its windows, its alerts,
// and one request to open after the other. Main thread only.
#pragma once
#include "app/recovery/CrashRecovery.h"
#include "app/shell/OpenProgressWindow.h"
#include "app/window/AppCommands.h"
#include "app_prefs/ZELPrefsController.h"
#include "dicom_core/opening/OpenController.h"
#include "dicom_core/store/zel_ImageBuffer.h"

#include <QObject>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class ZELMainWindowController;
class QuitSignals;
class StartWindow;
class VolumeWatcher;
struct ZELAlertWords;

// Where the program stands on its machine; paths are bytes.
struct ProgramSurroundings {
    std::string dataFolder;                             // the user's, of this program
    std::string place;                                  // which copy of the program this is
    std::function<std::vector<std::string>()> running;  // places of all that run, this one included
};

class ZELAppDelegate final : public QObject,
                             private OpenObserver,
                             private OpenHost,
                             private AppCommands {
public:
    // With a `snapshotPath` nobody is there: no dialogs, no recent documents, no discs. A picture
    // of the first window goes there (nowhere for an empty path) and the program ends: with code 0,
    // or 1 if that fails.
    ZELAppDelegate(std::optional<QString> snapshotPath, ProgramSurroundings surroundings);
    ~ZELAppDelegate() override;

    // Sets the program up, then, from the event loop, opens `paths` (bytes), or discs and what the
    // Open dialog gives. The event loop is left with the code of the program when the user quits:
    // 1 when something failed to open and nothing else ever opened.
    void start(std::vector<std::string> paths);
    // Another start of the same program: opens them here, or comes to the front without any. False
    // when this one is about to end.
    [[nodiscard]] bool takeOver(std::vector<std::string> paths);

private:
    // OpenObserver
    [[nodiscard]] bool docIsAlreadyOpen(const ZELRecentDocument& document) override;
    void bringDocWindowToFront(const ZELRecentDocument& document) override;
    void ShowAlertForError(QvxStatus code, const std::string& name) override;
    void treeIsReady(std::unique_ptr<ZELDcmTree> tree, const std::string& represented,
                     const ZELRecentDocument& document) override;
    // OpenHost
    [[nodiscard]] std::function<void()> eventServer() override;
    [[nodiscard]] std::optional<Picked> runOpenPanel(const std::string& startFolder) override;
    [[nodiscard]] bool mainWindowIsViewer() override { return !_windows.empty(); }
    void callLater(double seconds, std::function<void()> call) override;
    // AppCommands
    void openFromDialog() override;
    void openPaths(std::vector<std::string> paths) override;
    void openRecent(const ZELRecentDocument& document) override;
    ZELRecentDocuments& recents() override { return _recents; }
    void windowClosed() override;
    void quit() override;
    [[nodiscard]] bool inQTModalMode() const override { return _controller.inQTModalMode(); }
    void showHidePreferencesWindow() override;
    void showPreferencesPane(const char* pane) override;
    void offerPreset(float width, float level) override;
    void showHelp() override;
    void showAcknowledgments() override;
    void showAbout() override;
    void showFirstAidWindow() override;
    [[nodiscard]] bool hasUpdateCheck() const override { return false; }
    void checkForUpdates() override {}
    [[nodiscard]] std::vector<QWidget*> viewerWindows() const override;

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    void doSpecialApplicationStartup(bool didCrash);
    void finishNormalApplicationStartup();
    void applicationShouldTerminate();
    void applicationWillTerminate();

    using Job = std::function<void()>;
    void enqueue(Job job);  // nothing any more once the user quits
    void append(Job job);
    void runJobs();
    void openPath(const std::string& path);
    void diskMounted(const std::string& mountPoint);
    void openDiscs();
    void leaveIfDone();
    [[nodiscard]] ZELMainWindowController* topmostViewerWindow() const;
    void saveSnapshot(ZELMainWindowController* window);
    void showAlert(const ZELAlertWords& words);  // warning style, modal; nothing unattended
    [[nodiscard]] ZELMainWindowController* windowOf(const ZELRecentDocument& document) const;
    [[nodiscard]] bool isAttended() const { return !_snapshotPath; }

    std::optional<QString> _snapshotPath;
    std::unique_ptr<zel_ImageBuffer> _baseBuffer;  // gAppBaseBuffer
    ZELRecentDocuments _recents;
    OpenProgressWindow _progressWindow;
    ZELOpenController _controller;
    std::vector<std::unique_ptr<ZELMainWindowController>> _windows;
    ZELPrefsController _preferences;
    std::unique_ptr<CrashRecovery> _recovery;
    std::vector<std::string> _pathsAtStart;
    std::unique_ptr<StartWindow> _startWindow;  // made when it is first needed
    std::unique_ptr<QuitSignals> _signals;
    std::unique_ptr<VolumeWatcher> _volumes;
    std::deque<Job> _jobs;  // requests, which never run within one another
    int _laterCalls = 0;    // that have not come to be requests yet
    bool _jobRuns = false;
    bool _hasFailed = false, _hasOpened = false, _quits = false;
};

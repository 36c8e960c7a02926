// What follows a crash: first aid at the next start, the reset of all settings, the report and its
// way to those who build the program. Main thread only.
#pragma once
#include "app/recovery/CrashLocks.h"

#include <QString>
#include <functional>
#include <optional>

class QWidget;

// How a report leaves the program. The desktop's ways by default; tests have their own.
struct MailWays {
    // Sends with an attachment (bytes of a path); false where the desktop's mail program takes
    // none.
    std::function<bool(const QString& subject, const QString& body, const std::string& attachment)>
        withAttachment;
    std::function<bool(const QString& subject, const QString& body)> asText;
};
[[nodiscard]] MailWays MailWaysOfDesktop();

class CrashRecovery {
public:
    struct Setup {
        std::string programName, dataFolder, place;
        std::function<std::string()> temporaryFolder;       // of this run, gone with it
        std::function<std::vector<std::string>()> running;  // places of copies
        std::function<void()> terminate;                    // ends this program soon
        std::function<void()> checkForUpdates;              // empty: there is no such service
        MailWays mail = MailWaysOfDesktop();
    };
    explicit CrashRecovery(Setup setup);
    ~CrashRecovery();  // the archive that was sent goes

    [[nodiscard]] CrashLocks& locks() { return _locks; }
    [[nodiscard]] std::string reportsFolder() const { return _setup.dataFolder + "/CrashReports"; }
    // The reports of the last crashes stay, older ones go.
    void keepLastReports() const;
    static void U_UpdateCrashCounter();
    static void U_UpdateRunCounter();

    // What the user chose in the first aid window has been done. True: the start goes on; false:
    // the program ends, or looks for updates.
    bool doSpecialApplicationStartup(bool didCrash, QWidget* over);
    // Collects, lets the user see and strike, sends. False if the user cancelled, or it can't be
    // sent.
    bool U_EmailOurCrashLogs(const QString& text, bool cleanUp, QWidget* over);
    // All settings go (a copy is kept beside), and the program is started again.
    void U_ClearPrefsAndRelaunchApp();

private:
    Setup _setup;
    CrashLocks _locks;
    std::string _logs;  // the archive, until the program ends; empty for none
};

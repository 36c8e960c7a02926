// Preferences of a test's own, and what is posted meanwhile.
#pragma once
#include "fixtures/TempFolder.h"
#include "platform/NotificationCenter.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

class OwnPrefs {
public:
    OwnPrefs() { prefs_Store().UseFile(fFolder.Path("preferences.plist")); }
    ~OwnPrefs() { prefs_Store().UseFile(""); }
    OwnPrefs(const OwnPrefs&) = delete;
    OwnPrefs& operator=(const OwnPrefs&) = delete;
    // As the next start of the program finds them.
    void reopen() const { prefs_Store().UseFile(fFolder.Path("preferences.plist")); }

private:
    TempFolder fFolder;
};

class Notes {
public:
    explicit Notes(std::string_view name)
    {
        if (!name.empty())
            fObservation =
                NotificationCenter::Default().AddObserver(name, [this](const Notification& note) {
                    ++fCount;
                    fLast = note.userInfo;
                });
    }
    [[nodiscard]] int count() const { return fCount; }
    [[nodiscard]] const QVariantMap& last() const { return fLast; }

private:
    int fCount = 0;
    QVariantMap fLast;
    NotificationCenter::Observation fObservation;
};

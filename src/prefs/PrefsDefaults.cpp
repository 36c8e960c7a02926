// The store, its defaults, and the migration.
#include "platform/Folders.h"
#include "platform/PreferenceStore.h"
#include "platform/PropertyList.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsAccess.h"
#include "util/Log.h"

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <limits>

namespace {

constexpr int kPreferencesVersion = 40311;
constexpr int kVersionOfDataExport = 40200;  // from here on the key has its present name
constexpr const char* kKeyVersion = "ZELPreferencesVersion";
constexpr const char* kKeySplitter = "NSSplitView Subview Frames MeasurementSplitter";

constexpr unsigned char kDefaults[] = {
#include "ZELDefaultPrefs.inc"
};

void RegisterDefaults(PreferenceStore* store)
{
    // qsizetype of the array; the bytes are only borrowed.
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(kDefaults),
                                                     static_cast<qsizetype>(sizeof kDefaults));
    const PropertyListReading reading = ReadPropertyList(bytes);
    if (!reading.IsSound())
        LogLine("damaged default preferences: " + reading.fFault);
    store->RegisterDefaults(reading.fRoot.toMap());
}

std::string StorePath()
{
    const std::string folder = UserConfigFolderPath();
    return folder.empty() ? folder : folder + "/preferences.plist";
}

struct ApplicationStore {
    PreferenceStore fStore{StorePath()};
    ApplicationStore() { RegisterDefaults(&fStore); }
};

void MigrateFrom(int version)
{
    PreferenceStore& store = prefs_Store();
    if (version < kVersionOfDataExport) {
        prefs_Set_SavedDicomDataExportType(ReadInt("MetadataExportType"));
        if (!store.Array(kKeySplitter).isEmpty())
            store.Remove(kKeySplitter);
    }
    Store(kKeyVersion, kPreferencesVersion);
    prefs_Set_NumberOfRuns_Previous(prefs_NumberOfRuns_Total());
    prefs_Set_NumberOfRuns_Current(0);
}

bool IsPlainText(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() >= 0x20; });
}

}  // namespace

PreferenceStore& prefs_Store()
{
    static ApplicationStore store;
    return store.fStore;
}

void prefs_InitializeForApplication() { static_cast<void>(prefs_Store()); }

void InitializeAppDefaults()
{
    const int version = ReadInt(kKeyVersion);
    if (version != kPreferencesVersion)
        MigrateFrom(version);
    prefs_RepairMeasurementColors();
    prefs_Synchronize();
}

std::string prefs_FilePath() { return prefs_Store().FilePath(); }

void prefs_RemoveAll()
{
    const std::string path = prefs_FilePath();
    prefs_Store().UseFile({});
    if (!path.empty() && std::rename(path.c_str(), (path + ".before-reset").c_str()) != 0)
        LogLine("preferences can't be set aside: " + std::string(StatusText(errno)));
}

void prefs_OverrideForRun(const char* key, bool value) { prefs_Store().Override(key, value); }

void prefs_Synchronize()
{
    const QvxStatus status = prefs_Store().Synchronize();
    if (status != kQvxOK)
        LogLine("preferences not saved: " + std::string(StatusText(status)));
}

bool ReadBool(const char* key) { return prefs_Store().Bool(key); }

int ReadInt(const char* key)
{
    using Limits = std::numeric_limits<int>;
    const qint64 number = prefs_Store().Integer(key);
    return number < Limits::min() || number > Limits::max() ? 0 : static_cast<int>(number);
}

int ReadIntWithin(const char* key, int least, int most, int usual)
{
    const int number = ReadInt(key);
    return number < least || number > most ? usual : number;
}

void Store(const char* key, const QVariant& value)
{
    // The kinds that this folder stores are all fit for a property list, NaN alone is not.
    if (prefs_Store().Set(key, value) != kQvxOK)
        LogLine("no value for the preference " + std::string(key));
}

std::string ReadFolder(const char* key)
{
    const QByteArray bytes = prefs_Store().Data(key);
    std::string folder =
        bytes.isEmpty() ? prefs_Store().String(key).toStdString() : bytes.toStdString();
    return folder.empty() ? UserHomeFolder() : folder;
}

void StoreFolder(const char* key, const std::string& folder)
{
    const QString text = QString::fromStdString(folder);
    if (text.toStdString() == folder && IsPlainText(text))
        Store(key, text);
    else
        Store(key, QByteArray::fromStdString(folder));
}

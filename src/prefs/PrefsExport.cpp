// What an export remembers.
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"
#include "prefs/PrefsAccess.h"
#include "util/FourCC.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>
#include <algorithm>

namespace {

constexpr const char* kKeyFolder = "ExportTargetDirectoryKey";
constexpr const char* kKeyImageType = "Export_DefaultImageTypeKey";
constexpr const char* kKeyMovieType = "Export_DefaultMovieTypeKey";
constexpr const char* kKeyImageData = "Export_ImageExporterDataKey";
constexpr const char* kKeyMovieData = "Export_MovieExporterDataKey";
constexpr const char* kKeyAnonymizeLevel = "ZELAnonymizeLevel";
constexpr const char* kKeyDataExportLevel = "ZELDicomDataExportLevel";

// A type is stored as a whole number, and settings under its four characters.
std::uint32_t ReadType(const char* key, std::uint32_t usual)
{
    const qint64 type = prefs_Store().Integer(key);
    const bool isType = type > 0 && type <= 0xFFFFFFFF;
    return isType ? static_cast<std::uint32_t>(type) : usual;
}

QString TextOfType(std::uint32_t type)
{
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text.append(QChar::fromLatin1(static_cast<char>(type >> shift & 0xFF)));
    return text;
}

// -1 for none, and for what can't have been stored.
int ReadLevel(const char* key) { return std::max(ReadInt(key), 0) - 1; }

}  // namespace

std::string prefs_ExportTargetDirectory() { return ReadFolder(kKeyFolder); }
void prefs_Set_ExportTargetDirectory(const std::string& folder) { StoreFolder(kKeyFolder, folder); }
std::uint32_t prefs_GetDefaultImageExportType() { return ReadType(kKeyImageType, FourCC("JPEG")); }
std::uint32_t prefs_GetDefaultMovieExportType() { return ReadType(kKeyMovieType, FourCC("MooV")); }

QByteArray prefs_Get_ExporterSettings(std::uint32_t exporterType, bool isMovie)
{
    const QVariantMap all = prefs_Store().Dictionary(isMovie ? kKeyMovieData : kKeyImageData);
    return all.value(TextOfType(exporterType)).toByteArray();
}

void prefs_Set_ExporterSettings(std::uint32_t exporterType, const QByteArray& settings,
                                bool isMovie)
{
    const char* key = isMovie ? kKeyMovieData : kKeyImageData;
    Store(isMovie ? kKeyMovieType : kKeyImageType, static_cast<qlonglong>(exporterType));
    QVariantMap all = prefs_Store().Dictionary(key);
    all.insert(TextOfType(exporterType), settings);
    Store(key, all);
}

void prefs_SaveExportPrefs(bool appendQTAnnotations, bool doExportToFrames,
                           std::uint32_t exporterType, const QByteArray& settings)
{
    prefs_Set_ExportAddsMetadata(appendQTAnnotations);
    prefs_Set_ExportToImages(doExportToFrames);
    if (exporterType != 0 && !settings.isEmpty())
        prefs_Set_ExporterSettings(exporterType, settings, !doExportToFrames);
    prefs_Synchronize();
}

bool prefs_DoExportToImages() { return ReadBool("Export_SaveAsFrames"); }
void prefs_Set_ExportToImages(bool on) { Store("Export_SaveAsFrames", on); }
bool prefs_SaveMarkedSerialized() { return ReadBool("MarkedExportFlattenedFlag"); }
void prefs_Set_SaveMarkedSerialized(bool on) { Store("MarkedExportFlattenedFlag", on); }
bool prefs_Export_SerializeNames() { return ReadBool("ZELExport_SerializeNamesFlag"); }
void prefs_Set_Export_SerializeNames(bool on) { Store("ZELExport_SerializeNamesFlag", on); }
QString prefs_Export_SerializeNamePrefix()
{
    return prefs_Store().String("ZELExport_SerializeNamePrefix");
}
void prefs_Set_Export_SerializeNamePrefix(const QString& prefix)
{
    Store("ZELExport_SerializeNamePrefix", prefix);
}
bool prefs_Get_ExportAddsMetadata() { return ReadBool("Export_AddsMetadataFlag"); }
void prefs_Set_ExportAddsMetadata(bool on) { Store("Export_AddsMetadataFlag", on); }
int prefs_SavedAnonymizeLevel() { return ReadLevel(kKeyAnonymizeLevel); }
void prefs_Set_SavedAnonymizeLevel(int level) { Store(kKeyAnonymizeLevel, level + 1); }
int prefs_SavedDicomDataExportLevel() { return ReadLevel(kKeyDataExportLevel); }
void prefs_Set_SavedDicomDataExportLevel(int level) { Store(kKeyDataExportLevel, level + 1); }
int prefs_SavedDicomDataExportType() { return ReadInt("ZELDicomDataExportType"); }
void prefs_Set_SavedDicomDataExportType(int type) { Store("ZELDicomDataExportType", type); }

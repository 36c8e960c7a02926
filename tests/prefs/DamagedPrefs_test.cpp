// Preferences damaged in every way that a text file can be: all getters answer something usual, the
// damaged file is kept beside, and the next start finds a sound one.
#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "platform/PropertyList.h"
#include "prefs/Prefs.h"
#include "prefs/WindowPresets.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class DamagedPrefs : public testing::Test {
protected:
    ~DamagedPrefs() override { prefs_Store().UseFile(""); }

    // What a start of the program does, then a second one.
    static void Start(const std::string& path)
    {
        prefs_Store().UseFile(path);
        InitializeAppDefaults();
    }
    TempFolder fFolder;
};

bool IsColor(const ZELColor& color)
{
    for (const double part : {color.red, color.green, color.blue, color.alpha}) {
        if (!(part >= 0 && part <= 1))
            return false;
    }
    return true;
}

bool IsBetween(int least, int value, int most) { return value >= least && value <= most; }

// What users of the preferences rely on without looking.
void ExpectUsualAnswers()
{
    EXPECT_TRUE(IsBetween(0, prefs_ToolScope(), 1));
    EXPECT_TRUE(IsBetween(23, prefs_PreviewPictSize(), 257));
    EXPECT_TRUE(IsBetween(1, prefs_ShowZELToolbarPane(), 2));
    EXPECT_TRUE(IsBetween(0, prefs_GetCineLoopMode(), 2));
    EXPECT_TRUE(IsBetween(4, prefs_CineDefaultSpeed(), 60));
    EXPECT_GE(prefs_NumberOfRuns_Total(), 0);
    EXPECT_GE(prefs_NumberOfCrashes(), 0);
    EXPECT_GE(prefs_SavedAnonymizeLevel(), -1);
    EXPECT_GE(prefs_SavedDicomDataExportLevel(), -1);
    EXPECT_GT(prefs_GetDefaultImageExportType(), 0u);
    EXPECT_GT(prefs_GetDefaultMovieExportType(), 0u);
    EXPECT_FALSE(prefs_Get_AnnotationsFontName().isEmpty());
    const float size = prefs_Get_AnnotationsFontSize();
    EXPECT_TRUE(size >= 1 && size <= 1000) << size;
    EXPECT_FALSE(prefs_OpenTargetDirectory().empty());
    EXPECT_FALSE(prefs_ExportTargetDirectory().empty());
    for (const auto& get : {prefs_Get_ActiveCellColor, prefs_Get_InactiveCellColor3,
                            prefs_Get_OverlaysColor, prefs_Get_AnnotationsDefaultColorX,
                            prefs_Get_LocalizerLinesColorX, prefs_Get_USRegionsColor,
                            prefs_Get_SelectedMeasurementColor, prefs_Get_MeasurementStrokeColor,
                            prefs_Get_MeasurementFillColor, prefs_Get_DrawingGridColor})
        EXPECT_TRUE(IsColor(get()));
    const auto presets = loadWWWLPresets();
    EXPECT_FALSE(presets.empty());
    for (const ZELWWWLMenuItem& preset : presets)
        EXPECT_TRUE(std::isfinite(preset.wwidth) && std::isfinite(preset.wcenter));
}

constexpr const char* kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">";

std::string PList(const std::string& root) { return kHead + root + "</plist>\n"; }
std::string Dict(const std::string& entries) { return PList("<dict>" + entries + "</dict>"); }
std::string Repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

// The same file as the program leaves it after a first start.
std::string SoundFile(const TempFolder& folder)
{
    prefs_Store().UseFile(folder.Path("sound.plist"));
    InitializeAppDefaults();
    prefs_Set_CineDefaultSpeed(25);
    prefs_Set_AnnotationsFontName(QStringLiteral("Äöü"));
    EXPECT_EQ(saveWWWLPresets(loadWWWLPresets()), kQvxOK);
    std::ifstream file(folder.Path("sound.plist"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Damage {
    std::string what, bytes;
    bool isSound = false;  // reads without a fault: nothing to set aside
};

std::vector<Damage> Damages(const std::string& sound)
{
    std::vector<Damage> all;
    constexpr std::size_t kParts = 20;
    for (std::size_t part = 0; part < kParts; ++part)
        all.push_back({"cut at " + std::to_string(part) + "/20",
                       sound.substr(0, sound.size() * part / kParts)});
    std::string noise;
    for (unsigned i = 0, x = 1; i < 5000; ++i, x = x * 1664525U + 1013904223U)
        noise.push_back(static_cast<char>(x >> 24));
    std::string crlf;
    for (const char c : sound)
        crlf += c == '\n' ? "\r\n" : std::string(1, c);
    std::string badByte = sound;
    badByte[badByte.find("Andale") != std::string::npos ? badByte.find("Andale")
                                                        : badByte.find("\xC3\x84")] = '\xFF';
    const std::vector<Damage> others{
        {"zeros", std::string(4096, '\0')},
        {"noise", noise},
        {"text", "CineDefaultSpeed = 15\n"},
        {"an array", PList("<array><integer>1</integer></array>")},
        {"a string", PList("<string>x</string>")},
        {"no root", PList("")},
        {"two roots", PList("<dict/><dict/>")},
        {"another document", "<?xml version=\"1.0\"?><html><body>x</body></html>"},
        {"deep", PList(Repeated("<array>", 100000) + Repeated("</array>", 100000))},
        {"deep below a string", Dict("<key>a</key><string>" + Repeated("<b>", 100000))},
        {"entities",
         "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b "
         "\"&a;&a;&a;&a;&a;&a;\">]><plist><dict><key>&b;</key><true/></dict></plist>"},
        {"many values", Dict(Repeated("<key>k</key><true/>", 300000))},
        {"numbers beyond all kinds",
         Dict("<key>CineDefaultSpeed</key><integer>99999999999999999999999</integer>"
              "<key>PreviewPictSize</key><real>1e999</real>"
              "<key>DefaultAnnotationFontSize</key><real>nan</real>")},
        {"broken base 64", Dict("<key>USRegionsColor</key><data>!!!</data>")},
        {"keys without values", Dict("<key>ToolScope</key><key>CineLoopType</key>")},
        {"no UTF-8", badByte},
        {"twice the same key",
         Dict("<key>CineLoopType</key><integer>2</integer><key>CineLoopType</key><true/>"), true},
        {"lines of another system", crlf, true},
        {"a byte order mark", "\xEF\xBB\xBF" + sound, true},
        {"an empty dictionary", Dict(""), true},
        {"numbers at the edge",
         Dict("<key>RunCounterPrevious</key><integer>2147483647</integer>"
              "<key>RunCounterCurrent</key><integer>2147483647</integer>"
              "<key>ZELPreferencesVersion</key><integer>40311</integer>"
              "<key>CrashCounter</key><integer>-2147483648</integer>"
              "<key>ZELAnonymizeLevel</key><integer>-2147483648</integer>"
              "<key>ZELDicomDataExportLevel</key><integer>-9223372036854775808</integer>"
              "<key>DefaultAnnotationFontSize</key><real>1e300</real>"),
         true},
        {"numbers out of range",
         Dict("<key>PreviewPictSize</key><integer>-5</integer>"
              "<key>SequenceGridArrangement</key><integer>9999</integer>"
              "<key>ToolScope</key><integer>7</integer>"
              "<key>CineLoopType</key><integer>9</integer>"
              "<key>ShowZELToolbarPane</key><integer>3</integer>"
              "<key>DefaultAnnotationFontSize</key><real>1e9</real>"),
         true},
    };
    all.insert(all.end(), others.begin(), others.end());
    return all;
}

}  // namespace

TEST_F(DamagedPrefs, each_damage_is_survived_kept_beside_and_gone_at_the_next_start)
{
    int number = 0;
    for (const Damage& damage : Damages(SoundFile(fFolder))) {
        SCOPED_TRACE(damage.what);
        const std::string name = "run" + std::to_string(++number) + "/preferences.plist";
        const std::string path = fFolder.WriteFile(name, damage.bytes);
        Start(path);
        ExpectUsualAnswers();
        prefs_Synchronize();
        EXPECT_EQ(fs::exists(path + ".damaged"), !damage.isSound);
        if (!damage.isSound) {
            std::ifstream kept(path + ".damaged", std::ios::binary);
            EXPECT_EQ(std::string(std::istreambuf_iterator<char>(kept), {}), damage.bytes);
        }
        const PropertyListReading after = ReadPropertyListFile(path);
        EXPECT_TRUE(after.IsSound()) << after.fFault;
        EXPECT_EQ(after.fRoot.typeId(), QMetaType::QVariantMap);
        Start(path);
        ExpectUsualAnswers();
        EXPECT_FALSE(fs::exists(path + ".damaged_1"));
    }
}

TEST_F(DamagedPrefs, a_file_that_only_ends_wrongly_is_repaired_without_a_change_of_a_key)
{
    const std::string sound = SoundFile(fFolder);
    const std::string path =
        fFolder.WriteFile("preferences.plist", sound.substr(0, sound.rfind("</plist>")));
    Start(path);
    EXPECT_EQ(prefs_CineDefaultSpeed(), 25);
    EXPECT_TRUE(fs::exists(path + ".damaged"));
    EXPECT_TRUE(ReadPropertyListFile(path).IsSound());
}

// Every key of a sound file, and every one with a default, as every other kind.
TEST_F(DamagedPrefs, a_value_of_another_kind_counts_as_none)
{
    const auto defaults = [] {
        return std::vector<QVariant>{prefs_DoScanDirectoriesRecursively(),
                                     prefs_ToolScope(),
                                     prefs_CineDefaultSpeed(),
                                     prefs_Get_AnnotationsFontSize(),
                                     prefs_Get_AnnotationsFontName(),
                                     prefs_HasCineAutoplay()};
    };
    prefs_Store().UseFile("");
    const std::vector<QVariant> fresh = defaults();
    const QVariant kinds[] = {QStringLiteral("text"), QByteArray("data"), QVariantList{1, 2},
                              QVariantMap{{QStringLiteral("a"), 1}}, QDateTime::currentDateTime()};
    SoundFile(fFolder);
    QStringList keys = ReadPropertyListFile(fFolder.Path("sound.plist")).fRoot.toMap().keys();
    const QString flagsAndNumbers[] = {QStringLiteral("ScanDirectoriesRecursivelyFlag"),
                                       QStringLiteral("ToolScope"),
                                       QStringLiteral("CineDefaultSpeed"),
                                       QStringLiteral("CineAutoPlayFlag"),
                                       QStringLiteral("PreviewPictSize"),
                                       QStringLiteral("CineLoopType"),
                                       QStringLiteral("ShowZELToolbarPane"),
                                       QStringLiteral("SequenceGridArrangement"),
                                       QStringLiteral("DefaultAnnotationFontSize"),
                                       QStringLiteral("RunCounterCurrent"),
                                       QStringLiteral("Export_DefaultImageTypeKey"),
                                       QStringLiteral("ZELAnonymizeLevel")};
    for (const QString& key : flagsAndNumbers)
        keys.append(key);
    for (const char* key :
         {"DefaultAnnotationFontName", "ActiveGrid_SelectionColor", "DefaultOverlayColor",
          "DefaultAnnotationColor", "LocalizerLinesColor", "USRegionsColor", "WWWLPresets",
          "OpenTargetDirectoryKey", "Export_ImageExporterDataKey", "ZELRecentDocuments"})
        keys.append(QLatin1String(key));
    for (const QVariant& kind : kinds) {
        SCOPED_TRACE(kind.typeName());
        QVariantMap all;
        for (const QString& key : keys)
            all.insert(key, kind);
        QByteArray bytes;
        ASSERT_EQ(WritePropertyList(all, &bytes), kQvxOK);
        Start(fFolder.WriteFile("preferences.plist", bytes.toStdString()));
        ExpectUsualAnswers();
        const std::vector<QVariant> read = defaults();
        for (std::size_t i = 0; i < fresh.size(); ++i) {
            const bool isFont = read[i].typeId() == QMetaType::QString;  // any text is a name
            EXPECT_TRUE(isFont || read[i] == fresh[i]) << i;
        }
        EXPECT_TRUE(prefs_Get_ExporterSettings(1, false).isEmpty());
    }
}

TEST_F(DamagedPrefs, what_is_no_readable_file_is_survived)
{
    const struct {
        const char* what;
        std::function<void(const std::string& path)> make;
        bool isReplaced;  // else left as it is
    } rows[] = {
        {"a folder", [](const std::string& path) { fs::create_directories(path + "/inside"); },
         true},
        {"a dangling link",
         [](const std::string& path) { fs::create_symlink("/no/such/file", path); }, true},
        {"a link to itself", [](const std::string& path) { fs::create_symlink(path, path); },
         false},
        {"read-only",
         [](const std::string& path) {
             std::ofstream(path) << Dict("");
             ::chmod(path.c_str(), 0400);
         },
         true},
        {"unreadable",
         [](const std::string& path) {
             std::ofstream(path) << Dict("");
             ::chmod(path.c_str(), 0);
         },
         ::geteuid() == 0},
        {"50 MB of text",
         [](const std::string& path) {
             std::ofstream(path) << kHead;
             fs::resize_file(path, 50U << 20);
         },
         true},
        {"a pipe", [](const std::string& path) { ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0); },
         true},
    };
    int number = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const std::string folder = fFolder.Path("place" + std::to_string(++number));
        fs::create_directory(folder);
        const std::string path = folder + "/preferences.plist";
        row.make(path);
        Start(path);
        ExpectUsualAnswers();
        prefs_Set_CineDefaultSpeed(31);
        const QvxStatus status = prefs_Store().Synchronize();
        EXPECT_EQ(status == kQvxOK, row.isReplaced) << status;
        EXPECT_EQ(prefs_CineDefaultSpeed(), 31) << "for this run in any case";
        if (row.isReplaced) {
            Start(path);
            EXPECT_EQ(prefs_CineDefaultSpeed(), 31);
        }
        prefs_Store().UseFile("");
    }
}

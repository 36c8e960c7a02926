// Preferences: what a fresh install answers, what is repaired, and what an update migrates.
#include "prefs/Prefs.h"

#include "fixtures/TempFolder.h"
#include "platform/PreferenceStore.h"
#include "platform/PropertyList.h"
#include "util/FourCC.h"

#include <QByteArray>
#include <QString>
#include <cstdlib>
#include <gtest/gtest.h>

namespace {

class PrefsTest : public testing::Test {
protected:
    PrefsTest() { prefs_Store().UseFile(fFolder.Path("preferences.plist")); }
    ~PrefsTest() override { prefs_Store().UseFile(""); }
    TempFolder fFolder;
};

struct Flag {
    const char* key;
    bool (*get)();
    void (*set)(bool);
    bool fresh;
};
constexpr Flag kFlags[] = {
    {"IgnoreDICOMDIRFlag", prefs_IgnoreDICOMDIR, prefs_Set_IgnoreDICOMDIR, false},
    {"ScanDirectoriesRecursivelyFlag", prefs_DoScanDirectoriesRecursively,
     prefs_Set_ScanDirectoriesRecursively, true},
    {"AutoOpenDICOMCDsFlag", prefs_DoAutoOpenDICOMCDs, prefs_Set_AutoOpenDICOMCDs, true},
    {"CopyCDFilesFlag", prefs_CopyCDFilesToDisk, prefs_Set_CopyCDFilesToDisk, true},
    {"CopyRemoteFilesFlag", prefs_CopyRemoteFilesToDisk, prefs_Set_CopyRemoteFilesToDisk, false},
    {"SortPatListByFilenameFlag", prefs_DoSortPatListByFilename, prefs_Set_SortPatListByFilename,
     false},
    {"MergeSingleFrameUSsFlag", prefs_DoMergeSingleFrameUSs, prefs_Set_MergeSingleFrameUSs, false},
    {"MergeSingleFrameXAsFlag", prefs_DoMergeSingleFrameXAs, prefs_Set_MergeSingleFrameXAs, true},
    {"SpecialUSXAHandlingFlag", prefs_Has_SpecialUSXAOpen, prefs_Set_Has_SpecialUSXAOpen, true},
    {"DecodeTextByCharacterSetFlag", prefs_DecodeTextByCharacterSet,
     prefs_Set_DecodeTextByCharacterSet, true},
    {"BnCDialogPreviewFlag", prefs_BnCDialogPreview, prefs_Set_BnCDialogPreview, true},
    {"EnhanceVOIContrastFlag", prefs_EnhanceVOIContrast, prefs_Set_EnhanceVOIContrast, true},
    {"LimitAutoFitTo100Flag", prefs_LimitAutoFit, prefs_Set_LimitAutoFit, true},
    {"ShowPatientListPane", prefs_ShowPatientListPane, prefs_Set_ShowPatientListPane, true},
    {"ShowMeasurementInfoPane", prefs_ShowMeasurementInfoPane, prefs_Set_ShowMeasurementInfoPane,
     false},
    {"ShowUSRegionsFlag", prefs_Get_ShowsUSRegions, prefs_Set_ShowsUSRegions, false},
    {"ShowLocalizersOnAllGridsFlag", prefs_ShowLocalizersOnAllGrids,
     prefs_Set_ShowLocalizersOnAllGrids, true},
    {"ShowAllLocalizersFlag", prefs_ShowAllLocalizerLines, prefs_Set_ShowAllLocalizerLines, false},
    {"ShowFirstLastLocalizersFlag", prefs_ShowFirstLastLocalizerLines,
     prefs_Set_ShowFirstLastLocalizerLines, true},
    {"SeparateSequenceLocalizerFrames", prefs_SeparateLocalizerFrames,
     prefs_Set_SeparateLocalizerFrames, true},
    {"CineAutoPlayFlag", prefs_HasCineAutoplay, prefs_Set_HasCineAutoplay, true},
    {"CineSeriesPlayFlag", prefs_HasCineSeriesPlay, prefs_Set_HasCineSeriesPlay, false},
    {"CineEnforceSpeedFlag", prefs_HasCineEnforceSpeed, prefs_Set_HasCineEnforceSpeed, false},
    {"TraverseRespectsMarkedFlag", prefs_Cine_TraverseRespectsMarked,
     prefs_Set_Cine_TraverseRespectsMarked, false},
    {"Export_SaveAsFrames", prefs_DoExportToImages, prefs_Set_ExportToImages, false},
    {"MarkedExportFlattenedFlag", prefs_SaveMarkedSerialized, prefs_Set_SaveMarkedSerialized,
     false},
    {"ZELExport_SerializeNamesFlag", prefs_Export_SerializeNames, prefs_Set_Export_SerializeNames,
     false},
    {"Export_AddsMetadataFlag", prefs_Get_ExportAddsMetadata, prefs_Set_ExportAddsMetadata, false},
    {"ShowPrivateMetadataFlag", prefs_Metadata_ShowPrivates, prefs_Set_Metadata_ShowPrivates,
     false},
    {"ShowHexMetadataFlag", prefs_Metadata_ShowDataInHex, prefs_Set_Metadata_ShowDataInHex, false},
};

// A key that is misspelt on one side, or shared by two, shows here.
TEST_F(PrefsTest, each_flag_has_its_own_key_a_default_and_a_value_for_the_run)
{
    for (const Flag& flag : kFlags) {
        SCOPED_TRACE(flag.key);
        EXPECT_TRUE(prefs_Store().Has(flag.key));
        EXPECT_EQ(flag.get(), flag.fresh);
        prefs_OverrideForRun(flag.key, !flag.fresh);
        EXPECT_EQ(flag.get(), !flag.fresh);
        flag.set(flag.fresh);
        EXPECT_EQ(flag.get(), !flag.fresh);
        prefs_Store().Override(flag.key, {});
        EXPECT_EQ(flag.get(), flag.fresh);
        flag.set(!flag.fresh);
        EXPECT_EQ(prefs_Store().Bool(flag.key), !flag.fresh);
        EXPECT_EQ(flag.get(), !flag.fresh);
        flag.set(flag.fresh);
    }
    prefs_Set_RemovePrivateFields(true);
    EXPECT_TRUE(prefs_Store().Bool("RemovePrivateFieldsFlag"));
    EXPECT_FALSE(prefs_RemovePrivateFields());
}

TEST_F(PrefsTest, cine_speed_is_kept_between_4_and_60)
{
    const struct {
        int stored, wanted;
    } rows[] = {{3, 15}, {61, 15}, {0, 15}, {4, 4}, {60, 60}};
    for (const auto& row : rows) {
        prefs_Store().Set("CineDefaultSpeed", row.stored);
        EXPECT_EQ(prefs_CineDefaultSpeed(), row.wanted) << row.stored;
        EXPECT_EQ(prefs_Store().Integer("CineDefaultSpeed"), row.wanted) << row.stored;
    }
    prefs_Set_CineDefaultSpeed(3);
    EXPECT_EQ(prefs_Store().Integer("CineDefaultSpeed"), 4);
    prefs_Set_CineDefaultSpeed(61);
    EXPECT_EQ(prefs_Store().Integer("CineDefaultSpeed"), 60);
    EXPECT_TRUE(prefs_CineDoLoop());
    prefs_Set_CineDoSweep();
    EXPECT_TRUE(prefs_CineDoSweep() && !prefs_CineDoLoop() && !prefs_CineDoNOTLoop());
    EXPECT_EQ(prefs_GetCineLoopMode(), 2);
}

TEST_F(PrefsTest, a_useless_font_is_replaced)
{
    EXPECT_EQ(prefs_Get_AnnotationsFontNameC(), "Andale Mono");
    EXPECT_EQ(prefs_Store().String("DefaultAnnotationFontName"), "Andale Mono");
    prefs_Set_AnnotationsFontNameC("");
    EXPECT_EQ(prefs_Get_AnnotationsFontName(), "Andale Mono");
    for (const float useless : {0.0F, -1.0F}) {
        prefs_Set_AnnotationsFontSize(useless);
        EXPECT_EQ(prefs_Get_AnnotationsFontSize(), 10.0F);
        EXPECT_EQ(prefs_Store().Float("DefaultAnnotationFontSize"), 10.0);
    }
    prefs_Set_AnnotationsFontSize(12.5F);
    EXPECT_EQ(prefs_Get_AnnotationsFontSize(), 12.5F);
}

TEST_F(PrefsTest, folders_keep_their_bytes_and_default_to_home_unstored)
{
    EXPECT_EQ(prefs_OpenTargetDirectory(), std::getenv("HOME"));
    EXPECT_FALSE(prefs_Store().Has("OpenTargetDirectoryKey"));
    for (const std::string& folder : {std::string("/im\xE9/\x01"), std::string("/J\xC3\xA9")}) {
        prefs_Set_OpenTargetDirectory("/before");
        prefs_Set_OpenTargetDirectory(folder);
        prefs_Synchronize();
        prefs_Store().UseFile(fFolder.Path("preferences.plist"));
        EXPECT_EQ(prefs_OpenTargetDirectory(), folder);
    }
}

TEST_F(PrefsTest, levels_read_as_none_until_stored)
{
    EXPECT_EQ(prefs_SavedAnonymizeLevel(), -1);
    EXPECT_EQ(prefs_SavedDicomDataExportLevel(), -1);
    prefs_Set_SavedAnonymizeLevel(0);
    EXPECT_EQ(prefs_SavedAnonymizeLevel(), 0);
    EXPECT_EQ(prefs_Store().Integer("ZELAnonymizeLevel"), 1);
}

TEST_F(PrefsTest, an_export_leaves_its_settings_to_the_next)
{
    EXPECT_EQ(prefs_GetDefaultImageExportType(), FourCC("JPEG"));
    EXPECT_EQ(prefs_GetDefaultMovieExportType(), FourCC("MooV"));
    prefs_SaveExportPrefs(true, true, FourCC("PNGf"), "frames");
    prefs_SaveExportPrefs(true, false, FourCC("PNGf"), "movie");
    prefs_SaveExportPrefs(true, true, FourCC("TIFF"), "");  // nothing to keep
    prefs_SaveExportPrefs(false, false, 0, "of an unknown exporter");
    prefs_Store().UseFile(fFolder.Path("preferences.plist"));  // was synchronized
    EXPECT_EQ(prefs_GetDefaultImageExportType(), FourCC("PNGf"));
    EXPECT_EQ(prefs_GetDefaultMovieExportType(), FourCC("PNGf"));
    EXPECT_EQ(prefs_Get_ExporterSettings(FourCC("PNGf"), false), "frames");
    EXPECT_EQ(prefs_Get_ExporterSettings(FourCC("PNGf"), true), "movie");
    EXPECT_EQ(prefs_Store().Dictionary("Export_ImageExporterDataKey").keys(), QStringList{"PNGf"});
    EXPECT_FALSE(prefs_DoExportToImages());
    EXPECT_FALSE(prefs_Get_ExportAddsMetadata());
}

TEST_F(PrefsTest, an_update_migrates_once_and_keeps_the_total_of_runs)
{
    const char* splitter = "NSSplitView Subview Frames MeasurementSplitter";
    const struct {
        const char* what;
        int version, exportType, previous, current;
        bool keepsSplitter;
    } rows[] = {
        {"an old version", 40199, 1, 7, 0, false},
        {"one with the new key", 40200, 5, 7, 0, true},
        {"this version", 40311, 5, 3, 4, true},
        {"a later version", 40400, 5, 7, 0, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        prefs_Store().UseFile(fFolder.Path(row.what));
        prefs_Store().Set("ZELPreferencesVersion", row.version);
        prefs_Store().Set("MetadataExportType", 1);
        prefs_Store().Set(splitter, QVariantList{1});
        prefs_Set_SavedDicomDataExportType(5);
        prefs_Set_NumberOfRuns_Previous(3);
        prefs_Set_NumberOfRuns_Current(4);
        InitializeAppDefaults();
        prefs_Store().UseFile(fFolder.Path(row.what));  // was synchronized
        EXPECT_EQ(prefs_SavedDicomDataExportType(), row.exportType);
        EXPECT_EQ(prefs_NumberOfRuns_Previous(), row.previous);
        EXPECT_EQ(prefs_NumberOfRuns_Current(), row.current);
        EXPECT_EQ(prefs_NumberOfRuns_Total(), 7);
        EXPECT_EQ(prefs_Store().Has(splitter), row.keepsSplitter);
        EXPECT_EQ(prefs_Store().Integer("ZELPreferencesVersion"), 40311);
        EXPECT_TRUE(prefs_Store().Has("MeasurementFillColor"));
    }
}

TEST(GetCodecQForScaleMethod, falls_back_to_the_lowest)
{
    EXPECT_EQ(GetCodecQForScaleMethod(1), 16);
    EXPECT_EQ(GetCodecQForScaleMethod(2), 768);
    EXPECT_EQ(GetCodecQForScaleMethod(3), 1023);
    EXPECT_EQ(GetCodecQForScaleMethod(4), 16);
}

}  // namespace

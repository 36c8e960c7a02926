// What may be entered in the preferences, what is stored of it, and who is told.
#include "app_prefs/AnnotationFont.h"
#include "app_prefs/ColorSettings.h"
#include "app_prefs/FlagSettings.h"
#include "app_prefs/PrefsFixture.h"
#include "app_prefs/PrefsWords.h"
#include "app_prefs/SpeedField.h"
#include "prefs/Prefs.h"

#include <gtest/gtest.h>
#include <set>

namespace {

TEST(SpeedField, corrects_what_is_no_speed)
{
    const struct {
        const char* what;
        int stored;
        const char *typed, *shown;
        int now;
        bool told;
    } rows[] = {
        {"below the range", 20, "3", "4", 4, true},
        {"above the range", 20, "61", "60", 60, true},
        {"in the range", 20, "25", "25", 25, true},
        {"its ends", 20, "60", "60", 60, true},
        {"not only digits", 20, "4x", "20", 20, false},
        {"a sign", 20, "-5", "20", 20, false},
        {"a fraction", 20, "12.5", "20", 20, false},
        {"digits of another script", 20, "\u0663\u0660", "20", 20, false},
        {"nothing", 20, "", "15", 15, true},
        {"blanks", 20, " 25 ", "20", 20, false},
        {"nothing, as it was", 15, "", "15", 15, false},
        {"the same", 20, "20", "20", 20, false},
        {"more digits than a number has", 20, "99999999999999999999", "60", 60, true},
        {"zeros", 20, "00000000000000000007", "7", 7, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const OwnPrefs own;
        prefs_Set_CineDefaultSpeed(row.stored);
        Notes notes("Pref_FPSEnforceSpeedChanged");
        SpeedField field;
        field.beginEditing(SpeedField::text());
        EXPECT_EQ(field.endEditing(QString::fromUtf8(row.typed)), QString::fromUtf8(row.shown));
        EXPECT_EQ(prefs_CineDefaultSpeed(), row.now);
        EXPECT_EQ(notes.count(), row.told ? 1 : 0);
    }
}

// Each color goes to its own key, and tells those that show it with the color under its own name.
TEST(ChangeColor, stores_and_tells_once)
{
    const struct {
        std::span<const ColorSetting> group;
        std::size_t index;
        const char *key, *note, *noteKey;
    } rows[] = {
        {TextAndGridColors(), 0, "DefaultAnnotationColor", "Pref_AnnotationColorChanged",
         "NewAnnotationColor"},
        {TextAndGridColors(), 1, "ActiveGrid_SelectionColor", "Pref_ActiveCellColorChanged",
         "NewActiveCellColor"},
        {MeasurementColors(), 0, "MeasurementStrokeColor", "", ""},
        {MeasurementColors(), 1, "MeasurementFillColor", "", ""},
        {DicomColors(), 0, "DefaultOverlayColor", "Pref_OverlayColorChanged", ""},
        {DicomColors(), 1, "USRegionsColor", "USRegionsColorChange", ""},
        {DicomColors(), 2, "LocalizerLinesColor", "Pref_LocalizerColorChanged",
         "NewLocalizerColor"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.key);
        const OwnPrefs own;
        const ColorSetting& setting = row.group[row.index];
        const int expected = *row.note ? 1 : 0;
        Notes notes(row.note);
        EXPECT_FALSE(ChangeColor(setting, ColorOf(setting))) << "as it is";
        EXPECT_FALSE(ChangeColor(setting, QColor())) << "the panel was cancelled";
        EXPECT_EQ(notes.count(), 0);
        const QColor wanted(10, 200, 30, 128);
        EXPECT_TRUE(ChangeColor(setting, wanted));
        EXPECT_FALSE(ChangeColor(setting, wanted)) << "again";
        EXPECT_EQ(notes.count(), expected);
        const auto stored = UnarchivedColor(prefs_Store().Data(row.key));
        ASSERT_TRUE(stored);
        EXPECT_NEAR(stored->green, 200 / 255.0, 1e-4);
        EXPECT_NEAR(stored->alpha, setting.hasAlpha ? 128 / 255.0 : 1, 1e-4);
        if (*row.noteKey) {
            const QColor told =
                notes.last().value(QString::fromLatin1(row.noteKey)).value<QColor>();
            EXPECT_EQ(told.rgb(), wanted.rgb());
        }
    }
}

TEST(ChangeFlag, tells_those_that_show_it)
{
    for (const auto group : {OpeningFlags(), DicomFlags(), LocalizerFlags(), CineFlags()}) {
        for (const FlagSetting& flag : group) {
            SCOPED_TRACE(flag.title);
            const OwnPrefs own;
            const bool before = flag.get();
            Notes notes(flag.note);
            ChangeFlag(flag, before);
            EXPECT_EQ(notes.count(), 0);
            ChangeFlag(flag, !before);
            EXPECT_EQ(flag.get(), !before);
            EXPECT_EQ(notes.count(), flag.note.empty() ? 0 : 1);
        }
    }
}

TEST(AnnotationFont, is_stored_in_whole_points_and_told)
{
    const struct {
        double points;
        float stored;
    } rows[] = {{13.9, 13}, {0.4, 1}, {24, 24}};
    for (const auto& row : rows) {
        const OwnPrefs own;
        Notes notes("Pref_AnnotationFontChanged");
        QFont font(QStringLiteral("Some Font"));
        font.setPointSizeF(row.points);
        AnnotationFont::changeFontForInfoText(font);
        EXPECT_EQ(prefs_Get_AnnotationsFontName(), QStringLiteral("Some Font"));
        EXPECT_EQ(prefs_Get_AnnotationsFontSize(), row.stored);
        EXPECT_EQ(notes.count(), 1);
        EXPECT_EQ(notes.last().value(QStringLiteral("NewAnnotationFontSize")).toFloat(),
                  row.stored);
        EXPECT_EQ(notes.last().value(QStringLiteral("NewAnnotationFontName")).toString(),
                  QStringLiteral("Some Font"));
    }
    const OwnPrefs own;
    prefs_Set_AnnotationsFontName(QStringLiteral("a %1 name"));
    prefs_Set_AnnotationsFontSize(10);
    EXPECT_EQ(AnnotationFont::sampleText(), QStringLiteral("10.0 points a %1 name"));
}

// A key that the table of words lacks would come out as itself with its ending.
TEST(PrefsWords, tell_what_each_setting_does)
{
    std::set<QString> titles;
    const auto check = [&titles](const char* title) {
        EXPECT_NE(PrefsTip(title), QString::fromLatin1(title) + QStringLiteral(" tip"));
        EXPECT_TRUE(titles.insert(PrefsWord(title)).second) << title;
    };
    for (const auto group : {OpeningFlags(), DicomFlags(), LocalizerFlags(), CineFlags()})
        for (const FlagSetting& flag : group)
            check(flag.title);
    for (const auto group : {TextAndGridColors(), MeasurementColors(), DicomColors()})
        for (const ColorSetting& color : group)
            check(color.title);
}

}  // namespace

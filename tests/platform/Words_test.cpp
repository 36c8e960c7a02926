// Words by key, and the words of alerts.
#include "platform/Words.h"

#include "platform/AlertWords.h"
#include "platform/LocalDates.h"

#include <QString>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

TEST(ZelWord, answers_from_the_named_table_on_any_thread)
{
    const struct {
        const char *table, *key;
        QString wanted;
    } rows[] = {
        {kWordsMain, "progrOpenOpening", "Opening "},  // the name follows: the blank counts
        {kWordsMain, "varDir is empty.", QStringLiteral("\u201C%1\u201D is empty.")},
        {kWordsMenuItems, "Region # title", "Region %1: %2"},
        {kWordsMeasurements, "kAreaUnits_cm2", QStringLiteral("cm\u00B2")},
        {kWordsErrors, "Clear Menu", "Clear Menu"},  // of another table: the key
        {kWordsMenuItems, "no such key", "no such key"},
        {"NoTable", "kLineUnits_cm", "kLineUnits_cm"},
    };
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i)
        readers.emplace_back([&rows] {
            for (const auto& row : rows)
                EXPECT_EQ(ZelWord(row.table, row.key), row.wanted) << row.key;
        });
    for (std::thread& reader : readers)
        reader.join();
}

TEST(AlertWordsForError, names_the_thing_and_says_what_is_wrong)
{
    const QString name = QStringLiteral("a %1 b");  // must not be taken for a place to fill
    const struct {
        QvxStatus code;
        bool hasMessage, hasInformative;
        std::size_t buttons;
    } rows[] = {
        {kZelNoPatientInFile, true, false, 1},
        {kZelNoPatientInFolder, true, false, 1},
        {kZelNoPatientInDirectory, true, true, 1},
        {kZelRecentFailed, true, true, 1},
        {kQvxNotOfKind, true, true, 1},
        {kZelConfirmPresetReset, false, true, 2},
        {13, false, false, 1},
        {kQvxMalformed, false, false, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.code);
        const ZELAlertWords words = AlertWordsForError(row.code, name);
        EXPECT_EQ(words.message.contains(name), row.hasMessage);
        EXPECT_EQ(!words.informative.isEmpty(), row.hasInformative);
        // A key without a text would come out as one word.
        EXPECT_EQ(words.informative.contains(' '), row.hasInformative);
        EXPECT_EQ(words.buttons.size(), row.buttons);
    }
    const ZELAlertWords question = AlertWordsForError(kZelConfirmPresetReset, name);
    EXPECT_EQ(question.buttons, (std::vector<QString>{"Reset", "Cancel"}));
    EXPECT_TRUE(question.message.contains(' '));
}

TEST(ShortLocalDate, is_empty_for_a_day_that_never_was)
{
    EXPECT_TRUE(ShortLocalDate(2024, 2, 29).contains("29"));
    EXPECT_TRUE(ShortLocalDate(2023, 2, 29).isEmpty());
    EXPECT_TRUE(ShortLocalDate(0, 0, 0).isEmpty());
}

}  // namespace

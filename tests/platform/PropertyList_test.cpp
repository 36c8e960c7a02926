// Property lists as users, other programs and bad disks leave them.
#include "platform/PropertyList.h"

#include "fixtures/TempFolder.h"

#include <QDateTime>
#include <cmath>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QVariantMap Everything()
{
    return {{"bool", true},
            {"integer", qlonglong{-9223372036854775807LL}},
            {"real", 0.1},
            {"string", QStringLiteral(" <&>\"' \n\tJ\u00E9r\u00F4me \U0001F600 ")},
            {"empty", QString()},
            {"data", QByteArray("\0\xFF\x01", 3)},
            {"date", QDateTime({2024, 2, 29}, {23, 59, 58}, Qt::UTC)},
            {"array", QVariantList{false, QVariantList{}, QVariantMap{{"k", 2LL}}}}};
}

TEST(PropertyList, keeps_every_kind_of_value)
{
    QByteArray bytes;
    ASSERT_EQ(WritePropertyList(Everything(), &bytes), kQvxOK);
    const PropertyListReading reading = ReadPropertyList(bytes);
    EXPECT_TRUE(reading.IsSound()) << reading.fFault;
    EXPECT_EQ(reading.fRoot.toMap(), Everything());
}

TEST(PropertyList, writes_no_file_that_it_could_not_read)
{
    QString bad = QStringLiteral("a\u0001b\rc\uFFFEd");
    bad.append(QChar(0xD800));
    QByteArray bytes;
    ASSERT_EQ(WritePropertyList(bad, &bytes), kQvxOK);
    const PropertyListReading reading = ReadPropertyList(bytes);
    EXPECT_TRUE(reading.IsSound()) << reading.fFault;
    EXPECT_EQ(reading.fRoot.toString(), QStringLiteral("a\uFFFDb\uFFFDc\uFFFDd\uFFFD"));

    QVariant deep = 1;
    for (int i = 0; i < kPropertyListMaxDepth; ++i)
        deep = QVariantList{deep};
    ASSERT_EQ(WritePropertyList(deep, &bytes), kQvxOK);
    EXPECT_TRUE(ReadPropertyList(bytes).IsSound());
    for (const QVariant& refused : {QVariant(QVariantList{deep}), QVariant(std::nan("")),
                                    QVariant(), QVariant(QVariantList{QVariant()})})
        EXPECT_EQ(WritePropertyList(refused, &bytes), kQvxBadArgument);
}

std::string Repeated(const std::string& text, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST(PropertyList, reports_a_fault_and_gives_what_can_be_read)
{
    const std::string one = "<plist><dict><key>A</key><integer>1</integer>";
    const std::string two = "<key>B</key><integer>2</integer></dict></plist>";
    const QVariantMap a{{"A", 1LL}}, ab{{"A", 1LL}, {"B", 2LL}};
    const struct {
        const char* fault;
        std::string text;
        QVariantMap wanted;
    } rows[] = {
        {"empty", "", {}},
        {"cut in a key", one + "<key>B", a},
        {"cut in a value", one + "<key>B</key><integer>2", a},
        {"cut in a list inside",
         one + "<key>B</key><array><true/>",
         {{"A", 1LL}, {"B", QVariantList{true}}}},
        {"out of range", one + "<key>X</key><integer>99999999999999999999999</integer>" + two, ab},
        {"no number", one + "<key>X</key><real>nan</real><key>Y</key><real>1e999</real>" + two, ab},
        {"broken base 64", one + "<key>X</key><data>@@@@</data>" + two, ab},
        {"impossible date", one + "<key>X</key><date>2023-02-30T00:00:00Z</date>" + two, ab},
        {"unknown kind", one + "<key>X</key><set><string>s</string></set>" + two, ab},
        {"key without a value", one + "<key>X</key>" + two, ab},
        {"value without a key", one + "<integer>9</integer>" + two, ab},
        {"stray text", one + "stray" + two, ab},
        {"not UTF-8",
         one + "<key>B</key><string>\xE9?</string></dict></plist>",
         {{"A", 1LL}, {"B", QStringLiteral("\uFFFD?")}}},
        {"an entity of its own",
         "<!DOCTYPE p [<!ENTITY x \"1\">]><plist><dict><key>A</key><string>&x;</string></dict>"
         "</plist>",
         {}},
        {"binary form", "bplist00\xD1\x01\x02", {}},
        {"another document", "<html><dict/></html>", {}},
        {"too deep", one + "<key>B</key>" + Repeated("<array>", 100000), a},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const PropertyListReading reading = ReadPropertyList(QByteArray::fromStdString(row.text));
        EXPECT_EQ(reading.fStatus, kQvxMalformed);
        EXPECT_FALSE(reading.fFault.empty());
        QVariantMap found = reading.fRoot.toMap();
        if (std::string_view(row.fault) == "too deep")
            found.remove("B");  // the levels that were read
        EXPECT_EQ(found, row.wanted);
    }
}

TEST(PropertyListFile, reads_regular_files_of_a_sensible_size)
{
    const TempFolder folder;
    const std::string pipe = folder.Path("pipe"), huge = folder.WriteFile("huge", "<plist>");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    ASSERT_EQ(truncate(huge.c_str(), kPropertyListMaxBytes + 1), 0);
    EXPECT_EQ(ReadPropertyListFile(folder.Path("none")).fStatus, kQvxFileNotFound);
    EXPECT_EQ(ReadPropertyListFile(pipe).fStatus, kQvxMalformed);
    EXPECT_EQ(ReadPropertyListFile(huge).fStatus, kQvxMalformed);
    EXPECT_EQ(
        ReadPropertyListFile(folder.WriteFile("sound", "<plist><true/></plist>")).fRoot.toBool(),
        true);
}

}  // namespace

// What a report says, in which order, and what of it is marked.
#include "app/recovery/ReportText.h"

#include <gtest/gtest.h>

namespace {

ReportParts Parts()
{
    ReportParts parts;
    parts.userText = QStringLiteral("I paged.");
    parts.systemVersion = QStringLiteral("System 12");
    parts.model = QStringLiteral("Box");
    parts.processors = 2;
    parts.clock_GHz = 3.5;
    parts.userName = QStringLiteral("wolf");
    parts.userID = 77;
    parts.application = QStringLiteral("/opt/zelora/bin/zelora-viewer");
    parts.volumes = {QStringLiteral("file:///"), QStringLiteral("file:///media/DOE JANE")};
    parts.preferences = {
        {QStringLiteral("OpenTargetDirectoryKey"), QStringLiteral("/srv/Smith & Co/ct")},
        {QStringLiteral("ToolScope"), 1}};
    return parts;
}

TEST(ReportText, stands_in_the_order_of_its_steps)
{
    ReportParts parts = Parts();
    const QString rule(100, u'-');
    const QString attached = TextBesideArchive(ReportPieces(parts));
    EXPECT_TRUE(attached.startsWith(QStringLiteral("I paged.\n\n") + rule));
    EXPECT_TRUE(
        attached.contains(QStringLiteral("System version: System 12\n\nModel: Box\nCPU "
                                         "Speed: 2 x 3.50 GHz\n\nUser: wolf  SessionID: "
                                         "77\n\n")));
    EXPECT_TRUE(attached.contains(
        QStringLiteral("Mounted volumes:\n\n1: file:///\n2: file:///media/DOE JANE\n\n")));
    EXPECT_TRUE(attached.contains(QStringLiteral("Program Preferences:\n")));
    EXPECT_TRUE(WholeText(ReportPieces(parts))
                    .startsWith(QStringLiteral("I paged.\n%1\n\nNo Crash logs found.\n%1\n\nNo "
                                               ".hang logs found.\n%1\n\n\n%1")
                                    .arg(rule)));
    parts.crashLogs = {{QStringLiteral("a.crash"), QStringLiteral("one\n")},
                       {QStringLiteral("b.crash"), QStringLiteral("two\n")}};
    parts.processors = 1;
    const QString whole = WholeText(ReportPieces(parts));
    EXPECT_TRUE(whole.contains(QStringLiteral("one\n%1\n\ntwo\n%1").arg(rule)));
    EXPECT_TRUE(whole.contains(QStringLiteral("CPU Speed: 3.50 GHz")));
    EXPECT_FALSE(TextBesideArchive(ReportPieces(parts)).contains(QStringLiteral("one")));
}

TEST(ReportText, marks_what_may_point_to_someone)
{
    ReportParts parts = Parts();
    parts.crashLogs = {
        {{},
         QStringLiteral("7f00-7f01 r-xp /home/wolf/DOE/a (1)'s lib.so\n/usr/lib/libQt6.so\n"
                        "/srv/x/zelora-viewer(_ZN4Some+0x12) [0x7f]\n")}};
    parts.systemLog = QStringLiteral(
        "Nov 24 01:02:03 desk zelora-viewer[77]: “DOE JANE” cannot be "
        "opened.\n-- No entries --\n");
    const QByteArray bytes(
        "/srv/\xff"
        "DOE");
    parts.preferences[QStringLiteral("ZELRecentDocuments")] =
        QVariantList{QVariantMap{{QStringLiteral("path"), bytes}}};
    const QString text = WholeText(ReportPieces(parts));
    const std::vector<TextRange> ranges = RevealingRanges(text, parts);
    QStringList marked;
    for (const TextRange& range : ranges)
        marked += text.mid(range.start, range.length);
    for (const char* word : {"file:///media/DOE JANE", "wolf", "/opt/zelora/bin/zelora-viewer",
                             "/srv/Smith &amp; Co/ct", "/home/wolf/DOE/a (1)'s lib.so",
                             "“DOE JANE” cannot be opened."}) {
        EXPECT_TRUE(marked.filter(QString::fromUtf8(word)).size() >= 1)
            << word << " in " << marked.join(u'|').toStdString();
    }
    EXPECT_FALSE(marked.contains(QStringLiteral("Box")));
    EXPECT_TRUE(marked.filter(QStringLiteral("libQt6")).isEmpty());
    const QString struck = Struck(text, ranges);
    for (const char* gone : {"wolf", "DOE", "Smith", bytes.toBase64().constData()})
        EXPECT_FALSE(struck.contains(QLatin1String(gone))) << gone;
    for (const char* kept : {"Nov 24", "(_ZN4Some+0x12)", "-- No entries --"})
        EXPECT_TRUE(struck.contains(QLatin1String(kept))) << kept;
}

// What is struck once is gone wherever it stands, and the pieces still know where they begin.
TEST(ReportText, strikes_words_everywhere_and_nothing_else)
{
    ReportParts parts = Parts();
    parts.crashLogs = {{QStringLiteral("a.crash"), QStringLiteral("at DOE JANE\r\nframe 7\n")}};
    parts.systemLog = QStringLiteral("JANE\nDOE JANE came\n");
    const std::vector<ReportPiece> pieces = ReportPieces(parts);
    const QString whole = WholeText(pieces);
    EXPECT_FALSE(whole.contains(u'\r'));
    const int at = static_cast<int>(whole.indexOf(QStringLiteral("DOE JANE\nframe 7")));
    const auto left = PiecesOf(Struck(whole, {{at, 16}}), pieces);
    ASSERT_EQ(left.size(), pieces.size());
    EXPECT_EQ(WholeText(left).size(), whole.size());
    QStringList entries;
    for (const ReportPiece& piece : left) {
        if (!piece.entry.isEmpty())
            entries += piece.entry + u':' + piece.text;
    }
    EXPECT_EQ(entries, (QStringList{QStringLiteral("a.crash:at ********\n*******\n"),
                                    QStringLiteral("system.log:JANE\n******** came\n")}));
    EXPECT_TRUE(TextBesideArchive(left).contains(QStringLiteral("file:///media/********\n")));
    EXPECT_EQ(Struck(QStringLiteral("a-a"), {{0, 1}}), QStringLiteral("*-a"));
}

TEST(ReportText, logs_are_cut_where_a_link_would_grow_too_long)
{
    ReportParts parts = Parts();
    parts.crashLogs = {{QStringLiteral("a.crash"), QStringLiteral("first\n").leftJustified(90'000)},
                       {QStringLiteral("b.crash"), QStringLiteral("other\n")}};
    const auto size = [](const QString& text) { return text.size(); };
    const auto pieces = ReportPieces(parts);
    EXPECT_EQ(TextWithin(pieces, 200'000, size), WholeText(pieces));
    const QString cut = TextWithin(pieces, 20'000, size);
    EXPECT_LE(cut.size(), 20'000);
    for (const char* kept : {"I paged.", "first\n", "[...]", "other\n", "Program Preferences"})
        EXPECT_TRUE(cut.contains(QLatin1String(kept))) << kept;
}

}  // namespace

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
    const QString attached = ReportText(parts);
    EXPECT_TRUE(attached.startsWith(QStringLiteral("I paged.\n\n") + rule));
    EXPECT_TRUE(
        attached.contains(QStringLiteral("System version: System 12\n\nModel: Box\nCPU "
                                         "Speed: 2 x 3.50 GHz\n\nUser: wolf  SessionID: "
                                         "77\n\n")));
    EXPECT_TRUE(attached.contains(
        QStringLiteral("Mounted volumes:\n\n1: file:///\n2: file:///media/DOE JANE\n\n")));
    EXPECT_TRUE(attached.contains(QStringLiteral("Program Preferences:\n")));
    parts.logsInText = true;
    EXPECT_TRUE(ReportText(parts).startsWith(
        QStringLiteral(
            "I paged.\n%1\n\nNo Crash logs found.\n%1\n\nNo .hang logs found.\n%1\n\n\n%1")
            .arg(rule)));
    parts.crashLogs = {QStringLiteral("one\n"), QStringLiteral("two\n")};
    parts.processors = 1;
    EXPECT_TRUE(ReportText(parts).contains(QStringLiteral("one\n%1\n\ntwo\n%1").arg(rule)));
    EXPECT_TRUE(ReportText(parts).contains(QStringLiteral("CPU Speed: 3.50 GHz")));
}

TEST(ReportText, marks_what_may_point_to_someone)
{
    ReportParts parts = Parts();
    parts.crashLogs = {
        QStringLiteral("7f00-7f01 r-xp /home/wolf/DOE/lib.so\n/usr/lib/libQt6.so\n")};
    parts.logsInText = true;
    const QString text = ReportText(parts);
    QStringList marked;
    for (const TextRange& range : RevealingRanges(text, parts))
        marked += text.mid(range.start, range.length);
    for (const char* word : {"file:///media/DOE JANE", "wolf", "/home/wolf/DOE/lib.so",
                             "/opt/zelora/bin/zelora-viewer", "/srv/Smith &amp; Co/ct"}) {
        EXPECT_TRUE(marked.filter(QLatin1String(word)).size() >= 1)
            << word << " in " << marked.join(u'|').toStdString();
    }
    EXPECT_FALSE(marked.contains(QStringLiteral("Box")));
    EXPECT_TRUE(marked.filter(QStringLiteral("libQt6")).isEmpty());
    const QString struck = Struck(text, {marked.begin(), marked.end()});
    for (const char* gone : {"wolf", "DOE", "Smith"})
        EXPECT_FALSE(struck.contains(QLatin1String(gone))) << gone;
}

}  // namespace

#include "app/recovery/ReportText.h"

#include "platform/Folders.h"
#include "platform/PropertyList.h"
#include "prefs/Prefs.h"

#include <QRegularExpression>
#include <QStorageInfo>
#include <QSysInfo>
#include <QThread>
#include <QUrl>
#include <algorithm>
#include <fstream>
#include <pwd.h>
#include <set>
#include <span>
#include <unistd.h>

namespace {

const QString kLongRule = QString(100, u'-') + QStringLiteral("\n\n");
const QString kShortRule = QString(50, u'-') + QStringLiteral("\n\n");

void AddLogs(const std::vector<ReportLog>& logs, const char* none, std::vector<ReportPiece>* pieces)
{
    if (logs.empty())
        pieces->push_back({QString::fromLatin1(none), false});
    for (const ReportLog& log : logs) {
        pieces->push_back({log.text, false, log.name});
        if (&log != &logs.back())
            pieces->push_back({kLongRule, false});
    }
    pieces->push_back({kLongRule, false});
}

QString MachineText(const ReportParts& parts)
{
    QString text = kShortRule;
    text += QStringLiteral("System version: %1\n\n").arg(parts.systemVersion);
    const QString count =
        parts.processors != 1 ? QStringLiteral("%1 x ").arg(parts.processors) : QString();
    text += QStringLiteral("Model: %1\nCPU Speed: %2%3 GHz\n\n")
                .arg(parts.model, count, QString::number(parts.clock_GHz, 'f', 2));
    text += QStringLiteral("User: %1  SessionID: %2\n\n")
                .arg(parts.userName, QString::number(parts.userID));
    text += QStringLiteral("Application: %1\n\n").arg(parts.application) + kShortRule;
    text += QStringLiteral("Mounted volumes:\n\n");
    for (std::size_t i = 0; i < parts.volumes.size(); ++i)
        text += QStringLiteral("%1: %2\n").arg(QString::number(i + 1), parts.volumes[i]);
    QByteArray preferences;
    static_cast<void>(WritePropertyList(parts.preferences, &preferences));
    return text + u'\n' + QString(50, u'-') +
           QStringLiteral("\n\nProgram Preferences:\n%1\n\n\n").arg(QString::fromUtf8(preferences));
}

void AddTexts(const QVariant& value, std::vector<QString>* texts)
{
    if (value.typeId() == QMetaType::QVariantList) {
        for (const QVariant& each : value.toList())
            AddTexts(each, texts);
    } else if (value.typeId() == QMetaType::QVariantMap) {
        for (const QVariant& each : value.toMap())
            AddTexts(each, texts);
    } else if (value.typeId() == QMetaType::QString) {
        texts->push_back(value.toString());
    } else if (value.typeId() == QMetaType::QByteArray) {
        texts->push_back(QString::fromUtf8(value.toByteArray()));
        texts->push_back(QString::fromLatin1(value.toByteArray().toBase64()));  // as it is shown
    }
}

// Nobody's name stands in these, and a trace without its libraries tells nothing.
bool IsOfTheSystem(QStringView path)
{
    static constexpr const char* kFolders[] = {"/lib/",  "/lib64/", "/usr/lib/", "/usr/bin/",
                                               "/proc/", "/sys/",   "/dev/"};
    return std::ranges::any_of(
        kFolders, [path](const char* folder) { return path.startsWith(QLatin1String(folder)); });
}

void AddPlacesOf(const QString& word, const QString& text, std::vector<TextRange>* found)
{
    constexpr qsizetype kShortest = 2;
    for (qsizetype at = word.size() < kShortest ? -1 : text.indexOf(word); at >= 0;
         at = text.indexOf(word, at + word.size()))
        found->push_back({static_cast<int>(at), static_cast<int>(word.size())});
}

// Absolute paths, up to the end of their line: blanks and brackets may be part of them. Of a trace
// the place within a program stays, which stands in brackets behind its path.
void AddPaths(const QString& text, std::vector<TextRange>* found)
{
    static const QRegularExpression kPath(
        QStringLiteral("(?<![\\w.<])(file://)?/(?:(?!\\([^()\\s]*\\+0x)[^<>\\n\"])+"));
    static const QRegularExpression kBlank(QStringLiteral("[\\s]"));
    for (qsizetype from = 0;;) {
        const QRegularExpressionMatch match = kPath.match(text, from);
        if (!match.hasMatch())
            return;
        from = match.capturedEnd();
        if (IsOfTheSystem(match.capturedView())) {  // another path may follow it
            const qsizetype blank = match.captured().indexOf(kBlank);
            from = blank < 0 ? from : match.capturedStart() + blank;
        } else {
            found->push_back({static_cast<int>(match.capturedStart()),
                              static_cast<int>(match.capturedLength())});
        }
    }
}

// What the program itself has said in the system's log: names of files stand there bare.
void AddLogMessages(const QString& text, std::vector<TextRange>* found)
{
    static const QRegularExpression kMessage(QStringLiteral("^[^\\n]*\\[\\d+\\]: ([^\\n]+)$"),
                                             QRegularExpression::MultilineOption);
    for (auto each = kMessage.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        found->push_back(
            {static_cast<int>(match.capturedStart(1)), static_cast<int>(match.capturedLength(1))});
    }
}

std::vector<TextRange> Joined(std::vector<TextRange> ranges)
{
    std::ranges::sort(ranges, {}, &TextRange::start);
    std::vector<TextRange> joined;
    for (const TextRange& range : ranges) {
        if (!joined.empty() && range.start <= joined.back().start + joined.back().length) {
            TextRange& last = joined.back();
            last.length = std::max(last.length, range.start + range.length - last.start);
        } else {
            joined.push_back(range);
        }
    }
    return joined;
}

// The clock of the first processor, 0 where the system doesn't tell.
double Clock_GHz()
{
    std::ifstream file("/sys/devices/system/cpu/cpu0/cpufreq/cpuinfo_max_freq");
    double kilohertz = 0;
    file >> kilohertz;
    return kilohertz / 1e6;
}

}  // namespace

QString U_SystemVersionString()
{
    return QStringLiteral("%1 (%2 %3)")
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion());
}

QString UKMachineName()
{
    std::ifstream file("/sys/devices/virtual/dmi/id/product_name");
    std::string name;
    std::getline(file, name);
    return name.empty() ? QSysInfo::currentCpuArchitecture() : QString::fromStdString(name);
}

ReportParts PartsOfThisMachine(const QString& application)
{
    ReportParts parts;
    parts.systemVersion = U_SystemVersionString();
    parts.model = UKMachineName();
    parts.processors = QThread::idealThreadCount();
    parts.clock_GHz = Clock_GHz();
    if (const passwd* user = getpwuid(getuid()))
        parts.userName = QString::fromLocal8Bit(user->pw_name);
    parts.userID = static_cast<int>(getuid());
    parts.application = application;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (volume.isValid() && volume.isReady() && volume.device().startsWith('/'))
            parts.volumes.push_back(QUrl::fromLocalFile(volume.rootPath()).toString());
    }
    parts.preferences = ReadPropertyListFile(prefs_FilePath()).fRoot.toMap();
    return parts;
}

std::vector<ReportPiece> ReportPieces(const ReportParts& parts)
{
    std::vector<ReportPiece> pieces;
    if (!parts.userText.isEmpty()) {
        pieces.push_back({parts.userText + u'\n'});
        pieces.push_back({kLongRule, false});
    }
    AddLogs(parts.crashLogs, "No Crash logs found.\n", &pieces);
    AddLogs(parts.hangLogs, "No .hang logs found.\n", &pieces);
    pieces.push_back({parts.systemLog, false, QStringLiteral("system.log")});
    pieces.push_back({u'\n' + kLongRule});
    pieces.push_back({MachineText(parts)});
    for (ReportPiece& piece : pieces)
        piece.text.remove(u'\r');  // a text window would, and places in the text were others
    return pieces;
}

QString WholeText(const std::vector<ReportPiece>& pieces)
{
    QString text;
    for (const ReportPiece& piece : pieces)
        text += piece.text;
    return text;
}

QString TextBesideArchive(const std::vector<ReportPiece>& pieces)
{
    QString text;
    for (const ReportPiece& piece : pieces)
        text += piece.staysInMail ? piece.text : QString();
    return text;
}

QString TextWithin(std::vector<ReportPiece> pieces, qsizetype most,
                   const std::function<qsizetype(const QString&)>& size)
{
    constexpr qsizetype kMostOfLog = 64 * 1024, kLeastOfLog = 256;
    for (qsizetype kept = kMostOfLog; kept >= kLeastOfLog && size(WholeText(pieces)) > most;
         kept /= 2) {
        for (ReportPiece& piece : pieces) {
            if (!piece.entry.isEmpty() && piece.text.size() > kept)
                piece.text = piece.text.left(kept) + QStringLiteral("\n[...]\n");
        }
    }
    return WholeText(pieces);
}

std::vector<ReportPiece> PiecesOf(const QString& whole, std::vector<ReportPiece> pieces)
{
    for (qsizetype at = 0; ReportPiece & piece : pieces) {
        const qsizetype length = piece.text.size();
        piece.text = whole.mid(at, length);
        at += length;
    }
    return pieces;
}

std::vector<TextRange> RevealingRanges(const QString& text, const ReportParts& parts)
{
    std::vector<QString> words = parts.volumes;
    words.push_back(parts.userName);
    words.push_back(QString::fromStdString(UserHomeFolder()));
    for (const char* key : {"ZELRecentDocuments", "OpenTargetDirectoryKey",
                            "ExportTargetDirectoryKey", "ZELExport_SerializeNamePrefix"})
        AddTexts(parts.preferences.value(QLatin1String(key)), &words);
    std::vector<TextRange> found;
    for (const QString& word : words) {
        AddPlacesOf(word, text, &found);
        if (const QString shown = word.toHtmlEscaped(); shown != word)
            AddPlacesOf(shown, text, &found);  // as the preferences' text has it
    }
    AddPaths(text, &found);
    AddLogMessages(text, &found);
    return Joined(std::move(found));
}

QString Struck(QString text, const std::vector<TextRange>& parts)
{
    constexpr qsizetype kShortest = 2;  // single letters stand everywhere
    const QString before = text;
    std::set<QString> words;
    const auto strike = [&text](qsizetype at, qsizetype length) {
        for (QChar& each : std::span(text.data() + at, static_cast<std::size_t>(length)))
            each = each == u'\n' ? each : QChar(u'*');
    };
    for (const TextRange& part : parts) {
        strike(part.start, part.length);
        // Lines each by themselves: they may stand apart elsewhere.
        for (const QString& line : before.mid(part.start, part.length).split(u'\n')) {
            const QString word = line.trimmed();
            const auto isMark = [](QChar each) { return !each.isLetterOrNumber(); };
            if (word.size() >= kShortest && !std::ranges::all_of(word, isMark))
                words.insert(word);
        }
    }
    for (const QString& word : words) {
        for (qsizetype at = before.indexOf(word); at >= 0; at = before.indexOf(word, at + 1))
            strike(at, word.size());
    }
    return text;
}

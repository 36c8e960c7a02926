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
#include <unistd.h>

namespace {

const QString kLongRule = QString(100, u'-') + QStringLiteral("\n\n");
const QString kShortRule = QString(50, u'-') + QStringLiteral("\n\n");

QString Joined(const std::vector<QString>& logs, const QString& none)
{
    if (logs.empty())
        return none;
    QString text = logs.front();
    for (std::size_t i = 1; i < logs.size(); ++i)
        text += kLongRule + logs[i];
    return text;
}

QString Logs(const ReportParts& parts)
{
    if (!parts.logsInText)
        return u'\n' + kLongRule;
    return Joined(parts.crashLogs, QStringLiteral("No Crash logs found.\n")) + kLongRule +
           Joined(parts.hangLogs, QStringLiteral("No .hang logs found.\n")) + kLongRule +
           parts.systemLog + u'\n' + kLongRule;
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
    }
}

// Nobody's name stands in these, and a trace without its libraries tells nothing.
bool IsOfTheSystem(QStringView path)
{
    static constexpr const char* kFolders[] = {"/lib",   "/usr/lib", "/usr/bin/",
                                               "/proc/", "/sys/",    "/dev/"};
    return std::ranges::any_of(
        kFolders, [path](const char* folder) { return path.startsWith(QLatin1String(folder)); });
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

QString ReportText(const ReportParts& parts)
{
    QString text;
    if (!parts.userText.isEmpty())
        text += parts.userText + u'\n' + (parts.logsInText ? kLongRule : QString());
    text += Logs(parts) + kShortRule;
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
        const QString shown = word.toHtmlEscaped();  // as the preferences' text has it
        for (const QString& each : {word, shown}) {
            constexpr int kShortest = 2;
            for (qsizetype at = each.size() < kShortest ? -1 : text.indexOf(each); at >= 0;
                 at = text.indexOf(each, at + each.size()))
                found.push_back({static_cast<int>(at), static_cast<int>(each.size())});
        }
    }
    static const QRegularExpression kPath(
        QStringLiteral("(file://)?/[^\\s<>\"'():]+/?[^\\s<>\"'():]*"));
    for (auto each = kPath.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        if (!IsOfTheSystem(match.capturedView()))
            found.push_back({static_cast<int>(match.capturedStart()),
                             static_cast<int>(match.capturedLength())});
    }
    std::ranges::sort(found, {}, &TextRange::start);
    std::vector<TextRange> joined;
    for (const TextRange& range : found) {
        if (!joined.empty() && range.start <= joined.back().start + joined.back().length) {
            TextRange& last = joined.back();
            last.length = std::max(last.length, range.start + range.length - last.start);
        } else {
            joined.push_back(range);
        }
    }
    return joined;
}

QString Struck(QString text, const std::vector<QString>& words)
{
    std::vector<QString> longest = words;
    std::ranges::sort(longest, std::greater<>(), &QString::size);
    for (const QString& word : longest) {
        if (!word.isEmpty())
            text.replace(word, QString(QStringLiteral("[…]")));
    }
    return text;
}

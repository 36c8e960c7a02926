#include "app/recovery/CrashReports.h"

#include "util/Log.h"

#include <QProcess>
#include <QString>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostText = 256 * 1024;
constexpr int kPatience_ms = 2000;

std::string AsText(const std::string& bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()))
        .replace(QChar::ReplacementCharacter, u'?')
        .remove(QChar(0))
        .toStdString();
}

}  // namespace

std::vector<std::string> U_CollectCrashReportPaths(const std::string& programName,
                                                   const std::string& folder,
                                                   std::string_view suffix)
{
    std::vector<std::string> paths;
    std::error_code failed;
    for (fs::recursive_directory_iterator each(folder, failed), end; !failed && each != end;
         each.increment(failed)) {
        const std::string relative = each->path().lexically_relative(folder).native();
        std::error_code unknown;
        if (relative.starts_with(programName + '_') && relative.ends_with(suffix) &&
            each->is_regular_file(unknown) && !each->is_symlink(unknown))
            paths.push_back(each->path().native());
    }
    std::ranges::sort(paths);
    return paths;
}

bool U_CrashReportExists(const std::string& programName, const std::string& folder)
{
    return !U_CollectCrashReportPaths(programName, folder, kCrashSuffix).empty();
}

std::string U_GetUniqueFileName(const std::string& folder, const std::string& name)
{
    const fs::path wanted = fs::path(folder) / name;
    fs::path free = wanted;
    std::error_code failed;
    for (int i = 1; fs::exists(free, failed); ++i)
        free = wanted.parent_path() /
               (wanted.stem().native() + '_' + std::to_string(i) + wanted.extension().native());
    return free.native();
}

void clearOlderCrashLogs(const std::string& programName, const std::string& folder, int kept)
{
    for (const std::string_view suffix : {kCrashSuffix, kHangSuffix}) {
        auto paths = U_CollectCrashReportPaths(programName, folder, suffix);
        paths.resize(paths.size() - std::min(paths.size(), static_cast<std::size_t>(kept)));
        for (const std::string& path : paths) {
            std::error_code ignored;
            fs::remove(path, ignored);
        }
    }
}

std::string ReportFileText(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string bytes(kMostText, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    return AsText(bytes);
}

std::string SystemLogText(const std::string& programName)
{
    QProcess journal;
    journal.start(QStringLiteral("journalctl"),
                  {QStringLiteral("--no-pager"), QStringLiteral("--lines=500"),
                   QStringLiteral("_COMM=%1").arg(QString::fromStdString(programName)),
                   QStringLiteral("_UID=%1").arg(getuid())});
    if (!journal.waitForFinished(kPatience_ms)) {
        journal.kill();
        journal.waitForFinished(kPatience_ms);
        return {};
    }
    if (journal.exitCode() != 0)
        return {};
    std::string lines = journal.readAllStandardOutput().toStdString();
    if (lines.size() > kMostText)
        lines.erase(0, lines.size() - kMostText);
    return AsText(lines);
}

std::string zipCrashLogs(const std::string& folder, const std::vector<ZipEntry>& entries)
{
    if (folder.empty())
        return {};
    const std::string path = U_GetUniqueFileName(folder, "CrashLogs.zip");
    if (const QvxStatus status = WriteZipArchive(path, entries)) {
        LogLine("ZipException caught: " + std::to_string(status) +
                " - Error in creating logs zip file");
        return {};
    }
    return path;
}

#include "platform/FileManager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <filesystem>
#include <set>

namespace {

constexpr int kPatience_ms = 5000;

// Whatever bytes a name has.
QString UrlOf(const std::string& path)
{
    return QStringLiteral("file://") +
           QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/"));
}

void OpenFolders(const std::vector<std::string>& paths,
                 const std::function<void(const std::string&)>& openFolder)
{
    std::set<std::string> folders;
    for (const std::string& path : paths)
        folders.insert(std::filesystem::path(path).parent_path().native());
    for (const std::string& folder : folders)
        openFolder(folder);
}

}  // namespace

void RevealInFileManager(const std::vector<std::string>& paths,
                         std::function<void(const std::string& folder)> openFolder,
                         const std::string& busAddress)
{
    const QString address = QString::fromStdString(busAddress);
    const QDBusConnection bus = busAddress.empty()
                                    ? QDBusConnection::sessionBus()
                                    : QDBusConnection::connectToBus(address, address);
    if (!bus.isConnected())
        return OpenFolders(paths, openFolder);
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    QStringList urls;
    for (const std::string& path : paths)
        urls += UrlOf(path);
    call << urls << QString();
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call, kPatience_ms));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer,
                     [answer, paths, openFolder = std::move(openFolder)] {
                         if (answer->isError())
                             OpenFolders(paths, openFolder);
                         answer->deleteLater();
                     });
}

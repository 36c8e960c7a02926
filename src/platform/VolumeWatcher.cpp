#include "platform/VolumeWatcher.h"

#include "platform/Volumes.h"

#include <QByteArray>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariantMap>
#include <algorithm>
#include <unordered_set>

MountPointLedger::MountPointLedger(std::vector<std::string> mountedAtStart)
    : fKnown(std::move(mountedAtStart))
{
}

std::vector<std::string> MountPointLedger::NewOnes(const std::vector<std::string>& reported,
                                                   const std::vector<std::string>& mountedNow)
{
    std::unordered_set<std::string> present(mountedNow.begin(), mountedNow.end());
    present.insert(reported.begin(), reported.end());
    std::erase_if(fKnown, [&](const std::string& point) { return !present.contains(point); });
    std::vector<std::string> found;
    for (const std::string& point : reported) {
        if (std::ranges::find(fKnown, point) != fKnown.end())
            continue;
        fKnown.push_back(point);
        found.push_back(point);
    }
    return found;
}

namespace {

const QString kService = QStringLiteral("org.freedesktop.UDisks2");
const QString kManagerPath = QStringLiteral("/org/freedesktop/UDisks2");
const QString kFilesystem = QStringLiteral("org.freedesktop.UDisks2.Filesystem");
const QString kMountPoints = QStringLiteral("MountPoints");

using InterfaceMap = QMap<QString, QVariantMap>;

std::vector<std::string> SystemMountPoints()
{
    std::vector<std::string> points;
    for (const VolumeFacts& volume : VolumesOfMountInfo(ReadMountInfo(), {}))
        points.push_back(volume.fMountPoint);
    return points;
}

// An array of byte strings, each with a NUL at its end.
std::vector<std::string> MountPointsOf(const QVariantMap& filesystem)
{
    std::vector<std::string> points;
    const QVariant value = filesystem.value(kMountPoints);
    if (!value.canConvert<QDBusArgument>())
        return points;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("aay"))
        return points;
    for (const QByteArray& bytes : qdbus_cast<QList<QByteArray>>(argument))
        if (const QByteArray path = bytes.left(bytes.indexOf('\0')); !path.isEmpty())
            points.push_back(path.toStdString());
    return points;
}

// Takes the signals of the disk service.
class DiskSignals final : public QObject {
    Q_OBJECT
public:
    DiskSignals(VolumeMounted callback, const QDBusConnection& bus)
        : fBus(bus), fCallback(std::move(callback)), fLedger(SystemMountPoints())
    {
        const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
        const QString manager = QStringLiteral("org.freedesktop.DBus.ObjectManager");
        fIsConnected =
            fBus.connect(kService, kManagerPath, manager, QStringLiteral("InterfacesAdded"), this,
                         SLOT(InterfacesAdded(QDBusMessage))) &&
            fBus.connect(kService, QString(), properties, QStringLiteral("PropertiesChanged"), this,
                         SLOT(PropertiesChanged(QDBusMessage)));
    }
    [[nodiscard]] bool IsConnected() const { return fIsConnected; }

public slots:
    void InterfacesAdded(const QDBusMessage& message)
    {
        if (message.signature() != QLatin1String("oa{sa{sv}}"))
            return;
        const auto interfaces = qdbus_cast<InterfaceMap>(message.arguments().at(1));
        Report(MountPointsOf(interfaces.value(kFilesystem)));
    }
    void PropertiesChanged(const QDBusMessage& message)
    {
        if (message.signature() != QLatin1String("sa{sv}as") ||
            message.arguments().at(0).toString() != kFilesystem)
            return;
        const auto changed = qdbus_cast<QVariantMap>(message.arguments().at(1));
        if (changed.contains(kMountPoints))
            Report(MountPointsOf(changed));
    }

private:
    void Report(const std::vector<std::string>& points)
    {
        for (const std::string& point : fLedger.NewOnes(points, SystemMountPoints()))
            fCallback(point);
    }
    QDBusConnection fBus;
    VolumeMounted fCallback;
    MountPointLedger fLedger;
    bool fIsConnected = false;
};

class BusVolumeWatcher final : public VolumeWatcher {
public:
    BusVolumeWatcher(VolumeMounted callback, const QDBusConnection& bus)
        : fSignals(std::make_unique<DiskSignals>(std::move(callback), bus))
    {
    }
    [[nodiscard]] bool IsWatching() const override { return fSignals->IsConnected(); }

private:
    std::unique_ptr<DiskSignals> fSignals;
};

class NoVolumeWatcher final : public VolumeWatcher {
public:
    [[nodiscard]] bool IsWatching() const override { return false; }
};

}  // namespace

std::unique_ptr<VolumeWatcher> NewVolumeWatcher(VolumeMounted callback,
                                                const std::string& busAddress)
{
    // A name for each address: connections are shared by name.
    const QString address = QString::fromStdString(busAddress);
    const QDBusConnection bus = busAddress.empty()
                                    ? QDBusConnection::systemBus()
                                    : QDBusConnection::connectToBus(address, address);
    if (!bus.isConnected())
        return std::make_unique<NoVolumeWatcher>();
    return std::make_unique<BusVolumeWatcher>(std::move(callback), bus);
}

#include "VolumeWatcher.moc"

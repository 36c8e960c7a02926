// Mount events of a disk service on a bus of the test's own.
#include "platform/VolumeWatcher.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace {

using Points = std::vector<std::string>;
using InterfaceMap = QMap<QString, QVariantMap>;

TEST(MountPointLedger, tells_each_mount_once_until_it_has_gone)
{
    MountPointLedger ledger({"/", "/old"});
    EXPECT_EQ(ledger.NewOnes({"/old"}, {"/", "/old"}), Points{});  // was there before
    EXPECT_EQ(ledger.NewOnes({"/disc"}, {"/", "/old", "/disc"}), Points{"/disc"});
    EXPECT_EQ(ledger.NewOnes({"/disc"}, {"/", "/old", "/disc"}), Points{});  // said twice
    EXPECT_EQ(ledger.NewOnes({}, {"/"}), Points{});                          // both have gone
    EXPECT_EQ(ledger.NewOnes({"/disc", "/old"}, {"/"}), (Points{"/disc", "/old"}));
}

// The bus library's own threads look like races to the thread sanitizer, which can't see into it.
#ifdef __SANITIZE_THREAD__
constexpr bool kBusCanBeTested = false;
#else
constexpr bool kBusCanBeTested = true;
#endif

TEST(VolumeWatcher, copes_without_a_bus)
{
    if (!kBusCanBeTested)
        GTEST_SKIP() << "a thread sanitizer";
    const auto watcher = NewVolumeWatcher([](const std::string&) {}, "unix:path=/no/such/bus");
    EXPECT_FALSE(watcher->IsWatching());
}

// A bus daemon with a connection that plays the disk service.
class DiskServiceTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!kBusCanBeTested || QStandardPaths::findExecutable("dbus-daemon").isEmpty())
            GTEST_SKIP() << "no dbus-daemon, or a thread sanitizer";
        fDaemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        ASSERT_TRUE(fDaemon.waitForStarted() && fDaemon.waitForReadyRead());
        fAddress = QString::fromUtf8(fDaemon.readLine()).trimmed();
        qDBusRegisterMetaType<InterfaceMap>();
        qDBusRegisterMetaType<QList<QByteArray>>();
        fService =
            std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(fAddress, "service"));
        ASSERT_TRUE(fService->registerService("org.freedesktop.UDisks2"));
    }
    void TearDown() override
    {
        if (!fService)
            return;
        fService.reset();
        QDBusConnection::disconnectFromBus("service");
        fDaemon.kill();
        fDaemon.waitForFinished();
    }
    static QVariantMap Filesystem(const QList<QByteArray>& points)
    {
        return {{"MountPoints", QVariant::fromValue(points)}};
    }
    void SendAdded(const InterfaceMap& interfaces)
    {
        QDBusMessage message = QDBusMessage::createSignal(
            "/org/freedesktop/UDisks2", "org.freedesktop.DBus.ObjectManager", "InterfacesAdded");
        message << QVariant::fromValue(QDBusObjectPath("/org/freedesktop/UDisks2/block/sr0"))
                << QVariant::fromValue(interfaces);
        fService->send(message);
    }
    void SendChanged(const QString& interface, const QVariantMap& changed)
    {
        QDBusMessage message =
            QDBusMessage::createSignal("/org/freedesktop/UDisks2/block/sr0",
                                       "org.freedesktop.DBus.Properties", "PropertiesChanged");
        message << interface << changed << QStringList();
        fService->send(message);
    }
    // Serves events until `wanted` calls have come.
    void WaitFor(std::size_t wanted)
    {
        QElapsedTimer timer;
        timer.start();
        while (fSeen.size() < wanted && timer.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    int fCount = 1;
    char fName[5] = "test";
    char* fArguments[2] = {fName, nullptr};
    QCoreApplication fApplication{fCount, fArguments};
    QProcess fDaemon;
    QString fAddress;
    std::unique_ptr<QDBusConnection> fService;
    Points fSeen;
};

TEST_F(DiskServiceTest, reports_what_is_mounted_and_nothing_else)
{
    const QString filesystem = "org.freedesktop.UDisks2.Filesystem";
    {
        const auto watcher = NewVolumeWatcher(
            [this](const std::string& point) { fSeen.push_back(point); }, fAddress.toStdString());
        ASSERT_TRUE(watcher->IsWatching());
        SendAdded({{"org.freedesktop.UDisks2.Drive", {{"Ejectable", true}}}});
        SendAdded({{filesystem, Filesystem({})}});  // put in, not mounted yet
        SendAdded({{filesystem, {{"MountPoints", "no list of byte strings"}}}});
        SendChanged("org.freedesktop.UDisks2.Block", Filesystem({"/zelora test/wrong"}));
        SendChanged(filesystem, Filesystem({QByteArray("/zelora test/d\xEFsc\0", 18)}));
        SendAdded({{filesystem, Filesystem({QByteArray("/zelora test/second\0", 20)})}});
        WaitFor(2);
        EXPECT_EQ(fSeen, (Points{"/zelora test/d\xEFsc", "/zelora test/second"}));
    }
    SendChanged(filesystem, Filesystem({"/zelora test/after the end"}));
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 100)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_EQ(fSeen.size(), 2U);
}

}  // namespace

// Mount events of a disk service on a bus of the test's own.
#include "platform/VolumeWatcher.h"

#include "platform/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>

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

TEST(VolumeWatcher, copes_without_a_bus)
{
    if (!kBusCanBeTested)
        GTEST_SKIP() << "a thread sanitizer";
    const auto watcher = NewVolumeWatcher([](const std::string&) {}, "unix:path=/no/such/bus");
    EXPECT_FALSE(watcher->IsWatching());
}

// A connection plays the disk service.
class DiskServiceTest : public PrivateBusTest {
protected:
    void SetUp() override
    {
        PrivateBusTest::SetUp();
        if (!fService)
            return;
        qDBusRegisterMetaType<InterfaceMap>();
        qDBusRegisterMetaType<QList<QByteArray>>();
        ASSERT_TRUE(fService->registerService("org.freedesktop.UDisks2"));
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
        WaitFor([this] { return fSeen.size() >= 2; });
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

// A message bus of the test's own, with a connection for whoever plays a service on it.
#pragma once
#include <QCoreApplication>
#include <QDBusConnection>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

// The bus library's own threads look like races to the thread sanitizer, which can't see into it.
#ifdef __SANITIZE_THREAD__
inline constexpr bool kBusCanBeTested = false;
#else
inline constexpr bool kBusCanBeTested = true;
#endif

class PrivateBusTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!kBusCanBeTested || QStandardPaths::findExecutable("dbus-daemon").isEmpty())
            GTEST_SKIP() << "no dbus-daemon, or a thread sanitizer";
        fDaemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        ASSERT_TRUE(fDaemon.waitForStarted() && fDaemon.waitForReadyRead());
        fAddress = QString::fromUtf8(fDaemon.readLine()).trimmed();
        fService =
            std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(fAddress, "service"));
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
    // Serves events until that is so.
    static void WaitFor(const std::function<bool()>& done)
    {
        QElapsedTimer timer;
        timer.start();
        while (!done() && timer.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    int fCount = 1;
    char fName[5] = "test";
    char* fArguments[2] = {fName, nullptr};
    QCoreApplication fApplication{fCount, fArguments};
    QProcess fDaemon;
    QString fAddress;
    std::unique_ptr<QDBusConnection> fService;
};

// Files shown in a file manager that a connection on the test's own bus plays.
#include "platform/FileManager.h"

#include "platform/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace {

using Paths = std::vector<std::string>;

class Manager final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override
    {
        shown = message.arguments().value(0).toStringList();
        bus.send(knows ? message.createReply()
                       : message.createErrorReply(QDBusError::Failed, QStringLiteral("no")));
        return true;
    }
    bool knows = true;
    QStringList shown;
};

class FileManager : public PrivateBusTest {
protected:
    Paths Opened(const Paths& paths, std::size_t folders)
    {
        Paths opened;
        RevealInFileManager(
            paths, [&](const std::string& folder) { opened.push_back(folder); },
            fAddress.toStdString());
        WaitFor([&] { return folders > 0 ? opened.size() >= folders : !manager.shown.isEmpty(); });
        return opened;
    }
    Manager manager;
};

TEST_F(FileManager, shows_all_files_in_one_go)
{
    ASSERT_TRUE(fService->registerVirtualObject("/org/freedesktop/FileManager1", &manager));
    ASSERT_TRUE(fService->registerService("org.freedesktop.FileManager1"));
    EXPECT_EQ(Opened({"/a b/1", "/a b/\xFF#?"}, 0), Paths{});
    EXPECT_EQ(manager.shown, (QStringList{QStringLiteral("file:///a%20b/1"),
                                          QStringLiteral("file:///a%20b/%FF%23%3F")}));
    manager.knows = false;
    EXPECT_EQ(Opened({"/a/1", "/b/2", "/a/3"}, 2), (Paths{"/a", "/b"}));
}

TEST_F(FileManager, opens_folders_where_there_is_none)
{
    EXPECT_EQ(Opened({"/a/1", "/a/3"}, 1), Paths{"/a"});
    Paths opened;
    RevealInFileManager(
        {"/c/1"}, [&](const std::string& folder) { opened.push_back(folder); },
        "unix:path=/no/such/bus");
    EXPECT_EQ(opened, Paths{"/c"});
}

}  // namespace

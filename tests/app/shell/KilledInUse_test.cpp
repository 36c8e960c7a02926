// The program in a window that keys and mouse reach, killed in the midst of its use.
#include "app/shell/Desk.h"

#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <functional>

namespace {

// A display that nobody sees, with a window manager; both end with this.
class Display {
public:
    Display()
    {
        _server.setProgram(QStringLiteral("Xvfb"));
        _server.setArguments({QStringLiteral("-displayfd"), QStringLiteral("1"),
                              QStringLiteral("-screen"), QStringLiteral("0"),
                              QStringLiteral("1280x900x24"), QStringLiteral("-nolisten"),
                              QStringLiteral("tcp"), QStringLiteral("-terminate")});
        Run(&_server);
        if (_server.waitForReadyRead(10'000))
            name = ':' + _server.readLine().trimmed();
        qputenv("DISPLAY", name);
        _manager.setProgram(QStringLiteral("openbox"));
        Run(&_manager);
    }
    ~Display()
    {
        Close();
        qunsetenv("DISPLAY");
    }
    void Close()
    {
        for (QProcess* each : {&_manager, &_server}) {
            each->terminate();
            each->waitForFinished(5'000);
        }
    }
    // One line of the tool that makes up keys and clicks.
    static void Input(const char* line)
    {
        QProcess tool;
        tool.start(QStringLiteral("xdotool"),
                   QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts));
        EXPECT_TRUE(tool.waitForFinished(10'000)) << line;
        EXPECT_EQ(tool.exitCode(), 0) << line << tool.readAllStandardError().toStdString();
    }
    [[nodiscard]] static bool IsThere()
    {
        for (const char* program : {"Xvfb", "openbox", "xdotool"}) {
            if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
                return false;
        }
        return true;
    }
    static void Run(QProcess* process)
    {
        process->setStandardErrorFile(QProcess::nullDevice());
        process->setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
        process->start();
        EXPECT_TRUE(process->waitForStarted());
    }
    QByteArray name;

private:
    QProcess _server, _manager;
};

void Pause(int ms) { usleep(static_cast<useconds_t>(ms) * 1000); }

bool HasFrames(const Desk& desk)
{
    return std::ranges::any_of(desk.LeftInCaches(), [](const std::string& path) {
        return path.find("/ZeloraZEL Temp_") != std::string::npos;
    });
}

constexpr const char* kNoDisplay = "no virtual display here";

TEST(KilledInUse, comes_back_with_first_aid_once_and_leaves_nothing)
{
    if (!Display::IsThere())
        GTEST_SKIP() << kNoDisplay;
    const Desk desk;
    const Display display;
    for (int i = 0; i < 40; ++i)
        desk.folder.WriteFile("more/" + std::to_string(i),
                              SmallImage({.instance = "1.8." + std::to_string(i)}));
    pid_t child = 0;
    const auto input = [](const char* line) { return [line] { Display::Input(line); }; };
    const struct {
        const char* use;
        std::function<void()> act;
    } moments[] = {
        {"keys page", input("key --delay 8 --repeat 30 Right")},
        {"a drag windows, its button still down",
         input("mousemove 800 500 keydown w keyup w mousedown 1 mousemove_relative 60 20 "
               "mousemove_relative 60 20 mousemove_relative 60 20")},
        {"the wheel pages", input("mouseup 1 mousemove 800 500 click --delay 8 --repeat 30 5")},
        {"a pane goes", input("key F9")},
        {"panes come and go, stored each time", input("key --delay 15 --repeat 20 F9")},
        {"a menu is open", input("key alt+f")},
        {"preferences are open, an entry changes", input("key ctrl+comma key Tab key space")},
        {"full screen comes", input("key F11")},
        {"another folder is handed over and opens",
         [&] { EXPECT_EQ(Desk::Wait(desk.Start(ZELORA_VIEWER, "more", display.name)), 0); }},
        {"the window closes", input("key ctrl+w")},
        {"it ends by itself", [&] { kill(child, SIGTERM); }},
    };
    int crashes = 0;
    for (const auto& moment : moments) {
        SCOPED_TRACE(moment.use);
        child = desk.Start(ZELORA_VIEWER, "study", display.name);
        Pause(700);
        moment.act();
        kill(child, SIGKILL);
        const int code = Desk::Wait(child);
        EXPECT_TRUE(code == 256 + SIGKILL || code == 0);
        crashes += desk.HasLock() ? 1 : 0;
        if (std::string_view(moment.use) == "a pane goes") {  // so keys do arrive
            EXPECT_FALSE(desk.Preferences().value(QStringLiteral("ShowPatientListPane")).toBool());
        }
        EXPECT_EQ(desk.RunAndQuit(), 0);
        EXPECT_EQ(desk.Crashes(), crashes);
        EXPECT_FALSE(desk.HasLock());
        EXPECT_EQ(desk.RunAndQuit(), 0);
        EXPECT_EQ(desk.Crashes(), crashes);
        EXPECT_EQ(desk.LeftInCaches(), std::vector<std::string>());
    }
    EXPECT_GE(crashes, 10);
    EXPECT_GE(desk.Preferences().value(QStringLiteral("ZELRecentDocuments")).toList().size(), 1);
}

TEST(KilledInUse, a_reset_begins_anew_without_another_first_aid)
{
    if (!Display::IsThere())
        GTEST_SKIP() << kNoDisplay;
    const Desk desk;
    const Display display;
    const pid_t killed = desk.Start(ZELORA_VIEWER, "study", display.name);
    Pause(700);
    kill(killed, SIGKILL);
    Desk::Wait(killed);
    const pid_t child = desk.Start(ZELORA_VIEWER, "study", display.name);
    Pause(700);
    EXPECT_EQ(desk.Crashes(), 1);
    Display::Input("key Up key Return");
    EXPECT_EQ(Desk::Wait(child), 0);
    Pause(1000);
    const std::vector<pid_t> again = desk.Running();
    ASSERT_EQ(again.size(), 1u);
    EXPECT_EQ(desk.Crashes(), 0);
    EXPECT_EQ(desk.Preferences().value(QStringLiteral("RunCounterCurrent")).toInt(), 1);
    kill(again.front(), SIGTERM);
    for (int i = 0; i < 50 && !desk.Running().empty(); ++i)
        Pause(100);
    EXPECT_TRUE(desk.Running().empty());
    EXPECT_FALSE(desk.HasLock());
}

// As a session that ends before its programs do.
TEST(KilledInUse, a_display_that_goes_is_no_crash)
{
    if (!Display::IsThere())
        GTEST_SKIP() << kNoDisplay;
    const Desk desk;
    Display display;
    const pid_t child = desk.Start(ZELORA_VIEWER, "study", display.name);
    Pause(700);
    EXPECT_TRUE(desk.HasLock());
    display.Close();
    EXPECT_EQ(Desk::Wait(child), 1);
    EXPECT_FALSE(desk.HasLock());
    EXPECT_FALSE(HasFrames(desk));
    EXPECT_EQ(desk.RunAndQuit(), 0);
    EXPECT_EQ(desk.Crashes(), 0);
}

// There the toolkit leaves no time for an end.
TEST(KilledInUse, a_compositor_that_goes_is_no_crash)
{
    if (QStandardPaths::findExecutable(QStringLiteral("weston")).isEmpty())
        GTEST_SKIP() << kNoDisplay;
    Desk desk;
    const std::string runtime = desk.folder.Path("runtime");
    QProcess server;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), QString::fromStdString(runtime));
    server.setProcessEnvironment(environment);
    server.setProgram(QStringLiteral("weston"));
    server.setArguments({QStringLiteral("--backend=headless-backend.so"),
                         QStringLiteral("--use-pixman"), QStringLiteral("--no-config"),
                         QStringLiteral("--socket=wayland-test")});
    Display::Run(&server);
    desk.inChild = [] {
        setenv("QT_QPA_PLATFORM", "wayland", 1);
        setenv("WAYLAND_DISPLAY", "wayland-test", 1);
        unsetenv("QT_LOGGING_RULES");
    };
    for (int i = 0; i < 500 && !fs::exists(runtime + "/wayland-test"); ++i)
        Pause(10);
    const pid_t child = desk.Start();
    for (int i = 0; i < 500 && !desk.HasLock(); ++i)
        Pause(10);
    Pause(500);
    EXPECT_TRUE(HasFrames(desk));
    server.kill();
    EXPECT_EQ(Desk::Wait(child), 1);
    EXPECT_FALSE(desk.HasLock());
    EXPECT_FALSE(HasFrames(desk));
    EXPECT_TRUE(server.waitForFinished(5'000));
}

}  // namespace

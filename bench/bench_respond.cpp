// While a folder of 2,000 files opens: how long the program ever leaves its events waiting, and how
// long the button that cancels needs.
//   bench_respond
#include "CTFiles.h"
#include "PairedRatio.h"
#include "Pulse.h"
#include "app/shell/OpenProgressWindow.h"
#include "app/shell/ZELAppDelegate.h"
#include "app/window/ZELMainWindowController.h"
#include "platform/PreferenceStore.h"
#include "prefs/Prefs.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

namespace {

constexpr double kLimit = 50;  // ms

bool HasWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<ZELMainWindowController*>(widget) && widget->isVisible())
            return true;
    }
    return false;
}

struct Pauses {
    double opening = 0, all = 0;  // ms: until the window is made, and until it has been painted
};

Pauses OpenOnce(const std::string& folder)
{
    ZELAppDelegate program(QString(), {});
    Pulse pulse;
    Pauses longest;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!HasWindow())
            longest.opening = pulse.Longest();
    });
    watch.start(0);
    program.start({folder});
    QApplication::exec();
    longest.all = pulse.Longest();
    return longest;
}

// From the press of Cancel, in the midst of an open, to the end of a session that has nothing
// else to do, in ms; below 0 if the open was over before.
double CancelOnce(const std::string& folder)
{
    constexpr int kMoment_ms = 10;  // of the open
    ZELAppDelegate program(QString(), {});
    QElapsedTimer opening, since;
    QTimer watch;
    bool early = false;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (!opening.isValid())
            opening.start();
        if (opening.elapsed() < kMoment_ms || since.isValid())
            return;
        early = !HasWindow();
        since.start();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* window = dynamic_cast<OpenProgressWindow*>(widget))
                window->findChild<QPushButton*>()->click();
        }
    });
    watch.start(0);
    program.start({folder});
    QApplication::exec();
    return early ? static_cast<double>(since.nsecsElapsed()) / 1e6 : -1;
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    TempFolder folder;
    prefs_Store().UseFile(folder.Path("preferences.plist"));
    MakeFiles(folder, 2000, 64);
    std::vector<double> opening, all;
    for (int i = 0; i < kPairs; ++i) {
        const Pauses longest = OpenOnce(folder.Path(""));
        opening.push_back(longest.opening);
        all.push_back(longest.all);
    }
    const double worst = *std::max_element(opening.begin(), opening.end());
    const bool held = worst <= kLimit;
    std::printf(
        "longest pause while 2,000 files open: median %.1f ms, worst %.1f ms, limit %.0f: %s\n",
        MedianOf(opening), worst, kLimit, held ? "held" : "NOT HELD");
    std::printf("longest pause with the making of the window: median %.1f ms\n", MedianOf(all));
    std::vector<double> cancels;
    for (int i = 0; i < kPairs; ++i)
        cancels.push_back(CancelOnce(folder.Path("")));
    const auto [quickest, slowest] = std::ranges::minmax(cancels);
    const bool ends = quickest >= 0 && slowest <= kLimit;
    std::printf("Cancel in the midst of it: median %.1f ms, worst %.1f ms, limit %.0f: %s\n",
                MedianOf(cancels), slowest, kLimit, ends ? "held" : "NOT HELD");
    return held && ends ? 0 : 1;
}

// Users who do anything in any order. ZELORA_RANDOM_ACTIONS says how many actions (300 without it);
// with 2,000 and more the resident memory must not grow between the 2,000th and the last.
#include "app/views/LayoutFixture.h"
#include "app/views/SequenceMime.h"

#include <QDropEvent>
#include <QFile>
#include <QMenu>
#include <QWheelEvent>
#include <random>

namespace {

constexpr int kSettled = 2000;        // actions after which memory has its size
constexpr double kMostGrowth = 1.02;  // from then on

double ResidentMiB()
{
    QFile statm(QStringLiteral("/proc/self/statm"));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    return statm.readAll().split(' ').value(1).toDouble() * 4096 / (1 << 20);
}

class RandomUser {
public:
    explicit RandomUser(LayoutWindow* window, unsigned seed) : fWindow(*window), fRandom(seed) {}

    void Act()
    {
        switch (Below(12)) {
            case 0:
            case 1:
            case 2:
                return Press();
            case 3:
                return Key();
            case 4:
                return Wheel();
            case 5:
                return fWindow.host.tools.changeToolTo(
                    std::array{kToolWindow, kToolPan, kToolZoom, kToolSelection}[Index(4)]);
            case 6:
                return Change();
            case 7:
                return Drop();
            case 8:
                return fWindow.window.resize(80 + Below(700), 60 + Below(600));
            case 9:
                return fWindow.host.scope.setToolScope(Below(3));
            case 10:
                return Menu();
            default:
                if (Below(4) == 0)
                    fWindow.Open(651 + Below(17));
        }
    }

    // The window as it was opened, so that what it takes can be compared.
    void Rest()
    {
        fWindow.window.resize(480, 400);
        fWindow.Open(664);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

private:
    int Below(int bound) { return static_cast<int>(fRandom() % static_cast<unsigned>(bound)); }
    std::size_t Index(int bound) { return static_cast<std::size_t>(Below(bound)); }
    int AnyGrid() { return 1 + Below(fWindow.Grids().numGrids()); }
    Qt::KeyboardModifiers AnyKeys()
    {
        return std::array<Qt::KeyboardModifiers, 4>{Qt::NoModifier, Qt::ShiftModifier,
                                                    Qt::AltModifier, Qt::ControlModifier}[Index(4)];
    }
    QPointF AnyPoint(const QWidget& widget)
    {
        return {double(Below(widget.width() + 40) - 20), double(Below(widget.height() + 40) - 20)};
    }

    void Press()
    {
        const int number = AnyGrid();
        const QWidget& port = *fWindow.View(number).viewport();
        const Qt::MouseButton button =
            std::array{Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}[Index(3)];
        const QPointF from = AnyPoint(port);
        if (Below(5) == 0)
            QTest::mouseDClick(fWindow.View(number).viewport(), button, {}, from.toPoint());
        else
            fWindow.Drag(number, from, Below(3) == 0 ? from : AnyPoint(port), button, AnyKeys(),
                         Below(5));
        CloseMenus();
    }
    void Key()
    {
        const Qt::Key key = std::array{Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,   Qt::Key_Down,
                                       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                                       Qt::Key_Space,  Qt::Key_Delete,   Qt::Key_Tab}[Index(11)];
        QTest::keyClick(&fWindow.View(AnyGrid()), key,
                        Below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier);
    }
    void Wheel()
    {
        QWidget* port = fWindow.View(AnyGrid()).viewport();
        const QPointF at = AnyPoint(*port);
        QWheelEvent event(at, port->mapToGlobal(at), {}, {0, Below(601) - 300}, Qt::NoButton,
                          AnyKeys(), Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(port, &event);
    }
    void Change()
    {
        Grid& grid = fWindow.At(AnyGrid());
        ViewerActions& actions = fWindow.actions;
        switch (Below(9)) {
            case 0:
                return grid.setGridSetupID(Below(10));
            case 1:
                return actions.rotateView(grid, 0, Below(2) == 0);
            case 2:
                return actions.flipView(grid, 0, Below(2) == 0);
            case 3:
                return actions.invertColorsForView(grid, 0);
            case 4:
                return actions.resetAllChanges();
            case 5:
                return fWindow.Grids().setCurrentClutMenuItemID(Below(6));
            case 6:
                return fWindow.Grids().localizers().showHideLocalizers();
            case 7:
                return actions.autoFitView(grid, 0);
            default:
                return fWindow.Grids().U_ActivateSequence(AnyProxy(), grid);
        }
    }
    std::shared_ptr<ZELSequenceProxy> AnyProxy()
    {
        return fWindow.host.proxyOf(
            fWindow.made.sequences[Index(static_cast<int>(fWindow.made.sequences.size()))]);
    }
    void Drop()
    {
        SequenceMime mime(Below(2) == 0 ? kSequencePasteboardType : kTreeNodePasteboardType,
                          AnyProxy()->copyWithZone(), fWindow.host.windowKey());
        QWidget* port = fWindow.View(AnyGrid()).viewport();
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QCoreApplication::sendEvent(port, &enter);
        QDropEvent drop({9, 9}, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(port, Below(2) == 0 ? static_cast<QEvent*>(&leave) : &drop);
    }
    void Menu()
    {
        ZELDraggingSequenceGridView& view = fWindow.View(AnyGrid());
        const std::unique_ptr<QMenu> menu = view.menuForPoint(AnyPoint(*view.viewport()));
        QList<QAction*> actions;
        if (menu) {
            for (QAction* action : menu->findChildren<QAction*>()) {
                // No dialogs, and no file manager.
                const bool quiet = !action->text().contains(QLatin1String("Other"));
                if (quiet && action->isEnabled() && !action->isSeparator() && !action->menu())
                    actions.push_back(action);
            }
        }
        if (!actions.isEmpty())
            actions[Below(static_cast<int>(actions.size()))]->trigger();
    }
    void CloseMenus()
    {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    LayoutWindow& fWindow;
    std::mt19937 fRandom;
};

TEST(RandomActions, leave_the_program_standing)
{
    const Quiet quiet;
    const int wanted = qEnvironmentVariableIntValue("ZELORA_RANDOM_ACTIONS");
    const int count = wanted > 0 ? wanted : 300;
    LayoutWindow window(664, {{.frames = 12},
                              {.modality = "US", .frames = 3, .color = true},
                              {.modality = "MR", .frames = 5},
                              {.frames = 1, .aspect = "2\\1"},
                              {.frames = 7}});
    RandomUser user(&window, 1);
    double settled = 0;
    for (int i = 1; i <= count; ++i) {
        user.Act();
        if (i % 3 == 0)
            QCoreApplication::processEvents();
        if (i % 50 == 0)
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (i == kSettled) {
            user.Rest();
            settled = ResidentMiB();
        }
        ASSERT_GE(window.Grids().numGrids(), 1);
        ASSERT_NE(window.host.activeSequenceGridController(), nullptr) << i;
    }
    if (settled > 0 && count > kSettled) {
        user.Rest();
        const double last = ResidentMiB();
        std::printf("resident: %.1f MiB after %d actions, %.1f after %d\n", settled, kSettled, last,
                    count);
        EXPECT_LE(last, settled * kMostGrowth);
    }
}

}  // namespace

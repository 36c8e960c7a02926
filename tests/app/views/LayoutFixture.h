// A plain window around a layout of grids, with everything that decides in it, and real events.
#pragma once
#include "app/grid/GridFixture.h"
#include "app/tools/MouseTrackers.h"
#include "app/tools/ZELToolsController.h"
#include "app/tools/ZELZoomTextBoxController.h"
#include "app/views/GridLayoutView.h"

#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QTest>

class LayoutHost final : public FakeHost {
public:
    using FakeHost::FakeHost;
    std::vector<Grid*> gridControllers() const override
    {
        return layout ? layout->grids().theSequenceViewControllers() : std::vector<Grid*>();
    }
    Grid* activeSequenceGridController() const override
    {
        return layout ? layout->grids().activeSequenceGridController() : nullptr;
    }
    void activateGrid(Grid& grid) override { layout->viewOf(&grid)->becomeFirstResponder(); }
    void changeSequenceTo(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid) override
    {
        layout->grids().changeSequenceTo(std::move(proxy), grid);
    }
    void U_ActivateSequence(std::shared_ptr<ZELSequenceProxy> proxy, Grid& grid) override
    {
        layout->grids().U_ActivateSequence(proxy, grid);
    }
    bool showLocalizers() const override
    {
        return layout && layout->grids().localizers().showLocalizers();
    }
    int protocolItemTag() const override { return layout->grids().protocolItemTag(); }
    void switchToSequenceViewWithID(int id, bool /*keepOld*/) override { switchLayout(id); }
    std::int32_t currentTool() const override { return tools.currentTool(); }

    ZELToolsController tools;
    GridLayoutView* layout = nullptr;
    std::function<void(int)> switchLayout;
};

struct LayoutWindow {
    explicit LayoutWindow(int id,
                          const std::vector<SeriesForm>& forms = {{.frames = 12},
                                                                  {.frames = 3},
                                                                  {.frames = 5},
                                                                  {.frames = 1}},
                          QSize size = {480, 400})
        : made(forms), host(&made.tree)
    {
        host.hasCine = false;
        host.scope.setToolScope(ToolScope::kFrame);
        host.switchLayout = [this](int layout) { Open(layout); };
        window.resize(size);
        Open(id);
        window.show();
        QCoreApplication::processEvents();
    }
    // As the program does it: the old layout goes later, for it may be asking.
    void Open(int id)
    {
        auto grids = std::make_shared<MultiGridViewController>(&host, id);
        HangSequences(grids.get(), host.layout ? &host.layout->grids() : nullptr, &host);
        auto* layout =
            new GridLayoutView(std::move(grids), {nullptr, &host.tools, &navigation, &actions});
        QWidget* old = window.takeCentralWidget();
        host.layout = layout;
        window.setCentralWidget(layout);
        if (old) {
            old->hide();
            old->setParent(&window);
            old->deleteLater();
        }
    }
    ~LayoutWindow()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        delete window.takeCentralWidget();
        host.layout = nullptr;
    }
    [[nodiscard]] MultiGridViewController& Grids() { return host.layout->grids(); }
    [[nodiscard]] Grid& At(int number) { return *Grids().gridWithNumber(number); }
    [[nodiscard]] ZELDraggingSequenceGridView& View(int number)
    {
        return *host.layout->theSequenceViews()[static_cast<std::size_t>(number - 1)];
    }
    [[nodiscard]] zel_TransformRec& Record(int sequence, int frame = 1)
    {
        return made.sequences[static_cast<std::size_t>(sequence - 1)]
            ->GetImageFrameInfo(frame)
            ->fTransform;
    }
    static void Send(QWidget* to, QEvent::Type type, QPointF at, Qt::MouseButton button,
                     Qt::MouseButtons held, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(type, at, to->mapToGlobal(at), button, held, keys);
        QCoreApplication::sendEvent(to, &event);
    }
    void Drag(int number, QPointF from, QPointF to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers keys = {}, int steps = 2)
    {
        QWidget* port = View(number).viewport();
        Send(port, QEvent::MouseButtonPress, from, button, button, keys);
        for (int i = 1; i <= steps; ++i)
            Send(port, QEvent::MouseMove, from + (to - from) * i / steps, Qt::NoButton, button,
                 keys);
        Send(port, QEvent::MouseButtonRelease, to, button, {}, keys);
    }
    void Click(int number, QPointF at, Qt::MouseButton button = Qt::LeftButton)
    {
        Drag(number, at, at, button, {}, 0);
    }

    MadeTree made;
    LayoutHost host;
    FrameNavigation navigation{&host};
    ViewerActions actions{&host};
    ZELZoomTextBoxController zoom{&host, &actions, [] {}};  // takes the results of zoom drags
    QMainWindow window;
};

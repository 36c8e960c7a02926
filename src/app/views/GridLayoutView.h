// The views of a layout's grids, in split views that divide the window as the layout says. Main
// thread only.
#pragma once
#include "app/grid/MultiGridViewController.h"
#include "app/views/ZELDraggingSequenceGridView.h"

#include <QWidget>

class QSplitter;

class GridLayoutView final : public QWidget {
    Q_OBJECT

public:
    // Of a view's links all but the grid; they outlive the views.
    GridLayoutView(std::shared_ptr<MultiGridViewController> grids,
                   const ZELSequenceGridView::Links& links, QWidget* parent = nullptr);
    ~GridLayoutView() override;

    [[nodiscard]] MultiGridViewController& grids() const { return *_grids; }
    [[nodiscard]] ZELDraggingSequenceGridView* viewOf(
        const ZELSequenceGridViewModelController* grid) const;
    [[nodiscard]] const std::vector<ZELDraggingSequenceGridView*>& theSequenceViews() const
    {
        return _views;
    }
    // The colour around the active grid's cell; the others have one of their own.
    void updateBorders();
    // From now on grids show one after the other, the active one first, each painted before the
    // next one is begun: what the user looks at doesn't wait for the others.
    void showOneAfterTheOther();
    [[nodiscard]] bool showsAll() const;
    // Rows and columns of each grid, turned to the form of its view.
    void fitGridDims();

signals:
    void cellsPainted();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QSplitter* addSplit(Qt::Orientation orientation);
    void addPart(QSplitter* across, int count, Qt::Orientation along, std::size_t* next);
    void U_FixSplitViewDividers();
    void showNext();

    std::shared_ptr<MultiGridViewController> _grids;
    std::vector<ZELDraggingSequenceGridView*> _views;  // children, in the order of their grids
    std::vector<QSplitter*> _splits;
    ObservableKeys::Watch _watch;
    NotificationCenter::Observation _colors;
    bool _fitted = false;
};

// A grid's view with its contextual menus, and with sequences dragged out of it and dropped on it.
// Main thread only.
#pragma once
#include "app/tools/ContextualMenus.h"
#include "app/views/ZELEnhancedGridView.h"

class QMenu;
class SequenceMime;

class ZELDraggingSequenceGridView final : public ZELEnhancedGridView {
    Q_OBJECT

public:
    explicit ZELDraggingSequenceGridView(const Links& links, QWidget* parent = nullptr);

    void drawRect(QPainter* painter, const QRectF& dirty) override;
    // The visible part, half transparent.
    [[nodiscard]] QPixmap dragImageWithAlpha();
    // The menu for a click there; null while the grid plays or the window shows a sheet. It goes
    // before the view's grid.
    [[nodiscard]] std::unique_ptr<QMenu> menuForPoint(const QPointF& point);

protected:
    void rightClicked(const QPointF& point) override;
    void dragSequence() override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    [[nodiscard]] bool accepts(const SequenceMime* mime) const;
    void setHighlight(bool on);
    void dropNode(const std::shared_ptr<ZELSequenceProxy>& proxy);
    void dropSequence(const std::shared_ptr<ZELSequenceProxy>& proxy);

    ContextualTarget _contextual;  // of the last right click
    bool _highlight = false;       // a drop would be accepted
};

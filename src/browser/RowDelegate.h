// Paints rows of the browser, and says how high they are. Main thread only.
#pragma once
#include <QStyledItemDelegate>

class PatTreeDataSource;
class QTreeView;

class RowDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    RowDelegate(PatTreeDataSource* source, QTreeView* view);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;

private:
    PatTreeDataSource* _source;
    QTreeView* _view;
};

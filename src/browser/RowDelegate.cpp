#include "browser/RowDelegate.h"

#include "browser/PatTreeDataSource.h"

#include <QStyle>
#include <QTreeView>

RowDelegate::RowDelegate(PatTreeDataSource* source, QTreeView* view)
    : QStyledItemDelegate(view), _source(source), _view(view)
{
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    _view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, _view);
    const RowLook look =
        _source->willDisplayCell(index, option.rect.height(), _view->isExpanded(index));
    QPalette colors = option.palette;
    if (!option.state.testFlag(QStyle::State_Active))
        colors.setCurrentColorGroup(QPalette::Inactive);
    DrawRow(painter, look, option.rect, _view->font(), colors, selected);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        static_cast<QStyleOption&>(focus) = option;
        _view->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, _view);
    }
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    const int width = _view->viewport()->width();
    return {width, _source->heightOfRowByItem(index, width)};
}

#include "app/window/ToolBarSheet.h"

#include "platform/Words.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kName = Qt::UserRole;

QString Word(const char* key) { return ZelWord(kWordsMenuItems, key); }

QListWidgetItem* RowOf(const ToolBarItem& item)
{
    auto* row = new QListWidgetItem(ToolBarItemIcon(item), Word(item.title));
    row->setData(kName, QString::fromLatin1(item.name));
    return row;
}

const ToolBarItem* ItemOf(const QListWidgetItem* row)
{
    return row ? ToolBarItemNamed(row->data(kName).toString().toStdString()) : nullptr;
}

}  // namespace

ToolBarSheet::ToolBarSheet(QWidget* parent) : QDialog(parent)
{
    setWindowModality(Qt::WindowModal);
    setWindowTitle(Word("Customize Toolbar"));
    auto* column = new QVBoxLayout(this);
    auto* lists = new QHBoxLayout;
    column->addLayout(lists);
    _available = addList("Available Items");
    _shown = addList("Toolbar");
    for (QListWidget* list : {_available, _shown}) {
        auto* side = new QVBoxLayout;
        auto* title = new QLabel(list->accessibleName());
        title->setBuddy(list);
        side->addWidget(title);
        side->addWidget(list);
        lists->addLayout(side);
    }
    auto* moves = new QVBoxLayout;
    lists->insertLayout(1, moves);
    moves->addStretch();
    moves->addWidget(_add = addButton("Add Item", &ToolBarSheet::add));
    moves->addWidget(_remove = addButton("Remove Item", &ToolBarSheet::remove));
    moves->addSpacing(moves->spacing() * 2);
    moves->addWidget(_up = addButton("Move Item Up", &ToolBarSheet::moveUp));
    moves->addWidget(_down = addButton("Move Item Down", &ToolBarSheet::moveDown));
    moves->addStretch();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->addButton(addButton("Restore Default Items", &ToolBarSheet::restoreDefaults),
                       QDialogButtonBox::ResetRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);

    _available->setDefaultDropAction(Qt::CopyAction);
    _shown->setDefaultDropAction(Qt::MoveAction);
    connect(_available, &QListWidget::itemActivated, this, &ToolBarSheet::add);
    connect(_shown, &QListWidget::itemActivated, this, &ToolBarSheet::remove);
    for (QListWidget* list : {_available, _shown}) {
        connect(list, &QListWidget::currentRowChanged, this, &ToolBarSheet::refresh);
        // Queued: a drop is not over while its rows come and go.
        for (const auto changed :
             {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(list->model(), changed, this, &ToolBarSheet::refresh, Qt::QueuedConnection);
    }
    fill(PresentToolBar());
}

QListWidget* ToolBarSheet::addList(const char* title)
{
    auto* list = new QListWidget;
    list->setAccessibleName(Word(title));
    list->setDragDropMode(QAbstractItemView::DragDrop);
    list->setUniformItemSizes(true);  // those without a picture are as high
    list->setMinimumHeight(360);      // view points: all items without scrolling
    return list;
}

QPushButton* ToolBarSheet::addButton(const char* title, void (ToolBarSheet::*act)())
{
    auto* button = new QPushButton(Word(title));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, act);
    return button;
}

std::vector<const ToolBarItem*> ToolBarSheet::chosen() const
{
    std::vector<const ToolBarItem*> items;
    for (int i = 0; i < _shown->count(); ++i) {
        const ToolBarItem* item = ItemOf(_shown->item(i));
        if (item && (IsToolBarSpace(*item) || std::ranges::find(items, item) == items.end()))
            items.push_back(item);
    }
    return items;
}

void ToolBarSheet::fill(const std::vector<const ToolBarItem*>& items)
{
    _shown->clear();
    for (const ToolBarItem* item : items)
        _shown->addItem(RowOf(*item));
    refresh();
}

void ToolBarSheet::refresh()
{
    const auto items = chosen();
    std::vector<const ToolBarItem*> wanted, standing;
    for (const ToolBarItem& item : AllToolBarItems()) {
        if (IsToolBarSpace(item) || std::ranges::find(items, &item) == items.end())
            wanted.push_back(&item);
    }
    for (int i = 0; i < _available->count(); ++i)
        standing.push_back(ItemOf(_available->item(i)));
    if (standing != wanted) {
        const int row = _available->currentRow();
        const QSignalBlocker quiet(_available);
        _available->clear();
        for (const ToolBarItem* item : wanted)
            _available->addItem(RowOf(*item));
        _available->setCurrentRow(std::min(row, _available->count() - 1));
    }
    const int row = _shown->currentRow();
    _add->setEnabled(_available->currentItem());
    _remove->setEnabled(row >= 0);
    _up->setEnabled(row > 0);
    _down->setEnabled(row >= 0 && row + 1 < _shown->count());
}

void ToolBarSheet::add()
{
    const ToolBarItem* item = ItemOf(_available->currentItem());
    if (!item)
        return;
    const int row = _shown->currentRow() < 0 ? _shown->count() : _shown->currentRow() + 1;
    _shown->insertItem(row, RowOf(*item));
    _shown->setCurrentRow(row);
    refresh();
}

void ToolBarSheet::remove()
{
    delete _shown->currentItem();
    refresh();
}

void ToolBarSheet::move(int by)
{
    const int row = _shown->currentRow(), target = row + by;
    if (row < 0 || target < 0 || target >= _shown->count())
        return;
    _shown->insertItem(target, _shown->takeItem(row));
    _shown->setCurrentRow(target);
}

void ToolBarSheet::accept()
{
    QDialog::accept();
    SetToolBar(chosen());
}

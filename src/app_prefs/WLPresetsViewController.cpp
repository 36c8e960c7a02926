#include "app_prefs/WLPresetsViewController.h"

#include "app/tools/ZELWWWLTextBoxController.h"
#include "app_prefs/PrefsControls.h"
#include "app_prefs/PrefsWords.h"

#include <QHeaderView>
#include <QShortcut>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kFirstEditedColumn = 1;
constexpr int kTitleWidth = 220;  // points, at least

}  // namespace

WLPresetsViewController::WLPresetsViewController(PresetList::AlertForError ask, QWidget* parent)
    : PrefsPane(parent), _model(&_list), _ask(std::move(ask)), _table(new QTableView)
{
    auto* columns = new QHBoxLayout(this);
    columns->addWidget(_table, 1);
    auto* buttons = new QVBoxLayout;
    columns->addLayout(buttons);
    prepareTable();
    addButton("Add preset", buttons, {}, [this] { addPreset(); });
    _remove = addButton("Remove preset", buttons, QKeySequence::Delete, [this] { removePreset(); });
    _up = addButton("Move up", buttons, Qt::ALT | Qt::Key_Up, [this] { movePreset(-1); });
    _down = addButton("Move down", buttons, Qt::ALT | Qt::Key_Down, [this] { movePreset(1); });
    buttons->addStretch();
    addButton("Reset presets", buttons, {}, [this] { resetToDefaults(); });
    enableButtons();
    // By another part of the program, as a preset made from a window: the next edit must not undo
    // it.
    _changed = NotificationCenter::Default().AddObserver(kNoteWWWLPresetsChanged,
                                                         [this](const Notification& note) {
                                                             if (note.object != &_list)
                                                                 willBeDisplayed();
                                                         });
}

// The table goes before the model that it shows.
WLPresetsViewController::~WLPresetsViewController() { delete _table; }

QString WLPresetsViewController::title() const { return PrefsWord("Presets"); }
QString WLPresetsViewController::windowTitle() const { return PrefsWord("Presets title"); }
QString WLPresetsViewController::identifier() const { return QStringLiteral("WWWLPane"); }
QIcon WLPresetsViewController::image() const { return PrefsIcon("prefs_presets"); }

QPushButton* WLPresetsViewController::addButton(const char* title, QVBoxLayout* column,
                                                const QKeySequence& key, std::function<void()> work)
{
    auto* button = new QPushButton(PrefsWord(title));
    button->setToolTip(PrefsTip(title));
    button->setAccessibleName(PrefsWord(title));
    connect(button, &QPushButton::clicked, this, work);
    if (!key.isEmpty()) {
        // Of the table alone, so that a key typed into a cell stays in it.
        auto* shortcut = new QShortcut(key, _table);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, std::move(work));
    }
    column->addWidget(button);
    return button;
}

void WLPresetsViewController::prepareTable()
{
    _table->setModel(&_model);
    _table->setTabKeyNavigation(false);  // Tab leads on, to the buttons
    _table->setAccessibleName(PrefsWord("Presets title"));
    _table->setToolTip(PrefsTip("Presets title"));
    _table->setSelectionBehavior(QAbstractItemView::SelectRows);
    _table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    _table->setDragDropMode(QAbstractItemView::InternalMove);
    _table->setDragDropOverwriteMode(false);
    _table->setSortingEnabled(false);
    _table->setWordWrap(false);
    _table->setAlternatingRowColors(true);
    _table->setShowGrid(false);
    _table->verticalHeader()->hide();
    _table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    _table->horizontalHeader()->setHighlightSections(false);
    _table->setMinimumWidth(kTitleWidth * 2);
    connect(&_model, &PresetTableModel::moved, this, &WLPresetsViewController::selectRow);
    const auto follow = [this] { enableButtons(); };
    connect(_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, follow);
    connect(&_model, &QAbstractItemModel::modelReset, this, follow);
}

void WLPresetsViewController::willBeDisplayed()
{
    _list.reload();
    _model.reset();
}

int WLPresetsViewController::selectedRow() const
{
    const QModelIndexList rows = _table->selectionModel()->selectedRows();
    const auto last = std::ranges::max_element(rows, {}, &QModelIndex::row);
    return last == rows.end() ? -1 : last->row();
}

void WLPresetsViewController::selectRow(int row)
{
    const QModelIndex index = _model.index(row, kFirstEditedColumn);
    _table->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    _table->scrollTo(index);
    enableButtons();
}

void WLPresetsViewController::addPreset()
{
    selectRow(_model.addPreset(selectedRow()));
    editSelected(kFirstEditedColumn);
}

void WLPresetsViewController::offerPreset(float width, float level)
{
    selectRow(_model.addPresetOf(width, level));
    editSelected(static_cast<int>(PresetList::Column::Title));
}

void WLPresetsViewController::editSelected(int column)
{
    QTimer::singleShot(0, this, [this, column] {
        _table->setFocus();
        if (selectedRow() >= 0)
            _table->edit(_model.index(selectedRow(), column));
    });
}

void WLPresetsViewController::removePreset()
{
    std::vector<int> rows;
    for (const QModelIndex& index : _table->selectionModel()->selectedRows())
        rows.push_back(index.row());
    if (rows.empty())
        return;
    const int first = *std::ranges::min_element(rows);
    _model.removePresets(rows);
    // The next one, so that the keyboard can go on.
    if (_model.rowCount() > 0)
        selectRow(std::min(first, _model.rowCount() - 1));
}

void WLPresetsViewController::resetToDefaults()
{
    if (_list.resetToDefaults(_ask))
        _model.reset();
}

void WLPresetsViewController::movePreset(int rows)
{
    const int row = selectedRow();
    if (row < 0)
        return;
    if (const auto place = _model.movePreset(row, rows < 0 ? row + rows : row + rows + 1))
        selectRow(*place);
}

void WLPresetsViewController::enableButtons()
{
    if (!_down)
        return;  // still being made
    const int row = selectedRow();
    const auto selected = _table->selectionModel()->selectedRows().size();
    _remove->setEnabled(selected > 0);
    _up->setEnabled(selected == 1 && row > 0);
    _down->setEnabled(selected == 1 && row + 1 < _model.rowCount());
}

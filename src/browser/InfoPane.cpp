#include "browser/InfoPane.h"

#include "app/views/MenuFromEntries.h"
#include "browser/TitleBox.h"
#include "platform/Words.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QResizeEvent>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QToolButton>
#include <algorithm>

namespace {

QFont SmallFont(QFont font)
{
    font.setPixelSize(kInfoTextPixels);
    return font;
}

}  // namespace

bool U_InfoIsClosed(int lower, int divider) { return lower <= divider + kInfoTitleHeight; }

int U_InfoDividerPosition(bool isClosed, int splitHeight, int tableHeight, int divider)
{
    if (!isClosed)
        return splitHeight - kInfoTitleHeight;
    return std::max(kLeastBrowserHeight,
                    splitHeight - (tableHeight + kInfoTitleHeight + 23 - 3) - divider);
}

InfoPane::InfoPane(const void* windowKey, QSplitter* split)
    : _split(split), _source(new InfoTableSource(windowKey, this))
{
    _titleBox = newTitleBox();
    _theInfoView = newTable();
    setMinimumHeight(kInfoTitleHeight);
    split->addWidget(this);
    split->setCollapsible(split->indexOf(this), false);
    _folding.setDuration(kInfoFold_ms);
    connect(&_folding, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { moveDivider(value.toInt()); });
    connect(_source, &InfoTableSource::modelReset, this, [this] { layOutRows(); });
    updateView();
}

InfoPane::~InfoPane() = default;

QWidget* InfoPane::newTitleBox()
{
    auto* box = new TitleBox(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(8, 0, 4, 0);
    auto* title = new QLabel(ZelWord(kWordsMain, "Info Pane"), box);
    title->setTextFormat(Qt::PlainText);
    title->setFont(SmallFont(font()));
    row->addWidget(title, 1);
    _collapseButton = new QToolButton(box);
    _collapseButton->setAutoRaise(true);
    _collapseButton->setFocusPolicy(Qt::TabFocus);
    connect(_collapseButton, &QToolButton::clicked, this, [this] { toggleInfoPane(); });
    row->addWidget(_collapseButton);
    return box;
}

QTableView* InfoPane::newTable()
{
    auto* table = new QTableView(this);
    table->setModel(_source);
    table->setAccessibleName(ZelWord(kWordsMain, "Info Pane"));
    table->setFont(SmallFont(font()));
    table->setFrameShape(QFrame::NoFrame);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(1);
    auto* copy = new QShortcut(QKeySequence::Copy, table, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, [this] { copySelected(); });
    return table;
}

void InfoPane::layOutRows()
{
    _theInfoView->clearSpans();
    for (int row = 0; row < _source->rowCount(); ++row) {
        _theInfoView->setRowHeight(row, _source->heightOfRow(row) + 1);  // with the line between
        if (_source->isHeading(row))
            _theInfoView->setSpan(row, 0, 1, InfoTableSource::kInfoColumns);
    }
    fitColumns();
}

// Titles in full where values still have room.
void InfoPane::fitColumns()
{
    constexpr double kMostOfTitles = 0.45;  // of the pane's width
    const QFontMetrics metrics(_theInfoView->font());
    int width = 0;
    for (int row = 0; row < _source->rowCount(); ++row) {
        if (!_source->isHeading(row))
            width = std::max(
                width, metrics.horizontalAdvance(
                           _source->index(row, InfoTableSource::kInfoTitle).data().toString()));
    }
    _theInfoView->setColumnWidth(
        InfoTableSource::kInfoTitle,
        std::min(width + 12, static_cast<int>(this->width() * kMostOfTitles)));
}

// Title and value of each selected row, a line each.
void InfoPane::copySelected() const
{
    QStringList lines;
    QModelIndexList rows = _theInfoView->selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    for (const QModelIndex& index : rows)
        lines.append(index.data().toString() + QLatin1Char('\t') +
                     index.siblingAtColumn(InfoTableSource::kInfoData).data().toString());
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

// ---- folding ------------------------------------------------------------------------------------

bool InfoPane::viewIsClosed() const { return U_InfoIsClosed(height(), _split->handleWidth()); }

void InfoPane::toggleInfoPane()
{
    _folding.stop();
    const int from = _split->height() - height() - _split->handleWidth();
    _folding.setStartValue(from);
    _folding.setEndValue(U_InfoDividerPosition(viewIsClosed(), _split->height(), totalTableHeight(),
                                               _split->handleWidth()));
    _folding.start();
}

void InfoPane::moveDivider(int position)
{
    const int lower = _split->height() - position - _split->handleWidth();
    _split->setSizes({position, std::max(kInfoTitleHeight, lower)});
}

void InfoPane::updateView()
{
    const bool closed = viewIsClosed();
    const QString words = ZelWord(kWordsMain, closed ? "Show Info" : "Hide Info");
    _collapseButton->setIcon(MenuIcon(QLatin1String(closed ? "openup_arrow" : "closedown_arrow")));
    _collapseButton->setToolTip(words);
    _collapseButton->setAccessibleName(words);
}

void InfoPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    _titleBox->setGeometry(0, 0, width(), kInfoTitleHeight);
    _theInfoView->setGeometry(0, kInfoTitleHeight, width(), height() - kInfoTitleHeight);
    _theInfoView->setVisible(height() > kInfoTitleHeight);
    if (event->oldSize().width() != width())
        fitColumns();
    updateView();
}

#include "app/window/PatientPane.h"

#include "app/views/SequenceMime.h"
#include "app/window/WindowWords.h"
#include "dicom_core/opening/ZELDcmTree.h"

#include <QHeaderView>
#include <QTreeView>
#include <QVBoxLayout>

PatientPane::PatientPane(ZELDcmTree* tree, const void* window, QWidget* parent)
    : QWidget(parent), _sequences(RowsOfTree(*tree)), _list(new QTreeView(this))
{
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins({});
    box->addWidget(_list);
    _list->setModel(&_sequences);
    _list->setAccessibleName(ViewerWord("Sequences"));
    _list->setUniformRowHeights(true);
    _list->setDragEnabled(true);
    _list->setFocusPolicy(Qt::TabFocus);
    _sequences.dataOfDrag = [this, window](dk_SequenceBase* sequence) {
        return new SequenceMime(kTreeNodePasteboardType, proxyOf(sequence), window);
    };
    connect(_list, &QTreeView::activated, this, [this](const QModelIndex& index) {
        const TreeRow row = index.isValid() ? _sequences.treeRow(index.row()) : TreeRow();
        if (row.IsSequence() && doubleClicked)
            doubleClicked(row.Sequence());
    });
}

PatientPane::~PatientPane() { _list->setModel(nullptr); }

std::shared_ptr<ZELSequenceProxy> PatientPane::proxyOf(dk_SequenceBase* sequence)
{
    auto& proxy = _proxies[sequence];
    if (!proxy)
        proxy = std::make_shared<ZELSequenceProxy>(sequence);
    return proxy;
}

void PatientPane::updateNodeForSequence(dk_SequenceBase*) { _list->viewport()->update(); }

std::vector<dk_SequenceBase*> PatientPane::selectedSequences() const
{
    std::vector<dk_SequenceBase*> found;
    for (const QModelIndex& index : _list->selectionModel()->selectedRows())
        if (const TreeRow& row = _sequences.treeRow(index.row()); row.IsSequence())
            found.push_back(row.Sequence());
    return found;
}

void PatientPane::selectRow(dk_SequenceBase* sequence)
{
    _list->setCurrentIndex(_sequences.indexOf(sequence));
}

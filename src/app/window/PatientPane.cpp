#include "app/window/PatientPane.h"

#include "app/nodes/DicomElemChildNode.h"
#include "browser/BrowserBar.h"
#include "browser/InfoPane.h"
#include "browser/ZELPatientOutlineView.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "prefs/Prefs.h"

#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int kFirstInfoHeight = 220;  // view points

}  // namespace

PatientPane::PatientPane(BrowserHost* host, ZELDcmTree* tree, QWidget* parent)
    : QWidget(parent),
      _source(std::make_unique<PatTreeDataSource>(host)),
      _split(new QSplitter(Qt::Vertical, this))
{
    _source->setupWithDicomTree(tree);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(_split);
    auto* upper = new QWidget(_split);
    auto* rows = new QVBoxLayout(upper);
    rows->setContentsMargins({});
    rows->setSpacing(0);
    _outline = new ZELPatientOutlineView(_source.get(), host, upper);
    rows->addWidget(_outline, 1);
    rows->addWidget(new BrowserBar(_source.get(), upper));
    upper->setMinimumHeight(kLeastBrowserHeight);
    _split->addWidget(upper);
    _info = new InfoPane(host->windowKey(), _split);
    _split->setCollapsible(0, false);
    _split->setStretchFactor(0, 1);
    _outline->U_ExpandTreeToSequences();
    _gridIDs.setSingleShot(true);
    connect(&_gridIDs, &QTimer::timeout, this, &PatientPane::updateGridIDs);
}

PatientPane::~PatientPane()
{
    delete _split;  // its views go before what they show
}

std::shared_ptr<ZELSequenceProxy> PatientPane::proxyOf(dk_SequenceBase* sequence)
{
    return _source->proxyOf(sequence);
}

void PatientPane::updateNodeForSequence(dk_SequenceBase* sequence)
{
    _source->updateNodeForSequence(sequence);
    _gridIDs.start(0);
}

void PatientPane::updateGridIDs() { _source->updateGridIDs(); }

std::vector<dk_SequenceBase*> PatientPane::selectedSequences() const
{
    std::vector<dk_SequenceBase*> sequences;
    for (const DicomElemChildNode* node : _outline->selectedNodes()) {
        if (node->sequence())
            sequences.push_back(node->sequence());
    }
    return sequences;
}

void PatientPane::selectRow(dk_SequenceBase* sequence)
{
    _outline->U_SelectRowFor_dkSequence(sequence, false);
}

void PatientPane::fillSlowTexts() { _source->reloadData(); }

void PatientPane::holdWork(bool held) { _source->setWorkHeld(held); }

bool PatientPane::isWorking() const { return _source->isTicking(); }

void PatientPane::stopWork() { _source->pauseIconCalculator(); }

bool PatientPane::showsStudyInfo() const { return !_info->viewIsClosed(); }

void PatientPane::toggleInfoPane() { _info->toggleInfoPane(); }

void PatientPane::saveSplit() const
{
    const QList<int> sizes = _split->sizes();
    prefs_Set_PatientViewSplitSizes({sizes.begin(), sizes.end()});
}

// Sizes count once the pane has its own.
void PatientPane::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!std::exchange(_splitIsApplied, true))
        applySavedSplit();
}

void PatientPane::applySavedSplit()
{
    const std::vector<int> saved = prefs_PatientViewSplitSizes();
    if (saved.size() == 2)
        _split->setSizes({saved.begin(), saved.end()});
    else
        _split->setSizes({height() - kFirstInfoHeight, kFirstInfoHeight});
    _info->updateView();
}

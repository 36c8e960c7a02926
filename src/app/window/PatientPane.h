// The left pane of a window: the list of patients, studies and sequences. Main thread only.
#pragma once
#include "app/grid/ZELSequenceProxy.h"
#include "app/window/SequenceListModel.h"

#include <QWidget>
#include <functional>
#include <map>
#include <memory>

class QTreeView;
class ZELDcmTree;

class PatientPane final : public QWidget {
    Q_OBJECT

public:
    PatientPane(ZELDcmTree* tree, const void* window, QWidget* parent = nullptr);
    ~PatientPane() override;

    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence);
    void updateNodeForSequence(dk_SequenceBase* sequence);
    [[nodiscard]] std::vector<dk_SequenceBase*> selectedSequences() const;
    void selectRow(dk_SequenceBase* sequence);
    [[nodiscard]] QTreeView* list() const { return _list; }

    std::function<void(dk_SequenceBase*)> doubleClicked;

private:
    std::map<dk_SequenceBase*, std::shared_ptr<ZELSequenceProxy>> _proxies;
    SequenceListModel _sequences;
    QTreeView* _list;
};

// The left pane of a window: the browser of patients, studies and sequences, and below it the
// values of the selected sequence. Main thread only.
#pragma once
#include "browser/BrowserHost.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class InfoPane;
class PatTreeDataSource;
class QSplitter;
class ZELDcmTree;
class ZELPatientOutlineView;
class ZELSequenceProxy;

class PatientPane final : public QWidget {
    Q_OBJECT

public:
    // Host and tree outlive the pane.
    PatientPane(BrowserHost* host, ZELDcmTree* tree, QWidget* parent = nullptr);
    ~PatientPane() override;

    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence);
    // Its row is shown anew; in which grid it stands is asked once for all rows of an event.
    void updateNodeForSequence(dk_SequenceBase* sequence);
    void updateGridIDs();  // sequences have changed their grids
    [[nodiscard]] std::vector<dk_SequenceBase*> selectedSequences() const;
    void selectRow(dk_SequenceBase* sequence);  // without revealing it
    // The window is ready: texts that need files come in.
    void fillSlowTexts();
    void holdWork(bool held);              // thumbnails and texts wait
    void stopWork();                       // for good
    [[nodiscard]] bool isWorking() const;  // rows that show still wait for something

    [[nodiscard]] bool showsStudyInfo() const;
    void toggleInfoPane();
    void saveSplit() const;
    [[nodiscard]] ZELPatientOutlineView* outline() const { return _outline; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void applySavedSplit();

    std::unique_ptr<PatTreeDataSource> _source;
    QSplitter* _split;
    ZELPatientOutlineView* _outline;
    InfoPane* _info;
    QTimer _gridIDs;
    bool _splitIsApplied = false;
};

// The outline of patients, studies and sequences. It forwards: rows are its data source's, what a
// row looks like RowLook's, what its menu holds BrowserMenu's. Main thread only.
#pragma once
#include "browser/BrowserMenu.h"
#include "browser/PatTreeDataSource.h"

#include <QPersistentModelIndex>
#include <QTreeView>

class ZELPatientOutlineView final : public QTreeView {
    Q_OBJECT

public:
    // Both outlive the view.
    ZELPatientOutlineView(PatTreeDataSource* source, BrowserHost* host, QWidget* parent = nullptr);
    ~ZELPatientOutlineView() override;

    [[nodiscard]] PatTreeDataSource* dataSource() const { return _source; }
    void U_ExpandTreeToSequences();
    // Makes the sequence the target and selects its row alone; null: no target.
    void U_SelectRowFor_dkSequence(dk_SequenceBase* sequence, bool reveal);
    void setTargetNode(DicomElemChildNode* node, bool reveal);
    [[nodiscard]] std::vector<DicomElemChildNode*> selectedNodes() const;  // in tree order

    void keyboardSearch(const QString& text) override;
    // The menu of a row; of none for an invalid index.
    [[nodiscard]] MenuEntry menuForRow(const QModelIndex& index);
    [[nodiscard]] int contextualRowClicked() const { return _contextualRowClicked; }
    [[nodiscard]] bool contextualRowIsSelected() const { return _contextualRowIsSelected; }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& gone) override;

private:
    void observeGrids();
    void adaptToMode();
    void outlineViewSelectionDidChange();
    void activate(const QModelIndex& index);
    void relayoutRows();
    void forgetContextualRow();

    PatTreeDataSource* _source;
    BrowserHost* _host;
    const DicomElemChildNode* _selectedBefore = nullptr;  // a change of mode
    int _contextualRowClicked = -1;                       // of the rows that are there
    bool _contextualRowIsSelected = false;
    QTimer _relayout;
    std::vector<NotificationCenter::Observation> _observations;
};

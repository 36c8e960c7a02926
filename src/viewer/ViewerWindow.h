// A window on one opened tree: a list of its sequences, a grid of the chosen one, and a line below
// that says which frame is at hand. Files and folders dropped on it are opened. Main thread only.
#pragma once
#include "dicom_core/opening/RecentDocuments.h"
#include "viewer/GridsPane.h"
#include "viewer/SequenceListModel.h"

#include <QMainWindow>
#include <QString>
#include <functional>
#include <memory>

class QLabel;
class QTreeView;
class ViewerCommands;
class ZELDcmTree;

class ViewerWindow final : public QMainWindow {
public:
    // `commands` outlives the window. `represented` is the path (bytes) that the window is named
    // after.
    ViewerWindow(ViewerCommands* commands, std::unique_ptr<ZELDcmTree> tree,
                 const std::string& represented, const ZELRecentDocument& document);
    ~ViewerWindow() override;

    [[nodiscard]] const ZELRecentDocument& windowDoc() const { return _document; }
    void bringToFront();
    // Calls `painted` once, when the first frame has been painted in its final size.
    void whenPainted(std::function<void()> painted) { _whenPainted = std::move(painted); }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* addStatusLabel(bool stretched);
    void layOut();
    void layOutList();
    void onPainted();
    void showSequenceAt(const QModelIndex& row);
    void updateStatus();
    void setFileText(const GridsPane::Caption& caption);
    void setWindowText(const GridsPane::Caption& caption);

    ViewerCommands* _commands;
    ZELRecentDocument _document;
    std::unique_ptr<ZELDcmTree> _tree;
    GridsPane* _pane;              // a child, which goes before the tree
    SequenceListModel _sequences;  // rows of `_tree`
    QTreeView* _list;
    QLabel *_file, *_frame, *_window;
    std::function<void()> _whenPainted;
    bool _painted = false;
};

// A window on one opened tree: patients and study at its left, the grids of sequences in their
// layout, two tool bars, a line that says what is at hand. Files and folders dropped on it are
// opened. Main thread only.
#pragma once
#include "app/window/FullScreenPanes.h"
#include "app/window/GridsPane.h"
#include "app/window/WindowCommands.h"
#include "browser/BrowserHost.h"
#include "dicom_core/opening/RecentDocuments.h"

#include <QMainWindow>
#include <QString>
#include <functional>
#include <memory>

class AppCommands;
class MainToolBar;
class PatientPane;
class QSplitter;
class StatusLine;
class ZELDcmTree;
class zelParserVisit;

class ZELMainWindowController final : public QMainWindow,
                                      private GridsWindow,
                                      private BrowserHost,
                                      private WindowPanes {
    Q_OBJECT

public:
    // `app` outlives the window. `represented` is the path (bytes) that the window is named after.
    ZELMainWindowController(AppCommands* app, std::unique_ptr<ZELDcmTree> tree,
                            const std::string& represented, const ZELRecentDocument& document);
    ~ZELMainWindowController() override;

    [[nodiscard]] const ZELRecentDocument& windowDoc() const { return _windowDoc; }
    [[nodiscard]] ZELDcmTree& imagesDB() const { return *_imagesDB; }
    void bringToFront();
    [[nodiscard]] int activation() const { return _activation; }  // grows; 0: never active so far
    // The open has ended: keys go to the active grid.
    void setZelWindowIsReady();
    // From now on the window changes nothing any more, and plays nothing.
    void setWindowClosing();
    [[nodiscard]] bool listIsComplete() const;  // of what shows of it
    // Calls `painted` once: when the first frame has been painted, or, with `wholly`, all of them
    // in their final size.
    void whenPainted(bool wholly, std::function<void()> painted)
    {
        _whenPainted = std::move(painted);
        _wholly = wholly;
    }
    [[nodiscard]] GridsPane* pane() const { return _pane; }

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // GridsWindow, BrowserHost, and one that WindowPanes asks too
    [[nodiscard]] const void* windowKey() const override { return this; }
    [[nodiscard]] bool zelWindowIsReady() const override { return _zelWindowIsReady; }
    [[nodiscard]] bool windowIsClosing() const override { return _windowClosing; }
    [[nodiscard]] std::shared_ptr<ZELSequenceProxy> proxyOf(dk_SequenceBase* sequence) override;
    void updateNodeForSequence(dk_SequenceBase* sequence) override;
    [[nodiscard]] dk_SequenceBase* activeSequence() const override;
    [[nodiscard]] std::vector<dk_SequenceBase*> sequencesInGrids() const override;
    [[nodiscard]] bool windowHasSheetOpen() const override;
    [[nodiscard]] bool fastPatientListStartON() const override { return _fastPatientListStartON; }
    [[nodiscard]] bool inQTModalMode() const override;
    void doubleClickOnPatientListRow(dk_SequenceBase* sequence) override;
    void revealFiles(const std::vector<std::string>& paths) override;
    // WindowPanes
    [[nodiscard]] bool hasFeature(Feature feature) const override;
    [[nodiscard]] MultiGridViewController& multiGridController() const override;
    [[nodiscard]] bool isInFullScreen() const override { return isFullScreen(); }
    void zelToggleFullScreen() override;
    [[nodiscard]] bool showsToolbar() const override;
    void zelToggleToolbar() override;
    void customizeToolbar() override;
    [[nodiscard]] bool showsPatientList() const override;
    void showHidePatientList() override;
    [[nodiscard]] bool showsStudyInfo() const override;
    void showHideStudyInfo() override;
    [[nodiscard]] bool showsZELToolbar() const override;
    void showHideZELToolbar() override;
    [[nodiscard]] bool showsMeasurementInfoBox() const override { return false; }
    void showHideMeasurementInfoBox() override {}  // comes with measurements
    [[nodiscard]] bool showsMetadataPalette() const override { return false; }
    [[nodiscard]] std::vector<dk_SequenceBase*> selectedSequences() const override;
    [[nodiscard]] bool canSelectAllRows() const override;
    void selectAllRows() override;
    void openAdjustColorsDialog() override { _pane->openAdjustColorsDialog(); }
    void updateToolbarElements() override;

    void layOut();
    void setUpBoxes();
    void restoreSplit();
    void targetChanged(dk_SequenceBase* sequence);
    void onPainted();
    void windowDidBecomeKey();
    void postMainWindowChange(bool movingOut);
    void windowWillClose();
    // Runs `change`; the keys go on where they went before it.
    void keepingFocus(const std::function<void()>& change);

    AppCommands* _app;
    ZELRecentDocument _windowDoc;
    std::unique_ptr<ZELDcmTree> _imagesDB;
    PatientPane* _patients = nullptr;  // a child, which goes after the pane and before the tree
    GridsPane* _pane = nullptr;
    MainToolBar* _toolBar = nullptr;
    QWidget* infoBarBox = nullptr;  // the secondary tool bar
    QSplitter* _split = nullptr;
    StatusLine* _status = nullptr;
    FullScreenPanes _fullScreen{this};
    NotificationCenter::Observation _toolSelection;
    std::unique_ptr<zelParserVisit> _firstFile;  // until the first frame has been painted
    std::function<void()> _whenPainted;
    int _activation = 0;
    bool _painted = false, _showsAll = false, _wholly = true;
    bool _firstTimeFlag = true;  // it has not been the key window yet
    bool _windowClosing = false, _zelWindowIsReady = false;
    bool _fastPatientListStartON = true;  // rows make do with what is known without files
};

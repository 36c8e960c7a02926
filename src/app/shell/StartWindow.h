// What the program shows while no patient is open: a menu, what was open lately, and a place to
// drop files on. Closing it ends the program. Main thread only.
#pragma once
#include "dicom_core/opening/RecentDocuments.h"

#include <QMainWindow>

class AppCommands;
class QListWidget;

class StartWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit StartWindow(AppCommands* app);
    void reloadRecents();  // if they are others than those that show

signals:
    void closed();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addMenus();

    AppCommands* _app;
    QListWidget* _recents;
    std::vector<ZELRecentDocument> _shown;  // a row each
};

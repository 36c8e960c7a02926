// The window: a photo view of one frame at a time, with a line below that says which. Pages by
// wheel, scroll bar, arrow keys, Page Up and Down, Home and End. Main thread only.
#pragma once
#include "app/views/MUPhotoView.h"
#include "viewer/FrameListDelegate.h"

#include <QMainWindow>
#include <QString>
#include <QTimer>

class QLabel;

class ViewerWindow final : public QMainWindow {
public:
    // `delegate` outlives the window; headers that it has not read yet are read after the first
    // painting, between other events. When none of them was readable the program ends with code 1.
    explicit ViewerWindow(FrameListDelegate* delegate);

    // Once everything is read and painted, saves a picture of the window there and ends the
    // program: with code 0, or 1 when it can't be saved.
    void saveSnapshotTo(const QString& path) { _snapshotPath = path; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* addStatusLabel(bool stretched);
    void onPainted();
    void readMoreHeaders();
    void updateStatus();
    void setFileText(const FrameListDelegate::Caption& caption);
    void setWindowText(const FrameListDelegate::Caption& caption);
    void saveSnapshot();

    FrameListDelegate* _delegate;
    MUPhotoView* _view;
    QLabel *_file, *_frame, *_window;
    QTimer _headers;  // runs while headers are left to read
    QString _snapshotPath;
    bool _painted = false;
};

// The line at the foot of a window: which file, which frame, which window of values is at hand.
// Main thread only.
#pragma once
#include "app/window/GridsPane.h"

#include <QStatusBar>

class QLabel;

class StatusLine final : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);
    void updateFrom(const GridsPane& pane);
    // The same in one sentence, for those who can't see the picture.
    [[nodiscard]] QString description() const;

private:
    QLabel* addLabel(bool stretched);
    void setFileText(const GridsPane& pane, const GridsPane::Caption& caption);
    void setWindowText(const GridsPane::Caption& caption);

    QLabel *_file, *_frame, *_window;
};

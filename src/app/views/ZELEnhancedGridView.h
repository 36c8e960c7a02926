// A grid's view with its keyboard: from frame to frame, to other sequences, play and stop, moves
// and deletion of measurements. Main thread only.
#pragma once
#include "app/views/ZELSequenceGridView.h"

class ZELEnhancedGridView : public ZELSequenceGridView {
    Q_OBJECT

public:
    using ZELSequenceGridView::ZELSequenceGridView;

protected:
    // Keys without a meaning here go nowhere else.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void handleKey_Arrow(int key);
    void handleKey_Space();
    void handleKey_Delete();
};

// Serves a photo view with the frames of a sequence: cell i shows frame i + 1. A picture is
// rendered when it is first shown, by a document that is dropped again; those shown last are kept.
// Main thread only.
#pragma once
#include "app/views/MUPhotoViewDelegate.h"
#include "util/RecentItems.h"

#include <QSizeF>
#include <string>

class dk_SequenceBase;

class SequenceDelegate final : public MUPhotoViewDelegate {
public:
    // What is said of a frame under its picture.
    struct Caption {
        std::string path;
        int frame = 1, framesOfFile = 1;
        bool failed = false;          // its picture could not be made
        bool hasWindow = false;       // gray, and its picture has been made
        double width = 0, level = 0;  // user values
    };

    SequenceDelegate();

    // Not owned; null for no frames. Pictures of the one before are dropped.
    void setSequence(dk_SequenceBase* sequence);
    [[nodiscard]] Caption captionAtIndex(int index);

    [[nodiscard]] int photoCountForPhotoView() const override { return _count; }
    // Fitted to the content when larger; a smaller frame takes a view point a pixel. A frame that
    // can't be made is logged, and tried again once another has been asked for.
    [[nodiscard]] MUPhoto photoAtIndex(int index, const QSizeF& contentSize,
                                       double pixelRatio) override;
    [[nodiscard]] MUPhoto fastPhotoAtIndex(int index, const QSizeF& contentSize) override;

private:
    struct Photo {
        QImage image;     // at the size in which it was last shown
        QSize frameSize;  // pixels of the frame itself, made square
        bool hasWindow = false;
        double width = 0, level = 0;
    };

    [[nodiscard]] MUPhoto makePhoto(int index, const QSizeF& contentSize, double pixelRatio);

    dk_SequenceBase* _sequence = nullptr;
    int _count = 0;
    int _failedIndex = -1;  // the frame asked for last, when it could not be made
    RecentItems<int, Photo> _photos;
};

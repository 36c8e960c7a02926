// Serves a photo view with the frames of a list of files: cell i shows frame i of them all. A file
// is opened when a frame of it is first shown; few stay open, and the pictures shown last are kept.
// Main thread only.
#pragma once
#include "app/views/MUPhotoViewDelegate.h"
#include "dicom_core/imaging/FramePicture.h"
#include "viewer/FrameList.h"
#include "viewer/RecentItems.h"

#include <QSizeF>
#include <cstddef>
#include <memory>
#include <string>

class FrameListDelegate final : public MUPhotoViewDelegate {
public:
    // What is said of a frame under its picture.
    struct Caption {
        std::string path;
        int frame = 1, framesOfFile = 1;
        bool failed = false;          // its picture could not be made
        bool hasWindow = false;       // gray, and its picture has been made
        double width = 0, level = 0;  // user values
    };

    explicit FrameListDelegate(FrameList frames = {});

    void setFrames(FrameList frames);
    [[nodiscard]] const FrameList& frames() const { return _frames; }
    [[nodiscard]] Caption captionAtIndex(int index);

    [[nodiscard]] int photoCountForPhotoView() const override { return _frames.FrameCount(); }
    // Fitted to the content when larger; a smaller frame takes a view point a pixel. A frame that
    // can't be made is logged, and tried again once another has been asked for.
    [[nodiscard]] MUPhoto photoAtIndex(int index, const QSizeF& contentSize,
                                       double pixelRatio) override;
    [[nodiscard]] MUPhoto fastPhotoAtIndex(int index, const QSizeF& contentSize) override;

private:
    struct Photo {
        QImage image;     // at the size in which it was last shown
        QSize frameSize;  // pixels of the frame itself
        bool hasWindow = false;
        double width = 0, level = 0;
    };

    [[nodiscard]] MUPhoto makePhoto(int index, const QSizeF& contentSize, double pixelRatio);
    [[nodiscard]] FramePicture* pictureOf(std::size_t file);
    [[nodiscard]] FramePicture* loadedPicture(const FrameList::Place& place);

    FrameList _frames;
    int _failedIndex = -1;  // the frame asked for last, when it could not be made
    RecentItems<std::size_t, std::unique_ptr<FramePicture>> _pictures;  // by file of `_frames`
    RecentItems<int, Photo> _photos;                                    // by index
};

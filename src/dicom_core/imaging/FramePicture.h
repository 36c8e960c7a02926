// One file's frames as pictures: decode once, then only window. No tree, no documents.
// A picture belongs to one thread at a time.
#pragma once
#include "dicom_core/look/zel_TransformRec.h"
#include "util/PixMap.h"
#include "util/StatusCodes.h"

#include <memory>
#include <string>

class FramePicture {
public:
    // Opens the file at `path` (bytes) and reads its header. On failure `why` gets one plain line.
    [[nodiscard]] static QvxStatus Open(const std::string& path,
                                        std::unique_ptr<FramePicture>* picture, std::string* why);
    ~FramePicture();

    [[nodiscard]] const std::string& Path() const;
    [[nodiscard]] int FrameCount() const;  // frames whose bytes are there, at least 1
    [[nodiscard]] int Width() const;       // pixels of every frame
    [[nodiscard]] int Height() const;
    [[nodiscard]] bool IsGray() const;
    // Makes frame `frame` (from 1) the current one: decodes it unless it is already, and sets its
    // window up: the file's own, or the full range.
    [[nodiscard]] QvxStatus LoadFrame(int frame);
    // Look of the current frame; after a change call Render again.
    [[nodiscard]] zel_TransformRec& Transform();
    // Writes the current frame, windowed, into a map of Width by Height pixels of
    // kPixelFormatARGB32 (bytes A, R, G, B in memory).
    [[nodiscard]] QvxStatus Render(const PixMap& argb);

private:
    FramePicture();
    struct Body;
    std::unique_ptr<Body> fBody;
};

// Decoded pictures as samples of a frame: RGB or gray. Internal.
#pragma once
#include "QvxToolkit/modules/VideoParts.h"
#include <cstdint>
#include <vector>

struct SwsContext;

class VideoPixels {
public:
    explicit VideoPixels(const QvxVideoFormat& format) : fFormat(format) {}
    ~VideoPixels();
    VideoPixels(const VideoPixels&) = delete;
    VideoPixels& operator=(const VideoPixels&) = delete;

    // By the picture's own range and matrix, into rows * columns * samples without gaps. Where a
    // picture names no matrix, that of its size: BT.709 above 576 lines.
    [[nodiscard]] QvxVideoResult Convert(const AVFrame& picture, void* dest);

private:
    [[nodiscard]] bool Prepare(const AVFrame& picture);

    QvxVideoFormat fFormat;
    SwsContext* fScaler = nullptr;
    std::vector<std::uint8_t> fRows;  // with room behind each: the scaler writes whole vectors
};

// A number that two pictures share only if they are the same.
[[nodiscard]] std::uint64_t HashOfPicture(const AVFrame& picture);

#include "viewer/FrameListDelegate.h"

#include "util/Log.h"

#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr std::size_t kOpenPicturesLimit = std::size_t{256} << 20;  // bytes, of open files
constexpr std::size_t kPhotosLimit = std::size_t{128} << 20;        // bytes, of finished pictures
constexpr int kLongestSide = 32767;  // pixels: what the bounds of a pixel map can say

// What an open picture may hold: its header, its frame map, one frame decoded.
std::size_t BytesOf(const FramePicture& picture)
{
    constexpr std::size_t kHeader = 64 << 10, kMapEntry = 16, kPixel = 6;
    const auto width = static_cast<std::size_t>(std::max(0, picture.Width()));
    const auto height = static_cast<std::size_t>(std::max(0, picture.Height()));
    return kHeader + kMapEntry * static_cast<std::size_t>(picture.FrameCount()) +
           kPixel * width * height;
}

// The whole frame as an image; null when it can't be made.
QImage RenderedImage(FramePicture* picture)
{
    const int width = picture->Width(), height = picture->Height();
    if (width < 1 || height < 1 || width > kLongestSide || height > kLongestSide)
        return {};
    QImage image(width, height, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    PixMap map;
    map.baseAddr = image.bits();
    map.rowBytes = static_cast<std::int32_t>(image.bytesPerLine());
    map.bounds = {0, 0, static_cast<std::int16_t>(height), static_cast<std::int16_t>(width)};
    map.pixelFormat = kPixelFormatARGB32;
    map.pixelSize = 32;
    map.cmpCount = 4;
    map.cmpSize = 8;
    if (picture->Render(map) != kQvxOK)
        return {};
    // Bytes A, R, G, B are a big-endian word of what Qt keeps in the host's order.
    qFromBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, image.bits());
    return image;
}

QSizeF FittedSize(const QSize& frame, const QSizeF& content)
{
    const double zoom =
        std::min({1.0, content.width() / frame.width(), content.height() / frame.height()});
    return QSizeF(frame) * std::max(0.0, zoom);
}

QSize DeviceSize(const QSizeF& size, double pixelRatio)
{
    return {std::max(1, static_cast<int>(std::lround(size.width() * pixelRatio))),
            std::max(1, static_cast<int>(std::lround(size.height() * pixelRatio)))};
}

}  // namespace

FrameListDelegate::FrameListDelegate(FrameList frames)
    : _frames(std::move(frames)), _pictures(kOpenPicturesLimit), _photos(kPhotosLimit)
{
}

void FrameListDelegate::setFrames(FrameList frames)
{
    *this = FrameListDelegate(std::move(frames));
}

FramePicture* FrameListDelegate::pictureOf(std::size_t file)
{
    if (auto* kept = _pictures.Find(file))
        return kept->get();
    std::unique_ptr<FramePicture> picture;
    std::string why;
    if (FramePicture::Open(_frames.PathOf(file), &picture, &why) != kQvxOK) {
        LogLine(_frames.PathOf(file) + ": " + why);
        return nullptr;
    }
    const std::size_t bytes = BytesOf(*picture);
    return _pictures.Put(file, std::move(picture), bytes)->get();
}

FramePicture* FrameListDelegate::loadedPicture(const FrameList::Place& place)
{
    FramePicture* picture = pictureOf(place.file);
    if (!picture)
        return nullptr;
    const QvxStatus status = picture->LoadFrame(place.frame);
    if (status == kQvxOK)
        return picture;
    LogLine(picture->Path() + ": frame " + std::to_string(place.frame) + ": " +
            std::string(StatusText(status)));
    return nullptr;
}

MUPhoto FrameListDelegate::photoAtIndex(int index, const QSizeF& contentSize, double pixelRatio)
{
    if (const Photo* kept = _photos.Find(index)) {
        const QSizeF size = FittedSize(kept->frameSize, contentSize);
        if (kept->image.size() == DeviceSize(size, pixelRatio))
            return {kept->image, size};
    }
    if (index == _failedIndex)  // not decoded again at each painting
        return {};
    MUPhoto photo = makePhoto(index, contentSize, pixelRatio);
    _failedIndex = photo.isNull() ? index : -1;
    return photo;
}

MUPhoto FrameListDelegate::makePhoto(int index, const QSizeF& contentSize, double pixelRatio)
{
    FramePicture* picture = loadedPicture(_frames.PlaceOf(index));
    QImage image = picture ? RenderedImage(picture) : QImage();
    if (image.isNull())
        return {};
    const QSize frameSize = image.size();
    const QSizeF size = FittedSize(frameSize, contentSize);
    const QSize deviceSize = DeviceSize(size, pixelRatio);
    if (deviceSize != frameSize)
        image = image.scaled(deviceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (image.isNull())
        return {};
    const zel_TransformRec& look = picture->Transform();
    const auto bytes = static_cast<std::size_t>(image.sizeInBytes());
    _photos.Put(
        index,
        {image, frameSize, picture->IsGray() && look.voiWidth > 0, look.voiWidth, look.voiLevel},
        bytes);
    return {image, size};
}

MUPhoto FrameListDelegate::fastPhotoAtIndex(int index, const QSizeF& contentSize)
{
    const Photo* kept = _photos.Find(index);
    return kept ? MUPhoto{kept->image, FittedSize(kept->frameSize, contentSize)} : MUPhoto{};
}

FrameListDelegate::Caption FrameListDelegate::captionAtIndex(int index)
{
    const FrameList::Place place = _frames.PlaceOf(index);
    Caption caption{_frames.PathOf(place.file), place.frame, _frames.FramesOf(place.file)};
    caption.failed = index == _failedIndex;
    if (const Photo* photo = _photos.Find(index)) {
        caption.hasWindow = photo->hasWindow;
        caption.width = photo->width;
        caption.level = photo->level;
    }
    return caption;
}

// What a photo view asks of whoever knows the pictures. Main thread only.
#pragma once
#include <QImage>
#include <QSizeF>

class QPainter;
class QRectF;

struct MUPhoto {
    QImage image;  // null: there is none. Its device pixel ratio stays 1.
    QSizeF size;   // view points that the whole image takes up; a larger one shows its middle

    [[nodiscard]] bool isNull() const { return image.isNull(); }
};

class MUPhotoViewDelegate {
public:
    virtual ~MUPhotoViewDelegate() = default;

    [[nodiscard]] virtual int photoCountForPhotoView() const = 0;
    // The picture of cell `index` (from 0) for a cell with room for `contentSize` view points of
    // `pixelRatio` device pixels each. It comes out sharp, and is only copied, when the image has
    // as many pixels as `size` has device pixels, rounded. A null photo when it can't be made.
    [[nodiscard]] virtual MUPhoto photoAtIndex(int index, const QSizeF& contentSize,
                                               double pixelRatio) = 0;
    // A picture that is at hand without work, of whatever resolution, for `size` as it is now; null
    // when there is none. Asked for while the view is being resized.
    [[nodiscard]] virtual MUPhoto fastPhotoAtIndex(int index, const QSizeF& contentSize) = 0;
    // Draws what lies over the photo, fresh at each painting. `cell` and `image`, the place that
    // the photo took within it, are in the painter's coordinates, y downward; it clips to the cell.
    virtual void drawOverPhotoAtIndex(int /*index*/, QPainter* /*painter*/, const QRectF& /*cell*/,
                                      const QRectF& /*image*/)
    {
    }
};

// A plain drawable: bounds, fill, stroke, each watched under its key. Main thread only.
#pragma once
#include "platform/ObservableKeys.h"

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <cstdint>

// What a handle is called: 0 none, 1 top left, 2 top middle, 3 top right, 4 left, 5 right, 6 bottom
// left, 7 bottom middle, 8 bottom right. Some classes give the numbers other meanings.
using ShapeHandle = std::int32_t;
inline constexpr ShapeHandle kNoHandle = 0;

// Keys: "bounds", "drawingFill", "fillColor", "drawingStroke", "strokeColor", "strokeWidth",
// "locked". From them follow "drawingBounds", "drawingContents", "xPosition", "yPosition", "width",
// "height", "statisticsText", and what a measurement calls its fill and stroke ("hasFillON",
// "fillColorCK", "fillOpacity", "hasStrokeON", "strokeColorCK", "strokeOpacity", "strokeWidthCK",
// "strokeWidthString").
class CKGraphic : public ObservableKeys {
public:
    CKGraphic();  // fill and stroke in the colours of the preferences
    virtual ~CKGraphic() = default;

    // View coordinates of the gesture that made it; what is measured doesn't come from here.
    [[nodiscard]] const QRectF& bounds() const { return _bounds; }
    void setBounds(const QRectF& bounds);
    [[nodiscard]] bool isDrawingFill() const { return _isDrawingFill; }
    void setDrawingFill(bool on);
    [[nodiscard]] const QColor& fillColor() const { return _fillColor; }
    void setFillColor(const QColor& color);
    [[nodiscard]] bool isDrawingStroke() const { return _isDrawingStroke; }
    void setDrawingStroke(bool on);
    [[nodiscard]] const QColor& strokeColor() const { return _strokeColor; }
    void setStrokeColor(const QColor& color);
    [[nodiscard]] float strokeWidth() const { return _strokeWidth; }  // points of the screen
    void setStrokeWidth(float width);
    [[nodiscard]] bool isLocked() const { return _locked; }
    void setLocked(bool locked);

    // What drawing it touches, in the coordinates of `bounds`.
    [[nodiscard]] virtual QRectF drawingBounds() const;
    // The shape in frame pixels; the base has none, and logs that.
    [[nodiscard]] virtual QPainterPath bezierPathForDrawing() const;
    [[nodiscard]] virtual ShapeHandle creationSizingHandle() const { return 8; }
    // The point lies in the square of 6 around the handle's place.
    [[nodiscard]] virtual bool isHandleAtPoint(const QPointF& handle, const QPointF& point) const;

protected:
    void copyDrawingOf(const CKGraphic& other);
    [[nodiscard]] QRectF grownBounds() const;  // by what stroke and handles take

private:
    template <typename Value>
    void change(std::string_view key, Value* field, const Value& value)
    {
        Announce({key}, [&] { *field = value; });
    }

    QRectF _bounds;
    bool _isDrawingFill = false;
    QColor _fillColor;
    bool _isDrawingStroke = true;
    QColor _strokeColor;
    float _strokeWidth = 2;
    bool _locked = false;
};

// The colour of a preference.
struct ZELColor;
[[nodiscard]] QColor ColorOf(const ZELColor& color);

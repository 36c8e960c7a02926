// A proxy's zoom, windows, colours and turns.
#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/look/LocationMaths.h"
#include "dicom_core/look/WindowText.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "util/Log.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::int32_t kMostBnC = 100;
constexpr std::array<std::string_view, 2> kWindowKeys{"currentWLContrast", "currentWWBrightness"};
constexpr std::array<std::string_view, 4> kColorKeys{"currentWLContrast", "currentWWBrightness",
                                                     "currentClutID", "currentFrameIsInverted"};

std::int32_t Selector(bool all)
{
    return all ? ZELSequenceProxy::kAllFrames : ZELSequenceProxy::kCurrentFrame;
}

std::int32_t Truncated(double value)
{
    return static_cast<std::int32_t>(std::clamp(std::trunc(value), -2147483648.0, 2147483647.0));
}

// The limits of a frame's zoom, in tenths of a percent.
struct ZoomLimits {
    double minimum, maximum;
};

ZoomLimits LimitsOf(dk_ImageFrameInfo* info)
{
    Point size;
    if (!info || info->GetFrameSize(&size))
        size = {};
    double minimum = 1, maximum = 1;
    QT_ImageZoomLimits(size.h, size.v, &minimum, &maximum);
    return {minimum * 1000, maximum * 1000};
}

}  // namespace

// ---- zoom and pan ----

float ZELSequenceProxy::currentZoom() const
{
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    return record ? static_cast<float>(record->zoom * 100.0 / kZoomOne) : 0;
}

QString ZELSequenceProxy::currentZoomString() const
{
    if (!recordOf(kCurrentFrame))
        return QStringLiteral("0.0%%");
    return QString::number(currentZoom(), 'f', 1) + QLatin1Char('%');
}

bool ZELSequenceProxy::zoomIsAutoFit() const
{
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    return record && record->autoFit;
}

void ZELSequenceProxy::changeZoomForFrame(std::int32_t selector, double percent)
{
    static constexpr std::array<std::string_view, 3> kKeys{"zoomIsAutoFit", "currentScroll",
                                                           "currentZoom"};
    if (!isGood() || !table())
        return;
    const std::int32_t zoom = Truncated(percent / 100 * kZoomOne);
    announceIf(touchesCurrentFrame(selector), kKeys, [&] {
        const bool all = selector == kAllFrames;
        const std::int32_t one = selector == kCurrentFrame ? currentFrame() : selector;
        for (std::int32_t frame = all ? 1 : one; frame <= (all ? totalFrames() : one); ++frame) {
            if (zel_GridFrameInfoItem* cell = _theSequence->GetCellInfo(frame))
                cell->vertScale = cell->horzScale = zoom;
        }
        if (zoom >= 1)
            table()->SetFrameZoom(selector, zoom);
        table()->SetFrameAutoFit(selector, false);
    });
}

void ZELSequenceProxy::zoomAutofitForFrame(std::int32_t selector)
{
    static constexpr std::array<std::string_view, 3> kKeys{"zoomIsAutoFit", "currentZoom",
                                                           "currentScroll"};
    if (table())
        announceIf(touchesCurrentFrame(selector), kKeys,
                   [&] { table()->SetFrameAutoFit(selector, true); });
}

bool ZELSequenceProxy::hasPrevZoom() const
{
    const double tenths = currentZoom() * 10.0;
    const double n = std::trunc(tenths + 0.5);
    return tenths > 0 && n >= 51 && LimitsOf(frameInfo(kCurrentFrame)).minimum < n;
}

bool ZELSequenceProxy::hasNextZoom() const
{
    const double tenths = currentZoom() * 10.0;
    const double n = std::trunc(tenths + 0.5);
    return tenths > 0 && n <= 8000 && LimitsOf(frameInfo(kCurrentFrame)).maximum > n;
}

QPointF ZELSequenceProxy::scrollForFrame(std::int32_t frame) const
{
    const zel_TransformRec* record = recordOf(frame);
    return record ? QPointF(record->scroll.x, record->scroll.y) : QPointF();
}

void ZELSequenceProxy::changeScrollPositionForAllFrames(bool all, const QPointF& scroll)
{
    const CGPoint point{static_cast<float>(scroll.x()), static_cast<float>(scroll.y())};
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    if (record && point != record->scroll)
        Announce({"currentScroll"}, [&] { table()->SetFrameScroll(Selector(all), point); });
}

// ---- window and level, or brightness and contrast ----

std::int32_t ZELSequenceProxy::pairValue(std::int32_t frame, Member window,
                                         std::int32_t otherwise) const
{
    const zel_TransformRec* record = recordOf(frame);
    if (!record)
        return 0;
    return isDICOMGray() ? Truncated(record->*window) : otherwise;
}

std::int32_t ZELSequenceProxy::theWWBrightnessForFrame(std::int32_t frame) const
{
    const zel_TransformRec* record = recordOf(frame);
    return pairValue(frame, &zel_TransformRec::voiWidth, record ? record->brightness : 0);
}

std::int32_t ZELSequenceProxy::theOriginalWWBrightnessForFrame(std::int32_t frame) const
{
    return pairValue(frame, &zel_TransformRec::voiWidthOriginal, 0);
}

std::int32_t ZELSequenceProxy::theMinWWBrightnessForFrame(std::int32_t frame) const
{
    return pairValue(frame, &zel_TransformRec::voiWidthMin, -kMostBnC);
}

std::int32_t ZELSequenceProxy::theMaxWWBrightnessForFrame(std::int32_t frame) const
{
    return pairValue(frame, &zel_TransformRec::voiWidthMax, kMostBnC);
}

std::int32_t ZELSequenceProxy::theWLContrastForFrame(std::int32_t frame) const
{
    const zel_TransformRec* record = recordOf(frame);
    return pairValue(frame, &zel_TransformRec::voiLevel, record ? record->contrast : 0);
}

std::int32_t ZELSequenceProxy::theOriginalWLContrastForFrame(std::int32_t frame) const
{
    return pairValue(frame, &zel_TransformRec::voiLevelOriginal, 0);
}

std::int32_t ZELSequenceProxy::theMinWLContrastForFrame(std::int32_t frame) const
{
    return pairValue(frame, &zel_TransformRec::voiLevelMin, -kMostBnC);
}

std::int32_t ZELSequenceProxy::theMaxWLContrastForFrame(std::int32_t frame) const
{
    return pairValue(frame, &zel_TransformRec::voiLevelMax, kMostBnC);
}

QString ZELSequenceProxy::pairString(Member window, std::int32_t zel_TransformRec::* other) const
{
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    if (!record)
        return QStringLiteral("0.0%%");
    if (isDICOMGray())
        return QString::fromStdString(WindowValueText(record->voiInfo, record->*window));
    const std::int32_t value = record->*other;
    return QLatin1String(value > 0 ? "+" : "") + QString::number(value) + QLatin1Char('%');
}

QString ZELSequenceProxy::brightnessString() const
{
    return pairString(&zel_TransformRec::voiWidth, &zel_TransformRec::brightness);
}

QString ZELSequenceProxy::contrastString() const
{
    return pairString(&zel_TransformRec::voiLevel, &zel_TransformRec::contrast);
}

void ZELSequenceProxy::setCurrentWWBrightness(std::int32_t value)
{
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    if (!record || value == currentWWBrightness())
        return;
    Announce({"currentWWBrightness"}, [&] {
        if (isDICOMGray())
            table()->SetFrameVOI(kCurrentFrame, static_cast<float>(value), record->voiLevel);
        else
            table()->SetFrameBnC(kCurrentFrame, value, record->contrast);
    });
}

void ZELSequenceProxy::setCurrentWLContrast(std::int32_t value)
{
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    if (!record || value == currentWLContrast())
        return;
    Announce({"currentWLContrast"}, [&] {
        if (isDICOMGray())
            table()->SetFrameVOI(kCurrentFrame, record->voiWidth, static_cast<float>(value));
        else
            table()->SetFrameBnC(kCurrentFrame, record->brightness, value);
    });
}

void ZELSequenceProxy::changeBnCForAllFrames(bool all, std::int32_t brightness,
                                             std::int32_t contrast)
{
    if (table())
        Announce(kWindowKeys, [&] { table()->SetFrameBnC(Selector(all), brightness, contrast); });
}

void ZELSequenceProxy::changeVOIForAllFrames(bool all, float width, float level)
{
    if (table())
        Announce(kWindowKeys, [&] { table()->SetFrameVOI(Selector(all), width, level); });
}

void ZELSequenceProxy::changeVOITableForAllFrames(bool all,
                                                  const std::shared_ptr<const zelVOITable>& voi)
{
    if (table())
        Announce(kWindowKeys, [&] { table()->SetFrameVOITable(Selector(all), voi); });
}

// ---- colours and turns ----

std::int32_t ZELSequenceProxy::currentClutID() const
{
    const dk_ImageFrameInfo* info = frameInfo(kCurrentFrame);
    return info ? info->fColorTable : 0;
}

void ZELSequenceProxy::setClutIDTo(std::int32_t clut, bool all)
{
    if (table())
        Announce({"currentClutID"}, [&] { table()->SetFrameColorTable(Selector(all), clut); });
}

void ZELSequenceProxy::invertColorsForFrame(std::int32_t selector)
{
    static constexpr std::array<std::string_view, 1> kKeys{"currentFrameIsInverted"};
    if (table())
        announceIf(touchesCurrentFrame(selector), kKeys, [&] { table()->InvertFrame(selector); });
}

bool ZELSequenceProxy::currentFrameIsInverted() const
{
    const zel_TransformRec* record = recordOf(kCurrentFrame);
    return record && record->invert;
}

void ZELSequenceProxy::setCurrentFrameIsInverted(bool /*inverted*/)
{
    LogLine("ERROR: setCurrentFrameIsInverted in ZELSequenceProxy should not be called");
}

float ZELSequenceProxy::rotationForFrame(std::int32_t frame) const
{
    const zel_TransformRec* record = recordOf(frame);
    return record ? static_cast<float>(record->rotation) : 0;
}

void ZELSequenceProxy::changeRotationForFrame(std::int32_t selector, std::int16_t degrees)
{
    static constexpr std::array<std::string_view, 1> kKeys{"currentRotation"};
    if (table())
        announceIf(touchesCurrentFrame(selector), kKeys,
                   [&] { table()->RotateFrame(selector, degrees); });
}

void ZELSequenceProxy::originalColorsForAllFrames(bool all)
{
    if (table())
        Announce(kWindowKeys, [&] { table()->RevertFrame(Selector(all), kRevertWindow); });
}

void ZELSequenceProxy::resetColorsForAllFrames(bool all)
{
    if (table())
        Announce(kColorKeys, [&] { table()->RevertFrame(Selector(all), kRevertColors); });
}

void ZELSequenceProxy::resetCLUTsForAllFrames(bool all)
{
    if (table())
        Announce({"currentClutID"},
                 [&] { table()->RevertFrame(Selector(all), kRevertColorTable); });
}

namespace {

// A turn by 0 is any angle that is no quarter: the record takes it back to upright.
void ResetOrientation(dk_SequenceFrameInfo* table, std::int32_t selector)
{
    table->ResetFrameFlips(selector);
    table->RotateFrame(selector, 0);
}

}  // namespace

void ZELSequenceProxy::resetOrientationForAllFrames(bool all)
{
    if (table())
        Announce({"currentRotation"}, [&] { ResetOrientation(table(), Selector(all)); });
}

void ZELSequenceProxy::resetAllForAllFrames(bool all)
{
    if (!table())
        return;
    Announce({"currentWLContrast", "currentWWBrightness", "currentClutID", "currentFrameIsInverted",
              "currentScroll", "currentRotation"},
             [&] {
                 table()->RevertFrame(Selector(all), kRevertColors);
                 ResetOrientation(table(), Selector(all));
             });
}

#include "QvxToolkit/QvxRescale.h"

#include "QvxToolkit/QvxHeaderValue.h"
#include <cmath>

namespace {

constexpr QvxElementTag kTagIntercept{0x0028, 0x1052};
constexpr QvxElementTag kTagSlope{0x0028, 0x1053};
constexpr QvxElementTag kTagPixelValueTransformation{0x0028, 0x9145};
constexpr QvxElementTag kTagSharedGroups{0x5200, 0x9229};
constexpr QvxElementTag kTagFrameGroups{0x5200, 0x9230};

// Outside of these a slope is a mistake, and its products are no numbers.
constexpr double kLeastSlope = 1e-30, kGreatestRescale = 1e30;

struct Rescale {
    double fSlope = 1, fIntercept = 0;
    bool operator==(const Rescale&) const = default;
};

std::optional<Rescale> RescaleBelow(QvxParserRec* reader, QvxElementRef parent)
{
    const auto slope = QvxHeaderNumber(reader, parent, kTagSlope);
    const auto intercept = QvxHeaderNumber(reader, parent, kTagIntercept);
    if (!slope && !intercept)
        return std::nullopt;
    Rescale rescale;
    if (slope && std::abs(*slope) >= kLeastSlope && std::abs(*slope) <= kGreatestRescale)
        rescale.fSlope = *slope;
    if (intercept && std::abs(*intercept) <= kGreatestRescale)
        rescale.fIntercept = *intercept;
    return rescale;
}

std::optional<Rescale> RescaleOfGroups(QvxParserRec* reader, QvxElementRef groups)
{
    if (groups == QvxElementRef::None)
        return std::nullopt;
    const QvxElementRef item = QvxHeaderItem(reader, groups, kTagPixelValueTransformation);
    return item == QvxElementRef::None ? std::nullopt : RescaleBelow(reader, item);
}

std::optional<Rescale> RescaleOfAllFrames(QvxParserRec* reader)
{
    QvxElementRefArray items;
    if (Qvx2Reader_GetSequenceElementRefs(reader, kTagFrameGroups, &items) != kQvxOK)
        return std::nullopt;
    std::optional<Rescale> common;
    for (const QvxElementRef groups : QvxRefsOf(items)) {
        const auto rescale = RescaleOfGroups(reader, groups);
        if (!rescale || (common && *rescale != *common))
            return std::nullopt;
        common = rescale;
    }
    return common;
}

}  // namespace

void QvxReadRescale(QvxParserRec* reader, QvxFrameRecord* record)
{
    auto rescale = RescaleBelow(reader, QvxElementRef::None);
    if (!rescale)
        rescale =
            RescaleOfGroups(reader, QvxHeaderItem(reader, QvxElementRef::None, kTagSharedGroups));
    if (!rescale)
        rescale = RescaleOfAllFrames(reader);
    if (!rescale)
        return;
    record->fSlope = rescale->fSlope;
    record->fIntercept = rescale->fIntercept;
}

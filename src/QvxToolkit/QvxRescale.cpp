#include "QvxToolkit/QvxRescale.h"

#include "util/Log.h"

#include "QvxToolkit/QvxHeaderValue.h"
#include "QvxToolkit/QvxTables.h"
#include <cmath>
#include <new>

namespace {

constexpr QvxElementTag kTagIntercept{0x0028, 0x1052};
constexpr QvxElementTag kTagSlope{0x0028, 0x1053};
constexpr QvxElementTag kTagModalityTable{0x0028, 0x3000};
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

std::shared_ptr<const QvxFrameGroups> GroupsOf(QvxParserRec* reader)
{
    auto groups = std::make_shared<QvxFrameGroups>();
    groups->fShared = QvxHeaderItem(reader, QvxElementRef::None, kTagSharedGroups);
    groups->fOfFrame = QvxHeaderItems(reader, QvxElementRef::None, kTagFrameGroups);
    if (groups->fShared == QvxElementRef::None && groups->fOfFrame.empty())
        return nullptr;
    return groups;
}

// What holds for frames whose own groups are silent.
std::optional<Rescale> RescaleOfFile(QvxParserRec* reader, const QvxFrameGroups* groups)
{
    const auto shared = groups ? RescaleOfGroups(reader, groups->fShared) : std::nullopt;
    return shared ? shared : RescaleBelow(reader, QvxElementRef::None);
}

std::optional<Rescale> RescaleOfFrame(QvxParserRec* reader, const QvxFrameGroups& groups,
                                      std::size_t index)
{
    return index < groups.fOfFrame.size() ? RescaleOfGroups(reader, groups.fOfFrame[index])
                                          : std::nullopt;
}

std::shared_ptr<const QvxLookupTable> ModalityTable(QvxParserRec* reader,
                                                    const QvxFrameRecord& record)
{
    const QvxElementRef item = QvxHeaderItem(reader, QvxElementRef::None, kTagModalityTable);
    if (item == QvxElementRef::None)
        return nullptr;
    std::string why;
    auto table = QvxReadLookupTable(reader, item, record.fByteOrder, &why);
    if (!table) {
        LogLine("the modality table (0028,3000) is ignored: " + why);
        return nullptr;
    }
    if (record.fSigned)
        QvxReadFirstAsSigned(&*table);
    return std::make_shared<const QvxLookupTable>(std::move(*table));
}

}  // namespace

void QvxReadRescale(QvxParserRec* reader, QvxFrameRecord* record)
{
    record->fGroups = GroupsOf(reader);
    const QvxFrameGroups* groups = record->fGroups.get();
    const auto ofFile = RescaleOfFile(reader, groups);
    Rescale first = ofFile.value_or(Rescale{});
    bool inGroups = groups && RescaleOfGroups(reader, groups->fShared);
    const std::size_t frames = groups ? groups->fOfFrame.size() : 0;
    for (std::size_t i = 0; i < frames; ++i) {
        const auto own = RescaleOfFrame(reader, *groups, i);
        inGroups = inGroups || own;
        const Rescale rescale = own ? *own : ofFile.value_or(Rescale{});
        if (i == 0)
            first = rescale;
        record->fFramesDiffer = record->fFramesDiffer || rescale != first;
    }
    record->fSlope = first.fSlope;
    record->fIntercept = first.fIntercept;
    if (!inGroups && record->IsGray() && record->fForm == QvxSampleForm::Integer)
        record->fModality = ModalityTable(reader, *record);
}

QvxStatus QvxRecordOfFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                           std::uint32_t frameNumber, QvxFrameRecord* frameRecord)
{
    if (!reader || !frameRecord || frameNumber < 1)
        return kQvxBadArgument;
    try {
        QvxFrameRecord made = record;
        if (record.fFramesDiffer && record.fGroups) {
            const QvxReaderUse use(reader);
            auto rescale = RescaleOfFrame(reader, *record.fGroups, frameNumber - 1);
            if (!rescale)
                rescale = RescaleOfFile(reader, record.fGroups.get());
            made.fSlope = rescale ? rescale->fSlope : 1;
            made.fIntercept = rescale ? rescale->fIntercept : 0;
        }
        *frameRecord = std::move(made);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

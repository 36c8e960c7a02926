#include "dicom_core/values/USRegions.h"

#include "dicom_core/values/ParserText.h"
#include "platform/Words.h"

#include <QString>
#include <algorithm>
#include <cmath>
#include <new>
#include <string>
#include <type_traits>

namespace {

constexpr QvxElementTag kTagModality{0x0008, 0x0060};
constexpr QvxElementTag kTagRegions{0x0018, 0x6011};
constexpr std::uint16_t kRegionGroup = 0x0018;
constexpr std::size_t kModalitySize = 16;  // with a terminator

constexpr const char* kNotAvailable = "N/A";

struct UnitKeys {
    const char* fTitle;
    const char* fValue;
};
// clang-format off
constexpr std::array<UnitKeys, 13> kUnitKeys{{
    // of a region's title        of a value                     (order of ROIUnitType)
    { "kRegionUnitStr_none",      "kLineUnits_Pix" },
    { "kRegionUnitStr_percent",   "kRegionPhysicalUnit_percent" },
    { "kRegionUnitStr_db",        "kRegionPhysicalUnit_db" },
    { "kLineUnits_cm",            "kLineUnits_cm" },
    { "kRegionUnitStr_sec",       "kRegionPhysicalUnit_sec" },
    { "kRegionUnitStr_hertz",     "kRegionPhysicalUnit_hertz" },
    { "kRegionUnitStr_dbsec",     "kRegionPhysicalUnit_dbsec" },
    { "kRegionUnitStr_cmsec",     "kRegionPhysicalUnit_cmsec" },
    { "kAreaUnits_cm2",           "kAreaUnits_cm2" },
    { "kRegionUnitStr_cm2sec",    "kRegionPhysicalUnit_cm2sec" },
    { "kRegionUnitStr_cm3",       "kRegionPhysicalUnit_cm3" },
    { "kRegionUnitStr_cm3sec",    "kRegionPhysicalUnit_cm3sec" },
    { "kRegionUnitStr_degrees",   "kRegionPhysicalUnit_degrees" },
}};
// clang-format on
constexpr UnitKeys kOtherUnitKeys{kNotAvailable, "kLineUnits_Pix"};

constexpr std::array kFormatKeys{"kRegionFormat_2D", "kRegionFormat_MMode",
                                 "kRegionFormat_Spectral", "kRegionFormat_WaveForm",
                                 "kRegionFormat_graphics"};  // spatial format 1 stands first

const UnitKeys& KeysOf(ROIUnitType unit)
{
    const auto row = static_cast<std::uint32_t>(unit);
    return row < kUnitKeys.size() ? kUnitKeys[row] : kOtherUnitKeys;
}

// The place `number` counts from 1; null when the table has no such place.
template <typename Table>
const char* KeyAt(const Table& table, std::int32_t number)
{
    const auto place = static_cast<std::uint32_t>(number) - 1;
    return place < table.size() ? table[place] : nullptr;
}

template <auto Field>
void Store(US_ROIRegDataRec& region, std::uint32_t value)
{
    region.*Field = static_cast<std::remove_reference_t<decltype(region.*Field)>>(value);
}

struct WholeField {
    std::uint16_t fElement;
    void (*fStore)(US_ROIRegDataRec& region, std::uint32_t value);
};
using Region = US_ROIRegDataRec;
constexpr auto kWholeFields = std::to_array<WholeField>({
    {0x6012, Store<&Region::fSpatialFormat>},
    {0x6014, Store<&Region::fDataType>},
    {0x6016, Store<&Region::fFlags>},
    {0x6018, Store<&Region::fX0>},
    {0x601A, Store<&Region::fY0>},
    {0x601C, Store<&Region::fX1>},
    {0x601E, Store<&Region::fY1>},
    {0x6020, Store<&Region::fReferenceX>},
    {0x6022, Store<&Region::fReferenceY>},
    {0x6024, Store<&Region::fUnitsX>},
    {0x6026, Store<&Region::fUnitsY>},
    {0x6044, Store<&Region::fPixelComponentOrganization>},
    {0x604C, Store<&Region::fPixelComponentPhysicalUnits>},
    {0x604E, Store<&Region::fPixelComponentDataType>},
});
constexpr std::uint16_t kElementDeltaX = 0x602C, kElementDeltaY = 0x602E;

// Only a double counts, and only a finite one: no length may come out as no number.
QvxStatus StoreDelta(ParserHandle parser, QvxElementRef element, double* delta)
{
    QvxElementValue value;
    const QvxStatus status = Qvx2Reader_GetElementDataAsValue(parser, element, 1, &value);
    if (!status && value.fType == QvxNumericValueType::Float64 && std::isfinite(value.fFloat64))
        *delta = value.fFloat64;
    return status;
}

QvxStatus StoreElement(ParserHandle parser, QvxElementRef element, US_ROIRegDataRec* region)
{
    QvxElementTag tag;
    if (const QvxStatus status = Qvx2Reader_GetElementTag(parser, element, &tag))
        return status;
    // Reads the value, so that its failure isn't taken for a 0.
    QvxElementDataInfo info;
    if (const QvxStatus status = Qvx2Reader_GetElementDataInfo(parser, element, &info))
        return status;
    if (tag.group != kRegionGroup)
        return kQvxOK;
    if (tag.element == kElementDeltaX)
        return StoreDelta(parser, element, &region->fPhysicalDeltaX);
    if (tag.element == kElementDeltaY)
        return StoreDelta(parser, element, &region->fPhysicalDeltaY);
    const auto field = std::ranges::find(kWholeFields, tag.element, &WholeField::fElement);
    if (field != kWholeFields.end())
        field->fStore(*region, GetNumericElemValueAsULong(parser, element, 1));
    return kQvxOK;
}

// False if the item can't be taken apart.
bool ReadRegion(ParserHandle parser, QvxElementRef item, US_ROIRegDataRec* region)
{
    QvxElementRefArray elements;
    if (Qvx2Reader_GetElementRefs(parser, item, &elements) || elements.IsNull())
        return false;
    US_ROIRegDataRec read;
    read.fPixelComponentOrganization = kNoPixelComponents;
    QvxStatus last = kQvxOK;
    for (const QvxElementRef element : QvxRefsOf(elements))
        last = StoreElement(parser, element, &read);
    if (!last)
        *region = read;
    return true;
}

QvxStatus CheckUltrasound(ParserHandle parser)
{
    std::string modality;
    if (const QvxStatus status =
            Parser_GetElementValueInCString(parser, QvxElementRef::None, kTagModality.group,
                                            kTagModality.element, 1, kModalitySize, &modality))
        return status;
    return modality == "US" || modality == "IVUS" ? kQvxOK : kQvxBadArgument;
}

// What a region is, in a word.
QString KindWord(const US_ROIRegDataRec& region)
{
    if (const char* format = KeyAt(kFormatKeys, region.fSpatialFormat))
        return ZelWord(kWordsMeasurements, format);
    if (const char* type = KeyAt(USRegionTitles, region.fDataType))
        return ZelWord(kWordsMenuItems, type);
    return ZelWord(kWordsMeasurements,
                   region.fDataType == 0 ? "kRegionFormat_none" : kNotAvailable);
}

}  // namespace

QvxStatus Parser_GetUSROIData(ParserHandle parser, std::vector<US_ROIRegDataRec>* regions)
{
    if (!parser || !regions)
        return kQvxBadArgument;
    const QvxReaderUse use(parser);
    if (const QvxStatus status = CheckUltrasound(parser))
        return status;
    QvxElementRefArray items;
    if (const QvxStatus status = Qvx2Reader_GetSequenceElementRefs(parser, kTagRegions, &items))
        return status;
    if (items.IsNull())
        return kQvxBadArgument;
    try {
        std::vector<US_ROIRegDataRec> read(QvxRefsOf(items).size());
        std::size_t place = 0;
        for (const QvxElementRef item : QvxRefsOf(items))
            place += ReadRegion(parser, item, &read[place]) ? 1 : 0;
        *regions = std::move(read);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

XRect US_RectOfRegion(const US_ROIRegDataRec& region)
{
    XRect rect;
    rect.left = region.fX0;
    rect.top = region.fY0;
    rect.right = region.fX1 + 1.0;
    rect.bottom = region.fY1 + 1.0;
    return rect;
}

const char* U_USRegionUnits_FormatStrForUnitType(ROIUnitType unit) { return KeysOf(unit).fTitle; }

const char* U_USRegion_UnitForUnitType(ROIUnitType unit) { return KeysOf(unit).fValue; }

QString U_MenuItemTitleForUSRegion(const US_ROIRegDataRec& region, std::int32_t index,
                                   bool withUnits)
{
    const QString number = QString::number(std::int64_t{index} + 1);
    QString title;
    if (const char* type = KeyAt(USRegionTitles, region.fDataType))
        title = ZelWord(kWordsMenuItems, withUnits ? "Num-title" : "Region # title")
                    .arg(number, ZelWord(kWordsMenuItems, type));
    else
        title = ZelWord(kWordsMenuItems, withUnits ? "Num-only" : "Region #").arg(number);
    if (!withUnits)
        return title;
    const auto unitWord = [](ROIUnitType unit) {
        return ZelWord(kWordsMeasurements, U_USRegionUnits_FormatStrForUnitType(unit));
    };
    return (title.isEmpty() ? KindWord(region) : title) +
           QStringLiteral(" (x:%1, y:%2)").arg(unitWord(region.fUnitsX), unitWord(region.fUnitsY));
}

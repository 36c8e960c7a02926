#include "dicom_core/values/ParserWindows.h"

#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/ParserValues.h"
#include "dicom_core/values/ValueList.h"

#include <algorithm>
#include <new>
#include <unordered_set>
#include <vector>

namespace {

constexpr QvxElementTag kTagWindowCenter{0x0028, 0x1050};
constexpr QvxElementTag kTagWindowWidth{0x0028, 0x1051};
constexpr QvxElementTag kTagWindowName{0x0028, 0x1055};

constexpr std::size_t kNameSize = 64;  // with a terminator

std::int32_t MultiplicityOf(ParserHandle parser, QvxElementRef element)
{
    std::int32_t multiplicity = 0;
    if (element == QvxElementRef::None ||
        Qvx2Reader_GetElementValueMultiplicity(parser, element, &multiplicity))
        return 0;
    return multiplicity;
}

std::int32_t NumberAt(ParserHandle parser, QvxElementRef element, std::int32_t index)
{
    std::int32_t number = 0;
    if (index < 1 || index > MultiplicityOf(parser, element) ||
        Parser_GetElementValueAsLong(parser, element, index, &number))
        return 0;
    return number;
}

// `count` values; those that the element lacks are 0.
std::vector<std::int32_t> NumbersOf(ParserHandle parser, QvxElementRef element, std::int32_t count)
{
    std::vector<std::int32_t> numbers;
    if (element != QvxElementRef::None &&
        Parser_GetElementValuesAsLongs(parser, element, count, &numbers))
        numbers.clear();
    numbers.resize(static_cast<std::size_t>(count));
    return numbers;
}

// Places (from 1) of the presets whose numbers no earlier one has. Throws std::bad_alloc.
std::vector<std::int32_t> UniquePlaces(ParserHandle parser, const zelWindowElements& elements)
{
    const std::int32_t count = std::min(WindowCount(parser, elements), kMaxUniquePresets);
    const auto centers = NumbersOf(parser, elements.fCenter, count);
    const auto widths = NumbersOf(parser, elements.fWidth, count);
    std::unordered_set<std::uint64_t> met;
    std::vector<std::int32_t> places;
    for (std::size_t i = 0; i < centers.size(); ++i) {
        const auto width = static_cast<std::uint32_t>(widths[i]);
        const auto center = static_cast<std::uint32_t>(centers[i]);
        if (met.insert(std::uint64_t{width} << 32 | center).second)
            places.push_back(static_cast<std::int32_t>(i + 1));
    }
    return places;
}

}  // namespace

zelWindowElements WindowElementsOfFile(ParserHandle parser)
{
    const auto find = [parser](QvxElementTag tag) { return TopLevelElement(parser, tag); };
    return {find(kTagWindowCenter), find(kTagWindowWidth), find(kTagWindowName)};
}

std::int32_t WindowCount(ParserHandle parser, const zelWindowElements& elements)
{
    return std::max(MultiplicityOf(parser, elements.fCenter), 0);
}

QvxStatus WindowPreset(ParserHandle parser, const zelWindowElements& elements, std::int32_t index,
                       std::int32_t* width, std::int32_t* center, std::string* name)
{
    if (!parser || !width || !center || !name)
        return kQvxBadArgument;
    *width = NumberAt(parser, elements.fWidth, index);
    *center = NumberAt(parser, elements.fCenter, index);
    name->clear();
    // A name that can't be read is no name.
    if (index >= 1 && index <= MultiplicityOf(parser, elements.fName) &&
        Parser_GetElementValueInCString(parser, elements.fName, index, kNameSize, name))
        name->clear();
    return kQvxOK;
}

std::int32_t UniqueWindowCount(ParserHandle parser, const zelWindowElements& elements)
{
    try {
        return static_cast<std::int32_t>(UniquePlaces(parser, elements).size());
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

QvxStatus UniqueWindowPreset(ParserHandle parser, const zelWindowElements& elements,
                             std::int32_t index, std::int32_t* width, std::int32_t* center,
                             std::string* name)
{
    if (index == 1)
        return WindowPreset(parser, elements, 1, width, center, name);
    try {
        const auto places = UniquePlaces(parser, elements);
        const bool reached = index > 1 && static_cast<std::size_t>(index) <= places.size();
        const std::int32_t place = reached ? places[static_cast<std::size_t>(index - 1)] : 0;
        return WindowPreset(parser, elements, place, width, center, name);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

std::int32_t Parser_GetNumberOfWindowingPresets(ParserHandle parser)
{
    return WindowCount(parser, WindowElementsOfFile(parser));
}

QvxStatus Parser_GetWindowingPreset(ParserHandle parser, std::int32_t index, std::int32_t* width,
                                    std::int32_t* center, std::string* name)
{
    return WindowPreset(parser, WindowElementsOfFile(parser), index, width, center, name);
}

std::int32_t Parser_GetNumberOfUniqueWindowingPresets(ParserHandle parser)
{
    return UniqueWindowCount(parser, WindowElementsOfFile(parser));
}

QvxStatus Parser_GetUniqueWindowingPreset(ParserHandle parser, std::int32_t index,
                                          std::int32_t* width, std::int32_t* center,
                                          std::string* name)
{
    return UniqueWindowPreset(parser, WindowElementsOfFile(parser), index, width, center, name);
}

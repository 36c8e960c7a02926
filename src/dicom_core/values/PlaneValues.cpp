#include "dicom_core/values/PlaneValues.h"

#include "dicom_core/values/ValueList.h"

#include "Qvx2Parser/QvxDecimal.h"
#include <cmath>
#include <limits>

namespace {

constexpr QvxElementTag kTagPosition{0x0020, 0x0032};
constexpr QvxElementTag kTagOrientation{0x0020, 0x0037};
constexpr QvxElementTag kTagFrameOfReference{0x0020, 0x0052};
constexpr QvxElementTag kTagSpacing{0x0028, 0x0030};
constexpr QvxElementTag kTagAspectRatio{0x0028, 0x0034};

constexpr float kLeastAspect = 0.1F, kGreatestAspect = 10.0F;
constexpr std::int32_t kAspectUnit = 1000;
constexpr double kLeastComponent = 0.0001;  // weaker ones have no letter
constexpr float kUnreadableCosine = 2.0F;

std::int32_t MultiplicityOf(ParserHandle parser, QvxElementRef element)
{
    std::int32_t multiplicity = 0;
    if (element == QvxElementRef::None ||
        Qvx2Reader_GetElementValueMultiplicity(parser, element, &multiplicity))
        return 0;
    return multiplicity;
}

// kQvxOK if the element has `count` values.
QvxStatus CheckCount(ParserHandle parser, QvxElementRef element, std::int32_t count)
{
    if (element == QvxElementRef::None)
        return kQvxNoSuchElement;
    return MultiplicityOf(parser, element) == count ? kQvxOK : kQvxBadMultiplicity;
}

// Through the text, which has more digits than the float that the reader makes of it.
double DecimalOf(ParserHandle parser, QvxElementRef element, std::int32_t index)
{
    QvxVR vr{};
    if (Qvx2Reader_GetElementValueRepresentation(parser, element, &vr))
        return 0;
    double number = 0;
    if (vr == QvxVROfIndex(kVRIndexFL) || vr == QvxVROfIndex(kVRIndexFD)) {
        QvxElementValue value;
        if (Qvx2Reader_GetElementDataAsValue(parser, element, index, &value))
            return 0;
        const bool isDouble = value.fType == QvxNumericValueType::Float64;
        number = isDouble ? value.fFloat64 : static_cast<double>(value.fFloat32);
    } else {
        QvxHandle text;
        if (Qvx2Reader_GetElementDataAsText(parser, element, index, &text))
            return 0;
        number = QvxDecimalToDouble(text.Text());
    }
    return std::isfinite(number) ? number : 0;
}

// False, and `number` as it was, for what is no finite float.
bool FloatOf(ParserHandle parser, QvxElementRef element, std::int32_t index, float* number)
{
    QvxElementValue value;
    if (Qvx2Reader_GetElementDataAsValue(parser, element, index, &value) ||
        value.fType != QvxNumericValueType::Float32 || !std::isfinite(value.fFloat32))
        return false;
    *number = value.fFloat32;
    return true;
}

bool WholeOf(ParserHandle parser, QvxElementRef element, std::int32_t index, std::int32_t* number)
{
    QvxElementValue value;
    if (Qvx2Reader_GetElementDataAsValue(parser, element, index, &value) ||
        value.fType != QvxNumericValueType::Int32)
        return false;
    *number = value.fInt32;
    return true;
}

// 0 when nothing states a ratio.
float AspectRatio(ParserHandle parser, QvxElementRef spacing)
{
    QvxElementRef aspect = QvxElementRef::None;
    const QvxStatus status =
        Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagAspectRatio, &aspect);
    if (!status) {
        std::int32_t first = 0, second = 0;
        if (!WholeOf(parser, aspect, 1, &first) || !WholeOf(parser, aspect, 2, &second))
            return 0;
        return second != 0 ? static_cast<float>(first) / static_cast<float>(second) : 0;
    }
    float first = 0, second = 0;
    if (status != kQvxNoSuchElement || spacing == QvxElementRef::None ||
        !FloatOf(parser, spacing, 1, &first) || !FloatOf(parser, spacing, 2, &second))
        return 0;
    return second != 0 ? first / second : 0;
}

std::array<double, 3> CrossProduct(const std::array<double, 3>& row,
                                   const std::array<double, 3>& column)
{
    return {column[2] * row[1] - row[2] * column[1], row[2] * column[0] - row[0] * column[2],
            row[0] * column[1] - row[1] * column[0]};
}

}  // namespace

zelPlaneElements PlaneElementsOfFile(ParserHandle parser)
{
    const auto find = [parser](QvxElementTag tag) { return TopLevelElement(parser, tag); };
    return {find(kTagSpacing), find(kTagPosition), find(kTagOrientation)};
}

QvxStatus PlaneAspectFactors(ParserHandle parser, QvxElementRef spacing, std::int32_t* first,
                             std::int32_t* second)
{
    if (!parser || !first || !second)
        return kQvxBadArgument;
    const float ratio = AspectRatio(parser, spacing);
    *first = *second = kAspectUnit;
    if (!(ratio >= kLeastAspect && ratio <= kGreatestAspect))
        return kQvxOK;
    *(ratio >= 1 ? first : second) = static_cast<std::int32_t>(ratio * kAspectUnit);
    return kQvxOK;
}

QvxStatus PlaneDimensions(ParserHandle parser, QvxElementRef spacing, float* first, float* second)
{
    if (!parser || !first || !second)
        return kQvxBadArgument;
    *first = *second = 0;
    if (const QvxStatus status = CheckCount(parser, spacing, 2))
        return status;
    std::int32_t factor1 = 0, factor2 = 0;  // never 0 afterwards
    if (const QvxStatus status = PlaneAspectFactors(parser, spacing, &factor1, &factor2))
        return status;
    const double across = DecimalOf(parser, spacing, 1) * factor1 / factor2;
    const double down = DecimalOf(parser, spacing, 2);
    constexpr double kLargest = std::numeric_limits<float>::max();
    if (std::abs(across) > kLargest || std::abs(down) > kLargest)
        return kQvxMalformed;
    *first = static_cast<float>(across);
    *second = static_cast<float>(down);
    return kQvxOK;
}

QvxStatus PlanePosition(ParserHandle parser, QvxElementRef position, double* x, double* y,
                        double* z)
{
    if (!parser || !x || !y || !z)
        return kQvxBadArgument;
    *x = *y = *z = 0;
    if (const QvxStatus status = CheckCount(parser, position, 3))
        return status;
    *x = DecimalOf(parser, position, 1);
    *y = DecimalOf(parser, position, 2);
    *z = DecimalOf(parser, position, 3);
    return kQvxOK;
}

QvxStatus PlaneCosines(ParserHandle parser, QvxElementRef orientation, zelCosines* cosines)
{
    if (!parser || !cosines)
        return kQvxBadArgument;
    if (const QvxStatus status = CheckCount(parser, orientation, 6))
        return status;
    for (std::int32_t i = 0; i < 6; ++i) {
        float cosine = kUnreadableCosine;
        static_cast<void>(FloatOf(parser, orientation, i + 1, &cosine));  // else it stays
        (i < 3 ? cosines->fRow : cosines->fColumn)[static_cast<std::size_t>(i % 3)] = cosine;
    }
    cosines->fNormal = CrossProduct(cosines->fRow, cosines->fColumn);
    return kQvxOK;
}

QvxStatus PlaneOfElements(ParserHandle parser, const zelPlaneElements& elements,
                          std::int32_t columns, std::int32_t rows, zelPlane* plane)
{
    if (!parser || !plane)
        return kQvxBadArgument;
    // Their codes only say what the values say too: 0 is not known.
    static_cast<void>(PlanePosition(parser, elements.fPosition, &plane->fPosition[0],
                                    &plane->fPosition[1], &plane->fPosition[2]));
    static_cast<void>(PlaneDimensions(parser, elements.fSpacing, &plane->fFirst, &plane->fSecond));
    if (CheckCount(parser, elements.fSpacing, 2) == kQvxOK) {
        plane->fRowSpacing = DecimalOf(parser, elements.fSpacing, 1);
        plane->fColumnSpacing = DecimalOf(parser, elements.fSpacing, 2);
    }
    plane->fExtent1 = rows * static_cast<double>(plane->fSecond);
    plane->fExtent2 = columns * static_cast<double>(plane->fFirst);
    return PlaneCosines(parser, elements.fOrientation, &plane->fCosines);
}

bool PlaneIsInSpace(ParserHandle parser, const zelPlaneElements& elements)
{
    QvxElementRef frameOfReference = QvxElementRef::None;
    return !CheckCount(parser, elements.fPosition, 3) &&
           !CheckCount(parser, elements.fOrientation, 6) &&
           !Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagFrameOfReference,
                                   &frameOfReference);
}

void PlaneDirectionLetters(std::array<double, 3> direction, std::string* along,
                           std::string* against)
{
    constexpr std::array<std::array<char, 2>, 3> kAxisEnds{{{'L', 'R'}, {'P', 'A'}, {'H', 'F'}}};
    for (int round = 0; round < 3; ++round) {
        const std::array size{std::abs(direction[0]), std::abs(direction[1]),
                              std::abs(direction[2])};
        std::size_t axis = 0;
        const auto strongest = [&size](std::size_t a) {
            return size[a] > kLeastComponent && size[a] > size[(a + 1) % 3] &&
                   size[a] > size[(a + 2) % 3];
        };
        while (axis < 3 && !strongest(axis))
            ++axis;
        if (axis == 3)
            return;
        const std::size_t end = direction[axis] >= 0 ? 0 : 1;
        along->push_back(kAxisEnds[axis][end]);
        against->push_back(kAxisEnds[axis][1 - end]);
        direction[axis] = 0;
    }
}

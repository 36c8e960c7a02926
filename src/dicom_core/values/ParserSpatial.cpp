#include "dicom_core/values/ParserSpatial.h"

#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/ValueList.h"

#include "Qvx2Parser/QvxDecimal.h"
#include <cmath>

namespace {

constexpr QvxElementTag kTagImageType{0x0008, 0x0008};
constexpr QvxElementTag kTagReferencedImages{0x0008, 0x1140};
constexpr QvxElementTag kTagPatientOrientation{0x0020, 0x0020};
constexpr QvxElementTag kTagSliceLocation{0x0020, 0x1041};

constexpr std::size_t kEdgeTextSize = 32;  // with a terminator

// The element has one value, so it isn't the pair of directions that the standard has there.
bool TakeLoneOrientation(ParserHandle parser, std::string* top)
{
    QvxElementRef orientation = QvxElementRef::None;
    std::int32_t multiplicity = 0;
    if (Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagPatientOrientation, &orientation) ||
        Qvx2Reader_GetElementValueMultiplicity(parser, orientation, &multiplicity) ||
        multiplicity != 1)
        return false;
    return !Parser_GetElementValueInCString(parser, orientation, 1, kEdgeTextSize, top);
}

}  // namespace

double Parser_GetSliceLocation(ParserHandle parser)
{
    QvxHandle text;
    if (ParserGetElementDataAsText(parser, QvxElementRef::None, kTagSliceLocation.group,
                                   kTagSliceLocation.element, 1, &text))
        return 0;
    const double location = QvxDecimalToDouble(text.Text());
    return std::isfinite(location) ? location : 0;
}

void Parser_GetFramePositionStrings(ParserHandle parser, std::string* top, std::string* left,
                                    std::string* bottom, std::string* right)
{
    for (std::string* text : {top, left, bottom, right})
        text->clear();
    if (TakeLoneOrientation(parser, top))
        return;
    zelCosines cosines;
    if (PlaneCosines(parser, PlaneElementsOfFile(parser).fOrientation, &cosines))
        return;
    PlaneDirectionLetters(cosines.fRow, right, left);
    PlaneDirectionLetters(cosines.fColumn, bottom, top);
}

QvxStatus Parser_GetPixelDimensions(ParserHandle parser, float* first, float* second)
{
    return PlaneDimensions(parser, PlaneElementsOfFile(parser).fSpacing, first, second);
}

bool Parser_FileHasScaleInfo(ParserHandle parser)
{
    float first = 0, second = 0;
    return !Parser_GetPixelDimensions(parser, &first, &second) && first > 0 && second > 0;
}

QvxStatus Qvx2_ParserGetPixelAspectRatioFactors(ParserHandle parser, std::int32_t* first,
                                                std::int32_t* second)
{
    return PlaneAspectFactors(parser, PlaneElementsOfFile(parser).fSpacing, first, second);
}

QvxStatus Parser_GetImagePosition(ParserHandle parser, double* x, double* y, double* z)
{
    return PlanePosition(parser, PlaneElementsOfFile(parser).fPosition, x, y, z);
}

QvxStatus Parser_GetFramePositionCosines(ParserHandle parser, zelCosines* cosines)
{
    return PlaneCosines(parser, PlaneElementsOfFile(parser).fOrientation, cosines);
}

QvxStatus Parser_GetPositionOrientationSpacingAndSize(ParserHandle parser, std::int32_t columns,
                                                      std::int32_t rows, zelPlane* plane)
{
    return PlaneOfElements(parser, PlaneElementsOfFile(parser), columns, rows, plane);
}

bool Parser_HasSpatialLocationFields(ParserHandle parser)
{
    return PlaneIsInSpace(parser, PlaneElementsOfFile(parser));
}

bool Parser_ImageTypeIsLocalizer(ParserHandle parser)
{
    QvxElementRef type = QvxElementRef::None;
    return !Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagImageType, &type) &&
           ElementHasValue(parser, type, kLocalizerType);
}

std::int32_t Parser_CountLocalizerRefs(ParserHandle parser)
{
    std::uint32_t count = 0;
    if (Qvx2Reader_GetSequenceNumItems(parser, kTagReferencedImages, &count))
        return 0;
    return static_cast<std::int32_t>(count);  // no more than kMaxElements
}

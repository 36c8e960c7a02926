// The numbers of one image plane, read from elements that the caller has found: at the top level of
// a file, or in the groups of one frame. Lengths are millimetres in the patient's coordinates
// (x to the left hand, y to the back, z to the head; PS3.3 C.7.6.2).
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include <array>
#include <cstdint>
#include <string>

// Where the values of a plane lie. None: there is no such element.
struct zelPlaneElements {
    QvxElementRef fSpacing = QvxElementRef::None;
    QvxElementRef fPosition = QvxElementRef::None;
    QvxElementRef fOrientation = QvxElementRef::None;
};

// Directions of the rows, of the columns, and row x column.
struct zelCosines {
    std::array<double, 3> fRow{}, fColumn{}, fNormal{};
};

// One image in space.
struct zelPlane {
    zelCosines fCosines;
    std::array<double, 3> fPosition{};  // of the first pixel's centre
    float fFirst = 0, fSecond = 0;      // pixel dimensions, see Parser_GetPixelDimensions
    double fExtent1 = 0, fExtent2 = 0;  // rows x second, columns x first
    // Pixel Spacing as it is stated: between rows, and between columns. 0 unknown.
    double fRowSpacing = 0, fColumnSpacing = 0;
};

// Elements of the top level.
[[nodiscard]] zelPlaneElements PlaneElementsOfFile(ParserHandle parser);

// Each is the operation of ParserSpatial.h of the same matter.
[[nodiscard]] QvxStatus PlaneAspectFactors(ParserHandle parser, QvxElementRef spacing,
                                           std::int32_t* first, std::int32_t* second);
[[nodiscard]] QvxStatus PlaneDimensions(ParserHandle parser, QvxElementRef spacing, float* first,
                                        float* second);
[[nodiscard]] QvxStatus PlanePosition(ParserHandle parser, QvxElementRef position, double* x,
                                      double* y, double* z);
[[nodiscard]] QvxStatus PlaneCosines(ParserHandle parser, QvxElementRef orientation,
                                     zelCosines* cosines);
[[nodiscard]] QvxStatus PlaneOfElements(ParserHandle parser, const zelPlaneElements& elements,
                                        std::int32_t columns, std::int32_t rows, zelPlane* plane);
// Are position, orientation and the file's Frame of Reference there?
[[nodiscard]] bool PlaneIsInSpace(ParserHandle parser, const zelPlaneElements& elements);
// Letters of a direction and of its opposite, the strongest axis first: "LP" and "RA".
void PlaneDirectionLetters(std::array<double, 3> direction, std::string* along,
                           std::string* against);

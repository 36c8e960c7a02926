// Where frames lie in the patient, and the outline of one frame as another sees it (PS3.3 C.7.6.2).
#pragma once
#include <QLineF>
#include <QSizeF>
#include <array>
#include <optional>
#include <string>

class dk_Sequence;

struct FramePlane {
    std::array<double, 3> row{}, column{};     // directions along a row, and down a column
    std::array<double, 3> position{};          // of the first pixel's centre, mm
    double columnSpacing = 0, rowSpacing = 0;  // of stored pixels along the two, mm
    int columns = 0, rows = 0;                 // stored pixels
    QSizeF frameSize;                          // of frame coordinates: aspect-corrected
    std::string frameOfReference;              // UID; frames of one lie in the same space
};

// By the frame's own groups, else by its file. None without position, orientation and spacing.
[[nodiscard]] std::optional<FramePlane> FramePlaneOf(dk_Sequence* sequence, int frame);

// The four edges of `frame`, projected at right angles into the plane of `onto`, in the latter's
// frame coordinates. They go through the middle of the pixels that its first and last pixels fall
// on; a frame that stands on the plane at an angle becomes a line. What lies outside isn't cut.
[[nodiscard]] std::array<QLineF, 4> ProjectedOutline(const FramePlane& frame,
                                                     const FramePlane& onto);

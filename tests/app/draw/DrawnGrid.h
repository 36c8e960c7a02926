// What the tests of this folder share: a window of grids without widgets, and phantoms to show.
#pragma once
#include "app/draw/GridDrawing.h"
#include "app/grid/FakeHost.h"
#include "dicom_core/annotations/PrepareSequenceAnnotations.h"
#include "dicom_core/imaging/ImagingFixtures.h"

#include <QImage>
#include <QPainter>

// A window whose first grid is the active one.
struct TestWindow {
    Grid& AddGrid(dk_SequenceBase* sequence)
    {
        made.push_back(std::make_unique<Grid>(&host));
        host.grids.push_back(made.back().get());
        host.active = host.grids.front();
        made.back()->setCurrZELSequence(std::make_shared<ZELSequenceProxy>(sequence));
        return *made.back();
    }
    FakeHost host{nullptr};
    std::vector<std::unique_ptr<Grid>> made;
};

// The grid as a screen of that scale factor shows it.
inline QImage Painted(Grid& grid, const QSize& size, double ratio, const GridLook& look = {})
{
    QImage screen(
        QSize(static_cast<int>(size.width() * ratio), static_cast<int>(size.height() * ratio)),
        QImage::Format_RGB32);
    screen.fill(Qt::gray);
    screen.setDevicePixelRatio(ratio);
    grid.U_UpdateGridSizeAndFrame(size, ratio);
    QPainter painter(&screen);
    DrawGrid(&painter, grid, QRectF(QPointF(), QSizeF(size)), look);
    painter.end();
    return screen;
}

// Position, orientation and spacing of a file, as texts of its elements.
struct InSpace {
    const char *position, *orientation, *spacing;
};

// A phantom's header up to its pixels; without a place in space for null texts.
inline DicomBuilder PhantomFile(const char* modality, const InSpace& place, int rows, int columns,
                                int samples = 1)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle)
        .Element(0x0008, 0x0020, "DA", "20260504")
        .Element(0x0008, 0x0060, "CS", modality)
        .Element(0x0008, 0x0080, "LO", "Hospital of St. Agnes")
        .Element(0x0008, 0x1030, "LO", "Chest")
        .Element(0x0008, 0x103E, "LO", "Axial 5 mm")
        .Element(0x0010, 0x0010, "PN", "Sommer^Anna")
        .Element(0x0010, 0x0020, "LO", "ZV-1042")
        .Element(0x0010, 0x0030, "DA", "19611224")
        .Element(0x0010, 0x0040, "CS", "F")
        .Element(0x0018, 0x0050, "DS", "5")
        .Element(0x0020, 0x0011, "IS", "3");
    if (place.position) {
        file.Element(0x0020, 0x0032, "DS", place.position)
            .Element(0x0020, 0x0037, "DS", place.orientation)
            .Element(0x0020, 0x0052, "UI", "1.2.3.4");
    }
    file.Image({.rows = static_cast<std::uint16_t>(rows),
                .columns = static_cast<std::uint16_t>(columns),
                .bits = static_cast<std::uint16_t>(samples == 3 ? 8 : 16),
                .samples = static_cast<std::uint16_t>(samples)});
    if (place.spacing)
        file.Element(0x0028, 0x0030, "DS", place.spacing);
    if (samples == 1)
        file.Element(0x0028, 0x1050, "DS", "1040")
            .Element(0x0028, 0x1051, "DS", "2000")
            .Element(0x0028, 0x1052, "DS", "0")
            .Element(0x0028, 0x1053, "DS", "1");
    return file;
}

// A body cut across: an ellipse with a bright spine, two lungs and a mark on one side.
inline std::vector<int> BodyPixels(int rows, int columns, double size = 1)
{
    std::vector<int> pixels;
    for (int v = 0; v < rows; ++v)
        for (int h = 0; h < columns; ++h) {
            const double x = (h + 0.5) / columns * 2 - 1, y = (v + 0.5) / rows * 2 - 1;
            const auto in = [&](double cx, double cy, double rx, double ry) {
                return (x - cx) * (x - cx) / (rx * rx) + (y - cy) * (y - cy) / (ry * ry) < size;
            };
            int value = in(0, 0, 0.85, 0.65) ? 1040 : 0;
            if (in(-0.38, -0.05, 0.22, 0.35) || in(0.38, -0.05, 0.22, 0.35))
                value = 200;
            if (in(0, 0.42, 0.1, 0.12) || in(-0.6, 0.3, 0.04, 0.04))
                value = 1900;
            pixels.push_back(value);
        }
    return pixels;
}

inline void AddPhantom(MadeSequence* made, const char* modality, const DicomBuilder& file)
{
    made->Add(file);
    made->sequence.fModalityStr.Assign(modality);
}

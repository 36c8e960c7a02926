// Pictures of grids at the scale factors of screens, for people to look at: they are kept in the
// folder that ZELORA_SNAPSHOTS names. What can be said of them without eyes is checked.
#include "app/draw/DrawnGrid.h"
#include "dicom_core/store/TempFolder.h"
#include "prefs/Prefs.h"

#include <QDir>
#include <cmath>

namespace {

constexpr double kRatios[] = {1, 1.5, 2};
constexpr InSpace kAxial{"-128\\-128\\0", "1\\0\\0\\0\\1\\0", "2\\2"};

void Keep(const QImage& picture, const QString& name, double ratio)
{
    const QString folder = qEnvironmentVariable("ZELORA_SNAPSHOTS");
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return;
    const QString scale = QString::number(ratio).replace('.', '_');
    EXPECT_TRUE(picture.save(QStringLiteral("%1/%2@%3.png").arg(folder, name, scale)));
}

// Where there is text, in points.
QRectF TextIn(const QImage& picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (qRed(pixel) > qBlue(pixel) + 0x60 && qGreen(pixel) > qBlue(pixel) + 0x60)
                ink |= QRect(x, y, 1, 1);
        }
    const double ratio = picture.devicePixelRatio();
    return {ink.x() / ratio, ink.y() / ratio, ink.width() / ratio, ink.height() / ratio};
}

class Snapshots : public testing::Test {
protected:
    void SetUp() override { InstallSequenceAnnotations(); }
    void TearDown() override { SetSequenceAnnotationsMaker(nullptr); }

    Grid& ShowAll(dk_Sequence* sequence)
    {
        Grid& grid = window.AddGrid(sequence);
        sequence->GetViewState()->Revert(sequence->GetModality(), sequence->GetNumberOfFrames());
        grid.currZELSequence()->setViewShowsDemographics(1);
        grid.currZELSequence()->setViewShowsScale(true);
        return grid;
    }
    // Text takes the same place at every scale factor.
    void KeepAll(Grid& grid, const QSize& size, const QString& name, bool hasText = true)
    {
        QRectF first;
        for (const double ratio : kRatios) {
            const QImage picture = Painted(grid, size, ratio);
            Keep(picture, name, ratio);
            const QRectF text = TextIn(picture);
            EXPECT_EQ(text.isEmpty(), !hasText) << name.toStdString();
            if (ratio == 1)
                first = text;
            for (const double off : {text.left() - first.left(), text.top() - first.top(),
                                     text.right() - first.right(), text.bottom() - first.bottom()})
                EXPECT_LE(std::abs(off), 2.5) << name.toStdString() << ratio;
        }
    }
    void AddSlices(MadeSequence* series, int count)
    {
        for (int slice = 0; slice < count; ++slice) {
            const std::string position = "-128\\-128\\" + std::to_string(slice * 10);
            AddPhantom(
                series, "CT",
                PhantomFile("CT", {position.c_str(), kAxial.orientation, kAxial.spacing}, 128, 128)
                    .NativePixels(BodyPixels(128, 128, 1 - 0.03 * slice)));
        }
    }

    MadeSequence made, other, oblique;
    TestWindow window;  // goes before what it shows
};

TEST_F(Snapshots, of_a_matrix)
{
    AddSlices(&made, 9);
    Grid& grid = ShowAll(&made.sequence);
    grid.setGridRowsTo(3, 3, true);
    KeepAll(grid, {900, 900}, QStringLiteral("matrix"));
    KeepAll(grid, {390, 390}, QStringLiteral("small-cells"));
    KeepAll(grid, {140, 140}, QStringLiteral("tiny-cells"), false);
}

TEST_F(Snapshots, of_turned_frames)
{
    AddSlices(&made, 8);
    Grid& grid = ShowAll(&made.sequence);
    grid.setGridRowsTo(2, 4, true);
    for (int frame = 1; frame <= 8; ++frame) {
        zel_TransformRec& record = made.sequence.GetImageFrameInfo(frame)->fTransform;
        record.rotation = static_cast<std::int16_t>(90 * ((frame - 1) % 4));
        record.horzFlip = frame > 4;
    }
    KeepAll(grid, {1200, 600}, QStringLiteral("turned"));
}

TEST_F(Snapshots, of_the_ruler_at_zooms_and_calibrations)
{
    AddSlices(&made, 6);
    Grid& grid = ShowAll(&made.sequence);
    grid.setGridRowsTo(2, 3, true);
    constexpr double kZooms[] = {0.3, 1, 2, 4, 8, 16};
    for (int frame = 1; frame <= 6; ++frame)
        grid.currZELSequence()->changeZoomForFrame(frame, 100 * kZooms[frame - 1]);
    KeepAll(grid, {960, 640}, QStringLiteral("ruler"));
    grid.currZELSequence()->changeScaleForAllFrames(0.01F);
    KeepAll(grid, {960, 640}, QStringLiteral("ruler-calibrated"));
}

TEST_F(Snapshots, of_reference_lines)
{
    AddSlices(&made, 12);
    AddPhantom(&other, "CT",
               PhantomFile("CT", {"-150\\0\\160", "1\\0\\0\\0\\0\\-1", "2\\2"}, 110, 150)
                   .NativePixels(BodyPixels(110, 150)));
    AddPhantom(&oblique, "MR",
               PhantomFile("MR", {"-100\\-100\\-20", "0.8\\0.6\\0\\0\\0\\1", "1.5\\1.5"}, 128, 160)
                   .NativePixels(BodyPixels(128, 160)));
    prefs_Set_ShowFirstLastLocalizerLines(true);
    window.host.localizers = true;
    Grid& active = ShowAll(&made.sequence);
    active.currZELSequence()->setCurrentFrame(6);
    KeepAll(ShowAll(&other.sequence), {500, 400}, QStringLiteral("localizer"));
    KeepAll(ShowAll(&oblique.sequence), {500, 400}, QStringLiteral("oblique"));
    EXPECT_EQ(window.host.grids[1]->localizersForFrame(1).size(), 12u);
    EXPECT_EQ(window.host.grids[2]->localizersForFrame(1).size(), 12u);
    prefs_Set_ShowFirstLastLocalizerLines(false);
}

TEST_F(Snapshots, of_regions_and_overlays)
{
    const auto region = [](std::uint32_t x0, std::uint32_t y0, std::uint32_t x1, std::uint32_t y1) {
        return Item()
            .Element(0x0018, 0x6012, "US", 1)
            .Element(0x0018, 0x6014, "US", 1)
            .Element(0x0018, 0x6018, "UL", x0)
            .Element(0x0018, 0x601A, "UL", y0)
            .Element(0x0018, 0x601C, "UL", x1)
            .Element(0x0018, 0x601E, "UL", y1)
            .Element(0x0018, 0x6020, "SL", 60)
            .Element(0x0018, 0x6022, "SL", 0);
    };
    std::string gray;
    for (const int value : BodyPixels(120, 160))
        gray += static_cast<char>(value / 8);
    DicomBuilder file;
    file.Meta(kUidExplicitLittle)
        .CommonHeader("US")
        .Sequence(0x0018, 0x6011, {region(10, 10, 129, 89), region(10, 95, 149, 114)})
        .Image({.rows = 120, .columns = 160, .bits = 8})
        .Element(0x6000, 0x0010, "US", 120)
        .Element(0x6000, 0x0011, "US", 160)
        .Element(0x6000, 0x0040, "CS", "G")
        .Element(0x6000, 0x0050, "SS", {1, 1})
        .Element(0x6000, 0x0100, "US", 1)
        .Element(0x6000, 0x0102, "US", 0);
    std::string bits(2400, '\0');
    for (int i = 20; i < 100; ++i)  // a slanted line
        bits[static_cast<std::size_t>((i * 160 + i) / 8)] |=
            static_cast<char>(1 << ((i * 160 + i) % 8));
    file.Element(0x6000, 0x3000, "OB", bits).NativePixels(gray, "OB");
    AddPhantom(&made, "US", file);
    prefs_Set_ShowsUSRegions(true);
    Grid& grid = ShowAll(&made.sequence);
    made.sequence.GetImageFrameInfo(1)->fTransform.rotation = 90;
    grid.currZELSequence()->changeZoomForFrame(1, 300);
    KeepAll(grid, {600, 500}, QStringLiteral("regions"));
}

}  // namespace

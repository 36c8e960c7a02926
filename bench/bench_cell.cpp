// A cell of a grid at work. One step of a window's drag on a 512 by 512 frame of 16 bits in a cell
// of 1000 by 1000, against memory copies of as many bytes as the frame and the picture hold; the
// painter's copy to the screen is beside it. And what paging through a JPEG lossless series at 25
// frames a second waits for: the time of a frame's picture while the thread ahead decodes.
#include "PairedRatio.h"
#include "app/draw/DrawnGrid.h"
#include "dicom_core/store/TempFolder.h"

#include "QvxToolkit/StreamMaker.h"
#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

constexpr int kSide = 512, kFrames = 100;
constexpr QSize kCell(1000, 1000);
constexpr double kStepLimit = 2.5;
constexpr double kWaitLimit_ms = 5;
constexpr std::chrono::milliseconds kTick(40);

struct Series {
    Series()
    {
        const StreamPicture picture = MakePicture(kSide, kSide, 1, 16);
        const std::string stream = LosslessJPEG(picture, 1);
        for (int frame = 0; frame < kFrames; ++frame) {
            DicomBuilder file;
            file.Meta("1.2.840.10008.1.2.4.70").CommonHeader();
            file.Image({.rows = kSide, .columns = kSide, .bits = 16});
            made.Add(file.Encapsulated({{stream}}));
        }
        made.sequence.fModalityStr.Assign("CT");
    }
    MadeSequence made;
};

bool MeasureStep(Grid& grid)
{
    ZELSequenceProxy& proxy = *grid.currZELSequence();
    grid.U_UpdateGridSizeAndFrame(kCell, 1);
    // Enlarged to fill the cell, as a reader does.
    proxy.changeZoomForFrame(1, 100.0 * (kCell.width() - 6) / kSide);
    QImage screen(kCell, QImage::Format_RGB32);
    float level = 300;
    const auto step = [&] {
        level = level < 900 ? level + 7 : 300;
        proxy.changeVOIForAllFrames(false, 800, level);
        if (grid.photoAtIndex(0).isNull())
            std::abort();
        benchmark::ClobberMemory();
    };
    std::vector<std::uint8_t> frame(2 * kSide * kSide, 1), frameTo(frame.size(), 2);
    const auto pictureBytes = static_cast<std::size_t>(grid.photoAtIndex(0).image.sizeInBytes());
    std::vector<std::uint8_t> picture(pictureBytes, 3), pictureTo(pictureBytes, 4);
    const auto copies = [&] {
        std::memcpy(frameTo.data(), frame.data(), frame.size());
        benchmark::ClobberMemory();
        std::memcpy(pictureTo.data(), picture.data(), picture.size());
        benchmark::ClobberMemory();
    };
    const auto times = [](const auto& work) {
        return [&work] {
            for (int i = 0; i < 8; ++i)
                work();
        };
    };
    const PairedRatio ratio = MeasurePairs(times(step), times(copies));
    const bool held = ratio.fRatio <= kStepLimit;
    std::printf("one step of a window: %.0f us against %.0f us, ratio %.3f, limit %.2f: %s\n",
                ratio.fWork / 8, ratio.fFloor / 8, ratio.fRatio, kStepLimit,
                held ? "held" : "NOT HELD");
    const CellPhoto photo = grid.photoAtIndex(0);
    const PairedRatio blit = MeasurePairs(
        [&] {
            QPainter painter(&screen);
            painter.drawImage(photo.rect, photo.image);
        },
        copies);
    std::printf("the painter's copy of it: %.0f us (no limit)\n", blit.fWork);
    return held;
}

bool MeasurePaging(Grid& grid)
{
    ZELSequenceProxy& proxy = *grid.currZELSequence();
    proxy.zoomAutofitForFrame(ZELSequenceProxy::kAllFrames);
    grid.U_UpdateGridSizeAndFrame(kCell, 1);
    const double alone = MicrosecondsOf([&] { static_cast<void>(grid.photoAtIndex(0)); }) / 1000;
    std::vector<double> waits;
    auto tick = std::chrono::steady_clock::now();
    for (int frame = 2; frame <= kFrames; ++frame) {
        tick += kTick;
        std::this_thread::sleep_until(tick);
        waits.push_back(MicrosecondsOf([&] {
                            proxy.setCurrentFrame(frame);
                            grid.U_ScrollGridToPhotoWithIndex(frame - 1);
                            if (grid.photoAtIndex(frame - 1).isNull())
                                std::abort();
                        }) /
                        1000);
    }
    // The first frames show in which direction it goes.
    std::ranges::sort(waits.begin() + 2, waits.end());
    const double median = MedianOf({waits.begin() + 2, waits.end()});
    const double most = waits[waits.size() - 1 - waits.size() / 20];
    const bool held = median <= kWaitLimit_ms;
    std::printf(
        "paging at 25 frames a second: median %.2f ms, 95 of 100 within %.2f ms, the first alone "
        "%.2f ms, limit %.1f ms: %s\n",
        median, most, alone, kWaitLimit_ms, held ? "held" : "NOT HELD");
    return held;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const TempFolder caches;
    setenv("XDG_CACHE_HOME", caches.Path().c_str(), 1);
    zel_ImageBuffer buffer;
    buffer.SetIOBufferSize(kBaseBufferIOBytes);
    gAppBaseBuffer = &buffer;
    bool held = true;
    {
        Series series;
        TestWindow window;
        Grid& grid = window.AddGrid(&series.made.sequence);
        grid.setGridRowsTo(1, 1, true);
        held = MeasureStep(grid);
        grid.removeFrameBuffersForAllFrames();
        buffer.Reset();
        held &= MeasurePaging(grid);
    }
    gAppBaseBuffer = nullptr;
    buffer.Reset();
    RemoveProgramTempFolder();
    return held ? 0 : 1;
}

// A colour clip of ultrasound, with its regions (PS3.3 C.8.5.5) and frame time.
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoHeart.h"
#include "tool/demo/DemoSeries.h"

namespace {

// "Four chambers from the tip" in JIS X 0208.
constexpr DemoSeries kSeries = {.patient = DemoPatient::Hanako,
                                .number = 1,
                                .modality = "US",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.3.1",
                                .description = "\x1b$B?4@m;M9PA|\x1b(B",
                                .bodyPart = "HEART",
                                .time = "091500",
                                .syntax = DemoSyntax::JPEGBaseline};

constexpr int kNoUnit = 0, kCentimetre = 3, kSecond = 4;

DemoDataSet Region(const DemoRegion& place, int spatialFormat, int dataType, int flags)
{
    DemoDataSet region;
    region.Short(0x00186012, spatialFormat);
    region.Short(0x00186014, dataType);
    region.Longs(0x00186016, {flags});
    region.Longs(0x00186018, {place.left});
    region.Longs(0x0018601A, {place.top});
    region.Longs(0x0018601C, {place.right});
    region.Longs(0x0018601E, {place.bottom});
    return region;
}

void SetUnits(DemoDataSet* region, int unitX, int unitY, double deltaX, double deltaY)
{
    region->Short(0x00186024, unitX);
    region->Short(0x00186026, unitY);
    region->Double(0x0018602C, deltaX);
    region->Double(0x0018602E, deltaY);
}

// The sector with both tissue and flow, counted from where the beams begin, and the trace.
std::vector<DemoDataSet> Regions()
{
    constexpr int k2D = 1, kWaveform = 4, kTissue = 1, kECGTrace = 10;
    constexpr int kOpaque = 0, kScrolling = 2;  // region flags
    DemoDataSet sector = Region(kHeartSector, k2D, kTissue, kOpaque);
    sector.Longs(0x00186020, {kHeartApexX - kHeartSector.left}, "SL");
    sector.Longs(0x00186022, {kHeartApexY - kHeartSector.top}, "SL");
    SetUnits(&sector, kCentimetre, kCentimetre, kHeartPixel_cm, kHeartPixel_cm);
    sector.Double(0x00186028, 0);
    sector.Double(0x0018602A, 0);
    sector.Longs(0x00186030, {2500});  // of the probe, kHz

    constexpr double kTraceWidth = kHeartTrace.right - kHeartTrace.left + 1;
    DemoDataSet trace = Region(kHeartTrace, kWaveform, kECGTrace, kScrolling);
    SetUnits(&trace, kSecond, kNoUnit, 2 * kHeartFrames * kHeartFrame_ms / 1000 / kTraceWidth, 1);
    return {sector, trace};
}

}  // namespace

QvxStatus WriteDemoUltrasound(const DemoPhantom& /*phantom*/, DemoFolder* folder)
{
    constexpr std::uint32_t kFrameTime = 0x00181063;
    constexpr int kPerSecond = 33;
    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\TTE\\0011");
    dataSet.Integer(0x00082144, kPerSecond);
    dataSet.Integer(0x00180040, kPerSecond);
    dataSet.Decimals(0x00180072, {kHeartFrames * kHeartFrame_ms / 1000});
    dataSet.Decimals(kFrameTime, {kHeartFrame_ms});
    dataSet.Integer(0x00181088, 67);
    dataSet.Short(0x00181244, 0);  // looping
    dataSet.Items(0x00186011, Regions());
    dataSet.Text(0x00200020, "CS", "");
    dataSet.TagOf(0x00280009, kFrameTime);
    dataSet.Short(0x00280014, 1);
    dataSet.Text(0x00280301, "CS", "NO");
    return DemoImage_Write(folder, kSeries, 1, std::move(dataSet),
                           {kHeartRows, kHeartColumns, 3, 8, 8, false, "YBR_FULL_422"},
                           DemoHeart_Frames());
}

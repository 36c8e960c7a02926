// A classic MR series, doubly oblique, through the body that the CT shows.
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoPlane.h"
#include "tool/demo/DemoSeries.h"

namespace {

constexpr int kSlices = 24, kSize = 256;
constexpr double kSpacing_mm = 8, kThickness_mm = 6;
constexpr DemoPixelForm kForm = {.rows = kSize, .columns = kSize};
constexpr DemoSeries kSeries = {.number = 5,
                                .modality = "MR",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.4",
                                .description = "T2 oblique coronal",
                                .bodyPart = "CHEST",
                                .time = "104500",
                                .syntax = DemoSyntax::ImplicitLittle};

DemoPlane PlaneOf(int instance)
{
    // Turned to the left and leaning backwards, so that it cuts slices and localizer askew.
    DemoPlane plane = {
        .turn = 0.35, .tilt = 0.28, .origin = {}, .pixel_mm = 1.5, .rows = kSize, .columns = kSize};
    plane.CentreAt((instance - (kSlices + 1) / 2.0) * kSpacing_mm);
    return plane;
}

void AddAcquisition(DemoDataSet* dataSet)
{
    dataSet->Text(0x00180020, "CS", "SE");
    dataSet->Text(0x00180021, "CS", "SK");
    dataSet->Text(0x00180022, "CS", "");
    dataSet->Text(0x00180023, "CS", "2D");
    dataSet->Decimals(0x00180050, {kThickness_mm});
    dataSet->Decimals(0x00180080, {4200});
    dataSet->Decimals(0x00180081, {96});
    dataSet->Decimals(0x00180083, {1});
    dataSet->Decimals(0x00180084, {63.87});
    dataSet->Text(0x00180085, "SH", "1H");
    dataSet->Decimals(0x00180087, {1.5});
    dataSet->Decimals(0x00180088, {kSpacing_mm});
    dataSet->Integer(0x00180091, 16);
    dataSet->Decimals(0x00181314, {150});
    dataSet->Text(0x00185100, "CS", "HFS");
}

}  // namespace

QvxStatus WriteDemoObliqueMR(const DemoPhantom& phantom, DemoFolder* folder)
{
    for (int instance = 1; instance <= kSlices; ++instance) {
        const DemoPlane plane = PlaneOf(instance);
        const DemoPoint r = plane.AlongRow(), c = plane.AlongColumn(), o = plane.origin;
        std::vector<float> signal = DemoPlane_Paint(phantom, plane, DemoTissue_MRSignal);
        DemoPlane_AddCoil(plane, static_cast<std::uint64_t>(instance) << 24, &signal);

        DemoDataSet dataSet = DemoHeader(kSeries, instance);
        dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\M\\SE");
        AddAcquisition(&dataSet);
        dataSet.Decimals(0x00200032, {o.x, o.y, o.z});
        dataSet.Decimals(0x00200037, {r.x, r.y, r.z, c.x, c.y, c.z});
        dataSet.Text(0x00200052, "UI", DemoFrameOfReferenceUid());
        dataSet.Text(0x00201040, "LO", "");
        dataSet.Decimals(0x00201041, {(instance - (kSlices + 1) / 2.0) * kSpacing_mm});
        dataSet.Decimals(0x00280030, {plane.pixel_mm, plane.pixel_mm});
        dataSet.Decimals(0x00281050, {420});
        dataSet.Decimals(0x00281051, {900});
        if (const QvxStatus status = DemoImage_Write(folder, kSeries, instance, std::move(dataSet),
                                                     kForm, {DemoStoredValues(signal, 0, 4095)}))
            return status;
    }
    return kQvxOK;
}

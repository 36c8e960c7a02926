// An enhanced MR object: sagittal frames of the spine in one file, each with its own place, window
// and rescale in its functional groups (PS3.3 C.7.6.16).
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoPlane.h"
#include "tool/demo/DemoSeries.h"

#include <algorithm>
#include <numbers>

namespace {

constexpr int kFrames = 11, kRows = 320, kColumns = 256;
constexpr double kSpacing_mm = 9, kThickness_mm = 4;
constexpr DemoSeries kSeries = {.number = 7,
                                .modality = "MR",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.4.1",
                                .description = "T2 sagittal, enhanced",
                                .bodyPart = "SPINE",
                                .time = "110000",
                                .syntax = DemoSyntax::JPEG2000};

DemoPlane PlaneOf(int frame)  // from 0
{
    DemoPlane plane = {.turn = std::numbers::pi / 2,
                       .tilt = 0,
                       .origin = {},
                       .pixel_mm = 1,
                       .rows = kRows,
                       .columns = kColumns};
    plane.CentreAt((frame - (kFrames - 1) / 2.0) * kSpacing_mm);
    return plane;
}

// Signal of one stored step; each frame fills its own range.
double SlopeOf(int frame) { return 0.25 + 0.05 * frame; }

// What a frame is, for the image as a whole and as the frame's type alike.
void AddKind(DemoDataSet* dataSet)
{
    dataSet->Text(0x00089205, "CS", "MONOCHROME");
    dataSet->Text(0x00089206, "CS", "VOLUME");
    dataSet->Text(0x00089207, "CS", "NONE");
    dataSet->Text(0x00089208, "CS", "MAGNITUDE");
    dataSet->Text(0x00089209, "CS", "T2");
}

constexpr std::string_view kImageType = "DERIVED\\PRIMARY\\T2\\NONE";
constexpr std::uint32_t kStackId = 0x00209056, kPlaceInStack = 0x00209057;

DemoDataSet SharedGroups(const DemoPlane& plane)
{
    DemoDataSet shared, type, anatomy, measures;
    type.Text(0x00089007, "CS", kImageType);
    AddKind(&type);
    shared.Item(0x00189226, type);
    anatomy.Item(0x00082218, DemoCode("421060004", "SCT", "Vertebral column"));
    anatomy.Text(0x00209072, "CS", "U");
    shared.Item(0x00209071, anatomy);
    measures.Decimals(0x00180050, {kThickness_mm});
    measures.Decimals(0x00180088, {kSpacing_mm});
    measures.Decimals(0x00280030, {plane.pixel_mm, plane.pixel_mm});
    shared.Item(0x00289110, measures);
    return shared;
}

DemoDataSet GroupsOf(int frame)
{
    const DemoPlane plane = PlaneOf(frame);
    const DemoPoint r = plane.AlongRow(), c = plane.AlongColumn(), o = plane.origin;
    DemoDataSet groups, content, position, orientation, window, values;
    content.Text(kStackId, "SH", "1");
    content.Longs(kPlaceInStack, {frame + 1});
    content.Longs(0x00209157, {1, frame + 1});
    groups.Item(0x00209111, content);
    position.Decimals(0x00200032, {o.x, o.y, o.z});
    groups.Item(0x00209113, position);
    orientation.Decimals(0x00200037, {r.x, r.y, r.z, c.x, c.y, c.z});
    groups.Item(0x00209116, orientation);
    window.Decimals(0x00281050, {400.0 + 10 * frame});
    window.Decimals(0x00281051, {800.0 + 20 * frame});
    groups.Item(0x00289132, window);
    values.Decimals(0x00281052, {0});
    values.Decimals(0x00281053, {SlopeOf(frame)});
    values.Text(0x00281054, "LO", "US");
    groups.Item(0x00289145, values);
    return groups;
}

void AddDimensions(DemoDataSet* dataSet)
{
    const std::string organization = DemoUid("dimensions of the enhanced MR");
    DemoDataSet named, stack, place;
    named.Text(0x00209164, "UI", organization);
    dataSet->Item(0x00209221, named);
    stack.Text(0x00209164, "UI", organization);
    stack.TagOf(0x00209165, kStackId);
    stack.TagOf(0x00209167, 0x00209111);
    place = stack;
    place.TagOf(0x00209165, kPlaceInStack);
    dataSet->Items(0x00209222, {stack, place});
}

DemoDataSet Header()
{
    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    dataSet.Text(0x00080008, "CS", kImageType);
    DemoHeader_AddEquipment(&dataSet);
    AddKind(&dataSet);
    dataSet.Text(0x00185100, "CS", "HFS");
    dataSet.Text(0x00189004, "CS", "RESEARCH");
    dataSet.Text(0x00200052, "UI", DemoFrameOfReferenceUid());
    dataSet.Text(0x00201040, "LO", "");
    dataSet.Text(0x00280301, "CS", "NO");
    dataSet.Text(0x00282110, "CS", "00");
    dataSet.Items(0x00400555, {});
    dataSet.Text(0x20500020, "CS", "IDENTITY");
    AddDimensions(&dataSet);
    return dataSet;
}

}  // namespace

QvxStatus WriteDemoEnhancedMR(const DemoPhantom& phantom, DemoFolder* folder)
{
    std::vector<DemoDataSet> groups;
    std::vector<std::string> frames;
    for (int frame = 0; frame < kFrames; ++frame) {
        const DemoPlane plane = PlaneOf(frame);
        std::vector<float> signal = DemoPlane_Paint(phantom, plane, DemoTissue_MRSignal);
        DemoPlane_AddCoil(plane, static_cast<std::uint64_t>(frame + 1) << 20, &signal);
        const auto slope = static_cast<float>(SlopeOf(frame));
        std::ranges::transform(signal, signal.begin(), [slope](float v) { return v / slope; });
        frames.push_back(DemoStoredValues(signal, 0, 4095));
        groups.push_back(GroupsOf(frame));
    }
    DemoDataSet dataSet = Header();
    dataSet.Item(0x52009229, SharedGroups(PlaneOf(0)));
    dataSet.Items(0x52009230, std::move(groups));
    return DemoImage_Write(folder, kSeries, 1, std::move(dataSet),
                           {.rows = kRows, .columns = kColumns}, frames);
}

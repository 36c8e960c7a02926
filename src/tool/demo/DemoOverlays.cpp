// A sagittal spine with two overlay planes (PS3.3 C.9.2): the names of the vertebrae over the whole
// frame, and a smaller one with the outline of a finding. In the retired big endian syntax, where
// pixels and planes alike are words with their high byte first.
#include "tool/demo/DemoGlyphs.h"
#include "tool/demo/DemoHeader.h"
#include "tool/demo/DemoPlane.h"
#include "tool/demo/DemoSeries.h"

#include <cmath>
#include <numbers>

namespace {

constexpr int kSize = 384;
constexpr double kPixel_mm = 0.6, kFront_mm = -75, kTop_mm = 10;  // of the first pixel: y and z
// "Lumbar spine, sagittal" in KS X 1001.
constexpr DemoSeries kSeries = {.patient = DemoPatient::Gildong,
                                .number = 1,
                                .modality = "MR",
                                .sopClass = "1.2.840.10008.5.1.4.1.1.4",
                                .description = "\x1b$)C\xBF\xE4\xC3\xDF \xBD\xC3\xBB\xF3\xB8\xE9",
                                .bodyPart = "LSPINE",
                                .time = "161500",
                                .syntax = DemoSyntax::ExplicitBig};

struct Plane {
    int group, rows, columns;
    int top, left;  // of its first pixel in the frame, from 1
    std::string_view kind, description, label;
};
constexpr Plane kNames = {0x6000, kSize, kSize, 1, 1, "G", "Names of the vertebrae", "NAMES"};
// Its rows don't fill whole bytes: bits run on from row to row.
constexpr Plane kFinding = {0x6002, 61, 93, 221, 172, "R", "Outline of a finding", "FINDING"};

class Bits {
public:
    explicit Bits(const Plane& plane)
        : fPlane(plane),
          fBytes(static_cast<std::size_t>((plane.rows * plane.columns + 15) / 16 * 2), '\0')
    {
    }
    void Set(int x, int y)
    {
        if (x < 0 || y < 0 || x >= fPlane.columns || y >= fPlane.rows)
            return;
        const int bit = y * fPlane.columns + x;
        char& byte = fBytes[static_cast<std::size_t>(bit / 8)];
        byte = static_cast<char>(byte | 1 << bit % 8);
    }
    [[nodiscard]] const std::string& Bytes() const { return fBytes; }

private:
    const Plane& fPlane;
    std::string fBytes;
};

int RowAt(double z) { return static_cast<int>(std::lround((kTop_mm - z) / kPixel_mm)); }

// A tick and a name in front of each vertebra; the first thoracic one lies at 159.5 mm.
std::string Names()
{
    constexpr int kLeft = 92, kTick = 26;
    Bits bits(kNames);
    for (int i = 7; i < 15; ++i) {
        const int row = RowAt(159.5 - 25 * i);
        std::string name(1, i < 12 ? 'T' : 'L');
        name += std::to_string(i < 12 ? i + 1 : i - 11);
        DemoGlyphs_Draw(name, [&](int x, int y) {
            for (int dot = 0; dot < 4; ++dot)
                bits.Set(kLeft + 2 * x + dot % 2, row - 7 + 2 * y + dot / 2);
        });
        for (int x = 0; x < kTick; ++x)
            bits.Set(kLeft + 42 + x, row);
    }
    for (int i = 0; i < kSize; ++i) {  // a frame at the very edge, to show that all is covered
        bits.Set(i, 0);
        bits.Set(i, kSize - 1);
        bits.Set(0, i);
        bits.Set(kSize - 1, i);
    }
    return bits.Bytes();
}

// An ellipse two pixels wide around the first lumbar vertebra, and its middle.
std::string Finding()
{
    constexpr double kMiddleX = (kFinding.columns - 1) / 2.0, kMiddleY = (kFinding.rows - 1) / 2.0;
    Bits bits(kFinding);
    for (int y = 0; y < kFinding.rows; ++y) {
        for (int x = 0; x < kFinding.columns; ++x) {
            const double dx = x - kMiddleX, dy = y - kMiddleY;
            const double far = std::hypot(dx / kMiddleX, dy / kMiddleY);
            const bool cross = std::abs(dx) + std::abs(dy) < 6 && (dx == 0 || dy == 0);
            if (cross || (far <= 1 && far > 0.945))
                bits.Set(x, y);
        }
    }
    return bits.Bytes();
}

void AddPlane(DemoDataSet* dataSet, const Plane& plane, std::string bits)
{
    const std::uint32_t group = static_cast<std::uint32_t>(plane.group) << 16;
    dataSet->Short(group | 0x0010, plane.rows);
    dataSet->Short(group | 0x0011, plane.columns);
    dataSet->Text(group | 0x0022, "LO", plane.description);
    dataSet->Text(group | 0x0040, "CS", plane.kind);
    dataSet->Shorts(group | 0x0050, {plane.top, plane.left}, "SS");
    dataSet->Short(group | 0x0100, 1);
    dataSet->Short(group | 0x0102, 0);
    dataSet->Text(group | 0x1500, "LO", plane.label);
    dataSet->Words(group | 0x3000, std::move(bits));
}

DemoDataSet Header(const DemoPlane& plane)
{
    const DemoPoint r = plane.AlongRow(), c = plane.AlongColumn(), o = plane.origin;
    DemoDataSet dataSet = DemoHeader(kSeries, 1);
    dataSet.Text(0x00080008, "CS", "ORIGINAL\\PRIMARY\\M\\SE");
    dataSet.Text(0x00180020, "CS", "SE");
    dataSet.Text(0x00180021, "CS", "SK");
    dataSet.Text(0x00180022, "CS", "");
    dataSet.Text(0x00180023, "CS", "2D");
    dataSet.Decimals(0x00180050, {4});
    dataSet.Decimals(0x00180080, {3800});
    dataSet.Decimals(0x00180081, {104});
    dataSet.Integer(0x00180091, 17);
    dataSet.Text(0x00185100, "CS", "HFS");
    dataSet.Decimals(0x00200032, {o.x, o.y, o.z});
    dataSet.Decimals(0x00200037, {r.x, r.y, r.z, c.x, c.y, c.z});
    dataSet.Text(0x00200052, "UI", DemoUid("frame of reference of the spine"));
    dataSet.Text(0x00201040, "LO", "");
    dataSet.Decimals(0x00280030, {kPixel_mm, kPixel_mm});
    dataSet.Decimals(0x00281050, {420});
    dataSet.Decimals(0x00281051, {860});
    return dataSet;
}

}  // namespace

QvxStatus WriteDemoOverlays(const DemoPhantom& phantom, DemoFolder* folder)
{
    const DemoPlane plane = {
        std::numbers::pi / 2, 0, {0, kFront_mm, kTop_mm}, kPixel_mm, kSize, kSize};
    std::vector<float> signal = DemoPlane_Paint(phantom, plane, DemoTissue_MRSignal);
    DemoPlane_AddCoil(plane, 9, &signal);
    DemoDataSet dataSet = Header(plane);
    AddPlane(&dataSet, kNames, Names());
    AddPlane(&dataSet, kFinding, Finding());
    return DemoImage_Write(folder, kSeries, 1, std::move(dataSet),
                           {.rows = kSize, .columns = kSize}, {DemoStoredValues(signal, 0, 4095)});
}

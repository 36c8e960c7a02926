#include "tool/demo/DemoPhantom.h"

#include <algorithm>
#include <cmath>

namespace {

using Solid = DemoEllipsoid;

constexpr double kLungTop = 160, kLungBottom = -112;  // z
constexpr float kSkin = 20, kFat = -100, kMuscle = 50, kLung = -850, kBlood = 45, kLiver = 60;
constexpr float kSpleen = 50, kKidney = 30, kGas = -950, kNodule = 40;

// The body's outline is a trunk with a lobe on either side of the back; less their margins the
// same three shapes are the borders of fat and of muscle.
//                                     z     x    y    rx   ry
const DemoTube kTrunk({{215, 0, 14, 60, 62},
                       {185, 0, 12, 68, 68},
                       {168, 0, 10, 104, 80},
                       {148, 0, 6, 156, 94},
                       {120, 0, 3, 172, 106},
                       {60, 0, 0, 172, 114},
                       {0, 0, 0, 168, 117},
                       {-60, 0, 0, 160, 114},
                       {-120, 0, 0, 154, 110},
                       {-215, 0, 0, 164, 114}},
                      kSkin);
const DemoTube kBackLobe({{178, 52, 20, 8, 10},
                          {160, 60, 22, 54, 56},
                          {130, 74, 26, 80, 84},
                          {60, 74, 26, 86, 94},
                          {-60, 66, 26, 82, 92},
                          {-215, 62, 26, 88, 90}},
                         kSkin);
// Inside of the chest wall and of the belly's wall.
const DemoTube kCage({{215, 0, 6, 20, 22},
                      {180, 0, 6, 26, 30},
                      {160, 0, 4, 58, 46},
                      {140, 0, 2, 92, 62},
                      {110, 0, 0, 116, 74},
                      {60, 0, 0, 128, 82},
                      {0, 0, -1, 132, 85},
                      {-60, 0, -2, 131, 84},
                      {-120, 0, -4, 126, 80},
                      {-215, 0, -6, 128, 82}},
                     kFat);
const DemoTube kMediastinum({{165, 0, 2, 40, 46},
                             {140, 0, 2, 36, 52},
                             {100, 2, -4, 34, 62},
                             {50, 4, -4, 34, 70},
                             {0, 4, -6, 36, 74},
                             {-50, 4, -12, 50, 76},
                             {-113, 0, -10, 104, 80}},
                            kFat);

// Tubes that keep their own course through the volume.
const DemoTube kTubes[] = {
    // descending aorta, down the left side of the spine
    DemoTube({{88, 25, 34, 12, 12},
              {40, 25, 36, 12, 12},
              {-40, 18, 34, 11, 11},
              {-120, 10, 33, 10, 10},
              {-215, 4, 32, 9, 9}},
             kBlood),
    // ascending aorta
    DemoTube({{88, -12, -22, 15, 15}, {55, -17, -32, 16, 16}, {20, -4, -26, 14, 14}}, kBlood),
    // pulmonary trunk
    DemoTube({{62, 20, -24, 13, 14}, {40, 19, -38, 14, 14}, {10, 14, -42, 13, 13}}, kBlood),
    // upper and lower caval vein
    DemoTube({{112, -26, -24, 8, 9}, {60, -30, -18, 9, 10}, {20, -28, -10, 10, 11}}, kBlood),
    DemoTube({{-5, -26, 4, 12, 11}, {-60, -20, 16, 12, 11}, {-215, -15, 32, 11, 9}}, kBlood),
    // vessels of neck and arms
    DemoTube({{215, -26, 0, 4, 4}, {150, -18, -8, 4, 4}, {95, -8, -16, 6, 6}}, kBlood),
    DemoTube({{215, 26, 2, 4, 4}, {150, 18, -2, 4, 4}, {95, 8, -2, 5, 5}}, kBlood),
    DemoTube({{160, 34, 14, 4, 4}, {130, 26, 14, 5, 5}, {95, 20, 16, 6, 6}}, kBlood),
    // gullet, then windpipe with its wall
    DemoTube({{215, 3, 26, 8, 7}, {60, 6, 26, 8, 6}, {-35, 16, 14, 9, 7}}, 35),
    DemoTube({{215, 0, 6, 11, 11}, {100, -1, 9, 11, 10}, {56, 2, 12, 13, 10}}, 20),
    DemoTube({{215, 0, 6, 9, 9}, {100, -1, 9, 9, 8}, {56, 2, 12, 11, 8}}, kGas),
};
// descending colon, partly filled with gas
const DemoTube kColon({{-98, 100, 14, 6, 8},
                       {-115, 104, 22, 15, 17},
                       {-150, 106, 20, 13, 15},
                       {-215, 100, 10, 16, 17}},
                      25);
const DemoTube kColonGas({{-104, 101, 12, 2, 2},
                          {-120, 103, 17, 10, 9},
                          {-140, 104, 16, 3, 2},
                          {-170, 104, 10, 9, 8},
                          {-215, 100, 4, 8, 8}},
                         kGas);
const DemoTube kPsoas({{-95, 30, 62, 6, 6}, {-140, 36, 62, 15, 17}, {-215, 46, 56, 22, 24}},
                      kMuscle);

std::vector<Solid> Abdomen()
{
    std::vector<Solid> solids = {
        Solid({64, 0, -92}, {72, 84, 82}, kFat),  // under the left half of the diaphragm
        Solid({-62, -4, -80}, {76, 86, 80}, kLiver),
        Solid({4, -44, -74}, {66, 34, 40}, kLiver),
        Solid({-58, 16, -118}, {34, 34, 44}, kLiver),
        Solid({100, 38, -78}, {26, 46, 50}, kSpleen, 0.35),
        Solid({58, -30, -72}, {42, 42, 46}, 35),  // stomach
        Solid({56, -52, -66}, {30, 17, 26}, kGas),
        Solid({-46, -56, -118}, {14, 20, 26}, 8),            // gall bladder
        Solid({-92, 20, -60}, {9, 9, 9}, 5),                 // a cyst
        Solid::Rod({-22, -14, -116}, {66, 2, -98}, 12, 42),  // pancreas
        Solid({-64, 48, -128}, {33, 36, 60}, kFat, 0.5),
        Solid({64, 48, -118}, {33, 36, 60}, kFat, -0.5),
        Solid({-64, 48, -128}, {27, 30, 52}, kKidney, 0.5),
        Solid({64, 48, -118}, {27, 30, 52}, kKidney, -0.5),
        Solid({-54, 42, -128}, {10, 14, 26}, -60),
        Solid({54, 42, -118}, {10, 14, 26}, -60),
    };
    // branches of the portal vein and of the liver's own veins
    const DemoPoint hilum = {-28, -8, -84};
    for (const DemoPoint tip : {DemoPoint{-92, -30, -60},
                                {-96, 20, -84},
                                {-70, 42, -100},
                                {-60, -52, -96},
                                {20, -50, -74}})
        solids.push_back(Solid::Rod(hilum, tip, 4.5, 40));
    for (const DemoPoint tip : {DemoPoint{-100, 0, -50}, {-72, -46, -52}, {-88, 40, -62}})
        solids.push_back(Solid::Rod({-26, 8, -26}, tip, 4, 40));
    // loops of bowel, some of them with gas
    for (int i = 0; i < 60; ++i) {
        const double angle = 2.4 * i, reach = 12 + 60 * std::sqrt(i / 60.0);
        const DemoPoint centre = {24 + reach * std::cos(angle),
                                  -30 + 0.45 * reach * std::sin(angle), -118.0 - 1.6 * i};
        solids.push_back(Solid(centre, {15, 12, 14}, 35, angle));
        if (i % 4 == 0)
            solids.push_back(Solid({centre.x, centre.y - 3, centre.z}, {9, 6, 9}, kGas));
    }
    return solids;
}

std::vector<Solid> Chest()
{
    std::vector<Solid> solids = {
        // arch of the aorta, and the arteries to both lungs
        Solid::Rod({-10, -22, 86}, {8, 4, 94}, 13, kBlood),
        Solid::Rod({8, 4, 94}, {25, 34, 84}, 12, kBlood),
        Solid::Rod({18, -20, 52}, {-42, 4, 44}, 9, kBlood),
        Solid::Rod({20, -18, 54}, {46, 8, 52}, 9, kBlood),
    };
    const DemoPoint fork = {2, 12, 58};
    for (const DemoPoint end : {DemoPoint{-42, 14, 32}, {46, 16, 28}}) {
        solids.push_back(Solid::Rod(fork, end, 8, 20));
        solids.push_back(Solid::Rod(fork, end, 6, kGas));
    }
    // heart: its fat, both atria, the chambers with the muscle around the left one
    solids.insert(solids.end(), {
                                    Solid({22, -28, 6}, {66, 52, 52}, -90, 0.4),
                                    Solid({-26, -14, 8}, {26, 30, 32}, 42),
                                    Solid({14, 10, 18}, {32, 20, 24}, 42),
                                    Solid({20, -36, 0}, {58, 36, 42}, kBlood, 0.4),
                                    Solid::Rod({18, -12, 20}, {68, -40, -18}, 32, 55),
                                    Solid::Rod({20, -14, 18}, {60, -36, -12}, 19, 40),
                                });
    return solids;
}

// What is to be found in the lungs.
std::vector<Solid> Findings()
{
    return {
        Solid({-76, -28, 62}, {4.5, 4.5, 6}, kNodule),
        Solid({88, 24, 22}, {7, 6, 7}, kNodule),
        Solid({-84, 44, -18}, {3.5, 3.5, 5}, kNodule),
        Solid({66, -30, 98}, {9, 8, 9}, -600),
    };
}

void AddAll(const std::vector<Solid>& solids, double z, int clip, DemoSlice* slice)
{
    for (const Solid& solid : solids)
        solid.AddTo(slice, z, clip);
}

// Skin, fat under it, muscle; between the muscles of the back a seam of fat.
void AddBody(double z, DemoSlice* slice)
{
    struct Layer {
        double margin;
        float hu;
    };
    for (const Layer layer : {Layer{0, kSkin}, {2, kFat}, {15, kMuscle}}) {
        const std::size_t first = slice->size();
        kTrunk.AddTo(slice, z, layer.margin);
        kBackLobe.AddTo(slice, z, layer.margin);
        kBackLobe.AddTo(slice, z, layer.margin, -1, true);
        for (std::size_t i = first; i < slice->size(); ++i)
            (*slice)[i].hu = layer.hu;
    }
    if (const auto lobe = kBackLobe.At(z)) {
        for (const int side : {-1, 1}) {
            const double y = lobe->y + lobe->ry - 29;
            slice->push_back(DemoEllipse::Turned(side * 31.0, y, 31, 19, 0.15 * side, kFat));
            slice->push_back(DemoEllipse::Turned(side * 31.0, y, 29, 17, 0.15 * side, kMuscle));
        }
    }
}

// Both lungs as one, up to the apex; what lies between them covers its middle later.
void AddLungs(double z, DemoSlice* slice)
{
    constexpr double kApex = 26;  // height over which they round off
    const auto cage = kCage.At(z);
    const double above = std::max(0.0, (z - (kLungTop - kApex)) / kApex);
    const double part = std::sqrt(1 - above * above);
    slice->push_back(
        DemoEllipse::Turned(0, cage->y, part * (cage->rx - 3), part * (cage->ry - 3), 0, kLung));
}

}  // namespace

DemoPhantom::DemoPhantom()
    : fLungVessels(DemoLungs_Vessels()),
      fAbdomen(Abdomen()),
      fChest(Chest()),
      fBones(DemoBones_Others())
{
    const auto findings = Findings();
    fLungVessels.insert(fLungVessels.end(), findings.begin(), findings.end());
}

DemoSlice DemoPhantom::SliceAt(double z) const
{
    DemoSlice slice;
    AddBody(z, &slice);
    if (slice.empty())
        return slice;
    // A seam of fat among the muscles of the wall.
    kCage.AddTo(&slice, z, -14);
    kCage.AddTo(&slice, z, -12);
    slice.back().hu = kMuscle;
    const int cage = static_cast<int>(slice.size());
    kCage.AddTo(&slice, z);
    if (z < kLungTop && z > kLungBottom) {
        const int lungs = static_cast<int>(slice.size());
        AddLungs(z, &slice);
        AddAll(fLungVessels, z, lungs, &slice);
    }
    kMediastinum.AddTo(&slice, z, 0, cage);
    AddAll(fAbdomen, z, cage, &slice);
    AddAll(fChest, z, cage, &slice);
    for (const DemoTube& tube : kTubes)
        tube.AddTo(&slice, z);
    kColon.AddTo(&slice, z, 0, cage);
    kColonGas.AddTo(&slice, z, 0, cage);
    kPsoas.AddTo(&slice, z);
    kPsoas.AddTo(&slice, z, 0, -1, true);

    DemoBones_AddRibs(&slice, z, kCage);
    DemoBones_AddSpine(&slice, z);
    AddAll(fBones, z, -1, &slice);
    return slice;
}

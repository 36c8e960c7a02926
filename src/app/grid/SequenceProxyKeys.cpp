#include "app/grid/SequenceProxyKeys.h"

namespace {

// A row for each of `keys`.
void Add(std::vector<DerivedKey>* table, std::initializer_list<std::string_view> keys,
         std::initializer_list<std::string_view> dependOn)
{
    for (const std::string_view key : keys)
        table->push_back({key, dependOn});
}

std::vector<DerivedKey> MakeTable()
{
    std::vector<DerivedKey> table;
    Add(&table,
        {"isGood", "allFilesOnDisk", "hasManyFrames", "currentFrame", "viewShowsDicomOverlays",
         "supportsUSRegions", "hasUSRegions", "cineLoopMode", "cineRate"},
        {"theSequence"});
    Add(&table, {"currentFrameString"}, {"currentFrame", "totalFrames"});
    Add(&table,
        {"hasNextFrame", "hasPrevFrame", "zoomIsAutoFit", "currentImageScroll",
         "currentImageIsValid", "currentFrameIsInverted", "currentWWBrightness", "minWWBrightness",
         "maxWWBrightness", "currentWLContrast", "minWLContrast", "maxWLContrast", "currentClutID",
         "currentMeasurement", "currentMeasurementIsTopmost", "currentMeasurementIsLast",
         "currentFrameViewState"},
        {"theSequence", "currentFrame"});
    Add(&table, {"currentZoom"}, {"theSequence", "currentFrame", "zoomIsAutoFit"});
    Add(&table, {"currentZoomString", "hasNextZoom", "hasPrevZoom"},
        {"currentZoom", "zoomIsAutoFit"});
    Add(&table, {"brightnessString"}, {"theSequence", "currentFrame", "currentWWBrightness"});
    Add(&table, {"contrastString"}, {"theSequence", "currentFrame", "currentWLContrast"});
    Add(&table, {"cineSpeed"}, {"theSequence", "cineRate"});
    Add(&table, {"canCreateMovie", "canPlayCine"}, {"theSequence", "totalFrames"});
    Add(&table,
        {"currentFrameHasMeasurements", "currentFrameHasMoreThan1", "currentFrameHasMoreThan1Lines",
         "currentFrameMeasurements"},
        {"theSequence", "currentFrame", "currentMeasurement"});
    return table;
}

}  // namespace

std::span<const DerivedKey> SequenceProxyDerivedKeys()
{
    static const std::vector<DerivedKey> table = MakeTable();
    return table;
}

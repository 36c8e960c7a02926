// What a proxy announces, and when: those who watch a key see each change of it, and no others.
#include "app/grid/GridFixture.h"

namespace {

using Keys = std::vector<std::string_view>;

std::string Said(char sign, std::string_view key)
{
    std::string said(1, sign);
    return said.append(key);
}

// All that a proxy announces while `change` runs: "+key" before, "-key" after, derived ones too.
template <typename Change>
Words Heard(ZELSequenceProxy& proxy, Change change)
{
    Words heard;
    const auto watch = proxy.ObserveKey({}, [&](std::string_view key, KeyPhase phase) {
        heard.push_back(Said(phase == KeyPhase::WillChange ? '+' : '-', key));
    });
    change();
    return heard;
}

// What an announcement of just these keys, in this order, is heard as.
Words HeardOf(const Keys& keys)
{
    ZELSequenceProxy proxy(nullptr);
    return Heard(proxy, [&] { proxy.Announce(std::span(keys), [] {}); });
}

const Keys kFrame{"currentMeasurementIsLast", "currentMeasurementIsTopmost", "currentMeasurement",
                  "currentFrame"};
const Keys kZoom{"zoomIsAutoFit", "currentScroll", "currentZoom"};
const Keys kFit{"zoomIsAutoFit", "currentZoom", "currentScroll"};
const Keys kWindow{"currentWLContrast", "currentWWBrightness"};
const Keys kColors{"currentWLContrast", "currentWWBrightness", "currentClutID",
                   "currentFrameIsInverted"};
const Keys kAll{"currentWLContrast",      "currentWWBrightness", "currentClutID",
                "currentFrameIsInverted", "currentScroll",       "currentRotation"};
const Keys kAdded{"hasMeasurements", "currentFrameHasMoreThan1", "currentFrameHasMoreThan1Lines",
                  "currentFrameHasMeasurements", "currentFrameMeasurements"};
const Keys kAddedCurrent{"hasMeasurements",
                         "currentFrameHasMoreThan1",
                         "currentFrameHasMoreThan1Lines",
                         "currentFrameHasMeasurements",
                         "currentFrameMeasurements",
                         "currentMeasurementIsLast",
                         "currentMeasurementIsTopmost",
                         "currentMeasurement"};
const Keys kCurrent{"currentMeasurementIsLast", "currentMeasurementIsTopmost",
                    "currentMeasurement"};
const Keys kRemoved{"hasMeasurements",
                    "currentFrameHasMoreThan1",
                    "currentFrameHasMoreThan1Lines",
                    "currentFrameHasMeasurements",
                    "currentMeasurementIsLast",
                    "currentMeasurementIsTopmost",
                    "currentFrameMeasurements",
                    "currentMeasurement"};

struct Row {
    const char* fault;
    void (*change)(ZELSequenceProxy&);
    Keys keys;
};

// Each on frame 2 of 3.
void ExpectHeard(std::span<const Row> rows, bool color)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeTree made({SeriesForm{.frames = 3, .color = color}});
        ZELSequenceProxy proxy(made.sequences[0]);
        proxy.setCurrentFrame(2);
        EXPECT_EQ(Heard(proxy, [&] { row.change(proxy); }), HeardOf(row.keys));
    }
}

}  // namespace

TEST(SequenceProxyKeys, of_frames_and_zoom_only_where_the_current_frame_is_meant)
{
    const Row rows[] = {
        {"another frame", [](auto& p) { p.setCurrentFrame(3); }, kFrame},
        {"a number that is refused", [](auto& p) { p.setCurrentFrame(4); }, kFrame},
        {"0 is refused too", [](auto& p) { p.setCurrentFrame(0); }, kFrame},
        {"the same frame", [](auto& p) { p.setCurrentFrame(2); }, {}},
        {"zoom of the current", [](auto& p) { p.changeZoomForFrame(0, 150); }, kZoom},
        {"zoom of all", [](auto& p) { p.changeZoomForFrame(-1, 150); }, kZoom},
        {"zoom of the current by its number", [](auto& p) { p.changeZoomForFrame(2, 150); }, kZoom},
        {"zoom of another", [](auto& p) { p.changeZoomForFrame(1, 150); }, {}},
        {"zoom of none", [](auto& p) { p.changeZoomForFrame(4, 150); }, {}},
        {"fit of the current", [](auto& p) { p.zoomAutofitForFrame(0); }, kFit},
        {"fit of all", [](auto& p) { p.zoomAutofitForFrame(-1); }, kFit},
        {"fit of another", [](auto& p) { p.zoomAutofitForFrame(3); }, {}},
        {"pan",
         [](auto& p) { p.changeScrollPositionForAllFrames(false, {1, 2}); },
         {"currentScroll"}},
        {"pan to the same place",
         [](auto& p) { p.changeScrollPositionForAllFrames(true, {}); },
         {}},
        {"turn", [](auto& p) { p.changeRotationForFrame(2, 90); }, {"currentRotation"}},
        {"turn of another", [](auto& p) { p.changeRotationForFrame(1, 90); }, {}},
    };
    ExpectHeard(rows, false);
}

TEST(SequenceProxyKeys, of_looks_and_resets)
{
    const Quiet quiet;
    const Row rows[] = {
        {"width", [](auto& p) { p.setCurrentWWBrightness(300); }, {"currentWWBrightness"}},
        {"the same width", [](auto& p) { p.setCurrentWWBrightness(p.currentWWBrightness()); }, {}},
        {"level", [](auto& p) { p.setCurrentWLContrast(7); }, {"currentWLContrast"}},
        {"the same level", [](auto& p) { p.setCurrentWLContrast(p.currentWLContrast()); }, {}},
        {"window", [](auto& p) { p.changeVOIForAllFrames(true, 300, 7); }, kWindow},
        {"brightness", [](auto& p) { p.changeBnCForAllFrames(false, 3, 7); }, kWindow},
        {"colours", [](auto& p) { p.setClutIDTo(2, true); }, {"currentClutID"}},
        {"negative", [](auto& p) { p.invertColorsForFrame(-1); }, {"currentFrameIsInverted"}},
        {"negative of another", [](auto& p) { p.invertColorsForFrame(1); }, {}},
        {"negative by its key", [](auto& p) { p.setCurrentFrameIsInverted(true); }, {}},
        {"original window", [](auto& p) { p.originalColorsForAllFrames(false); }, kWindow},
        {"colours reset", [](auto& p) { p.resetColorsForAllFrames(true); }, kColors},
        {"tables reset", [](auto& p) { p.resetCLUTsForAllFrames(true); }, {"currentClutID"}},
        {"turns reset", [](auto& p) { p.resetOrientationForAllFrames(true); }, {"currentRotation"}},
        {"all reset", [](auto& p) { p.resetAllForAllFrames(false); }, kAll},
        {"demographics, 2 hides",
         [](auto& p) { p.setViewShowsDemographics(2); },
         {"viewShowsDemographics"}},
        {"demographics as they are", [](auto& p) { p.setViewShowsDemographics(1); }, {}},
        {"scale", [](auto& p) { p.setViewShowsScale(false); }, {"viewShowsScale"}},
        {"measurements hidden",
         [](auto& p) { p.setViewShowsMeasurements(false); },
         {"viewShowsMeasurements"}},
        {"grid", [](auto& p) { p.setViewGridSetupID(3); }, {"viewGridSetupID"}},
        {"a grid that there isn't", [](auto& p) { p.setViewGridSetupID(10); }, {"viewGridSetupID"}},
        {"mark", [](auto& p) { p.setUserMarked(true); }, {"userMarked"}},
        {"rate", [](auto& p) { p.setCineRate(2); }, {"cineRate"}},
        {"speed", [](auto& p) { p.setCineSpeed(20); }, {"cineSpeed"}},
        {"loop", [](auto& p) { p.setCineLoopMode(1); }, {"cineLoopMode"}},
        {"movie", [](auto& p) { p.setCanCreateMovie(0); }, {"canCreateMovie", "canPlayCine"}},
        {"no sequence", [](auto& p) { p.setTheSequence(nullptr); }, {"theSequence"}},
        {"the same sequence", [](auto& p) { p.setTheSequence(p.theSequence()); }, {}},
    };
    ExpectHeard(rows, false);
    const Row colorRows[] = {
        {"brightness", [](auto& p) { p.setCurrentWWBrightness(30); }, {"currentWWBrightness"}},
        {"the same contrast", [](auto& p) { p.setCurrentWLContrast(0); }, {}},
    };
    ExpectHeard(colorRows, true);
}

TEST(SequenceProxyKeys, of_measurements)
{
    MadeTree made({SeriesForm{.frames = 3}});
    ZELSequenceProxy proxy(made.sequences[0]);
    proxy.setCurrentFrame(2);
    const CKShapePtr first = NewBox(), second = NewBox(), everywhere = NewBox();
    everywhere->_global = true;
    const auto heard = [&](auto change) { return Heard(proxy, change); };
    EXPECT_EQ(heard([&] { proxy.addNewMeasurement(first, false); }), HeardOf(kAdded));
    EXPECT_EQ(heard([&] { proxy.addNewMeasurement(second, true); }), HeardOf(kAddedCurrent));
    EXPECT_EQ(heard([&] { proxy.setCurrentMeasurement(second); }), Words());
    EXPECT_EQ(heard([&] { proxy.setCurrentAndSelectedMeasurement(first); }), HeardOf(kCurrent));
    EXPECT_EQ(heard([&] { proxy.removeMeasurement(second, 2, true); }), Words())
        << "it was not the current one";
    EXPECT_EQ(heard([&] { proxy.removeCurrentMeasurementAndDelete(true); }), HeardOf(kRemoved));
    proxy.addNewMeasurement(first, true);
    EXPECT_EQ(heard([&] { proxy.removeMeasurement(first, 2, true); }), HeardOf(kRemoved));
    proxy.viewStateForFrame(1)->addMeasurement(NewBox());
    EXPECT_EQ(heard([&] { proxy.removeAllMeasurementsForFrame(1); }), Words()) << "another frame";
    EXPECT_EQ(heard([&] { proxy.removeAllCurrentFrameMeasurements(); }), HeardOf(kRemoved));
    EXPECT_EQ(heard([&] { proxy.removeAllMeasurements(); }), HeardOf(kRemoved));
    EXPECT_EQ(heard([&] { proxy.changeScaleForAllFrames(2); }), Words()) << "scale shows already";
    proxy.setViewShowsScale(false);
    EXPECT_EQ(heard([&] { proxy.changeScaleForAllFrames(3); }), HeardOf({"viewShowsScale"}));
}

TEST(SequenceProxyKeys, derived_ones_follow_each_that_they_depend_on_once)
{
    const struct {
        Keys derived, dependOn;
    } rows[] = {
        {{"isGood", "allFilesOnDisk", "hasManyFrames", "currentFrame", "viewShowsDicomOverlays",
          "supportsUSRegions", "hasUSRegions", "cineLoopMode", "cineRate"},
         {"theSequence"}},
        {{"currentFrameString"}, {"currentFrame", "totalFrames"}},
        {{"hasNextFrame", "hasPrevFrame", "zoomIsAutoFit", "currentImageScroll",
          "currentImageIsValid", "currentFrameIsInverted", "currentWWBrightness", "minWWBrightness",
          "maxWWBrightness", "currentWLContrast", "minWLContrast", "maxWLContrast", "currentClutID",
          "currentMeasurement", "currentMeasurementIsTopmost", "currentMeasurementIsLast",
          "currentFrameViewState"},
         {"theSequence", "currentFrame"}},
        {{"currentZoom"}, {"theSequence", "currentFrame", "zoomIsAutoFit"}},
        {{"currentZoomString", "hasNextZoom", "hasPrevZoom"}, {"currentZoom", "zoomIsAutoFit"}},
        {{"brightnessString"}, {"theSequence", "currentFrame", "currentWWBrightness"}},
        {{"contrastString"}, {"theSequence", "currentFrame", "currentWLContrast"}},
        {{"cineSpeed"}, {"theSequence", "cineRate"}},
        {{"canCreateMovie", "canPlayCine"}, {"theSequence", "totalFrames"}},
        {{"currentFrameHasMeasurements", "currentFrameHasMoreThan1",
          "currentFrameHasMoreThan1Lines", "currentFrameMeasurements"},
         {"theSequence", "currentFrame", "currentMeasurement"}},
    };
    for (const auto& row : rows) {
        for (const std::string_view from : row.dependOn) {
            const Words heard = HeardOf({from});
            for (const std::string_view key : row.derived) {
                EXPECT_EQ(std::ranges::count(heard, Said('+', key)), 1) << key << " by " << from;
                EXPECT_EQ(std::ranges::count(heard, Said('-', key)), 1) << key << " by " << from;
            }
        }
    }
    // The other way round nothing follows.
    EXPECT_EQ(HeardOf({"currentZoomString"}), (Words{"+currentZoomString", "-currentZoomString"}));
    EXPECT_EQ(std::ranges::count(HeardOf({"currentFrame"}), "+theSequence"), 0);
}

TEST(SequenceProxyKeys, tell_the_old_value_before_and_the_new_one_after)
{
    MadeTree made({SeriesForm{.frames = 3}});
    ZELSequenceProxy proxy(made.sequences[0]);
    std::vector<QString> seen;
    const auto watch = proxy.ObserveKey("currentFrameString", [&](std::string_view, KeyPhase) {
        seen.push_back(proxy.currentFrameString());
    });
    proxy.setCurrentFrame(3);
    EXPECT_EQ(seen, (std::vector<QString>{QStringLiteral("1 of 3"), QStringLiteral("3 of 3")}));
}

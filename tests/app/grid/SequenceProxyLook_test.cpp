// A proxy's windows, colours and turns, what resets leave, and a proxy of no sequence.
#include "app/grid/GridFixture.h"

namespace {

// What was done to a frame, a letter each: window, brightness, negative, colours, turn, flip, pan,
// zoom.
std::string EditsOf(const dk_ImageFrameInfo& info)
{
    const zel_TransformRec& record = info.fTransform;
    std::string edits;
    const auto add = [&](bool edited, char letter) {
        if (edited)
            edits += letter;
    };
    add(record.voiWidth != record.voiWidthOriginal || record.voiLevel != record.voiLevelOriginal,
        'W');
    add(record.brightness != 0 || record.contrast != 0, 'B');
    add(record.invert, 'I');
    add(info.fColorTable != 0, 'C');
    add(record.rotation != 0, 'R');
    add(record.horzFlip || record.vertFlip, 'F');
    add(record.scroll.x != 0 || record.scroll.y != 0, 'P');
    add(!record.autoFit, 'Z');
    return edits;
}

void EditAll(ZELSequenceProxy* proxy)
{
    dk_SequenceFrameInfo* table = proxy->theSequence()->GetSequenceFrameInfo();
    proxy->changeVOIForAllFrames(true, 123, 45);
    proxy->changeBnCForAllFrames(true, 6, -7);
    proxy->setClutIDTo(3, true);
    proxy->invertColorsForFrame(-1);
    proxy->changeRotationForFrame(-1, 90);
    table->HorizontalFlipFrame(-1);
    proxy->changeScrollPositionForAllFrames(true, {2, 3});
    proxy->changeZoomForFrame(-1, 200);
}

}  // namespace

TEST(SequenceProxyLook, names_windows_of_gray_frames_and_brightness_of_others)
{
    MadeTree made({{.frames = 2}, {.frames = 2, .color = true}});
    ZELSequenceProxy gray(made.sequences[0]), color(made.sequences[1]);
    using Ask = std::int32_t (ZELSequenceProxy::*)(std::int32_t) const;
    struct Row {
        const char* what;
        Ask ask;
        float zel_TransformRec::* window;
        std::int32_t ofColor;
    };
    using P = ZELSequenceProxy;
    using T = zel_TransformRec;
    const Row rows[] = {
        {"width", &P::theWWBrightnessForFrame, &T::voiWidth, 30},
        {"original width", &P::theOriginalWWBrightnessForFrame, &T::voiWidthOriginal, 0},
        {"least width", &P::theMinWWBrightnessForFrame, &T::voiWidthMin, -100},
        {"greatest width", &P::theMaxWWBrightnessForFrame, &T::voiWidthMax, 100},
        {"level", &P::theWLContrastForFrame, &T::voiLevel, -20},
        {"original level", &P::theOriginalWLContrastForFrame, &T::voiLevelOriginal, 0},
        {"least level", &P::theMinWLContrastForFrame, &T::voiLevelMin, -100},
        {"greatest level", &P::theMaxWLContrastForFrame, &T::voiLevelMax, 100},
    };
    zel_TransformRec& record = made.sequences[0]->GetImageFrameInfo(2)->fTransform;
    float value = 100.75F;  // each another one, and cut, not rounded
    for (const Row& row : rows)
        record.*row.window = value += 10;
    color.changeBnCForAllFrames(true, 30, -20);
    value = 100;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        value += 10;
        EXPECT_EQ((gray.*row.ask)(2), static_cast<std::int32_t>(value));
        EXPECT_EQ((color.*row.ask)(2), row.ofColor);
        EXPECT_EQ((color.*row.ask)(3), 0) << "no such frame";
    }
    record.voiLevel = -3.5F;
    EXPECT_EQ(gray.theWLContrastForFrame(2), -3);
}

TEST(SequenceProxyLook, words_values_as_people_write_them)
{
    MadeTree made({{.frames = 1}, {.frames = 1, .color = true}});
    ZELSequenceProxy gray(made.sequences[0]), color(made.sequences[1]);
    EXPECT_EQ(gray.brightnessString(), QStringLiteral("400"));
    EXPECT_EQ(gray.contrastString(), QStringLiteral("40"));
    struct Row {
        int brightness, contrast;
        const char *first, *second;
    };
    for (const Row& row : {Row{0, 0, "0%", "0%"}, Row{30, -20, "+30%", "-20%"},
                           Row{-100, 100, "-100%", "+100%"}, Row{900, -900, "+100%", "-100%"}}) {
        color.changeBnCForAllFrames(false, row.brightness, row.contrast);
        EXPECT_EQ(color.brightnessString(), QLatin1String(row.first));
        EXPECT_EQ(color.contrastString(), QLatin1String(row.second));
    }
    gray.changeZoomForFrame(0, 66.66);
    EXPECT_EQ(gray.currentZoomString(), QStringLiteral("66.7%"));
}

TEST(SequenceProxyLook, setting_one_of_a_pair_keeps_the_other_and_other_frames)
{
    MadeTree made({{.frames = 3}, {.frames = 3, .color = true}});
    for (const bool isGray : {true, false}) {
        SCOPED_TRACE(isGray);
        dk_Sequence* sequence = made.sequences[isGray ? 0 : 1];
        ZELSequenceProxy proxy(sequence);
        proxy.setCurrentFrame(2);
        const zel_TransformRec& record = sequence->GetImageFrameInfo(2)->fTransform;
        const zel_TransformRec other = sequence->GetImageFrameInfo(3)->fTransform;
        proxy.changeVOIForAllFrames(false, 250.75F, 33.5F);
        proxy.changeBnCForAllFrames(false, 11, 12);
        if (isGray) {
            proxy.setCurrentWWBrightness(250);
            EXPECT_EQ(record.voiWidth, 250.75F) << "the same number is no change";
        }
        proxy.setCurrentWWBrightness(60);
        EXPECT_EQ(isGray ? record.voiLevel : record.contrast, isGray ? 33.5F : 12);
        proxy.setCurrentWLContrast(70);
        EXPECT_EQ(isGray ? record.voiWidth : record.brightness, 60);
        EXPECT_EQ(isGray ? record.voiLevel : record.contrast, 70);
        if (isGray) {
            EXPECT_EQ(record.brightness, 11) << "of the other kind";
        }
        EXPECT_EQ(sequence->GetImageFrameInfo(3)->fTransform, other);
    }
}

TEST(SequenceProxyLook, resets_leave_what_they_are_not_about)
{
    using Reset = void (ZELSequenceProxy::*)(bool);
    struct Row {
        const char* what;
        Reset reset;
        const char* left;
    };
    const Row rows[] = {
        {"original window", &ZELSequenceProxy::originalColorsForAllFrames, "ICRFPZ"},
        {"colours", &ZELSequenceProxy::resetColorsForAllFrames, "RFPZ"},
        {"colour tables", &ZELSequenceProxy::resetCLUTsForAllFrames, "WBIRFPZ"},
        {"turns", &ZELSequenceProxy::resetOrientationForAllFrames, "WBICPZ"},
        {"all", &ZELSequenceProxy::resetAllForAllFrames, "PZ"},
    };
    for (const Row& row : rows) {
        for (const bool all : {false, true}) {
            SCOPED_TRACE(std::string(row.what) + (all ? " of all" : " of one"));
            MadeTree made({SeriesForm{.frames = 3}});
            ZELSequenceProxy proxy(made.sequences[0]);
            proxy.setCurrentFrame(2);
            EditAll(&proxy);
            ASSERT_EQ(EditsOf(*made.sequences[0]->GetImageFrameInfo(1)), "WBICRFPZ");
            (proxy.*row.reset)(all);
            EXPECT_EQ(EditsOf(*made.sequences[0]->GetImageFrameInfo(2)), row.left);
            for (const int other : {1, 3})
                EXPECT_EQ(EditsOf(*made.sequences[0]->GetImageFrameInfo(other)),
                          all ? row.left : "WBICRFPZ");
        }
    }
}

TEST(SequenceProxyLook, a_pan_is_of_the_current_frame_or_of_all)
{
    MadeTree made({SeriesForm{.frames = 3}});
    ZELSequenceProxy proxy(made.sequences[0]);
    proxy.changeScrollPositionForAllFrames(false, {2, 3});
    EXPECT_EQ(proxy.scrollForFrame(1), QPointF(2, 3));
    EXPECT_EQ(proxy.scrollForFrame(2), QPointF());
    proxy.changeScrollPositionForAllFrames(true, {4, 3});
    EXPECT_EQ(proxy.scrollForFrame(3), QPointF(4, 3));
}

TEST(SequenceProxyLook, an_offscreen_has_the_frame_as_its_file_has_it)
{
    MadeTree made({SeriesForm{.frames = 2}});
    ZELSequenceProxy proxy(made.sequences[0]);
    proxy.changeRotationForFrame(-1, 90);
    const auto offscreen = proxy.offscreenForFrame(2, nullptr);
    ASSERT_TRUE(offscreen);
    EXPECT_EQ(offscreen->Width(), kColumns);
    EXPECT_EQ(offscreen->Height(), kRows);
    std::uint32_t flags = 9;
    EXPECT_EQ(proxy.offscreenForFrame(3, &flags), nullptr);
    EXPECT_EQ(flags, 0u);
}

// ---- no sequence ----

TEST(SequenceProxyLook, without_a_sequence_every_answer_is_neutral)
{
    ZELSequenceProxy none(nullptr);
    const std::pair<const char*, double> numbers[] = {
        {"frame", none.currentFrame()},
        {"frames", none.totalFrames()},
        {"zoom", none.currentZoom()},
        {"width", none.currentWWBrightness()},
        {"least width", none.minWWBrightness()},
        {"greatest width", none.maxWWBrightness()},
        {"level", none.currentWLContrast()},
        {"least level", none.minWLContrast()},
        {"greatest level", none.maxWLContrast()},
        {"original width", none.theOriginalWWBrightnessForFrame(1)},
        {"original level", none.theOriginalWLContrastForFrame(1)},
        {"colours", none.currentClutID()},
        {"turn", none.currentRotation()},
        {"grid", none.viewGridSetupID()},
        {"rate", none.cineRate() - 1},
        {"adjusted rate", none.adjustedCineRate() - 1},
        {"speed", none.cineSpeed() - 15},
        {"adjusted speed", none.adjustedCineSpeed() - 15},
        {"stored speed", none.storedCineSpeed() - 15},
        {"measurements", none.totalMeasurementsInFrame(1)},
        {"index", none.measurementIndexForShape(NewBox().get(), 1) + 1},
        {"loop", none.cineLoopMode()},
    };
    for (const auto& [what, value] : numbers)
        EXPECT_EQ(value, 0) << what;
    const std::pair<const char*, bool> asks[] = {
        {"isGood", none.isGood()},
        {"hasNextFrame", none.hasNextFrame()},
        {"hasPrevFrame", none.hasPrevFrame()},
        {"hasManyFrames", none.hasManyFrames()},
        {"zoomIsAutoFit", none.zoomIsAutoFit()},
        {"hasNextZoom", none.hasNextZoom()},
        {"hasPrevZoom", none.hasPrevZoom()},
        {"currentFrameIsInverted", none.currentFrameIsInverted()},
        {"viewShowsDemographics", none.viewShowsDemographics()},
        {"viewShowsScale", none.viewShowsScale()},
        {"viewShowsMeasurements", none.viewShowsMeasurements()},
        {"viewShowsDicomOverlays", none.viewShowsDicomOverlays()},
        {"isDICOMGray", none.isDICOMGray()},
        {"hasDicomOverlays", none.hasDicomOverlays()},
        {"hasScale", none.hasScale()},
        {"hasUSRegions", none.hasUSRegions()},
        {"supportsUSRegions", none.supportsUSRegions()},
        {"currentImageIsValid", none.currentImageIsValid()},
        {"framesAreInBuffer", none.framesAreInBuffer()},
        {"allFilesOnDisk", none.allFilesOnDisk()},
        {"userMarked", none.userMarked()},
        {"canPlayCine", none.canPlayCine()},
        {"hasMeasurements", none.hasMeasurements()},
        {"currentFrameHasMeasurements", none.currentFrameHasMeasurements()},
        {"currentFrameHasMoreThan1", none.currentFrameHasMoreThan1()},
        {"currentFrameHasMoreThan1Lines", none.currentFrameHasMoreThan1Lines()},
        {"currentMeasurementIsTopmost", none.currentMeasurementIsTopmost()},
        {"currentMeasurementIsLast", none.currentMeasurementIsLast()},
        {"hasCrops", none.hasCrops()},
    };
    for (const auto& [what, value] : asks)
        EXPECT_FALSE(value) << what;
    EXPECT_EQ(none.currentFrameString(), QString());
    for (const QString& text :
         {none.currentZoomString(), none.brightnessString(), none.contrastString()})
        EXPECT_EQ(text, QStringLiteral("0.0%%"));
    EXPECT_EQ(none.currentScroll(), QPointF());
    EXPECT_EQ(none.usRegions(), nullptr);
    EXPECT_EQ(none.offscreenForFrame(1, nullptr), nullptr);
    EXPECT_EQ(none.theCineMovie(), nullptr);
    EXPECT_EQ(none.currentMeasurement(), nullptr);
    EXPECT_EQ(none.currentFrameViewState(), nullptr);
    EXPECT_TRUE(none.measurementsForFrame(1).empty());
    EXPECT_EQ(none.cropForFrame(1), nullptr);
    EXPECT_EQ(none.cropRectForFrame(1), QRectF());
    EXPECT_EQ(none.copyWithZone()->theSequence(), nullptr);
}

TEST(SequenceProxyLook, without_a_sequence_commands_do_and_announce_nothing)
{
    const Quiet quiet;
    ZELSequenceProxy none(nullptr);
    Words heard;
    const auto watch = none.ObserveKey(
        {}, [&](std::string_view key, KeyPhase) { heard.push_back(std::string(key)); });
    const CKShapePtr shape = NewBox();
    none.setCurrentFrame(1);
    for (const int selector : {-1, 0, 1}) {
        none.changeZoomForFrame(selector, 100);
        none.zoomAutofitForFrame(selector);
        none.invertColorsForFrame(selector);
        none.changeRotationForFrame(selector, 90);
        none.removeMeasurement(shape, selector, true);
        none.removeAllMeasurementsForFrame(selector);
        none.setCropForFrame(shape, selector);
    }
    for (const bool all : {false, true}) {
        none.changeScrollPositionForAllFrames(all, {1, 1});
        none.changeBnCForAllFrames(all, 1, 1);
        none.changeVOIForAllFrames(all, 1, 1);
        none.setClutIDTo(1, all);
        none.originalColorsForAllFrames(all);
        none.resetColorsForAllFrames(all);
        none.resetCLUTsForAllFrames(all);
        none.resetOrientationForAllFrames(all);
        none.resetAllForAllFrames(all);
        none.setViewShowsScale(all);
        none.setViewShowsMeasurements(all);
        none.setViewShowsDicomOverlays(all);
        none.setUserMarked(all);
        none.addNewMeasurement(shape, all);
        none.removeCurrentMeasurementAndDelete(all);
    }
    none.setCurrentWWBrightness(5);
    none.setCurrentWLContrast(5);
    none.setCurrentFrameIsInverted(true);
    none.setViewShowsDemographics(1);
    none.setViewGridSetupID(3);
    none.setCineLoopMode(1);
    none.setCineRate(2);
    none.setCineSpeed(2);
    none.setCurrentMeasurement(shape);
    none.removeAllMeasurements();
    none.changeScaleForAllFrames(2);
    none.setSequenceCrop(shape);
    none.clearCrops();
    EXPECT_EQ(heard, Words());
    EXPECT_FALSE(none.hasCrops());
    EXPECT_EQ(shape->references(), 0);
}

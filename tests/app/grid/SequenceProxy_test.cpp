// A sequence as the interface sees it: frames, zoom, crops, measurements, playing.
#include "app/grid/GridFixture.h"
#include "dicom_core/values/ModalityRules.h"

namespace {

struct Shown {
    explicit Shown(const SeriesForm& form = {.frames = 4})
        : made({form}), sequence(made.sequences[0]), proxy(sequence)
    {
        proxy.setCurrentFrame(2);
    }
    [[nodiscard]] zel_TransformRec& Record(std::int32_t frame = 2)
    {
        return sequence->GetImageFrameInfo(frame)->fTransform;
    }
    // How many measurements each frame has, as digits.
    [[nodiscard]] std::string Counts() const
    {
        std::string counts;
        for (std::int32_t frame = 1; frame <= proxy.totalFrames(); ++frame)
            counts += std::to_string(proxy.totalMeasurementsInFrame(frame));
        return counts;
    }
    void AddTo(std::int32_t frame, const CKShapePtr& shape)
    {
        proxy.viewStateForFrame(frame)->addMeasurement(shape);
    }
    MadeTree made;
    dk_Sequence* sequence;
    ZELSequenceProxy proxy;
};

}  // namespace

TEST(SequenceProxy, begins_at_frame_1_and_keeps_its_frame_when_one_is_refused)
{
    MadeTree made({{.frames = 3}, {.frames = 2}});
    made.sequences[0]->SetCurrentFrameIndex(3);
    ZELSequenceProxy proxy(made.sequences[0]);
    EXPECT_EQ(proxy.currentFrame(), 3) << "only 0 becomes 1";
    for (const int refused : {0, 4, -1}) {
        proxy.setCurrentFrame(refused);
        EXPECT_EQ(proxy.currentFrame(), 3);
    }
    EXPECT_EQ(made.sequences[0]->GetSequenceProxy(), &proxy);
    proxy.addNewMeasurement(NewBox(), true);
    proxy.setSequenceCrop(NewBox());
    proxy.setCineLoopMode(2);
    proxy.setTheSequence(made.sequences[1]);
    EXPECT_EQ(made.sequences[0]->GetSequenceProxy(), nullptr);
    EXPECT_EQ(made.sequences[1]->GetSequenceProxy(), &proxy);
    EXPECT_EQ(proxy.currentFrame(), 1);
    EXPECT_FALSE(proxy.hasMeasurements() || proxy.hasCrops());
    EXPECT_NE(proxy.cineLoopMode(), 2);
}

TEST(SequenceProxy, a_copy_leaves_the_sequence_its_link)
{
    Shown shown;
    const auto copy = shown.proxy.copyWithZone();
    EXPECT_EQ(copy->theSequence(), shown.sequence);
    EXPECT_EQ(shown.sequence->GetSequenceProxy(), &shown.proxy);
    QVariantMap coded = shown.proxy.encodeWithCoder();
    EXPECT_EQ(ZELSequenceProxy::initWithCoder(coded)->theSequence(), shown.sequence);
    EXPECT_EQ(shown.sequence->GetSequenceProxy(), &shown.proxy) << "copies have gone";
    coded[QStringLiteral("theSequence")] = QVariant::fromValue(quintptr{0x1234});
    EXPECT_EQ(ZELSequenceProxy::initWithCoder(coded)->theSequence(), nullptr)
        << "a number that no proxy knows is not followed";
    shown.proxy.setNilValueForKey("theSequence");
    EXPECT_EQ(shown.sequence->GetSequenceProxy(), nullptr);
}

TEST(SequenceProxy, edits_the_frames_that_a_selector_names)
{
    struct Row {
        std::int32_t selector;
        const char* frames;
    };
    for (const Row& row :
         {Row{0, "2"}, Row{-1, "1234"}, Row{2, "2"}, Row{4, "4"}, Row{5, ""}, Row{-2, ""}}) {
        SCOPED_TRACE(row.selector);
        Shown shown;
        shown.proxy.invertColorsForFrame(row.selector);
        shown.proxy.changeRotationForFrame(row.selector, 270);
        shown.proxy.changeZoomForFrame(row.selector, 250);
        const auto framesWith = [&](auto has) { return FramesWith(shown.sequence, has); };
        EXPECT_EQ(framesWith([](const auto& f) { return f.fTransform.invert; }), row.frames);
        EXPECT_EQ(framesWith([](const auto& f) { return f.fTransform.rotation == 270; }),
                  row.frames);
        EXPECT_EQ(framesWith([](const auto& f) { return f.fTransform.zoom == 5 * kZoomOne / 2; }),
                  row.frames);
        EXPECT_EQ(framesWith([](const auto& f) { return !f.fTransform.autoFit; }), row.frames);
        std::string cells;
        for (std::int32_t frame = 1; frame <= 4; ++frame) {
            const zel_GridFrameInfoItem& cell = *shown.sequence->GetCellInfo(frame);
            if (cell.vertScale == 5 * kZoomOne / 2 && cell.horzScale == cell.vertScale)
                cells += std::to_string(frame);
        }
        EXPECT_EQ(cells, row.frames);
        shown.proxy.zoomAutofitForFrame(row.selector);
        EXPECT_EQ(framesWith([](const auto& f) { return !f.fTransform.autoFit; }), "");
    }
}

TEST(SequenceProxy, a_zoom_of_nothing_keeps_the_old_one_but_ends_the_fit)
{
    Shown shown;
    shown.Record().zoom = 3 * kZoomOne;
    shown.proxy.changeZoomForFrame(0, 0);
    EXPECT_EQ(shown.Record().zoom, 3 * kZoomOne);
    EXPECT_FALSE(shown.proxy.zoomIsAutoFit());
}

TEST(SequenceProxy, knows_where_steps_of_zoom_end)
{
    struct Row {
        const char* fault;
        double percent;
        std::int16_t side;
        bool next, previous;
    };
    const Row rows[] = {
        {"800 percent still steps up", 800, 1000, true, true},
        {"a tenth above doesn't", 800.1, 1000, false, true},
        {"5.1 percent still steps down", 5.1, 1000, true, true},
        {"a tenth below doesn't", 5.0, 1000, true, false},
        {"a small frame ends at 32 pixels", 66.6, 48, true, false},
        {"just above that", 66.8, 48, true, true},
        {"a large frame ends at 32000 pixels", 160, 20000, false, true},
        {"just below that", 159.8, 20000, true, true},
    };
    Shown shown;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        shown.sequence->GetImageFrameInfo(2)->fFrameSize = {row.side, row.side};
        shown.proxy.changeZoomForFrame(0, row.percent);
        EXPECT_EQ(shown.proxy.hasNextZoom(), row.next);
        EXPECT_EQ(shown.proxy.hasPrevZoom(), row.previous);
    }
    shown.Record().zoom = 0;
    EXPECT_FALSE(shown.proxy.hasNextZoom() || shown.proxy.hasPrevZoom());
}

TEST(SequenceProxy, names_the_ten_grids)
{
    Shown shown;
    const dk_SequenceViewState& state = *shown.sequence->GetViewState();
    const std::pair<int, int> shapes[] = {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {2, 3},
                                          {3, 2}, {3, 3}, {3, 4}, {4, 3}, {4, 4}};
    int setup = 0;
    for (const auto& shape : shapes) {
        shown.proxy.setViewGridSetupID(setup);
        EXPECT_EQ(std::pair(state.fCurrRows, state.fCurrColumns), shape);
        EXPECT_EQ(shown.proxy.viewGridSetupID(), setup++);
    }
    shown.proxy.setViewGridSetupID(10);
    EXPECT_EQ(shown.proxy.viewGridSetupID(), 9);
    shown.sequence->GetViewState()->SetCurrGridDims(2, 4);
    EXPECT_EQ(shown.proxy.viewGridSetupID(), 5) << "by the rows alone";
    shown.sequence->GetViewState()->SetCurrGridDims(5, 1);
    EXPECT_EQ(shown.proxy.viewGridSetupID(), 0);
}

TEST(SequenceProxy, has_crops_as_the_last_command_left_it)
{
    Shown shown;
    const CKShapePtr crop = NewBox({1, 2, 3, 4}, Box::Kind::Crop);
    EXPECT_FALSE(shown.proxy.hasCrops()) << "not known yet";
    shown.proxy.setCropForFrame(crop, 5);
    EXPECT_FALSE(shown.proxy.hasCrops()) << "no such frame";
    shown.proxy.setCropForFrame(crop, 1);
    EXPECT_TRUE(shown.proxy.hasCrops());
    EXPECT_EQ(shown.proxy.cropRectForFrame(1), QRectF(1, 2, 3, 4));
    EXPECT_EQ(shown.proxy.cropRectForFrame(2), QRectF());
    shown.proxy.setCropForFrame(nullptr, 2);
    EXPECT_FALSE(shown.proxy.hasCrops()) << "whatever frame 1 holds";
    EXPECT_EQ(shown.proxy.cropForFrame(1), crop);
    shown.proxy.setSequenceCrop(crop);
    EXPECT_TRUE(shown.proxy.hasCrops());
    EXPECT_EQ(shown.proxy.cropForFrame(4), crop) << "one object for all";
    shown.proxy.clearCrops();
    EXPECT_FALSE(shown.proxy.hasCrops());
    EXPECT_EQ(shown.proxy.cropForFrame(4), nullptr);
}

TEST(SequenceProxy, one_measurement_at_most_is_current_and_selected)
{
    Shown shown;
    const CKShapePtr low = NewBox(), high = NewBox(), foreign = NewBox();
    shown.proxy.addNewMeasurement(low, true);
    EXPECT_TRUE(shown.proxy.currentMeasurementIsTopmost() &&
                shown.proxy.currentMeasurementIsLast());
    shown.proxy.addNewMeasurement(high, false);
    EXPECT_EQ(shown.proxy.currentMeasurement(), low) << "not made current";
    EXPECT_TRUE(low->_selected && !high->_selected);
    EXPECT_TRUE(!shown.proxy.currentMeasurementIsTopmost() &&
                shown.proxy.currentMeasurementIsLast());
    shown.proxy.setCurrentMeasurement(high);
    EXPECT_TRUE(!low->_selected && high->_selected);
    EXPECT_TRUE(shown.proxy.currentMeasurementIsTopmost() &&
                !shown.proxy.currentMeasurementIsLast());
    EXPECT_EQ(shown.proxy.measurementIndexForShape(high.get(), 2), 2);
    EXPECT_EQ(shown.proxy.measurementIndexForShape(foreign.get(), 2), -1);
    EXPECT_EQ(shown.proxy.measurementIndexForShape(high.get(), 3), -1);
    shown.proxy.removeMeasurement(low, 2, true);
    EXPECT_EQ(shown.proxy.currentMeasurement(), high) << "which has moved down";
    shown.proxy.setCurrentMeasurement(nullptr);
    EXPECT_FALSE(high->_selected);
    EXPECT_EQ(shown.Counts(), "0100");
    shown.proxy.setCurrentFrame(3);
    EXPECT_FALSE(shown.proxy.currentFrameHasMeasurements());
    EXPECT_TRUE(shown.proxy.hasMeasurements()) << "of some frame";
}

TEST(SequenceProxy, counts_lines_apart)
{
    Shown shown;
    shown.proxy.addNewMeasurement(NewBox({}, Box::Kind::Line), false);
    EXPECT_FALSE(shown.proxy.currentFrameHasMoreThan1());
    shown.proxy.addNewMeasurement(NewBox(), false);
    EXPECT_TRUE(shown.proxy.currentFrameHasMoreThan1());
    EXPECT_FALSE(shown.proxy.currentFrameHasMoreThan1Lines());
    shown.proxy.addNewMeasurement(NewBox({}, Box::Kind::Line), false);
    EXPECT_TRUE(shown.proxy.currentFrameHasMoreThan1Lines());
}

TEST(SequenceProxy, a_global_measurement_goes_from_every_frame)
{
    // One for all frames, one more in each of 1 and 2, the global one current in frame 2.
    struct Row {
        const char* fault;
        void (*remove)(ZELSequenceProxy&, const CKShapePtr& global, const CKShapePtr& local);
        const char* left;
        bool hasCurrent;
    };
    const Row rows[] = {
        {"the current one",
         [](auto& p, auto&, auto&) { p.removeCurrentMeasurementAndDelete(true); }, "1100", false},
        {"from a frame that isn't shown",
         [](auto& p, auto& g, auto&) { p.removeMeasurement(g, 4, true); }, "1100", false},
        {"a local one", [](auto& p, auto&, auto& l) { p.removeMeasurement(l, 2, true); }, "2111",
         true},
        {"all of the current frame",
         [](auto& p, auto&, auto&) { p.removeAllMeasurementsForFrame(2); }, "1000", false},
        {"all of another frame", [](auto& p, auto&, auto&) { p.removeAllMeasurementsForFrame(1); },
         "0100", false},
        {"all of no frame", [](auto& p, auto&, auto&) { p.removeAllMeasurementsForFrame(5); },
         "2211", true},
        {"all", [](auto& p, auto&, auto&) { p.removeAllMeasurements(); }, "0000", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Shown shown;
        const CKShapePtr global = NewBox(), local = NewBox();
        global->_global = true;
        shown.AddTo(1, NewBox());
        shown.AddTo(2, local);
        for (const int frame : {1, 2, 3, 4})
            shown.AddTo(frame, global);
        shown.proxy.setCurrentMeasurement(global);
        row.remove(shown.proxy, global, local);
        EXPECT_EQ(shown.Counts(), row.left);
        EXPECT_EQ(shown.proxy.currentMeasurement(), row.hasCurrent ? global : nullptr);
        EXPECT_EQ(global->disposeIsPending(), !row.hasCurrent);
    }
}

TEST(SequenceProxy, a_removed_measurement_may_be_kept_for_undoing)
{
    Shown shown;
    const CKShapePtr shape = NewBox();
    shown.proxy.addNewMeasurement(shape, true);
    shown.proxy.removeCurrentMeasurementAndDelete(false);
    EXPECT_FALSE(shape->disposeIsPending());
}

TEST(SequenceProxy, a_calibration_reaches_every_frame_and_can_be_taken_back)
{
    for (const char* spacing : {"0.5\\0.5", static_cast<const char*>(nullptr)}) {
        SCOPED_TRACE(spacing ? spacing : "no scale in the file");
        Shown shown({.frames = 4, .spacing = spacing});
        const CKShapePtr here = NewBox(), there = NewBox();
        shown.AddTo(2, here);
        shown.AddTo(4, there);
        shown.proxy.setViewShowsScale(false);
        shown.proxy.changeScaleForAllFrames(0.25F);
        EXPECT_EQ(here->pixelSizeHorz(), 0.25F);
        EXPECT_EQ(there->pixelSizeVert(), 0.25F);
        EXPECT_TRUE(shown.proxy.viewShowsScale() && shown.proxy.hasScale());
        shown.proxy.setViewShowsScale(false);
        shown.proxy.changeScaleForAllFrames(0.25F);
        EXPECT_FALSE(shown.proxy.viewShowsScale()) << "the same again does nothing";
        shown.proxy.changeScaleForAllFrames(0);
        EXPECT_EQ(there->pixelSizeHorz(), spacing ? 0.5F : 0);
        EXPECT_EQ(shown.proxy.viewShowsScale(), spacing != nullptr);
        EXPECT_EQ(shown.proxy.hasScale(), spacing != nullptr);
    }
}

// ---- playing ----

TEST(SequenceProxy, plays_what_has_frames_that_can_be_shown)
{
    struct Row {
        const char* fault;
        int frames, canCreate;
        std::uint32_t health;
        bool plays;
    };
    const Row rows[] = {
        {"two frames play", 2, -1, 0, true},
        {"one doesn't", 1, -1, 0, false},
        {"one that is a movie does", 1, 1, 0, true},
        {"no movie can be made", 2, 0, 0, false},
        {"a frame that can't be shown", 2, -1, 1, false},
        {"this fault is none", 2, -1, 0x20, true},
        {"a movie in spite of faults", 2, 1, 1, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Shown shown({.frames = row.frames});
        shown.sequence->GetImageFrameInfo(1)->fFrameHealth = row.health;
        shown.proxy.setCanCreateMovie(row.canCreate);
        EXPECT_EQ(shown.proxy.canPlayCine(), row.plays);
    }
}

TEST(SequenceProxy, finds_the_frame_of_a_movie)
{
    struct Movie final : CineMovie {
        QvxStatus GetCurrentTime(double* milliseconds) const override
        {
            *milliseconds = time;
            return status;
        }
        QvxStatus GetDuration(double* milliseconds) const override
        {
            *milliseconds = duration;
            return kQvxOK;
        }
        double time = 0, duration = 0;
        QvxStatus status = kQvxOK;
    } movie;
    Shown shown;
    movie.duration = shown.sequence->GetTotalSequenceDuration();
    ASSERT_GT(movie.duration, 0);
    EXPECT_EQ(shown.proxy.currentFrameForMovie(movie), 1);
    movie.time = movie.duration;
    EXPECT_EQ(shown.proxy.currentFrameForMovie(movie), 4) << "the end is the last frame";
    movie.time = movie.duration * 5 / 8;
    EXPECT_EQ(shown.proxy.currentFrameForMovie(movie), 3);
    movie.time = movie.duration * 9;
    EXPECT_LE(shown.proxy.currentFrameForMovie(movie), 4);
    movie.status = kQvxBadArgument;
    EXPECT_EQ(shown.proxy.currentFrameForMovie(movie), 1);
}

TEST(SequenceProxy, plays_at_the_speed_of_the_preferences_where_these_insist)
{
    Shown shown;
    shown.proxy.setCineSpeed(20);
    EXPECT_NEAR(shown.proxy.adjustedCineSpeed(), 20, 0.001);
    EXPECT_FLOAT_EQ(shown.proxy.storedCineSpeed(), 15) << "the file says nothing";
    prefs_Set_HasCineEnforceSpeed(true);
    EXPECT_FLOAT_EQ(shown.proxy.adjustedCineSpeed(), static_cast<float>(prefs_CineDefaultSpeed()));
    prefs_Set_HasCineEnforceSpeed(false);
    shown.proxy.setCineRate(2.5F);
    EXPECT_FLOAT_EQ(shown.proxy.cineRate(), 2.5F);
}

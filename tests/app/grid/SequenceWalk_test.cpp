// From one sequence to another: the ring of a tree's sequences, and the jump into a grid.
#include "app/grid/GridFixture.h"
#include "app/grid/ViewerActions.h"

namespace {

// Sequences 0 to 3; grid A shows 0, grid B 1.
struct Ring {
    explicit Ring(const char* modality = "CT", int frames = 2)
        : made({{.modality = modality, .frames = frames},
                {.modality = modality, .frames = frames},
                {.modality = modality, .frames = 1},
                {.modality = modality, .frames = frames}}),
          window(&made),
          actions(&window.host)
    {
        window.host.Take();
    }
    // Number of the sequence after, or before, sequence `from`; -1 none.
    int From(int from, bool next, bool forCine = false)
    {
        dk_Sequence* sequence = made.sequences[static_cast<std::size_t>(from)];
        const auto proxy = next ? actions.U_GetNextSeriesSequenceFor(sequence, forCine)
                                : actions.U_GetPreviousSeriesSequenceFor(sequence, forCine);
        const auto found =
            std::ranges::find(made.sequences, proxy ? proxy->theSequence() : nullptr);
        return found == made.sequences.end() ? -1
                                             : static_cast<int>(found - made.sequences.begin());
    }
    MadeTree made;
    Window window;
    ViewerActions actions;
};

}  // namespace

TEST(SequenceWalk, closes_to_a_ring_and_skips_what_plays)
{
    struct Row {
        const char* fault;
        bool playsB;
        std::array<int, 4> next, previous;
    };
    const Row rows[] = {
        {"all", false, {1, 2, 3, 0}, {3, 0, 1, 2}},
        {"sequence 1 plays", true, {2, 2, 3, 0}, {3, 0, 0, 2}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Ring ring;
        ring.window.b.setCineModeIsON(row.playsB);
        for (int from = 0; from < 4; ++from) {
            SCOPED_TRACE(from);
            EXPECT_EQ(ring.From(from, true), row.next[static_cast<std::size_t>(from)]);
            EXPECT_EQ(ring.From(from, false), row.previous[static_cast<std::size_t>(from)]);
        }
    }
}

TEST(SequenceWalk, ends_where_all_others_play)
{
    MadeTree made({{.frames = 2}, {.frames = 2}});
    Window window(&made);
    ViewerActions actions(&window.host);
    window.b.setCineModeIsON(true);
    actions.gotoNextSequence(window.a);
    actions.gotoPreviousSequence(window.a);
    EXPECT_EQ(window.host.Take(), Words());
    EXPECT_EQ(window.a.curr_dkSequence(), made.sequences[0]);
    window.b.setCineModeIsON(false);
    actions.gotoNextSequence(window.a);
    EXPECT_EQ(window.host.Take(), Words{"activate"}) << "it stands in the other grid";
}

TEST(SequenceWalk, a_lone_sequence_has_no_neighbours)
{
    MadeTree made({SeriesForm{.frames = 2}});
    Window window(&made);
    ViewerActions actions(&window.host);
    EXPECT_EQ(actions.U_GetNextSeriesSequenceFor(made.sequences[0], false), nullptr);
    EXPECT_EQ(actions.U_GetNextSeriesSequenceFor(made.sequences[0], true), nullptr);
    window.host.singleCine = true;
    const auto itself = actions.U_GetNextSeriesSequenceFor(made.sequences[0], true);
    ASSERT_TRUE(itself);
    EXPECT_EQ(itself->theSequence(), made.sequences[0]) << "it plays again";
    EXPECT_EQ(actions.U_GetPreviousSeriesSequenceFor(nullptr, false), nullptr);
}

TEST(SequenceWalk, a_cine_goes_to_what_plays_by_itself)
{
    struct Row {
        const char* fault;
        const char* modality;
        bool respectsMarks;
        std::vector<int> marked;
        std::array<int, 4> next, previous;
    };
    const Row rows[] = {
        {"a single frame doesn't play", "XA", true, {}, {1, 3, 3, 0}, {3, 0, 1, 1}},
        {"a modality that doesn't", "CT", true, {}, {-1, -1, -1, -1}, {-1, -1, -1, -1}},
        {"marked ones only", "XA", true, {0, 3}, {3, 3, 3, 0}, {3, 0, 0, 0}},
        {"the only marked one", "XA", true, {0}, {-1, 0, 0, 0}, {-1, 0, 0, 0}},
        {"marks don't count", "XA", false, {0}, {1, 3, 3, 0}, {3, 0, 1, 1}},
        {"a marked one that doesn't play", "XA", true, {2}, {-1, -1, -1, -1}, {-1, -1, -1, -1}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Ring ring(row.modality);
        prefs_Set_Cine_TraverseRespectsMarked(row.respectsMarks);
        ring.window.b.setCineModeIsON(true);  // which doesn't count here
        for (const int marked : row.marked)
            ring.made.sequences[static_cast<std::size_t>(marked)]->fMarked = true;
        for (int from = 0; from < 4; ++from) {
            SCOPED_TRACE(from);
            EXPECT_EQ(ring.From(from, true, true), row.next[static_cast<std::size_t>(from)]);
            EXPECT_EQ(ring.From(from, false, true), row.previous[static_cast<std::size_t>(from)]);
        }
    }
}

TEST(SequenceJump, goes_to_the_grid_where_the_sequence_stands)
{
    Ring ring;
    ring.window.b.setGridRowsTo(1, 1, false);
    ring.window.b.currZELSequence()->setCurrentFrame(2);
    ring.window.host.Take();
    const Posted told(kNoteGridDidChangeSequence);
    ring.actions.U_DoJumpView(ring.window.a, ring.window.b.currZELSequence());
    EXPECT_EQ(ring.window.host.active, &ring.window.b);
    EXPECT_EQ(ring.window.a.curr_dkSequence(), ring.made.sequences[0]);
    EXPECT_EQ(ring.window.host.Take(), (Words{"activate", "B viewport", "B all"}));
    ring.actions.U_DoJumpView(ring.window.a, nullptr);
    EXPECT_EQ(ring.window.host.Take(), Words());
    EXPECT_TRUE(told.notes.empty());
}

TEST(SequenceJump, shows_another_sequence_and_plays_what_plays_by_itself)
{
    struct Row {
        const char* fault;
        const char* modality;
        bool plays, autoplay;
        Words log;
    };
    const Row rows[] = {
        {"still", "CT", false, true, {"change sequence", "A all"}},
        {"ends what plays", "CT", true, true, {"stop cine", "change sequence", "A all"}},
        {"plays by itself", "XA", false, true, {"change sequence", "start cine"}},
        {"not by the preferences", "XA", false, false, {"change sequence", "A all"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Ring ring(row.modality);
        prefs_Set_HasCineAutoplay(row.autoplay);
        ring.window.a.setCineModeIsON(row.plays);
        const Posted told(kNoteGridDidChangeSequence);
        const auto proxy = ring.window.host.proxyOf(ring.made.sequences[3]);
        ring.actions.U_DoJumpView(ring.window.a, proxy);
        EXPECT_EQ(ring.window.host.Take(), row.log);
        EXPECT_EQ(ring.window.a.curr_dkSequence(), ring.made.sequences[3]);
        ASSERT_EQ(told.notes.size(), 1u);
        const QVariantMap& info = told.notes[0].userInfo;
        EXPECT_EQ(info.value(QLatin1String(kKeyNewDkSequence)).value<void*>(),
                  static_cast<dk_SequenceBase*>(ring.made.sequences[3]));
        EXPECT_EQ(
            info.value(QLatin1String(kKeyNewSequence)).value<std::shared_ptr<ZELSequenceProxy>>(),
            proxy);
        EXPECT_EQ(info.value(QLatin1String(kKeyWindow)).value<void*>(),
                  ring.window.host.windowKey());
    }
}

TEST(SequenceJump, a_mark_shows_in_the_tree)
{
    Ring ring;
    ring.actions.switchSequenceMark(ring.window.b);
    EXPECT_TRUE(ring.made.sequences[1]->fMarked);
    EXPECT_EQ(ring.window.host.Take(), Words{"node"});
    ring.actions.switchSequenceMark(ring.window.b);
    EXPECT_FALSE(ring.made.sequences[1]->fMarked);
}

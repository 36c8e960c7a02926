// Rows in each mode, and the work behind them.
#include "app/grid/MultiGridViewController.h"
#include "app/nodes/RepresentativeFrame.h"
#include "app/views/SequenceMime.h"
#include "browser/BrowserFixture.h"
#include "dicom_core/store/TempFolder.h"

#include <QAbstractItemModelTester>
#include <filesystem>

namespace {

struct Browser {
    Browser()
    {
        source.setIconSize(48);
        source.setupWithDicomTree(&made.tree);
    }
    ~Browser() { source.pauseIconCalculator(); }
    QModelIndex Row(int sequence) { return source.indexOf(source.sequenceNodes()[sequence]); }
    void DisplayAll(int height = 52)
    {
        for (DicomElemChildNode* node : source.sequenceNodes())
            static_cast<void>(source.willDisplayCell(source.indexOf(node), height, false));
    }
    int Missing()
    {
        int missing = 0;
        for (const DicomElemChildNode* node : source.sequenceNodes())
            missing += node->iconMissing() + node->textMissing();
        return missing;
    }
    ListedTree made;
    FakeBrowserHost host;
    PatTreeDataSource source{&host};
};

}  // namespace

TEST(PatTreeDataSource, is_a_sound_model_in_every_mode)
{
    Browser browser;
    const QAbstractItemModelTester tester(&browser.source,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const int size : {kIconOnlySize, 100, kTextOnlySize, kIconOnlySize, kTextOnlySize}) {
        browser.source.setIconSize(size);
        EXPECT_EQ(browser.source.rowCount({}), IsIconOnly(size) ? 4 : 1);
        EXPECT_EQ(prefs_PreviewPictSize(), size);
        for (int i = 0; i < 4; ++i) {
            const QModelIndex row = browser.Row(i);
            EXPECT_EQ(PatTreeDataSource::nodeAt(row), browser.source.sequenceNodes()[i]);
            EXPECT_TRUE(row.flags() & Qt::ItemIsSelectable);
            EXPECT_EQ(row.parent().isValid(), !IsIconOnly(size));
            EXPECT_FALSE(row.parent().flags() & Qt::ItemIsSelectable);
        }
    }
    browser.source.setupWithDicomTree(nullptr);
    EXPECT_EQ(browser.source.rowCount({}), 0);
}

TEST(PatTreeDataSource, heights_follow_size_and_proportions)
{
    struct Row {
        int size;
        float iconHeight;
        int height;
    };
    const Row rows[] = {{23, 180, 35},   {24, 360, 28},   {100, 360, 104}, {100, 180, 54},
                        {256, 270, 196}, {257, 360, 219}, {257, 180, 120}};
    for (const Row& row : rows)
        EXPECT_EQ(U_CalcCellRowHeight(row.size, row.iconHeight, 200), row.height)
            << row.size << " " << row.iconHeight;
    Browser browser;
    EXPECT_EQ(browser.source.heightOfRowByItem(browser.source.index(0, 0, {}), 200), 21);
}

TEST(PatTreeDataSource, fills_displayed_rows_and_then_rests)
{
    Browser browser;
    EXPECT_FALSE(browser.source.isTicking()) << "no job before a row is displayed";
    browser.DisplayAll();
    EXPECT_TRUE(browser.source.isTicking());
    LetEventsRun();
    EXPECT_EQ(browser.Missing(), 4) << "texts wait for their next display";
    browser.DisplayAll();
    LetEventsRun();
    EXPECT_EQ(browser.Missing(), 0);
    EXPECT_EQ(browser.source.iconWork().fIconWorkDone(), 0);
    browser.DisplayAll();
    EXPECT_FALSE(browser.source.isTicking());
    browser.source.reloadAllIcons();
    EXPECT_EQ(browser.Missing(), 4);
    browser.DisplayAll();
    LetEventsRun();
    EXPECT_EQ(browser.Missing(), 0);
}

TEST(PatTreeDataSource, does_nothing_for_nobody)
{
    struct Row {
        const char* fault;
        void (*prepare)(Browser*);
        bool ticks;
    };
    const Row rows[] = {
        {"texts alone decode nothing", [](Browser* b) { b->source.setIconSize(23); }, false},
        {"paused", [](Browser* b) { b->source.pauseIconCalculator(); }, false},
        {"a dialog runs", [](Browser* b) { b->host.modal = true; }, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        Browser browser;
        row.prepare(&browser);
        browser.DisplayAll();
        LetEventsRun(20);
        EXPECT_EQ(browser.Missing(), 8);
        EXPECT_EQ(browser.source.isTicking(), row.ticks);
    }
}

TEST(PatTreeDataSource, takes_its_time_on_slow_media)
{
    Browser browser;
    browser.made.tree.SetSlowMediaFlag(true);
    browser.DisplayAll();
    LetEventsRun(100);
    EXPECT_EQ(browser.Missing(), 8);
    LetEventsRun(kIconTick_ms);
    EXPECT_EQ(browser.Missing(), 7) << "one job a tick";
}

// Frames that take another thread, more than it keeps; the last one can't be drawn.
TEST(PatTreeDataSource, large_frames_are_decoded_elsewhere_and_never_left_waiting)
{
    constexpr int kSide = 1100, kSequences = 9, kBroken = 8;
    Browser browser;
    const Quiet quiet;
    setenv("XDG_CACHE_HOME", browser.made.folder.Path("caches").c_str(), 1);
    zel_ImageBuffer buffer;
    gAppBaseBuffer = &buffer;
    browser.source.setupWithDicomTree(nullptr);
    ZELDcmTree tree;
    dk_DicomBaseElem* study =
        MadeTree::Add<dk_Study>(MadeTree::Add<dk_Patient>(tree.patientTreeRoot()));
    std::string broken;
    for (int i = 0; i < kSequences; ++i) {
        DicomBuilder file;
        file.Meta(kUidExplicitLittle).CommonHeader("MG").Image({.rows = kSide, .columns = kSide});
        const std::string path = browser.made.folder.WriteFile(
            "film" + std::to_string(i),
            file.NativePixels(std::string(2 * kSide * kSide, static_cast<char>('a' + i))).Bytes());
        auto* sequence = MadeTree::Add<dk_Sequence>(MadeTree::Add<dk_Series>(study));
        ASSERT_EQ(MadeTree::Add<dk_ImageFile>(sequence)->SetSourceFile(FileRef{path}, kImportDicom),
                  kQvxOK);
        if (i == kBroken)
            broken = path;
    }
    browser.source.setupWithDicomTree(&tree);
    std::filesystem::resize_file(broken, 400);
    const std::vector<DicomElemChildNode*>& nodes = browser.source.sequenceNodes();
    const auto missing = [&] {
        return std::ranges::count_if(nodes, &DicomElemChildNode::iconMissing);
    };
    // The user scrolls: whenever a row's frame is ready, another row is the most urgent.
    for (int i = 0; i < kSequences; ++i) {
        static_cast<void>(browser.source.willDisplayCell(browser.Row(i), 52, false));
        QTest::qSleep(3 * kPreparingTick_ms);
        QCoreApplication::processEvents();
    }
    EXPECT_GT(missing(), 0);
    for (int i = 0; missing() > 0 && i < 1000; ++i)
        LetEventsRun(5);
    EXPECT_EQ(missing(), 0);
    for (int i = 0; i < kSequences; ++i) {
        const QImage own = U_RepresentativeFrameImageFor(nodes[i]->sequence(), false);
        EXPECT_EQ(nodes[i]->repIcon().convertToFormat(own.format()), own) << i;
        EXPECT_EQ(CheckIfCellInBaseBuffer(nodes[i]->sequence(), 1), i != kBroken) << i;
    }
    browser.source.setupWithDicomTree(nullptr);
    gAppBaseBuffer = nullptr;
    buffer.Reset();
    RemoveProgramTempFolder();
    unsetenv("XDG_CACHE_HOME");
}

TEST(PatTreeDataSource, shows_placeholders_while_the_window_starts)
{
    Browser browser;
    const auto subtitle = [&browser] {
        return browser.source.willDisplayCell(browser.Row(0), 40, false).subtitle.toStdString();
    };
    browser.host.fast = true;
    EXPECT_EQ(subtitle(), "... frames, ... pixels");
    browser.host.fast = false;
    EXPECT_EQ(subtitle(), "3 frames, 64x48 pixels");
    EXPECT_EQ(browser.source.willDisplayCell(browser.Row(0), 33, false).subtitle.toStdString(), "");
    EXPECT_NE(browser.source.willDisplayCell(browser.Row(0), 50, false).dims, QString());
}

TEST(PatTreeDataSource, a_row_tells_target_grid_and_mark)
{
    Browser browser;
    browser.host.inGrids = {nullptr, browser.made.sequences[2], browser.made.sequences[0]};
    browser.source.updateGridIDs();
    browser.source.setTargetNode(browser.source.sequenceNodes()[2]);
    browser.made.sequences[2]->fMarked = true;
    const RowLook row = browser.source.willDisplayCell(browser.Row(2), 52, false);
    EXPECT_EQ(row.gridID, 2);
    EXPECT_TRUE(row.isTarget && row.isMarked);
    const QModelIndex study = browser.Row(0).parent();
    EXPECT_EQ(browser.source.willDisplayCell(study, 21, false).gridsBelow, (std::vector{3, -2}));
    EXPECT_TRUE(browser.source.willDisplayCell(study, 21, true).gridsBelow.empty());
    browser.source.setTargetNode(nullptr);
    EXPECT_FALSE(browser.source.willDisplayCell(browser.Row(2), 52, false).isTarget);
}

TEST(PatTreeDataSource, owns_one_proxy_of_each_sequence)
{
    Browser browser;
    dk_SequenceBase* sequence = browser.made.sequences[3];
    EXPECT_FALSE(browser.made.tree.sequenceFor_dkSequence(sequence));
    browser.made.tree.U_EnsureZELSequenceIsLoadedFor(sequence);
    ZELSequenceProxy* proxy = browser.made.tree.sequenceFor_dkSequence(sequence);
    ASSERT_TRUE(proxy);
    EXPECT_EQ(browser.source.proxyOf(sequence).get(), proxy);
    EXPECT_EQ(browser.source.nodeForZELSequence(proxy), browser.source.sequenceNodes()[3]);
    EXPECT_FALSE(browser.source.proxyOf(nullptr));
    browser.source.setupWithDicomTree(nullptr);
    EXPECT_FALSE(browser.made.tree.sequenceFor_dkSequence(sequence));
}

TEST(PatTreeDataSource, a_drag_carries_the_pressed_sequence)
{
    Browser browser;
    const auto carried = [&](const QModelIndexList& rows) -> const dk_SequenceBase* {
        const std::unique_ptr<QMimeData> data(browser.source.mimeData(rows));
        const SequenceMime* mime = SequenceMime::Of(data.get());
        EXPECT_TRUE(!mime || (!mime->isFromGrid() && mime->window() == browser.host.windowKey()));
        return mime ? mime->proxy()->theSequence() : nullptr;
    };
    EXPECT_EQ(carried({browser.Row(1), browser.Row(2)}), browser.made.sequences[1]);
    browser.source.setDragFirst(browser.Row(2));
    EXPECT_EQ(carried({browser.Row(1), browser.Row(2)}), browser.made.sequences[2]);
    browser.source.setDragFirst({});
    EXPECT_EQ(carried({browser.Row(0).parent()}), nullptr) << "a study";
    EXPECT_EQ(carried({}), nullptr);
}

TEST(PatTreeDataSource, other_colours_of_overlays_make_thumbnails_anew_once)
{
    Browser browser;
    browser.DisplayAll();
    LetEventsRun();
    const QImage before = browser.source.sequenceNodes()[0]->repIcon();
    ASSERT_FALSE(before.isNull());
    const QSignalSpy heights(&browser.source, &PatTreeDataSource::rowHeightsChanged);
    for (int move = 0; move < 5; ++move) {
        NotificationCenter::Default().Post(kNoteOverlayColorChanged, nullptr);
        LetEventsRun(20);
    }
    EXPECT_FALSE(browser.source.sequenceNodes()[0]->iconMissing()) << "not at every move";
    LetEventsRun(kColorsReload_ms + 50);
    EXPECT_TRUE(browser.source.sequenceNodes()[0]->iconMissing());
    EXPECT_EQ(heights.count(), 1);
}

TEST(PatTreeDataSource, drops_the_thumbnails_displayed_longest_ago)
{
    Browser browser;
    browser.DisplayAll();
    LetEventsRun();
    static_cast<void>(browser.source.willDisplayCell(browser.Row(3), 52, false));
    browser.source.setThumbnailsLimit(0, 2);
    std::string kept;
    for (const DicomElemChildNode* node : browser.source.sequenceNodes())
        kept += node->iconMissing() ? '.' : 'x';
    EXPECT_EQ(kept, "x..x") << "the last, made first, was displayed again";
    browser.source.setThumbnailsLimit(kThumbnailsLimit, 2);
    browser.DisplayAll();
    LetEventsRun();
    browser.DisplayAll();
    LetEventsRun();
    EXPECT_EQ(browser.Missing(), 0) << "made again for rows that are displayed again";
}

TEST(PatTreeDataSource, a_tool_tip_says_the_series_that_has_no_row_of_its_own_as_plain_text)
{
    Browser browser;
    static_cast<dk_Series*>(browser.made.sequences[0]->GetParent())->fWideSeriesDescription =
        QStringLiteral("<b>Thorax</b>\nlung");
    static_cast<dk_Series*>(browser.made.sequences[1]->GetParent())->fWideSeriesDescription =
        QStringLiteral("Heart");
    const QString tip = browser.Row(0).data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(tip.contains(QStringLiteral("&lt;b&gt;Thorax&lt;/b&gt; lung")))
        << tip.toStdString();
    EXPECT_TRUE(tip.contains(QStringLiteral("3 frames, 64 x 48 pixels"))) << tip.toStdString();
    EXPECT_FALSE(browser.Row(1).data(Qt::ToolTipRole).toString().contains(QStringLiteral("Heart")));
    EXPECT_FALSE(
        browser.Row(0).data(Qt::AccessibleTextRole).toString().contains(QLatin1Char('\n')));
}

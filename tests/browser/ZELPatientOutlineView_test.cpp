// What the user does in the outline, and what the window does to it.
#include "browser/ZELPatientOutlineView.h"

#include "browser/BrowserBar.h"
#include "browser/BrowserFixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QScrollBar>

namespace {

struct Outline {
    Outline()
    {
        source.setIconSize(48);
        source.setupWithDicomTree(&made.tree);
        view.resize(240, 500);
        view.show();
        LetEventsRun(20);
    }
    QModelIndex Row(int sequence) { return source.indexOf(source.sequenceNodes()[sequence]); }
    QModelIndex Study() { return Row(0).parent(); }
    QPoint At(const QModelIndex& index)
    {
        return {view.visualRect(index).left() + 40, view.visualRect(index).center().y()};
    }
    void Click(const QModelIndex& index, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, At(index));
    }
    dk_SequenceBase* Told(const Posted& posted)
    {
        return posted.notes.empty() ? nullptr
                                    : static_cast<dk_SequenceBase*>(
                                          posted.notes.back()
                                              .userInfo.value(QLatin1String(kKeyNewDkSequence))
                                              .value<void*>());
    }
    void PostGrid(std::string_view name, const void* window, dk_SequenceBase* sequence)
    {
        NotificationCenter::Default().Post(
            name, nullptr,
            {{QLatin1String(kKeyWindow), QVariant::fromValue(const_cast<void*>(window))},
             {QLatin1String(kKeyNewDkSequence),
              QVariant::fromValue(static_cast<void*>(sequence))}});
    }
    ListedTree made;
    FakeBrowserHost host;
    PatTreeDataSource source{&host};
    ZELPatientOutlineView view{&source, &host};
};

using Nodes = std::vector<DicomElemChildNode*>;

}  // namespace

TEST(ZELPatientOutlineView, tells_of_the_selected_sequence)
{
    Outline outline;
    const Posted posted(kNotePatientSelectionDidChange);
    outline.Click(outline.Row(1));
    ASSERT_EQ(posted.notes.size(), 1u);
    EXPECT_EQ(posted.notes[0].object, outline.host.windowKey());
    EXPECT_EQ(outline.Told(posted), outline.made.sequences[1]);
    EXPECT_EQ(posted.Number(kKeyMultiSeqsSelected), 0);
    outline.Click(outline.Row(3), Qt::ControlModifier);
    EXPECT_EQ(outline.Told(posted), outline.made.sequences[3]);
    EXPECT_EQ(posted.Number(kKeyMultiSeqsSelected, 1), 1);
    outline.Click(outline.Study());
    EXPECT_EQ(posted.notes.size(), 2u) << "a heading changes no selection";
    EXPECT_EQ(outline.view.selectedNodes(),
              (Nodes{outline.source.sequenceNodes()[1], outline.source.sequenceNodes()[3]}));
    outline.host.active = outline.made.sequences[0];
    outline.view.clearSelection();
    EXPECT_EQ(outline.Told(posted), outline.made.sequences[0]) << "the active one for none";
}

TEST(ZELPatientOutlineView, opens_and_folds_by_mouse_and_keyboard)
{
    Outline outline;
    QTest::mouseDClick(outline.view.viewport(), Qt::LeftButton, {}, outline.At(outline.Row(2)));
    outline.view.setCurrentIndex(outline.Row(0));
    QTest::keyClick(&outline.view, Qt::Key_Return);
    EXPECT_EQ(outline.host.opened, (std::vector<dk_SequenceBase*>{outline.made.sequences[2],
                                                                  outline.made.sequences[0]}));
    QTest::keyClick(&outline.view, Qt::Key_Up);
    EXPECT_EQ(outline.view.currentIndex(), outline.Study());
    QTest::keyClick(&outline.view, Qt::Key_Enter);
    EXPECT_FALSE(outline.view.isExpanded(outline.Study()));
    outline.view.U_SelectRowFor_dkSequence(outline.made.sequences[2], true);
    EXPECT_TRUE(outline.view.isExpanded(outline.Row(2).parent()));
    EXPECT_TRUE(outline.view.isExpanded(outline.Study()));
    outline.view.collapse(outline.Study().parent());
    EXPECT_TRUE(outline.view.isExpanded(outline.Study().parent())) << "a patient stays open";
}

TEST(ZELPatientOutlineView, follows_the_grids_of_its_window_only)
{
    Outline outline;
    const int elsewhere = 0;
    outline.host.inGrids = {outline.made.sequences[3]};
    outline.PostGrid(kNoteGridDidChangeSequence, &elsewhere, outline.made.sequences[3]);
    EXPECT_EQ(outline.source.targetNode(), nullptr);
    outline.PostGrid(kNoteGridDidChangeSequence, outline.host.windowKey(),
                     outline.made.sequences[3]);
    EXPECT_EQ(outline.source.targetNode(), outline.source.sequenceNodes()[3]);
    EXPECT_EQ(outline.source.targetNode()->gridID(), 1);
    EXPECT_EQ(outline.view.selectedNodes(), Nodes{outline.source.sequenceNodes()[3]});
    outline.host.active = outline.made.sequences[1];
    outline.PostGrid(kNoteGridDidChange, outline.host.windowKey(), nullptr);
    EXPECT_EQ(outline.source.targetNode(), outline.source.sequenceNodes()[1]);
    EXPECT_EQ(outline.view.selectedNodes(), Nodes{outline.source.sequenceNodes()[1]});
}

TEST(ZELPatientOutlineView, keeps_selection_and_order_through_the_modes)
{
    Outline outline;
    const BrowserBar bar(&outline.source);
    outline.Click(outline.Row(2));
    for (const int size : {kIconOnlySize, kTextOnlySize, 90, kIconOnlySize}) {
        outline.source.setIconSize(size);
        LetEventsRun(20);
        EXPECT_EQ(outline.view.selectedNodes(), Nodes{outline.source.sequenceNodes()[2]}) << size;
        EXPECT_TRUE(outline.view.visualRect(outline.Row(2)).isValid()) << "open, not folded";
        EXPECT_LT(outline.view.visualRect(outline.Row(0)).top(),
                  outline.view.visualRect(outline.Row(3)).top());
    }
}

TEST(ZELPatientOutlineView, has_no_menu_under_a_sheet_and_remembers_the_row_until_an_action)
{
    Outline outline;
    outline.host.sheet = true;
    bool shown = false;
    QTimer::singleShot(50, [&shown] {
        shown = QApplication::activePopupWidget() != nullptr;
        if (shown)
            QApplication::activePopupWidget()->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {60, 60},
                            outline.view.viewport()->mapToGlobal(QPoint(60, 60)));
    QApplication::sendEvent(outline.view.viewport(), &event);
    LetEventsRun(80);
    EXPECT_FALSE(shown);
    EXPECT_EQ(outline.view.contextualRowClicked(), -1);
    static_cast<void>(outline.view.menuForRow(outline.Study()));
    EXPECT_EQ(outline.view.contextualRowClicked(), -1) << "no sequence";
    outline.Click(outline.Row(3));
    const MenuEntry menu = outline.view.menuForRow(outline.Row(3));
    EXPECT_EQ(outline.view.contextualRowClicked(), outline.Row(3).row());
    EXPECT_TRUE(outline.view.contextualRowIsSelected());
    menu.children[0].perform(false);
    EXPECT_EQ(outline.host.revealed, std::vector<std::string>{outline.made.folder.Path("2_1")});
    EXPECT_EQ(outline.view.contextualRowClicked(), -1);
    EXPECT_FALSE(outline.view.contextualRowIsSelected());
}

// Thousands of rows: what is out of sight costs no thumbnail.
TEST(ZELPatientOutlineView, a_long_list_makes_thumbnails_of_seen_rows_only)
{
    Outline outline;
    dk_DicomBaseElem* series = outline.made.sequences[0]->GetParent();
    for (int i = 0; i < 2000; ++i) {
        auto* sequence = MadeTree::Add<dk_Sequence>(series);
        ASSERT_EQ(MadeTree::Add<dk_ImageFile>(sequence)->SetSourceFile(
                      FileRef{outline.made.folder.Path("0_1")}, kImportDicom),
                  kQvxOK);
    }
    QElapsedTimer time;
    time.start();
    outline.source.setupWithDicomTree(&outline.made.tree);
    LetEventsRun(1);
    RecordProperty("shown_ms", static_cast<int>(time.elapsed()));
    LetEventsRun(600);
    int made = 0;
    for (const DicomElemChildNode* node : outline.source.sequenceNodes())
        made += !node->iconMissing();
    EXPECT_GT(made, 5);
    EXPECT_LT(made, 60);
    EXPECT_FALSE(outline.source.isTicking());
    outline.view.verticalScrollBar()->setValue(outline.view.verticalScrollBar()->maximum());
    LetEventsRun(100);
    const auto seen = PatTreeDataSource::nodeAt(outline.view.indexAt({60, 250}));
    ASSERT_TRUE(seen);
    EXPECT_FALSE(seen->iconMissing());
}

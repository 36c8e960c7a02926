// What stands in the menu of a row, and what it does.
#include "browser/BrowserMenu.h"

#include "browser/BrowserFixture.h"

namespace {

struct Rows {
    Rows() { source.setupWithDicomTree(&made.tree); }
    // The clicked row as a digit, the selected ones, the marked ones.
    BrowserMenuTarget Target(int clicked, const char* selected, const char* marked)
    {
        for (dk_Sequence* sequence : made.sequences)
            sequence->fMarked = false;
        for (; *marked; ++marked)
            made.sequences[*marked - '0']->fMarked = true;
        BrowserMenuTarget target;
        target.source = &source;
        target.host = &host;
        target.clicked = clicked < 0 ? nullptr : source.sequenceNodes()[clicked];
        for (; *selected; ++selected) {
            target.selected.push_back(source.sequenceNodes()[*selected - '0']);
            target.isSelected |= *selected - '0' == clicked;
        }
        return target;
    }
    std::string Marked() const
    {
        std::string marked;
        for (std::size_t i = 0; i < made.sequences.size(); ++i)
            if (made.sequences[i]->fMarked)
                marked += std::to_string(i);
        return marked;
    }
    ListedTree made;  // four sequences, all good
    FakeBrowserHost host;
    PatTreeDataSource source{&host};
};

const MenuEntry* Entry(const MenuEntry& menu, const char* title)
{
    for (const MenuEntry& entry : menu.children)
        if (entry.title == QLatin1String(title))
            return &entry;
    return nullptr;
}

}  // namespace

TEST(BrowserMenu, entries_do_what_they_say_where_they_can)
{
    struct Row {
        int clicked;
        const char *selected, *marked, *title;
        bool enabled;
        const char* then;  // marked
    };
    const Row rows[] = {
        {0, "", "", "Mark Sequence", true, "0"},
        {0, "", "0", "Unmark Sequence", true, ""},
        {-1, "", "", "Mark Sequence", false, ""},
        {0, "", "", "Mark", false, ""},
        {0, "01", "1", "Mark Selected", true, "01"},
        {0, "01", "01", "Mark Selected", false, "01"},
        {2, "01", "", "Mark Selected", false, ""},
        {0, "0", "", "Mark Selected", false, ""},
        {0, "01", "02", "Unmark Selected", true, "2"},
        {0, "01", "2", "Unmark Selected", false, "2"},
        {0, "01", "12", "Toggle Marked in Selection", true, "02"},
        {-1, "", "1", "Mark All", true, "0123"},
        {-1, "", "0123", "Mark All", false, "0123"},
        {-1, "", "1", "Unmark All", true, ""},
        {-1, "", "", "Unmark All", false, ""},
        {-1, "", "13", "Toggle Marked", true, "02"},
    };
    Rows shown;
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.title) + " " + row.selected + " " + row.marked);
        const MenuEntry menu = U_BrowserMenu(shown.Target(row.clicked, row.selected, row.marked));
        const MenuEntry* entry = Entry(menu, row.title);
        ASSERT_TRUE(entry);
        EXPECT_EQ(entry->enabled, row.enabled);
        if (entry->enabled)
            entry->perform(false);
        EXPECT_EQ(shown.Marked(), row.then);
    }
}

TEST(BrowserMenu, marks_only_good_sequences_and_tells_watchers)
{
    Rows shown;
    auto* empty = MadeTree::Add<dk_Sequence>(shown.made.sequences[3]->GetParent());
    shown.source.setupWithDicomTree(&shown.made.tree);
    int told = 0;
    const auto watch = shown.source.proxyOf(shown.made.sequences[0])
                           ->ObserveKey("userMarked", [&told](std::string_view, KeyPhase phase) {
                               told += phase == KeyPhase::DidChange;
                           });
    const QSignalSpy rows(&shown.source, &QAbstractItemModel::dataChanged);
    U_MarkNodes(&shown.source, shown.source.sequenceNodes(), SequenceMark::Set);
    EXPECT_EQ(shown.Marked(), "0123");
    EXPECT_FALSE(empty->fMarked);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(rows.count(), 4) << "each changed row";
}

TEST(BrowserMenu, shows_files_where_they_came_from)
{
    Rows shown;
    shown.made.sequences[1]->GetCurrentImageFile()->fSourceSpec.fPath = "/disc/ORIGINAL";
    const auto reveal = [&](int clicked, const char* selected, const char* title) {
        shown.host.revealed.clear();
        const MenuEntry menu = U_BrowserMenu(shown.Target(clicked, selected, ""));
        const MenuEntry* entry = Entry(menu, title);
        EXPECT_TRUE(entry) << title;
        if (entry)
            entry->perform(false);
        return shown.host.revealed;
    };
    using Paths = std::vector<std::string>;
    EXPECT_EQ(reveal(1, "", "Show in File Manager"), Paths{"/disc/ORIGINAL"});
    EXPECT_EQ(reveal(2, "01", "Show in File Manager"),
              Paths{U_RevealPathOf(shown.made.sequences[2])})
        << "a click beside the selection is for the clicked row";
    EXPECT_EQ(reveal(0, "01", "Show Selected in File Manager"),
              (Paths{shown.made.folder.Path("0_1"), "/disc/ORIGINAL"}));
    EXPECT_EQ(reveal(-1, "", "Show in File Manager"), Paths{});
}

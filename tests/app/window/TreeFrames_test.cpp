// From an opened tree to the rows of a window's list, and to the frames of a row.
#include "app/window/TreeFrames.h"

#include "app/window/SequenceListModel.h"
#include "dicom_core/opening/OpenController.h"
#include "dicom_core/opening/OpeningFixtures.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "fixtures/TempFolder.h"

#include <gtest/gtest.h>

namespace {

struct Opened final : OpenObserver, OpenHost {
    explicit Opened(const std::string& path)
    {
        SilentProgress progress;
        ZELOpenController(this, this, &progress, nullptr).basic_openFile(path);
    }
    bool docIsAlreadyOpen(const ZELRecentDocument&) override { return false; }
    void bringDocWindowToFront(const ZELRecentDocument&) override {}
    void ShowAlertForError(QvxStatus code, const std::string&) override { ADD_FAILURE() << code; }
    void treeIsReady(std::unique_ptr<ZELDcmTree> ready, const std::string&,
                     const ZELRecentDocument&) override
    {
        tree = std::move(ready);
    }
    std::unique_ptr<ZELDcmTree> tree;
};

std::vector<int> LevelsOf(const std::vector<TreeRow>& rows)
{
    std::vector<int> levels;
    for (const TreeRow& row : rows)
        levels.push_back(row.level);
    return levels;
}

}  // namespace

TEST(TreeFrames, lists_a_study_only_beside_another_and_frames_in_tree_order)
{
    const TempFolder folder;
    folder.WriteFile("z", SmallImage({.instance = "1.3.1", .instanceNumber = "1"}));
    folder.WriteFile("a", SmallImage({.instance = "1.3.2", .instanceNumber = "2"}));
    folder.WriteFile("m", SmallImage({.patient = "ROE^JANE",
                                      .id = "2",
                                      .study = "1.4",
                                      .series = "1.4.1",
                                      .instance = "1.4.2",
                                      .modality = "XA",
                                      .frames = 3}));
    folder.WriteFile("n", SmallImage({.patient = "ROE^JANE",
                                      .id = "2",
                                      .study = "1.5",
                                      .date = "20100101",
                                      .series = "1.5.1",
                                      .instance = "1.5.2"}));
    const Opened opened(folder.Path("."));
    ASSERT_TRUE(opened.tree);
    const std::vector<TreeRow> rows = RowsOfTree(*opened.tree);
    ASSERT_EQ(LevelsOf(rows), (std::vector<int>{0, 2, 3, 0, 1, 2, 3, 1, 2, 3}));

    EXPECT_EQ(rows[2].Sequence()->GetNumberOfFrames(), 2);
    EXPECT_EQ(rows[6].Sequence()->GetNumberOfFrames(), 3);

    const SequenceListModel model(rows);
    EXPECT_EQ(model.firstSequence().row(), 2);
    EXPECT_FALSE(model.flags(model.index(0, 0)) & Qt::ItemIsSelectable);
    const auto text = [&](int row, int column) {
        return model.data(model.index(row, column), Qt::DisplayRole).toString();
    };
    EXPECT_EQ(text(6, SequenceListModel::kModality), QStringLiteral("XA"));
    EXPECT_EQ(text(6, SequenceListModel::kFrames), QStringLiteral("3"));
    EXPECT_EQ(text(0, SequenceListModel::kFrames), QString());
    EXPECT_TRUE(
        text(0, SequenceListModel::kTitle).contains(QLatin1String("DOE"), Qt::CaseInsensitive));
}

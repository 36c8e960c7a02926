// Which rows a tree gives, and what they say.
#include "app/nodes/NodeTree.h"

#include "app/grid/GridFixture.h"

namespace {

// "P(T(S(ss)s))": a patient of a study of a series of two sequences, and of a sequence.
std::string Shape(const DicomElemChildNode& node)
{
    std::string shape;
    for (int i = 0; i < node.numberOfChildren(); ++i) {
        const DicomElemChildNode* child = node.childAtIndex(i);
        EXPECT_EQ(child->childIndexInParent(), i);
        EXPECT_EQ(child->parent(), &node);
        shape += "PTSs"[child->level()];
        if (child->numberOfChildren() > 0)
            shape += "(" + Shape(*child) + ")";
    }
    return shape;
}

}  // namespace

TEST(NodeTree, groups_clips_in_folders_and_lists_slices_as_one_row)
{
    struct Row {
        const char* fault;
        std::vector<SeriesForm> series;
        const char* shape;
    };
    const SeriesForm ct{.frames = 2}, us{.modality = "US", .frames = 1, .color = true};
    const SeriesForm cr{.modality = "CR", .frames = 1};
    const Row rows[] = {
        {"slices", {ct}, "P(T(s))"},
        {"clips", {us}, "P(T(S(s)))"},
        {"both, in order", {ct, us, ct}, "P(T(sS(s)s))"},
        {"single images", {cr}, "P(T(S(s)))"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.fault);
        MadeTree made(row.series);
        const auto nodes = U_NodesOfTree(made.tree.patientTreeRoot());
        EXPECT_EQ(Shape(*nodes), row.shape);
        const auto leaves = nodes->sequenceNodes();
        ASSERT_EQ(leaves.size(), made.sequences.size());
        for (std::size_t i = 0; i < leaves.size(); ++i) {
            EXPECT_EQ(leaves[i]->sequence(), made.sequences[i]);
            EXPECT_EQ(nodes->childNodeWithElem(made.sequences[i]), leaves[i]);
        }
    }
    EXPECT_EQ(Shape(*U_NodesOfTree(nullptr)), "");
}

TEST(NodeTree, a_row_says_placeholders_until_its_text_is_there)
{
    MadeTree made({{.frames = 3}, {.modality = "US", .frames = 1, .color = true}});
    const auto nodes = U_NodesOfTree(made.tree.patientTreeRoot());
    DicomElemChildNode* slices = nodes->sequenceNodes()[0];
    DicomElemChildNode* clip = nodes->sequenceNodes()[1];
    struct Row {
        DicomElemChildNode* node;
        bool lines3, fast;
        const char *subtitle, *dims;
    };
    const Row rows[] = {
        {slices, false, false, "3 frames, 64x48 pixels", "3 frames, 64 x 48 pixels"},
        {slices, true, false, "", "3 frames, 64 x 48 pixels"},
        {slices, false, true, "... frames, ... pixels", "... frames, ... pixels"},
        {slices, true, true, "", "... frames, ... pixels"},
        {clip, false, true, "... sec, ... pixels", "... pixels"},
        {clip, true, true, "... sec", "... pixels"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.node->subtitleString(row.lines3, true, row.fast).toStdString(), row.subtitle);
        EXPECT_EQ(row.node->dimensionStringFast(row.fast).toStdString(), row.dims);
        EXPECT_TRUE(row.node->subtitleString(row.lines3, false, row.fast).isEmpty());
    }
    const QString seconds = clip->subtitleString(true, true, false);
    EXPECT_TRUE(seconds.endsWith(QStringLiteral(" sec"))) << seconds.toStdString();
    EXPECT_EQ(clip->subtitleString(false, true, false), seconds + QStringLiteral(", 64x48 pixels"));
    EXPECT_EQ(clip->dimensionStringFast(false).toStdString(), "64 x 48 pixels");
    slices->setNooodeTextOK();
    EXPECT_EQ(slices->dimensionStringFast(true).toStdString(), "3 frames, 64 x 48 pixels");
}

TEST(NodeTree, extracted_localizers_are_called_so)
{
    MadeTree made(std::vector<SeriesForm>{{.frames = 2}});
    auto* extracted = MadeTree::Add<dk_LocalaSequence>(made.sequences[0]->GetParent());
    for (int file = 1; file <= 2; ++file)
        EXPECT_EQ(MadeTree::Add<dk_ImageFile>(extracted)->SetSourceFile(
                      FileRef{made.folder.Path("0_" + std::to_string(file))}, kImportDicom),
                  kQvxOK);
    DicomElemChildNode node(extracted);
    EXPECT_EQ(node.subtitleString(true, true, false).toStdString(), "2 Extracted Localizers");
    EXPECT_EQ(node.subtitleString(false, true, true).toStdString(),
              "2 Extracted Localizers, ... pixels");
    EXPECT_EQ(node.subtitleString(false, true, false).toStdString(),
              "2 Extracted Localizers, 64x48 pixels");
    EXPECT_EQ(node.dimensionStringFast(false).toStdString(), "64 x 48 pixels");
}

TEST(NodeTree, a_closed_row_tells_the_grids_below_it)
{
    MadeTree made({{.frames = 1}, {.frames = 1}, {.frames = 1}});
    const auto nodes = U_NodesOfTree(made.tree.patientTreeRoot());
    const auto leaves = nodes->sequenceNodes();
    leaves[0]->setGridID(2);
    leaves[2]->setGridID(1);
    leaves[2]->setIsTarget(true);
    EXPECT_EQ(nodes->childAtIndex(0)->gridIDsBelow(), (std::vector{2, -1}));
}

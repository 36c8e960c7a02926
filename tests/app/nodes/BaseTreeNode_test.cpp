#include "app/nodes/BaseTreeNode.h"

#include <gtest/gtest.h>

namespace {

std::unique_ptr<BaseTreeNode> Leaf(const char* title)
{
    auto leaf = std::make_unique<BaseTreeNode>(QString::fromLatin1(title));
    leaf->setIsLeaf(true);
    return leaf;
}

// "a", then a folder of "b" and of a folder of "c", then an empty folder, then "d".
std::unique_ptr<BaseTreeNode> Folders()
{
    auto root = std::make_unique<BaseTreeNode>(QStringLiteral("root"));
    auto folder = std::make_unique<BaseTreeNode>(), inner = std::make_unique<BaseTreeNode>();
    inner->addNode(Leaf("c"));
    folder->addNode(Leaf("b"));
    folder->addNode(std::move(inner));
    root->addNode(Leaf("a"));
    root->addNode(std::move(folder));
    root->addNode(std::make_unique<BaseTreeNode>());
    root->addNode(Leaf("d"));
    return root;
}

QString TitlesOf(const BaseTreeNode& root)
{
    QString titles;
    for (const BaseTreeNode* leaf : root.allChildLeafs())
        titles += leaf->nodeTitle();
    return titles;
}

}  // namespace

TEST(BaseTreeNode, gives_leaves_in_order_of_any_depth)
{
    EXPECT_EQ(TitlesOf(*Folders()), QStringLiteral("abcd"));
}

TEST(BaseTreeNode, copies_are_of_their_own_and_equal)
{
    auto root = Folders();
    const auto copy = root->copyWithZone();
    root->children()[0]->setNodeTitle(QStringLiteral("x"));
    EXPECT_EQ(TitlesOf(*copy), QStringLiteral("abcd"));
    EXPECT_EQ(TitlesOf(*root), QStringLiteral("xbcd"));
}

TEST(BaseTreeNode, refuses_what_is_nested_without_bound)
{
    QVariantMap coded;
    for (int depth = 1; depth < BaseTreeNode::kMaxDepth; ++depth)
        coded = {{QStringLiteral("children"), QVariantList{coded}}};
    EXPECT_TRUE(BaseTreeNode::initWithCoder(coded));
    coded = {{QStringLiteral("children"), QVariantList{coded}}};
    EXPECT_FALSE(BaseTreeNode::initWithCoder(coded));
}

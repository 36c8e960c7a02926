#include "app/nodes/BaseTreeNode.h"

#include <QVariantList>

namespace {

std::unique_ptr<BaseTreeNode> Decoded(const QVariantMap& coded, int depth)
{
    if (depth > BaseTreeNode::kMaxDepth)
        return nullptr;
    auto node = std::make_unique<BaseTreeNode>(coded[QStringLiteral("nodeTitle")].toString());
    node->setIsLeaf(coded[QStringLiteral("isLeaf")].toBool());
    for (const QVariant& value : coded[QStringLiteral("children")].toList()) {
        auto child = Decoded(value.toMap(), depth + 1);
        if (!child)
            return nullptr;
        node->addNode(std::move(child));
    }
    return node;
}

}  // namespace

BaseTreeNode::~BaseTreeNode() = default;

std::vector<BaseTreeNode*> BaseTreeNode::allChildLeafs() const
{
    std::vector<BaseTreeNode*> leaves, open;
    const auto push = [&open](const Children& children) {
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            open.push_back(child->get());
    };
    push(_children);
    while (!open.empty()) {
        BaseTreeNode* node = open.back();
        open.pop_back();
        if (node->isLeaf())
            leaves.push_back(node);
        else
            push(node->_children);
    }
    return leaves;
}

QVariantMap BaseTreeNode::encodeWithCoder() const
{
    QVariantList children;
    for (const auto& child : _children)
        children.append(child->encodeWithCoder());
    return {{QStringLiteral("nodeTitle"), _nodeTitle},
            {QStringLiteral("isLeaf"), _isLeaf},
            {QStringLiteral("children"), children}};
}

std::unique_ptr<BaseTreeNode> BaseTreeNode::initWithCoder(const QVariantMap& coded)
{
    return Decoded(coded, 1);
}

std::unique_ptr<BaseTreeNode> BaseTreeNode::copyWithZone() const
{
    return initWithCoder(encodeWithCoder());
}

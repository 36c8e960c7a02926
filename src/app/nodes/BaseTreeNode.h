// A node of an outline: a title and children, which it owns. Main thread only.
#pragma once
#include <QString>
#include <QVariantMap>
#include <cstdint>
#include <memory>
#include <vector>

class BaseTreeNode {
public:
    using Children = std::vector<std::unique_ptr<BaseTreeNode>>;
    static constexpr int kMaxDepth = 128;  // of what is decoded

    BaseTreeNode() = default;
    explicit BaseTreeNode(QString title) : _nodeTitle(std::move(title)) {}
    virtual ~BaseTreeNode();
    BaseTreeNode(const BaseTreeNode&) = delete;
    BaseTreeNode& operator=(const BaseTreeNode&) = delete;

    [[nodiscard]] const QString& nodeTitle() const { return _nodeTitle; }
    void setNodeTitle(QString title) { _nodeTitle = std::move(title); }
    [[nodiscard]] bool isLeaf() const { return _isLeaf; }
    void setIsLeaf(bool leaf) { _isLeaf = leaf; }
    [[nodiscard]] const Children& children() const { return _children; }
    void addNode(std::unique_ptr<BaseTreeNode> child) { _children.push_back(std::move(child)); }
    [[nodiscard]] virtual bool isDraggable() const { return false; }

    // All leaves below, in order.
    [[nodiscard]] std::vector<BaseTreeNode*> allChildLeafs() const;

    // Title, leaf flag and children under the keys "nodeTitle", "isLeaf" and "children".
    [[nodiscard]] QVariantMap encodeWithCoder() const;
    // Null for what is nested deeper than kMaxDepth.
    [[nodiscard]] static std::unique_ptr<BaseTreeNode> initWithCoder(const QVariantMap& coded);
    [[nodiscard]] std::unique_ptr<BaseTreeNode> copyWithZone() const;

private:
    QString _nodeTitle;
    Children _children;
    bool _isLeaf = false;
};

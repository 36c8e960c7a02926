// The browser's node beside one element of the patient tree: what a row of it shows. Tree and node
// live side by side; the tree outlives its nodes. Main thread only.
#pragma once
#include "app/nodes/BaseTreeNode.h"

#include <QImage>

class ZELSequenceProxy;
class dk_DicomBaseElem;
class dk_SequenceBase;

inline constexpr int kThumbnailSide = 360;  // pixels of a thumbnail's longer side

class DicomElemChildNode final : public BaseTreeNode {
public:
    explicit DicomElemChildNode(dk_DicomBaseElem* element);  // sequences are leaves
    ~DicomElemChildNode() override;

    [[nodiscard]] dk_DicomBaseElem* dicomTreeElem() const { return _dicomTreeElem; }
    [[nodiscard]] dk_SequenceBase* sequence() const;  // null for other levels
    [[nodiscard]] std::int32_t level() const;         // as of the element; -1 the root
    [[nodiscard]] bool isDraggable() const override { return sequence() != nullptr; }

    // ---- the tree of nodes; indexes count from 0 ----

    DicomElemChildNode* addChild(std::unique_ptr<DicomElemChildNode> child);
    [[nodiscard]] DicomElemChildNode* parent() const { return _parent; }
    [[nodiscard]] int numberOfChildren() const { return static_cast<int>(children().size()); }
    [[nodiscard]] DicomElemChildNode* childAtIndex(int index) const;  // or null
    [[nodiscard]] int childIndexInParent() const { return _indexInParent; }
    // The node of `element`, this one included; searches down to the sequences. Null if none.
    [[nodiscard]] DicomElemChildNode* childNodeWithElem(const dk_DicomBaseElem* element);
    [[nodiscard]] std::vector<DicomElemChildNode*> sequenceNodes() const;  // below, in order

    // ---- texts; from files, so plain text on one line ----

    [[nodiscard]] const QString& description();
    // Second line, empty for none. `fast` gives placeholders as long as the text is missing;
    // otherwise headers of files may be read.
    [[nodiscard]] QString subtitleString(bool lines3, bool lines2, bool fast) const;
    [[nodiscard]] QString dimensionStringFast(bool fast) const;  // third line

    // ---- what becomes known ----

    [[nodiscard]] bool hasSequenceProxy() const { return _theSequenceProxy != nullptr; }
    // Made on first demand; null for other levels.
    const std::shared_ptr<ZELSequenceProxy>& theSequenceProxy();
    [[nodiscard]] bool userMarked() const;
    [[nodiscard]] const QImage& repIcon() const { return _repIcon; }
    // Of the thumbnail where its width is kThumbnailSide; that of a square while it is missing.
    [[nodiscard]] float iconHeight() const { return _iconHeight; }
    [[nodiscard]] bool iconMissing() const { return _iconMissing; }
    [[nodiscard]] bool textMissing() const { return _textMissing; }
    void setNooodeTextOK() { _textMissing = false; }
    void setNooodeImage(const QImage& image, float height);  // stores only where none is
    void clearNooodeImage();

    [[nodiscard]] int gridID() const { return _gridID; }
    void setGridID(int grid) { _gridID = grid; }
    [[nodiscard]] bool isTarget() const { return _isTarget; }
    void setIsTarget(bool target) { _isTarget = target; }
    // Grids, from 1, that show sequences below this node; the target's negative.
    [[nodiscard]] std::vector<int> gridIDsBelow() const;

private:
    QString _description;
    bool _described = false;
    DicomElemChildNode* _parent = nullptr;  // not owned
    int _indexInParent = 0;
    int _gridID = 0;  // 0 none
    std::shared_ptr<ZELSequenceProxy> _theSequenceProxy;
    QImage _repIcon;
    float _iconHeight = kThumbnailSide;
    dk_DicomBaseElem* _dicomTreeElem;  // not owned
    bool _isTarget = false, _iconMissing = true, _textMissing = true;
};

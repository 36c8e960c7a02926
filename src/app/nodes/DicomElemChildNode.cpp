#include "app/nodes/DicomElemChildNode.h"

#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/tree/dk_SequenceBase.h"

namespace {

constexpr std::int32_t kSequenceLevel = 3;

}  // namespace

DicomElemChildNode::DicomElemChildNode(dk_DicomBaseElem* element) : _dicomTreeElem(element)
{
    setIsLeaf(level() == kSequenceLevel);
}

DicomElemChildNode::~DicomElemChildNode() = default;

std::int32_t DicomElemChildNode::level() const
{
    return _dicomTreeElem ? _dicomTreeElem->GetDicomTreeLevel() : -1;
}

dk_SequenceBase* DicomElemChildNode::sequence() const
{
    return level() == kSequenceLevel ? static_cast<dk_SequenceBase*>(_dicomTreeElem) : nullptr;
}

DicomElemChildNode* DicomElemChildNode::addChild(std::unique_ptr<DicomElemChildNode> child)
{
    DicomElemChildNode* added = child.get();
    added->_parent = this;
    added->_indexInParent = numberOfChildren();
    addNode(std::move(child));
    return added;
}

DicomElemChildNode* DicomElemChildNode::childAtIndex(int index) const
{
    if (index < 0 || index >= numberOfChildren())
        return nullptr;
    return static_cast<DicomElemChildNode*>(children()[static_cast<std::size_t>(index)].get());
}

DicomElemChildNode* DicomElemChildNode::childNodeWithElem(const dk_DicomBaseElem* element)
{
    std::vector<DicomElemChildNode*> open{this};
    while (element && !open.empty()) {
        DicomElemChildNode* node = open.back();
        open.pop_back();
        if (node->_dicomTreeElem == element)
            return node;
        for (int i = node->numberOfChildren() - 1; i >= 0; --i)
            open.push_back(node->childAtIndex(i));
    }
    return nullptr;
}

std::vector<DicomElemChildNode*> DicomElemChildNode::sequenceNodes() const
{
    std::vector<DicomElemChildNode*> nodes;
    for (BaseTreeNode* leaf : allChildLeafs())
        nodes.push_back(static_cast<DicomElemChildNode*>(leaf));
    return nodes;
}

const std::shared_ptr<ZELSequenceProxy>& DicomElemChildNode::theSequenceProxy()
{
    if (!_theSequenceProxy && sequence())
        _theSequenceProxy = std::make_shared<ZELSequenceProxy>(sequence());
    return _theSequenceProxy;
}

// The mark stands in the tree: a row that only shows needs no proxy.
bool DicomElemChildNode::userMarked() const { return sequence() && _dicomTreeElem->fMarked; }

void DicomElemChildNode::setNooodeImage(const QImage& image, float height)
{
    if (!_repIcon.isNull() || image.isNull())
        return;
    _repIcon = image;
    _iconHeight = height;
    _iconMissing = false;
}

// The height stays: a row that waits for its new picture doesn't jump.
void DicomElemChildNode::clearNooodeImage()
{
    _repIcon = {};
    _iconMissing = true;
}

std::vector<int> DicomElemChildNode::gridIDsBelow() const
{
    std::vector<int> grids;
    for (const DicomElemChildNode* node : sequenceNodes()) {
        if (node->_gridID != 0)
            grids.push_back(node->_isTarget ? -node->_gridID : node->_gridID);
    }
    return grids;
}

// Visits every element of an opened file, nested and in file order, without recursion.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"

struct VisitedElement {
    QvxElementRef fRef = QvxElementRef::None;
    QvxElementTag fTag;
    std::uint32_t fTagOffset = 0;
    int fDepth = 0;              // 0 is the top level
    bool fInPixels = false;      // an offset table, a frame's first fragment, or a further one
    QvxStatus fStatus = kQvxOK;  // of reading what `fInfo` says
    QvxElementDataInfo fInfo;
};

class ElementVisitor {
public:
    virtual ~ElementVisitor() = default;
    // Before the element's children, if it has any.
    virtual void Element(const VisitedElement& element) = 0;
    // A delimiter that closes the children of an element at `depth`.
    virtual void Delimiter(QvxElementTag tag, std::uint32_t tagOffset, int depth) = 0;
    // The children of the element visited last could be read only in part, or not at all.
    virtual void Unreadable(QvxStatus status, int depth) = 0;
};

// The reader is walked if it hasn't been, and its frames are mapped.
void VisitElements(QvxParserRec* reader, ElementVisitor* visitor);

#include "dicom_core/tree/dk_DicomBaseElem.h"

#include "dicom_core/tree/ExportTitles.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <utility>

namespace {

constexpr std::int32_t kLevelSequence = 3;
constexpr int kModeAll = 0, kModeMarked = 1;  // any other: marked cines
constexpr std::int32_t kCineFrames = 2;

bool Counts(dk_DicomBaseElem* elem, int mode)
{
    if (mode == kModeAll)
        return true;
    if (!elem->fMarked || mode == kModeMarked)
        return elem->fMarked;
    if (elem->GetDicomTreeLevel() != kLevelSequence)
        return false;
    auto* sequence = static_cast<dk_SequenceBase*>(elem);
    return sequence->Is_XAUS() && sequence->GetNumberOfFrames() >= kCineFrames;
}

}  // namespace

dk_DicomBaseElem::dk_DicomBaseElem(const DicomImageFileRec& record)
    : fRelPath(record.recRelPath), fFileName(record.recFileName)
{
}

dk_DicomBaseElem::~dk_DicomBaseElem()
{
    while (fFirstChild)
        static_cast<void>(RemoveChild(fFirstChild));
}

std::string dk_DicomBaseElem::GetExportTitle() { return NarrowExportTitle(GetDKTitle()); }

QString dk_DicomBaseElem::Copy_DK_ExportTitle() { return WideExportTitle(CopyDKTitle()); }

// ---- looking around -----------------------------------------------------------------------------

dk_DicomBaseElem* dk_DicomBaseElem::GetGrandParent() const
{
    return fParent ? fParent->fParent : nullptr;
}

dk_DicomBaseElem* dk_DicomBaseElem::GetTreeRoot()
{
    dk_DicomBaseElem* root = this;
    while (root->fParent)
        root = root->fParent;
    return root;
}

dk_DicomBaseElem* dk_DicomBaseElem::GetChild(std::int32_t index) const
{
    if (index < 1 || index > fNumChildren)
        return nullptr;
    dk_DicomBaseElem* child = fFirstChild;
    while (--index > 0)
        child = child->fNext;
    return child;
}

std::int32_t dk_DicomBaseElem::GetChildIndex(const dk_DicomBaseElem* wanted) const
{
    std::int32_t index = 1;
    for (const dk_DicomBaseElem* child = fFirstChild; child; child = child->fNext, ++index)
        if (child == wanted)
            return index;
    return 0;
}

dk_DicomBaseElem* dk_DicomBaseElem::GetGrandChild(std::int32_t index) const
{
    for (const dk_DicomBaseElem* child = fFirstChild; child; child = child->fNext) {
        if (index <= child->fNumChildren)
            return child->GetChild(index);
        index -= child->fNumChildren;
    }
    return nullptr;
}

std::int32_t dk_DicomBaseElem::GetGrandChildIndex(const dk_DicomBaseElem* grandChild) const
{
    std::int32_t before = 0;
    for (const dk_DicomBaseElem* child = fFirstChild; child; child = child->fNext) {
        if (const std::int32_t index = child->GetChildIndex(grandChild))
            return before + index;
        before += child->fNumChildren;
    }
    return 0;
}

std::int32_t dk_DicomBaseElem::GetNumChildren(int mode) const
{
    if (mode == kModeAll)
        return fNumChildren;
    std::int32_t count = 0;
    for (dk_DicomBaseElem* child = fFirstChild; child; child = child->fNext)
        count += Counts(child, mode) ? 1 : 0;
    return count;
}

std::int32_t dk_DicomBaseElem::GetNumGrandChildren(int mode) const
{
    std::int32_t count = 0;
    for (const dk_DicomBaseElem* child = fFirstChild; child; child = child->fNext)
        count += child->GetNumChildren(mode);
    return count;
}

std::int32_t dk_DicomBaseElem::GetNumOffsprings(std::int32_t depth) const
{
    if (depth < 1)
        return fNumChildren;
    std::int32_t count = 0;
    for (const dk_DicomBaseElem* child = fFirstChild; child; child = child->fNext)
        count += child->GetNumOffsprings(depth - 1);
    return count;
}

std::int32_t dk_DicomBaseElem::GetIndexInBranch() const
{
    std::int32_t index = 1;
    for (const dk_DicomBaseElem* before = fPrev; before; before = before->fPrev)
        ++index;
    return index;
}

dk_DicomBaseElem* dk_DicomBaseElem::GetNextAtSameLevel() const
{
    if (fNext || !fParent)
        return fNext;
    const dk_DicomBaseElem* parent = fParent->GetNextAtSameLevel();
    while (parent && !parent->fFirstChild)
        parent = parent->GetNextAtSameLevel();
    return parent ? parent->fFirstChild : nullptr;
}

dk_DicomBaseElem* dk_DicomBaseElem::GetNextElem_DepthFirst() const
{
    if (fFirstChild)
        return fFirstChild;
    const dk_DicomBaseElem* elem = this;
    while (elem && !elem->fNext)
        elem = elem->fParent;
    return elem ? elem->fNext : nullptr;
}

// ---- changing -----------------------------------------------------------------------------------

void dk_DicomBaseElem::Link(dk_DicomBaseElem* child, dk_DicomBaseElem* after)
{
    child->fParent = this;
    child->fPrev = after;
    child->fNext = after ? after->fNext : fFirstChild;
    (child->fPrev ? child->fPrev->fNext : fFirstChild) = child;
    (child->fNext ? child->fNext->fPrev : fLastChild) = child;
    ++fNumChildren;
}

void dk_DicomBaseElem::Unlink(dk_DicomBaseElem* child)
{
    (child->fPrev ? child->fPrev->fNext : fFirstChild) = child->fNext;
    (child->fNext ? child->fNext->fPrev : fLastChild) = child->fPrev;
    --fNumChildren;
}

void dk_DicomBaseElem::AddChild(std::unique_ptr<dk_DicomBaseElem> child)
{
    AddChildAfter(std::move(child), fLastChild);
}

void dk_DicomBaseElem::AddChildAfter(std::unique_ptr<dk_DicomBaseElem> child,
                                     dk_DicomBaseElem* after)
{
    if (child)
        Link(child.release(), after);
}

std::unique_ptr<dk_DicomBaseElem> dk_DicomBaseElem::RemoveChild(dk_DicomBaseElem* child)
{
    Unlink(child);
    return std::unique_ptr<dk_DicomBaseElem>(child);
}

dk_DicomBaseElem* dk_DicomBaseElem::DeleteChildAndGetNext(dk_DicomBaseElem* child)
{
    dk_DicomBaseElem* next = child->fNext;
    static_cast<void>(RemoveChild(child));
    return next;
}

void dk_DicomBaseElem::SwapChildren(dk_DicomBaseElem* a, dk_DicomBaseElem* b)
{
    if (a == b)
        return;
    if (a->fPrev == b)
        std::swap(a, b);
    dk_DicomBaseElem* const beforeA = a->fPrev;
    Unlink(a);
    Link(a, b);
    Unlink(b);
    Link(b, beforeA);
}

void dk_DicomBaseElem::ClearBaseElemLinks()
{
    fPrev = fNext = fParent = fFirstChild = fLastChild = nullptr;
    fNumChildren = 0;
}

void dk_DicomBaseElem::OrderChildren(const std::vector<dk_DicomBaseElem*>& sorted)
{
    fFirstChild = fLastChild = nullptr;
    fNumChildren = 0;
    for (dk_DicomBaseElem* child : sorted)
        Link(child, fLastChild);
}

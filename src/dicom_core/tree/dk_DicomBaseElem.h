// One element of the patient tree: links, titles, marks. All levels derive from it, so one
// traversal serves them all; a bare one is a temporary collection of files. Parents own their
// children. Indexes count from 1; look-ups answer null or 0 when out of range. One thread at a
// time: the open worker while a tree is built, the main thread afterwards.
#pragma once
#include "dicom_core/tree/DicomImageFileRec.h"
#include "util/FileRef.h"
#include "util/SharedText.h"

#include <QString>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class dk_DicomBaseElem {
public:
    dk_DicomBaseElem() = default;
    explicit dk_DicomBaseElem(const DicomImageFileRec& record);  // takes path and file name
    dk_DicomBaseElem(const dk_DicomBaseElem&) = delete;
    dk_DicomBaseElem& operator=(const dk_DicomBaseElem&) = delete;
    virtual ~dk_DicomBaseElem();

    // Null where a level can't be cloned.
    [[nodiscard]] virtual std::unique_ptr<dk_DicomBaseElem> MakeClone() { return nullptr; }
    // Narrow titles are bytes as the file has them, wide ones are decoded.
    [[nodiscard]] virtual std::string GetDKTitle() { return {}; }
    [[nodiscard]] virtual QString CopyDKTitle() { return {}; }
    [[nodiscard]] virtual std::string GetExportTitle();  // the title as a file name
    [[nodiscard]] virtual QString Copy_DK_ExportTitle();
    [[nodiscard]] virtual std::string GetDisplayTitle() { return GetExportTitle(); }
    [[nodiscard]] virtual QString Copy_DK_DisplayTitle() { return Copy_DK_ExportTitle(); }
    [[nodiscard]] virtual std::int32_t GetSortKey() const { return 0; }
    // -1 for a bare element and the root, 0 patient, 1 study, 2 series, 3 sequence, 4 file.
    [[nodiscard]] virtual std::int32_t GetDicomTreeLevel() const { return -1; }

    [[nodiscard]] dk_DicomBaseElem* GetParent() const { return fParent; }
    [[nodiscard]] dk_DicomBaseElem* GetNext() const { return fNext; }
    [[nodiscard]] dk_DicomBaseElem* GetPrev() const { return fPrev; }
    [[nodiscard]] dk_DicomBaseElem* GetFirstChild() const { return fFirstChild; }
    [[nodiscard]] dk_DicomBaseElem* GetLastChild() const { return fLastChild; }
    [[nodiscard]] dk_DicomBaseElem* GetGrandParent() const;
    [[nodiscard]] dk_DicomBaseElem* GetTreeRoot();
    [[nodiscard]] dk_DicomBaseElem* GetChild(std::int32_t index) const;
    [[nodiscard]] std::int32_t GetChildIndex(const dk_DicomBaseElem* child) const;
    // Numbering runs across the children's children in order.
    [[nodiscard]] dk_DicomBaseElem* GetGrandChild(std::int32_t index) const;
    [[nodiscard]] std::int32_t GetGrandChildIndex(const dk_DicomBaseElem* grandChild) const;
    [[nodiscard]] std::int32_t GetNumChildren() const { return fNumChildren; }
    // 0 all; 1 the marked; 2 the marked sequences of XA, US or IVUS with two frames or more.
    [[nodiscard]] std::int32_t GetNumChildren(int mode) const;
    [[nodiscard]] std::int32_t GetNumGrandChildren() const { return GetNumGrandChildren(0); }
    [[nodiscard]] std::int32_t GetNumGrandChildren(int mode) const;
    // Depth below 1: the child count; else the sum over the children with depth - 1.
    [[nodiscard]] std::int32_t GetNumOffsprings(std::int32_t depth) const;
    [[nodiscard]] std::int32_t GetIndexInBranch() const;
    // Next sibling, else the first child of the next element at the parent's level that has one.
    [[nodiscard]] dk_DicomBaseElem* GetNextAtSameLevel() const;
    [[nodiscard]] dk_DicomBaseElem* GetNextElem_DepthFirst() const;

    void AddChild(std::unique_ptr<dk_DicomBaseElem> child);  // at the end; null is ignored
    void AddChildAfter(std::unique_ptr<dk_DicomBaseElem> child,
                       dk_DicomBaseElem* after);  // null: first
    // Unlinks; the caller owns the element now. Its own links stay as they were until it is added
    // elsewhere.
    [[nodiscard]] std::unique_ptr<dk_DicomBaseElem> RemoveChild(dk_DicomBaseElem* child);
    dk_DicomBaseElem* DeleteChildAndGetNext(dk_DicomBaseElem* child);
    void SwapChildren(dk_DicomBaseElem* a, dk_DicomBaseElem* b);
    void ClearBaseElemLinks();  // of an element without children; used on clones
    // Puts the children into the order of `sorted`, which holds each of them once. O(n).
    void OrderChildren(const std::vector<dk_DicomBaseElem*>& sorted);

    BoundedText<1024> fRelPath;  // folder, from a directory record; ":" separates
    BoundedText<256> fFileName;  // split off that path
    bool fHasFileSpec = false;   // `fFileSpec` was found in the directory's folder
    bool fCacheCopyTried = false;
    bool fIsClone = false;
    bool fTitleDataRead = false, fWideTitleDataRead = false;
    bool fMarked = false;  // the user's mark
    FileRef fFileSpec;     // where the file is now
    FileRef fSourceSpec;   // where it was before a copy to the local cache

private:
    void Link(dk_DicomBaseElem* child, dk_DicomBaseElem* after);
    void Unlink(dk_DicomBaseElem* child);

    dk_DicomBaseElem* fPrev = nullptr;
    dk_DicomBaseElem* fNext = nullptr;
    dk_DicomBaseElem* fParent = nullptr;
    dk_DicomBaseElem* fFirstChild = nullptr;  // owned, with all that follow it
    dk_DicomBaseElem* fLastChild = nullptr;
    std::int32_t fNumChildren = 0;
};

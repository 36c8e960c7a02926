// The reader's own record and the helpers that its files share. Internal.
#pragma once
#include "Qvx2Parser/Qvx2Reader.h"
#include "Qvx2Parser/QvxFlatValue.h"
#include "Qvx2Parser/QvxPixelMap.h"
#include "Qvx2Parser/QvxWalk.h"

inline constexpr std::uint32_t kSignatureReader = FourCC("PRSR");
inline constexpr std::uint32_t kReaderWantsFrames = 1;  // reader flags, bit 0

// An element that was found alone, without a walk of the file.
struct QvxSideElement {
    QvxIndex fParent = 0;
    std::uint32_t fKey = 0;  // group and element
    QvxIndex fElement = 0;
    std::uint32_t fBehind = 0;  // where the search goes on
};

// A record of a directory, in the order of the file.
struct QvxDirectoryRecord {
    QvxIndex fRecord = 0;
    std::uint32_t fListedBy = 0;  // number of the level that has listed it last
};

struct QvxParserRec {
    std::uint32_t fSignature = kSignatureReader;
    std::uint32_t fSalt = 0;  // upper bits of this reader's references
    std::unique_ptr<ByteSource> fStream;
    std::uint32_t fFileSize = 0;
    std::uint32_t fOptions = 0;  // walkFlags of every walk
    std::uint32_t fParserFlags = 0;
    std::uint32_t fReaderFlags = 0;
    std::int32_t fDictHits = 0;
    std::uintptr_t fMemoryEnv = 0;
    const QvxHostCallbacks* fCallbacks = nullptr;
    QvxStatePtr fState;
    bool fWalked = false;                            // the list is there, as far as it goes
    std::vector<QvxSideElement> fSideList;           // ordered by parent, group, element
    QvxIndex fDirectoryRecords = 0;                  // first child of (0004,1220), once asked for
    std::vector<QvxDirectoryRecord> fDirectoryList;  // all its items, from then on
    std::uint32_t fDirectoryLevels = 0;              // levels listed so far
    std::shared_ptr<void> fAttachment;  // what a decoder keeps with the file; last: dropped first
};

// The index that a reference names, 0 with kQvxBadChain for one that isn't this reader's.
[[nodiscard]] QvxStatus QvxIndexOf(const QvxParserRec* reader, QvxElementRef element,
                                   QvxIndex* index);
[[nodiscard]] QvxElementRef QvxRefOf(const QvxParserRec& reader, QvxIndex index);
// Gives the reader a new range of references: those handed out before are stale.
void QvxRenewSalt(QvxParserRec* reader);
// A state, for questions about a file that has not been walked.
[[nodiscard]] QvxStatus QvxEnsureState(QvxParserRec* reader);
// Reads the element's own value, or walks into it, unless that was done.
[[nodiscard]] QvxStatus QvxEnsureValue(QvxParserRec* reader, QvxIndex element);
// Head of the children of `parent` (0: the top level). Reads them if need be; on a failure `head`
// has those that were read.
[[nodiscard]] QvxStatus QvxChildrenOf(QvxParserRec* reader, QvxIndex parent, int firstLevel,
                                      QvxIndex* head);
// A handle with a count and these rows.
[[nodiscard]] QvxStatus QvxNewFrameMap(const QvxParserRec& reader,
                                       std::span<const QvxFrameMapRecord> rows, QvxHandle* map);

// The walk over a file: from bytes to linked element records. Internal to the reader; what lies
// outside calls Qvx2Reader.h. Offsets are bytes from the start of the walked form.
#pragma once
#include "util/ByteOrder.h"

#include "Qvx2Parser/QvxRecords.h"
#include <cstdint>
#include <memory>

using QvxStatePtr = std::unique_ptr<ExtraHeaderDataRec>;

// Entry of a walk. A state given in is disposed with its list; the new one stays with the caller,
// also after an error, with whatever elements lie in front of the fault. kQvxMalformed for an
// empty source or one too large for 32-bit offsets.
[[nodiscard]] QvxStatus Read_DICOM_Header(const QvxHostCallbacks* callbacks, ByteSource* dataRef,
                                          QvxStatePtr* state, QvxParseMode mode,
                                          std::uint32_t searchStart, std::uintptr_t memoryEnv,
                                          std::uint32_t walkFlags);
// A state in single element mode with meta information and transfer settings done, for questions
// about a file that has not been walked. Null with `error` set on failure.
[[nodiscard]] QvxStatePtr SetupNewExtraHeaderDataStruct(const QvxHostCallbacks* callbacks,
                                                        ByteSource* dataRef,
                                                        std::uintptr_t memoryEnv,
                                                        std::uint32_t walkFlags, QvxStatus* error);
// A fresh state; null when memory ran out.
[[nodiscard]] QvxStatePtr InitExtraHeaderDataRec(const QvxHostCallbacks* callbacks,
                                                 ByteSource* dataRef, QvxParseMode mode,
                                                 std::uintptr_t memoryEnv, std::uint32_t walkFlags);

// Does "DICM" stand at 128? A file that can't be read answers its status.
[[nodiscard]] QvxStatus HasMarker(const QvxHostCallbacks* callbacks, ByteSource* dataRef,
                                  bool* answer);
// Preamble test and meta group; answers the last meta element. In validate mode a marker ends it.
QvxIndex Handle_DICOM_MetaInformation(std::uint32_t* offset, ExtraHeaderDataRec& state,
                                      QvxStatus* error);
// The meta group; attempt 0 reads explicit, attempt 1 implicit form.
QvxIndex Read_DICOM_MetaInformation(std::uint32_t* offset, ExtraHeaderDataRec& state, int attempt,
                                    QvxStatus* error);
// Settles byte order and VR form from the element at `offset`.
[[nodiscard]] QvxStatus GetTransferSettings(std::uint32_t offset, ExtraHeaderDataRec& state,
                                            std::uint16_t* group, std::uint16_t* element);
// Inflates a deflated data set that begins at `offset`, when the walk wants that.
[[nodiscard]] QvxStatus InflateDataSet(std::uint32_t offset, ExtraHeaderDataRec& state);

// One element. Answers the new one, `previous` if it was skipped, 0 at the end of data.
QvxIndex Read_DICOM_NextElement_Combined(std::uint32_t* offset, QvxIndex previous,
                                         ExtraHeaderDataRec& state, int level,
                                         std::int32_t* dictIndex, QvxStatus* error);
// VR and length of the element whose tag ends at `offset`; the offset moves to the value.
[[nodiscard]] QvxStatus GetVRandLength(std::uint32_t* offset, ExtraHeaderDataRec& state,
                                       QvxElementTag tag, std::int32_t dictIndex,
                                       std::uint32_t explicitFlag, std::uint32_t byteOrder,
                                       QvxVRIndex* vr, std::uint32_t* length);
// Is the element to be skipped, and by how many bytes?
bool SkipOverElementQuery(ExtraHeaderDataRec& state, QvxElementTag tag, std::uint32_t valueOffset,
                          std::uint32_t length, int level, QvxVRIndex vr, std::uint32_t* bytes);
// Bytes from `valueOffset` to the next group, if the group length there holds up; else 0.
[[nodiscard]] std::uint32_t JumpOverGroupPossibleQuery(std::uint32_t valueOffset,
                                                       ExtraHeaderDataRec& state,
                                                       std::uint16_t group);
[[nodiscard]] bool ElementNeededForGraphics(QvxElementTag tag);

struct QvxElementHeader {
    QvxElementTag fTag;
    std::uint32_t fTagOffset = 0;
    QvxVRIndex fVR{};
    std::uint32_t fLength = 0;
    std::int32_t fDictIndex = -1;
};
// Makes the element and deals with its value as the mode says; `offset` is the value's on entry
// and behind it on success. 0 with `error` set on failure.
QvxIndex FillDICOMHeaderDataStruct_Combined(const QvxElementHeader& header, std::uint32_t* offset,
                                            ExtraHeaderDataRec& state, int level, QvxStatus* error);
// Reads the element's value or descends into it; the offset moves behind what was read.
[[nodiscard]] QvxStatus GetElementContent(ExtraHeaderDataRec& state, QvxIndex element,
                                          std::uint32_t* offset, int level);
// The walk inside a sequence or item; answers the head of the child list. Level 0 walks in any
// mode. A list that ends with an error stays as far as it got.
QvxIndex ParseDICOMHeaderFromOffset(std::uint32_t* offset, std::uint32_t length,
                                    ExtraHeaderDataRec& state, int level, QvxStatus* error);
// Graphics mode, behind `record` of a directory, which the walk has just linked: takes its links
// and moves the offset on, over records that can have no icon. `end` is where the sequence ends, or
// at least the file size when it says no length. False when the walk of the records ends here.
bool StepBehindDirectoryRecord(ExtraHeaderDataRec& state, QvxIndex record, std::uint64_t end,
                               std::uint32_t* offset);
// Takes what the walk must know from an element that it has just met.
void UpdateExtraHeaderData(QvxIndex element, ExtraHeaderDataRec& state);

// Reads ahead for a scope, unless a scope further out does already.
class ReadAheadScope {
public:
    explicit ReadAheadScope(ExtraHeaderDataRec& state) : fState(state), fOuter(state.fAhead)
    {
        if (!fOuter)
            fState.fAhead = &fOwn;
    }
    ~ReadAheadScope() { fState.fAhead = fOuter; }
    ReadAheadScope(const ReadAheadScope&) = delete;
    ReadAheadScope& operator=(const ReadAheadScope&) = delete;

private:
    ExtraHeaderDataRec& fState;
    QvxReadAhead* fOuter;
    QvxReadAhead fOwn;
};

inline constexpr std::uint32_t kLongestHeader = 12;

// Makes sure that a header at `offset` has been read ahead, as far as the file reaches.
inline void ReadAheadAt(ExtraHeaderDataRec& state, std::uint32_t offset)
{
    QvxReadAhead* ahead = state.fAhead;
    if (!ahead || offset >= state.fFileSize ||
        (offset >= ahead->fStart &&
         std::uint64_t{offset} + kLongestHeader <= std::uint64_t{ahead->fStart} + ahead->fCount))
        return;
    const std::uint32_t rest = state.fFileSize - offset;
    const std::uint32_t count = rest < sizeof ahead->fBytes ? rest : sizeof ahead->fBytes;
    std::uint32_t position = offset;
    ahead->fStart = offset;
    ahead->fCount =
        state.fCallbacks->fReadData(state.fDataRef, ahead->fBytes, &position, count) == kQvxOK
            ? count
            : 0;
}

// A number of the walk, from what was read ahead or through the callback.
template <typename T>
[[nodiscard]] inline QvxStatus WalkNumber(ExtraHeaderDataRec& state, std::uint32_t* offset, T* dest,
                                          std::uint32_t byteOrder)
{
    const QvxReadAhead* ahead = state.fAhead;
    if (ahead && byteOrder <= 1 && *offset >= ahead->fStart &&
        std::uint64_t{*offset} + sizeof(T) <= std::uint64_t{ahead->fStart} + ahead->fCount) {
        const std::byte* bytes = ahead->fBytes + (*offset - ahead->fStart);
        *dest = byteOrder == 0 ? LoadLE<T>(bytes) : LoadBE<T>(bytes);
        *offset += sizeof(T);
        return kQvxOK;
    }
    if constexpr (sizeof(T) == 2)
        return Read_ShortU(state.fCallbacks->fReadData, state.fDataRef, offset, dest, byteOrder);
    else
        return Read_LongU(state.fCallbacks->fReadData, state.fDataRef, offset, dest, byteOrder);
}

// Counts one level of nesting for a scope.
class NestingScope {
public:
    explicit NestingScope(ExtraHeaderDataRec& state) : fState(state) { ++fState.fNesting; }
    ~NestingScope() { --fState.fNesting; }
    NestingScope(const NestingScope&) = delete;
    NestingScope& operator=(const NestingScope&) = delete;
    [[nodiscard]] bool TooDeep() const { return fState.fNesting > kMaxNesting; }

private:
    ExtraHeaderDataRec& fState;
};

// The reader's public face: open a file, find elements, take values, map frames, close.
// All values are read on first demand and kept until the reader closes. Value indexes and frames
// count from 1; sizes and offsets are bytes from the start of the file. A reader and all its
// references belong to one thread at a time. Statuses are those of util/StatusCodes.h; a result is
// set only on kQvxOK unless said otherwise, and result handles belong to the caller.
#pragma once
#include "util/FileRef.h"

#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxElementTag.h"
#include "Qvx2Parser/QvxHost.h"
#include "Qvx2Parser/QvxRecords.h"
#include "Qvx2Parser/QvxValue.h"
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

struct QvxParserRec;
// What everything above holds of one DICOM file; null is no parser.
using ParserHandle = QvxParserRec*;

struct QvxReaderClose {
    void operator()(QvxParserRec* reader) const noexcept;
};
using QvxReaderPtr = std::unique_ptr<QvxParserRec, QvxReaderClose>;

// ---- open and close ---------------------------------------------------------------------------

inline constexpr std::size_t kMaxPathBytes = 1026;  // a path and its terminator

[[nodiscard]] QvxStatus Qvx2Reader_OpenBase(QvxReaderPtr* reader);
// `path` is bytes, as the file system has them. `options` are walkFlags: 0, or kQvxProgramOptions.
// kQvxBadArgument without a reader, kQvxNoDataRef without a path, kQvxFileNotFound for one too
// long, kQvxNotOfKind for what is no regular file, kQvxMalformed for a file too large for 32-bit
// offsets, an errno when it can't be opened. `expected`, if given and known, is what
// Qvx2Reader_FileIdentity told earlier: kQvxSeekFailed for a file that is no longer the same.
[[nodiscard]] QvxStatus Qvx2Reader_SetInputFileURL(QvxParserRec* reader, const char* path,
                                                   std::uint32_t options = 0,
                                                   const FileIdentity* expected = nullptr);
// Both of the above. Nothing is read yet; the descriptor stays open until the first use ends.
// kQvxBadArgument without a path.
[[nodiscard]] QvxStatus Qvx2Parser_Open(QvxReaderPtr* reader, const char* path,
                                        std::uint32_t options = 0,
                                        const FileIdentity* expected = nullptr);
// The same on bytes in memory.
[[nodiscard]] QvxStatus Qvx2Parser_OpenBytes(QvxReaderPtr* reader, std::vector<std::byte> bytes,
                                             std::uint32_t options = 0);
// Frees everything; kQvxMalformed is reported for a wrong signature and nothing is touched then.
QvxStatus Qvx2Reader_Close(QvxParserRec* reader);

// Is the reader's file DICOM: five tags of the dictionary, or "DICM" at 128. The call answers
// kQvxOK when it could run.
[[nodiscard]] QvxStatus Qvx2Reader_ValidateDataRef(QvxParserRec* reader, bool* valid);
// A fresh walk in `mode`; afterwards the reader holds its list and state, also when it failed.
[[nodiscard]] QvxStatus Qvx2Reader_ReadDICOMHeader(QvxParserRec* reader, QvxParseMode mode);

// Bit 0: item markers have the VR of two blanks. Bit 1: GetElementData reads from the file.
inline constexpr std::uint32_t kParserBlankItemVR = 1;
inline constexpr std::uint32_t kParserDataFromFile = 2;
[[nodiscard]] QvxStatus Qvx2Reader_SetParserFlags(QvxParserRec* reader, std::uint32_t flags);
[[nodiscard]] QvxStatus Qvx2Reader_GetParserFlags(const QvxParserRec* reader, std::uint32_t* flags);

// While it lives, the file stays open and read ahead; without one, each call that reads opens the
// file anew. Worth having around any run of calls.
class QvxReaderUse {
public:
    explicit QvxReaderUse(QvxParserRec* reader);

private:
    ByteSourceUse fUse;
};

// What failed in the last walk: the tag that was met last and its file offset, as words for a log
// line ("at (0028,0010), offset 1234"); empty when nothing failed.
[[nodiscard]] std::string Qvx2Reader_FaultText(const QvxParserRec* reader);
// The state of the walk, for what reads directories and rewrites files; null before any walk.
[[nodiscard]] const ExtraHeaderDataRec* Qvx2Reader_State(const QvxParserRec* reader);
[[nodiscard]] std::uint32_t Qvx2Reader_FileSize(const QvxParserRec* reader);
// Which state of which file the reader has opened; unknown for bytes in memory, and for null.
[[nodiscard]] FileIdentity Qvx2Reader_FileIdentity(const QvxParserRec* reader);

// What a decoder keeps with the file between frames: one place, empty at first and again once the
// reader is given another file; dropped when it closes. Null for null.
[[nodiscard]] std::shared_ptr<void>* Qvx2Reader_Attachment(QvxParserRec* reader);

// ---- find elements ----------------------------------------------------------------------------

// Makes sure that the list and the state are there: walks on the first call, maps the frames when
// they are wanted and not yet mapped. A failed walk is reported once; what it built stays.
[[nodiscard]] QvxStatus CheckAndFillDICOMHeaderPointers(QvxParserRec* reader, QvxParseMode mode,
                                                        std::uint32_t startOffset);

// A handle with a 32-bit count and that many references, which the caller owns. A closing
// delimiter is not among them.
using QvxElementRefArray = QvxHandle;
[[nodiscard]] std::span<const QvxElementRef> QvxRefsOf(const QvxElementRefArray& refs);

[[nodiscard]] QvxStatus Qvx2Reader_GetTopLevelElementRefs(QvxParserRec* reader,
                                                          QvxElementRefArray* refs);
// Children of `parent` (None: the top level). kQvxNotASequence for a parent that has none by kind.
// After a failure in reading them `refs` still holds those that were read.
[[nodiscard]] QvxStatus Qvx2Reader_GetElementRefs(QvxParserRec* reader, QvxElementRef parent,
                                                  QvxElementRefArray* refs);
// Children of a top-level sequence; a null handle for an empty one.
[[nodiscard]] QvxStatus Qvx2Reader_GetSequenceElementRefs(QvxParserRec* reader, QvxElementTag tag,
                                                          QvxElementRefArray* refs);
[[nodiscard]] QvxStatus Qvx2Reader_GetSequenceNumItems(QvxParserRec* reader, QvxElementTag tag,
                                                       std::uint32_t* count);
// First child of `parent` with `tag`; does not look inside items. kQvxNoSuchElement if none,
// kQvxBadChain on a bad reference.
[[nodiscard]] QvxStatus Qvx2Reader_FindElement(QvxParserRec* reader, QvxElementRef parent,
                                               QvxElementTag tag, QvxElementRef* found);
// The top-level elements of several tags in one pass: found[i] is the last that bears tags[i], None
// without one. `tags` ascend; both spans are equally long.
[[nodiscard]] QvxStatus Qvx2Reader_FindTopLevelElements(QvxParserRec* reader,
                                                        std::span<const QvxElementTag> tags,
                                                        std::span<QvxElementRef> found);
// Qvx2Reader_FindElement for one element of a file that need not be walked: reads forward to it and
// remembers it.
[[nodiscard]] QvxStatus Qvx2Reader_GetElementRef(QvxParserRec* reader, QvxElementRef parent,
                                                 QvxElementTag tag, QvxElementRef* found);
[[nodiscard]] QvxStatus Qvx2Reader_GetElementTag(const QvxParserRec* reader, QvxElementRef element,
                                                 QvxElementTag* tag);
[[nodiscard]] QvxStatus Qvx2Reader_GetTagOffset(const QvxParserRec* reader, QvxElementRef element,
                                                std::uint32_t* offset);

// ---- values -----------------------------------------------------------------------------------

[[nodiscard]] QvxStatus Qvx2Reader_GetElementDataInfo(QvxParserRec* reader, QvxElementRef element,
                                                      QvxElementDataInfo* info);
[[nodiscard]] QvxStatus Qvx2Reader_GetElementDataSize(QvxParserRec* reader, QvxElementRef element,
                                                      std::uint32_t* size);
[[nodiscard]] QvxStatus Qvx2Reader_GetElementValueMultiplicity(QvxParserRec* reader,
                                                               QvxElementRef element,
                                                               std::int32_t* multiplicity);
[[nodiscard]] QvxStatus Qvx2Reader_GetElementValueRepresentation(QvxParserRec* reader,
                                                                 QvxElementRef element, QvxVR* vr);
// The value's bytes as they are kept (single binary numbers in host order), at most `maximum`.
[[nodiscard]] QvxStatus Qvx2Reader_GetElementData(QvxParserRec* reader, QvxElementRef element,
                                                  std::uint32_t maximum, void* dest);
// Value number `index` as a number or a block. Length 0 gives an empty value and no error.
[[nodiscard]] QvxStatus Qvx2Reader_GetElementDataAsValue(QvxParserRec* reader,
                                                         QvxElementRef element, std::int32_t index,
                                                         QvxElementValue* value);
// Value number `index` as text without a terminator. Length 0 gives an empty handle and no error.
[[nodiscard]] QvxStatus Qvx2Reader_GetElementDataAsText(QvxParserRec* reader, QvxElementRef element,
                                                        std::int32_t index, QvxHandle* text);

// The same for an element of one value and a kind of text, without a copy: a view of the reader's
// memory until its next call, with the padding of UI taken off. kQvxUnsupported for any other
// element, an empty one and a date or time that has to be rewritten included.
[[nodiscard]] QvxStatus Qvx2Reader_GetPlainText(QvxParserRec* reader, QvxElementRef element,
                                                std::string_view* text);

// What the file says of itself; `value` may be kUnknownState. Selectors:
inline constexpr std::uint32_t kMetaByteOrder = FourCC("S_EN");
inline constexpr std::uint32_t kMetaExplicitVR = FourCC("S_VR");
inline constexpr std::uint32_t kMetaTransferSyntax = FourCC("S_TS");  // row of QvxTransferSyntaxUID
inline constexpr std::uint32_t kMetaPixelRepresentation = FourCC("S_PR");
inline constexpr std::uint32_t kMetaOffsetTable = FourCC("S_OT");
inline constexpr std::uint32_t kMetaPixelDataUndefined = FourCC("S_PD");
[[nodiscard]] QvxStatus Qvx2Reader_GetFileMetaInformation(QvxParserRec* reader,
                                                          std::uint32_t selector,
                                                          std::uint32_t* value);
// UID of row 0 to 28 of the transfer syntaxes known by number; empty for any other.
[[nodiscard]] std::string_view QvxTransferSyntaxUID(std::uint32_t index);
// A plain read through the callback; the offset is one of the walk's (see fWasInflated).
[[nodiscard]] QvxStatus Qvx2Reader_ReadData(QvxParserRec* reader, void* dest, std::uint32_t offset,
                                            std::uint32_t count);
[[nodiscard]] QvxStatus Qvx2Reader_GetDictInfoForTag(QvxParserRec* reader, QvxElementTag tag,
                                                     QvxDictInfo* info);

// ---- by tag, in one step ----------------------------------------------------------------------

// The number, only if its type is the wanted one. kQvxNoValue for an empty element,
// kQvxUnsupported for another type.
[[nodiscard]] QvxStatus Qvx2_ParserGetElementValue(QvxParserRec* reader, QvxElementRef parent,
                                                   std::uint16_t group, std::uint16_t element,
                                                   std::int32_t index, QvxNumericValueType wanted,
                                                   void* dest);
// The element's bytes in a new block, in place of what `data` held; a missing element leaves it.
[[nodiscard]] QvxStatus Qvx2_ParserGetElementRawData(QvxParserRec* reader, QvxElementRef parent,
                                                     std::uint16_t group, std::uint16_t element,
                                                     QvxHandle* data);
[[nodiscard]] QvxStatus ParserGetElementDataAsText(QvxParserRec* reader, QvxElementRef parent,
                                                   std::uint16_t group, std::uint16_t element,
                                                   std::int32_t index, QvxHandle* text);
[[nodiscard]] QvxStatus ParserGetElementDataAsCString(QvxParserRec* reader, QvxElementRef parent,
                                                      std::uint16_t group, std::uint16_t element,
                                                      std::int32_t index, QvxHandle* text);
// (0008,0016) names Enhanced MR; a missing element answers no.
[[nodiscard]] QvxStatus ParserQueryIsEnhancedMR(QvxParserRec* reader, bool* answer);

// ---- frames -----------------------------------------------------------------------------------

// A handle with a 32-bit count and that many QvxFrameMapRecord; maps the frames if need be. A
// directory has none. kQvxResultNotNull when `map` already holds a block.
[[nodiscard]] QvxStatus Qvx2Reader_GetImageOffsetsAndSizes(QvxParserRec* reader, QvxHandle* map);
[[nodiscard]] std::span<const QvxFrameMapRecord> QvxFrameMapOf(const QvxHandle& map);
// The row of one frame.
[[nodiscard]] QvxStatus Qvx2Reader_GetFrameMapRecord(QvxParserRec* reader, std::uint32_t frame,
                                                     QvxFrameMapRecord* row);
// What the file claims, without mapping, or else what the data holds. Float pixels are not mapped;
// without (0028,0008) they are claimed as one frame.
inline constexpr std::uint32_t kFramesClaimed = 1;
[[nodiscard]] QvxStatus Qvx2Reader_GetNumberOfFrames(QvxParserRec* reader, std::uint32_t flags,
                                                     std::uint32_t* count);

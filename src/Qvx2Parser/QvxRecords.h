// The records of one file's walk: elements in one arena, and the state of the walk.
// Elements are small and hold no values; what a value needs beyond 32 bits is a block of the arena.
// An index into the arena is an element's name inside the reader, 0 is none.
#pragma once
#include "util/FourCC.h"

#include "Qvx2Parser/QvxElementTag.h"
#include "Qvx2Parser/QvxHost.h"
#include "Qvx2Parser/QvxVRTable.h"
#include <cstdint>
#include <memory>
#include <vector>

inline constexpr std::uint32_t kSignatureElement = FourCC("DELM");
inline constexpr std::uint32_t kSignatureState = FourCC("DHED");
inline constexpr QvxElementTag kTagPixelData{0x7FE0, 0x0010};
inline constexpr std::uint32_t kUndefinedLength = 0xFFFFFFFF;

// Bounds that no file of this world reaches and no hostile one passes.
inline constexpr std::uint32_t kMaxElements = 1u << 21;  // elements of one file
inline constexpr int kMaxNesting = 128;                  // sequences and items inside one another
inline constexpr std::uint32_t kMaxInflateRatio = 128;   // inflated bytes for a byte of the file

using QvxIndex = std::uint32_t;
inline constexpr std::int16_t kDictIndexOpen = -2;

// Where an element's value is. `Immediate` lies in the content cell itself.
enum class QvxContent : std::uint8_t { None = 0, Immediate = 1, Children = 2, Block = 3 };

// One element. 40 bytes: ten thousand open files hold a million of them.
struct DicomHeaderDataStruct {
    std::uint32_t fSignature = kSignatureElement;
    std::uint16_t fGroup = 0;
    std::uint16_t fElement = 0;
    std::uint32_t fLength = 0;       // as in the file; 0xFFFFFFFF is undefined
    std::uint32_t fTagOffset = 0;    // file offset of the first tag byte
    std::uint32_t fValueOffset = 0;  // file offset of the first value byte
    std::uint32_t fContent = 0;      // content cell: a number, a child's index, or a block's number
    std::int32_t fMultiplicity = -1;
    QvxIndex fParent = 0;
    QvxIndex fNext = 0;
    std::int16_t fDictIndex = -1;  // row of the dictionary
    std::uint8_t fVR = kVRIndexByteNone;
    QvxContent fContentKind : 2 = QvxContent::None;
    bool fRead : 1 = false;      // the content cell has been filled, if only with nothing
    bool fImplicit : 1 = false;  // its children are in implicit form whatever the file is in

    [[nodiscard]] QvxElementTag Tag() const { return {fGroup, fElement}; }
    [[nodiscard]] QvxVRIndex VR() const { return VRIndexOfByte(fVR); }
    [[nodiscard]] bool Undefined() const { return fLength == kUndefinedLength; }
};
static_assert(sizeof(DicomHeaderDataStruct) == 40);

// All elements and values of one walk. References to elements do not survive `New`.
class QvxArena {
public:
    QvxArena();
    QvxArena(const QvxArena&) = delete;
    QvxArena& operator=(const QvxArena&) = delete;
    [[nodiscard]] DicomHeaderDataStruct& At(QvxIndex index) { return fElements[index]; }
    [[nodiscard]] const DicomHeaderDataStruct& At(QvxIndex index) const { return fElements[index]; }
    [[nodiscard]] bool Holds(QvxIndex index) const { return index > 0 && index < fElements.size(); }
    // Adds an element; 0 when memory or kMaxElements is used up.
    [[nodiscard]] QvxIndex New(const DicomHeaderDataStruct& element)
    {
        if (fElements.size() == fElements.capacity() && !Grow())
            return 0;
        fElements.push_back(element);
        return static_cast<QvxIndex>(fElements.size() - 1);
    }
    // Takes back the last `New`, if nothing was made since.
    void DropLast(QvxIndex index);
    [[nodiscard]] QvxIndex Count() const { return static_cast<QvxIndex>(fElements.size()); }
    // Forgets every element made since `Count()` was `count`; nothing may refer to them.
    void CutTo(QvxIndex count) { fElements.resize(count); }
    // A block for a value of `size` bytes and a terminator; 0 when memory ran out.
    [[nodiscard]] std::uint32_t NewBlock(std::uint32_t size);
    [[nodiscard]] std::byte* Block(std::uint32_t number) { return fBlocks[number - 1]; }
    // Gives back room that was set aside and not needed.
    void Trim();

private:
    [[nodiscard]] bool Grow();
    [[nodiscard]] std::byte* NewRoom(std::uint64_t size);

    std::vector<DicomHeaderDataStruct> fElements;  // [0] is never handed out
    std::vector<std::byte*> fBlocks;               // in fRooms
    std::vector<NoxBlock> fRooms;                  // of one large block, or of many small ones
    std::byte* fFree = nullptr;                    // in the last room of small blocks
    std::size_t fFreeSize = 0;
};

enum class QvxParseMode : std::uint32_t {
    Validate = 0,       // skips by length, ends at the fifth tag of the dictionary
    Full = 1,           // reads every value
    Lazy = 2,           // the viewer's: jumps over values of definite length
    Graphics = 3,       // keeps what ElementNeededForGraphics names
    SingleElement = 4,  // seeks one tag
};

// walkFlags. The first is the plain reader's; the others are ours, off unless asked for.
inline constexpr std::uint32_t kWalkMapFrames = 1;         // map the frames when Pixel Data is met
inline constexpr std::uint32_t kWalkModernVRs = 2;         // OD OL OV SV UC UR UV in explicit form
inline constexpr std::uint32_t kWalkJ2KStarts = 4;         // FF 4F starts a frame too
inline constexpr std::uint32_t kWalkOneFrameTakesAll = 8;  // all fragments of a file of one frame
inline constexpr std::uint32_t kWalkInflate = 16;          // deflated explicit little endian
inline constexpr std::uint32_t kWalkImplicitUN = 32;       // UN of undefined length, PS3.5 6.2.2
inline constexpr std::uint32_t kWalkAllSyntaxes = 64;      // the walk knows all 29 by number
inline constexpr std::uint32_t kWalkDoubtSyntax = 128;     // the data outweigh the meta group
inline constexpr std::uint32_t kWalkSubsampled = 256;      // native 4:2:2 has two samples a pixel
inline constexpr std::uint32_t kWalkKeepCutLevels = 512;   // a level of records ends at a bad link
inline constexpr std::uint32_t kWalkKnownUN = 1024;        // UN of a known tag has its usual VR

// What every open of the program asks for.
inline constexpr std::uint32_t kQvxProgramOptions =
    kWalkModernVRs | kWalkJ2KStarts | kWalkOneFrameTakesAll | kWalkInflate | kWalkImplicitUN |
    kWalkAllSyntaxes | kWalkDoubtSyntax | kWalkSubsampled | kWalkKeepCutLevels | kWalkKnownUN;

inline constexpr std::uint32_t kSOPMediaDirectory = FourCC("UNKO");
inline constexpr std::uint32_t kSOPManagement1 = FourCC("UNKP");
inline constexpr std::uint32_t kSOPManagement2 = FourCC("UNKQ");
inline constexpr std::uint32_t kSOPManagement3 = FourCC("UNKR");

inline constexpr std::uint32_t kImageFormNative = 1;
inline constexpr std::uint32_t kImageFormEncapsulated = 2;
inline constexpr std::uint32_t kNoOffsetTable = 2;  // offsetTableState
inline constexpr std::uint32_t kAnomalyLength = 1;  // a binary element was not of its natural size

// Where one frame of a directory's icons lies.
struct ImageFrameDataStruct {
    std::uint32_t fOffset = 0, fSize = 0;
    std::unique_ptr<ImageFrameDataStruct> fNext;
};

// One row of the public frame map, in file offsets and bytes.
struct QvxFrameMapRecord {
    std::uint32_t fOffset = 0;  // first fragment's value
    std::uint32_t fSize = 0;    // spans the 8-byte headers between fragments
    std::uint32_t fFragmentCount = 0;
    std::uint32_t fFirstFragmentSize = 0;
    bool operator==(const QvxFrameMapRecord&) const = default;
};

// Bytes that a walk has read ahead of itself, on the stack of whoever began it: an element's header
// is a few bytes, and a call through the host's table for each costs more than reading it.
struct QvxReadAhead {
    std::uint32_t fStart = 0, fCount = 0;
    std::byte fBytes[512];
};

// The state of one file's walk. Fields that start as "UNKN" are not known yet.
struct ExtraHeaderDataRec {
    ~ExtraHeaderDataRec();
    std::uint32_t fSignature = kSignatureState;
    ByteSource* fDataRef = nullptr;  // not owned; `fInflated` when the data set was deflated
    const QvxHostCallbacks* fCallbacks = nullptr;
    std::uintptr_t fMemoryEnv = 0;
    QvxArena fArena;
    QvxReadAhead* fAhead = nullptr;  // while a walk is under way
    std::uint16_t fPixelDataSeen = 0;
    std::uint16_t fRows = 0, fColumns = 0;
    std::uint16_t fBitsAllocated = 8;
    std::uint16_t fSamplesPerPixel = 1;
    std::uint16_t fEnclosingGroup = 0, fEnclosingElement = 0;
    std::uint16_t fTargetGroup = 0, fTargetElement = 0;
    std::uint32_t fByteOrder = kUnknownState;   // 0 little, 1 big
    std::uint32_t fExplicitVR = kUnknownState;  // 0 implicit, 1 explicit
    std::uint32_t fSopClassKind = kUnknownState;
    std::uint32_t fTransferSyntax = kUnknownState;
    std::uint32_t fPixelRepresentation = kUnknownState;
    std::uint32_t fOffsetTableState = kUnknownState;
    std::uint32_t fPixelDataUndefined = kUnknownState;  // 0 definite, 1 undefined length
    std::uint32_t fImageForm = 0;
    std::uint32_t fNominalFrames = 0, fActualFrames = 0;
    std::uint32_t fPixelDataLength = 0, fPixelDataOffset = 0, fOffsetTableOffset = 0;
    std::uint32_t fMaxFrameSize = 0;
    std::uint32_t fFileSize = 0;
    std::uint32_t fFirstElementOffset = 0, fSearchStart = 0;
    std::uint32_t fWalkFlags = 0;
    std::uint32_t fAnomalies = 0;
    std::uint32_t fDirOffsets[5] = {};  // of the graphics walk, as its fDirLevelEnds below
    std::int32_t fDictHits = 0;
    QvxParseMode fMode = QvxParseMode::Lazy;
    QvxIndex fListHead = 0;  // top-level elements
    QvxIndex fFrameChain = 0;
    QvxIndex fPixelElement = 0;
    bool fItemsAreFlat = false;
    bool fDirLevelEnds = false;  // a record that is no part of a series ends the walk of records
    bool fInImplicitUN = false;  // inside a UN whose elements are in implicit form
    bool fWasInflated = false;   // offsets are those of the inflated form, not of the file
    std::int16_t fNesting = 0;   // sequences and items being walked; 0 is the top level
    QvxElementTag fFaultTag;     // what a failed walk met last, and where
    std::uint32_t fFaultOffset = 0;
    std::vector<QvxFrameMapRecord> fFrameMap;  // the four frame arrays, one row a frame
    bool fFrameMapMade = false;
    std::unique_ptr<ImageFrameDataStruct> fFrameList;
    std::unique_ptr<MemorySource> fInflated;

    [[nodiscard]] bool IsDirectory() const { return fSopClassKind == kSOPMediaDirectory; }
    [[nodiscard]] bool Wants(std::uint32_t walkFlag) const { return (fWalkFlags & walkFlag) != 0; }
    DicomHeaderDataStruct& operator[](QvxIndex index) { return fArena.At(index); }
};

// offset + count, stopping at the largest offset instead of wrapping round.
[[nodiscard]] constexpr std::uint32_t AdvancedOffset(std::uint32_t offset, std::uint32_t count)
{
    return count > UINT32_MAX - offset ? UINT32_MAX : offset + count;
}

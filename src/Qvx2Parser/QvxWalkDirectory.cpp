// Graphics mode in a directory: records that can have no icon are jumped over by their links.
#include "Qvx2Parser/QvxDirectoryNames.h"
#include "Qvx2Parser/QvxWalk.h"
#include <algorithm>
#include <string_view>

namespace {

constexpr QvxElementTag kTagNextRecord{0x0004, 0x1400};
constexpr QvxElementTag kTagRecordType{0x0004, 0x1430};
constexpr QvxElementTag kTagIconSequence{0x0088, 0x0200};
constexpr QvxElementTag kTagItem{0xFFFE, 0xE000};
constexpr std::uint32_t kItemHeader = 8;

// What fDirOffsets holds: the next record of each level, and where the walk goes on behind an
// image without an icon.
enum DirOffset : std::size_t { kNextPatient, kNextStudy, kNextSeries, kNextImage, kResume };

struct RecordFacts {
    std::uint32_t fNext = 0;
    std::int32_t fType = kDirRecordOther;
    bool fHasIcon = false;
};

RecordFacts FactsOf(ExtraHeaderDataRec& state, QvxIndex record)
{
    RecordFacts facts;
    if (state[record].fContentKind != QvxContent::Children)
        return facts;
    for (QvxIndex i = state[record].fContent; i; i = state[i].fNext) {
        const DicomHeaderDataStruct& element = state[i];
        if (element.Tag() == kTagNextRecord && element.VR() == kVRIndexUL &&
            element.fContentKind == QvxContent::Immediate) {
            facts.fNext = element.fContent;
        } else if (element.Tag() == kTagRecordType && element.fContentKind == QvxContent::Block &&
                   element.fContent != 0) {
            std::string_view text(
                reinterpret_cast<const char*>(state.fArena.Block(element.fContent)),
                element.fLength);
            text = text.substr(0, text.find_last_not_of(std::string_view(" \0", 2)) + 1);
            facts.fType = DicomUtil_DirRecordType(text);
        } else if (element.Tag() == kTagIconSequence) {
            facts.fHasIcon = true;
        }
    }
    return facts;
}

// The image's own next record, or else that of its series, study or patient, or else the end.
std::uint32_t ResumeOffset(const ExtraHeaderDataRec& state, std::uint64_t end)
{
    for (const DirOffset level : {kNextImage, kNextSeries, kNextStudy, kNextPatient}) {
        if (state.fDirOffsets[level] != 0)
            return state.fDirOffsets[level];
    }
    return end <= state.fFileSize ? static_cast<std::uint32_t>(end) : 0;
}

// A link that leads back, out of the sequence, or to no item is not followed.
bool MayGoOnAt(ExtraHeaderDataRec& state, std::uint32_t target, std::uint32_t offset,
               std::uint64_t end)
{
    if (target <= offset || target > end)
        return false;
    if (target == end)
        return true;
    if (state.fFileSize < kItemHeader || target > state.fFileSize - kItemHeader)
        return false;
    QvxElementTag tag;
    ReadAheadAt(state, target);
    return WalkNumber(state, &target, &tag.group, state.fByteOrder) == kQvxOK &&
           WalkNumber(state, &target, &tag.element, state.fByteOrder) == kQvxOK && tag == kTagItem;
}

}  // namespace

bool StepBehindDirectoryRecord(ExtraHeaderDataRec& state, QvxIndex record, std::uint64_t end,
                               std::uint32_t* offset)
{
    if (state[record].VR() != kVRIndexItem)
        return true;
    const RecordFacts facts = FactsOf(state, record);
    switch (facts.fType) {
        case kDirRecordPatient:
            state.fDirOffsets[kNextPatient] = facts.fNext;
            return true;
        case kDirRecordStudy:
            state.fDirOffsets[kNextStudy] = facts.fNext;
            return true;
        case kDirRecordSeries:
            state.fDirOffsets[kNextSeries] = facts.fNext;
            state.fDirLevelEnds = false;
            return true;
        case kDirRecordImage:
            state.fDirOffsets[kNextImage] = facts.fNext;
            state.fDirOffsets[kResume] = ResumeOffset(state, end);
            if (facts.fHasIcon)
                return true;
            if (state.fDirOffsets[kResume] == 0)
                state.fDirLevelEnds = true;
            else if (MayGoOnAt(state, state.fDirOffsets[kResume], *offset, end))
                *offset = state.fDirOffsets[kResume];
            return true;
        default:
            return !state.fDirLevelEnds;
    }
}

// Which elements a walk passes over, and by how many bytes.
#include "Qvx2Parser/QvxDictionary.h"
#include "Qvx2Parser/QvxWalk.h"
#include <algorithm>
#include <array>

namespace {

// Tags that the graphics mode keeps, ascending.
// clang-format off
constexpr auto kGraphicsTags = std::to_array<std::uint32_t>({
    0x00020002, 0x00020010,
    0x00041220, 0x00041400, 0x00041430,
    0x00080016, 0x00080060, 0x00080070, 0x00080080, 0x00080090, 0x00081050, 0x00081090,
    0x00082144, 0x00089205,
    0x00100010,
    0x00180015, 0x00180040, 0x00181063, 0x00181065, 0x00181242, 0x00181244,
    0x00280002, 0x00280004, 0x00280006, 0x00280008, 0x00280009, 0x00280010, 0x00280011,
    0x00280034, 0x00280100, 0x00280101, 0x00280102, 0x00280103, 0x00280106, 0x00280107,
    0x00280108, 0x00280109, 0x00280110, 0x00280111, 0x00280120, 0x00281050, 0x00281051,
    0x00281052, 0x00281053, 0x00281101, 0x00281102, 0x00281103, 0x00281200, 0x00281201,
    0x00281202, 0x00281203, 0x00283000, 0x00283002, 0x00283006, 0x00286010,
    0x00541000, 0x00541001, 0x00541102,
    0x7FE00010,
});
// Groups that the graphics mode reads at the top level.
constexpr auto kGraphicsGroups = std::to_array<std::uint16_t>({
    0x0002, 0x0008, 0x0010, 0x0018, 0x0028, 0x0054, 0x7FE0,
});
// clang-format on
static_assert(std::ranges::is_sorted(kGraphicsTags));

// Does the graphics mode read this group at this level, so that its length is no jump?
bool GroupReadForGraphics(const ExtraHeaderDataRec& state, std::uint16_t group, int level)
{
    if (level <= 1) {
        if (state.IsDirectory())
            return group == 0x0004;
        return std::ranges::find(kGraphicsGroups, group) != kGraphicsGroups.end();
    }
    if (!state.IsDirectory())
        return group == 0x0028;
    return (level == 3 && group == 0x0088) || (level == 5 && (group == 0x0028 || group == 0x7FE0));
}

bool SkipForGraphics(ExtraHeaderDataRec& state, QvxElementTag tag, std::uint32_t valueOffset,
                     std::uint32_t length, int level, QvxVRIndex vr, std::uint32_t* bytes)
{
    if (tag.element == 0 && tag.group != 0x0002) {
        if (!GroupReadForGraphics(state, tag.group, level))
            *bytes = JumpOverGroupPossibleQuery(valueOffset, state, tag.group);
        if (*bytes == 0)
            *bytes = length;
        return true;
    }
    // What has no length can only be walked, whatever it is.
    if (length == kUndefinedLength || vr == kVRIndexSQ || IsItemMarker(vr) ||
        ElementNeededForGraphics(tag))
        return false;
    *bytes = length;
    return true;
}

}  // namespace

bool ElementNeededForGraphics(QvxElementTag tag)
{
    return std::ranges::binary_search(kGraphicsTags, tag.Key());
}

std::uint32_t JumpOverGroupPossibleQuery(std::uint32_t valueOffset, ExtraHeaderDataRec& state,
                                         std::uint16_t group)
{
    const QvxReadProc read = state.fCallbacks->fReadData;
    std::uint32_t offset = valueOffset, groupLength = 0;
    if (Read_LongU(read, state.fDataRef, &offset, &groupLength, state.fByteOrder) != kQvxOK)
        return 0;
    const std::uint64_t candidate = std::uint64_t{offset} + groupLength;
    if (candidate > state.fFileSize)
        return 0;
    if (candidate < state.fFileSize) {
        offset = static_cast<std::uint32_t>(candidate);
        QvxElementTag tag;
        if (Read_ShortU(read, state.fDataRef, &offset, &tag.group, state.fByteOrder) != kQvxOK ||
            Read_ShortU(read, state.fDataRef, &offset, &tag.element, state.fByteOrder) != kQvxOK)
            return 0;
        QvxVRIndex vr{};
        std::uint32_t length = 0;
        const bool nextGroup =
            tag.group > group && tag.element == 0 &&
            GetVRandLength(&offset, state, tag, PositionInDictionary(tag.group, tag.element),
                           state.fExplicitVR, state.fByteOrder, &vr, &length) == kQvxOK;
        if (!nextGroup && tag != QvxElementTag{0xFFFE, 0xE00D})
            return 0;
    }
    return AdvancedOffset(groupLength, 4);
}

bool SkipOverElementQuery(ExtraHeaderDataRec& state, QvxElementTag tag, std::uint32_t valueOffset,
                          std::uint32_t length, int level, QvxVRIndex vr, std::uint32_t* bytes)
{
    *bytes = 0;
    switch (state.fMode) {
        case QvxParseMode::Full:
        case QvxParseMode::Lazy:
            return false;
        case QvxParseMode::SingleElement:
            if (tag.element != 0 || tag.group == 0x0002 || tag.group == state.fTargetGroup)
                return false;
            *bytes = JumpOverGroupPossibleQuery(valueOffset, state, tag.group);
            if (*bytes == 0)
                *bytes = length;
            return true;
        case QvxParseMode::Graphics:
            return SkipForGraphics(state, tag, valueOffset, length, level, vr, bytes);
        default:
            // What has no length is entered, its elements are met as if they stood outside.
            *bytes = length == kUndefinedLength ? 0 : length;
            return true;
    }
}

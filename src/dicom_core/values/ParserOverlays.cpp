#include "dicom_core/values/ParserOverlays.h"

#include "dicom_core/values/ParserOpen.h"

namespace {

constexpr std::uint16_t kFirstOverlayGroup = 0x6000, kLastOverlayGroup = 0x601E;
constexpr std::uint16_t kOverlayType = 0x0040;

bool IsOverlayType(const QvxElementTag& tag)
{
    return tag.group >= kFirstOverlayGroup && tag.group <= kLastOverlayGroup &&
           tag.group % 2 == 0 && tag.element == kOverlayType;
}

}  // namespace

bool Parser_FileHasOverlays(ParserHandle parser)
{
    if (!parser || Parser_WalkHeader(parser))
        return false;
    QvxElementRefArray refs;
    if (Qvx2Reader_GetTopLevelElementRefs(parser, &refs))
        return false;
    for (const QvxElementRef element : QvxRefsOf(refs)) {
        QvxElementTag tag;
        if (!Qvx2Reader_GetElementTag(parser, element, &tag) && IsOverlayType(tag))
            return true;
    }
    return false;
}

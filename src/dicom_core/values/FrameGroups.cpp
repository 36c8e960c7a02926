#include "dicom_core/values/FrameGroups.h"

#include "dicom_core/values/ValueList.h"

#include <array>
#include <new>

namespace {

constexpr QvxElementTag kTagItem{0xFFFE, 0xE000};
constexpr QvxElementTag kTagSharedGroups{0x5200, 0x9229};
constexpr QvxElementTag kTagFrameGroups{0x5200, 0x9230};

constexpr QvxElementTag kTagReferencedImages{0x0008, 0x1140};
constexpr QvxElementTag kTagFrameType{0x0008, 0x9007};
constexpr QvxElementTag kTagProjectionCalibration{0x0018, 0x9401};
constexpr QvxElementTag kTagSpacingInBeam{0x0018, 0x9404};
constexpr QvxElementTag kTagPosition{0x0020, 0x0032};
constexpr QvxElementTag kTagOrientation{0x0020, 0x0037};
constexpr QvxElementTag kTagPlanePosition{0x0020, 0x9113};
constexpr QvxElementTag kTagPlaneOrientation{0x0020, 0x9116};
constexpr QvxElementTag kTagSpacing{0x0028, 0x0030};
constexpr QvxElementTag kTagWindowCenter{0x0028, 0x1050};
constexpr QvxElementTag kTagWindowWidth{0x0028, 0x1051};
constexpr QvxElementTag kTagWindowName{0x0028, 0x1055};
constexpr QvxElementTag kTagPixelMeasures{0x0028, 0x9110};
constexpr QvxElementTag kTagFrameVOILUT{0x0028, 0x9132};

// Where the classes have their Frame Type.
constexpr auto kFrameTypeMacros = std::to_array<QvxElementTag>({
    {0x0018, 0x9226},  // MR
    {0x0018, 0x9227},  // MR spectroscopy
    {0x0018, 0x9329},  // CT
    {0x0018, 0x9504},  // X-ray 3D, breast tomosynthesis
    {0x0018, 0x9751},  // PET
    {0x0018, 0x9806},  // ultrasound volumes
    {0x0018, 0x9835},  // photoacoustic
    {0x0028, 0x9443},  // XA and XRF
    {0x0040, 0x0710},  // whole slide microscopy
    {0x0040, 0x9092},  // parametric map
    {0x0048, 0x0116},  // confocal microscopy
    {0x0052, 0x0025},  // intravascular OCT
});

// None for a parent of None: what isn't there has no children.
QvxElementRef Child(ParserHandle parser, QvxElementRef parent, QvxElementTag tag)
{
    QvxElementRef found = QvxElementRef::None;
    if (parent == QvxElementRef::None || Qvx2Reader_FindElement(parser, parent, tag, &found))
        return QvxElementRef::None;
    return found;
}

QvxElementRef SpacingOf(const zelFrameGroups& groups, std::int32_t frame)
{
    const QvxElementRef measured = groups.Find(frame, kTagPixelMeasures, kTagSpacing);
    return measured != QvxElementRef::None
               ? measured
               : groups.Find(frame, kTagProjectionCalibration, kTagSpacingInBeam);
}

// What the groups lack is taken from the file.
zelPlaneElements PlaneOf(const zelFrameGroups& groups, std::int32_t frame)
{
    zelPlaneElements plane = PlaneElementsOfFile(groups.Parser());
    const auto prefer = [](QvxElementRef own, QvxElementRef* element) {
        if (own != QvxElementRef::None)
            *element = own;
    };
    prefer(SpacingOf(groups, frame), &plane.fSpacing);
    prefer(groups.Find(frame, kTagPlanePosition, kTagPosition), &plane.fPosition);
    prefer(groups.Find(frame, kTagPlaneOrientation, kTagOrientation), &plane.fOrientation);
    return plane;
}

// All three from one place: a file's width beside a frame's center would be no window.
zelWindowElements WindowOf(const zelFrameGroups& groups, std::int32_t frame)
{
    QvxElementRef item = QvxElementRef::None;
    const QvxElementRef center = groups.Find(frame, kTagFrameVOILUT, kTagWindowCenter, &item);
    if (center == QvxElementRef::None)
        return WindowElementsOfFile(groups.Parser());
    return {center, Child(groups.Parser(), item, kTagWindowWidth),
            Child(groups.Parser(), item, kTagWindowName)};
}

}  // namespace

zelFrameGroups::zelFrameGroups(ParserHandle parser) : fParser(parser)
{
    if (!parser)
        return;
    const QvxReaderUse use(parser);
    QvxElementRef shared = QvxElementRef::None;
    if (!Qvx2Reader_FindElement(parser, QvxElementRef::None, kTagSharedGroups, &shared))
        fShared = Child(parser, shared, kTagItem);
    // Of a damaged sequence, what stands in front of the damage.
    QvxElementRefArray items;
    static_cast<void>(Qvx2Reader_GetSequenceElementRefs(parser, kTagFrameGroups, &items));
    const auto refs = QvxRefsOf(items);
    try {
        fFrames.assign(refs.begin(), refs.end());
    } catch (const std::bad_alloc&) {
        fFrames.clear();
    }
}

std::int32_t zelFrameGroups::FrameCount() const
{
    return static_cast<std::int32_t>(fFrames.size());  // no more than kMaxElements
}

std::array<QvxElementRef, 2> zelFrameGroups::GroupsOf(std::int32_t frame) const
{
    const bool hasOwn = frame >= 1 && frame <= FrameCount();
    return {hasOwn ? fFrames[static_cast<std::size_t>(frame - 1)] : QvxElementRef::None, fShared};
}

QvxElementRef zelFrameGroups::Find(std::int32_t frame, QvxElementTag macro, QvxElementTag element,
                                   QvxElementRef* item) const
{
    for (const QvxElementRef group : GroupsOf(frame)) {
        const QvxElementRef first = Child(fParser, Child(fParser, group, macro), kTagItem);
        const QvxElementRef found = Child(fParser, first, element);
        if (found == QvxElementRef::None)
            continue;
        if (item)
            *item = first;
        return found;
    }
    return QvxElementRef::None;
}

QvxElementRef zelFrameGroups::Macro(std::int32_t frame, QvxElementTag macro) const
{
    for (const QvxElementRef group : GroupsOf(frame))
        if (const QvxElementRef found = Child(fParser, group, macro); found != QvxElementRef::None)
            return found;
    return QvxElementRef::None;
}

QvxStatus Parser_GetPixelDimensions(const zelFrameGroups& groups, std::int32_t frame, float* first,
                                    float* second)
{
    return PlaneDimensions(groups.Parser(), PlaneOf(groups, frame).fSpacing, first, second);
}

bool Parser_FileHasScaleInfo(const zelFrameGroups& groups, std::int32_t frame)
{
    float first = 0, second = 0;
    return !Parser_GetPixelDimensions(groups, frame, &first, &second) && first > 0 && second > 0;
}

QvxStatus Qvx2_ParserGetPixelAspectRatioFactors(const zelFrameGroups& groups, std::int32_t frame,
                                                std::int32_t* first, std::int32_t* second)
{
    return PlaneAspectFactors(groups.Parser(), PlaneOf(groups, frame).fSpacing, first, second);
}

QvxStatus Parser_GetImagePosition(const zelFrameGroups& groups, std::int32_t frame, double* x,
                                  double* y, double* z)
{
    return PlanePosition(groups.Parser(), PlaneOf(groups, frame).fPosition, x, y, z);
}

QvxStatus Parser_GetFramePositionCosines(const zelFrameGroups& groups, std::int32_t frame,
                                         zelCosines* cosines)
{
    return PlaneCosines(groups.Parser(), PlaneOf(groups, frame).fOrientation, cosines);
}

void Parser_GetFramePositionStrings(const zelFrameGroups& groups, std::int32_t frame,
                                    std::string* top, std::string* left, std::string* bottom,
                                    std::string* right)
{
    const QvxElementRef orientation = groups.Find(frame, kTagPlaneOrientation, kTagOrientation);
    zelCosines cosines;
    if (orientation == QvxElementRef::None ||
        PlaneCosines(groups.Parser(), orientation, &cosines)) {
        Parser_GetFramePositionStrings(groups.Parser(), top, left, bottom, right);
        return;
    }
    for (std::string* text : {top, left, bottom, right})
        text->clear();
    PlaneDirectionLetters(cosines.fRow, right, left);
    PlaneDirectionLetters(cosines.fColumn, bottom, top);
}

QvxStatus Parser_GetPositionOrientationSpacingAndSize(const zelFrameGroups& groups,
                                                      std::int32_t frame, std::int32_t columns,
                                                      std::int32_t rows, zelPlane* plane)
{
    return PlaneOfElements(groups.Parser(), PlaneOf(groups, frame), columns, rows, plane);
}

bool Parser_HasSpatialLocationFields(const zelFrameGroups& groups, std::int32_t frame)
{
    return PlaneIsInSpace(groups.Parser(), PlaneOf(groups, frame));
}

bool Parser_ImageTypeIsLocalizer(const zelFrameGroups& groups, std::int32_t frame)
{
    for (const QvxElementTag macro : kFrameTypeMacros) {
        const QvxElementRef type = groups.Find(frame, macro, kTagFrameType);
        if (type != QvxElementRef::None)
            return ElementHasValue(groups.Parser(), type, kLocalizerType);
    }
    return Parser_ImageTypeIsLocalizer(groups.Parser());
}

std::int32_t Parser_CountLocalizerRefs(const zelFrameGroups& groups, std::int32_t frame)
{
    const QvxElementRef sequence = groups.Macro(frame, kTagReferencedImages);
    if (sequence == QvxElementRef::None)
        return Parser_CountLocalizerRefs(groups.Parser());
    QvxElementRefArray items;
    if (Qvx2Reader_GetElementRefs(groups.Parser(), sequence, &items))
        return 0;
    return static_cast<std::int32_t>(QvxRefsOf(items).size());
}

std::int32_t Parser_GetNumberOfWindowingPresets(const zelFrameGroups& groups, std::int32_t frame)
{
    return WindowCount(groups.Parser(), WindowOf(groups, frame));
}

QvxStatus Parser_GetWindowingPreset(const zelFrameGroups& groups, std::int32_t frame,
                                    std::int32_t index, std::int32_t* width, std::int32_t* center,
                                    std::string* name)
{
    return WindowPreset(groups.Parser(), WindowOf(groups, frame), index, width, center, name);
}

std::int32_t Parser_GetNumberOfUniqueWindowingPresets(const zelFrameGroups& groups,
                                                      std::int32_t frame)
{
    return UniqueWindowCount(groups.Parser(), WindowOf(groups, frame));
}

QvxStatus Parser_GetUniqueWindowingPreset(const zelFrameGroups& groups, std::int32_t frame,
                                          std::int32_t index, std::int32_t* width,
                                          std::int32_t* center, std::string* name)
{
    return UniqueWindowPreset(groups.Parser(), WindowOf(groups, frame), index, width, center, name);
}

#include "pixels/PortDescription.h"

#include "pixels/ColorMatch.h"
#include "pixels/Guarded.h"
#include "pixels/PixelFormat.h"
#include "util/ByteOrder.h"
#include "util/CheckedMath.h"

namespace {

constexpr std::uint32_t kExtensionColorSpace = FourCC("cspc");

// What stands for "the table of this number" must be that table, not one changed behind its seed.
bool IsSystemTable(const ColorTable& table)
{
    const auto system = SystemColorTable(static_cast<int>(table.fSeed));
    return IsStandardSeed(table.fSeed) && system && SameColors(*system, table);
}

void DescribeIndexes(const ColorTable& table, const PixelLayout& layout,
                     ImageDescription* description)
{
    description->fDepth = layout.pixelSize;
    if (!IsSystemTable(table)) {
        description->fColorTableId = 0;
        description->fColorTable = table;
        return;
    }
    description->fColorTableId = static_cast<std::int16_t>(table.fSeed);
    // One bit stays 1: its gray number is in the table's id alone.
    if (layout.pixelSize > 1 && description->fColorTableId == layout.pixelSize + 32)
        description->fDepth = description->fColorTableId;
}

void AddColorSpace(std::uint32_t format, ImageDescription* description)
{
    ImageDescriptionExtension extension{kExtensionColorSpace, {0, 0, 0, 0}};
    StoreBE(extension.fData.data(), format);
    description->fExtensions.push_back(std::move(extension));
}

}  // namespace

std::int32_t COffscreenUtils::GetImageDepth(const ImageDescription& description)
{
    const std::int32_t depth = description.fDepth, gray = depth + 32;
    if (description.fColorTableId == gray && gray < 41)
        return gray;
    const bool ownTable = description.fColorTableId == 0 && description.fColorTable &&
                          !description.fColorTable->fEntries.empty();
    if ((depth == 2 || depth == 4 || depth == 8) && ownTable)
        return IsGrayTable(*description.fColorTable) ? gray : depth;
    return depth;
}

std::uint32_t ColorSpaceOf(const ImageDescription& description)
{
    const auto* extension = FindExtension(description, kExtensionColorSpace);
    if (!extension || extension->fData.size() < 4)
        return 0;
    return LoadBE<std::uint32_t>(extension->fData.data());
}

std::uint32_t GetPixelFormatFromImageDescription(const ImageDescription& description)
{
    const std::uint32_t colorSpace = ColorSpaceOf(description);
    if (colorSpace != 0)
        return colorSpace;
    return static_cast<std::uint32_t>(COffscreenUtils::GetImageDepth(description));
}

const ColorTable* OwnTableOf(const ImageDescription& description)
{
    const bool own = description.fColorTableId == 0 && description.fColorTable;
    return own ? &*description.fColorTable : nullptr;
}

QvxStatus MakeImageDescriptionForPixMap(const PixView& view, ImageDescription* description)
{
    const auto layout = LayoutOfPixMap(view.map);
    if (!layout || !view.map.baseAddr || EmptyRect(view.map.bounds) || !description)
        return kQvxBadArgument;
    return Guarded([&] {
        ImageDescription made;
        made.fCodecType = FourCC("raw ");
        made.fWidth = static_cast<std::int16_t>(WidthOf(view.map.bounds));
        made.fHeight = static_cast<std::int16_t>(HeightOf(view.map.bounds));
        made.fHorzResolution = view.horzResolution;
        made.fVertResolution = view.vertResolution;
        made.fDepth = layout->pixelSize;
        // Above 2^32 bytes the size is left out: it is a help to readers, not a rule.
        const auto size = CheckedMul<std::uint32_t>(static_cast<std::uint32_t>(view.map.rowBytes),
                                                    static_cast<std::uint32_t>(made.fHeight));
        made.fDataSize = size.value_or(0);
        if (layout->Indexed())
            DescribeIndexes(TableOf(view), *layout, &made);
        else if (view.map.pixelFormat > 40)
            AddColorSpace(view.map.pixelFormat, &made);
        *description = std::move(made);
        return kQvxOK;
    });
}

QvxStatus GetRecommendedPixelSize(const ImageDescription& description, std::int16_t* pixelSize)
{
    if (!pixelSize)
        return kQvxBadArgument;
    std::unique_ptr<Port> trial;
    const QvxStatus status = NewPort(GetPixelFormatFromImageDescription(description), 8, 8,
                                     OwnTableOf(description), &trial);
    if (status == kQvxOK)
        *pixelSize = trial->pixelSize;
    return status;
}

QvxStatus GetGraphicInputForPixMap(const PixView& view, GraphicInput* input)
{
    if (!input)
        return kQvxBadArgument;
    GraphicInput made;
    const QvxStatus status = MakeImageDescriptionForPixMap(view, &made.description);
    if (status != kQvxOK)
        return status;
    made.bytes = view.map.baseAddr;
    made.rowBytes = view.map.rowBytes;
    made.size = static_cast<std::size_t>(view.map.rowBytes) *
                static_cast<std::size_t>(made.description.fHeight);
    *input = std::move(made);
    return kQvxOK;
}

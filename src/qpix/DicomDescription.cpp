#include "qpix/DicomDescription.h"

#include "util/ByteOrder.h"

#include <bit>
#include <initializer_list>
#include <new>

namespace {

constexpr std::size_t kDefaultWindowBytes = 12;  // flag, level, width

QvxStatus ReplaceExtension(ImageDescription* description, std::uint32_t tag,
                           std::initializer_list<std::uint32_t> words)
{
    if (!description)
        return kQvxBadArgument;
    RemoveExtensions(description, tag);
    try {
        ImageDescriptionExtension extension{tag, std::vector<std::uint8_t>(words.size() * 4)};
        std::size_t at = 0;
        for (const std::uint32_t word : words) {
            StoreBE(extension.fData.data() + at, word);
            at += 4;
        }
        description->fExtensions.push_back(std::move(extension));
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    return kQvxOK;
}

}  // namespace

QvxStatus GetDicomDescriptionVOIParams(const ImageDescription& description, float* width,
                                       float* level)
{
    if (!width || !level)
        return kQvxBadArgument;
    const auto* extension = FindExtension(description, kExtensionDefaultWindow);
    if (!extension)
        return kQvxNoDefaultWindow;
    if (extension->fData.size() < kDefaultWindowBytes)
        return kQvxBadArgument;
    const std::uint8_t* data = extension->fData.data();
    if (LoadBE<std::uint32_t>(data) == 0)
        return kQvxNoDefaultWindow;
    *level = std::bit_cast<float>(LoadBE<std::uint32_t>(data + 4));
    *width = std::bit_cast<float>(LoadBE<std::uint32_t>(data + 8));
    return kQvxOK;
}

QvxStatus SetDicomDescriptionPixelFormat(ImageDescription* description, std::uint32_t format)
{
    return ReplaceExtension(description, kExtensionPixelFormat, {format});
}

QvxStatus SetDicomDescriptionDefaultWindow(ImageDescription* description, float width, float level)
{
    return ReplaceExtension(
        description, kExtensionDefaultWindow,
        {1, std::bit_cast<std::uint32_t>(level), std::bit_cast<std::uint32_t>(width)});
}

QvxStatus SetDicomDescriptionHints(ImageDescription* description, std::uint32_t hints)
{
    return ReplaceExtension(description, kExtensionHints, {hints});
}

QvxStatus SetDicomDescriptionVOIParams(ImageDescription* description, const DicomVOIPair& pair)
{
    return ReplaceExtension(description, kExtensionVOI, {pair.fWords[0], pair.fWords[1]});
}

QvxStatus SetDicomDescriptionVOIBoundClippingOption(ImageDescription* description,
                                                    QvxVOIBoundsClippingOption option)
{
    return ReplaceExtension(description, kExtensionVOIClipping,
                            {static_cast<std::uint32_t>(option)});
}

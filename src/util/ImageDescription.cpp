#include "util/ImageDescription.h"

#include <algorithm>

const ImageDescriptionExtension* FindExtension(const ImageDescription& description,
                                               std::uint32_t tag)
{
    for (const auto& extension : description.fExtensions) {
        if (extension.fTag == tag)
            return &extension;
    }
    return nullptr;
}

void RemoveExtensions(ImageDescription* description, std::uint32_t tag)
{
    std::erase_if(description->fExtensions,
                  [tag](const ImageDescriptionExtension& e) { return e.fTag == tag; });
}

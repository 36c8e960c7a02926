// What the images of a file of several images are.
#include "qpix/CImporter.h"
#include <algorithm>
#include <new>
#include <tuple>

namespace {

constexpr std::int32_t kTooManyToWalk = 5;  // pages

bool HoldsPages(std::uint32_t type) { return type == FourCC("TIFF") || type == FourCC("PDF "); }

}  // namespace

QvxStatus CImporter::LoadIndexedImageInfo()
{
    if (!fImageKinds.empty())
        return kQvxOK;
    std::int32_t count = 0;
    if (const QvxStatus status = CountImages(&count))
        return status;
    if (count < 1)
        return kQvxBadArgument;
    try {
        if (count >= kTooManyToWalk && HoldsPages(fInstance->BaseSubtype()))
            fImageKinds.assign(static_cast<std::size_t>(count), kImageKindPage);
        else if (count == 1)
            fImageKinds.assign(1, 0);
        else
            return ReadImageKinds(count);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus CImporter::ReadImageKinds(std::int32_t count)
{
    const std::int32_t before = fInstance->ImageIndex();
    std::vector<std::uint32_t> kinds;
    QvxStatus status = kQvxOK;
    for (std::int32_t image = 1; image <= count && !status; ++image) {
        status = fInstance->SetImageIndex(image);
        kinds.push_back(status ? 0 : fInstance->ImageKind());
    }
    std::ignore = fInstance->SetImageIndex(before);
    if (status)
        return status;
    fImageKinds = std::move(kinds);
    InjectFakeFlashPixIndexedImageInfo();
    return kQvxOK;
}

// A file of resolutions that doesn't say so: its first image is the picture, the rest are smaller.
void CImporter::InjectFakeFlashPixIndexedImageInfo()
{
    const bool said = std::ranges::any_of(
        fImageKinds, [](std::uint32_t kind) { return (kind & kImageKindResolution) != 0; });
    if (said || fInstance->BaseSubtype() != FourCC("FPix"))
        return;
    for (std::size_t i = 1; i < fImageKinds.size(); ++i)
        fImageKinds[i] |= kImageKindResolution;
}

std::uint32_t CImporter::GetIndexedImageType(std::int32_t index) const
{
    const auto at = static_cast<std::size_t>(index) - 1;
    return index >= 1 && at < fImageKinds.size() ? fImageKinds[at] : 0;
}

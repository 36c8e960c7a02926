#include "qpix/CImporter.h"

#include "pixels/PortDescription.h"

#include <new>

CImporter::CImporter(std::unique_ptr<GraphicsImporter> instance) : fInstance(std::move(instance)) {}

CImporter::~CImporter() = default;

QvxStatus CImporter::CountImages(std::int32_t* count)
{
    if (!fInstance)
        return kQvxNoImporter;
    return fInstance->GetImageCount(count);
}

QvxStatus CImporter::SetCurrentImage(std::int32_t index)
{
    if (!fInstance)
        return kQvxNoImporter;
    if (index == fInstance->ImageIndex())
        return kQvxOK;
    if (const QvxStatus status = fInstance->SetImageIndex(index))
        return status;
    DropCache();
    fInstance->SetMatrix({});
    Rect bounds;
    if (const QvxStatus status = fInstance->GetNaturalBounds(&bounds))
        return status;
    fInstance->SetSourceRect(bounds);
    return kQvxOK;
}

QvxStatus CImporter::GetCurrentImage(std::int32_t* index)
{
    if (!fInstance)
        return kQvxNoImporter;
    if (!index)
        return kQvxBadArgument;
    *index = fInstance->ImageIndex();
    return kQvxOK;
}

QvxStatus CImporter::LoadImageDesc()
{
    if (!fInstance)
        return kQvxNoImporter;
    ImageDescription made;
    if (const QvxStatus status = fInstance->GetImageDescription(&made))
        return status;
    fImageDesc = std::move(made);
    return kQvxOK;
}

QvxStatus CImporter::GetImageDesc(const ImageDescription** description)
{
    if (!fInstance)
        return kQvxNoImporter;
    if (!description)
        return kQvxBadArgument;
    if (!fImageDesc)
        if (const QvxStatus status = LoadImageDesc())
            return status;
    *description = &*fImageDesc;
    return kQvxOK;
}

QvxStatus CImporter::GetDepth(std::int32_t* depth)
{
    const ImageDescription* description = nullptr;
    if (const QvxStatus status = GetImageDesc(&description))
        return status;
    if (!depth)
        return kQvxBadArgument;
    *depth = COffscreenUtils::GetImageDepth(*description);
    return kQvxOK;
}

QvxStatus CImporter::GetColorSpace(std::uint32_t* format)
{
    const ImageDescription* description = nullptr;
    if (const QvxStatus status = GetImageDesc(&description))
        return status;
    if (!format)
        return kQvxBadArgument;
    *format = GetPixelFormatFromImageDescription(*description);
    return kQvxOK;
}

QvxStatus CImporter::GetSize(Point* size)
{
    Rect bounds;
    if (const QvxStatus status = GetNaturalBounds(&bounds))
        return status;
    if (!size)
        return kQvxBadArgument;
    *size = {static_cast<std::int16_t>(bounds.bottom - bounds.top),
             static_cast<std::int16_t>(bounds.right - bounds.left)};
    return kQvxOK;
}

QvxStatus CImporter::GetNaturalBounds(Rect* bounds)
{
    if (!fInstance)
        return kQvxNoImporter;
    return fInstance->GetNaturalBounds(bounds);
}

QvxStatus CImporter::GetMatrix(MatrixRecord* matrix) const
{
    if (!fInstance)
        return kQvxNoImporter;
    if (!matrix)
        return kQvxBadArgument;
    *matrix = fInstance->Matrix();
    return kQvxOK;
}

QvxStatus CImporter::SetMatrix(const MatrixRecord& matrix)
{
    if (!fInstance)
        return kQvxNoImporter;
    fInstance->SetMatrix(matrix);
    return kQvxOK;
}

QvxStatus CImporter::SetBounds(const Rect& bounds)
{
    Rect natural;
    if (const QvxStatus status = GetNaturalBounds(&natural))
        return status;
    if (EmptyRect(natural) || EmptyRect(bounds))
        return kQvxBadArgument;
    fInstance->SetMatrix(MatrixOfRects(natural, bounds));
    return kQvxOK;
}

QvxStatus CImporter::GetDataRef(FileRef* file) const
{
    if (!fInstance)
        return kQvxNoImporter;
    if (!file)
        return kQvxBadArgument;
    *file = fInstance->DataFile();
    return kQvxOK;
}

QvxStatus CImporter::GetDataIdentity(FileIdentity* identity) const
{
    if (!fInstance)
        return kQvxNoImporter;
    if (!identity)
        return kQvxBadArgument;
    *identity = fInstance->DataIdentity();
    return kQvxOK;
}

QvxStatus CImporter::GetDataOffsetAndSize(std::uint32_t* offset, std::uint32_t* size)
{
    if (!fInstance)
        return kQvxNoImporter;
    return fInstance->GetDataOffsetAndSize(offset, size);
}

QvxStatus CImporter::ReadData(void* dest, std::uint32_t offset, std::uint32_t size)
{
    if (!fInstance)
        return kQvxNoImporter;
    return fInstance->ReadData(dest, offset, size);
}

QvxStatus CImporter::GetCompressedData(std::vector<std::byte>* data)
{
    std::uint32_t offset = 0, size = 0;
    if (const QvxStatus status = GetDataOffsetAndSize(&offset, &size))
        return status;
    if (!data)
        return kQvxBadArgument;
    try {
        std::vector<std::byte> bytes(size);  // the map holds only runs that lie in the file
        if (const QvxStatus status = ReadData(bytes.data(), offset, size))
            return status;
        *data = std::move(bytes);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    return kQvxOK;
}

QvxStatus CImporter::GetMIMEType(std::string* type) const
{
    if (!fInstance)
        return kQvxNoImporter;
    if (!type)
        return kQvxBadArgument;
    *type = fInstance->MIMEType();
    return kQvxOK;
}

QvxStatus CImporter::GetImportComponentInfo(std::string* name, std::uint32_t* subtype) const
{
    if (!fInstance)
        return kQvxNoImporter;
    if (name)
        *name = fInstance->ComponentName();
    if (subtype)
        *subtype = fInstance->Subtype();
    return kQvxOK;
}

QvxStatus CImporter::Validate(bool* valid)
{
    if (!fInstance)
        return kQvxNoImporter;
    return fInstance->Validate(valid);
}

#include "qpix/zelImageSource.h"

#include "dicom_core/values/ParserOpen.h"

#include "qpix/DicomDescription.h"
#include <algorithm>
#include <atomic>

namespace {

std::int32_t NextSourceID()
{
    static std::atomic<std::int32_t> sImageSourceID{0};
    return ++sImageSourceID;
}

}  // namespace

zelImageSource::zelImageSource(std::int32_t id) : fID(id ? id : NextSourceID()) {}

zelImageSource::~zelImageSource() = default;

void zelImageSource::Reset()
{
    fFile = {};
    fImporter.reset();
    fParser.reset();
    fFrameTimeKind = kTimesUnknown;
    fSingleFrameTime = 0;
    fFrameTimes.clear();
    fFrameTimes.shrink_to_fit();
    fFrameTimeStatus = kQvxOK;
    fIsDICOM = fValid = false;
    fValidationPending = true;
    fFrameCount = -1;
    fMaxFrameSize = {};
    fVOILimits = {};
    fFileName.clear();
    fPathUTF8.reset();
    fNameUTF8.reset();
    fMediaInfo.reset();
    fFSInfo.reset();
}

void zelImageSource::RemoveReference(bool dispose)
{
    fDisposeWhenUnreferenced = fDisposeWhenUnreferenced || dispose;
    if (--fReferences > 0)
        return;
    fReferences = 0;
    if (fDisposeWhenUnreferenced)
        const std::unique_ptr<zelImageSource> end(this);
}

QvxStatus zelImageSource::ImportFromFSSpec(const FileRef& file, FileImportMode mode)
{
    const FileRef wanted = file;  // it may be our own, which goes with the rest
    Reset();
    if (wanted.Empty())
        return kQvxBadArgument;
    if (mode != kImportDeferCheck && mode != kImportDeferNoCheck) {
        // Without importers of plain images kImportAny has nothing to try behind the reader.
        if (const QvxStatus status =
                U_NewDicomParserForFileSpec(wanted, &fParser, mode != kImportDicomNoCheck))
            return status;
    }
    fIsDICOM = true;
    fValidationPending = mode == kImportDeferCheck;
    fFile = wanted;
    fValid = true;
    return kQvxOK;
}

QvxStatus zelImageSource::OpenParser()
{
    QvxReaderPtr parser;
    if (const QvxStatus status = U_NewDicomParserForFileSpec(fFile, &parser, fValidationPending))
        return status;
    // A file that nobody checks must at least read as a header, or anything would be one.
    const QvxReaderUse use(parser.get());
    if (const QvxStatus status = Parser_WalkHeader(parser.get()))
        return status;
    fParser = std::move(parser);
    fValidationPending = false;
    return kQvxOK;
}

QvxStatus zelImageSource::LoadDicomParser()
{
    if (!fValid || !fIsDICOM)
        return kQvxBadArgument;
    if (fParser)
        return kQvxOK;
    const QvxStatus status = OpenParser();
    if (status)
        fValid = false;
    return status;
}

ParserHandle zelImageSource::GetDicomParser()
{
    return LoadDicomParser() ? nullptr : fParser.get();
}

QvxStatus zelImageSource::OpenImporter()
{
    const auto choice = fIsDICOM ? ImporterChoice::Dicom : ImporterChoice::ByFile;
    CImporterPlus* made = nullptr;
    if (const QvxStatus status = CImporterPlusFactory::NewImporterForFileEx(fFile, &made, choice))
        return status;
    CImporterPlusPtr importer(made);
    if (fValidationPending) {
        bool valid = false;
        const QvxStatus asked = importer->Validate(&valid);
        if (const QvxStatus status = StatusOfValidation(asked, valid))
            return status;
        fValidationPending = false;
    }
    fImporter = std::move(importer);
    return kQvxOK;
}

QvxStatus zelImageSource::LoadImporter()
{
    if (!fValid)
        return kQvxBadArgument;
    if (fImporter)
        return kQvxOK;
    const QvxStatus status = OpenImporter();
    if (status)
        fValid = false;
    return status;
}

CImporterPlus* zelImageSource::GetImporter() { return LoadImporter() ? nullptr : fImporter.get(); }

QvxStatus zelImageSource::GetFrameCount(std::int32_t* count)
{
    if (!count)
        return kQvxBadArgument;
    *count = std::max(fFrameCount, 0);
    if (fFrameCount >= 0)
        return kQvxOK;
    if (const ParserHandle parser = fIsDICOM ? GetDicomParser() : nullptr) {
        const QvxReaderUse use(parser);
        if (const QvxStatus status = Parser_WalkHeader(parser))
            return status;
        std::uint32_t claimed = 0;
        if (const QvxStatus status = Qvx2Reader_GetNumberOfFrames(parser, kFramesClaimed, &claimed))
            return status;
        if (claimed > INT32_MAX)
            return kQvxMalformed;
        fFrameCount = static_cast<std::int32_t>(claimed);
    } else {
        if (const QvxStatus status = LoadImporter())
            return status;
        std::int32_t images = 0;
        if (const QvxStatus status = fImporter->CountImages(&images))
            return status;
        if (images < 0)
            return kQvxMalformed;
        fFrameCount = images;
    }
    *count = fFrameCount;
    return kQvxOK;
}

QvxStatus zelImageSource::GetMaxFrameSize(Point* size)
{
    if (!size)
        return kQvxBadArgument;
    if (fMaxFrameSize.v <= 0 || fMaxFrameSize.h <= 0) {
        Point greatest;
        if (const QvxStatus status = WalkFrameSizes(&greatest))
            return status;
        fMaxFrameSize = greatest;
    }
    *size = fMaxFrameSize;
    return kQvxOK;
}

QvxStatus zelImageSource::WalkFrameSizes(Point* size)
{
    if (const QvxStatus status = LoadImporter())
        return status;
    std::int32_t before = 0, last = 1;
    if (const QvxStatus status = fImporter->GetCurrentImage(&before))
        return status;
    if (!fIsDICOM)
        if (const QvxStatus status = GetFrameCount(&last))
            return status;
    QvxStatus result = kQvxOK;
    for (std::int32_t image = 1; image <= last && !result; ++image) {
        Rect bounds;
        result = fImporter->SetCurrentImage(image);
        if (!result)
            result = fImporter->GetNaturalBounds(&bounds);
        if (result || EmptyRect(bounds))
            continue;
        size->v = std::max(size->v, bounds.bottom);
        size->h = std::max(size->h, bounds.right);
    }
    const QvxStatus restored = fImporter->SetCurrentImage(before);
    return result ? result : restored;
}

QvxStatus zelImageSource::GetFrameSize(std::int32_t frame, Point* size)
{
    if (fIsDICOM)
        return GetMaxFrameSize(size);
    if (!size)
        return kQvxBadArgument;
    if (const QvxStatus status = LoadImporter())
        return status;
    std::int32_t before = 0;
    if (const QvxStatus status = fImporter->GetCurrentImage(&before))
        return status;
    QvxStatus status = fImporter->SetCurrentImage(frame);
    if (!status)
        status = fImporter->GetSize(size);
    const QvxStatus restored = fImporter->SetCurrentImage(before);
    return status ? status : restored;
}

ColorType zelImageSource::GetColorType()
{
    ImageInfo info;
    if (LoadImporter() || fImporter->GetImageInfo(&info))
        return ColorType::Unknown;
    return info.colorType;
}

bool zelImageSource::IsDICOMGray() { return fIsDICOM && GetColorType() == ColorType::Gray; }

bool zelImageSource::GetTheDefaultVOIValuesFromImporter(float* width, float* level)
{
    if (!fValid || !fIsDICOM || !width || !level)
        return false;
    *width = *level = 0;
    const ImageDescription* description = nullptr;
    return !LoadImporter() && !fImporter->GetImageDesc(&description) &&
           !GetDicomDescriptionVOIParams(*description, width, level);
}

QvxStatus zelImageSource::SetVOILimits(std::uint32_t minWidth, std::int32_t minLevel,
                                       std::uint32_t maxWidth, std::int32_t maxLevel)
{
    if (maxLevel < minLevel || maxWidth < minWidth)
        return kQvxBadArgument;
    fVOILimits = {minWidth, maxWidth, minLevel, maxLevel};
    return kQvxOK;
}

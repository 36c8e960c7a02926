#include "qpix/zelImageSource.h"

#include "dicom_core/values/ParserOpen.h"

#include "qpix/DicomDescription.h"
#include <algorithm>
#include <atomic>

static_assert(sizeof(void*) != 8 || sizeof(zelImageSource) <= 160);

std::int32_t zelImageSource::NextID()
{
    static std::atomic<std::int32_t> fsImageSourceID{0};
    return ++fsImageSourceID;
}

zelImageSource::zelImageSource(std::int32_t id) : fID(id ? id : NextID()) {}

zelImageSource::~zelImageSource() = default;

zelImageSource::Extras& zelImageSource::More()
{
    if (!fMore)
        fMore = std::make_unique<Extras>();
    return *fMore;
}

void zelImageSource::Reset()
{
    fIsDICOM = fValid = false;
    fValidationPending = true;
    fHeaderRead = fFromURL = false;
    fMaxFrameSize = {};
    fFrameCount = -1;
    fFrameTimeKind = kTimesUnknown;
    fFile = {};
    fIdentity = {};
    fParser.reset();
    fMore.reset();
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
    fIsDICOM = true;
    fValidationPending = mode == kImportDeferCheck;
    if (mode != kImportDeferCheck && mode != kImportDeferNoCheck) {
        if (const QvxStatus status = ImportNow(wanted, mode)) {
            Reset();
            return status;
        }
    }
    fFile = wanted;
    fValid = true;
    return kQvxOK;
}

QvxStatus zelImageSource::ImportNow(const FileRef& file, FileImportMode mode)
{
    const QvxStatus status =
        U_NewDicomParserForFileSpec(file, &fParser, mode != kImportDicomNoCheck);
    if (status)
        return mode == kImportAny ? TakeImporter(file) : status;
    fIdentity = Qvx2Reader_FileIdentity(fParser.get());
    fHeaderRead = true;
    return kQvxOK;
}

QvxStatus zelImageSource::TakeImporter(const FileRef& file)
{
    CImporterPlus* made = nullptr;
    if (const QvxStatus status =
            CImporterPlusFactory::NewImporterForFileEx(file, &made, ImporterChoice::ByFile))
        return status;
    CImporterPlusPtr importer(made);
    if (const QvxStatus status = importer->GetDataIdentity(&fIdentity))
        return status;
    fIsDICOM = importer->GetImporterBaseType() == kImporterDicom;
    More().fImporter = std::move(importer);
    return kQvxOK;
}

void zelImageSource::ImportFromHeader(const FileRef& file, const FileIdentity& identity,
                                      std::int32_t frameCount)
{
    FileRef wanted = file;
    Reset();
    fFile = std::move(wanted);
    fIdentity = identity;
    fFrameCount = frameCount;
    fValidationPending = false;
    fHeaderRead = fIsDICOM = fValid = true;
}

void zelImageSource::ImportFromSource(const zelImageSource& other)
{
    if (&other == this)
        return;
    Reset();
    fIsDICOM = other.fIsDICOM;
    fValid = other.fValid;
    fValidationPending = other.fValidationPending;
    fHeaderRead = other.fHeaderRead;
    fFromURL = other.fFromURL;
    fMaxFrameSize = other.fMaxFrameSize;
    fFrameCount = other.fFrameCount;
    fFile = other.fFile;
    fIdentity = other.fIdentity;
    if (fFromURL)
        More().fURL = other.fMore->fURL;
}

QvxStatus zelImageSource::OpenParser(std::optional<QvxReaderUse>* use)
{
    QvxReaderPtr parser;
    if (const QvxStatus status =
            U_NewDicomParserInUse(fFile, &parser, use, fValidationPending, &fIdentity))
        return status;
    // A file that nobody checks must at least read as a header, or anything would be one.
    if (const QvxStatus status = Parser_WalkHeader(parser.get())) {
        use->reset();
        return status;
    }
    fIdentity = Qvx2Reader_FileIdentity(parser.get());
    fParser = std::move(parser);
    fValidationPending = false;
    fHeaderRead = true;
    return kQvxOK;
}

QvxStatus zelImageSource::LoadDicomParser(std::optional<QvxReaderUse>* use)
{
    if (!fValid || !fIsDICOM)
        return kQvxBadArgument;
    if (fParser) {
        use->emplace(fParser.get());
        return kQvxOK;
    }
    const QvxStatus status = OpenParser(use);
    if (status)
        fValid = false;
    return status;
}

QvxStatus zelImageSource::LoadDicomParser()
{
    std::optional<QvxReaderUse> use;
    return LoadDicomParser(&use);
}

ParserHandle zelImageSource::GetDicomParser()
{
    return LoadDicomParser() ? nullptr : fParser.get();
}

void zelImageSource::ReleaseParser() { fParser.reset(); }

zelParserVisit::zelParserVisit(zelImageSource* source)
{
    const bool wasOpen = source && source->HasOpenParser();
    if (!source || source->LoadDicomParser(&fUse))
        return;
    fParser = source->fParser.get();
    if (!wasOpen)
        fSource = source;
}

zelParserVisit::~zelParserVisit()
{
    fUse.reset();
    if (fSource)
        fSource->ReleaseParser();
}

QvxStatus zelImageSource::OpenImporter()
{
    const auto choice = fIsDICOM ? ImporterChoice::Dicom : ImporterChoice::ByFile;
    CImporterPlus* made = nullptr;
    if (const QvxStatus status = CImporterPlusFactory::NewImporterForFileEx(fFile, &made, choice))
        return status;
    CImporterPlusPtr importer(made);
    FileIdentity opened;
    if (const QvxStatus status = importer->GetDataIdentity(&opened))
        return status;
    if (fIdentity.Known() && opened.Known() && fIdentity != opened)
        return kQvxSeekFailed;
    if (fValidationPending) {
        bool valid = false;
        const QvxStatus asked = importer->Validate(&valid);
        if (const QvxStatus status = StatusOfValidation(asked, valid))
            return status;
        fValidationPending = false;
    }
    if (!fIdentity.Known())
        fIdentity = opened;
    More().fImporter = std::move(importer);
    return kQvxOK;
}

QvxStatus zelImageSource::LoadImporter()
{
    if (!fValid)
        return kQvxBadArgument;
    if (Importer())
        return kQvxOK;
    const QvxStatus status = OpenImporter();
    if (status)
        fValid = false;
    return status;
}

CImporterPlus* zelImageSource::GetImporter() { return LoadImporter() ? nullptr : Importer(); }

QvxStatus zelImageSource::GetFrameCount(std::int32_t* count)
{
    if (!count)
        return kQvxBadArgument;
    *count = std::max(fFrameCount, 0);
    if (fFrameCount >= 0)
        return kQvxOK;
    const zelParserVisit visit(fIsDICOM ? this : nullptr);
    if (const QvxStatus status = visit.Parser() ? CountClaimedFrames() : CountImages())
        return status;
    *count = fFrameCount;
    return kQvxOK;
}

QvxStatus zelImageSource::CountClaimedFrames()
{
    if (const QvxStatus status = Parser_WalkHeader(fParser.get()))
        return status;
    std::uint32_t claimed = 0;
    if (const QvxStatus status =
            Qvx2Reader_GetNumberOfFrames(fParser.get(), kFramesClaimed, &claimed))
        return status;
    if (claimed > INT32_MAX)
        return kQvxMalformed;
    fFrameCount = static_cast<std::int32_t>(claimed);
    return kQvxOK;
}

QvxStatus zelImageSource::CountImages()
{
    if (const QvxStatus status = LoadImporter())
        return status;
    std::int32_t images = 0;
    if (const QvxStatus status = Importer()->CountImages(&images))
        return status;
    if (images < 0)
        return kQvxMalformed;
    fFrameCount = images;
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
    if (const QvxStatus status = Importer()->GetCurrentImage(&before))
        return status;
    if (!fIsDICOM)
        if (const QvxStatus status = GetFrameCount(&last))
            return status;
    QvxStatus result = kQvxOK;
    for (std::int32_t image = 1; image <= last && !result; ++image) {
        Rect bounds;
        result = Importer()->SetCurrentImage(image);
        if (!result)
            result = Importer()->GetNaturalBounds(&bounds);
        if (result || EmptyRect(bounds))
            continue;
        size->v = std::max(size->v, bounds.bottom);
        size->h = std::max(size->h, bounds.right);
    }
    const QvxStatus restored = Importer()->SetCurrentImage(before);
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
    if (const QvxStatus status = Importer()->GetCurrentImage(&before))
        return status;
    QvxStatus status = Importer()->SetCurrentImage(frame);
    if (!status)
        status = Importer()->GetSize(size);
    const QvxStatus restored = Importer()->SetCurrentImage(before);
    return status ? status : restored;
}

ColorType zelImageSource::GetColorType()
{
    ImageInfo info;
    if (LoadImporter() || Importer()->GetImageInfo(&info))
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
    return !LoadImporter() && !Importer()->GetImageDesc(&description) &&
           !GetDicomDescriptionVOIParams(*description, width, level);
}

QvxStatus zelImageSource::SetVOILimits(std::uint32_t minWidth, std::int32_t minLevel,
                                       std::uint32_t maxWidth, std::int32_t maxLevel)
{
    if (maxLevel < minLevel || maxWidth < minWidth)
        return kQvxBadArgument;
    More().fVOILimits = {minWidth, maxWidth, minLevel, maxLevel};
    return kQvxOK;
}

zelSourceVOILimits zelImageSource::GetVOILimits() const
{
    return fMore ? fMore->fVOILimits : zelSourceVOILimits{};
}

#include "dicom_core/imaging/FramePicture.h"

#include "dicom_core/imaging/PictureRows.h"
#include "dicom_core/look/CVOIBlitter.h"
#include "dicom_core/look/WindowSetup.h"
#include "dicom_core/values/ParserOpen.h"

#include "qpix/DicomCodec.h"
#include "qpix/OffscreenForFrame.h"
#include "qpix/zelImageSource.h"
#include <new>
#include <sys/stat.h>

struct FramePicture::Body {
    zelImageSource source;
    CImporterPlus* importer = nullptr;  // the source's
    DicomCodec codec;
    int frames = 1;
    Point size;
    bool gray = false;

    std::unique_ptr<zel_Offscreen> offscreen;  // of the current frame, not windowed
    std::uint32_t properties = 0;
    int current = 0;  // 0: none
    zel_TransformRec record;
    CVOIBlitter blitter;

    QvxStatus Open(const std::string& path);
    QvxStatus Decode(int frame);
    QvxStatus SetUpWindow();
    QvxStatus RenderGray(PixMap* argb);
};

namespace {

// Why there is no picture of the file at `path`, in words that name a place in it where known.
std::string ReasonFor(const std::string& path, QvxStatus status)
{
    struct stat known{};
    if (status == kQvxNotOfKind && stat(path.c_str(), &known) == 0) {
        if (S_ISDIR(known.st_mode))
            return "a folder, not a file";
        if (!S_ISREG(known.st_mode))
            return "not a regular file";
        if (known.st_size == 0)
            return "the file is empty";
    }
    QvxReaderPtr reader;
    if (status > 0 || status == kQvxNotOfKind || status == kQvxFileNotFound ||
        U_NewDicomParserForFile(path, &reader, false))
        return std::string(StatusText(status));
    const QvxReaderUse use(reader.get());
    const bool walked = !Parser_WalkHeader(reader.get());
    const std::string place = Qvx2Reader_FaultText(reader.get());
    if (walked && status == kQvxNoSuchElement && place.empty())
        return "no image in it";
    std::string why;
    QvxFrameRecord record;
    if (walked && QvxMakeFrameRecord(reader.get(), &record, &why) && !why.empty())
        return place.empty() ? why : "damaged " + place + ": " + why;
    return std::string(StatusText(status)) + (place.empty() ? place : " " + place);
}

}  // namespace

QvxStatus FramePicture::Body::Open(const std::string& path)
{
    CImporterPlusFactory::InitFactory();
    if (const QvxStatus status = source.ImportFromFSSpec({path}, kImportDicom))
        return status;
    if (const QvxStatus status = source.LoadImporter())
        return status;
    importer = source.GetImporter();
    std::int32_t count = 0;
    if (const QvxStatus status = importer->CountImages(&count))
        return status;
    frames = count;
    ImageInfo info;
    gray = !importer->GetImageInfo(&info) && info.colorType == ColorType::Gray;
    return importer->GetSize(&size);
}

// All frames of a file have one size and format, so that one offscreen serves them all.
QvxStatus FramePicture::Body::Decode(int frame)
{
    if (const QvxStatus status = importer->SetCurrentImage(frame))
        return status;
    if (!offscreen)
        if (const QvxStatus status =
                U_NewOffscreenForFrame(*importer, frame, &offscreen, nullptr, &properties))
            return status;
    current = 0;
    if (const QvxStatus status =
            importer->DecompressOnOffscreen(*offscreen, nullptr, kQualityFrame, 0, &codec))
        return status;
    current = frame;
    return kQvxOK;
}

QvxStatus FramePicture::Body::SetUpWindow()
{
    if ((properties & kFrameIsDicom) == 0 || (properties & kFrameIsGray) == 0)
        return kQvxOK;
    QvxPixelInfo info;
    QvxVOILimits limits;
    zelWindowFacts facts;
    if (const QvxStatus status = codec.GetPixelInfo(&info))
        return status;
    if (const QvxStatus status = codec.GetDisplayVOILimits(&limits))
        return status;
    if (const QvxStatus status = codec.GetPixelRange(&facts.pixelMinimum, &facts.pixelMaximum))
        return status;
    facts.codecLimits = {limits.fMinWidth, limits.fMinLevel, limits.fMaxWidth, limits.fMaxLevel};
    facts.hasDefault =
        source.GetTheDefaultVOIValuesFromImporter(&facts.defaultWidth, &facts.defaultLevel);
    zelVOIBlitterInfo voi;
    voi.photometric = info.fPhotometric;
    voi.pixelExtra = info.fPixelExtra;
    voi.pixelRange = info.fPixelRange;
    voi.pixelShift = info.fPixelShift;
    voi.pixelFormat =
        (properties & kFrameIsSixteenBit) != 0 ? kPixelFormatGray16 : kPixelFormatGray8;
    voi.pixelFactor = info.fFactor;
    voi.pixelOffset = info.fOffset;
    record.voiInfo = voi;
    zelWindowSetup setup;
    return SetupWindow(facts, &record, &setup);
}

QvxStatus FramePicture::Body::RenderGray(PixMap* argb)
{
    PixMap source_map = offscreen->GetGWorldPtr()->Map();
    if (source_map.pixelFormat == kPixelFormatGray16)
        return blitter.CopyPixelsTo8Bits(record, &source_map, argb, source_map.bounds,
                                         argb->bounds);
    const ColorTable* table = nullptr;
    if (const QvxStatus status = blitter.GetCTableForVOI(record, &table))
        return status;
    PictureRows_Colors(source_map, *table, *argb);
    return kQvxOK;
}

FramePicture::FramePicture() : fBody(std::make_unique<Body>()) {}

FramePicture::~FramePicture() = default;

QvxStatus FramePicture::Open(const std::string& path, std::unique_ptr<FramePicture>* picture,
                             std::string* why)
{
    QvxStatus status = kQvxBadArgument;
    try {
        if (picture) {
            std::unique_ptr<FramePicture> made(new FramePicture);
            status = made->fBody->Open(path);
            if (!status)
                *picture = std::move(made);
        }
        if (status && why)
            *why = ReasonFor(path, status);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
    return status;
}

const std::string& FramePicture::Path() const { return fBody->source.GetDataPath(); }

int FramePicture::FrameCount() const { return fBody->frames; }

int FramePicture::Width() const { return fBody->size.h; }

int FramePicture::Height() const { return fBody->size.v; }

bool FramePicture::IsGray() const { return fBody->gray; }

zel_TransformRec& FramePicture::Transform() { return fBody->record; }

QvxStatus FramePicture::LoadFrame(int frame)
{
    Body& body = *fBody;
    if (frame < 1 || frame > body.frames)
        return kQvxBadArgument;
    if (frame == body.current)
        return kQvxOK;
    QvxStatus status = body.Decode(frame);
    if (!status)
        status = body.SetUpWindow();
    if (status)
        body.current = 0;
    return status;
}

QvxStatus FramePicture::Render(const PixMap& argb)
{
    Body& body = *fBody;
    const Rect whole{0, 0, body.size.v, body.size.h};
    if (body.current == 0 || !argb.baseAddr || argb.pixelFormat != kPixelFormatARGB32 ||
        argb.bounds != whole || argb.rowBytes < 4 * Width())
        return kQvxBadArgument;
    PixMap target = argb;
    if (body.properties & kFrameIsGray) {
        if (const QvxStatus status = body.RenderGray(&target))
            return status;
    } else {
        PictureRows_Copy(body.offscreen->GetGWorldPtr()->Map(), target);
    }
    if (body.record.invert)
        PictureRows_Invert(target);
    return kQvxOK;
}

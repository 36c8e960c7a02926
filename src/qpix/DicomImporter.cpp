#include "qpix/DicomImporter.h"

#include "dicom_core/values/ParserOpen.h"
#include "dicom_core/values/ParserValues.h"
#include "pixels/OffscreenFactory.h"
#include "util/Log.h"

#include "QvxToolkit/QvxCodec.h"
#include "qpix/DicomCodec.h"
#include "qpix/DicomDescription.h"
#include <algorithm>
#include <array>
#include <memory>
#include <string_view>

namespace {

constexpr QvxElementTag kTagRows{0x0028, 0x0010};
constexpr QvxElementTag kTagColumns{0x0028, 0x0011};
constexpr std::uint32_t kMaxSide = 65535;

constexpr std::uint32_t kStoredNative = FourCC("NATV"), kStoredOther = FourCC("OTHR");
struct StoredForm {
    std::string_view fUID;  // transfer syntax
    std::uint32_t fCode;
};
constexpr auto kStoredForms = std::to_array<StoredForm>({
    {"1.2.840.10008.1.2.5", FourCC("RLE ")},      {"1.2.840.10008.1.2.4.50", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.51", kStoredLossyJPEG}, {"1.2.840.10008.1.2.4.52", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.53", kStoredLossyJPEG}, {"1.2.840.10008.1.2.4.54", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.55", kStoredLossyJPEG}, {"1.2.840.10008.1.2.4.56", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.57", FourCC("JLSL")},   {"1.2.840.10008.1.2.4.58", FourCC("JLSL")},
    {"1.2.840.10008.1.2.4.59", kStoredLossyJPEG}, {"1.2.840.10008.1.2.4.60", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.61", kStoredLossyJPEG}, {"1.2.840.10008.1.2.4.62", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.63", kStoredLossyJPEG}, {"1.2.840.10008.1.2.4.64", kStoredLossyJPEG},
    {"1.2.840.10008.1.2.4.65", FourCC("JLSL")},   {"1.2.840.10008.1.2.4.66", FourCC("JLSL")},
    {"1.2.840.10008.1.2.4.70", FourCC("JLSL")},   {"1.2.840.10008.1.2.4.80", FourCC("JPLS")},
    {"1.2.840.10008.1.2.4.81", FourCC("JPLN")},   {"1.2.840.10008.1.2.4.90", FourCC("J2KL")},
    {"1.2.840.10008.1.2.4.91", FourCC("J2KY")},
});

std::int16_t PinnedSide(std::uint32_t side)
{
    return static_cast<std::int16_t>(std::min<std::uint32_t>(side, INT16_MAX));
}

QvxStatus GetSide(QvxParserRec* reader, QvxElementTag tag, std::uint32_t* side)
{
    std::int32_t value = 0;
    if (const QvxStatus status = Parser_GetElementValueAsLong(reader, QvxElementRef::None,
                                                              tag.group, tag.element, 1, &value))
        return status;
    if (value < 1 || static_cast<std::uint32_t>(value) > kMaxSide)
        return kQvxNoSuchElement;
    *side = static_cast<std::uint32_t>(value);
    return kQvxOK;
}

}  // namespace

QvxStatus DicomImporter::SetDataFile(const FileRef& file)
{
    QvxReaderPtr reader;
    if (const QvxStatus status = U_NewDicomParserForFileSpec(file, &reader, false))
        return status;
    fReader = std::move(reader);
    fHeaderStatus.reset();
    fOverlayImage = 0;
    BindFile(file);
    return kQvxOK;
}

FileIdentity DicomImporter::DataIdentity() const { return Qvx2Reader_FileIdentity(fReader.get()); }

QvxStatus DicomImporter::Load()
{
    if (!fReader)
        return kQvxBadArgument;
    if (!fHeaderStatus)
        fHeaderStatus = ReadHeader();
    return *fHeaderStatus;
}

QvxStatus DicomImporter::ReadHeader()
{
    fRecord = {};
    const QvxReaderUse use(fReader.get());
    if (const QvxStatus status = Parser_WalkHeader(fReader.get()))
        return status;
    fRecordReason.clear();
    fRecordStatus = QvxMakeFrameRecord(fReader.get(), &fRecord, &fRecordReason);
    return fRecordStatus == kQvxNoMemory ? fRecordStatus : ReadSize();
}

QvxStatus DicomImporter::ReadSize()
{
    if (fRecordStatus == kQvxOK) {
        fWidth = fRecord.fColumns;
        fHeight = fRecord.fRows;
        return kQvxOK;
    }
    const bool sized = GetSide(fReader.get(), kTagRows, &fHeight) == kQvxOK &&
                       GetSide(fReader.get(), kTagColumns, &fWidth) == kQvxOK;
    return sized ? kQvxOK : kQvxNoSuchElement;
}

QvxStatus DicomImporter::Validate(bool* valid)
{
    if (!fReader || !valid)
        return kQvxBadArgument;
    const QvxReaderUse use(fReader.get());
    return Qvx2Reader_ValidateDataRef(fReader.get(), valid);
}

QvxStatus DicomImporter::GetImageCount(std::int32_t* count)
{
    if (!count)
        return kQvxBadArgument;
    if (const QvxStatus status = Load())
        return status;
    const std::uint32_t frames = fRecordStatus == kQvxOK ? fRecord.fFrames : 0;
    *count = static_cast<std::int32_t>(std::clamp<std::uint32_t>(frames, 1, INT32_MAX));
    return kQvxOK;
}

Rect DicomImporter::NaturalBounds() const
{
    return {0, 0, PinnedSide(fHeight), PinnedSide(fWidth)};
}

QvxStatus DicomImporter::GetNaturalBounds(Rect* bounds)
{
    if (!bounds)
        return kQvxBadArgument;
    if (const QvxStatus status = Load())
        return status;
    *bounds = NaturalBounds();
    return kQvxOK;
}

QvxStatus DicomImporter::GetImageDescription(ImageDescription* description)
{
    if (!description)
        return kQvxBadArgument;
    if (const QvxStatus status = Load())
        return status;
    if (fRecordStatus)
        return fRecordStatus;
    ImageDescription made;
    made.fCodecType = kCodecTypeDicom;
    made.fWidth = PinnedSide(fWidth);
    made.fHeight = PinnedSide(fHeight);
    made.fDataSize =
        static_cast<std::uint32_t>(std::min<std::uint64_t>(fRecord.fFrameBytes, UINT32_MAX));
    const std::uint32_t format = QvxCodecPixelFormat(fRecord);
    if (format == kPixelFormatGray8) {
        made.fDepth = 8;
        made.fColorTableId = static_cast<std::int16_t>(kPixelFormatGray8);
    } else if (format == kPixelFormatGray16) {
        made.fDepth = 16;
        if (const QvxStatus status = SetDicomDescriptionPixelFormat(&made, format))
            return status;
    } else {
        made.fDepth = static_cast<std::int16_t>(format);
    }
    QvxDefaultWindow window;
    if (const QvxStatus status = GetDefaultWindow(&window))
        return status;
    if (window.fFound)
        if (const QvxStatus status =
                SetDicomDescriptionDefaultWindow(&made, window.fWidth, window.fLevel))
            return status;
    *description = std::move(made);
    return kQvxOK;
}

QvxStatus DicomImporter::GetDataOffsetAndSize(std::uint32_t* offset, std::uint32_t* size)
{
    if (!offset || !size)
        return kQvxBadArgument;
    if (const QvxStatus status = Load())
        return status;
    const QvxReaderUse use(fReader.get());
    QvxFrameMapRecord row;
    if (const QvxStatus status = Qvx2Reader_GetFrameMapRecord(
            fReader.get(), static_cast<std::uint32_t>(ImageIndex()), &row))
        return status;
    *offset = row.fOffset;
    *size = row.fSize;
    return kQvxOK;
}

QvxStatus DicomImporter::ReadData(void* dest, std::uint32_t offset, std::uint32_t size)
{
    if (!fReader)
        return kQvxBadArgument;
    const QvxReaderUse use(fReader.get());
    return Qvx2Reader_ReadData(fReader.get(), dest, offset, size);
}

QvxStatus DicomImporter::GetVOIChoices(std::vector<QvxVOIChoice>* choices)
{
    if (const QvxStatus status = Load())
        return status;
    if (fRecordStatus)
        return fRecordStatus;
    const QvxReaderUse use(fReader.get());
    const auto image = static_cast<std::uint32_t>(ImageIndex());
    QvxFrameRecord ofImage;
    if (const QvxStatus status = QvxRecordOfFrame(fReader.get(), fRecord, image, &ofImage))
        return status;
    return QvxCodecVOIChoices(fReader.get(), ofImage, image, choices);
}

QvxStatus DicomImporter::GetDefaultWindow(QvxDefaultWindow* window)
{
    if (!window)
        return kQvxBadArgument;
    if (const QvxStatus status = Load())
        return status;
    if (fRecordStatus)
        return fRecordStatus;
    const QvxReaderUse use(fReader.get());
    const auto image = static_cast<std::uint32_t>(ImageIndex());
    QvxFrameRecord ofImage;
    if (const QvxStatus status = QvxRecordOfFrame(fReader.get(), fRecord, image, &ofImage))
        return status;
    *window = QvxCodecDefaultWindow(fReader.get(), ofImage, image);
    return kQvxOK;
}

QvxStatus DicomImporter::GetImageDataInfo(std::uint32_t selector, std::uint32_t* code)
{
    if (!code)
        return kQvxBadArgument;
    if (selector != kImageDataStoredAs)
        return kQvxUnsupported;
    if (const QvxStatus status = Load())
        return status;
    if (fRecordStatus)
        return fRecordStatus;
    const auto row = std::ranges::find(kStoredForms, fRecord.fTransferSyntax, &StoredForm::fUID);
    *code = !fRecord.fEncapsulated      ? kStoredNative
            : row != kStoredForms.end() ? row->fCode
                                        : kStoredOther;
    return kQvxOK;
}

QvxStatus DicomImporter::Draw(COffscreen& target, DicomCodec* codec)
{
    if (!target.GetGWorldPtr())
        return kQvxBadArgument;
    const QvxReaderUse use(fReader.get());
    if (const QvxStatus status = Load())
        return status;
    if (fRecordStatus) {
        LogLine(DataFile().fPath + ": " + fRecordReason);
        return fRecordStatus;
    }
    if (!Matrix().KeepsRectangles())
        return kQvxUnsupported;
    DicomCodec own;
    DicomCodec& decoder = codec ? *codec : own;
    const Rect source = EmptyRect(SourceRect()) ? NaturalBounds() : SourceRect();
    if (!FillsWhole(target, source))
        return DrawThroughCopy(target, source, decoder);
    return DecodeInto(target.GetGWorldPtr()->Map(), decoder);
}

QvxStatus DicomImporter::DecodeInto(const PixMap& map, DicomCodec& codec)
{
    std::string why;
    const QvxStatus status =
        codec.Decode(fReader.get(), fRecord, static_cast<std::uint32_t>(ImageIndex()), map, &why);
    if (status)
        LogLine(DataFile().fPath + ": " + (why.empty() ? std::string(StatusText(status)) : why));
    return status;
}

// The pixels come out of the decoder as the target wants them: no copy in between.
bool DicomImporter::FillsWhole(COffscreen& target, const Rect& source) const
{
    const Port& port = *target.GetGWorldPtr();
    return Matrix().IsIdentity() && source == NaturalBounds() && port.bounds == source &&
           port.pixelFormat == QvxCodecPixelFormat(fRecord);
}

QvxStatus DicomImporter::DrawThroughCopy(COffscreen& target, const Rect& source, DicomCodec& codec)
{
    ImageDescription description;
    if (const QvxStatus status = GetImageDescription(&description))
        return status;
    std::unique_ptr<zel_Offscreen> whole;
    if (const QvxStatus status = zel_OffscreenFactory::NewCOffscreen(
            description, description.fWidth, description.fHeight, true, &whole))
        return status;
    if (const QvxStatus status = DecodeInto(whole->GetGWorldPtr()->Map(), codec))
        return status;
    const Rect place = MapRectByMatrix(Matrix(), source);
    return whole->CopyPixelsTo(target.GetGWorldPtr(), &source, &place,
                               static_cast<CopyMode>(GraphicsMode()), nullptr);
}

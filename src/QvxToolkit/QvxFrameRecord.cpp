#include "QvxToolkit/QvxFrameRecord.h"

#include "util/CheckedMath.h"
#include "util/Log.h"

#include "QvxToolkit/QvxFrameBytes.h"
#include "QvxToolkit/QvxHeaderValue.h"
#include "QvxToolkit/QvxRescale.h"
#include "QvxToolkit/QvxVideo.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <new>
#include <string_view>

namespace {

constexpr QvxElementTag kTagTransferSyntax{0x0002, 0x0010};
constexpr QvxElementTag kTagSamples{0x0028, 0x0002};
constexpr QvxElementTag kTagPhotometric{0x0028, 0x0004};
constexpr QvxElementTag kTagPlanar{0x0028, 0x0006};
constexpr QvxElementTag kTagRows{0x0028, 0x0010};
constexpr QvxElementTag kTagColumns{0x0028, 0x0011};
constexpr QvxElementTag kTagBitsAllocated{0x0028, 0x0100};
constexpr QvxElementTag kTagBitsStored{0x0028, 0x0101};
constexpr QvxElementTag kTagHighBit{0x0028, 0x0102};
constexpr QvxElementTag kTagPixelRepresentation{0x0028, 0x0103};
constexpr QvxElementTag kTagPadding{0x0028, 0x0120};
constexpr QvxElementTag kTagPaddingLimit{0x0028, 0x0121};
constexpr QvxElementTag kTagFloatPadding{0x0028, 0x0122};
constexpr QvxElementTag kTagDoublePadding{0x0028, 0x0123};
constexpr QvxElementTag kTagFloatPaddingLimit{0x0028, 0x0124};
constexpr QvxElementTag kTagDoublePaddingLimit{0x0028, 0x0125};
constexpr QvxElementTag kTagPresentationShape{0x2050, 0x0020};

struct PhotometricRow {
    std::string_view fName;
    QvxPhotometric fPhotometric;
    std::uint32_t fSamples;
    bool fHalfChroma;  // when native
};
// clang-format off
constexpr auto kPhotometrics = std::to_array<PhotometricRow>({
    // (0028,0004)         is read as                   samples  4:2:2
    { "MONOCHROME1",       QvxPhotometric::Monochrome1, 1,       false },
    { "MONOCHROME2",       QvxPhotometric::Monochrome2, 1,       false },
    { "PALETTE COLOR",     QvxPhotometric::Palette,     1,       false },
    { "RGB",               QvxPhotometric::RGB,         3,       false },
    { "YBR_FULL",          QvxPhotometric::YBRFull,     3,       false },
    { "YBR_FULL_422",      QvxPhotometric::YBRFull422,  3,       true  },
    { "YBR_PARTIAL_422",   QvxPhotometric::YBRPartial,  3,       true  },
    { "YBR_PARTIAL_420",   QvxPhotometric::YBRPartial,  3,       false },
    { "YBR_ICT",           QvxPhotometric::YBRICT,      3,       false },
    { "YBR_RCT",           QvxPhotometric::YBRRCT,      3,       false },
});
// clang-format on
constexpr PhotometricRow kOtherPhotometric{"", QvxPhotometric::Unknown, 0, false};

const PhotometricRow& RowOf(std::string_view name)
{
    const auto row = std::ranges::find(kPhotometrics, name, &PhotometricRow::fName);
    return row != kPhotometrics.end() ? *row : kOtherPhotometric;
}

// Fills one record, step by step; the first step that fails has said why.
class FrameGate {
public:
    explicit FrameGate(QvxParserRec* reader) : fReader(reader) {}
    QvxStatus Run();
    QvxFrameRecord fRecord;
    std::string fWhy;

private:
    QvxStatus Refuse(QvxStatus status, std::string why)
    {
        fWhy = std::move(why);
        return status;
    }
    void ReadSyntax();
    QvxStatus ReadSize();
    QvxStatus ReadDepth();
    void ReadBits();
    QvxStatus ReadColor();
    std::uint32_t SamplesThatFit(std::uint32_t stated, std::uint32_t named) const;
    void ReadPolarity();
    [[nodiscard]] double PaddingAsStored(double number) const;
    void ReadPadding();

    QvxParserRec* fReader;
    QvxPixelRun fRun;
};

void FrameGate::ReadSyntax()
{
    fRecord.fTransferSyntax = QvxHeaderWord(fReader, kTagTransferSyntax);
    std::uint32_t order = 0;
    if (Qvx2Reader_GetFileMetaInformation(fReader, kMetaByteOrder, &order) == kQvxOK && order == 1)
        fRecord.fByteOrder = 1;
}

QvxStatus FrameGate::ReadSize()
{
    const auto rows = QvxHeaderCount(fReader, kTagRows);
    const auto columns = QvxHeaderCount(fReader, kTagColumns);
    if (!rows || *rows == 0)
        return Refuse(kQvxNoSuchElement, "(0028,0010) gives no number of rows");
    if (!columns || *columns == 0)
        return Refuse(kQvxNoSuchElement, "(0028,0011) gives no number of columns");
    if (*rows > 65535 || *columns > 65535)
        return Refuse(kQvxMalformed, "(0028,0010) or (0028,0011) is above 65535");
    fRecord.fRows = *rows;
    fRecord.fColumns = *columns;
    return kQvxOK;
}

QvxStatus FrameGate::ReadDepth()
{
    fRecord.fForm = fRun.fForm;
    if (fRun.fForm != QvxSampleForm::Integer) {
        const std::uint32_t bits = fRun.fForm == QvxSampleForm::Float32 ? 32 : 64;
        fRecord.fBitsAllocated = fRecord.fBitsStored = bits;
        fRecord.fHighBit = bits - 1;
        return kQvxOK;
    }
    ReadBits();
    const std::uint32_t allocated = fRecord.fBitsAllocated;
    if (allocated == 0 || allocated > 64)
        return Refuse(kQvxMalformed,
                      "(0028,0100) is no number of bits: " + std::to_string(allocated));
    if ((allocated > 32 && allocated != 64) || fRecord.fBitsStored > 32)
        return Refuse(kQvxUnsupported, "(0028,0100), (0028,0101): integers of more than 32 bits");
    return kQvxOK;
}

void FrameGate::ReadBits()
{
    const auto stored = QvxHeaderCount(fReader, kTagBitsStored);
    const auto highBit = QvxHeaderCount(fReader, kTagHighBit);
    fRecord.fBitsAllocated = QvxHeaderCount(fReader, kTagBitsAllocated)
                                 .value_or(stored && *stored > 0 && *stored <= 8 ? 8 : 16);
    const std::uint32_t allocated = fRecord.fBitsAllocated;
    const bool storedFits = stored && *stored > 0 && *stored <= allocated;
    fRecord.fBitsStored = storedFits ? *stored : allocated;
    const bool highFits = highBit && *highBit < allocated && *highBit + 1 >= fRecord.fBitsStored;
    fRecord.fHighBit = highFits ? *highBit : fRecord.fBitsStored - 1;
    fRecord.fSigned =
        QvxHeaderCount(fReader, kTagPixelRepresentation) == 1u && fRecord.fBitsStored > 1;
}

// Samples a pixel where (0028,0002) and (0028,0004) don't agree.
std::uint32_t FrameGate::SamplesThatFit(std::uint32_t stated, std::uint32_t named) const
{
    if (fRecord.fEncapsulated)
        return stated != 0 ? stated : std::max(named, 1u);
    const std::uint64_t frames = std::max(fRun.fClaimedFrames, 1u);
    const std::uint64_t bits = fRecord.Pixels() * 3 * fRecord.fBitsAllocated;
    const auto bytes = CheckedMul(frames, bits / 8 + (bits % 8 != 0 ? 1 : 0));
    return bytes && *bytes <= fRun.Length() ? 3 : 1;
}

QvxStatus FrameGate::ReadColor()
{
    const std::string name = QvxHeaderWord(fReader, kTagPhotometric);
    PhotometricRow row = RowOf(name);
    const std::uint32_t stated = QvxHeaderCount(fReader, kTagSamples).value_or(0);
    if (stated != 0 && stated != 1 && stated != 3)
        return Refuse(kQvxUnsupported, "(0028,0002): " + std::to_string(stated) +
                                           " samples a pixel, " + EscapedText(name));
    const bool agree =
        stated == row.fSamples || row.fSamples == 0 || (stated == 0 && row.fSamples == 1);
    fRecord.fSamples =
        agree ? std::max({stated, row.fSamples, 1u}) : SamplesThatFit(stated, row.fSamples);
    const std::uint32_t samples = fRecord.fSamples;
    if (row.fSamples != samples)
        row = {"", samples == 3 ? QvxPhotometric::RGB : QvxPhotometric::Monochrome2, samples,
               false};
    if (name.empty() || RowOf(name).fSamples == 0)
        row.fPhotometric = QvxPhotometric::Unknown;
    const bool isFloat = fRecord.fForm != QvxSampleForm::Integer;
    if (isFloat && row.fPhotometric == QvxPhotometric::Palette)
        row.fPhotometric = QvxPhotometric::Monochrome2;
    fRecord.fPhotometric = row.fPhotometric;
    if (samples == 1)
        return kQvxOK;
    if (isFloat)
        return Refuse(kQvxUnsupported, "(7FE0,0008), (7FE0,0009): float pixels in colour");
    fRecord.fSigned = false;
    fRecord.fPlanar = QvxHeaderCount(fReader, kTagPlanar) == 1u;
    fRecord.fHalfChroma = row.fHalfChroma && !fRecord.fEncapsulated &&
                          SamplesThatFit(2, 2) != 3;  // not those of full colour
    if (fRecord.fHalfChroma && fRecord.fColumns % 2 != 0)
        return Refuse(kQvxMalformed, "(0028,0004) is 4:2:2, (0028,0011) is odd");
    return kQvxOK;
}

// What there is one of for the whole image: a shape that is stated decides, or an image stated
// twice to be negative would be turned twice.
void FrameGate::ReadPolarity()
{
    if (!fRecord.IsGray() || fRecord.fPhotometric == QvxPhotometric::Palette)
        return;
    const std::string shape = QvxHeaderWord(fReader, kTagPresentationShape);
    fRecord.fInverted =
        shape == "INVERSE" ||
        (fRecord.fPhotometric == QvxPhotometric::Monochrome1 && shape != "IDENTITY");
}

// Integers are written as the stored values are, but often under the other VR: by the width of a
// word.
double FrameGate::PaddingAsStored(double number) const
{
    if (fRecord.fForm != QvxSampleForm::Integer)
        return number;
    const double whole = std::trunc(number);
    const bool wrapped = fRecord.fSigned && whole > 32767 && fRecord.fBitsAllocated <= 16;
    const bool unsignedWord = !fRecord.fSigned && whole < 0;
    return wrapped ? whole - 65536 : unsignedWord ? whole + 65536 : whole;
}

void FrameGate::ReadPadding()
{
    if (!fRecord.IsGray())
        return;
    const bool wide = fRecord.fForm == QvxSampleForm::Float64;
    QvxElementTag tag = kTagPadding, limitTag = kTagPaddingLimit;
    if (fRecord.fForm != QvxSampleForm::Integer) {
        tag = wide ? kTagDoublePadding : kTagFloatPadding;
        limitTag = wide ? kTagDoublePaddingLimit : kTagFloatPaddingLimit;
    }
    const auto value = QvxHeaderNumber(fReader, QvxElementRef::None, tag);
    if (!value)
        return;
    const auto limit = QvxHeaderNumber(fReader, QvxElementRef::None, limitTag);
    const double first = PaddingAsStored(*value), last = limit ? PaddingAsStored(*limit) : first;
    fRecord.fHasPadding = true;
    fRecord.fPaddingLow = std::min(first, last);
    fRecord.fPaddingHigh = std::max(first, last);
}

QvxStatus FrameGate::Run()
{
    const QvxReaderUse use(fReader);
    if (const QvxStatus status = QvxFindPixels(fReader, &fRun, &fWhy))
        return status;
    fRecord.fEncapsulated = fRun.fEncapsulated;
    ReadSyntax();
    if (const QvxStatus status = ReadSize())
        return status;
    if (const QvxStatus status = ReadDepth())
        return status;
    if (const QvxStatus status = ReadColor())
        return status;
    const bool isClip = fRecord.fEncapsulated && QvxIsVideo(fRecord.fTransferSyntax);
    if (const QvxStatus status = isClip ? QvxPlaceClip(fReader, fRun, &fRecord, &fWhy)
                                        : QvxPlaceFrames(fRun, &fRecord, &fWhy))
        return status;
    QvxReadRescale(fReader, &fRecord);
    ReadPolarity();
    ReadPadding();
    return kQvxOK;
}

}  // namespace

QvxStatus QvxMakeFrameRecord(QvxParserRec* reader, QvxFrameRecord* record, std::string* why)
{
    if (!reader || !record)
        return kQvxBadArgument;
    try {
        FrameGate gate(reader);
        const QvxStatus status = gate.Run();
        if (status == kQvxOK)
            *record = std::move(gate.fRecord);
        else if (why)
            *why = std::move(gate.fWhy);
        return status;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

#include "app/grid/FramePixels.h"

#include "dicom_core/imaging/LoadFrame.h"
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "pixels/PixView.h"

#include "Qvx2VOIBlitter/VOIValues.h"
#include "qpix/OffscreenForFrame.h"
#include <algorithm>
#include <cmath>

namespace {

std::uint16_t Widened(std::uint8_t value) { return static_cast<std::uint16_t>(value * 257); }

// A gray display value in the file's units.
double UserValue(const zelVOIBlitterInfo& scale, double plain, std::int32_t display)
{
    if (scale.IsPlain())
        return plain;
    return (display + scale.pixelShift) * scale.pixelFactor + scale.pixelOffset;
}

// Of a port of 8 or 32 bits.
RGBColor ColorIn(const Port& port, int column, int row)
{
    const std::uint8_t* line = port.baseAddr + std::ptrdiff_t{row} * port.rowBytes;
    if (port.pixelSize == 32) {
        const std::uint8_t* bytes = line + 4 * std::ptrdiff_t{column};
        return {Widened(bytes[1]), Widened(bytes[2]), Widened(bytes[3])};
    }
    const ColorTable& table = TableOf(port);
    if (port.pixelSize != 8 || line[column] >= table.fEntries.size())
        return {};
    const ColorSpec& entry = table.fEntries[line[column]];
    return {entry.red, entry.green, entry.blue};
}

}  // namespace

FramePixels::FramePixels(dk_SequenceBase* sequence, std::int32_t frame, Looks looks)
    : fDocument(std::make_unique<zel_QTViewerDoc>())
{
    const bool shown = looks == Looks::Shown;
    fDocument->SetEditsShown({shown, shown, false});
    if (U_LoadFrameContentToViewerDoc(sequence, frame, fDocument.get()))
        return;
    const std::uint32_t properties = fDocument->FrameProperties();
    const bool gray =
        (properties & (kFrameIsDicom | kFrameIsGray)) == (kFrameIsDicom | kFrameIsGray);
    const zel_Offscreen* pixels =
        gray ? fDocument->ImportedOffscreen() : fDocument->ExportedOffscreen();
    Point size;
    if (!pixels || !pixels->GetGWorldPtr() || !pixels->GetGWorldPtr()->baseAddr ||
        fDocument->CurrentFrame()->GetFrameSizeWithAspectRatio(&size))
        return;
    fPort = pixels->GetGWorldPtr();
    fScale = gray ? &fDocument->CurrentFrame()->fTransform.voiInfo : nullptr;
    fSize = QSizeF(size.h, size.v);
    fWidth = pixels->Width();
    fHeight = pixels->Height();
}

FramePixels::~FramePixels() = default;

int FramePixels::StoredColumn(double x) const
{
    return static_cast<int>(std::floor(x * fWidth / fSize.width()));
}

int FramePixels::StoredRow(double y) const
{
    return static_cast<int>(std::floor(y * fHeight / fSize.height()));
}

bool FramePixels::IsOnFrame(const QPointF& point) const
{
    return fPort && point.x() >= 0 && point.y() >= 0 && StoredColumn(point.x()) < fWidth &&
           StoredRow(point.y()) < fHeight;
}

bool FramePixels::InfoAt(const QPointF& point, CKPixelInfo* info) const
{
    if (!IsOnFrame(point))
        return false;
    Fill(StoredColumn(point.x()), StoredRow(point.y()), info);
    return true;
}

bool FramePixels::ColorAt(const QPointF& point, RGBColor* color) const
{
    const zel_Offscreen* shown = fDocument->ExportedOffscreen();
    if (!shown || !IsOnFrame(point))
        return false;
    *color = ColorIn(*shown->GetGWorldPtr(), StoredColumn(point.x()), StoredRow(point.y()));
    return true;
}

void FramePixels::Fill(int column, int row, CKPixelInfo* info) const
{
    *info = {};
    info->orgFormat = fPort->pixelFormat;
    const std::uint8_t* line = fPort->baseAddr + std::ptrdiff_t{row} * fPort->rowBytes;
    if (fScale && fPort->pixelSize == 16) {
        const std::uint8_t* bytes = line + 2 * std::ptrdiff_t{column};
        const auto stored = static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]);
        info->orgColor = {stored, stored, stored};
        info->hUnit = Gray16ToDicomPixelValue(stored, fScale->photometric, fScale->pixelRange,
                                              fScale->pixelShift);
        info->value = UserValue(*fScale, info->hUnit, stored);
    } else if (fScale && fPort->pixelSize == 8) {
        const auto stored = static_cast<std::uint8_t>(255 - line[column]);
        info->orgColor = {Widened(stored), Widened(stored), Widened(stored)};
        info->hUnit = Gray8ToDicomPixelValue(stored, fScale->photometric, fScale->pixelRange,
                                             fScale->pixelShift);
        info->value = UserValue(*fScale, info->hUnit, stored);
    } else {
        info->orgColor = ColorIn(*fPort, column, row);
    }
    if (fScale && !fScale->IsPlain())
        info->hUnit = PinnedToInt32(std::llround(std::clamp(info->value, -4e9, 4e9)));
}

QvxStatus FramePixels::Iterate(const QRectF& rect, const CKPixelVisitor& visitor,
                               CKMetricsParams* params) const
{
    if (!fPort)
        return kQvxLockFailed;
    const QRectF within = rect & QRectF(QPointF(), fSize);
    const auto left = static_cast<int>(within.left()), top = static_cast<int>(within.top());
    const auto right = static_cast<int>(within.right()), bottom = static_cast<int>(within.bottom());
    const PortLock lock(*fPort);
    CKPixelInfo info;
    for (int row = top; row < bottom; ++row) {
        const int storedRow = StoredRow(row + 0.5);
        for (int column = left; column < right; ++column) {
            Fill(StoredColumn(column + 0.5), storedRow, &info);
            if (!visitor({row, column}, info, params))
                return kQvxUserCanceled;
        }
    }
    return kQvxOK;
}

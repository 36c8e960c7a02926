// Frames: how many, and where.
#include "Qvx2Parser/QvxReaderRec.h"
#include <cstring>

namespace {

// Walks and maps; afterwards the state's rows stand, unless the file is a directory.
QvxStatus MapFrames(QvxParserRec* reader)
{
    reader->fReaderFlags |= kReaderWantsFrames;
    if (const QvxStatus status = CheckAndFillDICOMHeaderPointers(reader, QvxParseMode::Lazy, 0))
        return status;
    return reader->fState ? kQvxOK : kQvxBadArgument;
}

// The map is of (7FE0,0010) alone; pixels of (7FE0,0008) or (7FE0,0009) without (0028,0008) are one
// frame.
bool HasFloatPixels(QvxParserRec* reader)
{
    for (const QvxElementTag tag : {QvxElementTag{0x7FE0, 0x0008}, QvxElementTag{0x7FE0, 0x0009}}) {
        QvxElementRef element{};
        std::uint32_t size = 0;
        if (Qvx2Reader_FindElement(reader, QvxElementRef::None, tag, &element) == kQvxOK &&
            Qvx2Reader_GetElementDataSize(reader, element, &size) == kQvxOK && size != 0)
            return true;
    }
    return false;
}

}  // namespace

QvxStatus QvxNewFrameMap(const QvxParserRec& reader, std::span<const QvxFrameMapRecord> rows,
                         QvxHandle* map)
{
    const std::size_t bytes = rows.size_bytes();
    QvxHandle made = reader.fCallbacks->fNewHandle(static_cast<std::int64_t>(bytes + 4));
    if (made.IsNull())
        return kQvxNoMemory;
    const auto count = static_cast<std::uint32_t>(rows.size());
    std::memcpy(made.Data(), &count, sizeof count);
    if (bytes > 0)
        std::memcpy(made.Data() + 4, rows.data(), bytes);
    *map = std::move(made);
    return kQvxOK;
}

QvxStatus Qvx2Reader_GetImageOffsetsAndSizes(QvxParserRec* reader, QvxHandle* map)
{
    if (!reader || !map)
        return kQvxBadArgument;
    if (!map->IsNull())
        return kQvxResultNotNull;
    if (const QvxStatus status = MapFrames(reader))
        return status;
    ExtraHeaderDataRec& state = *reader->fState;
    std::span<const QvxFrameMapRecord> rows;
    if (!state.IsDirectory()) {
        if (const QvxStatus status = GetImageOffsets(state))
            return status;
        rows = state.fFrameMap;
    }
    return QvxNewFrameMap(*reader, rows, map);
}

std::span<const QvxFrameMapRecord> QvxFrameMapOf(const QvxHandle& map)
{
    return map.Array<QvxFrameMapRecord>(4);
}

QvxStatus Qvx2Reader_GetFrameMapRecord(QvxParserRec* reader, std::uint32_t frame,
                                       QvxFrameMapRecord* row)
{
    if (!reader || !row)
        return kQvxBadArgument;
    if (const QvxStatus status = MapFrames(reader))
        return status;
    if (const QvxStatus status = GetImageOffsets(*reader->fState))
        return status;
    if (frame < 1 || frame > reader->fState->fFrameMap.size())
        return kQvxBadArgument;
    *row = reader->fState->fFrameMap[frame - 1];
    return kQvxOK;
}

QvxStatus Qvx2Reader_GetNumberOfFrames(QvxParserRec* reader, std::uint32_t flags,
                                       std::uint32_t* count)
{
    if (!reader || !count)
        return kQvxBadArgument;
    const bool claimed = (flags & kFramesClaimed) != 0;
    if (const QvxStatus status =
            claimed ? CheckAndFillDICOMHeaderPointers(reader, QvxParseMode::Lazy, 0)
                    : MapFrames(reader))
        return status;
    const ExtraHeaderDataRec& state = *reader->fState;
    if (state.IsDirectory())
        *count = 0;
    else if (claimed && state.fNominalFrames == 0 && HasFloatPixels(reader))
        *count = 1;
    else
        *count = claimed ? state.fNominalFrames : state.fActualFrames;
    return kQvxOK;
}

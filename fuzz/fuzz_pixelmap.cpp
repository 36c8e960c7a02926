// The frame map: it must end, and every row must lie in the file.
#include "FuzzInput.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QvxReaderPtr reader = OpenFuzzInput(data, size);
    if (!reader)
        return 0;
    std::uint32_t nominal = 0, actual = 0;
    (void)Qvx2Reader_GetNumberOfFrames(reader.get(), kFramesClaimed, &nominal);
    (void)Qvx2Reader_GetNumberOfFrames(reader.get(), 0, &actual);
    QvxHandle map;
    if (Qvx2Reader_GetImageOffsetsAndSizes(reader.get(), &map) != kQvxOK)
        return 0;
    const auto rows = QvxFrameMapOf(map);
    const ExtraHeaderDataRec* state = Qvx2Reader_State(reader.get());
    if (!state->IsDirectory() && rows.size() != actual)
        std::abort();
    for (const QvxFrameMapRecord& row : rows) {
        if (row.fOffset > state->fFileSize || row.fSize > state->fFileSize - row.fOffset ||
            row.fFirstFragmentSize > row.fSize || row.fFragmentCount == 0)
            std::abort();
    }
    QvxFrameMapRecord row;
    (void)Qvx2Reader_GetFrameMapRecord(reader.get(), actual, &row);
    return 0;
}

// One decoder of compressed frames, ZEL_FUZZ_DECODER: any stream against any promise of a header.
// The first byte says samples and bits, the second and third the size.
#include "QvxToolkit/QvxStreamDecoders.h"
#include <cstdlib>
#include <new>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 4)
        return 0;
    QvxFrameRecord record;
    record.fEncapsulated = true;
    record.fFrames = record.fClaimedFrames = 1;
    record.fSamples = (data[0] & 1) != 0 ? 3 : 1;
    record.fBitsStored = (data[0] >> 1 & 15) + 1u;
    record.fBitsAllocated = record.fBitsStored > 8 ? 16 : 8;
    record.fHighBit = record.fBitsStored - 1;
    record.fSigned = (data[0] & 32) != 0 && record.fSamples == 1 && record.fBitsStored > 1;
    record.fPhotometric = record.fSamples == 1  ? QvxPhotometric::Monochrome2
                          : (data[0] & 64) != 0 ? QvxPhotometric::YBRFull
                                                : QvxPhotometric::RGB;
    record.fRows = data[1] + 1u;
    record.fColumns = data[2] + 1u;
    QvxStream stream;
    stream.fBytes.assign(data + 3, data + size);
    DecodedFrame frame;
    std::string why;
    try {
        if (ZEL_FUZZ_DECODER(record, stream, &frame, &why) == kQvxOK) {
            if (frame.fRows != record.fRows || frame.fColumns != record.fColumns ||
                frame.fBytes.size() != frame.Count() * BytesOfForm(frame.fForm))
                std::abort();
        } else if (why.empty()) {
            std::abort();  // a failure without a reason
        }
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return 0;
}

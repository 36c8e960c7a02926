// From a whole file's header to display pixels: palettes, tables, rescale, padding and windows.
#include "FuzzInput.h"

#include "QvxToolkit/QvxCodec.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QvxReaderPtr reader = OpenFuzzInput(data, size);
    QvxFrameRecord ofFile, record;
    if (!reader || QvxMakeFrameRecord(reader.get(), &ofFile) != kQvxOK ||
        QvxRecordOfFrame(reader.get(), ofFile, ofFile.fFrames, &record) != kQvxOK ||
        record.Pixels() > std::uint64_t{1} << 20)
        return 0;
    DecodedFrame frame;
    if (DecodeFrame(reader.get(), record, record.fFrames, &frame) != kQvxOK)
        return 0;
    const std::uint32_t format = QvxCodecPixelFormat(record);
    const std::uint32_t pixelBytes = format == kPixelFormatGray8    ? 1
                                     : format == kPixelFormatGray16 ? 2
                                                                    : 4;
    if (record.fRows > INT16_MAX || record.fColumns > INT16_MAX)
        return 0;
    std::vector<std::uint8_t> pixels(record.Pixels() * pixelBytes);
    PixMap map;
    map.baseAddr = pixels.data();
    map.rowBytes = static_cast<std::int32_t>(record.fColumns * pixelBytes);
    map.bounds = {0, 0, static_cast<std::int16_t>(record.fRows),
                  static_cast<std::int16_t>(record.fColumns)};
    map.pixelFormat = format;
    std::int32_t low = 0, high = 0;
    if (QvxCodecFillPixels(reader.get(), record, frame, map, &low, &high) == kQvxOK &&
        format != kPixelFormatARGB32 && (low < 0 || high > 65535))
        std::abort();
    (void)QvxCodecPixelInfo(record, &frame);
    std::vector<QvxVOIChoice> choices;
    if (QvxCodecVOIChoices(reader.get(), record, record.fFrames, &choices) == kQvxOK) {
        for (const QvxVOIChoice& choice : choices) {
            if (!(choice.fWidth > 0) || (choice.fTable && choice.fTable->fEntries.empty()))
                std::abort();
        }
    }
    return 0;
}

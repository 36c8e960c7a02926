// What the tests of this folder share: a file in memory, its reader and its record.
#pragma once
#include "fixtures/DicomBuilder.h"

#include "QvxToolkit/DecodedFrame.h"
#include <string>
#include <vector>

struct ToolkitFile {
    explicit ToolkitFile(const DicomBuilder& builder)
    {
        status = Qvx2Parser_OpenBytes(&reader, builder.ByteVector(), kQvxProgramOptions);
        if (status == kQvxOK)
            status = QvxMakeFrameRecord(reader.get(), &record, &why);
    }
    // Samples of a frame; empty with `status` set when it can't be decoded.
    std::vector<double> Values(std::uint32_t number = 1)
    {
        if (status == kQvxOK)
            status = DecodeFrame(reader.get(), record, number, &frame, &why);
        if (status != kQvxOK)
            return {};
        return VisitSamples(frame, [](auto samples) {
            std::vector<double> values(samples.fCount);
            for (std::size_t i = 0; i < values.size(); ++i)
                values[i] = static_cast<double>(samples[i]);
            return values;
        });
    }
    QvxReaderPtr reader;
    QvxFrameRecord record;
    DecodedFrame frame;
    QvxStatus status = kQvxOK;
    std::string why;
};

// An image without its pixels: whatever differs from a plain one is said in one line of a table.
struct ImageHead {
    std::uint16_t rows = 1, columns = 2, allocated = 16, stored = 16, highBit = 15;
    std::uint16_t isSigned = 0, samples = 1, planar = 0;
    const char* photometric = "MONOCHROME2";
    const char* frames = "";
};

inline DicomBuilder ImageFile(const ImageHead& head, std::string_view uid = kUidExplicitLittle)
{
    DicomBuilder file;
    file.Meta(uid).CommonHeader().Element(0x0028, 0x0002, "US", head.samples);
    file.Element(0x0028, 0x0004, "CS", head.photometric);
    if (head.samples > 1)
        file.Element(0x0028, 0x0006, "US", head.planar);
    if (*head.frames)
        file.Element(0x0028, 0x0008, "IS", head.frames);
    file.Element(0x0028, 0x0010, "US", head.rows).Element(0x0028, 0x0011, "US", head.columns);
    file.Element(0x0028, 0x0100, "US", head.allocated);
    file.Element(0x0028, 0x0101, "US", head.stored).Element(0x0028, 0x0102, "US", head.highBit);
    return file.Element(0x0028, 0x0103, "US", head.isSigned);
}

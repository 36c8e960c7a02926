// What the tests of this folder share: a sequence of made files, and what a document shows of it.
#pragma once
#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"

#include <gtest/gtest.h>

struct MadeSequence {
    MadeSequence() { CImporterPlusFactory::InitFactory(); }
    std::string Add(const DicomBuilder& file)
    {
        const std::string path =
            folder.WriteFile("f" + std::to_string(sequence.GetNumChildren()), file.Bytes());
        auto image = std::make_unique<dk_ImageFile>();
        EXPECT_EQ(image->SetSourceFile(FileRef{path}, kImportDicom), kQvxOK);
        sequence.AddChild(std::move(image));
        return path;
    }
    TempFolder folder;
    dk_Sequence sequence;
};

// The exported picture as grays, or 0xRRGGBB where a pixel is coloured.
inline std::vector<int> ShownBy(zel_QTViewerDoc* document)
{
    const int width = document->GetWidth(), height = document->GetHeight();
    std::unique_ptr<Port> port;
    EXPECT_EQ(NewPort(kPixelFormatARGB32, width, height, nullptr, &port), kQvxOK);
    EXPECT_EQ(
        document->CopyPixelsToGWorldL(port.get(), nullptr, nullptr, CopyMode::Replace, nullptr),
        kQvxOK);
    std::vector<int> values;
    for (int v = 0; v < height; ++v)
        for (int h = 0; h < width; ++h) {
            const std::uint8_t* p = port->baseAddr + v * port->rowBytes + 4 * h;
            const bool gray = p[1] == p[2] && p[2] == p[3];
            values.push_back(gray ? p[1] : p[1] << 16 | p[2] << 8 | p[3]);
        }
    return values;
}

inline DicomBuilder GrayFile(int rows, int columns, int bits, int frames = 1)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle).CommonHeader();
    return file.Image({.rows = static_cast<std::uint16_t>(rows),
                       .columns = static_cast<std::uint16_t>(columns),
                       .bits = static_cast<std::uint16_t>(bits),
                       .frames = frames});
}

inline DicomBuilder& WithWindow(DicomBuilder& file, const char* center, const char* width)
{
    return file.Element(0x0028, 0x1050, "DS", center).Element(0x0028, 0x1051, "DS", width);
}

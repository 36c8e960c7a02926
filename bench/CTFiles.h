// Folders of CT files for the benchmarks that open them.
#pragma once
#include "fixtures/DicomBuilder.h"
#include "fixtures/TempFolder.h"

#include <string>
#include <vector>

// A CT header of about a hundred elements, as scanners write them.
inline std::string CTFile(int number, int side)
{
    DicomBuilder file;
    file.Meta(kUidExplicitLittle)
        .Element(0x0008, 0x0005, "CS", "ISO_IR 100")
        .Element(0x0008, 0x0008, "CS", "ORIGINAL\\PRIMARY\\AXIAL")
        .Element(0x0008, 0x0018, "UI", "1.2.826.0.1.3680043.10.1111.1." + std::to_string(number))
        .Element(0x0008, 0x0020, "DA", "20240105")
        .Element(0x0008, 0x0030, "TM", "101112.345")
        .Element(0x0008, 0x0050, "SH", "ACC0012345")
        .Element(0x0008, 0x0060, "CS", "CT")
        .Element(0x0008, 0x103E, "LO", "Thorax 1.0 B70f")
        .Element(0x0010, 0x0010, "PN", "PHANTOM^TREE")
        .Element(0x0010, 0x0020, "LO", "PID0001234")
        .Element(0x0010, 0x0040, "CS", "O");
    for (std::uint16_t i = 0; i < 30; ++i)
        file.Element(0x0018, static_cast<std::uint16_t>(0x1100 + i), "DS", "123.456");
    for (std::uint16_t i = 0; i < 25; ++i)
        file.Element(0x0019, static_cast<std::uint16_t>(0x1000 + i), "LO", "PRIVATE VALUE 1");
    file.Element(0x0020, 0x000D, "UI", "1.2.826.0.1.3680043.10.1111.2.1")
        .Element(0x0020, 0x000E, "UI", "1.2.826.0.1.3680043.10.1111.3.1")
        .Element(0x0020, 0x0010, "SH", "S1")
        .Element(0x0020, 0x0011, "IS", "4")
        .Element(0x0020, 0x0013, "IS", std::to_string(number + 1))
        .Element(0x0020, 0x0032, "DS", "1\\2\\3");
    for (std::uint16_t i = 0; i < 20; ++i)
        file.Element(0x0021, static_cast<std::uint16_t>(0x1000 + i), "LO", "PRIVATE VALUE 2");
    const auto length = static_cast<std::uint16_t>(side);
    file.Image({.rows = length, .columns = length});
    const std::size_t pixels = static_cast<std::size_t>(side) * static_cast<std::size_t>(side);
    return file.NativePixels(std::string(pixels * 2, 'p')).Bytes();
}

using Paths = std::vector<std::string>;

inline Paths MakeFiles(const TempFolder& folder, int count, int side)
{
    Paths paths;
    for (int i = 0; i < count; ++i)
        paths.push_back(folder.WriteFile("IM" + std::to_string(i), CTFile(i, side)));
    return paths;
}

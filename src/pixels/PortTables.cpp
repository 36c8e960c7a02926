#include "pixels/PortTables.h"

#include "pixels/Guarded.h"

namespace {

bool IsDescendingRamp(const ColorTable& table)
{
    unsigned gray = 0xFFFF;
    for (const ColorSpec& entry : table.fEntries) {
        if (entry.red != gray || entry.green != gray || entry.blue != gray)
            return false;
        gray -= 257;
    }
    return !table.fEntries.empty();
}

}  // namespace

QvxStatus CopyCTable(const ColorTable& from, ColorTable* to)
{
    if (!to || from.SizeField() != to->SizeField())
        return kQvxBadArgument;
    return Guarded([&] {
        if (&from != to)
            *to = from;
        if (!IsStandardSeed(from.fSeed))
            CTabChanged(to);
        return kQvxOK;
    });
}

QvxStatus EnforceColorTable(Port* port, const ColorTable& table)
{
    if (!port || port->colorTable.fEntries.empty())
        return kQvxBadArgument;
    return CopyCTable(table, &port->colorTable);
}

std::uint32_t GetPixelFormatOfGWorld(const Port& port)
{
    const auto size = static_cast<std::uint32_t>(port.pixelSize);
    if (size != 2 && size != 4 && size != 8)
        return port.pixelFormat != 0 ? port.pixelFormat : size;
    const bool gray = port.colorTable.fSeed == size + 32 || IsDescendingRamp(port.colorTable);
    return gray ? size + 32 : size;
}

#include "prefs/ColorTableFiles.h"

#include "platform/PropertyList.h"

#include <algorithm>

namespace {

struct TableFile {
    const char* fName;
    const unsigned char* fBytes;
    std::size_t fSize;
};
#include "ColorTables.inc"

std::uint16_t ComponentAt(const QVariantList& values, qsizetype index)
{
    const int value = index < values.size() ? values[index].toInt() : 0;
    return static_cast<std::uint16_t>(std::clamp(value, 0, 255) * 257);
}

ZELCLUT TableOf(const TableFile& file)
{
    constexpr qsizetype kEntries = 256;
    const QByteArray bytes(reinterpret_cast<const char*>(file.fBytes),
                           static_cast<qsizetype>(file.fSize));
    const QVariantMap root = ReadPropertyList(bytes).fRoot.toMap();
    const QVariantList reds = root[QStringLiteral("Red")].toList();
    const QVariantList greens = root[QStringLiteral("Green")].toList();
    const QVariantList blues = root[QStringLiteral("Blue")].toList();
    ZELCLUT table;
    table.fName = root[QStringLiteral("MenuTitle")].toString().toStdString();
    if (table.fName.empty())
        table.fName = file.fName;
    for (qsizetype i = 0; i < kEntries; ++i)
        table.fTable.fEntries.push_back({static_cast<std::uint16_t>(i), ComponentAt(reds, i),
                                         ComponentAt(greens, i), ComponentAt(blues, i)});
    return table;
}

}  // namespace

std::vector<ZELCLUT> loadCLUTTables()
{
    std::vector<ZELCLUT> tables;
    for (const TableFile& file : kTableFiles)
        tables.push_back(TableOf(file));
    return tables;
}

#include "prefs/ColorTableFiles.h"

#include "platform/PropertyList.h"

namespace {

struct TableFile {
    const char* fName;
    const unsigned char* fBytes;
    std::size_t fSize;
};
#include "ColorTables.inc"

constexpr int kFirstTableID = 2;

ZELCLUTMenuItem ItemOf(const TableFile& file)
{
    const QByteArray bytes(reinterpret_cast<const char*>(file.fBytes),
                           static_cast<qsizetype>(file.fSize));
    ZELCLUTMenuItem item = ZELCLUTMenuItem::FromDictionary(ReadPropertyList(bytes).fRoot.toMap());
    item.clutFilename = QString::fromUtf8(file.fName);
    if (item.clutTitle.isEmpty())
        item.clutTitle = item.itemName = item.clutFilename;
    return item;
}

}  // namespace

std::vector<ZELCLUTMenuItem> loadCLUTMenuItems()
{
    std::vector<ZELCLUTMenuItem> items;
    for (const TableFile& file : kTableFiles) {
        items.push_back(ItemOf(file));
        items.back().tableID = kFirstTableID - 1 + static_cast<int>(items.size());
    }
    return items;
}

std::vector<ZELCLUT> loadCLUTTables()
{
    std::vector<ZELCLUT> tables;
    for (const ZELCLUTMenuItem& item : loadCLUTMenuItems())
        tables.push_back({item.clutTitle.toStdString(), item.colorTable(), item.sortingType});
    return tables;
}

#include "pixels/PixView.h"

#include "pixels/PixelFormat.h"

#include <map>

const ColorTable& TableOf(const PixView& view)
{
    static const std::map<int, ColorTable> kTables = [] {
        std::map<int, ColorTable> tables;
        tables[0];  // of pixels that are no indexes
        for (const int id : {1, 33, 34, 36, 40, 66, 68, 72})
            tables[id] = SystemColorTable(id).value_or(ColorTable{});
        return tables;
    }();
    if (view.colorTable && !view.colorTable->fEntries.empty())
        return *view.colorTable;
    const auto layout = LayoutOfPixMap(view.map);
    return kTables.at(layout ? layout->colorTableId : 0);
}

#include "pixels/zel_Offscreen.h"

#include "pixels/Guarded.h"
#include "pixels/PortTables.h"

#include <algorithm>
#include <array>

QvxStatus zel_Offscreen::SaveColorTable()
{
    const Port* port = GetGWorldPtr();
    if (!port || !OrigImageDesc())
        return kQvxBadArgument;
    constexpr std::array kDepths = {2, 4, 8, 34, 36, 40};
    if (port->pixelSize > 8 || std::ranges::find(kDepths, OrigImageDesc()->fDepth) == kDepths.end())
        return kQvxOK;
    return Guarded([&] {
        fSavedTable = ColorTable(port->colorTable);
        return kQvxOK;
    });
}

QvxStatus zel_Offscreen::RestoreColorTable()
{
    return fSavedTable ? EnforceColorTable(GetGWorldPtr(), *fSavedTable) : kQvxOK;
}

#include "app/grid/ToolBox.h"
#include "prefs/Prefs.h"

ToolScope& ToolScope::Shared()
{
    static ToolScope scope;
    return scope;
}

std::int32_t ToolScope::toolScope() const
{
    if (fScope == -1)
        fScope = prefs_ToolScope();
    return fScope;
}

void ToolScope::setToolScope(std::int32_t scope)
{
    if (scope == toolScope())
        return;
    Announce({"toolScope"}, [&] { fScope = scope; });
    prefs_Set_ToolScope(scope);
}

void ToolScope::changeToolScope(int menuTag)
{
    if (menuTag == kTagFrame)
        setToolScope(kFrame);
    else if (menuTag == kTagSequence)
        setToolScope(kSequence);
}

// The key that makes a click or a command mean something more.
#pragma once
#include <Qt>

// Some window managers keep clicks and drags with Alt for themselves, so another key serves too.
[[nodiscard]] inline bool HasOption(Qt::KeyboardModifiers keys)
{
    return keys.testFlag(Qt::AltModifier) || keys.testFlag(Qt::MetaModifier);
}

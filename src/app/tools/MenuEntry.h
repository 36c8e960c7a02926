// A menu as plain data: what stands in it, and what each entry does. Whoever shows it makes widgets
// of it. Entries are made for one showing; what they act on outlives them. Main thread only.
#pragma once
#include <QString>
#include <functional>
#include <vector>

struct MenuEntry {
    enum class Kind { Separator, Command, Submenu };

    Kind kind = Kind::Separator;
    QString title;     // in the user's language
    QString image;     // name of its icon, or empty
    QString shortcut;  // of the key that does the same, as QKeySequence reads it, or empty
    int tag = 0;       // which one of a family of entries
    bool enabled = true, checked = false;
    std::vector<MenuEntry> children;           // of a submenu
    std::function<void(bool option)> perform;  // of a command; `option`: the key is held
};

// A menu of the desktop made from entries. Main thread only.
#pragma once
#include "app/tools/MenuEntry.h"

#include <QIcon>
#include <memory>

class QMenu;
class QWidget;

// Of the children of `root`. What a chosen entry does may end a grid's view: the parent should be
// the window around it.
[[nodiscard]] std::unique_ptr<QMenu> NewMenu(const MenuEntry& root, QWidget* parent);

// Puts these entries in place of what the menu has.
void FillMenu(QMenu* menu, const std::vector<MenuEntry>& entries);

// Of an entry's image: a layout's is painted, any other the file of that name among the icons.
[[nodiscard]] QIcon MenuIcon(const QString& image);

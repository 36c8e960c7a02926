// The menu bar of a window.
#pragma once

class GridsPane;
class QMainWindow;
class ViewerCommands;

// Adds the menu "File". `commands` outlives the window.
void AddFileMenu(QMainWindow* window, ViewerCommands* commands);
// Adds "View" and "Tools", which act on the pane's grid; it outlives the window's menus.
void AddViewMenus(QMainWindow* window, GridsPane* pane);

// The menu bar of a window.
#pragma once

class QMainWindow;
class ViewerCommands;

// Adds the menu "File". `commands` outlives the window.
void AddFileMenu(QMainWindow* window, ViewerCommands* commands);

// The program's own documents: help, and what it is built from. Main thread only.
#pragma once
class QWidget;

// A PDF with the help, written for the reader's language's words, in the desktop's reader; in a
// window of ours where the desktop has none.
void ShowHelp(QWidget* over);
void ShowAcknowledgments(QWidget* over);
void ShowAbout(QWidget* over);

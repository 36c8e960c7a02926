// Codes become words for the user here, and nowhere else. Main thread only.
#pragma once
#include "platform/AlertWords.h"

class QWidget;

inline constexpr int kAlertFirstButton = 1000;  // the second answers 1001

// A modal alert in the warning style; the button that was chosen.
int RunAlert(const ZELAlertWords& words, QWidget* over);

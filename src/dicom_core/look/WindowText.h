// Window values as people read them.
#pragma once
#include "dicom_core/look/zelVOIBlitterInfo.h"

#include <string>

// Rounded half away from zero to a whole number; where a display step isn't a whole number of user
// units, with as many decimals (6 at most) as show a step. A point, whatever the locale.
[[nodiscard]] std::string WindowValueText(const zelVOIBlitterInfo& scale, double value);

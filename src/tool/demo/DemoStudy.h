// `zelora demo FOLDER`: studies made by arithmetic, to have something to look at without a patient.
// Four made-up patients, their names in Latin, Japanese, Greek and Korean letters, and twelve
// series in nine transfer syntaxes. One phantom is seen by CT with its localizer, MR (a classic
// oblique series and an enhanced one), PET and X-rays, in one coordinate system where that has a
// meaning; beside them stand an ultrasound clip, an angiogram, a polar map, a spine with overlays
// and a colour chart. Files lie in PATn/STn/SEn/IMnnnnnn, with a DICOMDIR over all of them.
#pragma once
#include "util/StatusCodes.h"

#include <string>

// Makes `folder` (its parent must be there) and writes the files, the same bytes each time. Files
// of the same names are replaced. Each is written under a temporary name and renamed when it is
// whole. On failure `failure` says which file or folder, and why; complete files before it stay.
// Answers an errno, kQvxDiskFull or kQvxNoMemory.
[[nodiscard]] QvxStatus WriteDemoStudy(const std::string& folder, std::string* failure);

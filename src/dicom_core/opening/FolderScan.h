// From a path to a flat collection of image files. What can't be taken is noted in the tree.
#pragma once
#include "dicom_core/opening/OpenSettings.h"
#include "util/StatusCodes.h"

#include <string>

class dk_DicomBaseElem;

// 0, or the code of making the source. An invisible file gives 0 and adds nothing.
[[nodiscard]] QvxStatus AddFileToCollection(const std::string& path, dk_DicomBaseElem* collection,
                                            OpenSettings* settings);
// 0 or kQvxUserCanceled. Headers are read ahead: the files that are added have their records.
[[nodiscard]] QvxStatus ScanDirectoryContents(const std::string& path, bool recursive,
                                              dk_DicomBaseElem* collection, OpenSettings* settings);

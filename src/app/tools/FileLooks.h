// The looks that a frame's file offers: windows, and tables in place of windows (PS3.3 C.11.2).
// Read from the file when asked. Main thread only.
#pragma once
#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/look/zelVOIFunction.h"

#include <QString>
#include <memory>
#include <vector>

// A window that no earlier one equals, in whole numbers.
struct FileWindow {
    std::int32_t width = 0, level = 0;
    QString name;  // may be empty
};
struct FileTable {
    std::shared_ptr<const zelVOITable> table;
    QString name;  // may be empty
};

// Those of a frame (0 the current one), in the file's order; of other frames than gray ones none.
[[nodiscard]] std::vector<FileWindow> FileWindowsOf(const ZELSequenceProxy& proxy,
                                                    std::int32_t frame);
[[nodiscard]] std::vector<FileTable> FileTablesOf(const ZELSequenceProxy& proxy,
                                                  std::int32_t frame);

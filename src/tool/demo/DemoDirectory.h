// The DICOMDIR over the demo (PS3.3 annex F): patients, studies, series, images.
#pragma once
#include "tool/demo/DemoDataSet.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class DemoDirectory {
public:
    // A record of the file `name` (folders divided by '/'), and of its patient, study and series
    // when they are not those of the file before it.
    void Add(std::string_view name, const DemoDataSet& dataSet, DemoSyntax syntax);
    // The data set, explicit and little endian; `start` is where in its file it will stand, which
    // the offsets in it count with.
    [[nodiscard]] std::string Encoded(std::size_t start) const;

private:
    struct Record {
        int level;  // 0 patient to 3 image
        std::string key;
        DemoDataSet dataSet;
    };
    std::vector<Record> fRecords;  // each behind the one that holds it
};

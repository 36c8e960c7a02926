// The Storage SOP classes by UID, for a name behind (0008,0016).
#pragma once
#include <array>
#include <cstdint>
#include <string_view>

struct QvxStandardSOPClass {
    std::string_view uid;
    std::string_view name;   // as PS3.4 has it
    std::string_view annex;  // of PS3.3, where the IOD stands
    std::uint32_t status;    // 1 current, 0 retired
};

extern const std::array<QvxStandardSOPClass, 59> gStandardSOPClassElemVector;

// The row of a UID (without padding), or null.
[[nodiscard]] const QvxStandardSOPClass* FindStandardSOPClass(std::string_view uid);

#include "prefs/PrefsTables.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <numeric>

namespace {

constexpr std::size_t kEntries = 256;

struct LoadedTable {
    ZELCLUT fCLUT;
    ZELColorRamp fRamp{};
};

std::vector<LoadedTable>& Tables()
{
    static std::vector<LoadedTable> tables;
    return tables;
}

ZELColorRamp RampOf(const ColorTable& table)
{
    ZELColorRamp ramp{};
    for (std::size_t i = 0; i < kEntries; ++i) {
        const ColorSpec& spec = table.fEntries[i];
        const auto high = [](std::uint16_t part) { return static_cast<std::uint32_t>(part >> 8); };
        ramp[i] = 0xFF000000U | high(spec.red) << 16 | high(spec.green) << 8 | high(spec.blue);
    }
    return ramp;
}

std::atomic<CLUTLoader> gLoader{nullptr};

// Whoever comes first loads what is still to be loaded; others wait for it.
const std::vector<LoadedTable>& AskedTables()
{
    if (gLoader.load()) {
        static std::mutex loading;
        const std::lock_guard lock(loading);
        if (const CLUTLoader load = gLoader.load()) {
            prefs_SetCLUTs(load());
            gLoader = nullptr;
        }
    }
    return Tables();
}

const LoadedTable* TableOf(int number)
{
    const std::vector<LoadedTable>& tables = AskedTables();
    if (number < 1 || number > prefs_GetNumberOfCLUTs())
        return nullptr;
    return &tables[static_cast<std::size_t>(number) - 1];
}

}  // namespace

void prefs_SetCLUTs(std::vector<ZELCLUT> tables)
{
    Tables().clear();
    for (ZELCLUT& clut : tables) {
        clut.fTable.fEntries.resize(kEntries);
        const ZELColorRamp ramp = RampOf(clut.fTable);
        Tables().push_back({std::move(clut), ramp});
    }
}

void prefs_SetCLUTLoader(CLUTLoader load) { gLoader = load; }

int prefs_GetNumberOfCLUTs() { return static_cast<int>(AskedTables().size()); }

std::vector<int> prefs_GetCLUTsInMenuOrder()
{
    const std::vector<LoadedTable>& tables = AskedTables();
    std::vector<int> numbers(tables.size());
    std::iota(numbers.begin(), numbers.end(), 1);
    std::ranges::stable_sort(numbers, {}, [&tables](int number) {
        return tables[static_cast<std::size_t>(number) - 1].fCLUT.fMenuPosition;
    });
    return numbers;
}

const ColorTable* prefs_GetColorSpecs(int number)
{
    const LoadedTable* table = TableOf(number);
    return table ? &table->fCLUT.fTable : nullptr;
}

const ZELColorRamp* prefs_GetColorRamp(int number)
{
    const LoadedTable* table = TableOf(number);
    return table ? &table->fRamp : nullptr;
}

std::string prefs_GetColorRampName(int number)
{
    const LoadedTable* table = TableOf(number);
    return table ? table->fCLUT.fName : "unnamed";
}

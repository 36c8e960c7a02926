#include "pixels/FreeMemory.h"

#include "util/CheckedMath.h"

#include <atomic>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

std::atomic<FreeMemoryReader> gReader{nullptr};

// The kernel's own estimate counts what it would give back, such as cached files; the number of
// unused pages, where that line is missing, does not.
std::uint64_t FreeMemoryOfSystem()
{
    std::ifstream info("/proc/meminfo");
    for (std::string label; info >> label;) {
        std::uint64_t kibibytes = 0;
        if (label == "MemAvailable:" && info >> kibibytes)
            return kibibytes * 1024;
        info.ignore(256, '\n');
    }
    const long pages = sysconf(_SC_AVPHYS_PAGES), pageSize = sysconf(_SC_PAGESIZE);
    if (pages < 0 || pageSize < 0)
        return 0;
    return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize);
}

}  // namespace

std::uint64_t FreeMemory()
{
    const FreeMemoryReader reader = gReader.load();
    return reader ? reader() : FreeMemoryOfSystem();
}

void SetFreeMemoryReader(FreeMemoryReader reader) { gReader.store(reader); }

QvxStatus CanGWorldFitToHeep(std::int32_t width, std::int32_t height, std::int32_t depth,
                             bool* fits)
{
    if (width < 1 || height < 1 || depth < 1 || !fits)
        return kQvxBadArgument;
    const std::int64_t rowBits = std::int64_t{width} * depth;  // below 2 to the 62
    const auto size = CheckedMul<std::int64_t>((rowBits + 127) / 128 * 16, height);
    if (!size)
        return kQvxBadArgument;
    constexpr std::uint64_t kReserve = 0x100000;
    const std::uint64_t free = FreeMemory();
    *fits = free > kReserve && static_cast<std::uint64_t>(*size) < free - kReserve;
    return kQvxOK;
}

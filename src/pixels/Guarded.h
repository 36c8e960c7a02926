// Where memory can run out inside this folder: the exception ends here and becomes a status.
#pragma once
#include "util/StatusCodes.h"

#include <new>
#include <stdexcept>

// Runs `work`, which answers a status; kQvxNoMemory when it ran out of memory.
template <typename Work>
[[nodiscard]] QvxStatus Guarded(Work&& work) noexcept
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    } catch (const std::length_error&) {  // a container asked for more than it can ever hold
        return kQvxNoMemory;
    }
}

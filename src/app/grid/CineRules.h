// What of a window's grids plays, and what could. Main thread only.
#pragma once
#include "app/grid/ZELSequenceGridViewModelController.h"

#include <algorithm>

[[nodiscard]] inline bool CanPlayCine(const ZELSequenceGridViewModelController* grid)
{
    return grid->currZELSequence() && grid->currZELSequence()->canPlayCine();
}

[[nodiscard]] inline bool CanPlaySomeCine(const GridHost& host)
{
    return std::ranges::any_of(host.gridControllers(), CanPlayCine);
}

[[nodiscard]] inline bool HasCinePlaying(const GridHost& host)
{
    return std::ranges::any_of(host.gridControllers(),
                               &ZELSequenceGridViewModelController::cineModeIsON);
}

// None that could play is off.
[[nodiscard]] inline bool AllCinesArePlaying(const GridHost& host)
{
    return std::ranges::none_of(host.gridControllers(), [](const auto* grid) {
        return !grid->cineModeIsON() && CanPlayCine(grid);
    });
}

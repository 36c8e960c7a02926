// What the grid asks of whoever plays sequences as movies. Main thread only.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>
#include <functional>
#include <memory>

class ZELSequenceGridViewModelController;
class ZELSequenceProxy;

// A movie of a sequence's frames.
class CineMovie {
public:
    virtual ~CineMovie() = default;
    [[nodiscard]] virtual QvxStatus GetCurrentTime(double* milliseconds) const = 0;
    [[nodiscard]] virtual QvxStatus GetDuration(double* milliseconds) const = 0;
};
using CineMovieMaker = std::function<std::unique_ptr<CineMovie>(ZELSequenceProxy& proxy)>;
// Who makes movies says so at the start of the program; until then there are none.
void SetCineMovieMaker(CineMovieMaker maker);
[[nodiscard]] std::unique_ptr<CineMovie> MakeCineMovie(ZELSequenceProxy& proxy);

// The playing of a window's grids.
class CineStage {
public:
    virtual ~CineStage() = default;
    [[nodiscard]] virtual bool isAvailable() const = 0;  // there is something that plays
    // From that frame; 0 is the current one.
    virtual void startCine(ZELSequenceGridViewModelController& grid, std::int32_t fromFrame) = 0;
    virtual void stopCine(ZELSequenceGridViewModelController& grid) = 0;
    virtual void playAllCines() = 0;  // in each grid that doesn't play
    virtual void stopAllCines() = 0;
};

// Scaling by exact means, for any sizes. Internal to this folder.
#pragma once
#include "pixels/ScaleKernel.h"

// `ScaleSamples` with a kernel of its own: along an axis that shrinks each result is the mean of
// the area that it covers, along one that grows it lies between the two nearest pixel centres.
// Exact up to one final rounding (half up).
void ScaleByArea(const ScaleJob& job, ScaleEnds* ends);

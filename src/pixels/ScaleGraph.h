// The scaling library behind one small door: a prepared way from one size to another, which is dear
// to make and cheap to run. Those made lately are kept. Internal to this folder.
#pragma once
#include "pixels/ScaleKernel.h"

#include <memory>

struct zimg_filter_graph;

struct ScaleGraphFree {
    void operator()(zimg_filter_graph* graph) const noexcept;
};
// Constant and shared: many threads may run it at once.
using ScaleGraph = std::shared_ptr<const zimg_filter_graph>;

// Whether the library serves these sizes. It has no graphs for a picture that its kernel reaches
// across, and takes too long to make those of sides of many thousands of pixels or ratios beyond
// 64. The window has no say in it: all parts of a picture come from one kernel.
[[nodiscard]] bool HasScaleGraph(const ScaleJob& job);

// The window, whole rows around the job's, for the functions below: very low ones have no graph.
[[nodiscard]] LongRect ScaleGraphWindow(const ScaleJob& job);

// The graph for the job's window; null when memory ran out. Throws std::bad_alloc only.
[[nodiscard]] ScaleGraph FindScaleGraph(const ScaleJob& job);

// Scales the job's window. False when memory ran out or the library failed; what has been put by
// then stays.
[[nodiscard]] bool RunScaleGraph(const ScaleGraph& graph, const ScaleJob& job, ScaleEnds* ends);

#include "pixels/ScaleKernel.h"

#include "pixels/AreaScale.h"
#include "pixels/ScaleGraph.h"

#include <algorithm>
#include <new>

namespace {

// Passes on what lies within a window.
class CroppedEnds : public ScaleEnds {
public:
    CroppedEnds(const ScaleJob& job, ScaleEnds* ends)
        : fWindow(job.window), fBytes(ScaleSampleBytes(job.sample)), fEnds(ends)
    {
    }
    void Load(int row, int first, int count, std::uint8_t* samples) override
    {
        fEnds->Load(row, first, count, samples);
    }
    void Put(int row, int first, int count, const std::uint8_t* samples) override
    {
        const int begin = std::max(first, fWindow.left),
                  end = std::min(first + count, fWindow.right);
        if (row >= fWindow.top && row < fWindow.bottom && begin < end)
            fEnds->Put(row, begin, end - begin, samples + std::ptrdiff_t{begin - first} * fBytes);
    }

private:
    LongRect fWindow;
    int fBytes;
    ScaleEnds* fEnds;
};

}  // namespace

int ScaleSampleBytes(ScaleSample sample)
{
    switch (sample) {
        case ScaleSample::Gray16:
            return 2;
        case ScaleSample::ARGB8:
            return 4;
        default:
            return 1;
    }
}

void ScaleSamples(const ScaleJob& job, ScaleEnds* ends)
{
    if (!HasScaleGraph(job)) {
        ScaleByArea(job, ends);
        return;
    }
    ScaleJob made = job;
    made.window = ScaleGraphWindow(job);
    CroppedEnds cropped(job, ends);
    const ScaleGraph graph = FindScaleGraph(made);
    if (!graph || !RunScaleGraph(graph, made, made == job ? ends : &cropped))
        throw std::bad_alloc();
}

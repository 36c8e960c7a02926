#include "pixels/ScaleGraph.h"

#include "pixels/PixelLanes.h"
#include "pixels/Port.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <new>
#include <vector>
#include <zimg.h>

namespace {

constexpr int kMostSide = 16384;  // making a graph takes time for each row and column
constexpr int kMostRatio = 64;    // and for each pixel that a result covers
constexpr std::size_t kKept = 32;
// Rows are moved by this share of a pixel, the whole picture's as any window's: what lies exactly
// between two weights would else fall to either side, as a window's numbers are rounded anew.
constexpr double kNudge = 1e-7;
constexpr std::size_t kAlignment = 64;  // what the library wants of rows and blocks

// --- making graphs -------------------------------------------------------------------------------

zimg_image_format FormatOf(const ScaleJob& job, int width, int height)
{
    zimg_image_format format;
    zimg_image_format_default(&format, ZIMG_API_VERSION);
    format.width = static_cast<unsigned>(width);
    format.height = static_cast<unsigned>(height);
    const bool words = job.sample == ScaleSample::Gray16;
    format.pixel_type = words ? ZIMG_PIXEL_WORD : ZIMG_PIXEL_BYTE;
    format.depth = words ? 16 : 8;
    format.pixel_range = ZIMG_RANGE_FULL;
    if (job.sample == ScaleSample::ARGB8) {
        format.color_family = ZIMG_COLOR_RGB;
        format.matrix_coefficients = ZIMG_MATRIX_RGB;
    }
    return format;
}

// Both widen with the ratio, so that every source pixel counts. The linear one, whose weights are
// never negative, is nearest to the mean of an area; the cubic one is smooth where a side grows.
bool IsCubic(const ScaleJob& job)
{
    return job.targetWidth > job.sourceWidth || job.targetHeight > job.sourceHeight;
}

// How far a result reaches to each side, in source pixels of an axis.
double ReachOf(const ScaleJob& job, int source, int target)
{
    return (IsCubic(job) ? 2.0 : 1.0) * std::max(1.0, static_cast<double>(source) / target);
}

// The library takes no axis, whole or window, that its kernel reaches across.
bool IsServed(const ScaleJob& job, int source, int target)
{
    return source <= kMostSide && target <= kMostSide && source / target <= kMostRatio &&
           (source == target || source > ReachOf(job, source, target));
}

// Moves the ends of a window apart until the library takes it.
void Widen(double reach, int source, int target, std::int32_t* begin, std::int32_t* end)
{
    const double results = reach * target / source;
    const int least = std::min(target, static_cast<int>(results) + 2);
    if (*end - *begin >= least)
        return;
    *begin = std::min(*begin, target - least);
    *end = *begin + least;
}

// The source rows that the window's rows are made of.
struct Span {
    int first, count;
};

Span SpanOf(const ScaleJob& job)
{
    if (job.window.top == 0 && job.window.bottom == job.targetHeight)
        return {0, job.sourceHeight};
    const double ratio = static_cast<double>(job.sourceHeight) / job.targetHeight;
    const double reach = std::ceil(ReachOf(job, job.sourceHeight, job.targetHeight)) + 1;
    const int first = static_cast<int>(std::floor((job.window.top + 0.5) * ratio - reach));
    const int end = static_cast<int>(std::ceil((job.window.bottom - 0.5) * ratio + reach));
    const int begin = std::max(first, 0);
    return {begin, std::min(end, job.sourceHeight) - begin};
}

// The library moves rows of a window that begins far down in its source: it gets no more than the
// rows that it needs, and whole rows.
ScaleGraph MakeGraph(const ScaleJob& job)
{
    const Span rows = SpanOf(job);
    const int height = job.window.bottom - job.window.top;
    zimg_image_format source = FormatOf(job, job.sourceWidth, rows.count);
    const zimg_image_format target = FormatOf(job, job.targetWidth, height);
    if (job.targetHeight != job.sourceHeight || height != job.targetHeight) {
        const auto share = [&job](int row) {
            return static_cast<double>(std::int64_t{row} * job.sourceHeight) / job.targetHeight;
        };
        const double nudge = job.targetHeight == job.sourceHeight ? 0 : kNudge;
        source.active_region = {0, share(job.window.top) - rows.first + nudge,
                                static_cast<double>(job.sourceWidth), share(height)};
    }
    zimg_graph_builder_params parameters;
    zimg_graph_builder_params_default(&parameters, ZIMG_API_VERSION);
    parameters.resample_filter = IsCubic(job) ? ZIMG_RESIZE_BICUBIC : ZIMG_RESIZE_BILINEAR;
    parameters.resample_filter_uv = parameters.resample_filter;
    // The cubic that keeps the source's own values at their places: an axis of the same size stays
    // as it is, also where a window moves it.
    parameters.filter_param_a = parameters.filter_param_a_uv = 0;
    parameters.filter_param_b = parameters.filter_param_b_uv = 0.5;
    parameters.cpu_type = ZIMG_CPU_AUTO_64B;
    return {zimg_filter_graph_build(&source, &target, &parameters), ScaleGraphFree()};
}

// --- keeping them --------------------------------------------------------------------------------

struct KeptGraph {
    ScaleJob job;
    ScaleGraph graph;
};
struct KeptGraphs {
    std::mutex lock;
    std::vector<KeptGraph> graphs;  // the last used one first
};

KeptGraphs& Kept()
{
    static KeptGraphs kKeptGraphs;
    return kKeptGraphs;
}

// Of a process forked off while a thread held the lock, the lock stays held: then nothing is kept.
ScaleGraph FindKept(const ScaleJob& job)
{
    KeptGraphs& kept = Kept();
    const std::unique_lock<std::mutex> lock(kept.lock, std::try_to_lock);
    if (!lock)
        return nullptr;
    const auto found = std::ranges::find(kept.graphs, job, &KeptGraph::job);
    if (found == kept.graphs.end())
        return nullptr;
    std::rotate(kept.graphs.begin(), found, found + 1);
    return kept.graphs.front().graph;
}

void Keep(const ScaleJob& job, const ScaleGraph& graph)
{
    KeptGraphs& kept = Kept();
    const std::unique_lock<std::mutex> lock(kept.lock, std::try_to_lock);
    if (!lock)
        return;
    if (kept.graphs.size() == kKept)
        kept.graphs.pop_back();
    kept.graphs.insert(kept.graphs.begin(), {job, graph});
}

// --- running them --------------------------------------------------------------------------------

PixelBlock AlignedBlock(std::size_t size)
{
    const std::size_t whole = (size + kAlignment - 1) / kAlignment * kAlignment;
    void* const block = std::aligned_alloc(kAlignment, std::max(whole, kAlignment));
    PixelBlock owner(static_cast<std::uint8_t*>(block));
    if (owner)  // ends of rows are read along with the last pixels
        std::fill_n(owner.get(), whole, std::uint8_t{0});
    return owner;
}

// The few rows that the library holds of a picture at one time, plane by plane.
struct RowRing {
    unsigned mask = 0;
    std::ptrdiff_t stride = 0;
    std::size_t planeBytes = 0;
    PixelBlock block;

    RowRing(unsigned rows, int width, int height, int sampleBytes, int planes)
        : mask(zimg_select_buffer_mask(rows))
    {
        const auto bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(sampleBytes);
        const std::size_t padded = (bytes + kAlignment - 1) / kAlignment * kAlignment;
        stride = static_cast<std::ptrdiff_t>(padded);
        const std::size_t kept =
            mask == ZIMG_BUFFER_MAX ? static_cast<std::size_t>(height) : std::size_t{mask} + 1;
        planeBytes = padded * kept;
        block = AlignedBlock(planeBytes * static_cast<std::size_t>(planes));
    }
    [[nodiscard]] std::uint8_t* Row(unsigned row, int plane = 0) const
    {
        return block.get() + planeBytes * static_cast<std::size_t>(plane) +
               static_cast<std::ptrdiff_t>(row & mask) * stride;
    }
};

struct Run {
    const ScaleJob& job;
    Span rows;
    ScaleEnds* ends;
    RowRing in, out;
    std::vector<std::uint8_t> argb;  // one row, between planes and ends
};

// The planes' rows from column `first` on.
PixelLanes::ColorRows ColorsOf(const RowRing& ring, unsigned row, unsigned first)
{
    return {ring.Row(row, 0) + first, ring.Row(row, 1) + first, ring.Row(row, 2) + first};
}

int LoadPiece(void* user, unsigned row, unsigned left, unsigned right)
{
    Run& run = *static_cast<Run*>(user);
    const int sourceRow = run.rows.first + static_cast<int>(row);
    const int first = static_cast<int>(left), count = static_cast<int>(right - left);
    if (run.job.sample != ScaleSample::ARGB8) {
        const int bytes = ScaleSampleBytes(run.job.sample);
        run.ends->Load(sourceRow, first, count, run.in.Row(row) + std::ptrdiff_t{first} * bytes);
        return 0;
    }
    run.ends->Load(sourceRow, first, count, run.argb.data());
    PixelLanes::SplitARGB(run.argb.data(), right - left, ColorsOf(run.in, row, left));
    return 0;
}

int PutPiece(void* user, unsigned row, unsigned left, unsigned right)
{
    Run& run = *static_cast<Run*>(user);
    const int targetRow = run.job.window.top + static_cast<int>(row);
    const int first = static_cast<int>(left), count = static_cast<int>(right - left);
    if (run.job.sample != ScaleSample::ARGB8) {
        const auto skipped = left * static_cast<unsigned>(ScaleSampleBytes(run.job.sample));
        run.ends->Put(targetRow, first, count, run.out.Row(row) + skipped);
        return 0;
    }
    PixelLanes::JoinARGB(ColorsOf(run.out, row, left), right - left, run.argb.data());
    run.ends->Put(targetRow, first, count, run.argb.data());
    return 0;
}

template <typename Buffer>
Buffer BufferOf(const RowRing& ring, int planes)
{
    Buffer buffer{};
    buffer.version = ZIMG_API_VERSION;
    for (int plane = 0; plane < planes; ++plane)
        buffer.plane[plane] = {ring.Row(0, plane), ring.stride, ring.mask};
    return buffer;
}

}  // namespace

void ScaleGraphFree::operator()(zimg_filter_graph* graph) const noexcept
{
    zimg_filter_graph_free(graph);
}

bool HasScaleGraph(const ScaleJob& job)
{
    return IsServed(job, job.sourceWidth, job.targetWidth) &&
           IsServed(job, job.sourceHeight, job.targetHeight);
}

LongRect ScaleGraphWindow(const ScaleJob& job)
{
    LongRect window = job.window;
    window.left = 0;
    window.right = job.targetWidth;
    Widen(ReachOf(job, job.sourceHeight, job.targetHeight), job.sourceHeight, job.targetHeight,
          &window.top, &window.bottom);
    return window;
}

ScaleGraph FindScaleGraph(const ScaleJob& job)
{
    ScaleGraph graph = FindKept(job);
    if (!graph) {
        graph = MakeGraph(job);
        if (graph)
            Keep(job, graph);
    }
    return graph;
}

bool RunScaleGraph(const ScaleGraph& graph, const ScaleJob& job, ScaleEnds* ends)
{
    std::size_t scratchBytes = 0;
    unsigned inRows = 0, outRows = 0;
    if (zimg_filter_graph_get_tmp_size(graph.get(), &scratchBytes) ||
        zimg_filter_graph_get_input_buffering(graph.get(), &inRows) ||
        zimg_filter_graph_get_output_buffering(graph.get(), &outRows))
        return false;
    const bool colors = job.sample == ScaleSample::ARGB8;
    const int planes = colors ? 3 : 1, bytes = job.sample == ScaleSample::Gray16 ? 2 : 1;
    const Span rows = SpanOf(job);
    Run run{job,
            rows,
            ends,
            RowRing(inRows, job.sourceWidth, rows.count, bytes, planes),
            RowRing(outRows, job.targetWidth, job.window.bottom - job.window.top, bytes, planes),
            {}};
    if (colors)
        run.argb.resize(4 * static_cast<std::size_t>(std::max(job.targetWidth, job.sourceWidth)));
    const PixelBlock scratch = AlignedBlock(scratchBytes);
    if (!run.in.block || !run.out.block || !scratch)
        return false;
    const auto in = BufferOf<zimg_image_buffer_const>(run.in, planes);
    const auto out = BufferOf<zimg_image_buffer>(run.out, planes);
    return zimg_filter_graph_process(graph.get(), &in, &out, scratch.get(), LoadPiece, &run,
                                     PutPiece, &run) == ZIMG_ERROR_SUCCESS;
}

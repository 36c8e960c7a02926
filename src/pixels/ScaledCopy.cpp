#include "pixels/ScaledCopy.h"

#include "pixels/RowPool.h"
#include "pixels/ScaleKernel.h"
#include "pixels/TargetRows.h"

#include <atomic>
#include <new>

namespace {

struct Copy {
    const CopyEnd& source;
    const CopyEnd& target;
    SampleKind kind;
    const IndexMap* indexMap;
    CopyMode mode;
};

ScaleSample SampleOf(SampleKind kind)
{
    switch (kind) {
        case SampleKind::ARGB:
            return ScaleSample::ARGB8;
        case SampleKind::Gray16:
            return ScaleSample::Gray16;
        default:
            return ScaleSample::Gray8;
    }
}

// Rows of the two maps, converted on their way in and out.
class CopyEnds : public ScaleEnds {
public:
    CopyEnds(const Copy& copy, const LongRect& window)
        : fKind(copy.kind),
          fWindow(window),
          fIn(copy.source.view, copy.source.layout, copy.source.rect, copy.kind, copy.indexMap),
          fOut(copy.target.view, copy.target.layout, InMap(copy.target.rect, window), copy.mode)
    {
        if (!fOut.NeedsWholeRows())
            return;
        fRowBytes = static_cast<std::size_t>(window.right - window.left) *
                    static_cast<std::size_t>(SampleBytes(fKind));
        fBlock.resize(fRowBytes * static_cast<std::size_t>(window.bottom - window.top));
    }
    void Load(int row, int first, int count, std::uint8_t* samples) override
    {
        fIn.Load(row, first, count, samples);
    }
    void Put(int row, int first, int count, const std::uint8_t* samples) override
    {
        row -= fWindow.top;
        first -= fWindow.left;
        if (fBlock.empty()) {
            fOut.Put(row, first, count, fKind, samples);
            return;
        }
        const auto bytes = static_cast<std::size_t>(SampleBytes(fKind));
        std::copy_n(samples, static_cast<std::size_t>(count) * bytes,
                    fBlock.data() + static_cast<std::size_t>(row) * fRowBytes +
                        static_cast<std::size_t>(first) * bytes);
    }
    // After the last piece: what waited for its row to be whole.
    void Finish()
    {
        const int rows = fWindow.bottom - fWindow.top, count = fWindow.right - fWindow.left;
        for (int row = 0; row < rows && !fBlock.empty(); ++row)
            fOut.Put(row, 0, count, fKind,
                     fBlock.data() + static_cast<std::size_t>(row) * fRowBytes);
    }

private:
    static Rect InMap(const Rect& target, LongRect window)
    {
        OffsetLRect(&window, target.left, target.top);
        return LRectToRect(window);
    }
    SampleKind fKind;
    LongRect fWindow;
    SourceRows fIn;
    TargetRows fOut;
    std::size_t fRowBytes = 0;
    std::vector<std::uint8_t> fBlock;  // of the whole window, for a target that needs whole rows
};

// Pixels read and written, in planes.
std::int64_t WorkOf(const ScaleJob& job)
{
    const std::int64_t written =
        std::int64_t{job.window.right - job.window.left} * (job.window.bottom - job.window.top);
    const double share = static_cast<double>(written) / job.targetWidth / job.targetHeight;
    const auto read = static_cast<std::int64_t>(share * job.sourceWidth * job.sourceHeight);
    return (written + read) * (job.sample == ScaleSample::ARGB8 ? 3 : 1);
}

void ScaleWindow(const Copy& copy, const ScaleJob& job)
{
    CopyEnds ends(copy, job.window);
    ScaleSamples(job, &ends);
    ends.Finish();
}

}  // namespace

void CopyScaled(const CopyEnd& source, const CopyEnd& target, const Rect& window, SampleKind kind,
                const IndexMap* indexMap, CopyMode mode)
{
    const Copy copy{source, target, kind, indexMap, mode};
    ScaleJob job{SampleOf(kind),       WidthOf(source.rect),  HeightOf(source.rect),
                 WidthOf(target.rect), HeightOf(target.rect), RectToLRect(window)};
    OffsetLRect(&job.window, -target.rect.left, -target.rect.top);
    // Dithering hands its errors from row to row.
    const int parts =
        mode == CopyMode::Dither && target.layout.Indexed() ? 1 : PartsOfWork(WorkOf(job));
    std::atomic<bool> noMemory = false;
    RunParts(parts, [&](int part) {
        try {
            ScaleJob rows = job;
            const int height = HeightOf(window);
            rows.window.top = job.window.top + height * part / parts;
            rows.window.bottom = job.window.top + height * (part + 1) / parts;
            if (rows.window.top < rows.window.bottom)
                ScaleWindow(copy, rows);
        } catch (const std::bad_alloc&) {
            noMemory = true;
        }
    });
    if (noMemory)
        throw std::bad_alloc();
}

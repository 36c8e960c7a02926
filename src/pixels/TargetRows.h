// Rows of a copy's target: takes samples, writes pixels. Internal to this folder.
#pragma once
#include "pixels/SourceRows.h"

#include <vector>

class TargetRows {
public:
    // `window` is what is written, in the map's coordinates and within its bounds. Rows are put
    // from the first to the last: dithering hands its errors down.
    TargetRows(const PixView& view, const PixelLayout& layout, const Rect& window, CopyMode mode);
    // Samples of row `row` of the window; a row of `Native` is in the target's own format. The
    // samples may be the very pixels that are written.
    void Put(int row, SampleKind kind, const std::uint8_t* samples)
    {
        Put(row, 0, WidthOf(fWindow), kind, samples);
    }
    // The same for a piece of a row, from its column `first` on.
    void Put(int row, int first, int count, SampleKind kind, const std::uint8_t* samples);
    // No pieces, please.
    [[nodiscard]] bool NeedsWholeRows() const { return !fErrors.empty(); }

private:
    void PutGray8(const std::uint8_t* gray, int count, std::uint8_t* pixels);
    void PutARGB(const std::uint8_t* argb, int count, std::uint8_t* pixels);
    void PutMatched(const std::uint8_t* argb, int count, std::uint8_t* indexes);
    void PutDithered(const std::uint8_t* argb, std::uint8_t* indexes);
    void Invert(std::uint8_t* pixels, int count) const;

    const PixView& fView;
    PixelLayout fLayout;
    Rect fWindow;
    CopyMode fMode;
    bool fRamp;  // a target of format 40's own meaning needs no search
    ColorMatcher fMatcher;
    std::vector<std::uint8_t> fIndexes;  // of a row, before they are packed
    std::vector<std::uint8_t> fWide;     // a gray row as ARGB
    std::vector<int> fErrors;            // three a pixel, in 16ths, with one pixel more at each end
};

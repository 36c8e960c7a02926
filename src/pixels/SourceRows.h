// Rows of a copy's source, turned into the samples that the copy works on. Internal.
#pragma once
#include "pixels/ColorMatch.h"
#include "pixels/PixView.h"
#include "pixels/PixelFormat.h"

#include <vector>

enum class SampleKind : std::uint8_t {
    Native,  // the pixel's own bytes, of 8 bits and more
    Index,   // a pixel value of the target, one a byte
    Gray8,   // one byte, 0 black
    Gray16,  // one word in the machine's order, 0 black
    ARGB,    // four bytes
};
// Bytes of one sample; not for `Native`.
[[nodiscard]] int SampleBytes(SampleKind kind);

using IndexMap = std::array<std::uint8_t, 256>;  // source index to target index

class SourceRows {
public:
    // `indexMap` serves `Index` and is borrowed; null where indexes stay what they are.
    SourceRows(const PixView& view, const PixelLayout& layout, const Rect& from, SampleKind kind,
               const IndexMap* indexMap);
    // Row `row` of the rectangle where it stands, when its bytes are the samples already; else
    // null.
    [[nodiscard]] const std::uint8_t* Direct(int row) const;
    // Samples of row `row`, columns `first` to `first + count`, of the rectangle; `Direct` is null.
    void Load(int row, int first, int count, std::uint8_t* samples);

private:
    void LoadARGB(const std::uint8_t* row, int first, int count, std::uint8_t* samples);

    const PixView& fView;
    PixelLayout fLayout;
    Rect fFrom;
    SampleKind fKind;
    const IndexMap* fIndexMap;
    ColorLookup fColors{};
    IndexMap fGrays{};   // of a gray table
    bool fRamp = false;  // which is that of format 40
    std::vector<std::uint8_t> fIndexes;
};

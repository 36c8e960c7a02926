// What the marker segments of a JPEG stream say, ITU-T T.81 Annex B. Internal.
#pragma once
#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string>

struct QvxJPEGComponent {
    std::uint8_t fID = 0, fHorizontal = 1, fVertical = 1;  // sampling factors
};

struct QvxJPEGHeader {
    std::uint8_t fFrameMarker = 0;  // 0xC0 to 0xCF of the frame header
    std::uint32_t fPrecision = 0, fRows = 0, fColumns = 0, fComponents = 0;
    std::array<QvxJPEGComponent, 4> fComponent;
    bool fJFIF = false;
    int fAdobeTransform = -1;  // -1: no Adobe segment
    std::uint32_t fScans = 0;

    [[nodiscard]] bool IsLossless() const { return fFrameMarker == 0xC3; }
    [[nodiscard]] bool IsProgressive() const { return fFrameMarker == 0xC2; }
    // Baseline, extended or progressive of DCT, coded by Huffman.
    [[nodiscard]] bool IsDCT() const { return fFrameMarker >= 0xC0 && fFrameMarker <= 0xC2; }
    // Every component is as fine as the finest, or coarser by a whole factor.
    [[nodiscard]] bool HasWholeFactors() const
    {
        std::uint8_t across = 1, down = 1;
        for (std::uint32_t i = 0; i < fComponents && i < fComponent.size(); ++i) {
            across = std::max(across, fComponent[i].fHorizontal);
            down = std::max(down, fComponent[i].fVertical);
        }
        for (std::uint32_t i = 0; i < fComponents && i < fComponent.size(); ++i) {
            if (across % fComponent[i].fHorizontal != 0 || down % fComponent[i].fVertical != 0)
                return false;
        }
        return across <= 4 && down <= 4;
    }
    [[nodiscard]] bool IsSubsampled() const
    {
        for (std::uint32_t i = 0; i < fComponents && i < fComponent.size(); ++i) {
            if (fComponent[i].fHorizontal != fComponent[0].fHorizontal ||
                fComponent[i].fVertical != fComponent[0].fVertical)
                return true;
        }
        return false;
    }
};

// No progressive stream is followed further.
inline constexpr std::uint32_t kMaxJPEGScans = 100;

// False, with a reason, when there is no frame header. A stream may be cut anywhere behind it. The
// scans of progressive streams are counted, up to one more than kMaxJPEGScans.
[[nodiscard]] bool QvxReadJPEGHeader(std::span<const std::uint8_t> stream, QvxJPEGHeader* header,
                                     std::string* why);
// An end-of-image marker is in the stream: it was not cut.
[[nodiscard]] bool QvxHasJPEGEnd(std::span<const std::uint8_t> stream);

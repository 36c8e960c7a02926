// The frame table of a sequence: one record a frame, in the order of showing, the edits of the user
// on them, and all answers of timing. Frames count from 1. In the edits 0 is the current frame, -1
// all frames, and any other number outside of the table does nothing. Times are milliseconds.
#pragma once
#include "dicom_core/tree/dk_ImageFrameInfo.h"

#include <vector>

// Flags of RevertFrame and CanRevertFrame.
inline constexpr std::int32_t kRevertColors =
    1;  // window, brightness and contrast, negative, colours
inline constexpr std::int32_t kRevertScroll = 2;    // CanRevert: a turn or a flip
inline constexpr std::int32_t kRevertScrolled = 4;  // CanRevert only
inline constexpr std::int32_t kRevertWindow = 16;   // window, brightness and contrast
inline constexpr std::int32_t kRevertColorTable = 32;
inline constexpr std::int32_t kRevertAll = -1;

class dk_SequenceFrameInfo {
public:
    static constexpr std::int32_t kCurrentFrame = 0, kAllFrames = -1;
    static constexpr std::int32_t kRateOne = 0x10000;  // 16.16

    [[nodiscard]] dk_ImageFrameInfo* GetImageFrameInfo(std::int32_t frame);  // 0: the current one

    void RevertAllTransformations(std::int32_t frame);
    void SetFrameZoom(std::int32_t frame, std::int32_t zoom);  // 16.16
    void SetFrameScroll(std::int32_t frame, CGPoint scroll);
    void SetFrameAutoFit(std::int32_t frame, bool autoFit);
    void InvertFrame(std::int32_t frame);
    void ResetFrameInvert(std::int32_t frame);
    void VerticalFlipFrame(std::int32_t frame);
    void HorizontalFlipFrame(std::int32_t frame);
    void ResetFrameFlips(std::int32_t frame);
    void RotateFrame(std::int32_t frame, std::int16_t degrees);
    void SetFrameVOI(std::int32_t frame, float width, float level);
    void SetFrameVOITable(std::int32_t frame, const std::shared_ptr<const zelVOITable>& table);
    void SetFrameBnC(std::int32_t frame, std::int32_t brightness, std::int32_t contrast);
    void ResetFrameVOI(std::int32_t frame);
    void SetFrameColorTable(std::int32_t frame, std::int32_t table);
    void RevertFrame(std::int32_t frame, std::int32_t flags);
    [[nodiscard]] bool CanRevertFrame(std::int32_t frame, std::int32_t flags) const;

    // `singleFile`: each file is a sequence of its own (Modality_HasSingleFileSequences).
    [[nodiscard]] float GetTotalSequenceDuration(bool singleFile);
    void LoadFrameTimes(bool singleFile);
    [[nodiscard]] float GetFrameDuration(std::int32_t frame, bool singleFile);
    [[nodiscard]] float GetTimePosOfFrame(std::int32_t frame, bool singleFile);
    [[nodiscard]] std::int32_t GetFrameForTimePos(float time, bool singleFile);

    // `firstForAll`: the first frame stands for all.
    [[nodiscard]] QvxStatus GetMaxFrameSize(Point* size, bool firstForAll);
    [[nodiscard]] QvxStatus GetMinFrameSize(Point* size, bool firstForAll);
    [[nodiscard]] QvxStatus GetFrameSizeEnvelop(Point* size, bool firstForAll);
    [[nodiscard]] QvxStatus GetFrameSizeNormalEnvelop(Point* size, bool firstForAll);

    std::vector<dk_ImageFrameInfo> fFrames;  // empty until built
    std::int32_t fNumFrames = -1;            // -1 until counted
    std::int32_t fCurrentFrame = 0;          // 0 without a table
    std::int32_t fCineRate = kRateOne;       // speed factor, 16.16
    bool fFrameTimesLoaded = false;
    float fTotalDuration = -1.0F;  // -1 until computed

private:
    std::vector<double> fFrameEnds;  // running sum of the durations, computed with the total
};

// What the module "ffmpeg" exports: clips of MPEG-2, H.264 and HEVC, frame by frame. C linkage; the
// toolkit calls it through QvxModuleFunction. Nothing is thrown. A clip belongs to one thread at a
// time; it reads only while one of its functions runs.
#pragma once
#include <cstddef>
#include <cstdint>

// The stream: elementary, transport, program stream or MP4. All pointers stay valid until the clip
// is closed.
struct QvxVideoInput {
    void* fContext;
    std::uint64_t fSize;  // bytes
    // Reads up to `count` bytes from `offset` on; answers how many, below 0 on a failure. Offsets
    // at or behind fSize are not asked for.
    std::int32_t (*fRead)(void* context, std::uint64_t offset, std::uint8_t* dest,
                          std::int32_t count);
};

// What the pictures must be, and what is made of them.
struct QvxVideoFormat {
    std::uint32_t fRows, fColumns;  // shown size; a stream of another one is refused
    std::uint32_t fSamples;         // 3: red, green, blue interleaved; 1: gray
    std::uint32_t fBits;            // of a sample, 1 to 16; above 8 they are 16-bit, in host order
};

enum QvxVideoResult : std::int32_t {
    kVideoDone = 0,
    kVideoNoMemory,
    kVideoNotAStream,  // no container or codec of those above
    kVideoWrongSize,   // the stream's pictures have another size
    kVideoEnds,        // the stream has no such frame
    kVideoBroken,      // it can't be decoded
    kVideoUnread,      // fRead failed; a clip opened anew may do better
};

struct QvxVideoSize {
    std::uint32_t fRows, fColumns;
};

extern "C" {
// Opens a stream and decodes its first picture. `size` gets what the stream says, with
// kVideoWrongSize; no memory is taken for such pictures.
using QvxVideoOpenProc = QvxVideoResult (*)(const QvxVideoInput* input,
                                            const QvxVideoFormat* format, void** clip,
                                            QvxVideoSize* size);
// Decodes frame `frame`, in the order of display, from 0. `dest` has room for rows * columns *
// samples, rows top-down without gaps. Frames in order are decoded once each; one that was passed
// from a key picture in front of it; one far ahead after all those in front of it.
using QvxVideoFrameProc = QvxVideoResult (*)(void* clip, std::uint32_t frame, void* dest);
// Decodes to the end, and counts.
using QvxVideoCountProc = QvxVideoResult (*)(void* clip, std::uint32_t* frames);
using QvxVideoCloseProc = void (*)(void* clip);
}

// Their names.
inline constexpr const char* kVideoModule = "ffmpeg";
inline constexpr const char* kVideoOpen = "QvxVideo_Open";
inline constexpr const char* kVideoFrame = "QvxVideo_Frame";
inline constexpr const char* kVideoCount = "QvxVideo_Count";
inline constexpr const char* kVideoClose = "QvxVideo_Close";

// Packets that are read of a stream; what follows is not there.
inline constexpr std::uint32_t kMaxVideoPackets = 1'000'000;

// Decodes on a thread of its own what will be shown next, and writes it as the base buffer keeps
// it, so that whoever shows it finds it there. The thread works on sources of its own and knows
// nothing of the tree; buffer and tree stay the main thread's, on which all operations are called.
#pragma once
#include "dicom_core/look/zelDPIFRecord.h"
#include "dicom_core/store/zel_ImageBuffer.h"
#include "pixels/zel_Offscreen.h"

#include "qpix/DicomCodec.h"
#include "qpix/zelImageSource.h"
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <thread>
#include <vector>

class dk_SequenceBase;

class DecodeAhead {
public:
    DecodeAhead() = default;
    ~DecodeAhead();  // waits for the frame in work
    DecodeAhead(const DecodeAhead&) = delete;
    DecodeAhead& operator=(const DecodeAhead&) = delete;

    // Frames of the sequence (from 1), the most urgent first, in place of what was wanted before
    // and isn't begun. Those out of range or in the buffer are left out; nothing without a buffer.
    // The thread is started when it is first needed.
    void Request(dk_SequenceBase* sequence, std::span<const std::int32_t> frames);
    // Puts finished frames into the base buffer, before `frame` is decoded by whoever asks. If that
    // one is in work it is waited for, as that ends sooner than decoding it again; if it is only
    // wanted it is no more. Without a sequence nothing is waited for. A frame that failed is
    // dropped: whoever shows it meets the fault itself.
    void Collect(dk_SequenceBase* sequence, std::int32_t frame);
    // It is wanted or in work.
    [[nodiscard]] bool IsPending(dk_SequenceBase* sequence, std::int32_t frame);
    void Forget();  // drops what is wanted, in work and finished

private:
    struct Key {
        std::int32_t primary = 0, secondary = 0;
        bool operator==(const Key&) const = default;
    };
    struct Job {
        Key key;
        std::unique_ptr<zelImageSource> source;
        std::string path;  // for its pixels; empty without
    };
    struct Frame {
        Key key;
        WrittenPixels pixels;
        std::unique_ptr<zel_Offscreen> offscreen;  // where they couldn't be written
        std::optional<zelDPIFRecord> facts;
    };
    // What the thread keeps between frames of one file.
    struct Opened {
        std::int32_t secondary = 0;
        std::unique_ptr<DicomCodec> codec;
        std::unique_ptr<zelImageSource> source;
        std::vector<std::uint8_t> block;  // through which pixels are written
    };

    [[nodiscard]] static std::optional<Key> KeyOf(dk_SequenceBase* sequence, std::int32_t frame);
    [[nodiscard]] bool StartThread();
    void Work();
    static void WritePixels(const std::string& path, Opened* opened, Frame* frame);
    // Null pixels and offscreen: failed.
    [[nodiscard]] static Frame Decode(Opened* opened, Job job);

    std::mutex fMutex;
    std::condition_variable fWanted, fDone;
    std::deque<Job> fJobs;
    std::optional<Key> fInWork;
    std::deque<Frame> fFrames;
    unsigned fForgotten = 0;  // how often
    bool fStop = false;
    std::thread fThread;
};

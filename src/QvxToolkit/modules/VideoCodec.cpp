// The module's functions: see QvxVideoModule.h.
#include "QvxToolkit/modules/VideoLearner.h"
#include "QvxToolkit/modules/VideoPixels.h"
#include "QvxToolkit/modules/VideoRevisit.h"
#include <new>

extern "C" {
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

namespace {

// No block of FFmpeg's is larger: a plane of a frame fits, an endless table of a container doesn't.
constexpr std::size_t kLargestBlock = std::size_t{1} << 28;

class VideoClip {
public:
    VideoClip(const QvxVideoInput& input, const QvxVideoFormat& format)
        : fBytes(input),
          fPixels(format),
          fLearner(&fBytes, format, &fIndex),
          fRevisit(&fBytes, format, fIndex)
    {
    }

    QvxVideoResult Open()
    {
        fBytes.RenewAllowance();
        return Settled(fLearner.Open());
    }

    QvxVideoResult Frame(std::uint32_t number, void* dest)
    {
        fBytes.RenewAllowance();
        return Settled(Decode(number, dest));
    }

    QvxVideoResult Count(std::uint32_t* frames)
    {
        fBytes.RenewAllowance();
        QvxVideoResult result = kVideoDone;
        while (result == kVideoDone)
            result = fLearner.Learn();
        if (result != kVideoNoMemory && !fIndex.fPictures.empty())
            result = kVideoDone;
        *frames = static_cast<std::uint32_t>(fIndex.fPictures.size());
        return Settled(result);
    }

    [[nodiscard]] QvxVideoSize StatedSize() const { return fLearner.StatedSize(); }

private:
    [[nodiscard]] QvxVideoResult Settled(QvxVideoResult result) const
    {
        return fBytes.HasFailed() ? kVideoUnread : result;
    }

    QvxVideoResult Decode(std::uint32_t number, void* dest)
    {
        while (fIndex.fPictures.size() <= number) {
            if (const QvxVideoResult result = fLearner.Learn())
                return result;
        }
        const AVFrame* last = fLearner.Picture();
        if (last && number + 1 == fIndex.fPictures.size())
            return fPixels.Convert(*last, dest);
        if (const QvxVideoResult result = fRevisit.Find(number))
            return result == kVideoEnds ? kVideoBroken : result;
        return fPixels.Convert(fRevisit.Picture(), dest);
    }

    VideoBytes fBytes;
    VideoPixels fPixels;
    VideoIndex fIndex;
    VideoLearner fLearner;
    VideoRevisit fRevisit;
};

// Whatever a clip does, it throws nothing but this.
template <typename Do>
QvxVideoResult Guarded(Do&& act)
{
    try {
        return act();
    } catch (const std::bad_alloc&) {
        return kVideoNoMemory;
    }
}

}  // namespace

#define ZEL_EXPORT __attribute__((visibility("default")))

extern "C" {

ZEL_EXPORT QvxVideoResult QvxVideo_Open(const QvxVideoInput* input, const QvxVideoFormat* format,
                                        void** clip, QvxVideoSize* size)
{
    av_log_set_level(AV_LOG_QUIET);
    av_max_alloc(kLargestBlock);
    return Guarded([&] {
        auto opened = std::make_unique<VideoClip>(*input, *format);
        const QvxVideoResult result = opened->Open();
        if (result == kVideoDone)
            *clip = opened.release();
        else
            *size = opened->StatedSize();
        return result;
    });
}

ZEL_EXPORT QvxVideoResult QvxVideo_Frame(void* clip, std::uint32_t frame, void* dest)
{
    return Guarded([&] { return static_cast<VideoClip*>(clip)->Frame(frame, dest); });
}

ZEL_EXPORT QvxVideoResult QvxVideo_Count(void* clip, std::uint32_t* frames)
{
    return Guarded([&] { return static_cast<VideoClip*>(clip)->Count(frames); });
}

ZEL_EXPORT void QvxVideo_Close(void* clip)
{
    const std::unique_ptr<VideoClip> closed(static_cast<VideoClip*>(clip));
}

}  // extern "C"

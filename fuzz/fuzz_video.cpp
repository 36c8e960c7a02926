// Clips: any stream through the module. The first byte chooses the samples, the next two the size;
// frames are asked for out of order, then counted.
#include "QvxToolkit/QvxModule.h"
#include "QvxToolkit/QvxVideoModule.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

namespace {

constexpr std::uint32_t kMostFrames = 40;

template <typename Proc>
Proc Find(const char* name)
{
    void* found = QvxModuleFunction(kVideoModule, name, nullptr);
    if (!found)
        std::abort();
    return reinterpret_cast<Proc>(found);
}

std::int32_t Read(void* stream, std::uint64_t offset, std::uint8_t* dest, std::int32_t count)
{
    const auto& bytes = *static_cast<std::span<const std::uint8_t>*>(stream);
    if (offset >= bytes.size() || count < 1)
        std::abort();
    const std::size_t there =
        std::min(bytes.size() - static_cast<std::size_t>(offset), static_cast<std::size_t>(count));
    std::memcpy(dest, bytes.data() + offset, there);
    return static_cast<std::int32_t>(there);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto open = Find<QvxVideoOpenProc>(kVideoOpen);
    static const auto frame = Find<QvxVideoFrameProc>(kVideoFrame);
    static const auto count = Find<QvxVideoCountProc>(kVideoCount);
    static const auto close = Find<QvxVideoCloseProc>(kVideoClose);
    if (size < 4)
        return 0;
    std::span<const std::uint8_t> stream(data + 3, size - 3);
    const QvxVideoFormat format{std::uint32_t{data[1]} + 1, std::uint32_t{data[2]} + 1,
                                (data[0] & 1) != 0 ? 1U : 3U, (data[0] & 2) != 0 ? 10U : 8U};
    const QvxVideoInput input{&stream, stream.size(), Read};
    void* clip = nullptr;
    QvxVideoSize stated{0, 0};
    if (open(&input, &format, &clip, &stated) != kVideoDone) {
        if (clip)
            std::abort();
        return 0;
    }
    std::vector<std::uint8_t> samples(std::size_t{format.fRows} * format.fColumns *
                                      format.fSamples * (format.fBits > 8 ? 2 : 1));
    for (std::uint32_t i = 0; i < kMostFrames; ++i)
        (void)frame(clip, i * 7 % kMostFrames, samples.data());
    std::uint32_t frames = 0;
    if (count(clip, &frames) == kVideoDone && frames == 0)
        std::abort();
    close(clip);
    return 0;
}

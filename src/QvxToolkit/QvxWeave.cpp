#include "QvxToolkit/QvxWeave.h"

// This file is compiled once for each kind of processor: foreach_target.h includes it again.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "QvxToolkit/QvxWeave.cpp"
#include <cstring>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zel_weave {
namespace HWY_NAMESPACE {  // NOLINT: one namespace for each kind of processor
namespace hn = hwy::HWY_NAMESPACE;

template <typename T, std::size_t kPlanes>
void Weave(const std::uint8_t* const* planes, std::size_t count, std::uint8_t* bytes)
{
    const hn::ScalableTag<T> tag;
    const std::size_t lanes = hn::Lanes(tag);
    const auto load = [&](std::size_t plane, std::size_t at) {
        return hn::LoadU(tag, reinterpret_cast<const T*>(planes[plane]) + at);
    };
    T* to = reinterpret_cast<T*>(bytes);
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes) {
        T* at = to + i * kPlanes;
        if constexpr (kPlanes == 2)
            hn::StoreInterleaved2(load(0, i), load(1, i), tag, at);
        else if constexpr (kPlanes == 3)
            hn::StoreInterleaved3(load(0, i), load(1, i), load(2, i), tag, at);
        else
            hn::StoreInterleaved4(load(0, i), load(1, i), load(2, i), load(3, i), tag, at);
    }
    for (; i < count; ++i) {
        for (std::size_t plane = 0; plane < kPlanes; ++plane)
            std::memcpy(to + i * kPlanes + plane, planes[plane] + i * sizeof(T), sizeof(T));
    }
}

template <typename T>
void WeaveOf(const std::uint8_t* const* planes, std::size_t planeCount, std::size_t count,
             std::uint8_t* to)
{
    switch (planeCount) {
        case 2:
            return Weave<T, 2>(planes, count, to);
        case 3:
            return Weave<T, 3>(planes, count, to);
        default:
            return Weave<T, 4>(planes, count, to);
    }
}

void WeaveAny(const std::uint8_t* const* planes, std::size_t planeCount, std::size_t elementBytes,
              std::size_t count, std::uint8_t* to)
{
    switch (elementBytes) {
        case 1:
            return WeaveOf<std::uint8_t>(planes, planeCount, count, to);
        case 2:
            return WeaveOf<std::uint16_t>(planes, planeCount, count, to);
        default:
            return WeaveOf<std::uint32_t>(planes, planeCount, count, to);
    }
}

}  // namespace HWY_NAMESPACE
}  // namespace zel_weave
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zel_weave {
HWY_EXPORT(WeaveAny);
}  // namespace zel_weave

void QvxWeave(std::span<const std::uint8_t* const> planes, std::size_t elementBytes,
              std::size_t count, std::uint8_t* to)
{
    using namespace zel_weave;
    HWY_DYNAMIC_DISPATCH(WeaveAny)(planes.data(), planes.size(), elementBytes, count, to);
}
#endif

// The makers and the disposer of offscreens. On failure the output is null and what was begun is
// gone; the status and the arguments are those of `COffscreen::Create`.
#pragma once
#include "pixels/zel_Offscreen.h"

#include <type_traits>

namespace zel_OffscreenFactory {

[[nodiscard]] QvxStatus NewCOffscreen(const ImageDescription& description, int width, int height,
                                      bool temporary, std::unique_ptr<zel_Offscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                      bool temporary, std::unique_ptr<zel_Offscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                      std::int32_t horz, std::int32_t vert, bool temporary,
                                      std::unique_ptr<zel_Offscreen>* offscreen);

}  // namespace zel_OffscreenFactory

namespace COffscreenFactory {

[[nodiscard]] QvxStatus NewCOffscreen(const ImageDescription& description, int width, int height,
                                      bool temporary, std::unique_ptr<COffscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                      bool temporary, std::unique_ptr<COffscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                      std::int32_t horz, std::int32_t vert, bool temporary,
                                      std::unique_ptr<COffscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(const ImageDescription& description, int width, int height,
                                      bool temporary, std::unique_ptr<CQTOffscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                      bool temporary, std::unique_ptr<CQTOffscreen>* offscreen);
[[nodiscard]] QvxStatus NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                      std::int32_t horz, std::int32_t vert, bool temporary,
                                      std::unique_ptr<CQTOffscreen>* offscreen);

}  // namespace COffscreenFactory

// Frees an offscreen or a port at a moment that the caller names, and clears the owner. Whoever
// draws names the port it draws in, so no other place can still point to it.
template <typename T>
void DisposeOffsreen(std::unique_ptr<T>* offscreenOrPort)
{
    static_assert(std::is_base_of_v<COffscreen, T> || std::is_same_v<Port, T>);
    if (offscreenOrPort)
        offscreenOrPort->reset();
}

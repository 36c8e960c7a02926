#include "pixels/OffscreenFactory.h"

#include "pixels/Guarded.h"

namespace {

template <typename T, typename... Arguments>
QvxStatus NewOf(std::unique_ptr<T>* offscreen, const Arguments&... arguments)
{
    if (!offscreen)
        return kQvxBadArgument;
    offscreen->reset();
    return Guarded([&] {
        auto made = std::make_unique<T>();
        const QvxStatus status = made->Create(arguments...);
        if (status == kQvxOK)
            *offscreen = std::move(made);
        return status;
    });
}

}  // namespace

QvxStatus zel_OffscreenFactory::NewCOffscreen(const ImageDescription& description, int width,
                                              int height, bool temporary,
                                              std::unique_ptr<zel_Offscreen>* offscreen)
{
    return NewOf(offscreen, description, width, height, temporary);
}

QvxStatus zel_OffscreenFactory::NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                              bool temporary,
                                              std::unique_ptr<zel_Offscreen>* offscreen)
{
    return NewOf(offscreen, pixelFormat, width, height, temporary);
}

QvxStatus zel_OffscreenFactory::NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                              std::int32_t horz, std::int32_t vert, bool temporary,
                                              std::unique_ptr<zel_Offscreen>* offscreen)
{
    return NewOf(offscreen, pixelFormat, width, height, horz, vert, temporary);
}

QvxStatus COffscreenFactory::NewCOffscreen(const ImageDescription& description, int width,
                                           int height, bool temporary,
                                           std::unique_ptr<COffscreen>* offscreen)
{
    return NewOf(offscreen, description, width, height, temporary);
}

QvxStatus COffscreenFactory::NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                           bool temporary, std::unique_ptr<COffscreen>* offscreen)
{
    return NewOf(offscreen, pixelFormat, width, height, temporary);
}

QvxStatus COffscreenFactory::NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                           std::int32_t horz, std::int32_t vert, bool temporary,
                                           std::unique_ptr<COffscreen>* offscreen)
{
    return NewOf(offscreen, pixelFormat, width, height, horz, vert, temporary);
}

QvxStatus COffscreenFactory::NewCOffscreen(const ImageDescription& description, int width,
                                           int height, bool temporary,
                                           std::unique_ptr<CQTOffscreen>* offscreen)
{
    return NewOf(offscreen, description, width, height, temporary);
}

QvxStatus COffscreenFactory::NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                           bool temporary, std::unique_ptr<CQTOffscreen>* offscreen)
{
    return NewOf(offscreen, pixelFormat, width, height, temporary);
}

QvxStatus COffscreenFactory::NewCOffscreen(std::uint32_t pixelFormat, int width, int height,
                                           std::int32_t horz, std::int32_t vert, bool temporary,
                                           std::unique_ptr<CQTOffscreen>* offscreen)
{
    return NewOf(offscreen, pixelFormat, width, height, horz, vert, temporary);
}

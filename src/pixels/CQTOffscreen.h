// An offscreen whose port keeps the format that it was asked for, 24 and four-character ones
// included. Copying and inverting need nothing of their own: the copy knows every format.
#pragma once
#include "pixels/COffscreen.h"

class CQTOffscreen : public COffscreen {
public:
    [[nodiscard]] QvxStatus Create(const ImageDescription& description, int width, int height,
                                   bool temporary) override;
    [[nodiscard]] QvxStatus Create(std::uint32_t pixelFormat, int width, int height,
                                   bool temporary) override;
    [[nodiscard]] QvxStatus Create(std::uint32_t pixelFormat, int width, int height,
                                   std::int32_t horz, std::int32_t vert, bool temporary) override;
    void Destroy() override;

    // 0, or what the description's 'cspc' said, or the format that the offscreen was made with
    // when that is outside 1 to 40.
    [[nodiscard]] std::uint32_t GetColorSpace() const { return fColorSpace; }

    [[nodiscard]] QvxStatus Clone(const Rect* rect, bool temporary,
                                  std::unique_ptr<CQTOffscreen>* clone) const;
    // A new white offscreen of that size, from the description that this one was made from.
    [[nodiscard]] QvxStatus CloneSize(int width, int height, bool temporary,
                                      std::unique_ptr<CQTOffscreen>* clone) const;

private:
    std::uint32_t fColorSpace = 0;
};

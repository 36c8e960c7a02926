// The offscreen of a frame: it can put back the colour table that it began with, after windowing
// or colours of the user's have replaced it.
#pragma once
#include "pixels/CQTOffscreen.h"

#include <optional>

class zel_Offscreen : public CQTOffscreen {
public:
    ~zel_Offscreen() override = default;

    // Keeps a copy of the port's table, in place of an older one, when the port has at most 8 bits
    // a pixel and was made from a description of depth 2, 4, 8, 34, 36 or 40. Of other ports
    // nothing, with kQvxOK.
    [[nodiscard]] QvxStatus SaveColorTable();
    // Writes the copy over the port's table, by the rules of `EnforceColorTable`. Without a copy
    // nothing, with kQvxOK.
    [[nodiscard]] QvxStatus RestoreColorTable();

private:
    std::optional<ColorTable> fSavedTable;
};

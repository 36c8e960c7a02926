// Letters of 5 by 7 dots, for captions inside a picture.
#pragma once
#include <functional>
#include <string_view>

inline constexpr int kGlyphAdvance = 6, kGlyphHeight = 7;  // in dots

// Calls `dot` for every dot of `text`, in dots from the top left of the text. Capital letters (of
// the words that the demo needs) and digits; anything else is a blank.
void DemoGlyphs_Draw(std::string_view text, const std::function<void(int x, int y)>& dot);

// Text as a picture that can be laid on a board.
#pragma once

#include <string>

#include "base/image.h"
#include "theme/colour.h"
#include "win/graphics/fonts.h"

namespace varnel {

// The lines of `text` in one colour on nothing (premultiplied), as large as they need to be; lines
// wider than `wrap_width` pixels (0: none) are broken at words. Empty for a text without anything
// to be seen and where there is no memory.
Image TextPicture(const std::wstring& text, const FontSpec& font, Colour colour, int wrap_width);

}  // namespace varnel

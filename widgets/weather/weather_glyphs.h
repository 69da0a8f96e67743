// Weather pictures as glyphs of the symbol font "Icon-works".
#pragma once

namespace varnel {

// The glyph of an icon number, 0 to 47; any other number gives that of weather not available.
wchar_t WeatherGlyph(int icon);

}  // namespace varnel

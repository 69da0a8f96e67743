#include "widgets/boards/text_picture_win.h"

#include <algorithm>

#include "base/canvas.h"
#include "win/graphics/surface.h"

namespace varnel {

Image TextPicture(const std::wstring& text, const FontSpec& font, Colour colour, int wrap_width) {
  if (text.find_first_not_of(L" \t\r\n") == std::wstring::npos) return {};
  const UniqueFont made = MakeFont(font);
  Surface measuring({1, 1});
  UINT flags = DT_NOPREFIX | DT_EXPANDTABS | DT_LEFT | DT_NOCLIP;
  const int length = static_cast<int>(text.size());
  RECT box = {0, 0, Canvas::kLongestSide, 0};
  {
    const SelectedObject selected(measuring.dc(), made.get());
    ::DrawTextW(measuring.dc(), text.c_str(), length, &box, flags | DT_CALCRECT);
    if (wrap_width > 0 && box.right > wrap_width) {
      flags |= DT_WORDBREAK | DT_EDITCONTROL;
      box = {0, 0, wrap_width, 0};
      ::DrawTextW(measuring.dc(), text.c_str(), length, &box, flags | DT_CALCRECT);
    }
  }
  // Letters may lean over the edges of their cells.
  const int margin = font.height / 4;
  const Size size{static_cast<int>(box.right) + 2 * margin, static_cast<int>(box.bottom)};
  if (size.width > Canvas::kLongestSide || size.height > Canvas::kLongestSide) return {};
  Surface letters(size);
  {
    const SelectedObject selected(letters.dc(), made.get());
    ::SetBkMode(letters.dc(), TRANSPARENT);
    ::SetTextColor(letters.dc(), RGB(255, 255, 255));
    ::OffsetRect(&box, margin, 0);
    ::DrawTextW(letters.dc(), text.c_str(), length, &box, flags);
  }
  Image picture(size.width, size.height);
  const std::uint32_t pixel = OpaquePixel(colour);
  std::ranges::transform(letters.pixels(), picture.All().begin(), [pixel](std::uint32_t white) {
    // Smoothing by colour stripes: their mean is the coverage.
    return MixPixels(0, pixel, ((white & 0xFF) + (white >> 8 & 0xFF) + (white >> 16 & 0xFF)) / 3);
  });
  return picture;
}

}  // namespace varnel

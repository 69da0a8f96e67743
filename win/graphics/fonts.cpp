#include "win/graphics/fonts.h"

#include <algorithm>

#include "win/system/resource_data.h"

namespace varnel {

UniqueFont MakeFont(const FontSpec& spec) {
  LOGFONTW description = {};
  description.lfHeight = -std::max(spec.height, 1);
  description.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
  description.lfCharSet = DEFAULT_CHARSET;
  // Plain smoothing leaves small sizes of many fonts jagged, by the fonts' own wish.
  description.lfQuality = CLEARTYPE_QUALITY;
  spec.face.copy(description.lfFaceName, LF_FACESIZE - 1);
  return UniqueFont(::CreateFontIndirectW(&description));
}

HFONT FontCache::Get(const FontSpec& spec) {
  UniqueFont& font = fonts_[spec];
  if (!font) font = MakeFont(spec);
  return font.get();
}

void FontCache::Trim(std::size_t most) {
  if (fonts_.size() > most) fonts_.clear();
}

bool LoadFontResource(HINSTANCE instance, const wchar_t* name) {
  const std::string_view font = ResourceData(instance, name, MAKEINTRESOURCEW(10));  // RT_RCDATA
  if (font.empty()) return false;
  DWORD count = 0;
  return ::AddFontMemResourceEx(const_cast<char*>(font.data()), static_cast<DWORD>(font.size()),
                                nullptr, &count) != nullptr &&
         count > 0;
}

}  // namespace varnel

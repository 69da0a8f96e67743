#include "win/fonts.h"

#include <algorithm>

namespace varnel {

HFONT FontCache::Get(const FontSpec& spec) {
  UniqueFont& font = fonts_[spec];
  if (!font) {
    LOGFONTW description = {};
    description.lfHeight = -std::max(spec.height, 1);
    description.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    // Greyscale smoothing: coloured fringes do not survive translucency and halos.
    description.lfQuality = ANTIALIASED_QUALITY;
    spec.face.copy(description.lfFaceName, LF_FACESIZE - 1);
    font = UniqueFont(::CreateFontIndirectW(&description));
  }
  return font.get();
}

void FontCache::Trim(std::size_t most) {
  if (fonts_.size() > most) fonts_.clear();
}

bool LoadFontResource(HINSTANCE instance, const wchar_t* name) {
  HRSRC found = ::FindResourceW(instance, name, MAKEINTRESOURCEW(10));  // RT_RCDATA
  HGLOBAL loaded = found ? ::LoadResource(instance, found) : nullptr;
  void* bytes = loaded ? ::LockResource(loaded) : nullptr;
  if (!bytes) return false;
  DWORD count = 0;
  return ::AddFontMemResourceEx(bytes, ::SizeofResource(instance, found), nullptr, &count) !=
             nullptr &&
         count > 0;
}

}  // namespace varnel

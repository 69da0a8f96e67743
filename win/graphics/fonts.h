// Fonts: the ones in use, kept as long as the program runs, and those inside the program file.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <tuple>

#include "base/geometry.h"
#include "win/system/handles.h"

namespace varnel {

struct FontSpec {
  std::wstring face;
  int height = 16;  // of the em square, in pixels; at least 1
  bool bold = false;
  bool operator==(const FontSpec&) const = default;
  bool operator<(const FontSpec& other) const {
    return std::tie(face, height, bold) < std::tie(other.face, other.height, other.bold);
  }
};

// The symbol font that the program carries.
inline constexpr wchar_t kIconFontName[] = L"Icon-works";

// A font of one's own, for controls that keep using it.
UniqueFont MakeFont(const FontSpec& spec);

class FontCache {
 public:
  // The font, made on first use; the platform's stand-in when the face is not installed. Borrowed:
  // it stays valid until the next Trim.
  HFONT Get(const FontSpec& spec);

  // Drops all fonts when more than `most` have gathered (resizing makes many). To be called only
  // where no device context holds one of them.
  void Trim(std::size_t most);

 private:
  std::map<FontSpec, UniqueFont> fonts_;
};

// Makes the font in resource `name` (type RCDATA) usable by this process. To be called before the
// first font is made. False when there is no such resource or it is no font.
bool LoadFontResource(HINSTANCE instance, const wchar_t* name);

}  // namespace varnel

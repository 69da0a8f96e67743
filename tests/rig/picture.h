// What is on the screen, as pixels.
#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "base/geometry.h"

namespace varnel::rig {

// A true-colour picture of a part of the screen. A colour is a COLORREF: red in the low
// byte, then green, then blue.
class Picture {
 public:
  Picture() = default;
  // Takes it of that part of the screen; what lies outside the screen is black.
  explicit Picture(const Rect& part);

  Size size() const { return size_; }
  // Every colour with the number of its pixels.
  std::map<COLORREF, int> Colours() const;
  // The colour of most pixels; black for an empty picture.
  COLORREF MainColour() const;

  // Writes a BMP file, with the folders above it. False when that fails.
  bool Save(const std::wstring& path) const;

  bool operator==(const Picture&) const = default;

 private:
  Size size_;
  std::vector<std::uint32_t> pixels_;  // blue in the low byte, row by row from the top
};

Picture PictureOfScreen();
Picture PictureOf(HWND window);

// Waits until the window's picture has not changed for `still` milliseconds, and gives it.
Picture StillPictureOf(HWND window, int still = 200);

}  // namespace varnel::rig

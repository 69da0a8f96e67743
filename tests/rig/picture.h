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
  // The picture of a file as the system reads it; empty when it cannot.
  static Picture FromFile(const std::wstring& path);

  // The colour at a point, counted from the picture's corner; black outside.
  COLORREF At(Point point) const;
  // How many pixels of a part are no further from the colour than `tolerance` in red, green and
  // blue each.
  int CountNear(const Rect& part, COLORREF colour, int tolerance = 0) const;
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

// No further apart than `tolerance` in red, green and blue each.
bool AreNear(COLORREF one, COLORREF other, int tolerance);

Picture PictureOfScreen();
Picture PictureOf(HWND window);

// Waits until the window's picture has not changed for `still` milliseconds, and gives it.
Picture StillPictureOf(HWND window, int still = 200);

}  // namespace varnel::rig

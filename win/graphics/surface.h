// A block of pixels that the platform can draw on and that engines can read and write.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "base/geometry.h"
#include "base/image.h"
#include "win/system/handles.h"

namespace varnel {

class Surface {
 public:
  // A black surface of at least 1 x 1 pixels. When the system has no memory for it `dc` is null,
  // `pixels` empty, and drawing has no effect.
  explicit Surface(Size size);
  // The same of which only `wanted` is asked for: drawing elsewhere may be left out, as the system
  // and this program's painting do where they can.
  Surface(Size size, const Rect& wanted);

  HDC dc() const { return bitmap_ ? dc_.get() : nullptr; }
  Size size() const { return size_; }
  // The part that is asked for.
  const Rect& wanted() const { return wanted_; }
  bool Wants(const Rect& rect) const { return !Intersection(rect, wanted_).empty(); }
  // Rows from the top, each `size().width` long; blue in the low byte. Flushes pending drawing.
  std::span<std::uint32_t> pixels();

  // Copies what is asked for to its place on a target where the surface's corner is at `corner`.
  void CopyTo(HDC target, Point corner) const;

 private:
  Size size_;
  Rect wanted_;
  UniqueBitmap bitmap_;
  UniqueDc dc_;  // destroyed before the bitmap it holds
  std::uint32_t* bits_ = nullptr;
};

// Copies the image's pixels, as they are, to where its corner is on the surface; what lies outside
// the part that is asked for is left out.
void PutImage(Surface& surface, Point corner, const Image& image);

void FillRectangle(HDC dc, const Rect& rect, COLORREF colour);
// A one-pixel line inside the edges of `rect`.
void FrameRectangle(HDC dc, const Rect& rect, COLORREF colour);

}  // namespace varnel

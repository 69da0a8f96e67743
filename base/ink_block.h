// Ink on a transparent sheet, kept in a bitmap's file after the pixels, where other programs do not
// look.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/image.h"

namespace varnel {

struct Ink {
  Image sheet;            // premultiplied
  int first_weekday = 0;  // of the grid it was drawn on, 0 Sunday to 6 Saturday
};

// `bitmap` (what WriteBmp gave) with `ink` after it, without loss; only the bitmap when the sheet
// is empty or has a side over 8192 pixels, or the bitmap is none.
std::string WithInk(std::string bitmap, const Ink& ink);

// The ink in `file`. Nothing when there is none, when it is damaged, cut short or of a later
// version, or when the bitmap before it is no longer the one that it was written with: another
// program has changed the picture, which then counts alone.
std::optional<Ink> InkIn(std::string_view file);

// The runs that a block holds, and back; `width` and `height` 1 to 8192. Nothing when `runs` do not
// give exactly so many pixels, or one that is not premultiplied.
std::string InkRuns(const Image& sheet);
std::optional<Image> SheetFromRuns(std::string_view runs, int width, int height);

// What tells changed bytes from unchanged ones, not meant to withstand anybody's intent.
std::uint64_t Checksum(std::string_view bytes, std::uint64_t before = 0);

}  // namespace varnel

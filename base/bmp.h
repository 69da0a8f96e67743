// Windows bitmaps in memory.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/image.h"

namespace varnel {

inline constexpr int kLongestBmpSide = 8192;

// The picture in `file`, opaque throughout, or nothing when it is damaged, cut short or of a kind
// that is not read. Read are 1, 4, 8, 16, 24 and 32 bits, run lengths of 4 and 8 bits, bit fields
// of up to 8 adjacent bits each, rows from the bottom or the top, and all headers from the oldest
// (12 bytes) to the newest (124). Opacity is not read. No side may exceed kLongestBmpSide. All
// sizes are checked against the file before anything is allocated. What follows the pixels counts
// for nothing.
std::optional<Image> ReadBmp(std::string_view file);

// The byte after the pixels of a bitmap that WriteBmp has written, however `file` goes on; 0 when
// it is no such bitmap.
std::size_t EndOfWrittenBmp(std::string_view file);

enum class BmpDepth { k24Bits, k32Bits };

// `image` as a bitmap without compression, from the bottom; empty for an empty image and for sides
// over kLongestBmpSide. `spare` bytes more are set aside for what is to follow.
std::string WriteBmp(const Image& image, BmpDepth depth, std::size_t spare = 0);

}  // namespace varnel

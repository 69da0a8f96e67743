// The pens of the boards.
#pragma once

#include <array>
#include <string_view>

#include "theme/colour.h"

namespace varnel {

inline constexpr int kEraser = 7;  // the index from which on a pen takes away
inline constexpr int kPens = 8;    // with the eraser

struct BoardPen {
  std::wstring_view name;  // `PenColorName`
  Colour colour = 0;
};

// The pen of an index: 7 and above is the eraser, which is white; below 0 it is the first.
const BoardPen& PenAt(int index);

struct PenWidth {
  std::wstring_view name;
  int pixels = 0;
};

inline constexpr std::array<PenWidth, 4> kPenWidths = {
    {{L"Thin", 1}, {L"Thick", 2}, {L"Marker", 6}, {L"Broad", 20}}};
inline constexpr int kDefaultPenWidth = 2;

// A stored width in pixels, or the default where none of the four is stored.
int SanePenWidth(long long pixels);
// The next one of the four above `pixels` (or below, for a `step` under 0), the last one at the
// end.
int NextPenWidth(int pixels, int step);

}  // namespace varnel

// Where the manager's tiles lie and what a tile shows.
#pragma once

#include <array>

#include "base/geometry.h"

namespace varnel {

inline constexpr int kTileCount = 8;

struct ManagerLayout {
  std::array<Rect, kTileCount> tiles;  // in pixels, like the panel given
};

// Spreads the tiles, all of one size, over the panel in equal columns and rows (4 x 2, 2 x 4, 8 x 1
// or 1 x 8: whichever makes them most nearly square), with the margins of the frame, less where the
// panel is tiny.
ManagerLayout LayOutManager(const Rect& panel, int dpi);

// The parts of one tile, in pixels from the tile's corner; empty parts are not shown.
struct TileLayout {
  Rect glyph;
  int glyph_height = 0;  // of the symbol font
  Rect caption;
  int caption_height = 0;  // of the caption's font
  Rect lblSTARRED;
  int star_height = 0;
};

// A tile too low or too narrow for both keeps its glyph and leaves the caption out.
TileLayout LayOutTile(Size tile, int dpi);

}  // namespace varnel

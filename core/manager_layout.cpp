#include "core/manager_layout.h"

#include <algorithm>
#include <cmath>

#include "frame/frame_layout.h"

namespace varnel {
namespace {

constexpr int kGap = 6;
constexpr int kSymbolGrid = 20;  // pixels: symbols are sharp at this em and its multiples

int BestColumns(const Rect& panel) {
  int best = 4;
  double best_strain = 1e9;
  for (const int columns : {4, 2, 8, 1}) {
    const int rows = kTileCount / columns;
    const double across = std::max(panel.width(), 1) / static_cast<double>(columns);
    const double down = std::max(panel.height(), 1) / static_cast<double>(rows);
    // A little wider than high is best: the caption needs the width.
    const double strain = std::abs(std::log(across / (1.15 * down)));
    if (strain < best_strain) {
      best = columns;
      best_strain = strain;
    }
  }
  return best;
}

}  // namespace

ManagerLayout LayOutManager(const Rect& panel, int dpi) {
  ManagerLayout layout;
  const bool tiny = panel.width() < Scaled(200, dpi) || panel.height() < Scaled(90, dpi);
  const Rect area = Inset(panel, Scaled(tiny ? 3 : kMargin, dpi));
  const int gap = Scaled(tiny ? 2 : kGap, dpi);
  const int columns = BestColumns(panel);
  const int rows = kTileCount / columns;
  const Size tile{std::max(0, (area.width() - (columns - 1) * gap) / columns),
                  std::max(0, (area.height() - (rows - 1) * gap) / rows)};
  const Point step{tile.width + gap, tile.height + gap};
  // The few pixels that remain are left at both sides: tiles that differ would differ in their
  // letters, too.
  const Point first{area.left + (area.width() - columns * step.x + gap) / 2,
                    area.top + (area.height() - rows * step.y + gap) / 2};
  for (int i = 0; i < kTileCount; ++i) {
    layout.tiles[i] =
        RectAt({first.x + i % columns * step.x, first.y + i / columns * step.y}, tile);
  }
  return layout;
}

TileLayout LayOutTile(Size tile, int dpi) {
  TileLayout layout;
  const int pad = Scaled(4, dpi);
  const int least_caption = Scaled(12, dpi);
  const int caption = std::clamp(std::min(tile.height / 5, tile.width / 6), least_caption,
                                 std::max(least_caption, Scaled(28, dpi)));
  const int caption_line = caption * 3 / 2;
  const bool low = tile.height < caption_line + Scaled(26, dpi);
  const bool captioned = !low && tile.width >= Scaled(68, dpi);
  const int star = std::clamp(std::min(tile.height, tile.width) / 5, Scaled(9, dpi),
                              std::max(Scaled(9, dpi), Scaled(28, dpi)));
  layout.star_height = star;
  layout.lblSTARRED = {tile.width - star - pad, pad - pad / 4, tile.width - pad,
                       pad - pad / 4 + star};
  const int glyph_bottom = tile.height - (captioned ? caption_line + pad / 2 : 0);
  // On a low tile the star would touch a glyph in the middle.
  layout.glyph = {0, captioned ? pad : 0, low ? std::max(0, layout.lblSTARRED.left) : tile.width,
                  glyph_bottom};
  const int fitting =
      std::max(8, std::min(layout.glyph.height() * (captioned ? 78 : 62) / 100, tile.width / 2));
  layout.glyph_height = fitting < kSymbolGrid ? fitting : fitting - fitting % (kSymbolGrid / 2);
  if (captioned) {
    layout.caption = {pad / 2, glyph_bottom, tile.width - pad / 2, tile.height - pad / 2};
    layout.caption_height = caption;
  }
  return layout;
}

}  // namespace varnel

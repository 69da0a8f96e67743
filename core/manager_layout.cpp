#include "core/manager_layout.h"

#include <algorithm>
#include <cmath>

#include "core/frame_layout.h"

namespace varnel {
namespace {

constexpr int kGap = 6;

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

// The start of part `index` of `count` equal parts of `length` with `gap` between them.
int PartStart(int index, int count, int length, int gap) {
  return index * (length + gap) / count;
}

}  // namespace

ManagerLayout LayOutManager(const Rect& panel, int dpi) {
  ManagerLayout layout;
  const bool tiny = panel.width() < Scaled(200, dpi) || panel.height() < Scaled(90, dpi);
  const Rect area = Inset(panel, Scaled(tiny ? 3 : kMargin, dpi));
  const int gap = Scaled(tiny ? 2 : kGap, dpi);
  const int columns = BestColumns(panel);
  const int rows = kTileCount / columns;
  for (int i = 0; i < kTileCount; ++i) {
    const int column = i % columns;
    const int row = i / columns;
    layout.tiles[i] = {area.left + PartStart(column, columns, area.width(), gap),
                       area.top + PartStart(row, rows, area.height(), gap),
                       area.left + PartStart(column + 1, columns, area.width(), gap) - gap,
                       area.top + PartStart(row + 1, rows, area.height(), gap) - gap};
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
  const bool captioned =
      tile.height >= caption_line + Scaled(26, dpi) && tile.width >= Scaled(68, dpi);
  const int glyph_bottom = tile.height - (captioned ? caption_line + pad / 2 : 0);
  layout.glyph = {0, captioned ? pad : 0, tile.width, glyph_bottom};
  layout.glyph_height =
      std::max(8, std::min(layout.glyph.height() * (captioned ? 78 : 62) / 100, tile.width / 2));
  if (captioned) {
    layout.caption = {pad / 2, glyph_bottom, tile.width - pad / 2, tile.height - pad / 2};
    layout.caption_height = caption;
  }
  const int star = std::clamp(std::min(tile.height, tile.width) / 5, Scaled(9, dpi),
                              std::max(Scaled(9, dpi), Scaled(28, dpi)));
  layout.star_height = star;
  layout.star = {tile.width - star - pad, pad - pad / 4, tile.width - pad, pad - pad / 4 + star};
  return layout;
}

}  // namespace varnel

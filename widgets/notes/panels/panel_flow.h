// The controls of a tool panel in rows.
#pragma once

#include <span>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// Lengths at 96 dpi.
struct PanelCell {
  int width = 24;
  int rank = 0;            // where there is no room the cells of the highest rank go first
  bool new_group = false;  // stands a little farther from the one before
  int narrow = 0;          // its width where not all cells have room otherwise; 0: the same
  bool grows = false;      // takes of what room is left when cells are narrow
};

inline constexpr int kPanelRow = 24;  // the height of a row
inline constexpr int kPanelGap = 6;   // between rows
inline constexpr int kPanelEdge = 8;  // between the rows and the panel's edge

// The height of a panel of so many rows, at 96 dpi.
constexpr int PanelHeight(int rows) {
  return 2 * kPanelEdge + rows * kPanelRow + (rows - 1) * kPanelGap;
}

// The rows that all cells need in a panel that is `width` pixels wide at `dpi`; 1 at the least.
int RowsOfPanel(int width, int dpi, std::span<const PanelCell> cells);

// The place of each cell in a panel of `panel` pixels, from its corner; empty where it has to be
// left out. Before one is, all that can be narrow are. Cells stand in their order, from left to
// right and row by row; none is cut off, and none stands alone at a row's end whose group goes on
// in the next, while there is room for the group.
std::vector<Rect> FlowPanel(Size panel, int dpi, std::span<const PanelCell> cells);

}  // namespace varnel

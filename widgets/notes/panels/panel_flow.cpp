#include "widgets/notes/panels/panel_flow.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr int kCellGap = 4;
constexpr int kGroupGap = 12;

// Where each cell of a rank up to `rank` stands: its row and its left edge, in pixels of the rows.
struct Flow {
  std::vector<Rect> boxes;
  int rows = 1;
  bool fits = true;  // no cell is wider than a row
};

Flow FlowOf(int width, int dpi, std::span<const PanelCell> cells, int rank) {
  Flow flow;
  flow.boxes.resize(cells.size());
  const int room = width - 2 * Scaled(kPanelEdge, dpi);
  const int pitch = Scaled(kPanelRow, dpi) + Scaled(kPanelGap, dpi);
  int left = 0;
  for (std::size_t begin = 0; begin < cells.size();) {
    std::size_t end = begin + 1;
    while (end < cells.size() && !cells[end].new_group) ++end;
    int group = 0;
    for (std::size_t i = begin; i < end; ++i) {
      if (cells[i].rank > rank) continue;
      group += Scaled(cells[i].width, dpi) + (group > 0 ? Scaled(kCellGap, dpi) : 0);
    }
    // A group stays together where a row has room for it.
    if (left > 0 && left + Scaled(kGroupGap, dpi) + group > room && group <= room) {
      left = 0;
      ++flow.rows;
    }
    bool first = true;
    for (std::size_t i = begin; i < end; ++i) {
      if (cells[i].rank > rank) continue;
      const int cell = Scaled(cells[i].width, dpi);
      if (left > 0) left += Scaled(first ? kGroupGap : kCellGap, dpi);
      if (left > 0 && left + cell > room) {
        left = 0;
        ++flow.rows;
      }
      flow.fits = flow.fits && cell <= room;
      const int top = (flow.rows - 1) * pitch;
      flow.boxes[i] = {left, top, left + cell, top + Scaled(kPanelRow, dpi)};
      left += cell;
      first = false;
    }
    begin = end;
  }
  return flow;
}

int HighestRank(std::span<const PanelCell> cells) {
  int rank = 0;
  for (const PanelCell& cell : cells) rank = std::max(rank, cell.rank);
  return rank;
}

}  // namespace

int RowsOfPanel(int width, int dpi, std::span<const PanelCell> cells) {
  return FlowOf(width, dpi, cells, HighestRank(cells)).rows;
}

std::vector<Rect> FlowPanel(Size panel, int dpi, std::span<const PanelCell> cells) {
  for (int rank = HighestRank(cells); rank >= 0; --rank) {
    Flow flow = FlowOf(panel.width, dpi, cells, rank);
    if (!flow.fits || Scaled(PanelHeight(flow.rows), dpi) > panel.height) continue;
    const int edge = Scaled(kPanelEdge, dpi);
    // What room is left is halved above and below.
    const int top = edge + (panel.height - Scaled(PanelHeight(flow.rows), dpi)) / 2;
    for (Rect& box : flow.boxes) {
      if (!box.empty()) {
        box = {box.left + edge, box.top + top, box.right + edge, box.bottom + top};
      }
    }
    return flow.boxes;
  }
  return std::vector<Rect>(cells.size());
}

}  // namespace varnel

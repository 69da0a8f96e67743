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

// Shares out what room the rows have left among those of their cells that grow.
void Grow(Flow& flow, int room, std::span<const PanelCell> cells) {
  for (std::size_t begin = 0; begin < cells.size();) {
    std::size_t end = begin;
    int right = 0;
    int growing = 0;
    for (; end < cells.size(); ++end) {
      const Rect& box = flow.boxes[end];
      if (!box.empty() && right > 0 && box.left < right) break;
      right = std::max(right, box.right);
      if (!box.empty() && cells[end].grows) ++growing;
    }
    int spare = room - right;
    int shift = 0;
    for (std::size_t i = begin; i < end; ++i) {
      Rect& box = flow.boxes[i];
      if (box.empty()) continue;
      box.left += shift;
      if (cells[i].grows) {
        shift += spare / growing;
        spare -= spare / growing--;
      }
      box.right += shift;
    }
    begin = end;
  }
}

// Which cells are to stand, and how.
struct Choice {
  int rank;
  bool narrow;
};

Flow FlowOf(int width, int dpi, std::span<const PanelCell> cells, Choice choice) {
  Flow flow;
  flow.boxes.resize(cells.size());
  const int room = width - 2 * Scaled(kPanelEdge, dpi);
  const int pitch = Scaled(kPanelRow, dpi) + Scaled(kPanelGap, dpi);
  const auto width_of = [&](const PanelCell& cell) {
    return Scaled(choice.narrow && cell.narrow > 0 ? cell.narrow : cell.width, dpi);
  };
  int left = 0;
  for (std::size_t begin = 0; begin < cells.size();) {
    std::size_t end = begin + 1;
    while (end < cells.size() && !cells[end].new_group) ++end;
    int group = 0;
    for (std::size_t i = begin; i < end; ++i) {
      if (cells[i].rank > choice.rank) continue;
      group += width_of(cells[i]) + (group > 0 ? Scaled(kCellGap, dpi) : 0);
    }
    // A group stays together where a row has room for it.
    if (left > 0 && left + Scaled(kGroupGap, dpi) + group > room && group <= room) {
      left = 0;
      ++flow.rows;
    }
    bool first = true;
    for (std::size_t i = begin; i < end; ++i) {
      if (cells[i].rank > choice.rank) continue;
      const int cell = width_of(cells[i]);
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
  if (choice.narrow) Grow(flow, room, cells);
  return flow;
}

int HighestRank(std::span<const PanelCell> cells) {
  int rank = 0;
  for (const PanelCell& cell : cells) rank = std::max(rank, cell.rank);
  return rank;
}

}  // namespace

int RowsOfPanel(int width, int dpi, std::span<const PanelCell> cells) {
  return FlowOf(width, dpi, cells, {HighestRank(cells), false}).rows;
}

std::vector<Rect> FlowPanel(Size panel, int dpi, std::span<const PanelCell> cells) {
  const bool may_be_narrow =
      std::ranges::any_of(cells, [](const PanelCell& cell) { return cell.narrow > 0; });
  // Every rank first wide, then narrow, and then without the highest.
  const int ways = may_be_narrow ? 2 : 1;
  for (int way = 0; way < ways * (HighestRank(cells) + 1); ++way) {
    const Choice choice{HighestRank(cells) - way / ways, way % ways == 1};
    Flow flow = FlowOf(panel.width, dpi, cells, choice);
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

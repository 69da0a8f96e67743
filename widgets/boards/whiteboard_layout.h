// Where the parts of the whiteboard lie.
#pragma once

#include <array>
#include <cstddef>

#include "base/geometry.h"
#include "widgets/boards/pens.h"

namespace varnel {

// The tools of the strip beside the pens, from left to right.
enum class BoardTool { kPenWidth, kText, kPicture, kUndo, kRedo, kNew, kList };
inline constexpr std::size_t kBoardTools = 7;

// In pixels of the panel; what has no room is empty.
struct WhiteboardLayout {
  std::array<Rect, kPens> pens;  // the last is the eraser
  Rect pen_menu;                 // one tool for all pens, where they have no room
  std::array<Rect, kBoardTools> tools;
  Rect side_list;
  Rect document;  // the frame around the board
};

WhiteboardLayout LayOutWhiteboard(Size panel, int dpi, bool list_wanted);

// Of one board in the list, which stands on a card of its own. In pixels of the row.
struct BoardRow {
  Rect card;
  Rect picture;  // where a board of the most usual shape is shown; others lie within
  Rect name;
};
int BoardRowHeight(int dpi);
BoardRow LayOutBoardRow(const Rect& row, int dpi);

}  // namespace varnel

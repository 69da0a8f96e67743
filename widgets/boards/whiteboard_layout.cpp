#include "widgets/boards/whiteboard_layout.h"

#include "frame/panel_strip.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kToolSide = 24;
constexpr int kColours = kPens - 1;  // without the eraser
constexpr int kListWidth = 116;
constexpr int kWideListWidth = 162;  // holds the name of a new board in full
constexpr int kWidePanel = 480;      // from here on
constexpr int kRowHeight = 62;
constexpr int kRowGap = 6;  // between the cards
constexpr int kPictureWidth = 54;
constexpr int kPictureHeight = 34;
constexpr int kPictureMargin = 5;

// The pens, the eraser, and the tools in their order. Ranks: what goes last where room is short is
// what one draws with, then what takes back, starts and shows boards.
std::array<StripTool, 2 + kBoardTools> StripOf(int pens_width) {
  return {{{pens_width, 0, false, false},
           {kToolSide, 1, false, true},
           {kToolSide, 4, false, false},
           {kToolSide, 3, false, true},
           {kToolSide, 5, false, false},
           {kToolSide, 1, false, true},
           {kToolSide, 6, false, false},
           {kToolSide, 1, true, true},
           {kToolSide, 2, true, false}}};
}

}  // namespace

WhiteboardLayout LayOutWhiteboard(Size panel, int dpi, bool list_wanted) {
  const int list = panel.width >= Scaled(kWidePanel, dpi) ? kWideListWidth : kListWidth;
  const DocumentWishes wishes{list_wanted ? list : 0, 0};
  DocumentLayout laid = LayOutDocument(panel, dpi, StripOf(kColours * kToolSide), wishes);
  WhiteboardLayout layout;
  const Rect pens = laid.tools[0];
  for (int i = 0; i < kColours && !pens.empty(); ++i) {
    layout.pens[static_cast<std::size_t>(i)] = {pens.left + pens.width() * i / kColours, pens.top,
                                                pens.left + pens.width() * (i + 1) / kColours,
                                                pens.bottom};
  }
  if (pens.empty()) {
    laid = LayOutDocument(panel, dpi, StripOf(kToolSide), wishes);
    layout.pen_menu = laid.tools[0];
  }
  layout.pens[kEraser] = laid.tools[1];
  for (std::size_t i = 0; i < kBoardTools; ++i) layout.tools[i] = laid.tools[i + 2];
  layout.side_list = laid.side_list;
  layout.document = laid.document;
  return layout;
}

int BoardRowHeight(int dpi) {
  return Scaled(kRowHeight, dpi) + Scaled(kRowGap, dpi);
}

BoardRow LayOutBoardRow(const Rect& row, int dpi) {
  BoardRow parts;
  const int margin = Scaled(kPictureMargin, dpi);
  parts.card = row;
  parts.card.bottom -= Scaled(kRowGap, dpi);
  parts.picture = RectAt({parts.card.left + margin, parts.card.top + margin},
                         {Scaled(kPictureWidth, dpi), Scaled(kPictureHeight, dpi)});
  parts.name = {parts.picture.left, parts.picture.bottom + 1, parts.card.right - margin,
                parts.card.bottom - 1};
  return parts;
}

}  // namespace varnel

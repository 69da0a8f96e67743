#include "widgets/notes/notes_layout.h"

#include <algorithm>

#include "frame/panel_strip.h"
#include "widgets/notes/panels/panel_flow.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kListWidth = 124;
constexpr int kMostListWidth = 180;  // of a wide panel a quarter and a little more
constexpr int kSearchHeight = 24;
constexpr int kSearchGap = 6;
constexpr int kLeastListHeight = 84;  // with the search box above it
constexpr int kMostPanelRows = 4;
constexpr int kPaperEdge = 2;
constexpr int kPaperSide = 10;
constexpr int kSmallPaper = 200;

struct Placed {
  int tool;
  StripTool strip;
};
// As they stand from left to right. The lowest ranks stay longest.
constexpr Placed kPlaced[] = {
    {kToolFonts, {24, 1, false, false}}, {kToolParagraph, {24, 2, false, false}},
    {kToolFind, {24, 2, false, true}},   {kToolSpelling, {24, 4, false, false}},
    {kToolText, {24, 5, false, true}},   {kToolPicture, {24, 3, false, false}},
    {kToolNew, {24, 0, true, false}},    {kToolSave, {24, 0, true, false}},
    {kToolList, {24, 2, true, false}},
};

}  // namespace

NotesLayout LayOutNotes(Size panel, int dpi, const NotesWishes& wishes) {
  std::vector<int> tools;
  std::vector<StripTool> strip;
  for (const auto& [tool, place] : kPlaced) {
    if (std::ranges::count(wishes.tools, tool) == 0) continue;
    tools.push_back(tool);
    strip.push_back(place);
  }
  const int width =
      std::clamp(panel.width * kDefaultDpi / dpi * 7 / 25, kListWidth, kMostListWidth);
  DocumentWishes wanted{wishes.list ? width : 0, 0};
  DocumentLayout frame = LayOutDocument(panel, dpi, strip, wanted);
  if (wishes.panel_rows) {
    // As wide as all that stands below the strip.
    const int left = frame.side_list.empty() ? frame.document.left : frame.side_list.left;
    const int wish = wishes.panel_rows(frame.document.right - left);
    for (int rows = std::min(wish, kMostPanelRows); rows > 0; --rows) {
      wanted.open_panel = PanelHeight(rows);
      const DocumentLayout with_panel = LayOutDocument(panel, dpi, strip, wanted);
      if (with_panel.open_panel.empty()) continue;
      frame = with_panel;
      break;
    }
  }
  NotesLayout layout;
  layout.tools.resize(kToolCount);
  for (std::size_t i = 0; i < tools.size(); ++i) {
    layout.tools[static_cast<std::size_t>(tools[i])] = frame.tools[i];
  }
  layout.open_panel = frame.open_panel;
  layout.list = frame.side_list;
  if (frame.side_list.height() >= Scaled(kLeastListHeight, dpi)) {
    layout.search = frame.side_list;
    layout.search.bottom = layout.search.top + Scaled(kSearchHeight, dpi);
    layout.list.top = layout.search.bottom + Scaled(kSearchGap, dpi);
  }
  layout.document = frame.document;
  const bool small = frame.document.width() < Scaled(kSmallPaper, dpi);
  const int side = Scaled(small ? kPaperSide / 2 : kPaperSide, dpi);
  const int edge = Scaled(kPaperEdge, dpi);
  const Rect& paper = frame.document;
  layout.editor = {paper.left + side, paper.top + (small ? 2 : 4) * edge, paper.right - edge,
                   paper.bottom - 2 * edge};
  return layout;
}

}  // namespace varnel

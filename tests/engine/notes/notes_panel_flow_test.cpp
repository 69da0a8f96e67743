// Where the controls of the notes' panels stand.
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "widgets/notes/panels/panel_flow.h"

namespace varnel {
namespace {

constexpr int kDpi = 96;

// A box and a button, and a second such group that goes first.
const std::vector<PanelCell> kTwoGroups = {{.width = 150, .narrow = 70, .grows = true},
                                           {.width = 60, .narrow = 24},
                                           {150, 1, true, 70, true},
                                           {60, 1, false, 24}};

std::vector<Rect> RowsOf(Size panel) {
  return FlowPanel(panel, kDpi, kTwoGroups);
}

TEST(NotePanelFlow, IsNarrowBeforeAnythingGoes) {
  const int one = PanelHeight(1);
  const int edge = kPanelEdge;
  const int right = 454 + 2 * edge;
  EXPECT_EQ(RowsOf({right, one})[0].width(), 150);
  EXPECT_EQ(RowsOf({right, one})[3].right, edge + 440);

  const std::vector<Rect> narrow = RowsOf({300 + 2 * edge, one});
  EXPECT_EQ(narrow[1].width(), 24);
  EXPECT_EQ(narrow[0].width() + narrow[2].width(), 300 - 2 * 24 - 2 * 4 - 12);
  EXPECT_LE(std::abs(narrow[0].width() - narrow[2].width()), 1);
  EXPECT_EQ(narrow[3].right, edge + 300);
  EXPECT_EQ(narrow[2].left, narrow[1].right + 12);
  EXPECT_EQ(narrow[3].left, narrow[2].right + 4);

  const std::vector<Rect> two_rows = RowsOf({300 + 2 * edge, PanelHeight(2)});
  EXPECT_EQ(two_rows[0].width(), 150);
  EXPECT_GT(two_rows[2].top, two_rows[1].bottom);

  const std::vector<Rect> first_group = RowsOf({180 + 2 * edge, one});
  EXPECT_TRUE(first_group[2].empty() && first_group[3].empty());
  EXPECT_EQ(first_group[1].right, edge + 180);
  EXPECT_TRUE(RowsOf({60, one})[0].empty());
}

TEST(NotePanelFlow, SharesOutEachRowByItself) {
  const std::vector<Rect> rows = RowsOf({110 + 2 * kPanelEdge, PanelHeight(2)});
  for (const int box : {0, 2}) {
    EXPECT_EQ(rows[static_cast<std::size_t>(box)].left, kPanelEdge);
    EXPECT_EQ(rows[static_cast<std::size_t>(box)].width(), 110 - 24 - 4);
    EXPECT_EQ(rows[static_cast<std::size_t>(box) + 1].right, kPanelEdge + 110);
  }
}

}  // namespace
}  // namespace varnel

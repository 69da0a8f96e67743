#include "frame/panel_strip.h"

#include <gtest/gtest.h>

#include "tests/support/boxes.h"

namespace varnel {
namespace {

constexpr StripTool kTools[] = {{24, 0, false, false}, {24, 1, false, false}, {90, 3, false, true},
                                {24, 2, false, true},  {24, 0, true, false},  {24, 2, true, true}};
constexpr DocumentWishes kAll{110, 34};

TEST(PanelStrip, NothingOverlapsAtAnySizeAndTheDocumentKeepsItsRoom) {
  for (const int dpi : {96, 144, 192}) {
    for (int width = 20; width < 1200; width += 31) {
      for (int height = 10; height < 900; height += 37) {
        const DocumentLayout layout = LayOutDocument({width, height}, dpi, kTools, kAll);
        std::vector<Rect> boxes = layout.tools;
        boxes.insert(boxes.end(), {layout.open_panel, layout.side_list, layout.document});
        test::ExpectApart(boxes, {0, 0, width, height});
        ASSERT_EQ(layout.tools.size(), std::size(kTools));
        if (!layout.open_panel.empty()) {
          const int below_strip = layout.document.bottom - layout.open_panel.top;
          EXPECT_GE(layout.document.height() * 5, below_strip * 3);
        }
        if (!layout.side_list.empty()) EXPECT_GE(layout.document.width() * 2, width);
        // A tool of a higher rank is never there without all of a lower one.
        for (std::size_t i = 0; i < std::size(kTools); ++i) {
          for (std::size_t j = 0; j < std::size(kTools); ++j) {
            if (kTools[i].rank < kTools[j].rank && layout.tools[i].empty()) {
              EXPECT_TRUE(layout.tools[j].empty());
            }
          }
        }
        if (HasFatalFailure() || HasNonfatalFailure()) return;
      }
    }
  }
}

TEST(PanelStrip, EverythingIsThereWhereThereIsRoom) {
  const DocumentLayout layout = LayOutDocument({584, 336}, 96, kTools, kAll);
  EXPECT_EQ(layout.tools[0], (Rect{8, 8, 32, 32}));
  EXPECT_EQ(layout.tools[5], (Rect{552, 8, 576, 32}));
  EXPECT_EQ(layout.open_panel, (Rect{8, 40, 576, 74}));
  EXPECT_EQ(layout.side_list, (Rect{8, 82, 118, 328}));
  EXPECT_EQ(layout.document, (Rect{126, 82, 576, 328}));
  const DocumentLayout bare = LayOutDocument({584, 336}, 96, {}, {});
  EXPECT_EQ(bare.document, (Rect{8, 8, 576, 328}));
}

TEST(PanelStrip, TheSmallestWidgetShowsItsDocument) {
  const DocumentLayout layout = LayOutDocument({160, 59}, 96, kTools, kAll);
  EXPECT_EQ(layout.document, (Rect{4, 4, 156, 55}));
}

}  // namespace
}  // namespace varnel

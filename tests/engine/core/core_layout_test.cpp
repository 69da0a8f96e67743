#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "base/rounded_box.h"
#include "core/manager_layout.h"
#include "frame/frame_layout.h"
#include "tests/support/boxes.h"

namespace varnel {
namespace {

using test::ExpectApart;

const Size kSizes[] = {{160, 107}, {240, 161}, {393, 231},  {330, 233},
                       {500, 350}, {231, 600}, {1280, 800}, {3840, 2160}};

TEST(FrameLayout, PartsStayInsideAndApartAtEverySize) {
  for (const int dpi : {96, 120, 144, 192}) {
    for (const Size size : kSizes) {
      const FrameLayout frame = LayOutFrame(size, dpi);
      ExpectApart({frame.pfrBAR, frame.pfrPANEL, frame.picBOTTOMSTRIP}, RectAt({0, 0}, size));
      ExpectApart({frame.status_text, frame.size_grip}, frame.picBOTTOMSTRIP);
      std::vector<Rect> bar(frame.bar_buttons.begin(), frame.bar_buttons.end());
      bar.push_back(frame.title_text);
      if (!frame.title_glyph.empty()) bar.push_back(frame.title_glyph);
      ExpectApart(bar, frame.pfrBAR);
      for (const Rect& button : frame.bar_buttons) {
        EXPECT_GE(button.width(), 24);
        EXPECT_GE(button.height(), 24);
      }
    }
  }
  // The smallest window has room for a title such as "Countdown".
  EXPECT_GE(LayOutFrame({160, 107}, 96).title_text.width(), 80);
}

TEST(FrameLayout, AWindowWithoutRoomHasEmptyPartsOnly) {
  for (const Size size : {Size{0, 0}, Size{1, 1}, Size{30, 10}, Size{-5, -5}}) {
    const FrameLayout frame = LayOutFrame(size, 96);
    EXPECT_GE(frame.pfrPANEL.height(), 0);
    EXPECT_GE(frame.title_text.width(), 0);
    EXPECT_GE(frame.status_text.width(), 0);
  }
}

TEST(ManagerLayout, TilesFillThePanelWithoutTouching) {
  for (const int dpi : {96, 144, 192}) {
    for (const Size size : kSizes) {
      const Rect panel = LayOutFrame(size, dpi).pfrPANEL;
      if (panel.height() < 30) continue;  // nothing to spread at this size and resolution
      const ManagerLayout layout = LayOutManager(panel, dpi);
      long long area = 0;
      ExpectApart({layout.tiles.begin(), layout.tiles.end()}, panel);
      for (const Rect& tile : layout.tiles) {
        EXPECT_FALSE(tile.empty());
        area += static_cast<long long>(tile.width()) * tile.height();
        const Size tile_size{tile.width(), tile.height()};
        EXPECT_EQ(tile_size, (Size{layout.tiles[0].width(), layout.tiles[0].height()}));
        const TileLayout inside = LayOutTile(tile_size, dpi);
        ExpectApart({inside.caption, inside.glyph}, RectAt({0, 0}, tile_size));
        EXPECT_LE(inside.glyph_height, std::max(8, inside.glyph.height()));
      }
      EXPECT_GT(area * 2, static_cast<long long>(panel.width()) * panel.height());
    }
  }
}

TEST(RoundedBox, FaceInsideOutlineAtTheEdgeNothingOutside) {
  const Size size{20, 12};
  std::vector<std::uint32_t> pixels(20 * 12, 0x101010);
  DrawRoundedBox(pixels, size, {2, 2, 18, 10}, 3, 0xFF0000, 0x00FF00);
  const auto at = [&](int x, int y) { return pixels[y * size.width + x]; };
  EXPECT_EQ(at(10, 6), 0xFF0000u);
  EXPECT_EQ(at(10, 2), 0x00FF00u);
  EXPECT_EQ(at(2, 6), 0x00FF00u);
  EXPECT_EQ(at(1, 6), 0x101010u);
  EXPECT_EQ(at(18, 6), 0x101010u);
  EXPECT_EQ(at(2, 2), 0x101010u);  // cut off by the round corner
  // Boxes partly or wholly outside, and a buffer too small, change nothing they should not.
  DrawRoundedBox(pixels, size, {-50, -50, 500, 500}, 1e9, 0, 0);
  std::vector<std::uint32_t> small(3, 7);
  DrawRoundedBox(small, size, {0, 0, 20, 12}, 2, 1, 1);
  EXPECT_EQ(small, (std::vector<std::uint32_t>{7, 7, 7}));
}

}  // namespace
}  // namespace varnel

// What is put on pages beside a document's text, and what pages say.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/box_shrink.h"
#include "dialogs/preview/preview_layout.h"
#include "frame/pages/page_text.h"
#include "frame/pages/page_texts.h"
#include "frame/pages/picture_pages.h"
#include "tests/support/page_aid.h"

namespace varnel {
namespace {

constexpr PageSetup SetupOfA4() {
  return {{11'906, 16'838}, {1134, 1134, 1134, 1134}, {}, true, true};
}

TEST(PageParts, HeaderAndFooterStandInTheirMargins) {
  test::PlainPageMeasure measure;
  PageSetup setup = SetupOfA4();
  setup.texts = {{L"&T", L"", L"&D"}, {L"", L"&P / &N", L""}, false};
  Page page;
  AddPageTexts(page, setup, {2, 5, L"Plan\tB", L"", L"today", L""}, measure);
  ASSERT_EQ(page.texts.size(), 3u);
  EXPECT_EQ(PageText(page), L"Plan B today\r\n2 / 5\r\n");
  const Rect column = ColumnOf(setup);
  EXPECT_EQ(page.texts[0].left, column.left);
  EXPECT_EQ(page.texts[1].left + page.texts[1].width(), column.right);
  EXPECT_NEAR(page.texts[2].left + page.texts[2].width() / 2, setup.paper.width / 2, 1);
  EXPECT_LT(page.texts[0].base_line, column.top);
  EXPECT_GT(page.texts[2].base_line, column.bottom);
  setup.texts.from_second_page = true;
  Page first;
  AddPageTexts(first, setup, {1, 5, L"Plan", L"", L"", L""}, measure);
  EXPECT_TRUE(first.texts.empty());
}

TEST(PageParts, LongTextsAreCutAndNeverOverlap) {
  test::PlainPageMeasure measure;
  std::mt19937 random(17);
  for (int i = 0; i < 500; ++i) {
    PageSetup setup = SetupOfA4();
    setup.paper.width = kLeastPaper + static_cast<int>(random() % 12'000);
    for (std::wstring& text : setup.texts.header) text = std::wstring(random() % 200, L'w');
    Page page;
    AddPageTexts(page, setup, {}, measure);
    int end = 0;
    for (const PlacedText& text : page.texts) {
      ASSERT_EQ(text.ends.size(), text.text.size());
      ASSERT_TRUE(std::ranges::is_sorted(text.ends));
      if (text.text.size() < 2) continue;  // an ellipsis alone may have no room
      ASSERT_GE(text.left, end) << i;
      end = text.left + text.width();
      ASSERT_LE(end, ColumnOf(setup).right);
    }
  }
}

TEST(PageParts, APageSaysItsLinesInOrder) {
  Page page;
  const auto add = [&page](int left, int base_line, const std::wstring& text) {
    PlacedText placed{left, base_line, text, std::vector<int>(text.size(), 500), {}, 0, false, 0};
    page.texts.push_back(std::move(placed));
  };
  EXPECT_EQ(PageText(page), L"");
  add(0, 1000, L"two");
  add(500, 940, L"2");
  add(1200, 1000, L"cells");
  add(0, 1300, L"next");
  add(0, 1600, L"last");
  EXPECT_EQ(PageText(page), L"two2 cells\r\nnext\r\nlast\r\n");
}

TEST(PicturePages, ShowEveryPixelOnce) {
  const Rect column{1134, 1134, 10'772, 15'704};
  const auto fitted = PlacePicture({400, 200}, 96, column, true);
  ASSERT_EQ(fitted.size(), 1u);
  EXPECT_EQ(fitted[0].area, (Rect{1134, 1134, 10'772, 1134 + 4819}));
  const auto own = PlacePicture({400, 200}, 96, column, false);
  EXPECT_EQ(own[0].area.width(), 6000);
  EXPECT_EQ(own[0].area.left - column.left, column.right - own[0].area.right);
  std::mt19937 random(23);
  for (int i = 0; i < 300; ++i) {
    const Size size{1 + static_cast<int>(random() % 3000), 1 + static_cast<int>(random() % 3000)};
    const int dpi = 48 + static_cast<int>(random() % 300);
    long long pixels = 0;
    for (const PicturePart& part : PlacePicture(size, dpi, column, random() % 2 == 0)) {
      pixels += static_cast<long long>(part.pixels.width()) * part.pixels.height();
      const Rect near = Inset(column, -8);  // rounding
      ASSERT_EQ(Intersection(part.area, near), part.area);
      ASSERT_EQ(Intersection(part.pixels, RectAt({0, 0}, size)), part.pixels);
    }
    ASSERT_EQ(pixels, static_cast<long long>(size.width) * size.height);
  }
  EXPECT_EQ(PlacePicture({30'000, 30'000}, 24, {0, 0, 2000, 2000}, false).size(), 400u);
  PicturePages none(PlacePicture({0, 5}, 96, column, true));
  EXPECT_TRUE(none.At(7).pictures.empty());
}

TEST(BoxShrink, IsTheMeanOfWhatAPixelStandsFor) {
  const std::vector<std::uint32_t> large = {0xFFFF0000, 0x000000, 0x0000FF, 0x0000FF,
                                            0x000000,   0x000000, 0x0000FF, 0x0000FE};
  std::vector<std::uint32_t> small(2, 7);
  BoxShrink(large, {2, 1}, 2, small);
  EXPECT_EQ(small, (std::vector<std::uint32_t>{0x400000, 0x0000FF}));
  BoxShrink(large, {2, 1}, 3, small);  // there are not so many
  EXPECT_EQ(small[0], 0x400000u);
  BoxShrink(large, {2, 1}, 1, small);
  EXPECT_EQ(small[0], 0xFF0000u);
}

TEST(PreviewLayout, PartsNeverOverlapAndToolsAreAllThere) {
  std::mt19937 random(29);
  for (int i = 0; i < 1000; ++i) {
    const auto any = [&random](int most) { return static_cast<int>(random() % most); };
    const std::vector<int> groups = {60, 200, 140, 80, 120, 70};
    PreviewParts parts{{300 + any(1500), 300 + any(900)}, groups, 22, 6, 28, any(2) * 140,
                       any(2) ? Size{240, 24} : Size{}};
    const PreviewLayout layout = LayOutPreview(parts);
    ASSERT_EQ(layout.groups.size(), groups.size());
    int bottom = 0;
    for (std::size_t g = 0; g < groups.size(); ++g) {
      ASSERT_LE(layout.groups[g].x + groups[g], parts.client.width);
      bottom = std::max(bottom, layout.groups[g].y + parts.tool_height);
    }
    const Rect all[] = {layout.thumbs, layout.sheets, layout.setup, layout.status};
    for (const Rect& one : all) {
      if (one.empty()) continue;
      ASSERT_GE(one.top, bottom);
      for (const Rect& other : all) {
        if (&one != &other) ASSERT_TRUE(Intersection(one, other).empty()) << i;
      }
    }
    ASSERT_GE(layout.sheets.width() * 3 + 2, parts.client.width);
  }
}

}  // namespace
}  // namespace varnel

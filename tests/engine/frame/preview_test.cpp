// The preview without its window: paper, settings, zoom, sheets, rulers, and the order of printing.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/number_text.h"
#include "base/print_order.h"
#include "dialogs/preview/page_ruler.h"
#include "dialogs/preview/papers.h"
#include "dialogs/preview/print_settings.h"
#include "dialogs/preview/sheet_layout.h"
#include "tests/support/garbage_values.h"
#include "tests/support/memory_settings.h"

namespace varnel {
namespace {

constexpr auto kMetric = LengthUnit::kMillimetres;
constexpr Size kA4{11'906, 16'838};

TEST(Papers, OfThePrinterComeBeforeOurOwn) {
  EXPECT_EQ(OfferedPapers({}, kA4).size(), StandardPapers().size() + 1);
  const std::vector<Paper> printer = {{9, L"A4", kA4},
                                      {9, L"A4 again", kA4},
                                      {70, L"", kA4},
                                      {kOwnPaper, L"User", kA4},
                                      {71, L"Dot", {10, 10}},
                                      {72, L"Roll", {9000, 900'000}},
                                      {119, L"Photo", {5669, 8504}}};
  const auto offered = OfferedPapers(printer, {3000, 4000});
  EXPECT_EQ(offered,
            (std::vector<Paper>{printer[0], printer[6], {kOwnPaper, L"Own size", {3000, 4000}}}));
  EXPECT_EQ(PaperCaption(printer[0], kMetric, L'.'), L"A4, 210 \u00d7 297 mm");
  EXPECT_EQ(PaperCaption({1, L"Letter", {12'240, 15'840}}, LengthUnit::kInches, L'.'),
            L"Letter, 8.5 \u00d7 11 in");
}

TEST(PrintSettings, ComeBackAsTheyWereKept) {
  test::MemorySettings store;
  EXPECT_EQ(ReadPrintSettings(store, kMetric), DefaultPrintSettings(kMetric));
  PrintSettings kept = DefaultPrintSettings(LengthUnit::kInches);
  EXPECT_EQ(kept.paper, kPaperLetter);
  kept.paper = kOwnPaper;
  kept.size = {5000, 7000};
  kept.landscape = true;
  kept.margins = {0, 567, 9000, 1};
  kept.texts = {{L"", L"&T", L""}, {L"&&", L"", L"&P"}, true};
  kept.colour = kept.fitted = kept.thumbs = false;
  kept.zoom = {SheetZoom::Kind::kPercent, 150};
  kept.columns = 4;
  WritePrintSettings(store, kept);
  EXPECT_EQ(ReadPrintSettings(store, kMetric), kept);
  const PageSetup setup = SetupOf(kept);
  EXPECT_EQ(setup.paper, (Size{7000, 5000}));
  EXPECT_EQ(setup.margins, FittedMargins(setup.paper, kept.margins));
}

TEST(PrintSettings, NonsenseIsTheDefault) {
  test::MemorySettings names;
  WritePrintSettings(names, DefaultPrintSettings(kMetric));
  for (const std::wstring& garbage : test::GarbageValues()) {
    test::MemorySettings store;
    for (const auto& [place, value] : names.values) store.values[place] = garbage;
    const PrintSettings read = ReadPrintSettings(store, kMetric);
    const PrintSettings defaults = DefaultPrintSettings(kMetric);
    const PageSetup setup = SetupOf(read);
    ASSERT_EQ(read.size.width, SanePaperSide(read.size.width));
    ASSERT_EQ(read.size.height, SanePaperSide(read.size.height));
    ASSERT_EQ(setup.margins, FittedMargins(setup.paper, setup.margins));
    ASSERT_TRUE(read.columns == 1 || read.columns == 2 || read.columns == 4);
    // A whole number may say something.
    if (const auto number = WholeNumber(garbage); number && *number >= 0) continue;
    ASSERT_EQ(read.landscape, defaults.landscape);
    ASSERT_EQ(read.colour, defaults.colour);
    ASSERT_EQ(read.margins, defaults.margins);
  }
  // A paper is a whole: half of one is none.
  test::MemorySettings half;
  half.values[{L"frmNOTpp\\Details", L"Paper"}] = L"1";
  half.values[{L"frmNOTpp\\Details", L"Paper-Width"}] = L"12240";
  EXPECT_EQ(ReadPrintSettings(half, kMetric).size, DefaultPrintSettings(kMetric).size);
}

TEST(SheetZoom, StepsAndReadsWhatItSays) {
  EXPECT_EQ(SteppedPercent(100, 1), 110);
  EXPECT_EQ(SteppedPercent(103, -1), 100);
  EXPECT_EQ(SteppedPercent(103, 2), 125);
  EXPECT_EQ(SteppedPercent(390, 5), kMostPercent);
  EXPECT_EQ(SteppedPercent(26, -9), kLeastPercent);
  EXPECT_EQ(SteppedPercent(7, 0), kLeastPercent);
  for (const SheetZoom& zoom : {SheetZoom{}, SheetZoom{SheetZoom::Kind::kPageWidth},
                                SheetZoom{SheetZoom::Kind::kPercent, 67}}) {
    EXPECT_EQ(ReadZoom(ZoomText(zoom)), zoom);
  }
  EXPECT_EQ(ReadZoom(L" 9999% ")->percent, kMostPercent);
  EXPECT_EQ(ReadZoom(L"1")->percent, kLeastPercent);
  EXPECT_EQ(ReadZoom(L"PAGE WIDTH")->kind, SheetZoom::Kind::kPageWidth);
  for (const wchar_t* wrong : {L"", L"%", L"big", L"-50 %", L"1.5", L"0"}) {
    EXPECT_EQ(ReadZoom(wrong), std::nullopt);
  }
}

SheetRoom RandomRoom(std::mt19937& random) {
  const auto any = [&random](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
  };
  SheetRoom room;
  room.paper = {any(kLeastPaper, 20'000), any(kLeastPaper, 20'000)};
  room.pages = any(1, 40);
  room.view = {any(40, 1500), any(40, 1000)};
  room.dpi = any(96, 192);
  room.zoom = {static_cast<SheetZoom::Kind>(any(0, 2)), any(kLeastPercent, kMostPercent)};
  constexpr int kColumns[] = {1, 2, 4};
  room.columns = kColumns[any(0, 2)];
  room.caption = any(0, 20);
  return room;
}

TEST(SheetLayout, EverySheetHasItsOwnPlaceAndIsFoundThere) {
  std::mt19937 random(5);
  for (int i = 0; i < 1500; ++i) {
    const SheetRoom room = RandomRoom(random);
    const SheetLayout layout(room);
    const Rect whole = RectAt({0, 0}, layout.whole());
    ASSERT_GE(layout.whole().width, room.view.width);
    ASSERT_GE(layout.whole().height, room.view.height);
    for (int page = 0; page < room.pages; ++page) {
      const Rect sheet = layout.Sheet(page);
      ASSERT_EQ(Intersection(sheet, whole), sheet) << i;
      ASSERT_EQ(layout.PageAt({sheet.left, sheet.top}), page);
      ASSERT_EQ(layout.PageAt({sheet.right - 1, sheet.bottom - 1}), page);
      ASSERT_EQ(layout.PageAt({sheet.right, sheet.top}), -1);
      if (page > 0) ASSERT_TRUE(Intersection(sheet, layout.Sheet(page - 1)).empty());
      const Point scroll = layout.ScrollTo(page, {});
      ASSERT_EQ(layout.Bounded(scroll), scroll);
      const auto seen = layout.PagesIn(RectAt(scroll, room.view));
      ASSERT_LE(seen.first, page);
      ASSERT_GE(seen.last, page);
    }
  }
}

TEST(SheetLayout, FitsWhatItIsToFit) {
  SheetRoom room{kA4, 5, {1100, 700}, 96, {}, 2, 16, 0};
  const SheetLayout pages(room);
  EXPECT_EQ(pages.Sheet(0).height(), 700 - 32);
  EXPECT_EQ(pages.PageShown(pages.ScrollTo(2, {})), 2);
  room.zoom.kind = SheetZoom::Kind::kPageWidth;
  room.extra_width = 17;
  const SheetLayout width(room);
  EXPECT_NEAR(width.Sheet(1).right + 16, 1100 - 17 + 17 / 2, 2);
  room.zoom = {SheetZoom::Kind::kPercent, 100};
  EXPECT_EQ(SheetLayout(room).Sheet(0).width(), 794);
  EXPECT_EQ(SheetLayout(room).percent(), 100);
  room.pages = 1;
  EXPECT_EQ(SheetLayout(room).columns(), 1);
}

TEST(SheetLayout, ZoomingKeepsWhatIsUnderThePointer) {
  const SheetRoom room{kA4, 9, {800, 600}, 96, {SheetZoom::Kind::kPercent, 100}, 1, 16, 0};
  SheetRoom nearer = room;
  nearer.zoom.percent = 200;
  const SheetLayout before(room), after(nearer);
  const Point scroll{0, 3000}, at{300, 400};
  const Point kept = KeptInPlace(before, scroll, at, after);
  const int page = before.PageAt({scroll.x + at.x, scroll.y + at.y});
  EXPECT_EQ(after.PageAt({kept.x + at.x, kept.y + at.y}), page);
  const auto part = [page](const SheetLayout& layout, Point from, Point point) {
    const Rect sheet = layout.Sheet(page);
    return static_cast<double>(from.y + point.y - sheet.top) / sheet.height();
  };
  EXPECT_NEAR(part(before, scroll, at), part(after, kept, at), 0.002);
}

TEST(PageRuler, MarksAreReadable) {
  for (const LengthUnit unit : {kMetric, LengthUnit::kInches}) {
    for (double scale = 0.01; scale < 0.6; scale *= 1.3) {
      const auto marks = RulerMarks(kA4.width, scale, unit, 5);
      int last = -kA4.width;
      int labelled = -kA4.width;
      for (const RulerMark& mark : marks) {
        ASSERT_GT((mark.at - last) * scale, scale < 0.02 ? 1 : 4.9);
        last = mark.at;
        ASSERT_EQ(mark.rank == 0, !mark.label.empty());
        if (mark.rank != 0) continue;
        ASSERT_GT((mark.at - labelled) * scale, scale < 0.02 ? 15 : 29);
        labelled = mark.at;
      }
      ASSERT_LE(last, kA4.width);
    }
  }
  const auto marks = RulerMarks(kA4.width, 0.1, kMetric, 5);
  EXPECT_EQ(marks[10], (RulerMark{567, 0, L"10"}));
  EXPECT_EQ(marks[15].rank, 1);
}

TEST(PageRuler, MarginsFollowTheDragInWholeUnits) {
  const PageSetup setup{kA4, {1134, 1134, 1134, 1134}, {}, true, true};
  EXPECT_EQ(EdgeNear(setup, true, 1100, 60), PageEdge::kLeft);
  EXPECT_EQ(EdgeNear(setup, true, 10'800, 60), PageEdge::kRight);
  EXPECT_EQ(EdgeNear(setup, false, 15'700, 60), PageEdge::kBottom);
  EXPECT_EQ(EdgeNear(setup, true, 5000, 60), std::nullopt);
  const MarginDrag left(setup, PageEdge::kLeft, 1144, kMetric);
  EXPECT_EQ(left.To(1144, false), setup.margins);
  EXPECT_EQ(left.To(1144 + 80, false).left, 1191);  // 21 mm
  EXPECT_EQ(left.To(1144 + 80, true).left, 1214);
  EXPECT_EQ(left.To(-9000, false).left, 0);
  EXPECT_EQ(left.To(99'999, false).left, kA4.width - kLeastColumn - 1134);
  const MarginDrag bottom(setup, PageEdge::kBottom, 15'704, LengthUnit::kInches);
  EXPECT_EQ(bottom.To(15'704 + 54, false).bottom, 1080);  // 3/4 inch
}

std::vector<int> OrderOf(const PrintWish& wish, int pages) {
  const PrintOrder order(wish, pages);
  std::vector<int> sides;
  for (std::size_t i = 0; i < order.size(); ++i) sides.push_back(order.At(i));
  EXPECT_EQ(order.At(order.size()), PrintOrder::kEmptyPage);
  return sides;
}

TEST(PrintOrder, GivesRangesCopiesAndSheets) {
  constexpr int kNone = PrintOrder::kEmptyPage;
  using Sides = std::vector<int>;
  EXPECT_EQ(OrderOf({}, 3), (Sides{0, 1, 2}));
  EXPECT_EQ(OrderOf({{{2, 3}, {9, 9}, {3, 1}}}, 4), (Sides{1, 2, 0}));
  EXPECT_EQ(OrderOf({{}, 2, true}, 3), (Sides{0, 1, 2, 0, 1, 2}));
  EXPECT_EQ(OrderOf({{}, 2, false}, 3), (Sides{0, 0, 1, 1, 2, 2}));
  EXPECT_EQ(OrderOf({{}, 2, true, true}, 3), (Sides{0, 1, 2, kNone, 0, 1, 2, kNone}));
  EXPECT_EQ(OrderOf({{}, 2, false, true}, 3), (Sides{0, 1, 0, 1, 2, kNone, 2, kNone}));
  EXPECT_EQ(OrderOf({{}, 1, true, true}, 3), (Sides{0, 1, 2}));
  EXPECT_EQ(OrderOf({{{7, 9}}, 3}, 4), Sides{});
  EXPECT_EQ(OrderOf({{}, 0}, 1), Sides{0});
}

}  // namespace
}  // namespace varnel

// Paper, margins and what stands in them, lengths as people write them.
#include <gtest/gtest.h>

#include <random>

#include "base/length_text.h"
#include "frame/pages/page_setup.h"
#include "frame/pages/page_texts.h"

namespace varnel {
namespace {

constexpr auto kMetric = LengthUnit::kMillimetres;
constexpr auto kInches = LengthUnit::kInches;

TEST(LengthText, IsWhatPeopleWrite) {
  struct Case {
    int twips;
    LengthUnit unit;
    std::wstring text;
  };
  for (const Case& c :
       {Case{0, kMetric, L"0 mm"}, Case{1134, kMetric, L"20 mm"}, Case{1140, kMetric, L"20,1 mm"},
        Case{11906, kMetric, L"210 mm"}, Case{-567, kMetric, L"-10 mm"}, Case{-1, kMetric, L"0 mm"},
        Case{1080, kInches, L"0,75 in"}, Case{1440, kInches, L"1 in"},
        Case{12240, kInches, L"8,5 in"}, Case{100, kInches, L"0,07 in"}}) {
    EXPECT_EQ(LengthText(c.twips, c.unit, L','), c.text) << c.twips;
  }
}

TEST(LengthText, IsReadInEveryUnitAndNothingElse) {
  struct Case {
    std::wstring text;
    LengthUnit unit;
    std::optional<int> twips;
  };
  const std::optional<int> kNone;
  for (const Case& c :
       {Case{L"20", kMetric, 1134}, Case{L"1", kInches, 1440}, Case{L" 2,5 cm ", kInches, 1417},
        Case{L"0.75\"", kMetric, 1080}, Case{L"72PT", kMetric, 1440}, Case{L".5in", kMetric, 720},
        Case{L"5.", kMetric, 283}, Case{L"0", kMetric, 0}, Case{L"", kMetric, kNone},
        Case{L"mm", kMetric, kNone}, Case{L"-5", kMetric, kNone}, Case{L"1.2.3", kMetric, kNone},
        Case{L",", kMetric, kNone}, Case{L"5 m", kMetric, kNone}, Case{L"5 mm x", kMetric, kNone},
        Case{L"17638 mm", kMetric, 999'950}, Case{L"17639 mm", kMetric, kNone},
        Case{std::wstring(25, L'9'), kMetric, kNone}}) {
    EXPECT_EQ(ReadLength(c.text, c.unit), c.twips) << std::string(c.text.begin(), c.text.end());
  }
  // What is shown reads back as the same, to what is shown of it.
  std::mt19937 random(7);
  for (int i = 0; i < 2000; ++i) {
    const int twips = static_cast<int>(random() % 40'000);
    for (const LengthUnit unit : {kMetric, kInches}) {
      const std::wstring text = LengthText(twips, unit, L'.');
      ASSERT_EQ(LengthText(ReadLength(text, unit).value_or(-1), unit, L'.'), text) << twips;
    }
  }
}

PageSetup RandomSetup(std::mt19937& random) {
  const auto length = [&random](int most) { return static_cast<int>(random() % most); };
  PageSetup setup;
  setup.paper = {kLeastPaper + length(20'000), kLeastPaper + length(20'000)};
  setup.margins = {length(30'000) - 500, length(30'000), length(9'000), length(900)};
  if (length(2)) setup.texts.header[1] = L"x";
  if (length(2)) setup.texts.footer[2] = L"&P";
  return setup;
}

TEST(PageSetup, MarginsAlwaysLeaveAColumn) {
  std::mt19937 random(11);
  for (int i = 0; i < 5000; ++i) {
    const PageSetup setup = RandomSetup(random);
    const PageMargins fitted = FittedMargins(setup.paper, setup.margins);
    ASSERT_GE(std::min({fitted.left, fitted.top, fitted.right, fitted.bottom}), 0);
    ASSERT_GE(setup.paper.width - fitted.left - fitted.right, kLeastColumn);
    ASSERT_GE(setup.paper.height - fitted.top - fitted.bottom, kLeastColumn);
    ASSERT_EQ(FittedMargins(setup.paper, fitted), fitted);
    const Rect column = ColumnOf(setup);
    ASSERT_GE(std::min(column.width(), column.height()), kLeastColumn);
    ASSERT_EQ(Intersection(column, RectAt({0, 0}, setup.paper)), column);
    ASSERT_TRUE(Intersection(HeaderBand(setup), column).empty());
    ASSERT_TRUE(Intersection(FooterBand(setup), column).empty());
    const auto edge = static_cast<PageEdge>(random() % 4);
    const int wished = static_cast<int>(random() % 40'000) - 5'000;
    const PageMargins dragged = WithMargin(setup.paper, fitted, edge, wished);
    ASSERT_EQ(FittedMargins(setup.paper, dragged), dragged);
    for (const PageEdge other :
         {PageEdge::kLeft, PageEdge::kTop, PageEdge::kRight, PageEdge::kBottom}) {
      if (other != edge) ASSERT_EQ(MarginOf(dragged, other), MarginOf(fitted, other));
    }
    if (wished <= MarginOf(fitted, edge) && wished >= 0) ASSERT_EQ(MarginOf(dragged, edge), wished);
  }
}

TEST(PageSetup, MarginsTooWideShrinkInProportion) {
  EXPECT_EQ(FittedMargins({11'906, 16'838}, {9'000, 0, 3'000, 0}),
            (PageMargins{8'079, 0, 2'693, 0}));
}

TEST(PageTexts, FieldsStandForWhatTheyName) {
  const PageFields fields{3, 12, L"Plan & goals", L"plan.rtf", L"21/11/2026", L"14:07"};
  struct Case {
    std::wstring text, filled;
  };
  for (const Case& c : {Case{L"&P of &N", L"3 of 12"}, Case{L"&t|&f", L"Plan & goals|plan.rtf"},
                        Case{L"&D &h", L"21/11/2026 14:07"}, Case{L"R&&D &&P", L"R&D &P"},
                        Case{L"Q & A&", L"Q & A&"}, Case{L"&x&", L"&x&"}, Case{L"", L""}}) {
    EXPECT_EQ(FilledIn(c.text, fields), c.filled);
  }
  PageTexts texts{{L"&T", L"", L"&P"}, {L"", L"end", L""}, true};
  EXPECT_EQ(HeaderOf(texts, fields), (PageLine{L"Plan & goals", L"", L"3"}));
  EXPECT_EQ(FooterOf(texts, fields), (PageLine{L"", L"end", L""}));
  EXPECT_EQ(HeaderOf(texts, {.page = 1}), PageLine{});
  texts.from_second_page = false;
  EXPECT_EQ(FooterOf(texts, {.page = 1})[1], L"end");
}

TEST(PageTexts, NoneOverlapsAnother) {
  EXPECT_EQ(PlaceTexts({1000, 2000, 500}, 10'000),
            (std::array<TextSpan, 3>{{{0, 1000}, {4000, 2000}, {9500, 500}}}));
  std::mt19937 random(3);
  for (int i = 0; i < 5000; ++i) {
    const int room = kLeastColumn + static_cast<int>(random() % 9000);
    std::array<int, 3> widths{};
    for (int& width : widths) {
      if (random() % 4) width = static_cast<int>(random() % 12'000);
    }
    int end = 0;
    const auto spans = PlaceTexts(widths, room);
    for (std::size_t text = 0; text < 3; ++text) {
      ASSERT_EQ(spans[text].width > 0, widths[text] > 0) << i;
      ASSERT_LE(spans[text].width, widths[text]);
      if (spans[text].width == 0) continue;
      ASSERT_GE(spans[text].left, end) << i;
      end = spans[text].left + spans[text].width;
    }
    ASSERT_LE(end, room);
  }
}

}  // namespace
}  // namespace varnel

// Where things stand on a page.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/cases.h"
#include "tests/support/page_aid.h"
#include "widgets/notes/pages/note_pages.h"
#include "widgets/notes/pages/paragraph_numbers.h"
#include "widgets/notes/pages/plain_document.h"

namespace varnel {
namespace {

using test::Cases;
using test::PlainPageMeasure;

constexpr Rect kColumn{1000, 2000, 5000, 12'000};
constexpr int kEm = 240;  // of 12 points: letters are 120 wide, blanks and "i" 60, lines 240 high

// One format for all characters and one for all paragraphs, to be changed; "|" breaks a line.
RtfDocument Plain(std::wstring_view text) {
  RtfDocument document = PlainDocument(text, {L"Tahoma", 0}, {});
  std::ranges::replace(document.text, L'|', kLineBreak);
  return document;
}

Page FirstPage(const RtfDocument& document, const Rect& column = kColumn) {
  PlainPageMeasure measure;
  return NotePages(document, column, measure).At(0);
}

// The texts of a page as "left:text" in twips from the column's left edge, lines parted by "/".
std::wstring Shown(const Page& page) {
  std::wstring shown;
  int base_line = 0;
  for (const PlacedText& text : page.texts) {
    if (!shown.empty()) shown += text.base_line == base_line ? L' ' : L'/';
    shown += std::to_wstring(text.left - kColumn.left) + L':' + text.text;
    base_line = text.base_line;
  }
  return shown;
}

std::wstring ShownOf(std::wstring_view text, const ParagraphFormat& format) {
  RtfDocument document = Plain(text);
  document.paragraph_formats[0] = format;
  return Shown(FirstPage(document));
}

TEST(NotePageLayout, AlignsAndIndentsLines) {
  const std::wstring word(15, L'a');  // 1800 wide: two to a line
  const std::wstring text = word + L' ' + word + L' ' + word;
  const std::wstring two = word + L' ' + word;
  const Cases<ParagraphFormat, std::wstring> cases = {
      {ParagraphFormat{}, L"0:" + two + L"/0:" + word},
      {{.alignment = Alignment::kRight, .tabs = {}}, L"340:" + two + L"/2200:" + word},
      {{.alignment = Alignment::kCentre, .tabs = {}}, L"170:" + two + L"/1100:" + word},
      {{.alignment = Alignment::kJustified, .tabs = {}}, L"0:" + two + L"/0:" + word},
      {{.right_to_left = true, .tabs = {}}, L"0:" + two + L"/0:" + word},
      {{.alignment = Alignment::kRight, .right_to_left = true, .tabs = {}},
       L"340:" + two + L"/2200:" + word},
      {{.left = 300, .first = -200, .tabs = {}}, L"100:" + two + L"/300:" + word},
      {{.left = 300, .right = 50, .tabs = {}}, L"300:" + word + L"/300:" + word + L"/300:" + word},
      {{.left = -500, .first = -900, .right = -500, .tabs = {}}, L"0:" + two + L"/0:" + word},
      {{.left = 90'000, .tabs = {}}, L"3433:aaaa/3433:aaaa/3433:aaaa/3433:aaa/3433:aaaa"},
  };
  for (const auto& [format, expected] : cases) {
    const std::wstring shown = ShownOf(text, format);
    EXPECT_EQ(shown.substr(0, expected.size()), expected);
  }
}

TEST(NotePageLayout, StretchesOnlyLinesThatTheirParagraphGoesOnAfter) {
  const std::wstring word(9, L'a');  // 1080 wide: three to a line, 640 less than it
  RtfDocument document = Plain(word + L' ' + word + L' ' + word + L' ' + word + L' ' + word + L"|" +
                               word + L' ' + word);
  document.paragraph_formats[0].alignment = Alignment::kJustified;
  const Page page = FirstPage(document);
  ASSERT_EQ(page.texts.size(), 3u);
  const std::vector<int>& ends = page.texts[0].ends;
  EXPECT_EQ(ends[9], 1080 + 60 + 320);
  EXPECT_EQ(ends[19], 2 * (1080 + 60 + 320));
  EXPECT_EQ(page.texts[0].width(), kColumn.width());
  EXPECT_EQ(page.texts[1].width(), 2 * 1080 + 60);
  EXPECT_EQ(page.texts[2].width(), 2 * 1080 + 60);
}

TEST(NotePageLayout, KeepsEveryLineSpacing) {
  const Cases<LineRule, int, int> cases = {
      {LineRule::kSingle, 0, 240},    {LineRule::kOneAndHalf, 0, 360},
      {LineRule::kDouble, 0, 480},    {LineRule::kAtLeast, 300, 300},
      {LineRule::kAtLeast, 100, 240}, {LineRule::kExactly, 300, 300},
      {LineRule::kExactly, 100, 100}, {LineRule::kExactly, 0, 240},
      {LineRule::kMultiple, 25, 300}, {LineRule::kMultiple, 10, 120},
  };
  for (const auto& [rule, spacing, height] : cases) {
    RtfDocument document = Plain(L"a\ra\ra");
    document.paragraph_formats[0].line_rule = rule;
    document.paragraph_formats[0].line_spacing = spacing;
    const Page page = FirstPage(document);
    const int first = page.texts[0].base_line;
    EXPECT_EQ(first - kColumn.top, 192 + std::min(height - 240, 0)) << height;
    EXPECT_EQ(page.texts[1].base_line - first, height);
    EXPECT_EQ(page.texts[2].base_line - first, 2 * height);
  }
}

TEST(NotePageLayout, LeavesSpaceAroundParagraphsButNotAtTheHeadOfAFullPage) {
  RtfDocument document = Plain(L"a\ra\ra\fa");
  document.paragraph_formats[0].space_before = 50;
  document.paragraph_formats[0].space_after = 100;
  PlainPageMeasure measure;
  const int line = kColumn.top + 192;
  NotePages all(document, kColumn, measure);
  ASSERT_EQ(all.Settle(9).pages, 2u);
  EXPECT_EQ(all.At(0).texts[0].base_line, line + 50);
  EXPECT_EQ(all.At(0).texts[1].base_line, line + 50 + 240 + 150);
  EXPECT_EQ(all.At(1).texts[0].base_line, line);  // goes on with its paragraph
  document.paragraph_formats[0].page_break_before = true;
  NotePages asked(document, kColumn, measure);
  EXPECT_EQ(asked.Settle(9).pages, 4u);
  EXPECT_EQ(asked.At(1).texts[0].base_line, line + 50);
  document.paragraph_formats[0].page_break_before = false;
  NotePages low(document, {1000, 2000, 5000, 2000 + 600}, measure);
  EXPECT_EQ(low.At(1).texts[0].base_line, line);
}

TEST(NotePageLayout, GoesToTabStops) {
  const auto tabs = [](std::vector<TabStop> stops) {
    ParagraphFormat format;
    format.tabs = std::move(stops);
    return format;
  };
  const Cases<std::wstring, ParagraphFormat, std::wstring> cases = {
      {L"a\ta\t\ta", ParagraphFormat{}, L"0:a 720:a 2160:a"},
      {L"aaaaaaa\ta", ParagraphFormat{}, L"0:aaaaaaa 1440:a"},
      {L"a\taa\ta", tabs({{500}, {800}}), L"0:a 500:aa 800:a"},
      {L"a\taa b\ta", tabs({{2000, TabKind::kRight}}), L"0:a 1580:aa b 2160:a"},
      {L"a\taaaa", tabs({{2000, TabKind::kCentre}}), L"0:a 1760:aaaa"},
      {L"\taa.aaa", tabs({{2000, TabKind::kDecimal}}), L"1760:aa.aaa"},
      {L"\taa", tabs({{2000, TabKind::kDecimal}}), L"1760:aa"},
      // A stop that cannot be kept: text before it, or beyond the column.
      {L"aaaa\taaaa", tabs({{500, TabKind::kRight}}), L"0:aaaa 480:aaaa"},
      {L"a\taaaa", tabs({{9000, TabKind::kRight}}), L"0:a 3520:aaaa"},
      {L"a\taaaa", tabs({{9000}}), L"0:a/0:aaaa"},
      {L"a\taaaa", tabs({{3900}}), L"0:a/0:aaaa"},
      {L"a\ta", tabs({{500, TabKind::kLeft, 1}}), L"0:a 500:a 140:......"},
      {L"a\ta", {.left = 300, .first = -300, .tabs = {}}, L"0:a 300:a"},
  };
  for (const auto& [text, format, expected] : cases) EXPECT_EQ(ShownOf(text, format), expected);
  ParagraphFormat bar = tabs({{500, TabKind::kBar}});
  bar.alignment = Alignment::kCentre;
  RtfDocument document = Plain(L"a");
  document.paragraph_formats[0] = bar;
  const Page page = FirstPage(document);
  ASSERT_EQ(page.rules.size(), 1u);
  EXPECT_EQ(page.rules[0].area, (Rect{1500, 2000, 1510, 2240}));
}

TEST(NotePageLayout, NumbersParagraphs) {
  ParagraphFormat format{.left = 400, .first = -400, .numbering = Numbering::kBullet, .tabs = {}};
  EXPECT_EQ(ShownOf(L"a\ra", format), L"0:\x2022 400:a/0:\x2022 400:a");
  format = {.left = 400,
            .numbering = Numbering::kArabic,
            .number_start = 9,
            .number_gap = 300,
            .tabs = {}};
  EXPECT_EQ(ShownOf(L"a\ra", format), L"400:9. 700:a/400:10. 720:a");
  RtfDocument document = Plain(L"a\ra\ra\ra\ra\ra");
  document.paragraph_formats.resize(3);
  document.paragraph_formats[0].numbering = Numbering::kArabic;
  document.paragraph_formats[1] = {.left = 300, .numbering = Numbering::kLowerLetter, .tabs = {}};
  for (const std::size_t deeper : {1, 2}) document.paragraphs[deeper].format = 1;
  document.paragraphs[4].format = 2;
  EXPECT_EQ(ParagraphNumbers(document), (std::vector<std::int32_t>{1, 1, 2, 2, 0, 1}));

  const Cases<Numbering, int, std::wstring> cases = {
      {Numbering::kBullet, 5, L"\x2022"},          {Numbering::kArabic, 12, L"12."},
      {Numbering::kLowerLetter, 26, L"z."},        {Numbering::kUpperLetter, 28, L"AB."},
      {Numbering::kLowerRoman, 1994, L"mcmxciv."}, {Numbering::kUpperRoman, 4, L"IV."},
      {Numbering::kUpperRoman, 4000, L"4000."},    {Numbering::kLowerLetter, 0, L"0."},
  };
  for (const auto& [numbering, number, expected] : cases) {
    EXPECT_EQ(ListMark({.numbering = numbering, .tabs = {}}, number), expected);
  }
}

TEST(NotePageLayout, MakesPicturesFit) {
  const Cases<RtfPicture, Size> cases = {
      {{.bytes = {}, .width_twips = 1000, .height_twips = 500}, {1000, 500}},
      {{.bytes = {}, .width_twips = 8000, .height_twips = 500}, {4000, 250}},
      {{.bytes = {}, .width_twips = 8000, .height_twips = 40'000}, {2000, 10'000}},
      {{.bytes = {}, .width = 100, .height = 20}, {1500, 300}},
      {{.kind = PictureKind::kWmf, .bytes = {}, .width = 2540, .height = 1270}, {1440, 720}},
      {{.bytes = {}, .width_twips = 1000, .height_twips = 500, .scale_x = 50, .crop_left = 200},
       {400, 500}},
      {{.bytes = {}, .width_twips = 1000, .height_twips = 500, .crop_top = 900}, {1000, 1}},
      {RtfPicture{}, {720, 720}},
  };
  for (const auto& [picture, size] : cases) {
    RtfDocument document = Plain(L"?");
    document.text[0] = kObject;
    document.pictures = {picture};
    const Page page = FirstPage(document);
    ASSERT_EQ(page.pictures.size(), 1u);
    EXPECT_EQ(page.pictures[0].area, RectAt({1000, 2000}, size));
  }
}

// Lines of `text` in a column of `width` letters, hidden signs left out.
std::wstring Wrapped(std::wstring_view text, int width) {
  std::wstring lines;
  const Page page = FirstPage(Plain(text), {0, 0, width * 120, 9000});
  int base_line = 0;
  for (const PlacedText& piece : page.texts) {
    if (!lines.empty() && piece.base_line != base_line) lines += L'/';
    lines += piece.text;
    base_line = piece.base_line;
  }
  return lines;
}

TEST(NotePageLayout, EndsLinesWhereEveryScriptAllows) {
  const Cases<std::wstring, int, std::wstring> cases = {
      {L"abc well-known", 9, L"abc well-/known"},
      {L"minus -5 x-9", 6, L"minus/-5 x-9"},
      {L"co\xADoper\xAD"
       L"ate",
       8, L"cooper-/ate"},
      {L"co\xADoper\xAD"
       L"ate",
       6, L"co-/oper-/ate"},
      {L"no\xA0"
       L"break here",
       6, L"no bre/ak/here"},
      {L"a\x200B"
       L"bcdef",
       5, L"a/bcdef"},
      {L"abcdefgh", 5, L"abcde/fgh"},
      {L"\x4F60\x597D\x3002\x4F60\x597D", 2, L"\x4F60/\x597D\x3002/\x4F60\x597D"},
      {L"e\x301"
       L"e\x301"
       L"e\x301"
       L"e\x301"
       L"e\x301"
       L"e\x301",
       5,
       L"e\x301"
       L"e\x301"
       L"e\x301"
       L"e\x301"
       L"e\x301/e\x301"},
      {L"\xD83D\xDE00\xD83D\xDE00\x200D\xD83D\xDE00\xD83D\xDE00", 5,
       L"\xD83D\xDE00\xD83D\xDE00\x200D\xD83D\xDE00\xD83D\xDE00"},
      {L"(\xD83D\xDE00)!\xD83D\xDE00", 5, L"(\xD83D\xDE00)!\xD83D\xDE00"},
      {L"a\x2014"
       L"bcdef",
       5, L"a\x2014/bcdef"},
  };
  for (const auto& [text, width, expected] : cases) EXPECT_EQ(Wrapped(text, width), expected);
}

TEST(NotePageLayout, WritesLettersAsTheirFormatSays) {
  RtfDocument document = Plain(
      L"aB\xDF"
      L"c\xE9");
  CharFormat& format = document.char_formats[0];
  format.capitals = true;
  EXPECT_EQ(Shown(FirstPage(document)),
            L"0:AB\xDF"
            L"C\xC9");
  format.capitals = false;
  format.small_capitals = true;
  Page page = FirstPage(document);
  EXPECT_EQ(Shown(page),
            L"0:A 95:B 215:\xDF"
            L"C\xC9");
  EXPECT_EQ(page.texts[0].font.half_points, 19);
  format.small_capitals = false;
  format.script = Script::kSuper;
  page = FirstPage(document);
  EXPECT_EQ(page.texts[0].font.half_points, 16);
  EXPECT_EQ(page.texts[0].base_line, 2000 + 128);
  format.script = Script::kNormal;
  format.hidden = true;
  EXPECT_TRUE(FirstPage(document).texts.empty());
  // A raised letter makes its line higher by what it reaches above the others.
  document = Plain(L"ab\rc");
  document.char_formats.resize(2);
  document.char_formats[1].raised = 10;
  document.runs.push_back({1, 1});
  document.runs.push_back({2, 0});
  page = FirstPage(document);
  EXPECT_EQ(page.texts[0].base_line, 2000 + 292);
  EXPECT_EQ(page.texts[1].base_line, 2000 + 192);
  EXPECT_EQ(page.texts[2].base_line, 2000 + 340 + 192);
}

TEST(NotePageLayout, DrawsLinesUnderAndThroughText) {
  const Cases<Underline, std::vector<Rect>> cases = {
      {Underline::kNone, {}},
      {Underline::kSingle, {{1000, 2216, 1540, 2229}}},
      {Underline::kWords, {{1000, 2216, 1240, 2229}, {1300, 2216, 1540, 2229}}},
      {Underline::kDouble, {{1000, 2216, 1540, 2229}, {1000, 2242, 1540, 2255}}},
      {Underline::kThick, {{1000, 2216, 1540, 2242}}},
  };
  RtfDocument document = Plain(L"aa aa  ");
  for (const auto& [underline, expected] : cases) {
    document.char_formats[0].underline = underline;
    std::vector<Rect> areas;
    for (const PlacedRule& rule : FirstPage(document).rules) areas.push_back(rule.area);
    EXPECT_EQ(areas, expected);
  }
  document.char_formats[0] = {.struck = true, .colour = 0x123456, .ground = 0xFFFF};
  const Page page = FirstPage(document);
  ASSERT_EQ(page.rules.size(), 1u);
  EXPECT_EQ(page.rules[0].area.top, 2000 + 192 - 72);
  EXPECT_EQ(page.rules[0].colour, 0x123456);
  ASSERT_EQ(page.grounds.size(), 1u);
  EXPECT_EQ(page.grounds[0].area, (Rect{1000, 2000, 1540, 2240}));
}

TEST(NotePageLayout, OrdersBothDirections) {
  // Letters from alef on run from right to left.
  const std::wstring hebrew = L"\x5D0\x5D1\x5D2";
  const Cases<std::wstring, bool, std::wstring> cases = {
      {L"ab " + hebrew + L" cd", false, L"0:ab  300:" + hebrew + L" 660: cd"},
      {hebrew + L" 12.5", false, L"420:" + hebrew + L"  0:12.5"},
      {hebrew + L" 12.5", true, L"420:" + hebrew + L"  0:12.5"},
      {hebrew + L" ab " + hebrew, true, L"660:" + hebrew + L"  420:ab 0: " + hebrew},
      {L"ab. " + hebrew + L"!", false, L"0:ab.  360:" + hebrew + L" 720:!"},
  };
  for (const auto& [text, right_to_left, expected] : cases) {
    EXPECT_EQ(ShownOf(text, {.right_to_left = right_to_left, .tabs = {}}), expected);
  }
  const Page page = FirstPage(Plain(L"a " + hebrew));
  EXPECT_FALSE(page.texts[0].right_to_left);
  EXPECT_TRUE(page.texts[1].right_to_left);
}

TEST(NotePageLayout, KeepsParagraphsTogetherWhereAPageHasRoomForThem) {
  // Which paragraphs are kept, and how many lines each page of four then has.
  using Numbers = std::vector<std::size_t>;
  const Cases<std::wstring, bool, Numbers, Numbers> cases = {
      {L"a\ra|a|a|a\ra\ra", false, {}, {3, 4}},       {L"a\ra|a|a|a\ra\ra", false, {1}, {1, 4, 2}},
      {L"a\ra|a|a|a|a\ra\ra", false, {1}, {1, 3, 4}},  // more than a page has room for
      {L"a\ra\ra\ra\ra", true, {}, {4, 1}},           {L"a\ra\ra\ra\ra", true, {2, 3}, {2, 3}},
      {L"a\ra\ra\ra\ra", true, {0, 1, 2, 3}, {4, 1}},
  };
  for (const auto& [text, with_next, kept, expected] : cases) {
    RtfDocument document = Plain(text);
    document.paragraph_formats.resize(2);
    document.paragraph_formats[1].keep_with_next = with_next;
    document.paragraph_formats[1].keep_together = !with_next;
    for (const std::size_t paragraph : kept) document.paragraphs[paragraph].format = 1;
    PlainPageMeasure measure;
    NotePages pages(document, {0, 0, 1000, 4 * kEm}, measure);
    Numbers lines;
    const std::size_t count = pages.Settle(99).pages;
    for (std::size_t i = 0; i < count; ++i) lines.push_back(pages.At(i).texts.size());
    EXPECT_EQ(lines, expected);
  }
}

TEST(NotePageLayout, LaysOutNoMoreThanItIsAskedFor) {
  std::wstring text;
  while (text.size() < 200'000) text += L"words of a long note ";
  const RtfDocument document = Plain(text);
  PlainPageMeasure measure;
  NotePages pages(document, kColumn, measure);
  EXPECT_EQ(pages.Count(), (PageCount{1, false}));
  EXPECT_EQ(measure.units, 0u);
  EXPECT_EQ(pages.Settle(1), (PageCount{1, false}));
  EXPECT_LT(measure.units, 5'000u);
  const PageCount all = pages.Settle(10'000);
  EXPECT_TRUE(all.settled);
  EXPECT_GT(all.pages, 100u);
  EXPECT_LT(measure.units, 400'000u);
  EXPECT_EQ(Shown(pages.At(10'000)), Shown(pages.At(all.pages - 1)));
  for (const wchar_t* end : {L"", L"a", L"a\f", L"\r"}) {
    const RtfDocument little = Plain(end);
    NotePages few(little, kColumn, measure);
    EXPECT_EQ(few.Settle(9), (PageCount{1, true}));
  }
}

}  // namespace
}  // namespace varnel

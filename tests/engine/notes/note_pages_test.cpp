#include "widgets/notes/pages/note_pages.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/support/cases.h"
#include "tests/support/page_aid.h"
#include "tests/support/rtf_samples.h"
#include "widgets/notes/pages/plain_document.h"

namespace varnel {
namespace {

using test::Below;
using test::Cases;
using test::Chance;
using test::PagesFault;
using test::PlainPageMeasure;

constexpr int kEm = 240;  // of 12 points: letters are 120 wide, blanks 60, lines 240 high

RtfDocument Plain(std::wstring_view text) {
  return PlainDocument(text, {L"Tahoma", 0}, {});
}

struct Line {
  std::wstring text;  // of the source
  std::size_t begin = 0;
  int left = 0;
  int right = 0;
};

// The lines of a page, from the head down, by the base lines of their texts.
std::vector<Line> LinesOf(const Page& page) {
  std::map<int, Line> lines;
  for (const PlacedText& text : page.texts) {
    if (text.source == kNoSource) continue;
    Line& line = lines[text.base_line];
    if (line.text.empty()) line = {L"", text.source, text.left, text.left};
    line.text += text.text;
    line.left = std::min(line.left, text.left);
    line.right = std::max(line.right, text.left + text.width());
  }
  std::vector<Line> all;
  for (const auto& [base_line, line] : lines) all.push_back(line);
  return all;
}

// Where lines of a plain text end, by trying every end there is.
std::vector<std::size_t> PlainEnds(std::wstring_view text, int width) {
  PlainPageMeasure measure;
  const auto fits = [&](std::size_t begin, std::size_t end) {
    while (end > begin && text[end - 1] == L' ') --end;
    std::vector<int> ends(end - begin);
    if (!ends.empty()) measure.Measure({}, text.substr(begin, end - begin), ends);
    return ends.empty() || ends.back() <= width;
  };
  const auto may_end = [&](std::size_t end) {
    if (end == text.size()) return true;
    const bool hyphen = end > 1 && text[end - 1] == L'-' && text[end - 2] != L' ';
    return text[end] != L' ' && (text[end - 1] == L' ' || (hyphen && text[end] != L'-'));
  };
  std::vector<std::size_t> ends;
  for (std::size_t begin = 0; begin < text.size();) {
    std::size_t end = 0;
    for (std::size_t to = begin + 1; to <= text.size(); ++to) {
      if (may_end(to) && fits(begin, to)) end = to;
    }
    for (std::size_t to = begin + 1; end == 0; ++to) {
      if (!fits(begin, to + 1)) end = to;
    }
    ends.push_back(begin = end);
  }
  return ends;
}

TEST(NotePages, EndLinesAsAPlainGreedyModelDoes) {
  Chance chance(1);
  PlainPageMeasure measure;
  for (int round = 0; round < 800; ++round) {
    std::wstring text;
    for (int i = Below(chance, 200); i >= 0; --i) text += L"aaiiio  -"[Below(chance, 9)];
    const int width = 600 + Below(chance, 1500);
    const RtfDocument document = Plain(text);
    NotePages pages(document, {0, 0, width, 60'000}, measure);
    std::vector<std::wstring> expected;
    std::size_t begin = 0;
    for (const std::size_t end : PlainEnds(text, width)) {
      std::wstring line = text.substr(begin, end - begin);
      line.erase(line.find_last_not_of(L' ') + 1);
      if (!line.empty()) expected.push_back(line);
      begin = end;
    }
    std::vector<std::wstring> lines;
    for (const Line& line : LinesOf(pages.At(0))) lines.push_back(line.text);
    ASSERT_EQ(lines, expected) << round;
  }
}

// Paragraphs by how many lines they have; 0 is a picture three lines high, -1 a page break between
// two lines and two more.
RtfDocument Blocks(const std::vector<int>& blocks) {
  RtfDocument document = Plain(L"");
  document.text.clear();
  document.paragraphs.clear();
  for (const int lines : blocks) {
    if (!document.paragraphs.empty()) document.text += kParagraphEnd;
    document.paragraphs.push_back({document.text.size(), 0});
    if (lines == 0) {
      RtfPicture& picture = document.pictures.emplace_back();
      picture.at = document.text.size();
      picture.width_twips = 100;
      picture.height_twips = 3 * kEm;
      document.text += kObject;
    }
    for (int i = 0; i < lines; ++i) document.text += L"words ";
    if (lines < 0) document.text += L"words words \fwords words ";
  }
  document.runs = {{0, 0}};
  return document;
}

struct ModelLine {
  int block = 0;
  int height = 1;
  bool ends_page = false;
};

// How many lines each page has, by looking at every place where a page might end.
std::vector<int> PlainPages(const std::vector<int>& blocks, int height) {
  std::vector<ModelLine> lines;
  int block = 0;
  for (const int count : blocks) {
    ++block;
    if (count == 0) lines.push_back({block, 3});
    for (int i = 0; i < count; ++i) lines.push_back({block});
    if (count >= 0) continue;
    for (const bool ends : {false, true}) lines.push_back({block, 1, ends});
    ++block;
    for (int i = 0; i < 2; ++i) lines.push_back({block});
  }
  const int total = static_cast<int>(lines.size());
  const auto at = [&](int i) { return lines[static_cast<std::size_t>(i)]; };
  // Lines of the block of `like` among those from `begin` up to `end`.
  const auto of_block = [&](int like, int begin, int end) {
    int count = 0;
    for (int i = begin; i < end; ++i) count += at(i).block == at(like).block ? 1 : 0;
    return count;
  };
  std::vector<int> pages;
  for (int begin = 0; begin < total;) {
    int end = begin;
    int used = 0;
    while (end < total && (end == begin || used + at(end).height <= height)) {
      used += at(end).height;
      if (at(end++).ends_page) break;
    }
    int best = end;
    const bool for_want_of_room = end < total && !at(end - 1).ends_page;
    while (for_want_of_room && best > begin && at(best - 1).block == at(best).block &&
           (of_block(best, begin, best) < 2 || of_block(best, best, total) < 2)) {
      --best;
    }
    if (best == begin) best = end;
    pages.push_back(best - begin);
    begin = best;
  }
  return pages;
}

TEST(NotePages, LeaveNoLineAloneAtEveryCombinationOfBlocks) {
  PlainPageMeasure measure;
  constexpr int kKinds[] = {1, 2, 3, 4, 0, -1};
  for (int mixture = 0; mixture < 6 * 6 * 6 * 6; ++mixture) {
    std::vector<int> blocks;
    for (int i = 0, rest = mixture; i < 4; ++i, rest /= 6) blocks.push_back(kKinds[rest % 6]);
    const RtfDocument document = Blocks(blocks);
    for (int height = 2; height <= 5; ++height) {
      NotePages pages(document, {0, 0, 700, height * kEm}, measure);
      std::vector<int> lines;
      const std::size_t count = pages.Settle(1000).pages;
      for (std::size_t i = 0; i < count; ++i) {
        const Page page = pages.At(i);
        lines.push_back(static_cast<int>(LinesOf(page).size() + page.pictures.size()));
      }
      ASSERT_EQ(lines, PlainPages(blocks, height))
          << "mixture " << mixture << ", height " << height;
    }
  }
}

TEST(NotePages, LoseNothingOfAnyDocument) {
  Chance chance(2);
  PlainPageMeasure measure;
  std::size_t paragraphs = 0;
  for (int round = 0; paragraphs < 10'000; ++round) {
    RtfDocument document = test::AnyDocument(chance, Below(chance, 400));
    if (document.char_formats.empty()) continue;
    paragraphs += document.paragraphs.size();
    const int width = 300 + Below(chance, 9000);
    const Rect column{700, 900, 700 + width, 900 + 400 + Below(chance, 9000)};
    NotePages pages(document, column, measure);
    ASSERT_EQ(PagesFault(document, column, pages), "") << round << " width " << width;
  }
}

}  // namespace
}  // namespace varnel

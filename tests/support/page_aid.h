// A made-up printer font and what has to hold for the pages of every document.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/letters.h"
#include "widgets/notes/pages/line_ends.h"
#include "widgets/notes/pages/note_pages.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel::test {

// Letters half as wide as the font is high, "i", blanks and points a quarter, marks and second
// halves without width; four fifths of the height above the base line.
class PlainPageMeasure : public PageMeasure {
 public:
  FontExtent Extent(const PageFont& font) override {
    const int em = font.half_points * 10;
    return {em * 4 / 5, em / 5, 0};
  }
  void Measure(const PageFont& font, std::wstring_view text, std::span<int> ends) override {
    units += text.size();
    int end = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
      const wchar_t unit = text[at];
      const bool narrow = unit == L'i' || unit == L'.' || IsLineBlank(unit);
      const bool mark = KindOf(CharacterAt(text, at).point) == CharacterKind::kMark;
      const bool second_half = unit >= 0xDC00 && unit < 0xE000;
      if (!mark && !second_half) end += font.half_points * 10 / (narrow ? 4 : 2);
      ends[at] = end;
    }
  }
  std::size_t units = 0;  // measured so far
};

// What is left of a line, however far its paragraph is indented.
inline constexpr int kNarrowestLine = 567;

// What of a document is to be seen on paper, for each unit.
enum class Seen : std::uint8_t { kNever, kMaybe, kAlways };

inline std::vector<Seen> SeenUnits(const RtfDocument& document) {
  std::vector<Seen> seen(document.text.size(), Seen::kNever);
  std::size_t run = 0;
  for (std::size_t at = 0; at < seen.size(); ++at) {
    while (run + 1 < document.runs.size() && document.runs[run + 1].begin <= at) ++run;
    const wchar_t unit = document.text[at];
    if (document.char_formats[document.runs[run].format].hidden || unit == kObject) continue;
    if (!IsUnseen(unit)) seen[at] = IsLineBlank(unit) ? Seen::kMaybe : Seen::kAlways;
  }
  return seen;
}

// What is wrong with one text of a page; empty when nothing is.
inline std::string TextFault(const PlacedText& text, const Rect& column) {
  if (text.ends.size() != text.text.size() || text.text.empty()) return "ends do not fit the text";
  if (!std::ranges::is_sorted(text.ends) || text.ends.front() < 0) return "ends are not in order";
  if (text.source == kNoSource || text.width() == 0) return {};
  const bool one =
      std::ranges::all_of(text.ends, [&text](int end) { return end == text.ends.front(); });
  const bool may_cross = one && text.width() > std::min(kNarrowestLine, column.width());
  const bool crosses = text.left < column.left || text.left + text.width() > column.right;
  if (!crosses || may_cross) return {};
  return "the text of unit " + std::to_string(text.source) +
         " crosses the column: " + std::to_string(text.left) + ", " + std::to_string(text.width()) +
         " wide";
}

// What is wrong with the pages; empty when nothing is: there are not too many, no text is lost, out
// of order or beyond the column, and every picture is there.
inline std::string PagesFault(const RtfDocument& document, const Rect& column, NotePages& pages) {
  const std::size_t most = document.text.size() + document.paragraphs.size();
  const PageCount count = pages.Settle(most + 1);
  if (!count.settled || count.pages > most) return "too many pages";
  const std::vector<Seen> seen = SeenUnits(document);
  std::size_t at = 0;
  std::vector<std::size_t> pictures;
  for (std::size_t index = 0; index < count.pages; ++index) {
    const Page page = pages.At(index);
    for (const PlacedText& text : page.texts) {
      std::string fault = TextFault(text, column);
      if (!fault.empty()) return fault;
      if (text.source == kNoSource) continue;
      if (text.source < at) return "out of order";
      for (; at < text.source; ++at) {
        if (seen[at] == Seen::kAlways) return "lost before a text";
      }
      for (std::size_t end = at + text.text.size(); at < end; ++at) {
        if (at >= seen.size() || seen[at] == Seen::kNever) return "what is never seen is printed";
      }
    }
    for (const PlacedPicture& picture : page.pictures) {
      if (picture.area.empty() || picture.area.right > column.right ||
          picture.area.left < column.left || picture.area.height() > column.height()) {
        return "a picture does not fit";
      }
      pictures.push_back(picture.index);
    }
  }
  if (std::find(seen.begin() + static_cast<std::ptrdiff_t>(at), seen.end(), Seen::kAlways) !=
      seen.end()) {
    return "lost at the end";
  }
  if (std::ranges::adjacent_find(pictures, std::ranges::greater_equal{}) != pictures.end()) {
    return "pictures out of order";
  }
  return "";
}

}  // namespace varnel::test

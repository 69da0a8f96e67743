#include "widgets/notes/pages/note_pages.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr std::size_t kFewestTogether = 2;  // lines of a paragraph, at the foot and head of a page

}  // namespace

NotePages::NotePages(const RtfDocument& document, const Rect& column, PageMeasure& measure,
                     wchar_t decimal_point)
    : column_(column),
      lines_(document, {column.width(), column.height()}, measure, decimal_point),
      placer_(document, lines_.reader(), column),
      starts_({{lines_.Shown(0)}}) {
  settled_ = lines_.IsEnd(starts_.front().place);
}

PageCount NotePages::Count() const {
  if (settled_) return {starts_.size(), true};
  return {std::max<std::size_t>(starts_.size() - 1, 1), false};
}

PageCount NotePages::Settle(std::size_t pages) {
  while (!settled_ && starts_.size() <= pages) {
    const Start next = NextStart(starts_.back());
    settled_ = lines_.IsEnd(next.place);
    if (!settled_) starts_.push_back(next);
  }
  return Count();
}

Page NotePages::At(std::size_t index) {
  Page page;
  const std::size_t last = Settle(index + 1).pages - 1;
  index = std::min(index, last);
  const Start& start = starts_[index];
  const bool is_last = index + 1 == starts_.size();
  int top = column_.top;
  for (LinePlace place = start.place; !lines_.IsEnd(place);) {
    if (!is_last && place == starts_[index + 1].place) break;
    const NoteLine line = lines_.Line(place);
    top += SpaceBefore(line, start);
    placer_.Place(line, lines_.FormatOf(place.paragraph), top, page);
    top += line.height + SpaceAfter(line);
    place = line.next;
  }
  return page;
}

int NotePages::SpaceBefore(const NoteLine& line, const Start& start) const {
  if (!line.first || (line.begin == start.place && !start.asked)) return 0;
  const int space = lines_.FormatOf(line.begin.paragraph).space_before;
  return std::clamp(space, 0, std::max(column_.height() - line.height, 0));
}

int NotePages::SpaceAfter(const NoteLine& line) const {
  if (!line.last) return 0;
  return std::clamp(lines_.FormatOf(line.begin.paragraph).space_after, 0, column_.height());
}

// Where the page after the one that begins at `start` begins.
NotePages::Start NotePages::NextStart(const Start& start) {
  std::vector<Filled> lines;
  int top = 0;
  for (LinePlace place = start.place; !lines_.IsEnd(place);) {
    const NoteLine line = lines_.Line(place);
    const ParagraphFormat& format = lines_.FormatOf(place.paragraph);
    if (line.first && format.page_break_before && !lines.empty()) return {place, true};
    top += SpaceBefore(line, start) + line.height;
    const std::size_t block = line.first || lines.empty() ? lines.size() : lines.back().block;
    lines.push_back({place, block, line.last || line.ends_page});
    if (top > column_.height() && lines.size() > 1) return BreakBefore(lines);
    top += SpaceAfter(line);
    if (line.ends_page) return {line.next, true};
    place = line.next;
  }
  return {lines_.End(), true};
}

// The start of the next page, when the last of `lines` does not fit any more.
NotePages::Start NotePages::BreakBefore(const std::vector<Filled>& lines) const {
  for (const bool keep : {true, false}) {
    for (std::size_t line = lines.size() - 1; line > 0; --line) {
      if (MayBreak(lines, line, keep)) return {lines[line].begin, false};
    }
  }
  return {lines.back().begin, false};
}

// Whether the page may end before that line. `keep`: lines and paragraphs that are to be kept
// together are.
bool NotePages::MayBreak(const std::vector<Filled>& lines, std::size_t line, bool keep) const {
  const std::size_t before = lines[line - 1].begin.paragraph;
  const std::size_t block = lines[line].block;
  if (block == line) return !keep || !lines_.FormatOf(before).keep_with_next;
  if (lines[line].ends_block || line - block < kFewestTogether) return false;
  return !keep || block == 0 || !lines_.FormatOf(before).keep_together;
}

}  // namespace varnel

#include "widgets/notes/text/note_text.h"

#include <algorithm>
#include <utility>

namespace varnel {
namespace {

constexpr std::size_t kBlock = 4096;  // units; a change may double a block before it is parted

}  // namespace

int TextWordCount(std::wstring_view text) {
  std::wstring editor_text;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool line_end = text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n';
    editor_text.push_back(text[i] == L'\r' && !line_end ? L'\x1' : text[i]);
    i += line_end ? 1 : 0;
  }
  NoteText note;
  note.Assign(editor_text);
  return note.Count().words;
}

NoteText::Summary NoteText::Summarise(std::wstring_view text, wchar_t next) {
  Summary summary;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool line_end = text[i] == L'\r';
    const wchar_t following = i + 1 < text.size() ? text[i + 1] : next;
    ++summary.chars;
    if (line_end) {
      ++summary.chars;
      ++summary.line_ends;
    }
    if (line_end || text[i] == L' ') {
      ++summary.blanks;
      ++summary.trailing;
      if (!summary.has_letters) ++summary.leading;
    } else if (text[i] != L'-' || following != L'\r') {
      summary.has_letters = true;
      summary.trailing = 0;
    }
  }
  return summary;
}

NoteText::Summary NoteText::Joined(const Summary& first, const Summary& second) {
  Summary both;
  both.chars = first.chars + second.chars;
  both.line_ends = first.line_ends + second.line_ends;
  both.blanks = first.blanks + second.blanks;
  both.leading = first.has_letters ? first.leading : first.blanks + second.leading;
  both.trailing = second.has_letters ? second.trailing : second.blanks + first.trailing;
  both.has_letters = first.has_letters || second.has_letters;
  return both;
}

void NoteText::Assign(std::wstring_view text) {
  blocks_.clear();
  size_ = 0;
  Replace(0, 0, text);
}

NoteText::Place NoteText::PlaceOf(std::size_t position) const {
  Place place;
  while (place.block + 1 < blocks_.size() && position > blocks_[place.block].text.size()) {
    position -= blocks_[place.block++].text.size();
  }
  place.offset = blocks_.empty() ? 0 : std::min(position, blocks_[place.block].text.size());
  return place;
}

void NoteText::Refresh(std::size_t block) {
  const bool is_last = block + 1 == blocks_.size();
  const wchar_t next = is_last ? L'\0' : blocks_[block + 1].text.front();
  blocks_[block].summary = Summarise(blocks_[block].text, next);
}

void NoteText::Replace(std::size_t begin, std::size_t end, std::wstring_view text) {
  end = std::min(end, size_);
  begin = std::min(begin, end);
  const Place from = PlaceOf(begin);
  const Place to = PlaceOf(end);
  std::wstring changed;
  std::size_t blocks_gone = 0;
  if (!blocks_.empty()) {
    changed = blocks_[from.block].text.substr(0, from.offset);
    changed += text;
    changed += blocks_[to.block].text.substr(to.offset);
    blocks_gone = to.block - from.block + 1;
  } else {
    changed = text;
  }
  std::vector<Block> parts;
  const std::size_t step = changed.size() <= 2 * kBlock ? 2 * kBlock : kBlock;
  for (std::size_t i = 0; i < changed.size(); i += step) {
    parts.push_back({changed.substr(i, step), {}});
  }
  const auto first = blocks_.begin() + static_cast<std::ptrdiff_t>(from.block);
  const std::size_t added = parts.size();
  const auto at = blocks_.erase(first, first + static_cast<std::ptrdiff_t>(blocks_gone));
  blocks_.insert(at, std::make_move_iterator(parts.begin()), std::make_move_iterator(parts.end()));
  size_ = size_ - (end - begin) + text.size();
  // The block before counts its last hyphen by what follows it.
  const std::size_t first_stale = from.block == 0 ? 0 : from.block - 1;
  const std::size_t stale_end = std::min(from.block + added, blocks_.size());
  for (std::size_t i = first_stale; i < stale_end; ++i) Refresh(i);
}

std::wstring NoteText::Text(std::size_t begin, std::size_t end) const {
  std::wstring text;
  std::size_t start = 0;
  for (const Block& block : blocks_) {
    const std::size_t from = std::max(begin, start);
    const std::size_t to = std::min(end, start + block.text.size());
    if (from < to) text += std::wstring_view(block.text).substr(from - start, to - from);
    start += block.text.size();
    if (start >= end) break;
  }
  return text;
}

TextCounts NoteText::Count(std::size_t begin, std::size_t end) const {
  end = std::min(end, size_);
  Summary all;
  std::size_t start = 0;
  for (const Block& block : blocks_) {
    const std::size_t from = std::max(begin, start);
    const std::size_t to = std::min(end, start + block.text.size());
    const bool whole = from == start && to == start + block.text.size() && to < end;
    if (whole) {
      all = Joined(all, block.summary);
    } else if (from < to) {
      const wchar_t next = to < end ? Text(to, to + 1).front() : L'\0';
      all = Joined(all,
                   Summarise(std::wstring_view(block.text).substr(from - start, to - from), next));
    }
    start += block.text.size();
    if (start >= end) break;
  }
  const std::size_t words = all.has_letters ? all.blanks - all.leading - all.trailing + 1 : 0;
  return {static_cast<int>(words), static_cast<int>(all.chars)};
}

int NoteText::LineEndsBefore(std::size_t position) const {
  std::size_t line_ends = 0;
  std::size_t start = 0;
  for (const Block& block : blocks_) {
    if (start >= position) break;
    if (start + block.text.size() <= position) {
      line_ends += block.summary.line_ends;
    } else {
      const std::wstring_view part = std::wstring_view(block.text).substr(0, position - start);
      line_ends += static_cast<std::size_t>(std::ranges::count(part, L'\r'));
    }
    start += block.text.size();
  }
  return static_cast<int>(line_ends);
}

}  // namespace varnel

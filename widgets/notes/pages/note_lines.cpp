#include "widgets/notes/pages/note_lines.h"

#include <algorithm>
#include <utility>

#include "widgets/notes/pages/line_ends.h"
#include "widgets/notes/pages/paragraph_numbers.h"

namespace varnel {
namespace {

constexpr int kLeastLine = 567;  // 1 cm, or the whole column where that is narrower
constexpr int kLeastTab = 20;    // between default tab stops
constexpr int kMostHeight = 1 << 24;

// Where what follows a tab begins when it is `width` wide, of which `before` stand before its
// decimal point: as the stop wants it, but neither before the tab nor so that it crosses `limit`.
long long AfterTab(const LineTab& tab, long long width, long long before, int limit) {
  long long left = tab.stop.at;
  switch (tab.stop.kind) {
    case TabKind::kLeft:
    case TabKind::kBar:
      return left;
    case TabKind::kRight:
      left -= width;
      break;
    case TabKind::kCentre:
      left -= width / 2;
      break;
    case TabKind::kDecimal:
      left -= before;
      break;
  }
  return std::max<long long>(std::min(left, limit - width), tab.from);
}

bool TakesNoRoom(const LineCluster& cluster) {
  return cluster.kind == ClusterKind::kBlank || cluster.kind == ClusterKind::kUnseen;
}

// How high a line is whose text needs `natural` twips.
int RuledHeight(const ParagraphFormat& format, int natural) {
  const auto times = [natural](long long numerator, long long denominator) {
    return static_cast<int>(std::min<long long>(natural * numerator / denominator, kMostHeight));
  };
  const int spacing = std::min(format.line_spacing, kMostHeight);
  switch (format.line_rule) {
    case LineRule::kSingle:
      return natural;
    case LineRule::kOneAndHalf:
      return times(3, 2);
    case LineRule::kDouble:
      return times(2, 1);
    case LineRule::kAtLeast:
      return std::max(natural, spacing);
    case LineRule::kExactly:
      return spacing > 0 ? spacing : natural;
    case LineRule::kMultiple:
      return spacing > 0 ? times(spacing, 20) : natural;
  }
  return natural;
}

}  // namespace

NoteLines::NoteLines(const RtfDocument& document, Size column, PageMeasure& measure,
                     wchar_t decimal_point)
    : document_(document),
      column_(column),
      decimal_point_(decimal_point),
      paragraphs_(document.paragraphs),
      reader_(document, measure),
      numbers_(ParagraphNumbers(document)) {}

const ParagraphFormat& NoteLines::FormatOf(std::size_t paragraph) const {
  return document_.paragraph_formats[paragraphs_[paragraph].format];
}

std::size_t NoteLines::ParagraphEnd(std::size_t paragraph) const {
  return paragraph + 1 < paragraphs_.size() ? paragraphs_[paragraph + 1].begin - 1
                                            : document_.text.size();
}

LinePlace NoteLines::Shown(std::size_t paragraph) const {
  for (; paragraph < paragraphs_.size(); ++paragraph) {
    const std::size_t begin = paragraphs_[paragraph].begin;
    const std::size_t end = std::min(ParagraphEnd(paragraph) + 1, document_.text.size());
    if (begin == end || !reader_.IsHidden(begin, end)) return {paragraph, begin};
  }
  return End();
}

NoteLine NoteLines::Line(LinePlace place) {
  NoteLine line;
  line.begin = place;
  line.first = place.at == paragraphs_[place.paragraph].begin;
  SetIndents(line);
  if (line.first && !numbers_.empty() && numbers_[place.paragraph] != 0) SetMark(line);
  const std::size_t end = ParagraphEnd(place.paragraph);
  const bool full = Fill(line, end);
  Close(line, end, full);
  SetHeight(line);
  return line;
}

void NoteLines::SetIndents(NoteLine& line) const {
  const ParagraphFormat& format = FormatOf(line.begin.paragraph);
  const int room = std::max(column_.width - kLeastLine, 0);
  const int left = std::clamp(format.left, 0, room);
  const int first = std::clamp(format.left + format.first, 0, room);
  line.start = line.first ? first : left;
  line.limit = column_.width - std::clamp(format.right, 0, room - std::max(left, first));
}

void NoteLines::SetMark(NoteLine& line) {
  const ParagraphFormat& format = FormatOf(line.begin.paragraph);
  line.mark = ListMark(format, numbers_[line.begin.paragraph]);
  line.mark_format = reader_.FormatAt(line.begin.at);
  line.mark_start = line.start;
  line.mark_width = reader_.Measure(line.mark_format, LetterCase::kAsTheyAre, line.mark, ends_);
  const int after = line.mark_start + line.mark_width;
  int text = line.mark_start + format.number_gap;
  if (text <= after) text = StopAfter(after, format).at;
  if (format.first < 0) text = std::max(text, format.left);
  line.start = std::clamp(text, line.start, std::max(line.limit - kLeastLine, line.start));
}

TabStop NoteLines::StopAfter(int x, const ParagraphFormat& format) const {
  const bool hangs = format.first < 0 && format.left > x;
  for (const TabStop& stop : format.tabs) {
    if (stop.kind == TabKind::kBar || stop.at <= x) continue;
    if (hangs && format.left < stop.at) break;
    return stop;
  }
  if (hangs) return {format.left, TabKind::kLeft, 0};
  const int step = std::max(document_.default_tab, kLeastTab);
  return {(x / step + 1) * step, TabKind::kLeft, 0};
}

// Where what is taken so far ends.
long long NoteLines::End(const NoteLine& line, const Filling& filling) const {
  const long long begin =
      line.tabs.empty() ? line.start
                        : AfterTab(line.tabs.back(), filling.width, filling.before, line.limit);
  return begin + filling.width;
}

// Takes clusters until the paragraph or the line ends; false when the paragraph does.
bool NoteLines::Fill(NoteLine& line, std::size_t end) {
  const Size room{std::max(line.limit - line.start, 1), column_.height};
  reader_.Start(line.begin.at, end);
  Filling filling;
  for (;;) {
    if (filling.index == line.clusters.size()) {
      reader_.Read(line.clusters, room);
      if (filling.index == line.clusters.size()) return false;
    }
    if (Take(line, filling)) continue;
    line.next = {line.begin.paragraph, line.clusters[filling.may_end].source};
    line.ends_hyphen = filling.hyphen;
    line.clusters.resize(filling.may_end);
    while (!line.tabs.empty() && line.tabs.back().cluster >= filling.may_end) line.tabs.pop_back();
    return true;
  }
}

void NoteLines::Add(const LineCluster& cluster, Filling& filling) const {
  const wchar_t unit = document_.text[cluster.source];
  filling.point = filling.point || unit == decimal_point_;
  filling.width += cluster.width;
  if (!filling.point) filling.before = filling.width;
}

int NoteLines::HyphenWidth(const LineCluster& cluster) {
  return reader_.Measure(cluster.format, cluster.letters, L"-", ends_);
}

// Notes that the line may end before the next cluster, where it may.
void NoteLines::NoteEnd(NoteLine& line, Filling& filling) {
  const LineCluster& next = line.clusters[filling.index];
  if (filling.index == 0 || next.joined || next.continues) return;
  const LineCluster& before = line.clusters[filling.index - 1];
  const bool hyphen = document_.text[before.source] == kSoftHyphen;
  if (hyphen && End(line, filling) + HyphenWidth(before) > line.limit) return;
  filling.may_end = filling.index;
  filling.hyphen = hyphen;
}

// Takes the next cluster; false when the line ends before the cluster `may_end`.
bool NoteLines::Take(NoteLine& line, Filling& filling) {
  LineCluster& cluster = line.clusters[filling.index];
  if (cluster.kind != ClusterKind::kBlank) NoteEnd(line, filling);
  if (cluster.kind == ClusterKind::kTab) return TakeTab(line, filling);
  Filling with = filling;
  Add(cluster, with);
  const long long over = End(line, with) - line.limit;
  if (over > 0 && cluster.kind == ClusterKind::kBlank) {
    cluster.width = static_cast<int>(std::max(cluster.width - over, 0LL));
    with = filling;
    Add(cluster, with);
  } else if (over > 0 && cluster.width > 0) {
    if (filling.may_end == 0) {
      filling.may_end = filling.index;
      while (line.clusters[filling.may_end].continues && filling.may_end > 0) --filling.may_end;
    }
    if (filling.may_end > 0) return false;
  }
  filling = with;
  ++filling.index;
  return true;
}

// A tab goes to the next stop. One that finds no stop before the line's limit ends there, and what
// follows it begins a line.
bool NoteLines::TakeTab(NoteLine& line, Filling& filling) {
  const auto from = static_cast<int>(End(line, filling));
  if (from >= line.limit && filling.index > 0) {
    filling.may_end = filling.index;
    filling.hyphen = false;
    return false;
  }
  TabStop stop = StopAfter(from, FormatOf(line.begin.paragraph));
  stop.at = std::max(std::min(stop.at, line.limit), from);
  line.tabs.push_back({filling.index, from, stop.at, stop});
  filling = {.index = filling.index + 1, .may_end = filling.may_end, .hyphen = filling.hyphen};
  return true;
}

void NoteLines::Close(NoteLine& line, std::size_t paragraph_end, bool full) {
  if (!full) {
    const std::size_t at = reader_.at();
    line.ends_early = at < paragraph_end;
    line.ends_page = line.ends_early && document_.text[at] == kPageBreak;
    line.last = !line.ends_early || (line.ends_page && at + 1 == paragraph_end);
    line.next =
        line.last ? Shown(line.begin.paragraph + 1) : LinePlace{line.begin.paragraph, at + 1};
  }
  line.seen = line.clusters.size();
  while (line.seen > 0 && TakesNoRoom(line.clusters[line.seen - 1])) --line.seen;
  PlaceParts(line);
  if (line.ends_hyphen) line.end += HyphenWidth(line.clusters.back());
}

// Settles where what follows each tab begins, and where the line ends.
void NoteLines::PlaceParts(NoteLine& line) {
  long long end = line.start;
  std::size_t at = 0;
  for (std::size_t part = 0; part <= line.tabs.size(); ++part) {
    const bool is_last = part == line.tabs.size();
    const std::size_t to = is_last ? line.seen : line.tabs[part].cluster;
    Filling filling;
    for (; at < to; ++at) Add(line.clusters[at], filling);
    if (part > 0) {
      LineTab& tab = line.tabs[part - 1];
      end = AfterTab(tab, filling.width, filling.before, line.limit);
      tab.to = static_cast<int>(end);
      line.clusters[tab.cluster].width = tab.to - tab.from;
    }
    end += filling.width;
    at = to + 1;
  }
  line.end = static_cast<int>(end);
}

void NoteLines::SetHeight(NoteLine& line) {
  FontExtent text;
  int above = 0;
  int below = 0;
  const auto reach = [&](const NoteFont& font) {
    text.ascent = std::max(text.ascent, font.extent.ascent + font.raised);
    text.descent = std::max(text.descent, font.extent.descent - font.raised);
    text.leading = std::max(text.leading, font.extent.leading);
  };
  for (const LineCluster& cluster : line.clusters) {
    const NoteFont& font = reader_.fonts().Of(cluster.format, cluster.letters);
    if (cluster.kind == ClusterKind::kPicture) {
      above = std::max(above, cluster.height + font.raised);
      below = std::max(below, -font.raised);
    } else {
      reach(font);
    }
  }
  if (!line.mark.empty()) reach(reader_.fonts().Of(line.mark_format, LetterCase::kAsTheyAre));
  if (line.clusters.empty()) {
    reach(reader_.fonts().Of(reader_.FormatAt(line.begin.at), LetterCase::kAsTheyAre));
  }
  const int natural = text.ascent + text.descent + text.leading;
  const int ruled = RuledHeight(FormatOf(line.begin.paragraph), natural);
  // A line that is lower than its letters loses height above them, a higher one has room below.
  const int base_line = std::max(text.ascent + std::min(ruled - natural, 0), 0);
  line.base_line = std::max(base_line, above);
  line.height = std::max({line.base_line + std::max(ruled - base_line, below), 1});
}

}  // namespace varnel

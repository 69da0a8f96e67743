#include "widgets/notes/pages/note_line_placer.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "widgets/notes/pages/text_levels.h"
#include "widgets/notes/pages/text_rules.h"

namespace varnel {
namespace {

constexpr int kBarThickness = 10;
constexpr std::size_t kMostLeaders = 4096;

wchar_t LeaderSign(std::uint8_t leader) {
  constexpr std::wstring_view kSigns = L" .-__=";
  return leader < kSigns.size() ? kSigns[leader] : L' ';
}

bool IsText(const LineCluster& cluster) {
  return cluster.kind == ClusterKind::kText || cluster.kind == ClusterKind::kBlank;
}

}  // namespace

void NoteLinePlacer::Place(const NoteLine& line, const ParagraphFormat& format, int top,
                           Page& page) {
  line_ = &line;
  format_ = &format;
  top_ = top;
  base_line_ = top + line.base_line;
  shift_ = Shift();
  widths_.clear();
  for (std::size_t i = 0; i < line.seen; ++i) widths_.push_back(line.clusters[i].width);
  Stretch();
  SetLevels();
  PlaceMark(page);
  for (const Part& part : Parts()) PlacePart(part, page);
  for (const LineTab& tab : line.tabs) PlaceLeader(tab, page);
  PlaceBars(page);
}

// Left and right are those of the sheet, also where text runs from right to left.
int NoteLinePlacer::Shift() const {
  const int free = std::max(line_->limit - line_->end, 0);
  if (format_->alignment == Alignment::kCentre) return free / 2;
  const Alignment far = format_->right_to_left ? Alignment::kLeft : Alignment::kRight;
  return format_->alignment == far ? free : 0;
}

// Gives a justified line's blanks, those after its last tab, what is left free.
void NoteLinePlacer::Stretch() {
  if (format_->alignment != Alignment::kJustified || line_->last || line_->ends_early) return;
  const bool after_tab = !line_->tabs.empty();
  if (after_tab && line_->tabs.back().stop.kind != TabKind::kLeft) return;
  const std::size_t begin = after_tab ? line_->tabs.back().cluster + 1 : 0;
  std::vector<std::size_t> blanks;
  for (std::size_t i = begin; i < line_->seen; ++i) {
    if (line_->clusters[i].kind == ClusterKind::kBlank) blanks.push_back(i);
  }
  const auto free = static_cast<std::int64_t>(std::max(line_->limit - line_->end, 0));
  const auto count = static_cast<std::int64_t>(blanks.size());
  for (std::int64_t i = 0; i < count; ++i) {
    widths_[blanks[static_cast<std::size_t>(i)]] +=
        static_cast<int>(free * (i + 1) / count - free * i / count);
  }
}

void NoteLinePlacer::SetLevels() {
  levels_.clear();
  if (line_->seen == 0) return;
  const LineCluster& end = line_->clusters[line_->seen - 1];
  const std::size_t begin = line_->clusters.front().source;
  const auto text = std::wstring_view(document_.text).substr(begin, end.source + end.units - begin);
  if (format_->right_to_left || HasRightToLeft(text)) {
    levels_ = LevelsOf(text, format_->right_to_left);
  }
}

std::uint8_t NoteLinePlacer::LevelOf(std::size_t cluster) const {
  const std::size_t begin = line_->clusters.front().source;
  return levels_.empty() ? 0 : levels_[line_->clusters[cluster].source - begin];
}

std::vector<NoteLinePlacer::Part> NoteLinePlacer::Parts() const {
  std::vector<Part> parts = {{0, 0, line_->start}};
  for (const LineTab& tab : line_->tabs) {
    parts.back().end = tab.cluster;
    parts.push_back({tab.cluster + 1, 0, tab.to});
  }
  parts.back().end = line_->seen;
  return parts;
}

bool NoteLinePlacer::SameItem(std::size_t one, std::size_t next) const {
  const LineCluster& before = line_->clusters[one];
  const LineCluster& after = line_->clusters[next];
  return IsText(before) && IsText(after) && before.format == after.format &&
         before.letters == after.letters && before.source + before.units == after.source &&
         LevelOf(one) == LevelOf(next);
}

std::vector<NoteLinePlacer::Item> NoteLinePlacer::ItemsOf(const Part& part) {
  std::vector<Item> items;
  for (std::size_t i = part.begin; i < part.end; ++i) {
    if (i == part.begin || !SameItem(i - 1, i)) items.push_back({i, i, LevelOf(i)});
    items.back().end = i + 1;
    items.back().width += widths_[i];
  }
  if (part.end == line_->seen && line_->ends_hyphen && !items.empty()) {
    Item hyphen{.level = items.back().level, .hyphen = true};
    hyphen.width = TextOf(hyphen).width();
    items.push_back(hyphen);
  }
  return items;
}

// Where on the sheet something stands that begins `leading` twips from the edge at which lines
// begin.
int NoteLinePlacer::FromLeft(int leading, int width) const {
  leading += shift_;
  return format_->right_to_left ? column_.right - leading - width : column_.left + leading;
}

void NoteLinePlacer::PlacePart(const Part& part, Page& page) {
  const std::vector<Item> items = ItemsOf(part);
  std::vector<std::uint8_t> levels;
  int width = 0;
  for (const Item& item : items) {
    levels.push_back(item.level);
    width += item.width;
  }
  std::vector<int> lefts(items.size());
  int left = FromLeft(part.left, width);
  for (const std::size_t index : VisualOrder(levels)) {
    lefts[index] = left;
    left += items[index].width;
  }
  for (std::size_t i = 0; i < items.size(); ++i) PlaceItem(items[i], lefts[i], page);
}

void NoteLinePlacer::PlaceItem(const Item& item, int left, Page& page) {
  const LineCluster& cluster = item.hyphen ? line_->clusters.back() : line_->clusters[item.begin];
  if (!item.hyphen && cluster.kind == ClusterKind::kPicture) {
    PlacePicture(cluster, left, page);
  } else if (item.hyphen || IsText(cluster)) {
    PlacedText text = TextOf(item);
    text.left = left;
    Finish(std::move(text), cluster, page);
  }
}

void NoteLinePlacer::PlacePicture(const LineCluster& cluster, int left, Page& page) const {
  const auto found =
      std::ranges::lower_bound(document_.pictures, cluster.source, {}, &RtfPicture::at);
  const NoteFont& font = reader_.fonts().Of(cluster.format, cluster.letters);
  const int bottom = base_line_ - font.raised;
  page.pictures.push_back({{left, bottom - cluster.height, left + cluster.width, bottom},
                           static_cast<std::size_t>(found - document_.pictures.begin())});
}

// A text of our own in the look of `cluster`.
PlacedText NoteLinePlacer::Written(const LineCluster& cluster, std::wstring text) {
  PlacedText written;
  reader_.Measure(cluster.format, cluster.letters, text, written.ends);
  written.text = std::move(text);
  return written;
}

PlacedText NoteLinePlacer::TextOf(const Item& item) {
  PlacedText text;
  if (item.hyphen) {
    text = Written(line_->clusters.back(), L"-");
  } else {
    const LineCluster& first = line_->clusters[item.begin];
    const LineCluster& last = line_->clusters[item.end - 1];
    AppendShown(document_, first.source, last.source + last.units,
                reader_.fonts().Format(first.format), text.text);
    text.source = first.source;
    int end = 0;
    for (std::size_t i = item.begin; i < item.end; ++i) {
      end += widths_[i];
      text.ends.insert(text.ends.end(), line_->clusters[i].units, end);
    }
  }
  text.right_to_left = item.level % 2 != 0;
  return text;
}

void NoteLinePlacer::Finish(PlacedText text, const LineCluster& cluster, Page& page) {
  const CharFormat& format = reader_.fonts().Format(cluster.format);
  const NoteFont& font = reader_.fonts().Of(cluster.format, cluster.letters);
  text.base_line = base_line_ - font.raised;
  text.font = font.font;
  text.colour = PrintedColour(format);
  AddTextRules(format, font, text, page);
  page.texts.push_back(std::move(text));
}

// The bullet or number: without the lines and the ground of the text after it.
void NoteLinePlacer::PlaceMark(Page& page) {
  if (line_->mark.empty()) return;
  const LineCluster look{.format = line_->mark_format};
  const NoteFont& font = reader_.fonts().Of(look.format, look.letters);
  PlacedText mark = Written(look, line_->mark);
  mark.left = FromLeft(line_->mark_start, mark.width());
  mark.base_line = base_line_ - font.raised;
  mark.font = font.font;
  mark.colour = PrintedColour(reader_.fonts().Format(look.format));
  page.texts.push_back(std::move(mark));
}

// As many signs as there is room for, up to where the tab ends.
void NoteLinePlacer::PlaceLeader(const LineTab& tab, Page& page) {
  if (tab.stop.leader == 0) return;
  const LineCluster& cluster = line_->clusters[tab.cluster];
  const wchar_t sign = LeaderSign(tab.stop.leader);
  const int room = tab.to - tab.from;
  const int one = std::max(Written(cluster, std::wstring(1, sign)).width(), 1);
  const auto most = std::min(static_cast<std::size_t>(room / one), kMostLeaders);
  PlacedText leader = Written(cluster, std::wstring(most, sign));
  while (leader.width() > room) {
    leader.text.pop_back();
    leader.ends.pop_back();
  }
  if (leader.text.empty()) return;
  leader.left = FromLeft(tab.to - leader.width(), leader.width());
  Finish(std::move(leader), cluster, page);
}

void NoteLinePlacer::PlaceBars(Page& page) const {
  for (const TabStop& stop : format_->tabs) {
    if (stop.kind != TabKind::kBar || stop.at < 0 || stop.at > column_.width()) continue;
    const int left = format_->right_to_left ? column_.right - stop.at : column_.left + stop.at;
    const Rect area{left, top_, left + kBarThickness, top_ + line_->height};
    page.rules.push_back({area, 0});
  }
}

}  // namespace varnel

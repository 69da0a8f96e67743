#include "widgets/notes/pages/note_line_reader.h"

#include <algorithm>

#include "base/letters.h"
#include "widgets/notes/pages/line_ends.h"
#include "widgets/notes/pages/picture_size.h"

namespace varnel {
namespace {

constexpr std::size_t kPiece = 64;      // units measured at once, so that little is measured twice
constexpr std::size_t kMostMarks = 32;  // that a piece may take more to keep a character whole
constexpr int kMostWidth = 1 << 18;     // twips of a cluster; whatever a measure answers

// Its capital is a rare letter that few fonts have; in capitals it is written as it is.
constexpr char32_t kSharpS = 0xDF;

bool EndsLine(wchar_t unit) {
  return unit == kLineBreak || unit == kPageBreak;
}

// Whether a line may end between `before`, which is seen or not, and a letter after it.
bool JoinsNext(wchar_t before) {
  return IsUnseen(before) && before != L'\t' && before != kSoftHyphen && before != kZeroWidthSpace;
}

bool IsText(wchar_t unit) {
  return unit != L'\t' && unit != kObject && !IsUnseen(unit);
}

}  // namespace

void AppendShown(const RtfDocument& document, std::size_t begin, std::size_t end,
                 const CharFormat& format, std::wstring& shown) {
  const std::wstring_view text = std::wstring_view(document.text).substr(0, end);
  const bool capitals = format.capitals || format.small_capitals;
  for (std::size_t at = begin; at < end;) {
    const Character one = CharacterAt(text, at);
    const bool plain = one.point == 0x2011 || one.point == 0xA0;
    if (plain) {
      shown += one.point == 0xA0 ? L' ' : L'-';
    } else if (capitals && one.point != kSharpS) {
      AppendCharacter(shown, CapitalOf(one.point));
    } else {
      shown.append(text, at, one.units);
    }
    at += one.units;
  }
}

void NoteLineReader::Start(std::size_t at, std::size_t end) {
  at_ = at;
  end_ = end;
  run_ = RunOf(at);
}

std::size_t NoteLineReader::RunOf(std::size_t at) const {
  const auto after = std::ranges::upper_bound(document_.runs, at, {}, &RtfRun::begin);
  return after == document_.runs.begin()
             ? 0
             : static_cast<std::size_t>(after - document_.runs.begin()) - 1;
}

std::size_t NoteLineReader::RunEnd(std::size_t run) const {
  return run + 1 < document_.runs.size() ? document_.runs[run + 1].begin : document_.text.size();
}

std::uint32_t NoteLineReader::FormatAt(std::size_t at) const {
  return document_.runs.empty() ? 0 : document_.runs[RunOf(at)].format;
}

bool NoteLineReader::IsHidden(std::size_t begin, std::size_t end) const {
  for (std::size_t run = RunOf(begin); begin < end; begin = RunEnd(run), ++run) {
    if (!document_.char_formats[document_.runs[run].format].hidden) return false;
  }
  return true;
}

void NoteLineReader::Read(std::vector<LineCluster>& clusters, Size room) {
  while (at_ < end_) {
    while (at_ >= RunEnd(run_)) ++run_;
    const std::uint32_t format = document_.runs[run_].format;
    const std::size_t run_end = std::min(RunEnd(run_), end_);
    if (document_.char_formats[format].hidden) {
      at_ = run_end;
      continue;
    }
    const wchar_t unit = document_.text[at_];
    if (EndsLine(unit)) return;
    if (IsText(unit)) {
      ReadText(clusters, format, run_end);
    } else if (unit == kObject) {
      clusters.push_back(PictureAt(at_++, format, room));
    } else {
      const ClusterKind kind = unit == L'\t' ? ClusterKind::kTab : ClusterKind::kUnseen;
      const bool joined = kind == ClusterKind::kUnseen;
      clusters.push_back({.source = at_++, .format = format, .kind = kind, .joined = joined});
    }
    return;
  }
}

LetterCase NoteLineReader::CaseAt(std::size_t at, const CharFormat& format) const {
  const bool small = format.small_capitals && !format.capitals &&
                     HasCapital(CharacterAt(document_.text, at).point);
  return small ? LetterCase::kSmallCapital : LetterCase::kAsTheyAre;
}

// Where the piece that begins at at_ ends: at most kPiece units on, after a blank where it can be.
std::size_t NoteLineReader::PieceEnd(std::size_t end, const CharFormat& format) const {
  const std::wstring_view text = document_.text;
  const LetterCase letters = CaseAt(at_, format);
  const std::size_t most = std::min(end, at_ + kPiece);
  std::size_t blank = at_;
  for (std::size_t to = at_; to < end; ++to) {
    const bool continues = to > at_ && ContinuesCharacter(text, to);
    if (to >= most) {
      if (blank > at_) return blank;
      if (!continues) return to;
      if (to >= most + kMostMarks) return to + 1 - CharacterBefore(text, to + 1).units;
    }
    if (!IsText(text[to])) return to;
    if (format.small_capitals && !continues && CaseAt(to, format) != letters) return to;
    if (IsLineBlank(text[to])) blank = to + 1;
  }
  return end;
}

int NoteLineReader::Measure(std::uint32_t format, LetterCase letters, std::wstring_view text,
                            std::vector<int>& ends) {
  ends.assign(text.size(), 0);
  if (text.empty()) return 0;
  measure_.Measure(fonts_.Of(format, letters).font, text, ends);
  int before = 0;
  int most = 0;
  for (int& end : ends) {
    most = static_cast<int>(std::min<long long>(1LL * before + kMostWidth, 1 << 30));
    end = before = std::clamp(end, before, most);
  }
  return before;
}

void NoteLineReader::ReadText(std::vector<LineCluster>& clusters, std::uint32_t format,
                              std::size_t run_end) {
  const CharFormat& of = document_.char_formats[format];
  const std::wstring_view text = document_.text;
  const std::size_t end = PieceEnd(run_end, of);
  const LetterCase letters = CaseAt(at_, of);
  shown_.clear();
  AppendShown(document_, at_, end, of, shown_);
  Measure(format, letters, shown_, ends_);
  const std::size_t begin = at_;
  for (int left = 0; at_ < end;) {
    LineCluster cluster{.source = at_, .format = format, .letters = letters};
    cluster.continues = ContinuesCharacter(text, at_);
    std::size_t next = at_ + 1;
    while (next < end && ContinuesCharacter(text, next)) ++next;
    cluster.units = static_cast<std::uint32_t>(next - at_);
    if (cluster.units == 1 && IsLineBlank(text[at_])) cluster.kind = ClusterKind::kBlank;
    const int right = ends_[next - 1 - begin];
    cluster.width = right - left;
    if (at_ > 0) {
      const wchar_t before = text[at_ - 1];
      cluster.joined = IsText(before) ? !MayEndLine(text, at_) : JoinsNext(before);
    }
    left = right;
    at_ = next;
    clusters.push_back(cluster);
  }
}

LineCluster NoteLineReader::PictureAt(std::size_t at, std::uint32_t format, Size room) const {
  const auto found = std::ranges::lower_bound(document_.pictures, at, {}, &RtfPicture::at);
  LineCluster cluster{.source = at, .format = format, .kind = ClusterKind::kUnseen};
  if (found == document_.pictures.end() || found->at != at) return cluster;
  const Size size = FittedInto(ShownTwips(*found), room);
  cluster.kind = ClusterKind::kPicture;
  cluster.width = size.width;
  cluster.height = size.height;
  return cluster;
}

}  // namespace varnel

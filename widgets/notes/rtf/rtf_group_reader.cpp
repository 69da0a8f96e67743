#include "widgets/notes/rtf/rtf_group_reader.h"

#include <algorithm>
#include <utility>

namespace varnel {
namespace {

RtfSpan SpanOf(const RtfToken& token) {
  return {static_cast<std::uint32_t>(token.begin), static_cast<std::uint32_t>(token.end)};
}

// What nothing within such a group brings back.
bool IsLeftOut(RtfDestination destination) {
  return destination == RtfDestination::kSkip || destination == RtfDestination::kMargin ||
         destination == RtfDestination::kOtherPicture ||
         destination == RtfDestination::kInstruction;
}

void CopyNumbering(const ParagraphFormat& from, ParagraphFormat& to) {
  to.numbering = from.numbering;
  to.number_start = from.number_start;
  to.number_end = from.number_end;
  to.number_gap = from.number_gap;
}

}  // namespace

RtfReading RtfGroupReader::Read() {
  file_page_ = origin_.system_page;
  do {
    const RtfToken token = tokens_.Next();
    if (token.kind == RtfTokenKind::kEnd) {
      fault_ = RtfFault::kUnbalanced;
      break;
    }
    Take(token);
    if (builder_.full()) fault_ = RtfFault::kTooMuch;
  } while (fault_ == RtfFault::kNone && !groups_.empty());
  if (tokens_.binary_was_cut()) fault_ = RtfFault::kBinaryCut;

  RtfReading reading;
  reading.fault = fault_;
  reading.document = builder_.Finish(last_paragraph_);
  reading.document.fonts = fonts_.Take();
  reading.document.default_tab = default_tab_;
  if (trace_ != nullptr) {
    const std::size_t length = reading.document.text.size();
    if (trace_->units.size() > length) trace_->end = trace_->units[length].begin;
    trace_->units.resize(length);
    trace_->skips.resize(length);
  }
  return reading;
}

void RtfGroupReader::Take(const RtfToken& token) {
  const bool joins = token.kind == RtfTokenKind::kHex || token.kind == RtfTokenKind::kText;
  if (!joins) FlushBytes();
  const bool counts = joins || token.kind == RtfTokenKind::kSymbol;
  if (!counts) skipping_ = 0;
  if (skipping_ > 0 && token.kind != RtfTokenKind::kText) {
    --skipping_;
    if (skip_is_traced_) trace_->units.back().end = SpanOf(token).end;
    return;
  }
  switch (token.kind) {
    case RtfTokenKind::kOpen:
      Open(token);
      break;
    case RtfTokenKind::kClose:
      Close(token);
      break;
    case RtfTokenKind::kWord:
      Word(token);
      break;
    case RtfTokenKind::kSymbol:
      Symbol(token);
      break;
    case RtfTokenKind::kHex:
      Byte(token.symbol, SpanOf(token).begin, SpanOf(token).end);
      break;
    case RtfTokenKind::kText:
      Text(token);
      break;
    case RtfTokenKind::kBinary:
      if (group().destination == RtfDestination::kPicture && picture_)
        picture_->bytes += token.text;
      break;
    case RtfTokenKind::kEnd:
      break;
  }
  if (token.kind != RtfTokenKind::kSymbol || token.symbol != '*') may_be_left_out_ = false;
  previous_end_ = token.end;
}

void RtfGroupReader::Open(const RtfToken& token) {
  if (groups_.size() >= kDeepestRtf) {
    fault_ = RtfFault::kTooDeep;
    return;
  }
  groups_.push_back(groups_.empty() ? Group{} : groups_.back());
  group().begin = token.begin;
  group().after = previous_end_;
  group().wraps_picture = false;
}

void RtfGroupReader::Close(const RtfToken& token) {
  const std::uint32_t end = SpanOf(token).end;
  const bool is_picture = group().destination == RtfDestination::kPicture;
  const bool is_last = groups_.size() == 1;
  if (is_last) {
    last_paragraph_ = FormatOfParagraph();
    if (trace_ != nullptr) trace_->end = SpanOf(token).begin;
  }
  const Group closed = std::move(group());
  groups_.pop_back();
  if (is_last) return;
  if (is_picture && group().destination != RtfDestination::kPicture) EndPicture(SpanOf(token));
  if (closed.wraps_picture || (closed.destination == RtfDestination::kOtherPicture &&
                               group().destination != RtfDestination::kOtherPicture)) {
    TracePictures(closed, end);
  }
  switch (closed.destination) {
    case RtfDestination::kNumbering:
    case RtfDestination::kNumberAfter:
      CopyNumbering(closed.paragraph.format, group().paragraph.format);
      break;
    case RtfDestination::kFonts:
      if (group().destination != RtfDestination::kFonts) {
        group().format.font = fonts_.IndexOf(default_font_);
        group().page = fonts_.PageOf(group().format.font, file_page_);
      }
      break;
    case RtfDestination::kOverride:
      if (group().destination == RtfDestination::kOverrides) lists_.EndOverride();
      break;
    default:
      break;
  }
  builder_.SetFormat(group().format);
}

void RtfGroupReader::TracePictures(const Group& closed, std::uint32_t end) {
  if (trace_ == nullptr) return;
  std::vector<RtfSpan>& pictures = trace_->pictures;
  if (!closed.wraps_picture) {
    // The other form of the picture just before goes with it.
    if (!pictures.empty() && pictures.back().end == closed.after) pictures.back().end = end;
    return;
  }
  for (std::size_t i = closed.first_picture; i < pictures.size(); ++i) {
    pictures[i] = {static_cast<std::uint32_t>(closed.begin), end};
  }
}

// Whether the group that has just begun ends a paragraph: then it holds the list's own text, as
// some writers have it, and not just a number or bullet.
bool RtfGroupReader::HoldsParagraph() const {
  if (previous_end_ != groups_.back().begin + 1) return false;
  RtfTokens ahead = tokens_;
  int depth = 1;
  while (depth > 0) {
    const RtfToken token = ahead.Next();
    if (token.kind == RtfTokenKind::kEnd) return false;
    if (token.kind == RtfTokenKind::kWord && token.text == "par") return true;
    depth += token.kind == RtfTokenKind::kOpen ? 1 : token.kind == RtfTokenKind::kClose ? -1 : 0;
  }
  return false;
}

void RtfGroupReader::SwitchTo(RtfDestination destination) {
  const RtfDestination old = group().destination;
  if (IsLeftOut(old)) return;
  if (destination == RtfDestination::kListText && HoldsParagraph()) return;
  const bool is_result = destination == RtfDestination::kText;
  if (old == RtfDestination::kObject && !is_result) return;
  if (old == RtfDestination::kShape && !is_result && destination != RtfDestination::kPicture)
    return;
  const bool wraps = destination == RtfDestination::kPicture ||
                     destination == RtfDestination::kObject ||
                     destination == RtfDestination::kWrapper;
  if (wraps && !group().in_wrapper) {
    group().first_picture = trace_ == nullptr ? 0 : trace_->pictures.size();
    group().wraps_picture = true;
    group().in_wrapper = true;
  }
  switch (destination) {
    case RtfDestination::kWrapper:
      shape_has_picture_ = false;
      return;
    case RtfDestination::kShapeResult:
      destination = shape_has_picture_ ? RtfDestination::kSkip : RtfDestination::kText;
      break;
    case RtfDestination::kPicture:
      picture_.emplace();
      picture_known_ = false;
      picture_nibble_ = -1;
      break;
    case RtfDestination::kObject:
      builder_.losses().objects = true;
      break;
    case RtfDestination::kMargin:
      builder_.losses().margins = true;
      break;
    case RtfDestination::kList:
      lists_.BeginList();
      break;
    case RtfDestination::kLevel:
      lists_.BeginLevel();
      break;
    case RtfDestination::kOverride:
      lists_.BeginOverride();
      break;
    case RtfDestination::kListText:
      list_text_.clear();
      break;
    case RtfDestination::kNumbering: {
      ParagraphFormat none;
      none.number_end = 0;
      CopyNumbering(none, group().paragraph.format);
      break;
    }
    case RtfDestination::kNumberAfter:
      group().paragraph.format.number_end = 0;
      break;
    default:
      break;
  }
  group().destination = destination;
}

void RtfGroupReader::EndPicture(RtfSpan from) {
  if (!picture_) return;
  RtfPicture picture = std::move(*picture_);
  picture_.reset();
  if (!picture_known_ || picture.bytes.empty()) return;
  FlushCell();
  if (group().destination == RtfDestination::kShape) shape_has_picture_ = true;
  builder_.AddPicture(std::move(picture));
  Trace(from);
  if (trace_ != nullptr) trace_->pictures.push_back(from);
}

ParagraphFormat RtfGroupReader::FormatOfParagraph() {
  ParagraphFormat format = ResolvedFormat(group().paragraph);
  if (group().paragraph.list > 0) {
    lists_.Number(group().paragraph.list, group().paragraph.level, format);
  }
  if (format.numbering == Numbering::kNone && !list_text_.empty()) {
    const bool counted = list_text_.find_first_of(L"0123456789") != std::wstring::npos;
    format.numbering = counted ? Numbering::kArabic : Numbering::kBullet;
    if (counted) format.number_end = list_text_.back() == L')' ? L')' : L'.';
  }
  list_text_.clear();
  if (format.numbering == Numbering::kNone) CopyNumbering({}, format);
  if (format.numbering == Numbering::kBullet) {
    format.number_start = 1;
    format.number_end = 0;
  }
  return format;
}

RtfReading ReadRtf(std::string_view rtf, const RtfOrigin& origin, RtfTrace* trace) {
  RtfReading reading;
  if (!rtf.starts_with("{\\rtf")) {
    reading.fault = RtfFault::kNotRtf;
  } else if (rtf.size() > origin.most_bytes) {
    reading.fault = RtfFault::kTooBig;
  } else {
    reading = RtfGroupReader(rtf, origin, trace).Read();
  }
  return reading;
}

}  // namespace varnel

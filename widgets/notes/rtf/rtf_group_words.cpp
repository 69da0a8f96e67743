// What the words and characters within groups do.
#include <algorithm>

#include "widgets/notes/rtf/rtf_group_reader.h"

namespace varnel {
namespace {

constexpr wchar_t kNoCharacter = static_cast<wchar_t>(0xFFFD);
constexpr std::size_t kLongestListText = 16;

RtfSpan SpanOf(const RtfToken& token) {
  return {static_cast<std::uint32_t>(token.begin), static_cast<std::uint32_t>(token.end)};
}

bool IsPlain(char byte) {
  return byte >= ' ' && byte <= '~';
}

// The end of the plain ASCII that begins at `from`.
std::size_t PlainEnd(std::string_view text, std::size_t from) {
  const auto* const end =
      std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), IsPlain);
  return static_cast<std::size_t>(end - text.begin());
}

// A unit as a text may hold it; 0: not at all. The three marks after U+FFF8 and kObject would be
// taken for parts of the control's own structure.
wchar_t Allowed(wchar_t unit) {
  if (unit == L'\t') return unit;
  if (unit < L' ' || unit == 0x7F) return 0;
  return unit >= 0xFFF9 && unit <= 0xFFFC ? kNoCharacter : unit;
}

wchar_t UnitOfSymbol(unsigned char symbol) {
  switch (symbol) {
    case '~':
      return 0xA0;
    case '-':
      return 0xAD;
    case '_':
      return 0x2011;
    case '\t':
    case '{':
    case '}':
    case '\\':
      return symbol;
    default:
      return 0;
  }
}

}  // namespace

void RtfGroupReader::Word(const RtfToken& token) {
  const RtfWordMeaning meaning = MeaningOf(token.text);
  const RtfWordUse use{meaning.word, meaning.argument, token.has_value, token.value};
  if (meaning.word == RtfWord::kUnknown) {
    if (may_be_left_out_) SwitchTo(RtfDestination::kSkip);
    return;
  }
  if (meaning.word == RtfWord::kDestination) {
    SwitchTo(static_cast<RtfDestination>(meaning.argument));
    return;
  }
  if (IsTable(group().destination)) {
    InTable(use);
    if (use.word != RtfWord::kUnicode && use.word != RtfWord::kUnicodeSkip) return;
  }
  switch (meaning.word) {
    case RtfWord::kUnicode:
      Unicode(token.value, SpanOf(token));
      return;
    case RtfWord::kUnicodeSkip:
      group().skip = std::clamp(token.value, 0, 255);
      return;
    case RtfWord::kCharacter:
      if (meaning.argument == kParagraphEnd) {
        EndParagraph(SpanOf(token));
      } else {
        Unit(static_cast<wchar_t>(meaning.argument), SpanOf(token));
      }
      return;
    case RtfWord::kCell:
      EndCell(SpanOf(token));
      return;
    case RtfWord::kRow:
      EndRow(SpanOf(token));
      return;
    default:
      Body(use);
  }
}

bool RtfGroupReader::IsTable(RtfDestination destination) {
  return destination != RtfDestination::kText && destination != RtfDestination::kListText;
}

void RtfGroupReader::InTable(const RtfWordUse& use) {
  switch (group().destination) {
    case RtfDestination::kFonts:
      if (use.word == RtfWord::kFont) fonts_.Begin(use.value);
      if (use.word == RtfWord::kFontCharset) fonts_.SetCharset(use.value);
      if (use.word == RtfWord::kFontPage) fonts_.SetPage(use.value);
      return;
    case RtfDestination::kColours:
      if (use.word == RtfWord::kRed || use.word == RtfWord::kGreen || use.word == RtfWord::kBlue) {
        colours_.Set(use.word, use.value);
      }
      return;
    case RtfDestination::kLists:
    case RtfDestination::kList:
    case RtfDestination::kLevel:
      lists_.Apply(use);
      return;
    case RtfDestination::kOverride:
      lists_.ApplyToOverride(use);
      return;
    case RtfDestination::kPicture:
      if (picture_) ApplyToPicture(use, *picture_, picture_known_);
      return;
    case RtfDestination::kNumbering: {
      ParagraphFormat& format = group().paragraph.format;
      if (use.word == RtfWord::kNumbering) format.numbering = static_cast<Numbering>(use.argument);
      if (use.word == RtfWord::kNumberStart) format.number_start = std::clamp(use.value, 0, 32'767);
      if (use.word == RtfWord::kNumberGap) format.number_gap = std::clamp(use.value, 0, 32'767);
      return;
    }
    default:
      return;
  }
}

void RtfGroupReader::Body(const RtfWordUse& use) {
  Group& now = group();
  if (ApplyToParagraph(use, now.paragraph)) return;
  if (ApplyToCharacters(use, now.format)) {
    builder_.SetFormat(now.format);
    return;
  }
  switch (use.word) {
    case RtfWord::kPlain:
      now.format = {};
      [[fallthrough]];
    case RtfWord::kFont:
      now.format.font = fonts_.IndexOf(use.word == RtfWord::kPlain ? default_font_ : use.value);
      now.page = fonts_.PageOf(now.format.font, file_page_);
      break;
    case RtfWord::kColour:
      now.format.colour = colours_.At(use.value);
      break;
    case RtfWord::kGround:
      now.format.ground = colours_.At(use.value);
      break;
    case RtfWord::kHeader:
      file_page_ = use.argument != 0 ? use.argument : use.value;
      if (file_page_ <= 0) file_page_ = origin_.system_page;
      return;
    case RtfWord::kDefaultFont:
      default_font_ = use.value;
      return;
    case RtfWord::kDefaultTab:
      if (use.value > 0) default_tab_ = std::clamp(use.value, 20, 22 * 1440);
      return;
    case RtfWord::kTable:
      builder_.losses().tables = true;
      return;
    default:
      return;
  }
  builder_.SetFormat(now.format);
}

void RtfGroupReader::Unicode(std::int32_t value, RtfSpan from) {
  const std::size_t before = builder_.size();
  Unit(Allowed(static_cast<wchar_t>(static_cast<std::uint16_t>(value))), from);
  skipping_ = group().skip;
  skip_is_traced_ = trace_ != nullptr && builder_.size() > before;
}

void RtfGroupReader::Symbol(const RtfToken& token) {
  if (token.symbol == '*') {
    may_be_left_out_ = true;
  } else if (token.symbol == '\r' || token.symbol == '\n') {
    EndParagraph(SpanOf(token));
  } else {
    Unit(UnitOfSymbol(token.symbol), SpanOf(token));
  }
}

void RtfGroupReader::Text(const RtfToken& token) {
  const std::string_view text = token.text;
  const auto begin = static_cast<std::uint32_t>(token.begin);
  const auto skipped =
      std::min(text.size(), static_cast<std::size_t>(std::max<std::int32_t>(skipping_, 0)));
  skipping_ -= static_cast<std::int32_t>(skipped);
  if (skipped > 0 && skip_is_traced_) {
    trace_->units.back().end = begin + static_cast<std::uint32_t>(skipped);
  }
  if (group().destination == RtfDestination::kPicture) {
    PictureBytes(text.substr(skipped));
    return;
  }
  if (group().destination == RtfDestination::kInstruction) {
    if (text.find("HYPERLINK") != std::string_view::npos) builder_.losses().links = true;
    return;
  }
  for (std::size_t i = skipped; i < text.size();) {
    const bool fast = group().destination == RtfDestination::kText && trace_ == nullptr &&
                      bytes_.empty() && Page() != kSymbolCodePage;
    const std::size_t plain = fast ? PlainEnd(text, i) : i;
    if (plain > i) {
      FlushCell();
      builder_.AddAscii(text.substr(i, plain - i));
      i = plain;
    } else {
      const auto at = begin + static_cast<std::uint32_t>(i);
      Byte(static_cast<unsigned char>(text[i++]), at, at + 1);
    }
  }
}

int RtfGroupReader::Page() const {
  const Group& now = groups_.back();
  if (now.destination == RtfDestination::kFonts) return fonts_.PageOfEntry(file_page_);
  const bool has_font =
      now.destination == RtfDestination::kText || now.destination == RtfDestination::kListText;
  return has_font && now.page > 0 ? now.page : file_page_;
}

void RtfGroupReader::Byte(unsigned char byte, std::uint32_t begin, std::uint32_t end) {
  const int page = Page();
  if (bytes_.empty()) bytes_from_.begin = begin;
  bytes_from_.end = end;
  bytes_ += static_cast<char>(byte);
  const int length = CharacterLength(page, static_cast<unsigned char>(bytes_.front()));
  if (static_cast<int>(bytes_.size()) >= length) FlushBytes();
}

void RtfGroupReader::FlushBytes() {
  if (bytes_.empty()) return;
  const std::wstring units = DecodeCharacter(Page(), bytes_, origin_.pairs);
  bytes_.clear();
  for (const wchar_t unit : units) {
    const bool is_level = group().destination == RtfDestination::kLevelText;
    Unit(is_level ? unit : Allowed(unit), bytes_from_);
  }
}

void RtfGroupReader::Unit(wchar_t unit, RtfSpan from) {
  if (unit == 0) return;
  switch (group().destination) {
    case RtfDestination::kText:
      TextUnit(unit, from);
      return;
    case RtfDestination::kFonts:
      fonts_.AddToName(unit);
      return;
    case RtfDestination::kColours:
      if (unit == L';') colours_.EndEntry();
      return;
    case RtfDestination::kLevelText:
      lists_.AddToLevelText(unit);
      return;
    case RtfDestination::kListText:
      if (unit != L'\t' && list_text_.size() < kLongestListText) list_text_ += unit;
      return;
    case RtfDestination::kNumberAfter:
      group().paragraph.format.number_end = unit == L'.' || unit == L')' ? unit : L'\0';
      return;
    default:
      return;
  }
}

void RtfGroupReader::TextUnit(wchar_t unit, RtfSpan from) {
  FlushCell();
  builder_.Add(unit);
  Trace(from);
}

void RtfGroupReader::Trace(RtfSpan from) {
  if (trace_ == nullptr) return;
  trace_->units.push_back(from);
  trace_->skips.push_back(static_cast<std::uint8_t>(group().skip));
}

void RtfGroupReader::FlushCell() {
  if (!cell_) return;
  const RtfSpan from = *cell_;
  cell_.reset();
  builder_.Add(L'\t');
  Trace(from);
}

void RtfGroupReader::EndCell(RtfSpan from) {
  if (group().destination != RtfDestination::kText) return;
  FlushCell();
  cell_ = from;
}

void RtfGroupReader::EndRow(RtfSpan from) {
  if (group().destination != RtfDestination::kText) return;
  cell_.reset();
  EndParagraph(from);
}

void RtfGroupReader::EndParagraph(RtfSpan from) {
  if (group().destination != RtfDestination::kText) return;
  FlushCell();
  builder_.EndParagraph(FormatOfParagraph());
  Trace(from);
}

void RtfGroupReader::PictureBytes(std::string_view bytes) {
  if (!picture_) return;
  for (const char byte : bytes) {
    const int digit = HexDigit(byte);
    if (digit < 0) continue;
    if (picture_nibble_ < 0) {
      picture_nibble_ = digit;
    } else {
      picture_->bytes += static_cast<char>(picture_nibble_ * 16 + digit);
      picture_nibble_ = -1;
    }
  }
}

}  // namespace varnel

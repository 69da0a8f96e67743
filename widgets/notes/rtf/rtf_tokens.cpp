#include "widgets/notes/rtf/rtf_tokens.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr std::size_t kLongestName = 32;  // of a control word; the rest of a longer one is its text

bool IsLetter(char unit) {
  return (unit >= 'a' && unit <= 'z') || (unit >= 'A' && unit <= 'Z');
}
bool IsDigit(char unit) {
  return unit >= '0' && unit <= '9';
}

}  // namespace

RtfToken RtfTokens::Next() {
  while (Has(at_) && (rtf_[at_] == '\r' || rtf_[at_] == '\n')) ++at_;
  RtfToken token;
  token.begin = token.end = at_;
  if (!Has(at_)) return token;
  switch (rtf_[at_]) {
    case '{':
      token.kind = RtfTokenKind::kOpen;
      break;
    case '}':
      token.kind = RtfTokenKind::kClose;
      break;
    case '\\':
      return Escape();
    default:
      token.kind = RtfTokenKind::kText;
      at_ = std::min(rtf_.find_first_of("{}\\\r\n", at_), rtf_.size());
      token.text = rtf_.substr(token.begin, at_ - token.begin);
      token.end = at_;
      return token;
  }
  token.end = ++at_;
  return token;
}

RtfToken RtfTokens::Escape() {
  RtfToken token;
  token.begin = at_++;
  token.kind = RtfTokenKind::kSymbol;
  if (!Has(at_)) {
    token.symbol = '\\';
  } else if (IsLetter(rtf_[at_])) {
    TakeWord(token);
  } else if (rtf_[at_] == '\'' && Has(at_ + 2) && HexDigit(rtf_[at_ + 1]) >= 0 &&
             HexDigit(rtf_[at_ + 2]) >= 0) {
    token.kind = RtfTokenKind::kHex;
    token.symbol =
        static_cast<unsigned char>(HexDigit(rtf_[at_ + 1]) * 16 + HexDigit(rtf_[at_ + 2]));
    at_ += 3;
  } else {
    token.symbol = static_cast<unsigned char>(rtf_[at_++]);
    // A line end of two characters is one paragraph end.
    if (token.symbol == '\r' && Has(at_) && rtf_[at_] == '\n') ++at_;
  }
  token.end = at_;
  return token;
}

void RtfTokens::TakeWord(RtfToken& token) {
  token.kind = RtfTokenKind::kWord;
  const std::size_t name = at_;
  while (Has(at_) && IsLetter(rtf_[at_]) && at_ - name < kLongestName) ++at_;
  token.text = rtf_.substr(name, at_ - name);
  const bool negative = Has(at_ + 1) && rtf_[at_] == '-' && IsDigit(rtf_[at_ + 1]);
  if (negative) ++at_;
  constexpr std::int64_t kLimit = INT32_MAX;
  std::int64_t value = 0;
  for (; Has(at_) && IsDigit(rtf_[at_]); ++at_) {
    token.has_value = true;
    value = std::min(kLimit, value * 10 + (rtf_[at_] - '0'));
  }
  token.value = static_cast<std::int32_t>(negative ? -value : value);
  if (Has(at_) && rtf_[at_] == ' ') ++at_;
  if (token.text != "bin") return;
  token.kind = RtfTokenKind::kBinary;
  const std::size_t wished = token.value > 0 ? static_cast<std::size_t>(token.value) : 0;
  binary_was_cut_ |= wished > rtf_.size() - at_;
  token.text = rtf_.substr(at_, wished);
  at_ += token.text.size();
}

}  // namespace varnel

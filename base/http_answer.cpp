#include "base/http_answer.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace varnel {
namespace {

constexpr std::wstring_view kNonsense = L"the server's answer makes no sense";
constexpr std::wstring_view kTooLarge = L"the answer was too large";
constexpr std::wstring_view kCutShort = L"the answer was cut short";
constexpr std::size_t kEndless = std::numeric_limits<std::size_t>::max();

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return lower;
}

std::string_view Bare(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Digits only, at least one.
std::optional<unsigned> Number(std::string_view digits, int base) {
  unsigned value = 0;
  const char* end = digits.data() + digits.size();
  const auto [read, error] = std::from_chars(digits.data(), end, value, base);
  if (error != std::errc() || read != end) return std::nullopt;
  return value;
}

}  // namespace

HttpAnswer::State HttpAnswer::state() const {
  if (step_ != Step::kOver) return State::kMore;
  return reason_.empty() ? State::kWhole : State::kFailed;
}

void HttpAnswer::Fail(std::wstring_view reason) {
  step_ = Step::kOver;
  reason_ = reason;
}

HttpAnswer::State HttpAnswer::Take(std::string_view bytes) {
  while (!bytes.empty() && step_ != Step::kOver) {
    if (step_ == Step::kBody || step_ == Step::kChunk) {
      bytes.remove_prefix(TakeBody(bytes));
      continue;
    }
    const std::size_t end = bytes.find('\n');
    const std::size_t taken = end == std::string_view::npos ? bytes.size() : end + 1;
    header_bytes_ += taken;
    if (header_bytes_ > kMostHeaderBytes) {
      Fail(kTooLarge);
      break;
    }
    line_.append(bytes.substr(0, taken));
    bytes.remove_prefix(taken);
    if (end == std::string_view::npos) break;
    line_.pop_back();
    if (line_.ends_with('\r')) line_.pop_back();
    TakeLine(line_);
    line_.clear();
  }
  return state();
}

HttpAnswer::State HttpAnswer::End() {
  if (step_ == Step::kBody && promised_ < 0) {
    step_ = Step::kOver;
  } else if (step_ != Step::kOver) {
    Fail(step_ == Step::kStatus ? kNonsense : kCutShort);
  }
  return state();
}

void HttpAnswer::TakeLine(std::string_view line) {
  switch (step_) {
    case Step::kStatus:
      TakeStatus(line);
      break;
    case Step::kHeaders:
      if (line.empty()) {
        BeginBody();
      } else {
        TakeHeader(line);
      }
      break;
    case Step::kChunkSize:
      TakeChunkSize(line);
      break;
    case Step::kChunkEnd:
      step_ = Step::kChunkSize;
      if (!line.empty()) Fail(kNonsense);
      break;
    case Step::kTrailers:
      if (line.empty()) step_ = Step::kOver;
      break;
    default:
      break;
  }
}

void HttpAnswer::TakeStatus(std::string_view line) {
  const std::size_t blank = line.find(' ');
  const std::string_view rest = line.substr(std::min(blank, line.size() - 1) + 1);
  const auto code = Number(rest.substr(0, 3), 10);
  const bool ended = rest.size() == 3 || (rest.size() > 3 && rest[3] == ' ');
  if (!line.starts_with("HTTP/1.") || !ended || !code || *code < 100) {
    Fail(kNonsense);
    return;
  }
  status_ = static_cast<int>(*code);
  step_ = Step::kHeaders;
}

void HttpAnswer::TakeHeader(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos) {
    // The continuation of a line, which none of the fields that matter has; or no header at all.
    if (line.front() != ' ' && line.front() != '\t') Fail(kNonsense);
    return;
  }
  const std::string name = Lower(line.substr(0, colon));
  const std::string_view value = Bare(line.substr(colon + 1));
  if (name == "location") {
    location_ = value;
  } else if (name == "transfer-encoding") {
    chunked_ = Lower(value).ends_with("chunked");
  } else if (name == "content-length") {
    const auto length = Number(value, 10);
    if (!length || (promised_ >= 0 && promised_ != *length)) Fail(kNonsense);
    promised_ = length.value_or(0);
  }
}

void HttpAnswer::BeginBody() {
  if (status_ < kHttpOk) {
    // What comes before the answer itself, such as "go on".
    *this = HttpAnswer(most_body_, header_bytes_);
  } else if (status_ != kHttpOk) {
    step_ = Step::kOver;
  } else if (chunked_) {
    step_ = Step::kChunkSize;
  } else if (promised_ == 0) {
    step_ = Step::kOver;
  } else {
    step_ = Step::kBody;
    left_ = promised_ < 0 ? kEndless : static_cast<std::size_t>(promised_);
  }
}

void HttpAnswer::TakeChunkSize(std::string_view line) {
  const auto size = Number(Bare(line.substr(0, line.find(';'))), 16);
  if (!size) {
    Fail(kNonsense);
    return;
  }
  left_ = *size;
  step_ = left_ == 0 ? Step::kTrailers : Step::kChunk;
}

std::size_t HttpAnswer::TakeBody(std::string_view bytes) {
  const std::size_t taken = std::min(left_, bytes.size());
  if (taken > most_body_ - body_.size()) {
    Fail(kTooLarge);
    return taken;
  }
  body_.append(bytes.substr(0, taken));
  if (left_ != kEndless) left_ -= taken;
  if (left_ == 0) step_ = step_ == Step::kBody ? Step::kOver : Step::kChunkEnd;
  return taken;
}

}  // namespace varnel

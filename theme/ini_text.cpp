#include "theme/ini_text.h"

#include <algorithm>
#include <cstdint>

#include "base/text.h"

namespace varnel {
namespace {

constexpr wchar_t kMark = 0xFEFF;
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::wstring_view kLineEnd = L"\r\n";

std::wstring_view Stripped(std::wstring_view text) {
  constexpr std::wstring_view kBlanks = L" \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::wstring_view Unquoted(std::wstring_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == L'"' || value.front() == L'\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

std::wstring WideFromUtf16(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size() / 2);
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const std::uint32_t unit =
        static_cast<std::uint8_t>(bytes[at]) | static_cast<std::uint8_t>(bytes[at + 1]) << 8;
    const std::uint32_t before = text.empty() ? 0 : static_cast<std::uint32_t>(text.back());
    if (sizeof(wchar_t) > 2 && (unit & 0xFC00) == 0xDC00 && (before & ~0x3FFU) == 0xD800) {
      text.back() = static_cast<wchar_t>(0x10000 + ((before & 0x3FF) << 10) + (unit & 0x3FF));
    } else {
      text.push_back(static_cast<wchar_t>(unit));
    }
  }
  return text;
}

std::string Utf16FromWide(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size() * 2);
  const auto put = [&bytes](std::uint32_t unit) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8 & 0xFF));
  };
  for (const wchar_t unit : text) {
    const auto point = static_cast<std::uint32_t>(unit);
    if (point >= 0x10000) put(0xD800 + ((point - 0x10000) >> 10));
    put(point >= 0x10000 ? 0xDC00 + (point & 0x3FF) : point);
  }
  return bytes;
}

std::wstring OneLine(std::wstring_view value) {
  std::wstring line(value);
  std::replace_if(
      line.begin(), line.end(), [](wchar_t unit) { return unit < 0x20; }, L' ');
  return line;
}

bool IsAscii(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](wchar_t unit) { return static_cast<std::uint32_t>(unit) < 0x80; });
}

}  // namespace

std::optional<IniText> IniText::FromBytes(std::string_view bytes) {
  IniText ini;
  if (bytes.starts_with(kUtf16Mark)) {
    ini.encoding_ = Encoding::kUtf16;
    ini.text_ = WideFromUtf16(bytes);
  } else {
    ini.text_ = WideFromUtf8(bytes);
    if (Utf8FromWide(ini.text_) != bytes) {
      ini.encoding_ = Encoding::kLatin1;
      ini.text_.clear();
      for (const char byte : bytes) ini.text_.push_back(static_cast<std::uint8_t>(byte));
    }
  }
  if (ini.text_.find(L'\0') != std::wstring::npos) return std::nullopt;
  return ini;
}

std::string IniText::Bytes() const {
  switch (encoding_) {
    case Encoding::kUtf16:
      return Utf16FromWide(text_);
    case Encoding::kLatin1: {
      std::string bytes;
      for (const wchar_t unit : text_) bytes.push_back(static_cast<char>(unit));
      return bytes;
    }
    case Encoding::kUtf8:
      break;
  }
  return Utf8FromWide(text_);
}

std::wstring IniText::Value(std::wstring_view section, std::wstring_view key) const {
  const Place place = Find(section, key);
  if (!place.value) return {};
  const auto [begin, end] = *place.value;
  const auto value = Unquoted(Stripped(std::wstring_view(text_).substr(begin, end - begin)));
  return std::wstring(value.substr(0, kLongestValue));
}

void IniText::SetValue(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
  const std::wstring line = OneLine(value);
  if (encoding_ != Encoding::kUtf16 && !IsAscii(line)) UseUtf16();
  const Place place = Find(section, key);
  if (place.value) {
    text_.replace(place.value->begin, place.value->end - place.value->begin, line);
    return;
  }
  std::wstring added;
  if (!place.insertion) added.append(L"[").append(section).append(L"]").append(kLineEnd);
  added.append(key).append(L"=").append(line).append(kLineEnd);
  const std::size_t at = place.insertion.value_or(text_.size());
  const bool inside_line = at > Start() && text_[at - 1] != L'\r' && text_[at - 1] != L'\n';
  if (inside_line) added.insert(0, kLineEnd);
  text_.insert(at, added);
}

IniText::Place IniText::Find(std::wstring_view section, std::wstring_view key) const {
  Place place;
  for (std::size_t at = Start(); at < text_.size();) {
    const Span line = LineAt(at);
    at = AfterLineEnd(line.end);
    const auto content =
        Stripped(std::wstring_view(text_).substr(line.begin, line.end - line.begin));
    if (content.empty()) continue;
    const std::size_t closing = content.front() == L'[' ? content.rfind(L']') : content.npos;
    if (closing != content.npos) {
      if (place.insertion) break;
      if (EqualsIgnoreCase(Stripped(content.substr(1, closing - 1)), section)) {
        place.insertion = at;
      }
      continue;
    }
    if (!place.insertion) continue;
    place.insertion = at;
    const std::size_t sign = content.front() == L';' ? content.npos : content.find(L'=');
    if (sign != content.npos && EqualsIgnoreCase(Stripped(content.substr(0, sign)), key)) {
      place.value = Span{text_.find(L'=', line.begin) + 1, line.end};
      break;
    }
  }
  return place;
}

IniText::Span IniText::LineAt(std::size_t at) const {
  return {at, std::min(text_.find_first_of(kLineEnd, at), text_.size())};
}

std::size_t IniText::AfterLineEnd(std::size_t at) const {
  const bool both = text_.compare(at, kLineEnd.size(), kLineEnd) == 0;
  return std::min(at + (both ? 2 : 1), text_.size());
}

std::size_t IniText::Start() const {
  return text_.starts_with(kMark) ? 1 : 0;
}

void IniText::UseUtf16() {
  if (Start() == 0) text_.insert(text_.begin(), kMark);
  encoding_ = Encoding::kUtf16;
}

}  // namespace varnel

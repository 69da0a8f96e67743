#include "widgets/weather/entities.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "base/text.h"

namespace varnel {
namespace {

constexpr std::size_t kLongest = 10;  // characters between "&" and ";"

std::optional<char32_t> Named(std::string_view name) {
  static constexpr struct {
    std::string_view name;
    char32_t character;
  } kNames[] = {{"amp", U'&'},   {"lt", U'<'},   {"gt", U'>'},      {"quot", U'"'},
                {"apos", U'\''}, {"nbsp", U' '}, {"deg", U'\u00B0'}};
  for (const auto& entry : kNames) {
    if (entry.name == name) return entry.character;
  }
  return std::nullopt;
}

// A number behind "#"; nothing when it is none, or that of no character.
std::optional<char32_t> Numbered(std::string_view number) {
  const bool hexadecimal = number.starts_with('x') || number.starts_with('X');
  if (hexadecimal) number.remove_prefix(1);
  std::uint32_t value = 0;
  const char* end = number.data() + number.size();
  const auto [read, error] = std::from_chars(number.data(), end, value, hexadecimal ? 16 : 10);
  const bool surrogate = value >= 0xD800 && value < 0xE000;
  if (error != std::errc() || read != end || value > 0x10FFFF || surrogate) return std::nullopt;
  return value < U' ' ? U' ' : static_cast<char32_t>(value);
}

std::string Utf8Of(char32_t character) {
  const auto unit = [character](int shift, unsigned lead, unsigned mask) {
    return static_cast<char>(lead | (static_cast<unsigned>(character) >> shift & mask));
  };
  if (character < 0x80) return {unit(0, 0, 0x7F)};
  if (character < 0x800) return {unit(6, 0xC0, 0x1F), unit(0, 0x80, 0x3F)};
  if (character < 0x10000) return {unit(12, 0xE0, 0x0F), unit(6, 0x80, 0x3F), unit(0, 0x80, 0x3F)};
  return {unit(18, 0xF0, 0x07), unit(12, 0x80, 0x3F), unit(6, 0x80, 0x3F), unit(0, 0x80, 0x3F)};
}

}  // namespace

std::wstring WithoutEntities(std::wstring_view text) {
  std::wstring result;
  while (!text.empty()) {
    const std::size_t start = std::min(text.find(L'&'), text.size());
    result.append(text.substr(0, start));
    text.remove_prefix(start);
    if (text.empty()) break;
    const std::size_t end = text.substr(0, kLongest + 2).find(L';');
    std::optional<char32_t> character;
    if (end != std::wstring_view::npos) {
      const std::string name = Utf8FromWide(text.substr(1, end - 1));
      character = name.starts_with('#') ? Numbered(std::string_view(name).substr(1)) : Named(name);
    }
    if (character) result.append(WideFromUtf8(Utf8Of(*character)));
    if (!character) result.push_back(L'&');
    text.remove_prefix(character ? end + 1 : 1);
  }
  return result;
}

}  // namespace varnel

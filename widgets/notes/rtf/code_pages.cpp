#include "widgets/notes/rtf/code_pages.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"
#include "widgets/notes/rtf/code_page_tables.h"
#include "widgets/notes/text/utf16_units.h"

namespace varnel {
namespace {

constexpr wchar_t kNoCharacter = static_cast<wchar_t>(0xFFFD);

struct PageOfCharset {
  int charset;
  int page;
};

// The platform's numbers.
constexpr PageOfCharset kPagesOfCharsets[] = {
    {0, 1252},   {2, kSymbolCodePage}, {77, 10000}, {128, 932},  {129, 949},
    {130, 1361}, {134, 936},           {136, 950},  {161, 1253}, {162, 1254},
    {163, 1258}, {177, 1255},          {178, 1256}, {186, 1257}, {204, 1251},
    {222, 874},  {238, 1250},          {254, 437},  {255, 850}};

bool IsDoubleByte(int page) {
  return page == 932 || page == 936 || page == 949 || page == 950 || page == 1361;
}

wchar_t SingleByte(int page, unsigned char byte) {
  if (page == kSymbolCodePage) return static_cast<wchar_t>(byte < 0x20 ? byte : 0xF000 + byte);
  if (byte < 0x80) return static_cast<wchar_t>(byte);
  const auto known = std::ranges::find_if(
      kUpperHalves, [page](const UpperHalf& half) { return half.page == page; });
  const auto western =
      std::ranges::find_if(kUpperHalves, [](const UpperHalf& half) { return half.page == 1252; });
  const UpperHalf& half = known == std::end(kUpperHalves) ? *western : *known;
  const std::uint16_t point = half.points[byte - 0x80];
  // A byte without meaning is the control character of its number, as the platform has it.
  return static_cast<wchar_t>(point != 0 ? point : byte);
}

}  // namespace

int CharacterLength(int page, unsigned char first) {
  if (page == kUtf8CodePage) return first < 0xC2 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (!IsDoubleByte(page)) return 1;
  if (page == 932) return (first > 0x80 && first < 0xA0) || (first >= 0xE0 && first < 0xFD) ? 2 : 1;
  return first > 0x80 && first < 0xFF ? 2 : 1;
}

std::wstring DecodeCharacter(int page, std::string_view bytes, const DoubleByteReader* pairs) {
  if (page == kUtf8CodePage) {
    const std::wstring text = WideFromUtf8(bytes);
    return text.find(kNoCharacter) == std::wstring::npos ? Utf16Units(text)
                                                         : std::wstring(1, kNoCharacter);
  }
  const auto first = static_cast<unsigned char>(bytes.front());
  if (!IsDoubleByte(page) || first < 0x80) return std::wstring(1, SingleByte(page, first));
  const std::wstring text = pairs == nullptr ? std::wstring() : pairs->Character(page, bytes);
  return text.empty() ? std::wstring(1, kNoCharacter) : Utf16Units(text);
}

int CodePageOfCharset(int charset, int system_page) {
  const auto found = std::ranges::find_if(
      kPagesOfCharsets, [charset](const PageOfCharset& row) { return row.charset == charset; });
  return found == std::end(kPagesOfCharsets) ? system_page : found->page;
}

}  // namespace varnel

#include "widgets/notes/pages/paragraph_numbers.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace varnel {
namespace {

// A list that may go on.
struct OpenList {
  const ParagraphFormat* format = nullptr;
  std::int32_t next = 1;
};

bool SameList(const ParagraphFormat& one, const ParagraphFormat& other) {
  return one.numbering == other.numbering && one.number_start == other.number_start &&
         one.left == other.left;
}

std::wstring InLetters(std::int32_t number) {
  std::wstring letters;
  for (; number > 0; number = (number - 1) / 26) {
    letters.insert(letters.begin(), static_cast<wchar_t>(L'a' + (number - 1) % 26));
  }
  return letters;
}

std::wstring InRoman(std::int32_t number) {
  constexpr std::pair<int, std::wstring_view> kSigns[] = {
      {1000, L"m"}, {900, L"cm"}, {500, L"d"}, {400, L"cd"}, {100, L"c"}, {90, L"xc"}, {50, L"l"},
      {40, L"xl"},  {10, L"x"},   {9, L"ix"},  {5, L"v"},    {4, L"iv"},  {1, L"i"}};
  std::wstring roman;
  for (const auto& [value, sign] : kSigns) {
    for (; number >= value; number -= value) roman += sign;
  }
  return roman;
}

std::wstring Capitals(std::wstring text) {
  for (wchar_t& unit : text) {
    if (unit >= L'a' && unit <= L'z') unit = static_cast<wchar_t>(unit - L'a' + L'A');
  }
  return text;
}

std::wstring Written(Numbering numbering, std::int32_t number) {
  constexpr std::int32_t kMostRoman = 3999;
  const bool roman = number >= 1 && number <= kMostRoman;
  if (numbering == Numbering::kLowerLetter && number >= 1) return InLetters(number);
  if (numbering == Numbering::kUpperLetter && number >= 1) return Capitals(InLetters(number));
  if (numbering == Numbering::kLowerRoman && roman) return InRoman(number);
  if (numbering == Numbering::kUpperRoman && roman) return Capitals(InRoman(number));
  return std::to_wstring(number);
}

}  // namespace

std::vector<std::int32_t> ParagraphNumbers(const RtfDocument& document) {
  const auto numbered = [&](const RtfParagraph& paragraph) {
    return document.paragraph_formats[paragraph.format].numbering != Numbering::kNone;
  };
  if (std::ranges::none_of(document.paragraphs, numbered)) return {};
  std::vector<std::int32_t> numbers;
  numbers.reserve(document.paragraphs.size());
  std::vector<OpenList> open;  // further in from one to the next
  for (const RtfParagraph& paragraph : document.paragraphs) {
    const ParagraphFormat& format = document.paragraph_formats[paragraph.format];
    if (!numbered(paragraph)) {
      open.clear();
      numbers.push_back(0);
      continue;
    }
    while (!open.empty() && open.back().format->left >= format.left &&
           !SameList(*open.back().format, format)) {
      open.pop_back();
    }
    if (open.empty() || !SameList(*open.back().format, format)) {
      open.push_back({&format, format.number_start});
    }
    numbers.push_back(open.back().next++);
  }
  return numbers;
}

std::wstring ListMark(const ParagraphFormat& format, std::int32_t number) {
  if (format.numbering == Numbering::kNone) return {};
  if (format.numbering == Numbering::kBullet) return std::wstring(1, wchar_t(0x2022));
  std::wstring text = Written(format.numbering, number);
  if (format.number_end != 0) text += format.number_end;
  return text;
}

}  // namespace varnel

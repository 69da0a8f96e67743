#include "widgets/weather/type_ahead.h"

namespace varnel {
namespace {

// Plain lower-case letters of a run of letters with accents, in the order of their code points;
// '?' where one plain letter will not do.
struct LetterRun {
  wchar_t first;
  std::string_view plain;
};
constexpr LetterRun kRuns[] = {
    {0xC0,
     "aaaaaa?ceeeeiiiidnooooo?ouuuuy??aaaaaa?ceeeeiiiidnooooo?ouuuuy?yaaaaaaccccccccddddeeeeeeeeee"
     "gggggggghhhhiiiiiiiiii??jjkkkllllllllllnnnnnnnnnoooooo??rrrrrrssssssssttttttuuuuuuuuuuuuww"
     "yyyzzzzzzs"},
    {0x1CD, "aaiioouuuuuuuuuu"},
    {0x218, "sstt"},
    {0x1EA0,
     "aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeeeeeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy"}};

constexpr wchar_t kFirstMark = 0x300;  // accents that stand behind their letter
constexpr wchar_t kLastMark = 0x36F;

wchar_t PlainLetter(wchar_t unit) {
  for (const auto& [first, plain] : kRuns) {
    if (unit < first || unit - first >= static_cast<wchar_t>(plain.size())) continue;
    const char letter = plain[static_cast<std::size_t>(unit - first)];
    return letter == '?' ? unit : static_cast<wchar_t>(letter);
  }
  return unit;
}

std::wstring_view TwoLetters(wchar_t unit) {
  switch (unit) {
    case 0xC6:
    case 0xE6:
      return L"ae";
    case 0xDE:
    case 0xFE:
      return L"th";
    case 0xDF:
      return L"ss";
    case 0x132:
    case 0x133:
      return L"ij";
    case 0x152:
    case 0x153:
      return L"oe";
    default:
      return {};
  }
}

bool LeftOut(wchar_t unit) {
  return unit == L'\'' || unit == L'.' || unit == 0x2019 ||
         (unit >= kFirstMark && unit <= kLastMark);
}

// The first item that is `wanted`, which is folded, else the first that begins with it.
std::optional<std::size_t> FindBegun(std::span<const std::wstring> items,
                                     std::wstring_view wanted) {
  std::optional<std::size_t> begun;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const std::wstring item = FoldForSearch(items[i]);
    if (item == wanted) return i;
    if (!begun && item.starts_with(wanted)) begun = i;
  }
  return begun;
}

}  // namespace

std::wstring FoldForSearch(std::wstring_view text) {
  std::wstring folded;
  folded.reserve(text.size());
  for (const wchar_t unit : text) {
    if (LeftOut(unit)) continue;
    if (unit >= L'A' && unit <= L'Z') {
      folded.push_back(static_cast<wchar_t>(unit - L'A' + L'a'));
    } else if (unit == L'-') {
      folded.push_back(L' ');
    } else if (const std::wstring_view two = TwoLetters(unit); !two.empty()) {
      folded.append(two);
    } else {
      folded.push_back(PlainLetter(unit));
    }
  }
  return folded;
}

std::optional<Completion> CompleteTyped(std::span<const std::wstring> items,
                                        std::wstring_view typed, std::wstring_view former) {
  const std::wstring wanted = FoldForSearch(typed);
  if (wanted.empty() || FoldForSearch(former).starts_with(wanted)) return std::nullopt;
  const auto found = FindBegun(items, wanted);
  if (!found) return std::nullopt;
  const std::wstring_view item = items[*found];
  std::size_t count = 1;
  while (FoldForSearch(item.substr(0, count)).size() < wanted.size()) ++count;
  return Completion{*found, count};
}

std::optional<std::size_t> TypeAheadMatch(std::span<const std::wstring> items,
                                          std::wstring_view typed) {
  const std::wstring wanted = FoldForSearch(typed);
  if (wanted.empty()) return std::nullopt;
  if (const auto begun = FindBegun(items, wanted)) return begun;
  const std::wstring later_word = L" " + wanted;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (FoldForSearch(items[i]).find(later_word) != std::wstring::npos) return i;
  }
  return std::nullopt;
}

}  // namespace varnel

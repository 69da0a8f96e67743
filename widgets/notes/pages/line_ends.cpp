#include "widgets/notes/pages/line_ends.h"

#include "base/letters.h"

namespace varnel {
namespace {

constexpr wchar_t kJoiner = 0x200D;
constexpr char32_t kEmDash = 0x2014;

bool KeepsTogether(char32_t point) {
  return point == 0xA0 || point == 0x2007 || point == 0x2011 || point == 0x202F;
}

// Of scripts that are written without blanks, and emoji.
bool StandsAlone(char32_t point) {
  if (point < 0x2E80) return false;
  return point <= 0xA4CF || (point >= 0xF900 && point <= 0xFAFF) ||
         (point >= 0xFE30 && point <= 0xFE4F) || (point >= 0xFF01 && point <= 0xFF9F) ||
         (point >= 0x1F000 && point <= 0x1FAFF) || (point >= 0x20000 && point <= 0x3FFFD);
}

bool MayNotBegin(char32_t point) {
  constexpr std::wstring_view kClosing =
      L".,:;!?)]}%'\"\x2019\x201D\x2026\x2030\x3001\x3002\x3005\x3009\x300B\x300D\x300F\x3011\x3015"
      L"\x3041\x3043\x3045\x3047\x3049\x3063\x3083\x3085\x3087\x308E\x30A1\x30A3\x30A5\x30A7\x30A9"
      L"\x30C3\x30E3\x30E5\x30E7\x30EE\x30F5\x30F6\x30FB\x30FC\xFF01\xFF09\xFF0C\xFF0E\xFF1A\xFF1B"
      L"\xFF1F\xFF3D\xFF5D";
  return point < 0x10000 && kClosing.find(static_cast<wchar_t>(point)) != std::wstring_view::npos;
}

bool MayNotEnd(char32_t point) {
  constexpr std::wstring_view kOpening =
      L"([{$'\"\x2018\x201C\x3008\x300A\x300C\x300E\x3010\x3014\xFF08\xFF3B\xFF5B";
  return point < 0x10000 && kOpening.find(static_cast<wchar_t>(point)) != std::wstring_view::npos;
}

bool IsDash(char32_t point) {
  return point == L'-' || point == 0x2010 || (point >= 0x2012 && point <= kEmDash);
}

// The letter before `at`, without its marks; they are not looked through for long.
std::size_t LetterBefore(std::wstring_view text, std::size_t at) {
  constexpr int kMostMarks = 16;
  std::size_t begin = at - CharacterBefore(text, at).units;
  for (int i = 0; i < kMostMarks && begin > 0 && ContinuesCharacter(text, begin); ++i) {
    begin -= CharacterBefore(text, begin).units;
  }
  return begin;
}

}  // namespace

bool IsLineBlank(wchar_t unit) {
  if (unit == L' ') return true;
  if (unit < 0x1680) return false;
  return unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200A && unit != 0x2007) || unit == 0x205F ||
         unit == 0x3000;
}

bool IsUnseen(wchar_t unit) {
  if (unit < L' ') return true;
  if (unit < 0x7F) return false;
  return unit < 0xA0 || unit == kSoftHyphen || unit == kZeroWidthSpace || unit == 0x200E ||
         unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) ||
         (unit >= 0x2060 && unit <= 0x206F) || unit == 0xFEFF;
}

bool ContinuesCharacter(std::wstring_view text, std::size_t at) {
  const wchar_t unit = text[at];
  if (at == 0 || unit < 0x300) return at > 0 && unit >= L' ' && text[at - 1] == kJoiner;
  if (CharacterBefore(text, at + 1).units == 2) return true;
  const char32_t point = CharacterAt(text, at).point;
  return point == kJoiner || point == 0x200C || (point >= 0x1F3FB && point <= 0x1F3FF) ||
         KindOf(point) == CharacterKind::kMark || text[at - 1] == kJoiner;
}

bool MayEndLine(std::wstring_view text, std::size_t at) {
  const wchar_t unit = text[at];
  if (IsLineBlank(unit)) return false;
  if (IsLineBlank(text[at - 1])) return true;
  if (unit < 0x80 && text[at - 1] < 0x80 && text[at - 1] != L'-') return false;
  if (ContinuesCharacter(text, at)) return false;
  const std::size_t letter = LetterBefore(text, at);
  const char32_t before = CharacterAt(text, letter).point;
  const char32_t after = CharacterAt(text, at).point;
  if (KeepsTogether(before) || KeepsTogether(after)) return false;
  if (MayNotBegin(after) || MayNotEnd(before) || IsDash(after)) return false;
  if (StandsAlone(before) || StandsAlone(after)) return true;
  if (before == kEmDash) return true;
  return IsDash(before) && letter > 0 && text[letter - 1] > L' ' &&
         !IsLineBlank(text[letter - 1]) && KindOf(after) != CharacterKind::kDigit;
}

}  // namespace varnel

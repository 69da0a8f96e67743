#include "base/letters.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/support/cases.h"

namespace varnel {
namespace {

TEST(Letters, FoldToOneFormInEveryScript) {
  const test::Cases<std::wstring, std::wstring> cases = {
      {L"", L""},
      {L"Az09-[", L"az09-["},
      {L"ÄÖÜßẞ", L"äöüßß"},
      {L"ΣΑς", L"σασ"},
      {L"ЖЁ", L"жё"},
      {L"ŁĀā", L"łāā"},
      {L"ǄǅǆŸ", L"ǆǆǆÿ"},
      {L"\x0130\x0131\x017F\x212A", L"\x0130\x0131\x017F\x212A"},
      {L"\xD801\xDC00x\xD801", L"\xD801\xDC28x\xD801"},  // Deseret, and half a pair
      {L"漢字\xFFFC", L"漢字\xFFFC"},
  };
  for (const auto& [text, folded] : cases) {
    EXPECT_EQ(FoldCase(text), folded) << Utf8FromWide(text);
    EXPECT_EQ(FoldCase(text).size(), text.size());
  }
}

TEST(Letters, HaveAKindAndACapital) {
  const test::Cases<char32_t, CharacterKind, char32_t> cases = {
      {U'a', CharacterKind::kLetter, U'A'},       {U'@', CharacterKind::kOther, U'@'},
      {U'9', CharacterKind::kDigit, U'9'},        {U'ÿ', CharacterKind::kLetter, U'Ÿ'},
      {U'ß', CharacterKind::kLetter, U'ẞ'},       {U'σ', CharacterKind::kLetter, U'Σ'},
      {U'語', CharacterKind::kLetter, U'語'},     {0x0301, CharacterKind::kMark, 0x0301},
      {0x0663, CharacterKind::kDigit, 0x0663},    {0x1F600, CharacterKind::kOther, 0x1F600},
      {0x10428, CharacterKind::kLetter, 0x10400}, {0xFFFF'FFFF, CharacterKind::kOther, 0xFFFF'FFFF},
      {0xD800, CharacterKind::kOther, 0xD800},    {U'_', CharacterKind::kOther, U'_'},
  };
  for (const auto& [point, kind, capital] : cases) {
    EXPECT_EQ(KindOf(point), kind) << std::uint32_t(point);
    EXPECT_EQ(CapitalOf(point), capital) << std::uint32_t(point);
    EXPECT_EQ(IsCapital(capital), capital != point);
  }
  for (char32_t point = 0; point < 0x20000; ++point) {
    ASSERT_EQ(FoldCase(FoldCase(point)), FoldCase(point)) << std::uint32_t(point);
    ASSERT_FALSE(IsCapital(point) && HasCapital(point));
  }
}

}  // namespace
}  // namespace varnel

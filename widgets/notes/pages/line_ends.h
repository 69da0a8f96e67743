// Where a line of text may end, and which units belong to one character.
#pragma once

#include <cstddef>
#include <string_view>

namespace varnel {

// A blank that a line may end with; no-break spaces are none.
bool IsLineBlank(wchar_t unit);

// Characters that steer the text and are never seen: a soft hyphen within a line, marks of
// direction, controls.
bool IsUnseen(wchar_t unit);

inline constexpr wchar_t kSoftHyphen = 0xAD;
inline constexpr wchar_t kZeroWidthSpace = 0x200B;

// Whether the unit at `at` continues the character before it: a combining mark, the second half of
// a pair, what a joiner joins, a tint of an emoji.
bool ContinuesCharacter(std::wstring_view text, std::size_t at);

// Whether a line may end between the units at - 1 and `at`, neither of which is a tab, a break, a
// picture or unseen: after blanks, after hyphens and dashes within words, and between characters of
// scripts without blanks but for their punctuation. 0 < `at` < text.size(). The rules are the
// usual ones of Unicode's line breaking, without dictionaries.
bool MayEndLine(std::wstring_view text, std::size_t at);

}  // namespace varnel

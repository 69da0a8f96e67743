// Orders in which names of files are listed. Case is that of the Latin, Greek and Cyrillic letters
// that have one unit in both cases; all else is compared as it stands.
#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace varnel {

// The unit in lower case.
wchar_t FoldedUnit(wchar_t unit);
// The whole text in lower case: equal for names that name the same file.
std::wstring FoldedName(std::wstring_view name);

// Unit by unit, without regard to case.
std::weak_ordering CompareNames(std::wstring_view left, std::wstring_view right);

// As people order titles, without regard to case: a run of the digits 0 to 9, of any length, counts
// as its number ("2" before "10"), and a number comes before everything else. Names that are equal
// so far are told apart by leading zeros (fewer first), then unit by unit, so that only the same
// text is equal.
std::strong_ordering CompareNaturally(std::wstring_view left, std::wstring_view right);

}  // namespace varnel

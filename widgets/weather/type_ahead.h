// Finds list items as the user types.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varnel {

// The text in the form that searching compares: lower case, letters without their accents (Latin
// letters; ligatures as two letters), hyphens as blanks, apostrophes and full stops left out.
// Other writing is kept as it is.
std::wstring FoldForSearch(std::wstring_view text);

// An item offered while the user types: its first `typed` characters stand for what was typed, the
// rest is a proposal.
struct Completion {
  std::size_t item;
  std::size_t typed;
  bool operator==(const Completion&) const = default;
};

// The first item that equals `typed`, else the first that begins with it, compared folded. Nothing
// when none does, nothing was typed, or the user has only deleted from `former`, what was typed
// before.
std::optional<Completion> CompleteTyped(std::span<const std::wstring> items,
                                        std::wstring_view typed, std::wstring_view former);

// The item that `typed` means: the first that equals it, else the first that begins with it, else
// the first with a later word that does, compared folded. Nothing when none does or nothing was
// typed. Completing to a
// whole item keeps the list's own spelling in the box, which is what resolving a place needs.
std::optional<std::size_t> TypeAheadMatch(std::span<const std::wstring> items,
                                          std::wstring_view typed);

}  // namespace varnel

// The word lists that the program carries, packed into one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnel {

// The bit that marks the words of a list in the packed form.
enum class WordListKind : unsigned char { kAmerican = 64, kBritish = 128 };

// One list out of the packed form: its words in Windows-1252, each ended by CR LF, in the order of
// the packed form. There, a word is one byte (its lowest six bits: how many bytes it has in common
// with the word before; the others: in which lists it is), the rest of the word, and LF. Nothing
// when `packed` is not of that form.
std::optional<std::string> UnpackWordList(std::string_view packed, WordListKind kind);

}  // namespace varnel

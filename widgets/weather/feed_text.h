// A fetched response, made ready for the feed reader.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnel {

// The longest response that is read, in characters; what follows is left out.
inline constexpr std::size_t kMostFeedText = std::size_t{1} << 20;

// Whether a response says that it is UTF-8: by its mark, or by the encoding that its XML
// declaration names. Any other is in the system's code page.
bool DeclaresUtf8(std::string_view response);

// A response in which every title and description is a CDATA section, as the feed's reader wants
// them: where one is written with entities instead, these are read, and a degree sign is written
// as "&deg;" again.
std::wstring WithSections(std::wstring_view response);

// The fields of a response, one a line: every comma and every line end (CR LF, CR or LF) ends a
// field, also inside quotes; a field loses its leading blanks and then one pair of quotes around
// it, and is followed by CR LF. The end of the text ends a field that has begun, so "a", "a," and
// "a,b" give one, one and two lines. An empty response gives an empty text.
std::wstring NormaliseFeed(std::wstring_view response);

}  // namespace varnel

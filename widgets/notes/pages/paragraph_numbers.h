// Bullets and numbers before paragraphs.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

// The number of each paragraph, 0 for those without; empty when no paragraph has one. Numbers run
// on from paragraph to paragraph of the same kind, start and indent, through those between that are
// numbered and further in; anything else begins anew.
std::vector<std::int32_t> ParagraphNumbers(const RtfDocument& document);

// The bullet or the number as it is written; empty without numbering. Letters go on after z with
// aa; Roman numbers beyond 3999, and letters and Roman numbers below 1, are written in digits.
std::wstring ListMark(const ParagraphFormat& format, std::int32_t number);

}  // namespace varnel

// A plain text as a document, to be laid out like a formatted one.
#pragma once

#include <string_view>

#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

// The whole text in one font and format, a paragraph for each line: lines end with CR LF, CR or
// LF. Other controls than tabs and page breaks, and signs that would be pictures, become blanks.
RtfDocument PlainDocument(std::wstring_view text, const RtfFont& font, const CharFormat& format);

}  // namespace varnel

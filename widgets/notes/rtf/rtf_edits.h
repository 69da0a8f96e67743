// Edits of a formatted text.
#pragma once

#include <span>

#include "widgets/notes/rtf/rtf_document.h"
#include "widgets/notes/text/text_edit.h"

namespace varnel {

// Makes the edits, which lie within the document's text, none of them of length 0. What is put in
// takes the format of the first character that it replaces; all other characters keep theirs. Where
// a paragraph's end goes, the paragraph before it goes on with its own format; one that is put in
// parts the paragraph in two of the same format. Pictures that are replaced go; a U+FFFC put in,
// which would be a picture, becomes U+FFFD.
void ApplyEdits(RtfDocument& document, std::span<const TextEdit> edits);

}  // namespace varnel

// Lines under and through printed text, and the ground behind it.
#pragma once

#include "frame/pages/page.h"
#include "widgets/notes/pages/note_fonts.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

// The colour on paper: the format's, or black.
std::int32_t PrintedColour(const CharFormat& format);

// Adds what the format asks for to the page. `text` is placed already.
void AddTextRules(const CharFormat& format, const NoteFont& font, const PlacedText& text,
                  Page& page);

}  // namespace varnel

// Writes an RtfDocument as RTF that every reader takes, the platform's rich edit control too.
#pragma once

#include <string>

#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

// The whole file: ASCII, groups at most three deep, every character beyond ASCII as \uN. With a
// `placeholder` other than 0 each picture is written as that character, else as itself. What
// ReadRtf makes of it equals `document`, but for unused formats and fonts without a name.
std::string WriteRtf(const RtfDocument& document, wchar_t placeholder = 0);

// The group of one picture.
std::string PictureRtf(const RtfPicture& picture);

// How a unit that ASCII has is written: as itself, or as \uN, which is the same in every font;
// readers take plain letters in a symbol font for its symbols.
enum class AsciiAs { kItself, kUnicode };

// One UTF-16 unit as text of RTF, followed by `skip` stand-ins where it takes a \uN.
std::string UnitRtf(wchar_t unit, int skip, AsciiAs ascii);

}  // namespace varnel

#include "widgets/notes/pages/plain_document.h"

namespace varnel {

RtfDocument PlainDocument(std::wstring_view text, const RtfFont& font, const CharFormat& format) {
  RtfDocument document;
  document.fonts = {font};
  document.char_formats = {format};
  document.char_formats.front().font = 0;
  document.paragraph_formats.resize(1);
  document.paragraphs = {{0, 0}};
  document.text.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const wchar_t unit = text[at];
    if (unit == L'\r' || unit == L'\n') {
      if (unit == L'\r' && at + 1 < text.size() && text[at + 1] == L'\n') ++at;
      document.text += kParagraphEnd;
      document.paragraphs.push_back({document.text.size(), 0});
    } else {
      const bool control = unit < L' ' && unit != L'\t' && unit != kPageBreak;
      document.text += control || unit == kObject ? L' ' : unit;
    }
  }
  if (!document.text.empty()) document.runs = {{0, 0}};
  return document;
}

}  // namespace varnel

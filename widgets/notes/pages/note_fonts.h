// The fonts of a formatted text as they are printed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/pages/page.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

// How letters of one format come out.
struct NoteFont {
  PageFont font;
  FontExtent extent;
  int raised = 0;  // twips above the base line, below it when negative
  bool measured = false;
};

// Which way letters of a format are written: small letters of small capitals are smaller ones.
enum class LetterCase : std::uint8_t { kAsTheyAre, kSmallCapital };

// Measures each font of a document once, when it is first asked for. Document and measure outlive
// it.
class NoteFonts {
 public:
  NoteFonts(const RtfDocument& document, PageMeasure& measure)
      : document_(document), measure_(measure), fonts_(2 * document.char_formats.size() + 2) {}

  // Formats are indices into RtfDocument::char_formats; a document without text has one plain one,
  // of index 0.
  const CharFormat& Format(std::uint32_t format) const;
  // Raised and lowered letters (Script) have
  // two thirds of their size, a third of it above or a sixth below the line.
  const NoteFont& Of(std::uint32_t format, LetterCase letters);

 private:
  const RtfDocument& document_;
  PageMeasure& measure_;
  std::vector<NoteFont> fonts_;
};

}  // namespace varnel

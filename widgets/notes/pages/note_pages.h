// The pages of a formatted note.
#pragma once

#include <cstddef>
#include <vector>

#include "frame/pages/page.h"
#include "widgets/notes/pages/note_line_placer.h"
#include "widgets/notes/pages/note_lines.h"

namespace varnel {

// Breaks a document into pages as they are asked for. Of each page only its beginning is kept.
//
// A page ends at a page break, before a paragraph that asks for a new page, or with the last line
// that fits. No page break leaves one line of a paragraph alone, neither the first at the foot of a
// page nor the last at the head of one, and lines and paragraphs that are to be kept together are,
// as far as a page has room for them. Each page takes one line at least, so there are never more
// pages than there are characters and paragraphs together. A break at the very end of the text
// makes no empty page.
//
// Space before a paragraph goes at the head of a page, unless the page was asked for. Pictures are
// made small enough for their line and for the column. Hidden text takes no room.
class NotePages final : public PageSource {
 public:
  // `column` is where the text stands on each sheet, in twips, at least 1 either way;
  // `decimal_point` is what decimal tabs line up. Document and measure outlive the pages and do not
  // change; the index of a placed picture is that in RtfDocument::pictures.
  NotePages(const RtfDocument& document, const Rect& column, PageMeasure& measure,
            wchar_t decimal_point = L'.');
  NotePages(const NotePages&) = delete;  // its parts know each other
  NotePages& operator=(const NotePages&) = delete;

  PageCount Count() const override;
  PageCount Settle(std::size_t pages) override;
  Page At(std::size_t index) override;

 private:
  struct Start {
    LinePlace place;
    bool asked = true;  // by the text, not for want of room
  };
  // A line on a page that is being filled.
  struct Filled {
    LinePlace begin;
    std::size_t block = 0;  // the first line of its paragraph on this page
    bool ends_block = false;
  };

  Start NextStart(const Start& start);
  Start BreakBefore(const std::vector<Filled>& lines) const;
  bool MayBreak(const std::vector<Filled>& lines, std::size_t line, bool keep) const;
  int SpaceBefore(const NoteLine& line, const Start& start) const;
  int SpaceAfter(const NoteLine& line) const;

  Rect column_;
  NoteLines lines_;
  NoteLinePlacer placer_;
  std::vector<Start> starts_;  // of each page, and of the one after those laid out
  bool settled_ = false;
};

}  // namespace varnel

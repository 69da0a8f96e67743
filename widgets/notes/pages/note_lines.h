// Breaks a formatted text into lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "widgets/notes/pages/note_line.h"
#include "widgets/notes/pages/note_line_reader.h"

namespace varnel {

class NoteLines {
 public:
  // `column` in twips; `decimal_point` is what decimal tabs line up. Document and measure outlive
  // it.
  NoteLines(const RtfDocument& document, Size column, PageMeasure& measure, wchar_t decimal_point);

  // The line that begins at `place`, which is where the text begins or NoteLine::next of another
  // line. A line depends on nothing but that. It takes as much as fits, at least one character;
  // blanks that do not fit end it. Only a character that is wider than the whole line crosses its
  // limit.
  NoteLine Line(LinePlace place);

  // The place of the first paragraph from `paragraph` on that is not hidden.
  LinePlace Shown(std::size_t paragraph) const;
  bool IsEnd(const LinePlace& place) const { return place.paragraph >= paragraphs_.size(); }
  LinePlace End() const { return {paragraphs_.size(), document_.text.size()}; }
  const ParagraphFormat& FormatOf(std::size_t paragraph) const;
  NoteLineReader& reader() { return reader_; }

 private:
  // A line while it is filled.
  struct Filling {
    std::size_t index = 0;    // of the next cluster
    long long width = 0;      // of what stands since the last tab, or the line's start
    long long before = 0;     // of that, before the decimal point
    bool point = false;       // which was there
    std::size_t may_end = 0;  // before that cluster; 0: nowhere yet
    bool hyphen = false;      // with a hyphen
  };

  std::size_t ParagraphEnd(std::size_t paragraph) const;
  void SetIndents(NoteLine& line) const;
  void SetMark(NoteLine& line);
  TabStop StopAfter(int x, const ParagraphFormat& format) const;
  bool Fill(NoteLine& line, std::size_t end);
  bool Take(NoteLine& line, Filling& filling);
  bool TakeTab(NoteLine& line, Filling& filling);
  void Add(const LineCluster& cluster, Filling& filling) const;
  long long End(const NoteLine& line, const Filling& filling) const;
  void NoteEnd(NoteLine& line, Filling& filling);
  void Close(NoteLine& line, std::size_t paragraph_end, bool full);
  void PlaceParts(NoteLine& line);
  void SetHeight(NoteLine& line);
  int HyphenWidth(const LineCluster& cluster);

  const RtfDocument& document_;
  Size column_;
  wchar_t decimal_point_;
  const std::vector<RtfParagraph>& paragraphs_;
  NoteLineReader reader_;
  std::vector<std::int32_t> numbers_;
  std::vector<int> ends_;
};

}  // namespace varnel

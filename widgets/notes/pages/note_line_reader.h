// Reads a formatted text into clusters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "widgets/notes/pages/note_line.h"

namespace varnel {

class NoteLineReader {
 public:
  NoteLineReader(const RtfDocument& document, PageMeasure& measure)
      : document_(document), measure_(measure), fonts_(document, measure) {}

  // Goes to `at`, in a paragraph that ends (without its kParagraphEnd) at `end`.
  void Start(std::size_t at, std::size_t end);
  // Appends what comes next, some 64 units at most, passing over hidden text; nothing at the
  // paragraph's end and before a line break or page break, where at() then stands. `room` is what
  // pictures have to fit into.
  void Read(std::vector<LineCluster>& clusters, Size room);
  std::size_t at() const { return at_; }

  // The format of the text from `at` on; that of the last character at the text's end.
  std::uint32_t FormatAt(std::size_t at) const;
  // True when all of the text from `begin` up to `end`, which is not empty, is hidden.
  bool IsHidden(std::size_t begin, std::size_t end) const;
  NoteFonts& fonts() { return fonts_; }
  // The width of a text in that format; sets `ends` as PageMeasure does, limited to sane lengths.
  int Measure(std::uint32_t format, LetterCase letters, std::wstring_view text,
              std::vector<int>& ends);

 private:
  std::size_t RunOf(std::size_t at) const;
  std::size_t RunEnd(std::size_t run) const;
  LetterCase CaseAt(std::size_t at, const CharFormat& format) const;
  std::size_t PieceEnd(std::size_t end, const CharFormat& format) const;
  void ReadText(std::vector<LineCluster>& clusters, std::uint32_t format, std::size_t run_end);
  LineCluster PictureAt(std::size_t at, std::uint32_t format, Size room) const;

  const RtfDocument& document_;
  PageMeasure& measure_;
  NoteFonts fonts_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  std::size_t run_ = 0;
  std::wstring shown_;
  std::vector<int> ends_;
};

// The units from `begin` up to `end` as they are printed: in capitals where the format says so,
// no-break hyphens and blanks as plain ones. As many units as there are.
void AppendShown(const RtfDocument& document, std::size_t begin, std::size_t end,
                 const CharFormat& format, std::wstring& shown);

}  // namespace varnel

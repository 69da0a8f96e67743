// The characters of the note in the editor, kept beside the control so that nothing has to walk
// them all when a key is pressed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace varnel {

// The number of words in a text whose lines end with CR LF: each line end is a blank, also with a
// hyphen before it; outer blanks go; then every blank parts two words, so that two blanks in a row
// have an empty word between them. 0 for a text of blanks and line ends.
int TextWordCount(std::wstring_view text);

struct TextCounts {
  int words = 0;
  int chars = 0;  // UTF-16 units, two for each line end
  bool operator==(const TextCounts&) const = default;
};

// Positions are the control's: a line end is one CR. A change costs time in proportion to what
// changes and some 16 KB around it.
class NoteText {
 public:
  void Assign(std::wstring_view text);
  // Puts `text` in place of what stands from `begin` up to `end`; positions beyond the text mean
  // its end.
  void Replace(std::size_t begin, std::size_t end, std::wstring_view text);

  std::size_t size() const { return size_; }
  std::wstring Text(std::size_t begin, std::size_t end) const;
  // As TextWordCount and the length of the same part with CR LF.
  TextCounts Count() const { return Count(0, size_); }
  TextCounts Count(std::size_t begin, std::size_t end) const;
  // Line ends before a position.
  int LineEndsBefore(std::size_t position) const;

 private:
  // What a stretch of text adds to the counts.
  struct Summary {
    std::size_t chars = 0;
    std::size_t line_ends = 0;
    std::size_t blanks = 0;    // with line ends
    std::size_t leading = 0;   // of them, before the first letter
    std::size_t trailing = 0;  // of them, after the last letter
    bool has_letters = false;
  };
  struct Block {
    std::wstring text;
    Summary summary;
  };
  struct Place {
    std::size_t block = 0;
    std::size_t offset = 0;
  };

  static Summary Summarise(std::wstring_view text, wchar_t next);
  static Summary Joined(const Summary& first, const Summary& second);
  Place PlaceOf(std::size_t position) const;
  void Refresh(std::size_t block);

  std::vector<Block> blocks_;
  std::size_t size_ = 0;
};

}  // namespace varnel

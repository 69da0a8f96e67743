// Puts a line onto a page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "frame/pages/page.h"
#include "widgets/notes/pages/note_line.h"
#include "widgets/notes/pages/note_line_reader.h"

namespace varnel {

class NoteLinePlacer {
 public:
  // `column` is where the text stands on the sheet. Document and reader outlive it.
  NoteLinePlacer(const RtfDocument& document, NoteLineReader& reader, const Rect& column)
      : document_(document), reader_(reader), column_(column) {}

  // Adds the line, whose upper edge is `top` twips below the sheet's, to the page: aligned as its
  // paragraph is, stretched where that is justified, in the order in which it is read.
  void Place(const NoteLine& line, const ParagraphFormat& format, int top, Page& page);

 private:
  // Clusters of one look and direction, or the hyphen that ends a line.
  struct Item {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::uint8_t level = 0;
    bool hyphen = false;
    int width = 0;
  };
  // What stands between two tabs.
  struct Part {
    std::size_t begin = 0;
    std::size_t end = 0;
    int left = 0;  // from the leading edge
  };

  int Shift() const;
  void Stretch();
  void SetLevels();
  std::uint8_t LevelOf(std::size_t cluster) const;
  std::vector<Part> Parts() const;
  std::vector<Item> ItemsOf(const Part& part);
  bool SameItem(std::size_t one, std::size_t next) const;
  int FromLeft(int leading, int width) const;
  void PlacePart(const Part& part, Page& page);
  void PlaceItem(const Item& item, int left, Page& page);
  void PlacePicture(const LineCluster& cluster, int left, Page& page) const;
  void PlaceMark(Page& page);
  void PlaceLeader(const LineTab& tab, Page& page);
  void PlaceBars(Page& page) const;
  PlacedText TextOf(const Item& item);
  PlacedText Written(const LineCluster& cluster, std::wstring text);
  void Finish(PlacedText text, const LineCluster& cluster, Page& page);

  const RtfDocument& document_;
  NoteLineReader& reader_;
  Rect column_;
  const NoteLine* line_ = nullptr;  // while it is placed, with the members below
  const ParagraphFormat* format_ = nullptr;
  int base_line_ = 0;
  int top_ = 0;
  int shift_ = 0;
  std::vector<int> widths_;
  std::vector<std::uint8_t> levels_;  // of the text from the line's begin on; empty: all 0
};

}  // namespace varnel

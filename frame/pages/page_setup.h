// How a document is put on paper: sizes, margins, and what stands in the margins. Lengths are
// twips.
#pragma once

#include <array>
#include <string>

#include "base/geometry.h"

namespace varnel {

struct PageMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const PageMargins&) const = default;
};

// A line of texts in a margin: left, centre and right. They may hold fields (page_texts.h).
using PageLine = std::array<std::wstring, 3>;

struct PageTexts {
  PageLine header;
  PageLine footer;
  bool from_second_page = false;
  bool operator==(const PageTexts&) const = default;
};

struct PageSetup {
  Size paper;  // as it lies: wider than high in landscape
  PageMargins margins;
  PageTexts texts;
  bool colour = true;  // else black and greys
  bool fitted = true;  // a picture fills the column; else it has its own size
  bool operator==(const PageSetup&) const = default;
};

// The least width and height that margins leave: 20 mm.
inline constexpr int kLeastColumn = 1134;
// The least and the longest side of a paper: 40 mm and 1500 mm.
inline constexpr int kLeastPaper = 2268;
inline constexpr int kMostPaper = 85039;
// What a header or footer takes of its margin: a line of 9 points and the room around it, 10 mm.
inline constexpr int kHeaderRoom = 567;

// Margins of at least 0 that leave kLeastColumn of a paper with sides of at least kLeastPaper. Two
// that are too wide together are made smaller in proportion.
PageMargins FittedMargins(Size paper, const PageMargins& wished);

enum class PageEdge { kLeft, kTop, kRight, kBottom };

// The same margins with one of them as near to `twips` as the others let it.
PageMargins WithMargin(Size paper, const PageMargins& margins, PageEdge edge, int twips);
int MarginOf(const PageMargins& margins, PageEdge edge);

// The part of the paper that the document itself takes: what the fitted margins leave, with room
// for a header and a footer where there are such.
Rect ColumnOf(const PageSetup& setup);

}  // namespace varnel

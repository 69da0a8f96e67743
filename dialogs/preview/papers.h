// The kinds of paper that the program knows without a printer.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/geometry.h"
#include "base/length_text.h"

namespace varnel {

struct Paper {
  int number = 0;  // the platform's
  std::wstring name;
  Size size;  // upright, in twips
  bool operator==(const Paper&) const = default;
};

// The number of a paper whose size the user gives.
inline constexpr int kOwnPaper = 256;
inline constexpr int kPaperA4 = 9;
inline constexpr int kPaperLetter = 1;

// A3 to A5, B5, Letter, Legal, Executive and envelopes.
std::span<const Paper> StandardPapers();

// What the user chooses from: the printer's papers, or those above where it tells none, and the
// user's own size at the end. Papers without a name, with a side that no paper has, or with a
// number that there is already, are left out.
std::vector<Paper> OfferedPapers(std::span<const Paper> of_printer, Size own);

// "A4, 210 x 297 mm" with a multiplication sign, in the user's unit.
std::wstring PaperCaption(const Paper& paper, LengthUnit unit, wchar_t decimal);

// A side of a paper that may be: at least kLeastPaper and at most kMostPaper.
int SanePaperSide(int twips);

}  // namespace varnel

// In which order pages leave the printer.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace varnel {

// From `first` to `last`, counted from 1; either may be the larger one.
struct PageRange {
  int first = 1;
  int last = 1;
  bool operator==(const PageRange&) const = default;
};

struct PrintWish {
  std::vector<PageRange> ranges;  // none: all pages
  int copies = 1;                 // 1 to kMostCopies
  bool collate = true;            // a whole copy after the other, else a page after the other
  bool both_sides = false;        // of the paper are printed: no copy begins on another's back
};
inline constexpr int kMostCopies = 9999;

class PrintOrder {
 public:
  static constexpr int kEmptyPage = -1;

  // Pages beyond those that there are (`pages`) are left out; each page is there once a copy, in
  // the order of the ranges.
  PrintOrder(const PrintWish& wish, int pages);

  // How many sides there are to print, with those that stay empty.
  std::size_t size() const;
  // The page of a side, counted from 0, or kEmptyPage.
  int At(std::size_t side) const;

 private:
  std::vector<int> pages_;  // of one copy, whole sheets
  std::size_t copies_;
  bool collate_;
  std::size_t sheet_;  // sides of a sheet: 1 or 2
};

}  // namespace varnel

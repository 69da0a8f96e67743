#include "base/print_order.h"

#include <algorithm>

namespace varnel {

PrintOrder::PrintOrder(const PrintWish& wish, int pages)
    : copies_(static_cast<std::size_t>(std::clamp(wish.copies, 1, kMostCopies))),
      collate_(wish.collate),
      sheet_(wish.both_sides ? 2 : 1) {
  std::vector<bool> taken(static_cast<std::size_t>(std::max(pages, 0)));
  const auto take = [&](int first, int last) {
    for (int page = std::max(first, 1); page <= std::min(last, pages); ++page) {
      const auto index = static_cast<std::size_t>(page - 1);
      if (!taken[index]) pages_.push_back(page - 1);
      taken[index] = true;
    }
  };
  if (wish.ranges.empty()) take(1, pages);
  for (const PageRange& range : wish.ranges) {
    take(std::min(range.first, range.last), std::max(range.first, range.last));
  }
  // A single copy needs nothing after its last page.
  if (copies_ > 1 && pages_.size() % sheet_ != 0) pages_.push_back(kEmptyPage);
}

std::size_t PrintOrder::size() const {
  return pages_.size() * copies_;
}

int PrintOrder::At(std::size_t side) const {
  if (side >= size()) return kEmptyPage;
  if (collate_ || copies_ == 1) return pages_[side % pages_.size()];
  const std::size_t sheet = side / (sheet_ * copies_);
  return pages_[sheet * sheet_ + side % sheet_];
}

}  // namespace varnel

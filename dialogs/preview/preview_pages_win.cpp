#include "dialogs/preview/preview_pages_win.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace varnel {
namespace {

constexpr std::size_t kKeptPages = 24;
constexpr int kAhead = 4;  // pages that may be seen beside the one that is looked at

}  // namespace

void PreviewPages::Open(std::shared_ptr<PagedDocument> document, const PageSetup& setup,
                        PageFields fields) {
  Close();
  document_ = std::move(document);
  setup_ = setup;
  fields_ = std::move(fields);
  LayOut(1);
}

void PreviewPages::Close() {
  Forget();
  former_sheets_ = 0;
  source_.reset();
  document_.reset();
}

void PreviewPages::SetUp(const PageSetup& setup, int looked_at) {
  const PageSetup former = std::exchange(setup_, setup);
  if (former == setup) return;
  const bool anew = former.paper != setup.paper || ColumnOf(former) != ColumnOf(setup) ||
                    former.fitted != setup.fitted;
  if (anew) {
    former_sheets_ = sheets();
    LayOut(looked_at + 1 + kAhead);
  } else {
    Forget();
  }
}

void PreviewPages::LayOut(int pages) {
  Forget();
  source_ = document_ ? document_->Pages(setup_, measure_) : nullptr;
  if (source_) source_->Settle(static_cast<std::size_t>(pages));
}

void PreviewPages::Forget() {
  kept_.clear();
  ++version_;
}

bool PreviewPages::GoOn(int more) {
  if (!source_ || source_->Count().settled) return false;
  const PageCount count = source_->Settle(source_->Count().pages + static_cast<std::size_t>(more));
  // The number of pages stands in margins.
  if (count.settled) Forget();
  return true;
}

void PreviewPages::Finish() {
  if (!source_ || source_->Count().settled) return;
  source_->Settle(std::numeric_limits<std::size_t>::max());
  Forget();
}

std::shared_ptr<const PaintedPage> PreviewPages::At(int page) {
  const auto found = std::ranges::find(kept_, page, [](const auto& kept) { return kept.first; });
  if (found != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, found);
    return found->second;
  }
  if (!source_ || page < 0 || page >= pages()) return std::make_shared<PaintedPage>();
  Page laid_out = source_->At(static_cast<std::size_t>(page));
  PageFields fields = fields_;
  fields.page = page + 1;
  fields.pages = pages();
  AddPageTexts(laid_out, setup_, fields, measure_);
  auto painted = std::make_shared<PaintedPage>(WithPictures(std::move(laid_out), *document_));
  kept_.emplace_front(page, painted);
  if (kept_.size() > kKeptPages) kept_.pop_back();
  return painted;
}

}  // namespace varnel

// The pages of the document that is looked at, as far as they are wanted.
#pragma once

#include <functional>
#include <list>
#include <memory>

#include "frame/pages/page_measure_win.h"
#include "frame/pages/page_painter_win.h"
#include "frame/pages/page_texts.h"

namespace varnel {

class PreviewPages {
 public:
  // `fields` are those of every page: only the numbers are filled in.
  void Open(std::shared_ptr<PagedDocument> document, const PageSetup& setup, PageFields fields);
  void Close();
  // Lays the document out anew where that changes more than what stands in the margins.
  void SetUp(const PageSetup& setup);

  const PageSetup& setup() const { return setup_; }
  PageCount count() const { return source_ ? source_->Count() : PageCount{}; }
  int pages() const { return static_cast<int>(count().pages); }
  // Lays out so many more pages. True when there was one to lay out.
  bool GoOn(int more);
  // Lays out what is left.
  void Finish();

  // A page, counted from 0, with its header and footer.
  std::shared_ptr<const PaintedPage> At(int page);
  // Changes whenever a page may look different.
  int version() const { return version_; }

 private:
  void LayOut();
  void Forget();

  std::shared_ptr<PagedDocument> document_;
  PageSetup setup_;
  PageFields fields_;
  SystemPageMeasure measure_;
  std::unique_ptr<PageSource> source_;  // goes before the measure and the document
  std::list<std::pair<int, std::shared_ptr<const PaintedPage>>> kept_;  // the latest first
  int version_ = 0;
};

}  // namespace varnel

// The pages of the document that is looked at, as far as they are wanted.
#pragma once

#include <algorithm>
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
  // Lays the document out anew where that changes more than what stands in the margins: at once as
  // far as a little behind the page `looked_at`, the rest by GoOn.
  void SetUp(const PageSetup& setup, int looked_at);

  const PageSetup& setup() const { return setup_; }
  PageCount count() const { return source_ ? source_->Count() : PageCount{}; }
  int pages() const { return static_cast<int>(count().pages); }
  // How many sheets there are to show. While it is laid out anew, a document has at least as many
  // as it had before; those that are not laid out yet are empty.
  int sheets() const { return count().settled ? pages() : std::max(pages(), former_sheets_); }
  // Lays out so many more pages. True when there was one to lay out.
  bool GoOn(int more);
  // Lays out what is left.
  void Finish();

  // A page, counted from 0, with its header and footer.
  std::shared_ptr<const PaintedPage> At(int page);
  // Changes whenever a page may look different.
  int version() const { return version_; }

 private:
  void LayOut(int pages);
  void Forget();

  std::shared_ptr<PagedDocument> document_;
  PageSetup setup_;
  PageFields fields_;
  SystemPageMeasure measure_;
  std::unique_ptr<PageSource> source_;  // goes before the measure and the document
  std::list<std::pair<int, std::shared_ptr<const PaintedPage>>> kept_;  // the latest first
  int former_sheets_ = 0;
  int version_ = 0;
};

}  // namespace varnel

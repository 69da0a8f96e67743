// A note as a document to be printed.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "frame/pages/paged_document_win.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

class NotePaper : public PagedDocument {
 public:
  // `decimal_point` is what decimal tabs line up.
  NotePaper(std::wstring title, std::wstring file, RtfDocument document, wchar_t decimal_point);

  std::wstring title() const override { return title_; }
  std::wstring file() const override { return file_; }
  std::unique_ptr<PageSource> Pages(const PageSetup& setup, PageMeasure& measure) override;
  std::shared_ptr<const PagePicture> Picture(std::size_t index) override;

 private:
  std::wstring title_;
  std::wstring file_;
  RtfDocument document_;
  wchar_t decimal_point_;
  std::vector<std::weak_ptr<const PagePicture>> pictures_;  // as long as a page has them
};

}  // namespace varnel

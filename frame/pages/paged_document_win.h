// What can be shown and printed page by page on paper of any kind: a note, a board, a month.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "frame/pages/page.h"
#include "frame/pages/page_setup.h"

namespace varnel {

// A picture of a document. It is painted on other threads too.
class PagePicture {
 public:
  virtual ~PagePicture() = default;
  // Fills `area`, in pixels of the device; in greys unless `colour`.
  virtual void Draw(HDC dc, const Rect& area, bool colour) const = 0;
};

class PagedDocument {
 public:
  virtual ~PagedDocument() = default;
  // What the user calls it, and the name of its file, which may be empty.
  virtual std::wstring title() const = 0;
  virtual std::wstring file() const = 0;
  // It is one picture, which can be fitted to the paper or have its own size.
  virtual bool is_picture() const { return false; }
  // The pages for a setup. The document and the measure outlive them.
  virtual std::unique_ptr<PageSource> Pages(const PageSetup& setup, PageMeasure& measure) = 0;
  // The picture of that number among the pages'; null where it cannot be shown.
  virtual std::shared_ptr<const PagePicture> Picture(std::size_t index) = 0;
};

}  // namespace varnel

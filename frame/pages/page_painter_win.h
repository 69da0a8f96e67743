// Paints pages: the same on a screen, on a printer, and on anything between.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "frame/pages/paged_document_win.h"
#include "win/system/handles.h"

namespace varnel {

// What a page is painted on.
struct PageDevice {
  HDC dc = nullptr;
  double across = 1;  // pixels per twip
  double down = 1;
  Point corner;  // of the paper, in pixels
  bool colour = true;
};

// A page with all that painting it takes.
struct PaintedPage {
  Page page;
  std::vector<std::shared_ptr<const PagePicture>> pictures;  // of page.pictures, one by one
};

// Asks the document for what it lacks; null pictures stay grey sheets.
PaintedPage WithPictures(Page page, PagedDocument& document);

// Keeps fonts, so whoever paints much keeps one; each thread its own.
class PagePainter {
 public:
  void Paint(const PaintedPage& page, const PageDevice& device);

 private:
  using FontKey = std::tuple<std::wstring, int, int, bool, bool>;  // and height
  HFONT FontOf(const PageFont& font, int height);
  void PaintTexts(const std::vector<PlacedText>& texts, const PageDevice& device);
  void PaintText(const PlacedText& text, const PageDevice& device);

  std::map<FontKey, UniqueFont> fonts_;
  std::vector<const PlacedText*> by_font_;  // of one page, while it is painted
  std::vector<int> advances_;
};

}  // namespace varnel

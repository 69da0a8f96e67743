// The part of the sheets' view that paints.
#include <algorithm>
#include <cmath>

#include "base/box_shrink.h"
#include "base/number_text.h"
#include "dialogs/preview/sheet_view_win.h"
#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

constexpr long long kMostKeptPixels = 8LL * 1024 * 1024;  // of all sheets together
constexpr long long kMostSheetPixels =
    3LL * 1024 * 1024;             // of one; larger ones are painted in part
constexpr double kFineDots = 192;  // to the inch, at which letters are true enough
constexpr int kMostFiner = 4;
constexpr long long kMostFinePixels = 6LL * 1024 * 1024;
constexpr int kShadow = 5;  // pixels at 96 dpi
constexpr int kLeastMark = 5;
constexpr int kMarkFont = 9;

// A colour `part` of `whole` on the way from one to another.
COLORREF Between(COLORREF from, COLORREF to, int part, int whole) {
  const auto mix = [part, whole](int one, int other) { return one + (other - one) * part / whole; };
  return RGB(mix(GetRValue(from), GetRValue(to)), mix(GetGValue(from), GetGValue(to)),
             mix(GetBValue(from), GetBValue(to)));
}

COLORREF Ground() {
  return Between(::GetSysColor(COLOR_3DFACE), ::GetSysColor(COLOR_3DSHADOW), 1, 2);
}

// Dark around the sheet's lower right, and lighter outwards.
void PaintShadow(Surface& surface, const Rect& sheet, int width) {
  const COLORREF ground = Ground();
  const COLORREF dark = Between(ground, RGB(0, 0, 0), 2, 5);
  for (int i = width; i > 0; --i) {
    const Rect ring{sheet.left + width / 2 - i + 1, sheet.top + width / 2 - i + 1, sheet.right + i,
                    sheet.bottom + i};
    FillRectangle(surface.dc(), ring, Between(dark, ground, i, width + 1));
  }
}

}  // namespace

SheetLayout::Pages SheetView::Seen() const {
  const Rect view = View();
  return layout_.PagesIn(RectAt(scroll_, {view.width(), view.height()}));
}

SheetView::KeptSheet* SheetView::FindKept(int page, Size size) {
  const auto found = std::ranges::find(kept_, page, &KeptSheet::page);
  if (found == kept_.end()) return nullptr;
  if (found->size != size || found->version != pages_.version()) {
    kept_.erase(found);
    return nullptr;
  }
  kept_.splice(kept_.begin(), kept_, found);
  return &kept_.front();
}

void SheetView::Keep(int page, Size size, bool fine) {
  kept_.push_front({page, size, pages_.version(), Surface(size), fine});
  PaintKept(kept_.front().surface, page, fine);
  // What is in sight or comes next is never dropped: it would be painted again and again.
  const SheetLayout::Pages seen = Seen();
  long long pixels = 0;
  for (auto sheet = kept_.begin(); sheet != kept_.end();) {
    pixels += static_cast<long long>(sheet->size.width) * sheet->size.height;
    const bool close = sheet->page >= seen.first - 1 && sheet->page <= seen.last + 1;
    sheet = pixels > kMostKeptPixels && !close ? kept_.erase(sheet) : std::next(sheet);
  }
}

// A sheet as it is painted once and shown often; null where that would take too much, or while
// there is nothing on it.
const Surface* SheetView::Kept(int page, Size size) {
  if (static_cast<long long>(size.width) * size.height > kMostSheetPixels) return nullptr;
  if (page >= pages_.pages()) return nullptr;
  if (const KeptSheet* sheet = FindKept(page, size)) return &sheet->surface;
  Keep(page, size, false);
  return &kept_.front().surface;
}

bool SheetView::PaintFinely(int page) {
  if (page < 0 || page >= std::min(layout_.pages(), pages_.pages())) return false;
  const Rect sheet = layout_.Sheet(page);
  const Size size{sheet.width(), sheet.height()};
  if (static_cast<long long>(size.width) * size.height > kMostSheetPixels) return false;
  if (KeptSheet* kept = FindKept(page, size)) {
    if (kept->fine) return false;
    PaintKept(kept->surface, page, true);
    kept->fine = true;
  } else {
    Keep(page, size, true);
  }
  return true;
}

void SheetView::PaintAhead() {
  const SheetLayout::Pages seen = Seen();
  for (int page = seen.first; page <= seen.last; ++page) {
    if (!PaintFinely(page)) continue;
    const RECT sheet = ToSystem(SheetInWindow(page));
    ::InvalidateRect(handle(), &sheet, FALSE);
    return;
  }
  if (!PaintFinely(seen.last + 1) && !PaintFinely(seen.first - 1)) ahead_.Stop();
}

// Letters of a small page stand where paper has them only when they are painted larger: the
// platform's own small ones are as wide as whole pixels let them be. That takes a while.
void SheetView::PaintKept(Surface& surface, int page, bool fine) {
  const Size size = surface.size();
  const double scale = layout_.pixels_per_twip();
  const auto paint = [&](Surface& to, int factor) {
    FillRectangle(to.dc(), to.wanted(), RGB(0xFF, 0xFF, 0xFF));
    painter_.Paint(*pages_.At(page),
                   {to.dc(), scale * factor, scale * factor, {}, pages_.setup().colour});
  };
  const double dots = scale * kTwipsPerInch;
  const long long pixels = static_cast<long long>(size.width) * size.height;
  int factor = fine ? std::clamp(static_cast<int>(std::ceil(kFineDots / dots)), 1, kMostFiner) : 1;
  while (factor > 1 && pixels * factor * factor > kMostFinePixels) --factor;
  if (factor == 1) return paint(surface, 1);
  Surface large({size.width * factor, size.height * factor});
  paint(large, factor);
  BoxShrink(large.pixels(), size, factor, surface.pixels());
}

void SheetView::PaintSheet(Surface& surface, int page) {
  const Rect sheet = SheetInWindow(page);
  const int shadow = std::max(Scaled(kShadow, dpi()) / (kind_ == Kind::kThumbs ? 2 : 1), 2);
  PaintShadow(surface, sheet, shadow);
  const Size size{sheet.width(), sheet.height()};
  if (const Surface* kept = Kept(page, size)) {
    ::BitBlt(surface.dc(), sheet.left, sheet.top, size.width, size.height, kept->dc(), 0, 0,
             SRCCOPY);
  } else {
    FillRectangle(surface.dc(), sheet, RGB(0xFF, 0xFF, 0xFF));
    const int saved = ::SaveDC(surface.dc());
    ::IntersectClipRect(surface.dc(), sheet.left, sheet.top, sheet.right, sheet.bottom);
    const double scale = layout_.pixels_per_twip();
    painter_.Paint(*pages_.At(page),
                   {surface.dc(), scale, scale, {sheet.left, sheet.top}, pages_.setup().colour});
    ::RestoreDC(surface.dc(), saved);
  }
  if (kind_ != Kind::kThumbs) return;
  const bool marked = page == page_;
  if (marked) {
    const COLORREF mark = ::GetSysColor(COLOR_HIGHLIGHT);
    for (int i = 1; i <= Scaled(2, dpi()); ++i) {
      FrameRectangle(surface.dc(), Inset(sheet, -i), mark);
    }
  }
  RECT caption = {sheet.left, sheet.bottom, sheet.right, sheet.bottom + Scaled(20, dpi())};
  const SelectedObject font(surface.dc(), ui().fonts.Get({L"Tahoma", Scaled(11, dpi()), marked}));
  ::SetBkMode(surface.dc(), TRANSPARENT);
  ::SetTextColor(surface.dc(), ::GetSysColor(COLOR_BTNTEXT));
  ::DrawTextW(surface.dc(), NumberText(page + 1).c_str(), -1, &caption,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void SheetView::PaintMarks(Surface& surface, bool across, const Rect& ruler, int origin) {
  const double scale = layout_.pixels_per_twip();
  const Size paper = pages_.setup().paper;
  const int thick = Ruler();
  const SelectedObject font(surface.dc(),
                            ui().fonts.Get({L"Tahoma", Scaled(kMarkFont, dpi()), false}));
  ::SetBkMode(surface.dc(), TRANSPARENT);
  ::SetTextColor(surface.dc(), ::GetSysColor(COLOR_WINDOWTEXT));
  const COLORREF line = ::GetSysColor(COLOR_GRAYTEXT);
  for (const RulerMark& mark :
       RulerMarks(across ? paper.width : paper.height, scale, unit_, Scaled(kLeastMark, dpi()))) {
    const int at = origin + static_cast<int>(std::lround(mark.at * scale));
    const int length = mark.rank == 0 ? 0 : thick / (mark.rank == 1 ? 3 : 6);
    const int middle = thick / 2;
    if (length > 0) {
      const int from = middle - length / 2;
      FillRectangle(
          surface.dc(),
          across ? Rect{at, from, at + 1, from + length} : Rect{from, at, from + length, at + 1},
          line);
      continue;
    }
    const int half = Scaled(14, dpi());
    RECT box = across ? ToSystem({at - half, ruler.top, at + half, ruler.bottom})
                      : ToSystem({ruler.left, at - half, ruler.right, at + half});
    ::DrawTextW(surface.dc(), mark.label.c_str(), -1, &box,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  }
}

void SheetView::PaintRuler(Surface& surface, bool across) {
  const Rect view = View();
  const int thick = Ruler();
  const Rect ruler =
      across ? Rect{thick, 0, view.right, thick} : Rect{0, thick, thick, view.bottom};
  const Rect sheet = SheetInWindow(page_);
  const PageSetup& setup = pages_.setup();
  const double scale = layout_.pixels_per_twip();
  const auto along = [&](int low, int high) {
    return across ? Rect{low, ruler.top + 2, high, ruler.bottom - 2}
                  : Rect{ruler.left + 2, low, ruler.right - 2, high};
  };
  const int low = across ? sheet.left : sheet.top;
  const int high = across ? sheet.right : sheet.bottom;
  const PageMargins& margins = setup.margins;
  const int from =
      low + static_cast<int>(std::lround((across ? margins.left : margins.top) * scale));
  const int to =
      high - static_cast<int>(std::lround((across ? margins.right : margins.bottom) * scale));
  const int saved = ::SaveDC(surface.dc());
  ::IntersectClipRect(surface.dc(), ruler.left, ruler.top, ruler.right, ruler.bottom);
  FillRectangle(surface.dc(), along(low, high),
                Between(Ground(), ::GetSysColor(COLOR_WINDOW), 1, 2));
  FillRectangle(surface.dc(), along(from, to), ::GetSysColor(COLOR_WINDOW));
  PaintMarks(surface, across, ruler, low);
  // The ends of the margins, to be taken hold of.
  const COLORREF mark = ::GetSysColor(COLOR_HIGHLIGHT);
  const int thin = Scaled(3, dpi());
  for (const int at : {from, to})
    FillRectangle(surface.dc(), along(at - thin / 2, at - thin / 2 + thin), mark);
  ::RestoreDC(surface.dc(), saved);
}

void SheetView::PaintRulers(Surface& surface) {
  const Rect view = View();
  const COLORREF face = ::GetSysColor(COLOR_3DFACE);
  FillRectangle(surface.dc(), {0, 0, view.right, view.top}, face);
  FillRectangle(surface.dc(), {0, view.top, view.left, view.bottom}, face);
  PaintRuler(surface, true);
  PaintRuler(surface, false);
}

// The line that a dragged margin will have.
void SheetView::PaintGuide(Surface& surface) {
  if (!drag_) return;
  const PageMargins& margins = pages_.setup().margins;
  const Rect sheet = SheetInWindow(page_);
  const int length =
      static_cast<int>(std::lround(MarginOf(margins, drag_->edge()) * layout_.pixels_per_twip()));
  Rect line = sheet;
  switch (drag_->edge()) {
    case PageEdge::kLeft:
      line.right = (line.left += length) + 1;
      break;
    case PageEdge::kRight:
      line.left = (line.right -= length) - 1;
      break;
    case PageEdge::kTop:
      line.bottom = (line.top += length) + 1;
      break;
    case PageEdge::kBottom:
      line.top = (line.bottom -= length) - 1;
      break;
  }
  FillRectangle(surface.dc(), line, ::GetSysColor(COLOR_HIGHLIGHT));
}

void SheetView::Paint(Surface& surface) {
  const Rect view = View();
  FillRectangle(surface.dc(), view, Ground());
  const SheetLayout::Pages seen = Seen();
  for (int page = seen.first; page <= seen.last; ++page) PaintSheet(surface, page);
  ahead_.Start();
  PaintGuide(surface);
  if (kind_ == Kind::kSheets) PaintRulers(surface);
  if (::GetFocus() == handle() && kind_ == Kind::kThumbs) {
    const RECT focus = ToSystem(Inset(view, 2));
    ::DrawFocusRect(surface.dc(), &focus);
  }
}

}  // namespace varnel

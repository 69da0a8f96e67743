#include "dialogs/preview/sheet_view_win.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

constexpr int kRuler = 20;  // at 96 dpi, as the lengths below
constexpr int kGap = 16;
constexpr int kThumbGap = 12;
constexpr int kThumbCaption = 18;
constexpr int kReach = 4;  // around a margin's end
constexpr int kLine = 48;  // that an arrow key scrolls
constexpr int kThumbColumns = 1;
constexpr int kAheadMs = 40;
constexpr int kBarsMs = 15;

}  // namespace

SheetView::SheetView(Ui& ui, Kind kind, PreviewPages& pages, SheetViewOwner& owner, LengthUnit unit)
    : PaintedWindow(ui),
      kind_(kind),
      pages_(pages),
      owner_(owner),
      unit_(unit),
      ahead_(*this, kAheadMs, [this] { PaintAhead(); }),
      bars_(*this, kBarsMs, [this] {
        bars_.Stop();
        SetScrollBars();
      }) {
  if (kind == Kind::kThumbs) zoom_.kind = SheetZoom::Kind::kPageWidth;
}

bool SheetView::Load(HWND parent, int id, const wchar_t* name) {
  Creation creation;
  creation.class_name = L"VarnelSheets";
  creation.title = name;
  creation.style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | WS_CLIPSIBLINGS;
  if (kind_ == Kind::kSheets) creation.style |= WS_HSCROLL;
  creation.parent = parent;
  creation.id = id;
  return Create(creation);
}

int SheetView::Ruler() const {
  return kind_ == Kind::kSheets ? Scaled(kRuler, dpi()) : 0;
}

Rect SheetView::View() const {
  const Rect whole = client();
  const int ruler = Ruler();
  return {ruler, ruler, std::max(whole.right, ruler + 1), std::max(whole.bottom, ruler + 1)};
}

void SheetView::LayOut() {
  SheetRoom room;
  const Rect view = View();
  room.paper = pages_.setup().paper;
  room.pages = pages_.sheets();
  room.view = {view.width(), view.height()};
  room.dpi = dpi();
  room.zoom = zoom_;
  room.columns = columns_;
  room.gap = Scaled(kind_ == Kind::kSheets ? kGap : kThumbGap, dpi());
  if (kind_ == Kind::kThumbs) {
    room.columns = kThumbColumns;
    room.from_top = true;
    room.caption = Scaled(kThumbCaption, dpi());
  }
  layout_ = SheetLayout(room);
  page_ = std::clamp(page_, 0, std::max(room.pages - 1, 0));
}

// Each call paints a bar, which takes longer than painting the sheets: so these come first.
void SheetView::SetScrollBars() {
  const auto set = [this](int bar, ScrollRange& shown, const ScrollRange& now) {
    if (shown == now) return;
    shown = now;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = std::max(now.whole - 1, 0);
    info.nPage = static_cast<UINT>(now.part);
    info.nPos = now.at;
    ::SetScrollInfo(handle(), bar, &info, TRUE);
  };
  const Rect view = View();
  set(SB_VERT, down_, {layout_.whole().height, view.height(), scroll_.y});
  if (kind_ != Kind::kSheets) return;
  set(SB_HORZ, across_, {layout_.whole().width, view.width(), scroll_.x});
}

void SheetView::Show(const SheetZoom& zoom, int columns, std::optional<Point> at) {
  const SheetLayout before = layout_;
  zoom_ = zoom;
  columns_ = columns;
  LayOut();
  if (at) {
    const Rect view = View();
    scroll_ = KeptInPlace(before, scroll_, {at->x - view.left, at->y - view.top}, layout_);
  } else {
    scroll_ = layout_.ScrollTo(page_, scroll_);
  }
  SetScrollBars();
  ::InvalidateRect(handle(), nullptr, FALSE);
  TellPage();
}

void SheetView::Refresh() {
  LayOut();
  scroll_ = layout_.Bounded(scroll_);
  SetScrollBars();
  ::InvalidateRect(handle(), nullptr, FALSE);
  TellPage();
}

void SheetView::GoTo(int page) {
  page = std::clamp(page, 0, std::max(pages_.sheets() - 1, 0));
  const bool other = page != page_;
  page_ = page;
  asked_for_ = true;
  const bool scrolled = ScrollTo(kind_ == Kind::kSheets ? layout_.ScrollTo(page, scroll_)
                                                        : layout_.Revealing(page, scroll_));
  if (!other) return;
  if (!scrolled) ::InvalidateRect(handle(), nullptr, FALSE);
  if (kind_ == Kind::kSheets) owner_.OnPage(page);
}

void SheetView::ScrollBy(int across, int down) {
  asked_for_ = false;
  ScrollTo({scroll_.x + across, scroll_.y + down});
}

void SheetView::ScrollByViews(int views) {
  const Rect view = View();
  ScrollBy(0, views * std::max(view.height() - Scaled(kLine, dpi()), 1));
}

bool SheetView::ScrollTo(Point scroll) {
  scroll = layout_.Bounded(scroll);
  const bool scrolled = !(scroll == scroll_);
  scroll_ = scroll;
  const bool other = FollowScroll();
  if (scrolled || other) ::InvalidateRect(handle(), nullptr, FALSE);
  if (scrolled && !bars_.enabled()) bars_.Start();
  if (other) owner_.OnPage(page_);
  return scrolled;
}

// The page that is looked at follows what is scrolled to; thumbs mark what they are told.
bool SheetView::FollowScroll() {
  if (kind_ != Kind::kSheets || asked_for_) return false;
  const int former = std::exchange(page_, layout_.PageShown(scroll_));
  return page_ != former;
}

void SheetView::TellPage() {
  if (FollowScroll()) owner_.OnPage(page_);
}

Rect SheetView::SheetInWindow(int page) const {
  const Rect view = View();
  const Rect sheet = layout_.Sheet(page);
  return RectAt({sheet.left - scroll_.x + view.left, sheet.top - scroll_.y + view.top},
                {sheet.width(), sheet.height()});
}

// --- mouse and keys

int SheetView::OnPaper(Point at, bool across) const {
  const Rect sheet = SheetInWindow(page_);
  const int pixels = across ? at.x - sheet.left : at.y - sheet.top;
  return static_cast<int>(std::lround(pixels / layout_.pixels_per_twip()));
}

std::optional<PageEdge> SheetView::EdgeAt(Point at) const {
  const int ruler = Ruler();
  const bool across = at.y < ruler;
  if (across == (at.x < ruler)) return std::nullopt;  // on none, or in the corner
  const int reach =
      static_cast<int>(std::lround(Scaled(kReach, dpi()) / layout_.pixels_per_twip()));
  return EdgeNear(pages_.setup(), across, OnPaper(at, across), reach);
}

void SheetView::OnDown(Point at) {
  ::SetFocus(handle());
  if (const auto edge = EdgeAt(at)) {
    const bool across = *edge == PageEdge::kLeft || *edge == PageEdge::kRight;
    drag_.emplace(pages_.setup(), *edge, OnPaper(at, across), unit_);
    ::SetCapture(handle());
    return;
  }
  const Rect view = View();
  if (!view.Contains(at)) return;
  const int page = layout_.PageAt({at.x - view.left + scroll_.x, at.y - view.top + scroll_.y});
  if (page < 0) return;
  if (kind_ == Kind::kThumbs) {
    owner_.OnPage(page);
  } else if (page != page_) {
    page_ = page;
    asked_for_ = true;
    ::InvalidateRect(handle(), nullptr, FALSE);
    owner_.OnPage(page);
  }
}

void SheetView::OnMove(Point at) {
  if (!drag_) return;
  const bool across = drag_->edge() == PageEdge::kLeft || drag_->edge() == PageEdge::kRight;
  const bool fine = ::GetKeyState(VK_MENU) < 0 || ::GetKeyState(VK_SHIFT) < 0;
  owner_.OnMargins(drag_->To(OnPaper(at, across), fine), false);
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void SheetView::OnUp(bool keep) {
  if (!drag_) return;
  const PageMargins margins = keep ? pages_.setup().margins : drag_->start();
  drag_.reset();
  ::ReleaseCapture();
  owner_.OnMargins(margins, true);
  ::InvalidateRect(handle(), nullptr, FALSE);
}

bool SheetView::CancelDrag() {
  if (!drag_) return false;
  OnUp(false);
  return true;
}

bool SheetView::OnCursor() {
  POINT at = {};
  ::GetCursorPos(&at);
  ::ScreenToClient(handle(), &at);
  const auto edge = EdgeAt({static_cast<int>(at.x), static_cast<int>(at.y)});
  if (!edge) return false;
  const bool across = *edge == PageEdge::kLeft || *edge == PageEdge::kRight;
  ::SetCursor(::LoadCursorW(nullptr, across ? IDC_SIZEWE : IDC_SIZENS));
  return true;
}

void SheetView::OnScrollBar(int bar, int request) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  ::GetScrollInfo(handle(), bar, &info);
  const bool across = bar == SB_HORZ;
  const int now = across ? scroll_.x : scroll_.y;
  const int part = static_cast<int>(info.nPage);
  int to = now;
  switch (request) {
    case SB_LINEUP:
      to -= Scaled(kLine, dpi());
      break;
    case SB_LINEDOWN:
      to += Scaled(kLine, dpi());
      break;
    case SB_PAGEUP:
      to -= part;
      break;
    case SB_PAGEDOWN:
      to += part;
      break;
    case SB_TOP:
      to = 0;
      break;
    case SB_BOTTOM:
      to = info.nMax;
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      to = info.nTrackPos;
      break;
    default:
      return;
  }
  ScrollBy(across ? to - now : 0, across ? 0 : to - now);
}

void SheetView::OnWheel(WPARAM wparam, LPARAM lparam, bool across) {
  wheel_turn_ += GET_WHEEL_DELTA_WPARAM(wparam);
  const int notches = wheel_turn_ / WHEEL_DELTA;
  wheel_turn_ %= WHEEL_DELTA;
  if (notches == 0) return;
  if (GET_KEYSTATE_WPARAM(wparam) & MK_CONTROL) {
    POINT at = {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    ::ScreenToClient(handle(), &at);
    owner_.OnZoom(notches, {static_cast<int>(at.x), static_cast<int>(at.y)});
    return;
  }
  const int pixels = notches * 2 * Scaled(kLine, dpi());
  if (across || (GET_KEYSTATE_WPARAM(wparam) & MK_SHIFT)) {
    ScrollBy(across ? pixels : -pixels, 0);
  } else {
    ScrollBy(0, -pixels);
  }
}

// The keys that scroll; the dialog has those for pages. In the thumbs the arrows choose.
bool SheetView::TakeKey(WPARAM key) {
  const int line = Scaled(kLine, dpi());
  const bool thumbs = kind_ == Kind::kThumbs;
  switch (key) {
    case VK_UP:
      thumbs ? owner_.OnPage(std::max(page_ - 1, 0)) : ScrollBy(0, -line);
      return true;
    case VK_DOWN:
      thumbs ? owner_.OnPage(std::min(page_ + 1, pages_.sheets() - 1)) : ScrollBy(0, line);
      return true;
    case VK_LEFT:
      ScrollBy(-line, 0);
      return true;
    case VK_RIGHT:
      ScrollBy(line, 0);
      return true;
    default:
      return false;
  }
}

LRESULT SheetView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const Point at{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  switch (message) {
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
      // Its frame is the scroll bars.
      return ::DefWindowProcW(handle(), message, wparam, lparam);
    case WM_SIZE:
      LayOut();
      scroll_ = asked_for_ ? layout_.ScrollTo(page_, scroll_) : layout_.Bounded(scroll_);
      SetScrollBars();
      ::InvalidateRect(handle(), nullptr, FALSE);
      return 0;
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      ::InvalidateRect(handle(), nullptr, FALSE);
      return 0;
    case WM_KEYDOWN:
      if (TakeKey(wparam)) return 0;
      break;
    case WM_LBUTTONDOWN:
      OnDown(at);
      return 0;
    case WM_MOUSEMOVE:
      OnMove(at);
      return 0;
    case WM_LBUTTONUP:
      OnUp(true);
      return 0;
    case WM_CAPTURECHANGED:
      if (drag_) OnUp(true);
      return 0;
    case WM_SETCURSOR:
      if (LOWORD(lparam) == HTCLIENT && OnCursor()) return TRUE;
      break;
    case WM_VSCROLL:
      OnScrollBar(SB_VERT, LOWORD(wparam));
      return 0;
    case WM_HSCROLL:
      OnScrollBar(SB_HORZ, LOWORD(wparam));
      return 0;
    case WM_MOUSEWHEEL:
      OnWheel(wparam, lparam, false);
      return 0;
    case WM_MOUSEHWHEEL:
      OnWheel(wparam, lparam, true);
      return 0;
    default:
      break;
  }
  return PaintedWindow::OnMessage(message, wparam, lparam);
}

}  // namespace varnel

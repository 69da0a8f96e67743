#include "frame/side_list_win.h"

#include <algorithm>
#include <utility>

#include "win/graphics/system_rect.h"
#include "win/windows/common_controls.h"

namespace varnel {
namespace {

constexpr int kBarWidth = 9;  // at 96 dpi
// What the list view leaves alone at either end of a row, in pixels on every screen, when it has
// it painted anew.
constexpr int kRowMargin = 2;

// The em of the font that makes a row so high that text of `font_height` has room about it.
int RowFontHeight(int font_height) {
  return font_height * 13 / 10;
}

// Keys with which a list moves from row to row.
bool IsListKey(WPARAM key) {
  return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_SPACE || key == VK_RETURN;
}

}  // namespace

bool SideList::Load(HWND parent, int id, const std::wstring& name, SideListKind kind) {
  if (!LoadCommonControls(ICC_LISTVIEW_CLASSES)) return false;
  kind_ = kind;
  const DWORD style = kind == SideListKind::kDocuments ? LVS_SINGLESEL | LVS_EDITLABELS : 0;
  handle_ = ::CreateWindowExW(
      0, WC_LISTVIEWW, name.c_str(),
      WS_CHILD | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_OWNERDATA | LVS_SHOWSELALWAYS | style, 0, 0,
      0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!handle_) return false;
  ListView_SetExtendedListViewStyle(handle_,
                                    LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
  LVCOLUMNW column = {};
  ::SendMessageW(handle_, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  return bar_.Load(parent);
}

bool SideList::HasFocus() const {
  HWND focus = ::GetFocus();
  return focus && (focus == handle_ || ::IsChild(handle_, focus));
}

void SideList::Place(const Rect& place, const SideListLook& look) {
  // Of rows as high as they were until now.
  const bool at_end = kind_ == SideListKind::kLog && AtEnd();
  const bool other_height = look.text.font != look_.text.font || look.text.dpi != look_.text.dpi ||
                            look.row_height != look_.row_height;
  look_ = look;
  place_ = place;
  if (other_height) TakeHeight();
  ListView_SetBkColor(handle_, static_cast<COLORREF>(look.text.ground));
  Arrange(at_end);
  ::InvalidateRect(handle_, nullptr, FALSE);
}

// A list view's rows are one pixel higher than its font or its pictures, so it gets an empty
// picture of the height that is wanted.
void SideList::TakeHeight() {
  FontSpec rows = look_.text.font;
  if (look_.row_height == 0) rows.height = RowFontHeight(rows.height);
  UniqueFont font = MakeFont(rows);
  ::SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
  font_ = std::move(font);
  ResetPictures(handle_, LVSIL_SMALL, {1, look_.row_height - 1});
}

int SideList::RowHeight() const {
  RECT row = {};
  const bool found = ListView_GetItemRect(handle_, 0, &row, LVIR_BOUNDS);
  return found ? static_cast<int>(row.bottom - row.top) : 0;
}

// The list view's own scroll bar lies outside the region that is seen; the themed one takes its
// place.
void SideList::Arrange(bool at_end) {
  const int bar_width = Scaled(kBarWidth, look_.text.dpi);
  Rect rows = place_;
  rows.right = std::max(rows.left, rows.right - bar_width);
  // No row is cut off at the bottom.
  if (const int height = RowHeight(); height > 0) rows.bottom -= rows.height() % height;
  const int hidden = ::GetSystemMetricsForDpi(SM_CXVSCROLL, static_cast<UINT>(look_.text.dpi));
  ::SetWindowRgn(handle_, ::CreateRectRgn(0, 0, rows.width(), rows.height()), FALSE);
  // What stood over its former place, such as a panel that opens, is not to move along.
  ::SetWindowPos(handle_, nullptr, rows.left, rows.top, rows.width() + hidden, rows.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
  RECT inside = {};
  ::GetClientRect(handle_, &inside);
  ListView_SetColumnWidth(handle_, 0, std::min(rows.width(), static_cast<int>(inside.right)));
  if (at_end) ListView_EnsureVisible(handle_, Range().count - 1, FALSE);
  ::ShowWindow(handle_, rows.empty() ? SW_HIDE : SW_SHOWNA);
  bar_.Place({rows.right, rows.top, place_.right, rows.bottom}, look_.text.ground, look_.selected);
  bar_.SetRange(Range());
}

ScrollRange SideList::Range() const {
  return {ListView_GetTopIndex(handle_), ListView_GetCountPerPage(handle_),
          ListView_GetItemCount(handle_)};
}

bool SideList::AtEnd() const {
  const ScrollRange now = Range();
  return now.first + std::max(now.page, 1) >= now.count;
}

void SideList::ScrollTo(int row) {
  const ScrollRange now = Range();
  const int first = std::max(0, std::min(row, now.count - now.page));
  ListView_Scroll(handle_, 0, (first - now.first) * RowHeight());
}

void SideList::ShowRows(std::size_t count, std::size_t visible) {
  SetCount(count, visible, LVSICF_NOSCROLL);
}

void SideList::AddRows(std::size_t count) {
  SetCount(count, count, LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
}

void SideList::SetCount(std::size_t count, std::size_t visible, DWORD flags) {
  const int former = ListView_GetItemCount(handle_);
  ListView_SetItemCountEx(handle_, static_cast<int>(count), flags);
  if (former == 0 || count == 0) {
    Arrange(false);
    ::InvalidateRect(handle_, nullptr, FALSE);
    // What the rows leave of the place is the parent's to paint.
    const RECT place = ToSystem(place_);
    ::InvalidateRect(::GetParent(handle_), &place, FALSE);
  }
  // Tab does not stop at a list without rows.
  const LONG_PTR style = ::GetWindowLongPtrW(handle_, GWL_STYLE) & ~LONG_PTR{WS_TABSTOP};
  ::SetWindowLongPtrW(handle_, GWL_STYLE, count > 0 ? style | WS_TABSTOP : style);
  if (count > 0) {
    ListView_EnsureVisible(handle_, static_cast<int>(std::min(visible, count - 1)), FALSE);
    if (ListView_GetSelectedCount(handle_) == 0) {
      ListView_SetItemState(handle_, static_cast<int>(std::min(visible, count - 1)), LVIS_FOCUSED,
                            LVIS_FOCUSED);
    }
  }
  bar_.SetRange(Range());
}

void SideList::Select(std::size_t row) {
  // One by one: the system's way of changing all goes through the whole list.
  for (const std::size_t selected : Selected()) {
    ListView_SetItemState(handle_, static_cast<int>(selected), 0, LVIS_SELECTED);
  }
  ListView_SetItemState(handle_, static_cast<int>(row), LVIS_SELECTED | LVIS_FOCUSED,
                        LVIS_SELECTED | LVIS_FOCUSED);
  ListView_SetSelectionMark(handle_, static_cast<int>(row));
}

void SideList::SelectAll() {
  ListView_SetItemState(handle_, -1, LVIS_SELECTED, LVIS_SELECTED);
}

void SideList::SelectNone() {
  ListView_SetItemState(handle_, -1, 0, LVIS_SELECTED);
}

void SideList::Rename(std::size_t row) {
  Select(row);
  ListView_EnsureVisible(handle_, static_cast<int>(row), FALSE);
  ::SetFocus(handle_);
  HWND edit = ListView_EditLabel(handle_, static_cast<int>(row));
  RECT bounds = {};
  if (!edit || !ListView_GetItemRect(handle_, static_cast<int>(row), &bounds, LVIR_BOUNDS)) return;
  const Rect box = owner_.EditBox(FromSystem(bounds));
  if (!box.empty()) PlaceWindow(edit, box);
}

void SideList::RepaintRow(std::size_t row) const {
  ListView_RedrawItems(handle_, static_cast<int>(row), static_cast<int>(row));
}

void SideList::OnKey(const MSG& message) {
  if (message.message == WM_KEYDOWN) {
    // With Ctrl the same keys move the widget.
    struck_ =
        message.hwnd == handle_ && IsListKey(message.wParam) && ::GetKeyState(VK_CONTROL) >= 0;
  }
  // By now the list has done what the key asks.
  if (message.message == WM_KEYUP && std::exchange(struck_, false)) {
    if (const auto row = Focused()) owner_.OnRowChosen(*row);
  }
}

std::optional<std::size_t> SideList::Next(int after, UINT flags) const {
  const int found = ListView_GetNextItem(handle_, after, flags);
  return found < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(found));
}

std::vector<std::size_t> SideList::Selected() const {
  std::vector<std::size_t> rows;
  auto row = Next(-1, LVNI_SELECTED);
  // A list whose window is gone answers 0 for ever.
  while (row && (rows.empty() || *row > rows.back())) {
    rows.push_back(*row);
    row = Next(static_cast<int>(*row), LVNI_SELECTED);
  }
  return rows;
}

std::optional<std::size_t> SideList::Focused() const {
  return Next(-1, LVNI_FOCUSED);
}

LRESULT SideList::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      GiveText(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      return 0;
    case LVN_BEGINLABELEDITW:
      renaming_ = true;
      return FALSE;
    case LVN_ENDLABELEDITW: {
      const LVITEMW& item = reinterpret_cast<const NMLVDISPINFOW&>(header).item;
      renaming_ = false;
      if (item.pszText) owner_.OnRowRenamed(static_cast<std::size_t>(item.iItem), item.pszText);
      owner_.OnRenameEnded();
      return FALSE;
    }
    case NM_CLICK: {
      const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
      if (row >= 0) owner_.OnRowChosen(static_cast<std::size_t>(row));
      return 0;
    }
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      if (change.iItem >= 0 && (change.uNewState ^ change.uOldState) & LVIS_FOCUSED) {
        RepaintRow(static_cast<std::size_t>(change.iItem));
      }
      return 0;
    }
    case NM_SETFOCUS:
    case NM_KILLFOCUS:
      if (const auto row = Focused()) RepaintRow(*row);
      return 0;
    case LVN_ODFINDITEMW:
      return -1;  // letters search nothing
    case NM_CUSTOMDRAW: {
      const auto& draw = reinterpret_cast<const NMLVCUSTOMDRAW&>(header).nmcd;
      if (draw.dwDrawStage == CDDS_PREPAINT) {
        bar_.SetRange(Range());
        return CDRF_NOTIFYITEMDRAW | CDRF_NOTIFYPOSTPAINT;
      }
      if (draw.dwDrawStage == CDDS_POSTPAINT && Range().count == 0) DrawEmptyText(draw.hdc);
      if (draw.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
      DrawRow(draw.hdc, draw.dwItemSpec);
      return CDRF_SKIPDEFAULT;
    }
    default:
      return 0;
  }
}

void SideList::GiveText(LVITEMW& item) const {
  if ((item.mask & LVIF_TEXT) == 0 || !item.pszText || item.cchTextMax < 1) return;
  const std::wstring text = owner_.RowText(static_cast<std::size_t>(item.iItem));
  const std::size_t copied = text.copy(item.pszText, static_cast<std::size_t>(item.cchTextMax) - 1);
  item.pszText[copied] = L'\0';
}

void SideList::DrawRow(HDC dc, std::size_t index) {
  RECT bounds = {};
  if (!ListView_GetItemRect(handle_, static_cast<int>(index), &bounds, LVIR_BOUNDS)) return;
  const Rect box{0, 0, bounds.right - bounds.left, bounds.bottom - bounds.top};
  Surface surface({box.width(), box.height()});
  FillRectangle(surface.dc(), box, static_cast<COLORREF>(look_.text.ground));
  const UINT state =
      ListView_GetItemState(handle_, static_cast<int>(index), LVIS_SELECTED | LVIS_FOCUSED);
  const bool has_focus = ::GetFocus() == handle_;
  SideRow row{index,
              {kRowMargin, 0, box.right - kRowMargin, box.bottom},
              (state & LVIS_SELECTED) != 0,
              has_focus && (state & LVIS_FOCUSED) != 0,
              look_.text};
  if (row.selected) row.text.ground = has_focus ? look_.selected : look_.selected_without_focus;
  owner_.PaintRow(surface, row);
  surface.CopyTo(dc, {static_cast<int>(bounds.left), static_cast<int>(bounds.top)});
}

// In grey: the palest shade of the ground that can be read on it.
void SideList::DrawEmptyText(HDC dc) {
  const int width = place_.width() - Scaled(kBarWidth, look_.text.dpi);
  const Rect box{0, 0, width, RowFontHeight(look_.text.font.height) * 3 / 2};
  Surface surface({box.width(), box.height()});
  TextStyle style = look_.text;
  FillRectangle(surface.dc(), box, static_cast<COLORREF>(style.ground));
  style.colour = InkColour(style.ground, style.ground, PlainColours());
  style.side_room = Scaled(kRowMargin, style.dpi);
  style.align = Align::kCentre;
  PaintText(ui_, surface, box, owner_.EmptyText(), style);
  surface.CopyTo(dc, {0, 0});
}

void PaintRowGround(Surface& surface, const SideRow& row) {
  if (row.selected) {
    FillRectangle(surface.dc(), row.box, static_cast<COLORREF>(row.text.ground));
  } else if (row.current) {
    FrameRectangle(surface.dc(), row.box, kBlack);
    FrameRectangle(surface.dc(), Inset(row.box, 1), kWhite);
  }
}

}  // namespace varnel

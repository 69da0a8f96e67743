#include "widgets/calculator/log_list_win.h"

#include <algorithm>

#include "win/common_controls.h"
#include "win/font_measure.h"

namespace varnel {
namespace {

constexpr std::wstring_view kBeforeResult = L"= ";
constexpr int kSideRoom = 4;  // at 96 dpi, like the next
constexpr int kLeastFontHeight = 10;
constexpr int kLeastSumWidth = 28;
constexpr int kBarWidth = 9;
// What the list view leaves alone at either end of a line, in pixels on every screen, when it has
// it painted anew.
constexpr int kLineMargin = 2;

// The em of the font that makes a line so high that text of `font_height` has room about it.
int LineFontHeight(int font_height) {
  return font_height * 13 / 10;
}

int TextWidth(HDC dc, HFONT font, const std::wstring& text) {
  const SelectedObject selected(dc, font);
  SIZE extent = {};
  ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &extent);
  return static_cast<int>(extent.cx);
}

// The height of the font in which `text` fits into `area`, as long as that can be read.
int SmallerHeight(const std::wstring& text, Size area, const TextStyle& style) {
  const int fitting =
      FittingHeight(text, area, style.font.height, FontMeasure(style.font.face, false));
  return std::max(fitting, Scaled(kLeastFontHeight, style.dpi));
}

}  // namespace

bool LogList::Load(HWND parent, int id) {
  if (!LoadCommonControls(ICC_LISTVIEW_CLASSES)) return false;
  handle_ = ::CreateWindowExW(
      0, WC_LISTVIEWW, L"Log",
      WS_CHILD | LVS_REPORT | LVS_NOCOLUMNHEADER | LVS_OWNERDATA | LVS_SHOWSELALWAYS, 0, 0, 0, 0,
      parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!handle_) return false;
  ListView_SetExtendedListViewStyle(handle_,
                                    LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
  LVCOLUMNW column = {};
  ::SendMessageW(handle_, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  return bar_.Load(parent);
}

void LogList::Place(const Rect& place, const LogListLook& look) {
  const bool at_end = AtEnd();  // of lines as high as they were until now
  if (look.text.font != look_.text.font || look.text.dpi != look_.text.dpi) {
    FontSpec lines = look.text.font;
    lines.height = LineFontHeight(lines.height);
    UniqueFont font = MakeFont(lines);
    ::SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
    font_ = std::move(font);
  }
  look_ = look;
  place_ = place;
  ListView_SetBkColor(handle_, static_cast<COLORREF>(look.text.ground));
  Arrange(at_end);
  ::InvalidateRect(handle_, nullptr, FALSE);
}

int LogList::LineHeight() const {
  RECT line = {};
  const bool found = ListView_GetItemRect(handle_, 0, &line, LVIR_BOUNDS);
  return found ? static_cast<int>(line.bottom - line.top) : 0;
}

// The list view's own scroll bar lies outside the region that is seen; the themed one takes its
// place.
void LogList::Arrange(bool at_end) {
  const int bar_width = Scaled(kBarWidth, look_.text.dpi);
  Rect lines = place_;
  lines.right = std::max(lines.left, lines.right - bar_width);
  // No line is cut off at the bottom.
  if (const int height = LineHeight(); height > 0) lines.bottom -= lines.height() % height;
  const int hidden = ::GetSystemMetricsForDpi(SM_CXVSCROLL, static_cast<UINT>(look_.text.dpi));
  ::SetWindowRgn(handle_, ::CreateRectRgn(0, 0, lines.width(), lines.height()), FALSE);
  ::SetWindowPos(handle_, nullptr, lines.left, lines.top, lines.width() + hidden, lines.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
  RECT inside = {};
  ::GetClientRect(handle_, &inside);
  ListView_SetColumnWidth(handle_, 0, std::min(lines.width(), static_cast<int>(inside.right)));
  if (at_end) ListView_EnsureVisible(handle_, Range().count - 1, FALSE);
  ::ShowWindow(handle_, lines.empty() ? SW_HIDE : SW_SHOWNA);
  bar_.Place({lines.right, lines.top, place_.right, lines.bottom}, look_.text.ground,
             look_.selected);
  bar_.SetRange(Range());
}

ScrollRange LogList::Range() const {
  return {ListView_GetTopIndex(handle_), ListView_GetCountPerPage(handle_),
          ListView_GetItemCount(handle_)};
}

bool LogList::AtEnd() const {
  const ScrollRange now = Range();
  return now.first + std::max(now.page, 1) >= now.count;
}

void LogList::ScrollTo(int line) {
  const ScrollRange now = Range();
  const int first = std::max(0, std::min(line, now.count - now.page));
  ListView_Scroll(handle_, 0, (first - now.first) * LineHeight());
}

void LogList::ShowLines(std::size_t count, Line visible) {
  const int former = ListView_GetItemCount(handle_);
  // What is added at the end leaves the lines before it as they are.
  const bool added = former > 0 && static_cast<std::size_t>(former) <= count;
  ListView_SetItemCountEx(handle_, static_cast<int>(count),
                          added ? LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL : LVSICF_NOSCROLL);
  if (former == 0) Arrange(true);
  // Tab does not stop at a list without lines.
  const LONG_PTR style = ::GetWindowLongPtrW(handle_, GWL_STYLE) & ~LONG_PTR{WS_TABSTOP};
  ::SetWindowLongPtrW(handle_, GWL_STYLE, count > 0 ? style | WS_TABSTOP : style);
  if (count > 0) {
    ListView_EnsureVisible(handle_, static_cast<int>(std::min(visible, count - 1)), FALSE);
    // The keyboard is at the newest line until one is chosen.
    if (ListView_GetSelectedCount(handle_) == 0) {
      ListView_SetItemState(handle_, static_cast<int>(count) - 1, LVIS_FOCUSED, LVIS_FOCUSED);
    }
  }
  bar_.SetRange(Range());
}

void LogList::Select(Line line) {
  // One by one: the system's way of changing all goes through the whole list.
  for (const Line selected : Selected()) {
    ListView_SetItemState(handle_, static_cast<int>(selected), 0, LVIS_SELECTED);
  }
  ListView_SetItemState(handle_, static_cast<int>(line), LVIS_SELECTED | LVIS_FOCUSED,
                        LVIS_SELECTED | LVIS_FOCUSED);
  ListView_SetSelectionMark(handle_, static_cast<int>(line));
}

void LogList::SelectAll() {
  ListView_SetItemState(handle_, -1, LVIS_SELECTED, LVIS_SELECTED);
}

std::optional<LogList::Line> LogList::Next(int after, UINT flags) const {
  const int found = ListView_GetNextItem(handle_, after, flags);
  return found < 0 ? std::nullopt : std::optional(static_cast<Line>(found));
}

std::vector<LogList::Line> LogList::Selected() const {
  std::vector<Line> lines;
  for (auto line = Next(-1, LVNI_SELECTED); line;
       line = Next(static_cast<int>(*line), LVNI_SELECTED)) {
    lines.push_back(*line);
  }
  return lines;
}

std::optional<LogList::Line> LogList::Focused() const {
  return Next(-1, LVNI_FOCUSED);
}

LRESULT LogList::OnNotify(NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      GiveText(reinterpret_cast<NMLVDISPINFOW&>(header).item);
      return 0;
    case NM_CLICK: {
      const int line = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
      if (line >= 0) on_click_(static_cast<Line>(line));
      return 0;
    }
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
      if ((change.uNewState ^ change.uOldState) & LVIS_FOCUSED) Repaint(change.iItem);
      return 0;
    }
    case NM_SETFOCUS:
    case NM_KILLFOCUS:
      if (const auto line = Focused()) Repaint(static_cast<int>(*line));
      return 0;
    case LVN_ODFINDITEMW:
      return -1;  // letters search nothing
    case NM_CUSTOMDRAW: {
      const auto& draw = reinterpret_cast<const NMLVCUSTOMDRAW&>(header).nmcd;
      if (draw.dwDrawStage == CDDS_PREPAINT) {
        bar_.SetRange(Range());
        return CDRF_NOTIFYITEMDRAW;
      }
      if (draw.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
      DrawLine(draw.hdc, draw.dwItemSpec);
      return CDRF_SKIPDEFAULT;
    }
    default:
      return 0;
  }
}

void LogList::GiveText(LVITEMW& item) const {
  if ((item.mask & LVIF_TEXT) == 0 || !item.pszText || item.cchTextMax < 1) return;
  const std::wstring line = line_at_(static_cast<Line>(item.iItem));
  const std::size_t copied = line.copy(item.pszText, static_cast<std::size_t>(item.cchTextMax) - 1);
  item.pszText[copied] = L'\0';
}

void LogList::DrawLine(HDC dc, Line line) {
  const int index = static_cast<int>(line);
  RECT bounds = {};
  if (!ListView_GetItemRect(handle_, index, &bounds, LVIR_BOUNDS)) return;
  const Rect row{0, 0, bounds.right - bounds.left, bounds.bottom - bounds.top};
  Surface surface({row.width(), row.height()});
  TextStyle style = look_.text;
  const UINT state = ListView_GetItemState(handle_, index, LVIS_SELECTED | LVIS_FOCUSED);
  const bool has_focus = ::GetFocus() == handle_;
  FillRectangle(surface.dc(), row, static_cast<COLORREF>(style.ground));
  const Rect bar{kLineMargin, 0, row.right - kLineMargin, row.bottom};
  if (state & LVIS_SELECTED) {
    style.ground = has_focus ? look_.selected : look_.selected_without_focus;
    FillRectangle(surface.dc(), bar, static_cast<COLORREF>(style.ground));
  } else if (has_focus && (state & LVIS_FOCUSED)) {
    FrameRectangle(surface.dc(), bar, kBlack);
    FrameRectangle(surface.dc(), Inset(bar, 1), kWhite);
  }
  PaintLine(surface, row, line_at_(line), style);
  surface.CopyTo(dc, {static_cast<int>(bounds.left), static_cast<int>(bounds.top)});
}

// The results stand in a column at the right. A line too long becomes smaller, then its sum is cut,
// not its result.
void LogList::PaintLine(Surface& surface, const Rect& row, const std::wstring& text,
                        TextStyle style) {
  const std::size_t equals = text.find(kBeforeResult);
  const std::size_t result_at =
      equals == std::wstring::npos ? text.size() : equals + kBeforeResult.size();
  style.side_room = Scaled(kSideRoom, style.dpi);
  Rect box = row;
  const int room = box.width() - 3 * style.side_room;
  if (TextWidth(surface.dc(), ui_.fonts.Get(style.font), text) > room) {
    style.font.height = SmallerHeight(text, {room, row.bottom}, style);
  }
  if (result_at < text.size()) {
    const std::wstring result = text.substr(result_at);
    style.align = Align::kRight;
    PaintText(ui_, surface, box, result, style);
    box.right -= TextWidth(surface.dc(), ui_.fonts.Get(style.font), result) + style.side_room;
  }
  if (box.width() >= Scaled(kLeastSumWidth, style.dpi)) {
    style.align = Align::kLeft;
    PaintText(ui_, surface, box, text.substr(0, result_at), style);
  }
}

}  // namespace varnel

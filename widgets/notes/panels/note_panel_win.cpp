#include "widgets/notes/panels/note_panel_win.h"

#include <algorithm>

#include "win/windows/window_text.h"

namespace varnel {
namespace {

constexpr int kListRows = 12;

}  // namespace

int NotePanel::Rows(int width) const {
  return RowsOfPanel(width, host_.PanelDpi(), cells_);
}

void NotePanel::AddButton(int id, const wchar_t* word, wchar_t glyph, const PanelCell& cell) {
  const bool word_where_wide = cell.narrow > 0;
  host_.PanelButtons().Add(id, word, word_where_wide ? L'\0' : glyph, false);
  HWND handle = Control(id);
  ::ShowWindow(handle, SW_HIDE);
  parts_.push_back({id, handle, false, word_where_wide ? glyph : L'\0'});
  cells_.push_back(cell);
}

void NotePanel::AddCombo(int id, DWORD style, const wchar_t* word, const PanelCell& cell) {
  HWND handle = ::CreateWindowExW(
      0, L"COMBOBOX", word, WS_CHILD | WS_TABSTOP | WS_VSCROLL | CBS_AUTOHSCROLL | style, 0, 0, 0,
      0, host_.PanelParent(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  parts_.push_back({id, handle, true, 0});
  cells_.push_back(cell);
}

void NotePanel::AddLabel(int id, const wchar_t* text, const PanelCell& cell) {
  auto label = std::make_unique<ThemedLabel>(host_.PanelServices().ui);
  label->Load(host_.PanelParent(), id);
  label->SetText(text);
  parts_.push_back({id, label->handle(), false, 0});
  cells_.push_back(cell);
  labels_.push_back(std::move(label));
}

void NotePanel::AddWindow(int id, HWND window, const PanelCell& cell) {
  ::ShowWindow(window, SW_HIDE);
  parts_.push_back({id, window, false, 0});
  cells_.push_back(cell);
}

void NotePanel::DrawFace(const ButtonPainting& painting, const wchar_t* face) {
  TextStyle style = host_.PanelText();
  style.align = Align::kCentre;
  style.ground = painting.colours.first;
  style.faint = !painting.enabled;
  PaintText(host_.PanelServices().ui, painting.surface, painting.bounds, face, style);
}

void NotePanel::Place(const Rect& box) {
  const int dpi = host_.PanelDpi();
  const std::vector<Rect> places = FlowPanel({box.width(), box.height()}, dpi, cells_);
  TextStyle style = host_.PanelText();
  style.align = Align::kLeft;
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    const Part& part = parts_[i];
    const bool shown = !box.empty() && !places[i].empty();
    Rect place = shown ? Within(box, places[i]) : Rect{};
    const auto label = std::ranges::find_if(
        labels_, [&](const auto& entry) { return entry->handle() == part.handle; });
    if (label != labels_.end()) {
      (*label)->Place(place, style);
    } else if (shown && part.combo) {
      ::SendMessageW(part.handle, WM_SETFONT, reinterpret_cast<WPARAM>(host_.PanelFont()), FALSE);
      // The list's height counts as the box's.
      place.bottom = place.top + place.height() * kListRows;
      PlaceWindow(part.handle, place);
    } else if (shown) {
      PlaceWindow(part.handle, place);
      const bool narrow = place.width() < Scaled(cells_[i].width, dpi);
      if (part.narrow_glyph) {
        host_.PanelButtons().SetGlyph(part.id, narrow ? part.narrow_glyph : L'\0');
      }
    }
    ::ShowWindow(part.handle, shown ? SW_SHOWNA : SW_HIDE);
    if (shown) ::InvalidateRect(part.handle, nullptr, FALSE);
  }
}

void NotePanel::TakeFocus() const {
  for (const Part& part : parts_) {
    if (::IsWindowVisible(part.handle) &&
        (::GetWindowLongPtrW(part.handle, GWL_STYLE) & WS_TABSTOP)) {
      ::SetFocus(part.handle);
      return;
    }
  }
}

bool NotePanel::Has(HWND control) const {
  return std::ranges::any_of(parts_, [control](const Part& part) {
    return control && (part.handle == control || ::IsChild(part.handle, control));
  });
}

std::wstring NotePanel::BoxText(int id, int code) const {
  HWND box = Control(id);
  const LRESULT chosen = code == CBN_SELCHANGE ? ::SendMessageW(box, CB_GETCURSEL, 0, 0) : CB_ERR;
  if (chosen == CB_ERR) return WindowText(box);
  const LRESULT length = ::SendMessageW(box, CB_GETLBTEXTLEN, static_cast<WPARAM>(chosen), 0);
  std::wstring text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
  ::SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(chosen),
                 reinterpret_cast<LPARAM>(text.data()));
  text.pop_back();
  return text;
}

void NotePanel::ShowInBox(int id, const std::wstring& text) const {
  HWND box = Control(id);
  if ((WindowText(box) == text && !text.empty()) || ::IsChild(box, ::GetFocus())) return;
  const LRESULT found = text.empty()
                            ? CB_ERR
                            : ::SendMessageW(box, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                             reinterpret_cast<LPARAM>(text.c_str()));
  ::SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(found), 0);
  if (found == CB_ERR && (::GetWindowLongPtrW(box, GWL_STYLE) & 3) == CBS_DROPDOWN) {
    ::SetWindowTextW(box, text.c_str());
  }
}

}  // namespace varnel

#include "theme/text_field_win.h"

#include <commctrl.h>  // EM_SETCUEBANNER

#include "base/number_text.h"
#include "win/windows/window.h"
#include "win/windows/window_text.h"

namespace varnel {
namespace {

// Of a field's control: the object that it belongs to.
constexpr wchar_t kOwnerProperty[] = L"VarnelTextField";

}  // namespace

TextField::~TextField() {
  if (handle_) ::DestroyWindow(handle_);
}

bool TextField::Load(HWND parent, int id, const TextFieldKind& kind) {
  kind_ = kind;
  const DWORD style = (kind.digits_only ? ES_NUMBER : 0u) | (kind.centred ? ES_CENTER : 0u) |
                      (kind.bordered ? WS_BORDER : 0u);
  // Not of size zero: a box without room scrolls what is put into it out of sight for good.
  constexpr int kFirstWidth = 400;
  constexpr int kFirstHeight = 40;
  handle_ = ::CreateWindowExW(0, L"EDIT", L"",
                              WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL | style, 0, 0,
                              kFirstWidth, kFirstHeight, parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  if (!hook_.Attach(handle_) || !::SetPropW(handle_, kOwnerProperty, this)) return false;
  ::SendMessageW(handle_, EM_LIMITTEXT, static_cast<WPARAM>(kind.most), 0);
  if (kind.hint) {
    ::SendMessageW(handle_, EM_SETCUEBANNER, TRUE, reinterpret_cast<LPARAM>(kind.hint));
  }
  return true;
}

void TextField::Place(const Rect& box, const TextStyle& style) {
  if (!font_ || style.font != style_.font) {
    UniqueFont font = MakeFont(style.font);
    ::SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), FALSE);
    font_ = std::move(font);
  }
  if (style != style_) ::InvalidateRect(handle_, nullptr, TRUE);
  style_ = style;
  ::ShowWindow(handle_, box.empty() ? SW_HIDE : SW_SHOWNA);
  if (box.empty()) return;
  // The font brings margins of its own, which grow with it and take effect sooner or later.
  ::SendMessageW(handle_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  PlaceWindow(handle_, box);
  // What was scrolled out of sight, for want of room, stays there unless the caret goes to it.
  DWORD first = 0;
  DWORD last = 0;
  ::SendMessageW(handle_, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
  ::SendMessageW(handle_, EM_SETSEL, 0, 0);
  ::SendMessageW(handle_, EM_SCROLLCARET, 0, 0);
  ::SendMessageW(handle_, EM_SETSEL, first, last);
}

void TextField::SetText(const std::wstring& text) {
  if (this->text() == text) return;
  filling_ = true;
  ::SetWindowTextW(handle_, text.c_str());
  ::SendMessageW(handle_, EM_SETSEL, text.size(), text.size());
  filling_ = false;
}

std::wstring TextField::text() const {
  return WindowText(handle_);
}

void TextField::SelectAll() {
  ::SendMessageW(handle_, EM_SETSEL, 0, -1);
}

TextField* TextField::FromHandle(HWND handle) {
  return static_cast<TextField*>(::GetPropW(handle, kOwnerProperty));
}

std::optional<LRESULT> TextField::OnParentMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != WM_COMMAND && message != WM_CTLCOLOREDIT && message != WM_CTLCOLORSTATIC) {
    return std::nullopt;
  }
  TextField* field = FromHandle(reinterpret_cast<HWND>(lparam));
  if (!field) return std::nullopt;
  if (message != WM_COMMAND) return ColourField(reinterpret_cast<HDC>(wparam), field->style_);
  if (HIWORD(wparam) == EN_CHANGE && !field->OnChanged()) return 0;
  return std::nullopt;
}

bool TextField::OnChanged() {
  if (filling_) return false;
  if (kind_.digits_only) {
    std::wstring digits = text();
    std::erase_if(digits, [](wchar_t unit) { return !IsDigit(unit); });
    SetText(digits);
  }
  return true;
}

LRESULT TextField::Answer(const ControlMessage& message) {
  if (message.message == WM_NCDESTROY) {
    ::RemovePropW(handle_, kOwnerProperty);
    handle_ = nullptr;
  } else if (kind_.chosen_whole && Intercept(message.message)) {
    return 0;
  }
  const LRESULT result = hook_.PassOn(message);
  if (message.message == WM_SETFOCUS && kind_.chosen_whole) SelectAll();
  return result;
}

// The click that brings the focus would set the caret, after the whole has been selected.
bool TextField::Intercept(UINT message) {
  if (message == WM_MOUSEACTIVATE) click_chooses_ = !HasFocus();
  if (message != WM_LBUTTONDOWN || (HasFocus() && !click_chooses_)) return false;
  click_chooses_ = false;
  ::SetFocus(handle_);
  SelectAll();
  return true;
}

TextStyle SystemBoxStyle(const FontSpec& font) {
  TextStyle style;
  style.font = font;
  style.colour = static_cast<Colour>(::GetSysColor(COLOR_WINDOWTEXT));
  style.ground = static_cast<Colour>(::GetSysColor(COLOR_WINDOW));
  style.readable = false;
  return style;
}

LRESULT ColourField(HDC dc, TextStyle style) {
  style.prefer_ink = true;
  ::SetTextColor(dc, WritingOf(style).colour);
  ::SetBkColor(dc, style.ground);
  ::SetDCBrushColor(dc, style.ground);
  return reinterpret_cast<LRESULT>(::GetStockObject(DC_BRUSH));
}

}  // namespace varnel

#include "theme/themed_label_win.h"

#include <oleacc.h>

#include <algorithm>

namespace varnel {
namespace {

constexpr wchar_t kFirstSymbol = 0xE000;  // of the symbol font: it says nothing

}  // namespace

bool ThemedLabel::Load(HWND parent, int id) {
  Creation creation;
  creation.class_name = L"VarnelLabel";
  creation.style = WS_CHILD;
  creation.parent = parent;
  creation.id = id;
  return Create(creation);
}

void ThemedLabel::SetText(const std::wstring& text) {
  if (text == shown_text_) return;
  shown_text_ = text;
  first_seen_ = 0;
  ::SetWindowTextW(handle(), text.c_str());
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void ThemedLabel::ScrollTo(std::size_t units) {
  units = std::min(units, shown_text_.size());
  if (units == first_seen_) return;
  first_seen_ = units;
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void ThemedLabel::Place(const Rect& box, const TextStyle& style) {
  // What the system would move along may be what a neighbour, not yet moved, has just painted
  // there.
  PlaceWindow(handle(), box, SWP_NOCOPYBITS);
  if (style == style_) return;
  style_ = style;
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void ThemedLabel::Show(bool shown) {
  // The window's own style, not its visibility, which depends on the form's.
  const bool now = ::GetWindowLongPtrW(handle(), GWL_STYLE) & WS_VISIBLE;
  if (now != shown) ::ShowWindow(handle(), shown ? SW_SHOWNA : SW_HIDE);
}

LRESULT ThemedLabel::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  // The mouse belongs to the form.
  if (message == WM_NCHITTEST) return HTTRANSPARENT;
  if (message == WM_GETOBJECT) {
    if (!accessible_) {
      AccessibleSource source;
      source.whole = [this] {
        const bool symbol = shown_text_.size() == 1 && shown_text_[0] >= kFirstSymbol;
        return symbol ? AccessiblePart{{}, ROLE_SYSTEM_GRAPHIC}
                      : AccessiblePart{shown_text_, ROLE_SYSTEM_STATICTEXT};
      };
      accessible_ = std::make_unique<Accessible>(std::move(source));
    }
    if (const auto answer = accessible_->OnMessage(handle(), message, wparam, lparam)) {
      return *answer;
    }
  }
  return PaintedWindow::OnMessage(message, wparam, lparam);
}

void ThemedLabel::PaintGround(Surface& surface) {
  FillRectangle(surface.dc(), client(), style_.ground);
}

void ThemedLabel::Paint(Surface& surface) {
  const Rect area = client();
  PaintGround(surface);
  std::wstring text = shown_text_;
  if (first_seen_ > 0) text.replace(0, first_seen_, L"\x2026");
  PaintText(ui(), surface, area, text, style_);
}

}  // namespace varnel

#include "frame/text_buttons_form.h"

#include <oleacc.h>

#include <algorithm>
#include <utility>

#include "base/image.h"
#include "base/rounded_box.h"
#include "frame/frame_painter_win.h"
#include "win/graphics/system_rect.h"
#include "win/windows/frameless_button.h"
#include "win/windows/window_text.h"

namespace varnel {
namespace {

constexpr int kHoverTickMs = 100;
constexpr wchar_t kCloseGlyph = L'\xE202';
constexpr double kCornerRadius = 4;  // at 96 dpi
constexpr double kPlainFace = 1.25;  // the contrast with which a face is plainly seen
constexpr int kPlainTone = 190;

}  // namespace

TextButtons::TextButtons(Window& owner)
    : owner_(owner),
      hook_([this](const ControlMessage& message) { return Answer(message); }),
      tmrBARBTNS_(owner, kHoverTickMs, [this] { HoverTick(tmrBARBTNS_); }),
      tmrPANBTNS_(owner, kHoverTickMs, [this] { HoverTick(tmrPANBTNS_); }) {}

bool TextButtons::Add(int id, const std::wstring& word, wchar_t glyph, bool on_bar) {
  HWND handle = ::CreateWindowExW(
      0, FramelessButtonClass(), word.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW, 0,
      0, 0, 0, owner_.handle(), reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
      nullptr);
  if (!handle || (check_of_ && !hook_.Attach(handle))) return false;
  buttons_.push_back({id, handle, glyph, on_bar, glyph != 0});
  return true;
}

// A button that is drawn by its owner keeps no check of its own.
LRESULT TextButtons::Answer(const ControlMessage& message) const {
  const LRESULT result = hook_.PassOn(message);
  const bool asks = message.message == BM_GETCHECK || message.message == BM_GETSTATE;
  if (!asks) return result;
  const ButtonCheck check = check_of_(::GetDlgCtrlID(message.control));
  if (check == ButtonCheck::kOff) return result;
  return result | (check == ButtonCheck::kOn ? BST_CHECKED : BST_INDETERMINATE);
}

std::optional<LRESULT> TextButtons::OnAsked(HWND button, WPARAM wparam) {
  const auto found = std::ranges::find(buttons_, button, &TextButton::handle);
  if (found == buttons_.end()) return {};
  return AccessibleOf(found->id).OnMessage(button, WM_GETOBJECT, wparam, OBJID_CLIENT);
}

Accessible& TextButtons::AccessibleOf(int id) {
  std::unique_ptr<Accessible>& accessible = accessibles_[id];
  if (!accessible) {
    AccessibleSource source;
    source.whole = [this, id] {
      const ButtonCheck check = check_of_ ? check_of_(id) : ButtonCheck::kOff;
      AccessiblePart whole{WindowText(Find(id)->handle), ROLE_SYSTEM_PUSHBUTTON};
      if (check == ButtonCheck::kOn) whole.state = STATE_SYSTEM_PRESSED;
      if (check == ButtonCheck::kMixed) whole.state = STATE_SYSTEM_MIXED;
      if (more_of_) whole.description = more_of_(id);
      whole.action = L"Press";
      return whole;
    };
    // Later, for a press may open a menu or a question, and whoever asked waits meanwhile.
    source.act = [this, id] { ::PostMessageW(Find(id)->handle, BM_CLICK, 0, 0); };
    accessible = std::make_unique<Accessible>(std::move(source));
  }
  return *accessible;
}

const TextButton* TextButtons::Find(int id) const {
  const auto found = std::ranges::find(buttons_, id, &TextButton::id);
  return found == buttons_.end() ? nullptr : &*found;
}

void TextButtons::SetText(int id, std::wstring_view text) {
  const TextButton* button = Find(id);
  if (!button || WindowText(button->handle) == text) return;
  ::SetWindowTextW(button->handle, std::wstring(text).c_str());
  if (id == hovered_) ShowTooltip(*button);
  Repaint(id);
}

void TextButtons::SetGlyph(int id, wchar_t glyph) {
  const auto found = std::ranges::find(buttons_, id, &TextButton::id);
  if (found == buttons_.end() || found->glyph == glyph) return;
  found->glyph = glyph;
  found->tells_word = glyph != 0;
  Repaint(id);
}

void TextButtons::Place(int id, const Rect& box) {
  const TextButton* button = Find(id);
  if (!button) return;
  PlaceWindow(button->handle, box);
  Repaint(id);
}

void TextButtons::Enable(int id, bool on) {
  const TextButton* button = Find(id);
  if (!button) return;
  // The focus does not stay where no key has an effect.
  if (!on && ::GetFocus() == button->handle) {
    ::SetFocus(::GetNextDlgTabItem(owner_.handle(), button->handle, TRUE));
  }
  ::EnableWindow(button->handle, on);
}

void TextButtons::TellChecks(std::function<ButtonCheck(int id)> check_of) {
  if (!check_of_) {
    for (const TextButton& button : buttons_) hook_.Attach(button.handle);
  }
  check_of_ = std::move(check_of);
}

void TextButtons::TellWord(int id, bool on) {
  const auto found = std::ranges::find(buttons_, id, &TextButton::id);
  if (found != buttons_.end()) found->tells_word = on;
}

void TextButtons::TellKey(int id, std::wstring key) {
  const auto found = std::ranges::find(buttons_, id, &TextButton::id);
  if (found != buttons_.end()) found->key = std::move(key);
}

void TextButtons::OnMouseOver(HWND control) {
  const auto found = std::ranges::find(buttons_, control, &TextButton::handle);
  if (found == buttons_.end() || found->id == hovered_) return;
  Repaint(hovered_);
  hovered_ = found->id;
  Repaint(hovered_);
  ShowTooltip(*found);
  (found->on_bar ? tmrBARBTNS_ : tmrPANBTNS_).Start();
}

std::wstring TextButtons::TooltipText(const TextButton& button) const {
  std::wstring text = button.tells_word ? WindowText(button.handle) : L"";
  if (!text.empty() && !button.key.empty()) text += L" (" + button.key + L")";
  const std::wstring more = more_of_ ? more_of_(button.id) : L"";
  if (!text.empty() && !more.empty()) text += L": ";
  return text + more;
}

void TextButtons::ShowTooltip(const TextButton& button) {
  tooltip_.Attach(owner_.handle(), button.handle, TooltipText(button));
}

void TextButtons::HoverTick(Timer& timer) {
  POINT point = {};
  ::GetCursorPos(&point);
  const TextButton* button = hovered();
  if (button && ::WindowFromPoint(point) == button->handle) {
    if (more_of_) tooltip_.Update(TooltipText(*button));
    return;
  }
  Repaint(std::exchange(hovered_, 0));
  timer.Stop();
}

void TextButtons::ShowFocus(bool shown) {
  if (std::exchange(focus_shown_, shown) == shown) return;
  if (HWND focus = ::GetFocus(); ::IsChild(owner_.handle(), focus)) {
    ::InvalidateRect(focus, nullptr, FALSE);
  }
}

ButtonLook TextButtons::LookOf(const TextButton& button, const DRAWITEMSTRUCT& item) const {
  if (item.itemState & ODS_SELECTED) return ButtonLook::kPressed;
  return button.id == hovered_ ? ButtonLook::kHover : ButtonLook::kNormal;
}

void TextButtons::Draw(Ui& ui, const DRAWITEMSTRUCT& item, const WidgetPaint& paint,
                       const SystemColours& system,
                       const std::function<void(const ButtonPainting&)>& draw_on_panel) const {
  const TextButton* button = Find(static_cast<int>(item.CtlID));
  if (!button) return;
  const Rect bounds = FromSystem(item.rcItem);
  const int dpi = owner_.dpi();
  const ButtonLook look = LookOf(*button, item);
  const ColourPair colours =
      button->on_bar ? BarButtonColours(paint, look, button->glyph == kCloseGlyph, system)
                     : ButtonColours(paint, look, system);
  Surface surface({bounds.width(), bounds.height()});
  const bool on_bar = button->on_bar;
  FillRectangle(surface.dc(), bounds, on_bar ? paint.chrome.bar.first : paint.chrome.ground);
  const ButtonPainting painting{*button,
                                surface,
                                on_bar ? Inset(bounds, Scaled(2, dpi)) : bounds,
                                look,
                                on_bar ? colours : SeenOnPanel(paint, colours),
                                (item.itemState & ODS_FOCUS) != 0 && focus_shown_,
                                (item.itemState & ODS_DISABLED) == 0};
  if (on_bar) {
    PaintTextButton(ui, painting, paint, Scaled(kGlyphHeight, dpi), dpi);
  } else {
    draw_on_panel(painting);
  }
  surface.CopyTo(item.hDC, {0, 0});
}

void TextButtons::Repaint(int id) const {
  if (const TextButton* button = Find(id)) ::InvalidateRect(button->handle, nullptr, FALSE);
}

void PaintButtonFace(const ButtonPainting& painting, int dpi) {
  Surface& surface = painting.surface;
  const double unit = dpi / static_cast<double>(kDefaultDpi);
  const std::uint32_t face = OpaquePixel(painting.colours.first);
  DrawRoundedBox(surface.pixels(), surface.size(), painting.bounds, kCornerRadius * unit, face,
                 OpaquePixel(painting.colours.second));
  if (!painting.focused) return;
  // Black and white, one inside the other: one of them is seen on any face.
  const Rect outer = Inset(painting.bounds, Scaled(1, dpi));
  DrawRoundedBox(surface.pixels(), surface.size(), outer, 3 * unit, face, OpaquePixel(kBlack));
  DrawRoundedBox(surface.pixels(), surface.size(), Inset(outer, 1), 2 * unit, face,
                 OpaquePixel(kWhite));
}

ButtonPainting Primary(const ButtonPainting& painting, const WidgetPaint& paint) {
  ButtonPainting primary = painting;
  Colour& face = primary.colours.first;
  if (!paint.high_contrast && ContrastRatio(face, paint.chrome.ground) < kPlainFace) {
    face = Toned(face, kPlainTone);
  }
  return primary;
}

ButtonPainting Quiet(const ButtonPainting& painting, const WidgetPaint& paint) {
  ButtonPainting quiet = painting;
  if (painting.look == ButtonLook::kNormal)
    quiet.colours = {paint.chrome.ground, paint.chrome.border};
  return quiet;
}

void PaintTextButton(Ui& ui, const ButtonPainting& normal, const WidgetPaint& paint, int height,
                     int dpi) {
  const ButtonPainting painting = normal.enabled ? normal : Quiet(normal, paint);
  PaintButtonFace(painting, dpi);
  const TextButton& button = painting.button;
  TextStyle style = button.on_bar ? BarTextStyle(paint, dpi) : PanelTextStyle(paint, height, dpi);
  style.font.height = height;
  if (button.glyph) style.font.face = kIconFontName;
  style.ground = painting.colours.first;
  style.prefer_ink = button.on_bar;
  style.align = Align::kCentre;
  style.faint = !painting.enabled;
  PaintText(ui, painting.surface, painting.bounds,
            button.glyph ? std::wstring(1, button.glyph) : WindowText(button.handle), style);
}

}  // namespace varnel

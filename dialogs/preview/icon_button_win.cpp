#include "dialogs/preview/icon_button_win.h"

#include <uxtheme.h>
#include <vssym32.h>

#include "base/geometry.h"
#include "win/graphics/surface.h"
#include "win/system/handles.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

constexpr int kGlyph = 16;  // at 96 dpi
constexpr wchar_t kThemes[] = L"uxtheme.dll";

// False where the system draws buttons without a theme.
bool DrawThemedFace(const DRAWITEMSTRUCT& item, int state) {
  auto* open = LateFunction<HTHEME WINAPI(HWND, const wchar_t*)>(kThemes, "OpenThemeData");
  auto* close = LateFunction<HRESULT WINAPI(HTHEME)>(kThemes, "CloseThemeData");
  auto* draw = LateFunction<HRESULT WINAPI(HTHEME, HDC, int, int, const RECT*, const RECT*)>(
      kThemes, "DrawThemeBackground");
  const HTHEME theme = open && close && draw ? open(item.hwndItem, L"BUTTON") : nullptr;
  if (!theme) return false;
  const HRESULT drawn = draw(theme, item.hDC, BP_PUSHBUTTON, state, &item.rcItem, nullptr);
  close(theme);
  return SUCCEEDED(drawn);
}

}  // namespace

void DrawIconButton(Ui& ui, const DRAWITEMSTRUCT& item, wchar_t glyph, int dpi) {
  const bool pressed = (item.itemState & ODS_SELECTED) != 0;
  const bool disabled = (item.itemState & ODS_DISABLED) != 0;
  RECT box = item.rcItem;
  ::FillRect(item.hDC, &box, ::GetSysColorBrush(COLOR_3DFACE));
  const int state = disabled ? PBS_DISABLED : pressed ? PBS_PRESSED : PBS_NORMAL;
  if (!DrawThemedFace(item, state)) {
    ::DrawFrameControl(item.hDC, &box, DFC_BUTTON,
                       static_cast<UINT>(DFCS_BUTTONPUSH | (pressed ? DFCS_PUSHED : 0)));
  }
  {
    const SelectedObject font(item.hDC, ui.fonts.Get({kIconFontName, Scaled(kGlyph, dpi), false}));
    ::SetBkMode(item.hDC, TRANSPARENT);
    ::SetTextColor(item.hDC, ::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    if (pressed) ::OffsetRect(&box, 1, 1);
    ::DrawTextW(item.hDC, &glyph, 1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  }
  if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
    RECT focus = item.rcItem;
    ::InflateRect(&focus, -3, -3);
    ::DrawFocusRect(item.hDC, &focus);
  }
}

}  // namespace varnel

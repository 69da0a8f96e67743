#include "widgets/time/alarm_popup_form.h"

#include "frame/screens_win.h"
#include "resources/control_ids.h"
#include "theme/theme_store.h"
#include "win/user_look.h"

namespace varnel {
namespace {

constexpr Size kSizeTwips{5400, 2550};
constexpr wchar_t kTitle[] = L"Alarm";
constexpr wchar_t kBellGlyph[] = L"\xE265";
constexpr wchar_t kCloseGlyph = L'\xE202';
constexpr int kBar = 26;  // at 96 dpi, like all below
constexpr int kMargin = 12;

// The lower right corner of the primary screen's work area.
Rect PopupPlace() {
  const Screens screens = CurrentScreens();
  const Rect area = screens.monitors.front().work_area;
  const int dpi = screens.monitors.front().dpi;
  const Size size{PixelsFromTwips(kSizeTwips.width, dpi), PixelsFromTwips(kSizeTwips.height, dpi)};
  const int gap = Scaled(kMargin, dpi);
  return RectAt({area.right - size.width - gap, area.bottom - size.height - gap}, size);
}

}  // namespace

AlarmPopup::AlarmPopup(Services& services)
    : PaintedWindow(services.ui),
      services_(services),
      lblTitle_(services.ui),
      lablMESSAGE_(services.ui),
      lablALARMC_(services.ui),
      buttons_(*this) {}

bool AlarmPopup::Load() {
  Creation creation;
  creation.class_name = L"frmCLKam";
  creation.title = kTitle;
  creation.style = WS_POPUP | WS_CLIPCHILDREN;
  creation.extended_style = WS_EX_LAYERED | WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE;
  if (!Create(creation)) return false;
  lblTitle_.Load(handle(), lblTitle);
  lablMESSAGE_.Load(handle(), lablMESSAGE);
  lablALARMC_.Load(handle(), lablALARMC);
  lblTitle_.SetText(kTitle);
  buttons_.Add(imgBUTCLOSE, L"Close", kCloseGlyph, true);
  for (ThemedLabel* label : {&lblTitle_, &lablMESSAGE_, &lablALARMC_}) label->Show(true);
  return true;
}

void AlarmPopup::Ring(const AlarmRing& ring) {
  if (!handle() && !Load()) return;
  lablMESSAGE_.SetText(ring.message);
  lablALARMC_.SetText(ring.time);
  if (visible()) return;
  ThemeRecord theme = LoadTheme(services_.settings, L"frmCLKwg", services_.colours);
  paint_ = WidgetPaintOf(theme, HighContrastWanted(), services_.colours);
  ::SetLayeredWindowAttributes(handle(), 0, WindowAlpha(paint_.theme.bytTHEMEOPACITY), LWA_ALPHA);
  const Rect place = PopupPlace();
  ::SetWindowPos(handle(), HWND_TOPMOST, place.left, place.top, place.width(), place.height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
  LayOut();
}

TextStyle AlarmPopup::StyleOf(int height_at_96, Align align) const {
  TextStyle style;
  style.font = {paint_.theme.strTHEMEPANELFONTNAME, Scaled(height_at_96, dpi()), false};
  style.colour = paint_.theme.lngTHEMEPANELFONTCOLOR;
  style.ground = paint_.chrome.ground;
  style.halo_base = paint_.theme.lngTHEMECOLOR;
  style.align = align;
  style.dpi = dpi();
  return style;
}

void AlarmPopup::LayOut() {
  const Rect area = client();
  const int bar = Scaled(kBar, dpi());
  const int margin = Scaled(kMargin, dpi());
  const int glyph = Scaled(72, dpi());
  TextStyle title = StyleOf(13, Align::kLeft);
  title.font.face = paint_.theme.strTHEMEBARFONTNAME;
  title.colour = paint_.theme.lngTHEMEBARFONTCOLOR;
  title.ground = paint_.chrome.bar.first;
  lblTitle_.Place({margin, 1, area.right - bar - 2, bar}, title);
  buttons_.Place(imgBUTCLOSE, {area.right - bar - 2, 1, area.right - 1, bar});
  const int middle = bar + (area.bottom - bar) * 2 / 5;
  lablALARMC_.Place({glyph, bar + 2, area.right - margin, middle}, StyleOf(34, Align::kLeft));
  TextStyle message = StyleOf(16, Align::kLeft);
  message.wrap = true;
  lablMESSAGE_.Place({glyph, middle, area.right - margin, area.bottom - margin / 2}, message);
  ::InvalidateRect(handle(), nullptr, TRUE);
}

void AlarmPopup::Paint(Surface& surface) {
  const Rect area = client();
  FillRectangle(surface.dc(), area, paint_.chrome.ground);
  FillRectangle(surface.dc(), {0, 0, area.right, Scaled(kBar, dpi())}, paint_.chrome.bar.first);
  TextStyle style = StyleOf(40, Align::kCentre);
  style.font.face = kIconFontName;
  PaintText(ui(), surface, {0, Scaled(kBar, dpi()), Scaled(72, dpi()), area.bottom}, kBellGlyph,
            style);
  FrameRectangle(surface.dc(), area, paint_.chrome.border);
}

LRESULT AlarmPopup::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_DRAWITEM:
      DrawCloseButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return TRUE;
    case WM_MOUSEACTIVATE:
      return MA_NOACTIVATE;
    case WM_COMMAND:
    case WM_CLOSE:
      ::ShowWindow(handle(), SW_HIDE);
      return 0;
    default:
      return PaintedWindow::OnMessage(message, wparam, lparam);
  }
}

void AlarmPopup::DrawCloseButton(const DRAWITEMSTRUCT& item) {
  const TextButton* button = buttons_.Find(static_cast<int>(item.CtlID));
  if (!button) return;
  const Rect bounds = FromSystem(item.rcItem);
  Surface surface({bounds.width(), bounds.height()});
  FillRectangle(surface.dc(), bounds, paint_.chrome.bar.first);
  const ButtonLook look = buttons_.LookOf(*button, item);
  PaintTextButton(ui(),
                  {*button, surface, Inset(bounds, Scaled(2, dpi())), look,
                   ButtonColours(paint_, look, services_.colours), false, true},
                  paint_.theme, {}, Scaled(14, dpi()), dpi());
  surface.CopyTo(item.hDC, {0, 0});
}

}  // namespace varnel

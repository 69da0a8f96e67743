#include "widgets/time/alarm_popup_form.h"

#include <algorithm>
#include <utility>

#include "frame/frame_painter_win.h"
#include "frame/frame_settings.h"
#include "frame/screens_win.h"
#include "resources/control_ids.h"
#include "theme/text_field_win.h"
#include "theme/theme_store.h"
#include "win/graphics/system_rect.h"
#include "win/windows/user_look.h"

namespace varnel {
namespace {

constexpr Size kSizeTwips{5400, 2550};
constexpr wchar_t kTitle[] = L"Alarm";
constexpr wchar_t kBellGlyph[] = L"\xE265";
constexpr wchar_t kCloseGlyph = L'\xE202';
constexpr int kBar = 26;  // at 96 dpi, like all below
constexpr int kPopupMargin = 12;
constexpr int kGlyph = 72;     // the bell's room at the left
constexpr int kTime = 58;      // the alarm time's height
constexpr int kMostPart = 60;  // of the work area's height, in hundredths

}  // namespace

AlarmPopup::AlarmPopup(Services& services)
    : PaintedWindow(services.ui),
      services_(services),
      lblTitle_(services.ui),
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
  lablALARMC_.Load(handle(), lablALARMC);
  lblTitle_.SetText(kTitle);
  buttons_.Add(imgBUTCLOSE, L"Close", kCloseGlyph, true);
  for (ThemedLabel* label : {&lblTitle_, &lablALARMC_}) label->Show(true);
  return lablMESSAGE_.Load(handle(), lablMESSAGE) && txtEARLIER_.Load(handle(), txtEARLIER);
}

void AlarmPopup::Ring(const AlarmRing& ring) {
  if (!handle() && !Load()) return;
  if (!unread_.Add(ring) && visible()) return;
  lablMESSAGE_.SetText(unread_.newest().message);
  lablALARMC_.SetText(unread_.newest().time);
  txtEARLIER_.SetText(unread_.EarlierText());
  if (!visible()) {
    TakeTheme();
    PlaceWindowFor(0);
  }
  LayOut();
}

void AlarmPopup::TakeTheme() {
  ThemeRecord theme = LoadTheme(services_.settings, L"frmCLKwg", services_.colours);
  paint_ = WidgetPaintOf(theme, HighContrastWanted(), services_.colours);
  PutInterfaceFont(paint_, InterfaceFont());
  paint_.readable = ReadCheck(services_.settings, kMakeTextReadable);
  ::SetLayeredWindowAttributes(handle(), 0, WindowAlpha(paint_.theme.bytTHEMEOPACITY), LWA_ALPHA);
}

// In the lower right corner of the primary screen's work area.
void AlarmPopup::PlaceWindowFor(int height) {
  const Screens screens = CurrentScreens();
  const Rect area = screens.monitors.front().work_area;
  const int screen_dpi = screens.monitors.front().dpi;
  const Size size{PixelsFromTwips(kSizeTwips.width, screen_dpi),
                  std::max(height, PixelsFromTwips(kSizeTwips.height, screen_dpi))};
  const int gap = Scaled(kPopupMargin, screen_dpi);
  ::SetWindowPos(handle(), HWND_TOPMOST, area.right - size.width - gap,
                 area.bottom - size.height - gap, size.width, size.height,
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void AlarmPopup::PutAway() {
  unread_.Clear();
  ::ShowWindow(handle(), SW_HIDE);
}

TextStyle AlarmPopup::StyleOf(int height_at_96, Align align) const {
  TextStyle style = PanelTextStyle(paint_, Scaled(height_at_96, dpi()), dpi());
  style.align = align;
  return style;
}

void AlarmPopup::LayOut() {
  const Rect area = client();
  const int bar = Scaled(kBar, dpi());
  const int margin = Scaled(kPopupMargin, dpi());
  TextStyle title = StyleOf(13, Align::kLeft);
  title.font.face = paint_.theme.strTHEMEBARFONTNAME;
  title.colour = paint_.theme.lngTHEMEBARFONTCOLOR;
  title.ground = paint_.chrome.bar.first;
  lblTitle_.Place({margin, 1, area.right - bar - 2, bar}, title);
  buttons_.Place(imgBUTCLOSE, {area.right - bar - 2, 1, area.right - 1, bar});
  const int time_bottom = bar + Scaled(kTime, dpi());
  lablALARMC_.Place({Scaled(kGlyph, dpi()), bar + 2, area.right - margin, time_bottom},
                    StyleOf(34, Align::kLeft));
  const Rect work_area = CurrentScreens().monitors.front().work_area;
  PlaceWindowFor(LayOutTexts(work_area.height() * kMostPart / 100) + margin);
  ::InvalidateRect(handle(), nullptr, TRUE);
}

// Places message and earlier ones below the time, as high as they are as long as the window does
// not become higher than `most`. The height that it needs.
int AlarmPopup::LayOutTexts(int most) {
  const int left = Scaled(kGlyph, dpi());
  const int right = client().right - Scaled(kPopupMargin, dpi());
  const int gap = Scaled(kPopupMargin, dpi());
  UniqueFont font = MakeFont(StyleOf(16, Align::kLeft).font);
  const int message = lablMESSAGE_.HeightFor(right - left, font.get());
  const int earlier = txtEARLIER_.HeightFor(right - left, font.get());
  text_font_ = std::move(font);
  const int top = Scaled(kBar + kTime, dpi());
  const bool alone = unread_.EarlierText().empty();
  const int room = std::max(gap, most - top - gap);
  const int message_room = std::min(message, alone ? room : room * 2 / 3);
  const int message_bottom = top + message_room;
  lablMESSAGE_.Place({left, top, right, message_bottom}, message);
  if (alone) {
    txtEARLIER_.Place({}, 0);
    return message_bottom;
  }
  const int bottom = message_bottom + gap + std::min(earlier, room - message_room);
  txtEARLIER_.Place({left, message_bottom + gap, right, bottom}, earlier);
  return bottom;
}

void AlarmPopup::Paint(Surface& surface) {
  const Rect area = client();
  FillRectangle(surface.dc(), area, paint_.chrome.ground);
  FillRectangle(surface.dc(), {0, 0, area.right, Scaled(kBar, dpi())}, paint_.chrome.bar.first);
  TextStyle style = StyleOf(40, Align::kCentre);
  style.font.face = kIconFontName;
  const int bar = Scaled(kBar, dpi());
  PaintText(ui(), surface, {0, bar, Scaled(kGlyph, dpi()), bar + Scaled(2 * kTime, dpi())},
            kBellGlyph, style);
  FrameRectangle(surface.dc(), area, paint_.chrome.border);
}

LRESULT AlarmPopup::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_DRAWITEM:
      DrawCloseButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return TRUE;
    case WM_MOUSEACTIVATE:
      return MA_NOACTIVATE;
    case WM_CTLCOLORSTATIC:
      return ColourField(reinterpret_cast<HDC>(wparam), StyleOf(16, Align::kLeft));
    case WM_COMMAND:
      if (LOWORD(wparam) == imgBUTCLOSE || LOWORD(wparam) == IDCANCEL) PutAway();
      return 0;
    case WM_CLOSE:
      PutAway();
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
                   BarButtonColours(paint_, look, true, services_.colours), false, true},
                  paint_, Scaled(14, dpi()), dpi());
  surface.CopyTo(item.hDC, {0, 0});
}

}  // namespace varnel

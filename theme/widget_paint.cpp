#include "theme/widget_paint.h"

#include "theme/contrast.h"

namespace varnel {
namespace {

// Indexes of system colours, as the platform numbers them.
constexpr int kWindow = 5;
constexpr int kWindowText = 8;
constexpr int kHighlight = 13;
constexpr int kButtonFace = 15;
constexpr int kButtonText = 18;

constexpr ColourPair kCloseHover{0x1C2BC4, 0x1C2BC4};  // the usual red of closing
constexpr ColourPair kClosePressed{0x1622A0, 0x1622A0};

}  // namespace

WidgetPaint WidgetPaintOf(ThemeRecord& theme, bool high_contrast, const SystemColours& system) {
  const ChromeColours chrome = DeriveChrome(theme, system);
  WidgetPaint paint{theme, chrome, high_contrast};
  ThemeRecord& painted = paint.theme;
  painted.lngTHEMECOLOR = Translate(theme.lngTHEMECOLOR, system);
  painted.lngTHEMEPANELFONTCOLOR = Translate(theme.lngTHEMEPANELFONTCOLOR, system);
  painted.lngTHEMEBARFONTCOLOR = Translate(theme.lngTHEMEBARFONTCOLOR, system);
  if (!high_contrast) return paint;

  const Colour ground = system.Resolve(kWindow);
  const Colour text = system.Resolve(kWindowText);
  painted.bytTHEMEOPACITY = 255;
  painted.lngTHEMECOLOR = painted.lngTHEMECOLORSUBTLE = painted.lngTHEMECOLORPANEL = ground;
  painted.lngTHEMEPANELFONTCOLOR = painted.lngTHEMEBARFONTCOLOR = text;
  paint.chrome = {ground, text, {ground, ground}, 0};
  return paint;
}

void PutInterfaceFont(WidgetPaint& paint, std::wstring_view face) {
  if (face.empty()) return;
  for (std::wstring* font :
       {&paint.theme.strTHEMEPANELFONTNAME, &paint.theme.strTHEMEBARFONTNAME}) {
    if (*font == kDefaultThemeFont) *font = face;
  }
}

ColourPair ButtonColours(const WidgetPaint& paint, ButtonLook look, const SystemColours& system) {
  if (!paint.high_contrast) return ButtonColours(paint.theme, look, system);
  const int face = look == ButtonLook::kPressed ? kHighlight : kButtonFace;
  const int outline = look == ButtonLook::kNormal ? kButtonText : kHighlight;
  return {system.Resolve(face), system.Resolve(outline)};
}

ColourPair SeenOnPanel(const WidgetPaint& paint, const ColourPair& button) {
  constexpr double kVisibleFace = 1.1;
  const bool lost = ContrastRatio(button.first, paint.chrome.ground) < kVisibleFace;
  return {button.first, lost ? paint.chrome.border : button.second};
}

ColourPair CardColours(const WidgetPaint& paint, const SystemColours& system) {
  constexpr int kFaceWeight = 96;     // of a button's face against the ground
  constexpr int kOutlineWeight = 96;  // of the border against the card
  if (paint.high_contrast) return {paint.chrome.ground, paint.chrome.border};
  const Colour button = ButtonColours(paint.theme, ButtonLook::kNormal, system).first;
  const Colour face = Blend(button, paint.chrome.ground, kFaceWeight, system);
  return {face, Blend(paint.chrome.border, face, kOutlineWeight, system)};
}

ColourPair BarButtonColours(const WidgetPaint& paint, ButtonLook look, bool closes,
                            const SystemColours& system) {
  if (!paint.high_contrast) {
    const Colour bar = paint.chrome.bar.first;
    if (look == ButtonLook::kNormal) return {bar, bar};
    if (closes) return look == ButtonLook::kHover ? kCloseHover : kClosePressed;
  }
  return ButtonColours(paint, look, system);
}

}  // namespace varnel

// The part of the calculator's form that places and paints.
#include <algorithm>

#include "base/image.h"
#include "base/rounded_box.h"
#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "widgets/calculator/calculator_form.h"
#include "win/graphics/font_measure.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kLeastNumberHeight = 11;
constexpr int kLeastKeyFont = 9;
constexpr int kLogFontHeight = 13;
constexpr int kMostLogFontHeight = 22;
constexpr int kLogMargin = 4;
constexpr int kRowSideRoom = 4;
constexpr int kLeastRowFont = 10;
constexpr int kLeastSumWidth = 28;
constexpr double kWellRadius = 4;

// How much of a colour is kept by what has to stand out from it a little, plainly, and most.
constexpr int kSunk = 232;
constexpr int kOutstanding = 225;
constexpr int kMostOutstanding = 185;
constexpr int kHalf = 128;

constexpr std::wstring_view kBeforeResult = L"= ";

int FaceWeight(CalculatorKey key) {
  if (key < CalculatorKey::kAdd) return 255;
  return key == CalculatorKey::kEquals ? kMostOutstanding : kOutstanding;
}

}  // namespace

void CalculatorForm::RefreshContent() {
  lbl01234567890_.SetText(engine_.display());
  lblDISPLAYFUNC_.SetText(engine_.indicator());
  PlaceNumber();
}

// In high contrast everything keeps its colour.
Colour CalculatorForm::Toned(Colour colour, int weight) const {
  return paint().high_contrast ? colour : varnel::Toned(colour, weight);
}

Colour CalculatorForm::WellColour() const {
  return Toned(chrome().ground, kSunk);
}

void CalculatorForm::LayOutPanel(const Rect& panel) {
  places_ = LayOutCalculator({panel.width(), panel.height()}, dpi(), history_shown_);
  PlaceDisplay();
  PlaceKeys();
  PlaceLog();
}

// The number shrinks until it fits; one that never does is seen from its first digit on, and the
// wheel scrolls it.
void CalculatorForm::PlaceNumber() {
  const std::wstring& text = engine_.display();
  const FontMeasure measure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, false);
  const Rect box = Inset(places_.number, 1);
  const int side_room = HaloRoom(dpi());
  const int room = box.width() - 2 * side_room;
  const int least = Scaled(kLeastNumberHeight, dpi());
  const int fitting = FittingHeight(text, {room, box.height()}, box.height(), measure);
  TextStyle style = PanelTextStyle(std::max(fitting, least));
  style.ground = WellColour();
  style.align = Align::kRight;
  style.side_room = side_room;
  lbl01234567890_.Place(Within(layout().pfrPANEL, box), style);
  lbl01234567890_.Show(!box.empty());

  const int width = fitting < least ? measure.Measure(text, least).width : 0;
  const int units = static_cast<int>(text.size());
  units_beyond_ = width > room ? units - units * room / width : 0;
  ScrollDisplay(-first_unit_);
}

void CalculatorForm::ScrollDisplay(int units) {
  first_unit_ = std::clamp(first_unit_ + units, 0, units_beyond_);
  lbl01234567890_.ScrollTo(static_cast<std::size_t>(first_unit_));
}

void CalculatorForm::PlaceDisplay() {
  PlaceNumber();
  const auto place = [this](ThemedLabel& label, const Rect& box, Align align, int font_height) {
    TextStyle style = PanelTextStyle(std::max(1, font_height));
    style.ground = WellColour();
    style.align = align;
    label.Place(Within(layout().pfrPANEL, box), style);
    label.Show(!box.empty());
  };
  const Rect indicator = Inset(places_.indicator, 1);
  place(lblDISPLAYFUNC_, indicator, Align::kCentre,
        std::min(indicator.height() * 3 / 5, indicator.width()));
  const Rect secondary = Inset(places_.secondary, 1);
  place(lblSUB_, secondary, Align::kRight, secondary.height() * 4 / 5);
}

void CalculatorForm::PlaceKeys() {
  const Rect& smallest = places_.KeyPlace(CalculatorKey::kDelete);
  const FontMeasure measure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, false);
  key_font_height_ =
      FittingHeight(KeyFace(CalculatorKey::kDelete), {smallest.width() * 4 / 5, smallest.height()},
                    std::max(smallest.height() * 3 / 5, Scaled(kLeastKeyFont, dpi())), measure);
  const std::vector<CalculatorKey> keys = ReadingOrder(places_);
  for (const CalculatorKey key : keys) {
    buttons().Place(ButtonOf(key), Within(layout().pfrPANEL, places_.KeyPlace(key)));
  }
  if (keys != tab_order_) OrderKeys(keys);
}

// Tab goes from key to key as they are read.
void CalculatorForm::OrderKeys(const std::vector<CalculatorKey>& keys) {
  tab_order_ = keys;
  HWND former = lblSUB_.handle();
  for (const CalculatorKey key : keys) {
    const TextButton* button = buttons().Find(ButtonOf(key));
    if (!button) continue;
    ::SetWindowPos(button->handle, former, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    former = button->handle;
  }
}

void CalculatorForm::PlaceLog() {
  const Rect place = Inset(Within(layout().pfrPANEL, places_.log), Scaled(kLogMargin, dpi()));
  const int font_height = std::clamp(place.width() / 18, Scaled(kLogFontHeight, dpi()),
                                     Scaled(kMostLogFontHeight, dpi()));
  SideListLook look{PanelTextStyle(font_height)};
  look.text.ground = WellColour();
  const ButtonLook chosen = paint().high_contrast ? ButtonLook::kPressed : ButtonLook::kNormal;
  const Colour face = ButtonColours(paint(), chosen, services().colours).first;
  const Colour toned = Toned(face, kMostOutstanding);
  const Colour well = look.text.ground;
  look.selected = ContrastRatio(face, well) > ContrastRatio(toned, well) ? face : toned;
  look.selected_without_focus = Blend(look.selected, well, kHalf, services().colours);
  // What cannot be seen must not have the focus.
  if (places_.log.empty() && lvwFILES_.HasFocus()) ::SetFocus(::GetDlgItem(handle(), lblEQUALS));
  lvwFILES_.Place(places_.log.empty() ? Rect{} : place, look);
}

// The results stand in a column at the right. A line too long becomes smaller, then its sum is cut,
// not its result.
void CalculatorForm::PaintRow(Surface& surface, const SideRow& row) {
  PaintRowGround(surface, row);
  const std::wstring text = log_.Line(row.index);
  const std::size_t equals = text.find(kBeforeResult);
  const std::size_t result_at =
      equals == std::wstring::npos ? text.size() : equals + kBeforeResult.size();
  TextStyle style = row.text;
  style.side_room = Scaled(kRowSideRoom, dpi());
  const FontMeasure measure(ui().fonts, style.font.face, false);
  Rect box = row.box;
  const int room = box.width() - 3 * style.side_room;
  if (measure.Measure(text, style.font.height).width > room) {
    style.font.height =
        std::max(FittingHeight(text, {room, box.height()}, style.font.height, measure),
                 Scaled(kLeastRowFont, dpi()));
  }
  if (result_at < text.size()) {
    const std::wstring result = text.substr(result_at);
    style.align = Align::kRight;
    PaintText(ui(), surface, box, result, style);
    box.right -= measure.Measure(result, style.font.height).width + style.side_room;
  }
  if (box.width() >= Scaled(kLeastSumWidth, dpi())) {
    style.align = Align::kLeft;
    PaintText(ui(), surface, box, text.substr(0, result_at), style);
  }
}

void CalculatorForm::PaintPanel(Surface& surface, const Rect& panel) {
  const double radius = kWellRadius * dpi() / kDefaultDpi;
  for (const Rect& well : {places_.box, places_.log}) {
    if (well.empty()) continue;
    DrawRoundedBox(surface.pixels(), surface.size(), Within(panel, well), radius,
                   OpaquePixel(WellColour()), OpaquePixel(chrome().border));
  }
}

void CalculatorForm::DrawPanelButton(const ButtonPainting& painting) {
  const auto key = KeyOf(painting.button.id);
  if (!key) return;
  ButtonPainting toned = painting;
  toned.colours.first = Toned(painting.colours.first, FaceWeight(*key));
  toned.colours = SeenOnPanel(paint(), toned.colours);
  PaintButtonFace(toned, dpi());
  TextStyle style = PanelTextStyle(key_font_height_);
  // The keys read as one, and those of the digits have the palest faces.
  style.prefer_ink = ContrastRatio(style.colour, painting.colours.first) < kSmallInkContrast;
  style.ground = toned.colours.first;
  PaintText(ui(), painting.surface, painting.bounds, std::wstring(KeyFace(*key)), style);
}

}  // namespace varnel

// The part of the boards' forms that makes, places and paints pens and tools.
#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "base/number_text.h"
#include "base/rounded_box.h"
#include "frame/frame_painter_win.h"
#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "widgets/boards/board_form.h"
#include "win/graphics/font_measure.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kDot = 14;
constexpr int kRing = 20;
constexpr int kStripGap = 12;
constexpr int kLineLength = 14;
constexpr int kMostLine = 10;  // its height
constexpr double kCornerRadius = 4;
constexpr double kSeen = 1.6;     // the contrast from which on a dot stands out from its ground
constexpr double kMiddle = 0.18;  // the luminance that black and white stand out from alike
constexpr int kHalf = 128;
constexpr int kMostly = 200;
constexpr Colour kGray = 0xA0A0A0;

Colour InkOn(Colour ground) {
  return RelativeLuminance(ground) > kMiddle ? kBlack : kWhite;
}

Rect Centred(const Rect& box, Size size) {
  return RectAt(
      {box.left + (box.width() - size.width) / 2, box.top + (box.height() - size.height) / 2},
      size);
}

}  // namespace

void BoardForm::OnLoad() {
  title_label_.Load(handle(), traits_.title_label);
  for (int i = 0; i < kPens; ++i) {
    const std::wstring name = ElementName(NameOf(L"PENSUB"), static_cast<std::size_t>(i));
    commands().AddTool(cmdPEN + i, commands().OfName(name));
  }
  commands().AddTool(cmdPENS, commands().OfName(NameOf(L"PENS")));
  buttons().TellChecks([this](int id) {
    const bool chosen = id == cmdPEN + std::min(board_.PenColorIndex(), kEraser);
    return chosen ? ButtonCheck::kOn : ButtonCheck::kOff;
  });
  picMAINBOARD_.Load(handle(), picMAINBOARD, L"Board");
  pen_label_.Load(handle(), traits_.pen_label);
  ::DragAcceptFiles(handle(), TRUE);
  const Settings& settings = services().settings;
  board_.SetPen(static_cast<int>(ReadNumber(settings, traits_.pen, 0, 1'000'000)));
  board_.SetPenWidth(static_cast<int>(ReadNumber(settings, traits_.pen_width, 0, 1'000)));
}

void BoardForm::OnUnload() {
  tmrDRAW_.Stop();
  draft_timer_.Stop();
}

// --- pens

void BoardForm::SetPen(int index) {
  picMAINBOARD_.EndStroke();
  picMAINBOARD_.Repaint(board_.SetPen(index));
  RefreshContent();
  for (const TextButton& button : buttons().all()) {
    if (!button.on_bar) buttons().Repaint(button.id);
  }
}

void BoardForm::SetPenWidth(int pixels) {
  board_.SetPenWidth(pixels);
  services().settings.Write(traits_.pen_width, NumberText(board_.pen_width()));
  RefreshContent();
  buttons().Repaint(traits_.width_tool);
}

std::wstring BoardForm::PenText() const {
  if (board_.PenColorIndex() >= kEraser) return L"erase";
  const auto width = std::ranges::find(kPenWidths, board_.pen_width(), &PenWidth::pixels);
  std::wstring colour(board_.PenColorName());
  for (wchar_t& letter : colour) {
    if (letter >= L'A' && letter <= L'Z') letter += L'a' - L'A';
  }
  return std::wstring(width->name) + L" " + colour + L" pen";
}

void BoardForm::RefreshContent() {
  commands().RefreshTools();
  PlacePenLabel();
}

// --- places

void BoardForm::PlaceButton(int id, const Rect& box) {
  const TextButton* button = buttons().Find(id);
  if (!button) return;
  buttons().Place(id, box);
  // What cannot be seen must not be reached by Tab.
  ::ShowWindow(button->handle, box.empty() ? SW_HIDE : SW_SHOWNA);
}

void BoardForm::PlacePens(const Rect& panel, const std::array<Rect, kPens>& pens,
                          const Rect& pen_menu) {
  const auto place = [&](int id, const Rect& box) {
    PlaceButton(id, box.empty() ? Rect{} : Within(panel, box));
  };
  for (int i = 0; i < kPens; ++i) place(cmdPEN + i, pens[static_cast<std::size_t>(i)]);
  place(cmdPENS, pen_menu);
}

void BoardForm::PlaceTitle(const std::wstring& title) {
  title_label_.SetText(title);
  title_label_.PlaceOnBar(layout(), paint(), dpi());
}

// At the right end of the strip, where the status leaves it room.
void BoardForm::PlacePenLabel() {
  TextStyle style = StripTextStyle(paint(), dpi());
  style.align = Align::kRight;
  const FontMeasure measure(ui().fonts, style.font.face, false);
  const std::wstring text = PenText();
  Rect box = layout().status_text;
  box.top += 1;  // below the line that the frame draws
  const int width = measure.Measure(text, style.font.height).width + 2 * HaloRoom(dpi());
  const int status = measure.Measure(StripText(), style.font.height).width;
  const bool room = status + Scaled(kStripGap, dpi()) + width <= box.width();
  box.left = std::max(box.left, box.right - width);
  pen_label_.SetText(text);
  pen_label_.Place(box, style);
  pen_label_.Show(room && !box.empty());
}

BoardSurfaceLook BoardForm::SurfaceLook() const {
  BoardSurfaceLook look;
  // The bars lie on the board's frame, which is white on every theme.
  const Colour thumb = ButtonColours(paint(), ButtonLook::kNormal, services().colours).first;
  look.thumb = ContrastRatio(thumb, kWhite) >= kSeen ? thumb : kGray;
  look.dpi = dpi();
  return look;
}

// --- painting

void BoardForm::PaintBoardFrame(Surface& surface, const Rect& frame) const {
  if (frame.empty()) return;
  DrawRoundedBox(surface.pixels(), surface.size(), frame, kCornerRadius * dpi() / kDefaultDpi,
                 OpaquePixel(kWhite), OpaquePixel(chrome().border));
}

void BoardForm::Dot(Surface& surface, const Rect& box, int diameter, Colour face,
                    Colour outline) const {
  const int side = Scaled(diameter, dpi());
  DrawRoundedBox(surface.pixels(), surface.size(), Centred(box, {side, side}), side / 2.0,
                 OpaquePixel(face), OpaquePixel(outline));
}

void BoardForm::DrawPen(const ButtonPainting& painting, int pen) {
  const bool lit = painting.look != ButtonLook::kNormal || painting.focused;
  if (lit) PaintButtonFace(painting, dpi());
  const Colour under = lit ? painting.colours.first : chrome().ground;
  const Colour ink = InkOn(under);
  const Colour colour = PenAt(pen).colour;
  if (board_.PenColorIndex() == pen || painting.button.id == cmdPENS) {
    const Colour ring = Blend(ink, under, kMostly, services().colours);
    Dot(painting.surface, painting.bounds, kRing, under, ring);
    Dot(painting.surface, painting.bounds, kRing - 2, under, ring);
  }
  const bool lost = ContrastRatio(colour, under) < kSeen;
  Dot(painting.surface, painting.bounds, kDot, colour,
      lost ? Blend(ink, colour, kHalf, services().colours) : colour);
}

// A line as thick as the pen, as far as the button has room.
void BoardForm::DrawWidth(const ButtonPainting& painting) {
  TextStyle style = PanelTextStyle(Scaled(kGlyphHeight, dpi()));
  style.ground = painting.colours.first;
  const Colour ink = WritingOf(style).colour;
  const int thick = std::max(1, Scaled(std::min(board_.pen_width(), kMostLine), dpi()));
  const Rect line = Centred(painting.bounds, {Scaled(kLineLength, dpi()), thick});
  DrawRoundedBox(painting.surface.pixels(), painting.surface.size(), line, thick / 2.0,
                 OpaquePixel(ink), OpaquePixel(ink));
}

void BoardForm::DrawTool(const ButtonPainting& painting, bool on) {
  const int id = painting.button.id;
  if (id >= cmdPEN && id < cmdPEN + kEraser) return DrawPen(painting, id - cmdPEN);
  if (id == cmdPENS) return DrawPen(painting, std::min(board_.PenColorIndex(), kEraser));
  ButtonPainting shown = painting;
  if (on || (id == cmdPEN + kEraser && board_.PenColorIndex() >= kEraser)) {
    shown.colours =
        SeenOnPanel(paint(), ButtonColours(paint(), ButtonLook::kPressed, services().colours));
  }
  PaintButtonFace(shown, dpi());
  if (id == traits_.width_tool) return DrawWidth(shown);
  TextStyle style = PanelTextStyle(Scaled(kGlyphHeight, dpi()));
  style.font.face = kIconFontName;
  style.ground = shown.colours.first;
  style.faint = !painting.enabled;
  PaintText(ui(), painting.surface, painting.bounds, std::wstring(1, painting.button.glyph), style);
}

}  // namespace varnel

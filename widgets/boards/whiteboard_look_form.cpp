// The part of the whiteboard's form that makes, places and paints.
#include <windows.h>

#include <shellapi.h>

#include <algorithm>

#include "base/number_text.h"
#include "base/rounded_box.h"
#include "frame/frame_painter_win.h"
#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "widgets/boards/board_settings.h"
#include "widgets/boards/whiteboard_form.h"
#include "win/font_measure.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kGlyphHeight = 16;
constexpr int kDot = 14;
constexpr int kRing = 20;
constexpr int kNameHeight = 12;
constexpr int kBoardInset = 2;
constexpr int kStripGap = 12;
constexpr int kLineLength = 14;
constexpr double kCornerRadius = 4;
constexpr double kSeen = 1.6;  // the contrast from which on a dot stands out from its ground
constexpr int kHalf = 128;
constexpr int kToned = 215;       // how much of the panel's ground is left in a chosen card
constexpr double kMiddle = 0.18;  // the luminance as far from black as from white
constexpr Colour kGray = 0xA0A0A0;

constexpr wchar_t kPenGlyph = L'\xE239';
constexpr wchar_t kEraserGlyph = L'\xE232';
constexpr wchar_t kUnknownGlyph = L'\xE20A';

struct ToolFace {
  const wchar_t* word;
  wchar_t glyph;
};
// In the order of BoardTool.
constexpr ToolFace kToolFaces[kBoardTools] = {
    {L"Pen width", L'\xE236'},     {L"Insert text", L'\xE233'}, {L"Insert a picture", L'\xE234'},
    {L"Undo", L'\xE222'},          {L"Redo", L'\xE223'},        {L"New board", L'\xE214'},
    {L"List of boards", L'\xE226'}};

constexpr const wchar_t* kPenWords[kPens] = {L"Black pen",  L"Red pen",   L"Orange pen",
                                             L"Yellow pen", L"Green pen", L"Blue pen",
                                             L"Purple pen", L"Eraser"};

int ToolId(BoardTool tool) {
  return cmdBOARDTOOL + static_cast<int>(tool);
}

}  // namespace

void WhiteboardForm::OnLoad() {
  link_.widget = this;
  lblWhiteboard_.Load(handle(), lblWhiteboard);
  for (int i = 0; i < kPens; ++i) {
    buttons().Add(cmdPEN + i, kPenWords[i], i == kEraser ? kEraserGlyph : kPenGlyph, false);
  }
  buttons().Add(cmdPENS, L"Pens", kPenGlyph, false);
  for (std::size_t i = 0; i < kBoardTools; ++i) {
    buttons().Add(cmdBOARDTOOL + static_cast<int>(i), kToolFaces[i].word, kToolFaces[i].glyph,
                  false);
  }
  lvwFILES_.Load(handle(), lvwFILES, L"Boards", SideListKind::kDocuments);
  picMAINBOARD_.Load(handle(), picMAINBOARD, L"Board");
  lblTestfrmWBDwg_.Load(handle(), lblTestfrmWBDwg);
  ::DragAcceptFiles(handle(), TRUE);
  const Settings& settings = services().settings;
  board_.SetPen(static_cast<int>(ReadNumber(settings, kBoardPen, 0, 1'000'000)));
  board_.SetPenWidth(static_cast<int>(ReadNumber(settings, kBoardPenWidth, 0, 1'000)));
  list_wanted_ = ReadFlag(settings, kBoardList);
  const Rect area = client();
  LayOutPanel(LayOutFrame({area.width(), area.height()}, dpi()).pfrPANEL);
  FolderChanged();
}

void WhiteboardForm::OnUnload() {
  link_.widget = nullptr;
  watch_.Watch({});
  tmrDRAW_.Stop();
  draft_timer_.Stop();
  thumbnail_timer_.Stop();
}

// --- places

void WhiteboardForm::LayOutPanel(const Rect& panel) {
  places_ = LayOutWhiteboard({panel.width(), panel.height()}, dpi(), list_wanted_);
  PlaceTools(panel);
  PlaceList(panel);
  board_.Fit(ViewSize());
  BoardSurfaceLook look;
  // They lie on the board's frame, which is white on every theme.
  const Colour thumb = ButtonColours(paint(), ButtonLook::kNormal, services().colours).first;
  look.thumb = ContrastRatio(thumb, kWhite) >= kSeen ? thumb : kGray;
  look.dpi = dpi();
  const Rect document = Within(panel, places_.document);
  picMAINBOARD_.Place(places_.document.empty() ? Rect{} : Inset(document, kBoardInset), look);
  lblWhiteboard_.PlaceOnBar(layout(), paint(), dpi());
  PlaceIndicator();
}

void WhiteboardForm::PlaceTools(const Rect& panel) {
  const auto place = [&](int id, const Rect& box) {
    const TextButton* button = buttons().Find(id);
    if (!button) return;
    buttons().Place(id, box.empty() ? Rect{} : Within(panel, box));
    // What cannot be seen must not be reached by Tab.
    ::ShowWindow(button->handle, box.empty() ? SW_HIDE : SW_SHOWNA);
  };
  for (int i = 0; i < kPens; ++i) place(cmdPEN + i, places_.pens[static_cast<std::size_t>(i)]);
  place(cmdPENS, places_.pen_menu);
  for (std::size_t i = 0; i < kBoardTools; ++i) {
    place(cmdBOARDTOOL + static_cast<int>(i), places_.tools[i]);
  }
}

void WhiteboardForm::PlaceList(const Rect& panel) {
  SideListLook look{PanelTextStyle(Scaled(kNameHeight, dpi()))};
  const Colour ground = chrome().ground;
  const Colour face = ButtonColours(paint(), ButtonLook::kPressed, services().colours).first;
  const Colour toned = Blend(ground, RelativeLuminance(ground) > kMiddle ? kBlack : kWhite, kToned,
                             services().colours);
  look.selected = ContrastRatio(face, ground) > ContrastRatio(toned, ground) ? face : toned;
  look.selected_without_focus = look.selected;
  look.row_height = BoardRowHeight(dpi());
  if (places_.side_list.empty() && lvwFILES_.HasFocus()) ::SetFocus(picMAINBOARD_.handle());
  lvwFILES_.Place(places_.side_list.empty() ? Rect{} : Within(panel, places_.side_list), look);
}

std::wstring WhiteboardForm::PenText() const {
  if (board_.PenColorIndex() >= kEraser) return L"erase";
  const auto width = std::ranges::find(kPenWidths, board_.pen_width(), &PenWidth::pixels);
  std::wstring text = std::wstring(width->name) + L" " + std::wstring(board_.PenColorName());
  std::ranges::transform(text.begin() + 1, text.end(), text.begin() + 1, [](wchar_t letter) {
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter + 32) : letter;
  });
  return text + L" pen";
}

// At the right end of the strip, where the status leaves it room.
void WhiteboardForm::PlaceIndicator() {
  TextStyle style = StripTextStyle(paint(), dpi());
  style.align = Align::kRight;
  const FontMeasure measure(style.font.face, false);
  const std::wstring text = PenText();
  Rect box = layout().status_text;
  box.top += 1;  // below the line that the frame draws
  const int width = measure.Measure(text, style.font.height).width + 2 * HaloRoom(dpi());
  const int status = measure.Measure(StatusText(), style.font.height).width;
  const bool room = status + Scaled(kStripGap, dpi()) + width <= box.width();
  box.left = std::max(box.left, box.right - width);
  lblTestfrmWBDwg_.SetText(text);
  lblTestfrmWBDwg_.Place(box, style);
  lblTestfrmWBDwg_.Show(room && !box.empty());
}

void WhiteboardForm::RefreshContent() {
  const std::wstring name = whiteboard_.name();
  lblWhiteboard_.SetText(name);
  ::SetWindowTextW(handle(), (name + L" - " + std::wstring(entry().title)).c_str());
  buttons().Enable(ToolId(BoardTool::kUndo), board_.CanUndo());
  buttons().Enable(ToolId(BoardTool::kRedo), board_.CanRedo());
  PlaceIndicator();
}

std::wstring WhiteboardForm::StatusText() const {
  if (!whiteboard_.trouble().empty()) return whiteboard_.trouble();
  if (board_.floating()) return L"Click or Enter puts it down, Esc drops it";
  if (board_.BoardModified()) return L"Not saved yet";
  const std::size_t count = whiteboard_.boards().count();
  if (count == 0) return L"No boards yet";
  return NumberText(static_cast<long long>(count)) + (count == 1 ? L" board" : L" boards");
}

// --- painting

void WhiteboardForm::PaintPanel(Surface& surface, const Rect& panel) {
  if (places_.document.empty()) return;
  DrawRoundedBox(surface.pixels(), surface.size(), Within(panel, places_.document),
                 kCornerRadius * dpi() / kDefaultDpi, OpaquePixel(kWhite),
                 OpaquePixel(chrome().border));
}

void WhiteboardForm::Dot(Surface& surface, const Rect& box, int diameter, Colour face,
                         Colour outline) const {
  const int side = Scaled(diameter, dpi());
  const Rect place = RectAt(
      {box.left + (box.width() - side) / 2, box.top + (box.height() - side) / 2}, {side, side});
  DrawRoundedBox(surface.pixels(), surface.size(), place, side / 2.0, OpaquePixel(face),
                 OpaquePixel(outline));
}

void WhiteboardForm::DrawPen(const ButtonPainting& painting, int pen) {
  const Colour ground = chrome().ground;
  const bool hovered = painting.look != ButtonLook::kNormal;
  if (hovered || painting.focused) PaintButtonFace(painting, dpi());
  const Colour under = hovered || painting.focused ? painting.colours.first : ground;
  const Colour ink = RelativeLuminance(under) > kMiddle ? kBlack : kWhite;
  const Colour colour = PenAt(pen).colour;
  const bool chosen = board_.PenColorIndex() == pen || painting.button.id == cmdPENS;
  if (chosen) {
    const Colour ring = Blend(ink, under, 200, services().colours);
    Dot(painting.surface, painting.bounds, kRing, under, ring);
    Dot(painting.surface, painting.bounds, kRing - 2, under, ring);
  }
  const bool lost = ContrastRatio(colour, under) < kSeen;
  Dot(painting.surface, painting.bounds, kDot, colour,
      lost ? Blend(ink, colour, kHalf, services().colours) : colour);
}

// A line as thick as the pen, as far as the button has room.
void WhiteboardForm::DrawWidth(const ButtonPainting& painting) {
  TextStyle style = PanelTextStyle(Scaled(kGlyphHeight, dpi()));
  style.ground = painting.colours.first;
  const Colour ink = WritingOf(style).colour;
  const int thick = std::max(1, Scaled(std::min(board_.pen_width(), 10), dpi()));
  const int length = Scaled(kLineLength, dpi());
  const Rect& box = painting.bounds;
  const Rect line =
      RectAt({box.left + (box.width() - length) / 2, box.top + (box.height() - thick) / 2},
             {length, thick});
  DrawRoundedBox(painting.surface.pixels(), painting.surface.size(), line, thick / 2.0,
                 OpaquePixel(ink), OpaquePixel(ink));
}

void WhiteboardForm::DrawPanelButton(const ButtonPainting& painting) {
  const int id = painting.button.id;
  if (id >= cmdPEN && id < cmdPEN + kEraser) return DrawPen(painting, id - cmdPEN);
  if (id == cmdPENS) return DrawPen(painting, std::min(board_.PenColorIndex(), kEraser));
  ButtonPainting shown = painting;
  const bool on = (id == cmdPEN + kEraser && board_.PenColorIndex() >= kEraser) ||
                  (id == ToolId(BoardTool::kList) && list_wanted_) ||
                  (id == ToolId(BoardTool::kText) && board_.BoardMode() == L"TEXT") ||
                  (id == ToolId(BoardTool::kPicture) && board_.BoardMode() == L"PICTURE");
  if (on) {
    shown.colours =
        SeenOnPanel(paint(), ButtonColours(paint(), ButtonLook::kPressed, services().colours));
  }
  PaintButtonFace(shown, dpi());
  if (id == ToolId(BoardTool::kPenWidth)) return DrawWidth(shown);
  TextStyle style = PanelTextStyle(Scaled(kGlyphHeight, dpi()));
  style.font.face = kIconFontName;
  style.ground = shown.colours.first;
  style.faint = !painting.enabled;
  PaintText(ui(), painting.surface, painting.bounds, std::wstring(1, painting.button.glyph), style);
}

void WhiteboardForm::PaintRow(Surface& surface, const SideRow& row) {
  const DocumentFolder& boards = whiteboard_.boards();
  if (row.index >= boards.count()) return;
  const BoardRow parts = LayOutBoardRow(row.box, dpi());
  const ColourPair card = CardColours(paint(), services().colours);
  const double radius = kCornerRadius * dpi() / kDefaultDpi;
  TextStyle style = row.text;
  if (!row.selected) style.ground = card.first;
  const auto pixels = surface.pixels();
  DrawRoundedBox(pixels, surface.size(), parts.card, radius, OpaquePixel(style.ground),
                 OpaquePixel(row.current && !row.selected ? kBlack : card.second));
  DrawRoundedBox(pixels, surface.size(), parts.picture, radius / 2, OpaquePixel(kWhite),
                 OpaquePixel(card.second));
  const Image* picture = thumbnails_.Find(boards.Name(row.index), boards.Stamp(row.index));
  if (!thumbnail_timer_.enabled()) thumbnail_timer_.Start();
  if (picture && picture->empty()) {
    TextStyle unknown = style;
    unknown.font = {kIconFontName, parts.picture.height() / 2, false};
    unknown.ground = kWhite;
    unknown.colour = kBlack;
    unknown.faint = true;
    PaintText(ui(), surface, parts.picture, std::wstring(1, kUnknownGlyph), unknown);
  } else if (picture) {
    const Rect inside = Inset(parts.picture, 1);
    Surface small({inside.width(), inside.height()});
    FillRectangle(small.dc(), {0, 0, inside.width(), inside.height()}, kWhite);
    PutImage(small,
             {(inside.width() - picture->width()) / 2, (inside.height() - picture->height()) / 2},
             *picture);
    small.CopyTo(surface.dc(), {inside.left, inside.top});
  }
  style.align = Align::kLeft;
  PaintText(ui(), surface, parts.name, RowText(row.index), style);
}

}  // namespace varnel

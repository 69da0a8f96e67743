// The part of the whiteboard's form that makes, places and paints.
#include <oleacc.h>

#include <algorithm>

#include "base/number_text.h"
#include "base/rounded_box.h"
#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "widgets/boards/board_settings.h"
#include "widgets/boards/whiteboard_form.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kNameHeight = 12;
constexpr int kBoardInset = 2;
constexpr double kCornerRadius = 4;
constexpr int kToned = 215;       // how much of the panel's ground is left in a chosen card
constexpr double kMiddle = 0.18;  // the luminance as far from black as from white

constexpr wchar_t kUnknownGlyph = L'\xE20A';

int ToolId(BoardTool tool) {
  return cmdBOARDTOOL + static_cast<int>(tool);
}

}  // namespace

void WhiteboardForm::OnLoad() {
  BoardForm::OnLoad();
  link_.widget = this;
  for (std::size_t i = 0; i < kBoardTools; ++i) {
    const int tool = static_cast<int>(i);
    commands().AddTool(cmdBOARDTOOL + tool, commands().OfTool(tool));
  }
  lvwFILES_.Load(handle(), lvwFILES, L"Boards", SideListKind::kDocuments);
  list_wanted_ = ReadFlag(services().settings, kBoardList);
  const Rect area = client();
  LayOutPanel(LayOutFrame({area.width(), area.height()}, dpi()).pfrPANEL);
  FolderChanged();
}

void WhiteboardForm::OnUnload() {
  link_.widget = nullptr;
  watch_.Watch({});
  thumbnail_timer_.Stop();
  BoardForm::OnUnload();
}

// --- places

void WhiteboardForm::LayOutPanel(const Rect& panel) {
  places_ = LayOutWhiteboard({panel.width(), panel.height()}, dpi(), list_wanted_);
  PlacePens(panel, places_.pens, places_.pen_menu);
  for (std::size_t i = 0; i < kBoardTools; ++i) {
    const Rect& box = places_.tools[i];
    PlaceButton(cmdBOARDTOOL + static_cast<int>(i), box.empty() ? Rect{} : Within(panel, box));
  }
  PlaceList(panel);
  board_.Fit(ViewSize());
  const Rect document = Within(panel, places_.document);
  picMAINBOARD_.Place(places_.document.empty() ? Rect{} : Inset(document, kBoardInset),
                      SurfaceLook());
  PlaceTitle(whiteboard_.name());
  PlacePenLabel();
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

void WhiteboardForm::RefreshContent() {
  const std::wstring name = whiteboard_.name();
  PlaceTitle(name);
  ::SetWindowTextW(handle(), (name + L" - " + std::wstring(entry().title)).c_str());
  BoardForm::RefreshContent();
}

std::wstring WhiteboardForm::StatusText() const {
  if (const std::wstring said = BoardForm::StatusText(); !said.empty()) return said;
  if (board_.BoardModified()) return L"Not saved yet";
  const std::size_t count = whiteboard_.boards().count();
  if (count == 0) return L"No boards yet";
  return NumberText(static_cast<long long>(count)) + (count == 1 ? L" board" : L" boards");
}

AccessibleSource WhiteboardForm::TellBoard() {
  AccessibleSource source;
  source.whole = [this] { return AccessiblePart{whiteboard_.name(), ROLE_SYSTEM_GRAPHIC}; };
  return source;
}

// --- painting

void WhiteboardForm::PaintPanel(Surface& surface, const Rect& panel) {
  if (!places_.document.empty()) PaintBoardFrame(surface, Within(panel, places_.document));
}

void WhiteboardForm::DrawPanelButton(const ButtonPainting& painting) {
  const int id = painting.button.id;
  DrawTool(painting, (id == ToolId(BoardTool::kList) && list_wanted_) ||
                         (id == ToolId(BoardTool::kText) && board_.BoardMode() == L"TEXT") ||
                         (id == ToolId(BoardTool::kPicture) && board_.BoardMode() == L"PICTURE"));
}

// About the name, with the box's own border and a little more.
Rect WhiteboardForm::EditBox(const Rect& row) const {
  constexpr int kRoom = 3;
  return Intersection(Inset(LayOutBoardRow(row, dpi()).name, -Scaled(kRoom, dpi())), row);
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

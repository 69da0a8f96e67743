#include "core/manager_form.h"

#include "base/number_text.h"
#include "core/manager_commands.h"
#include "frame/command_id.h"
#include "resources/control_ids.h"

namespace varnel {
namespace {

constexpr wchar_t kStar = L'\xE200';
constexpr wchar_t kEmptyStar = L'\xE201';

bool IsTile(int id) {
  return id >= lblNUMBER && id < lblNUMBER + kWidgetCount;
}

}  // namespace

ManagerForm::ManagerForm(Services& services, WidgetHost& host)
    : WidgetForm(services, kManagerForm, kManagerIndex, {kManagerCommands}),
      host_(host),
      states_(services.settings, *this) {
  const auto mode = [this](int mode) { return [this, mode] { WidgetSel(mode); }; };
  const auto any_open = [this] { return states_.OpenCount() > 0; };
  commands().Bind({{L"mnuVRNFRONT", mode(0), any_open},
                   {L"mnuVRNARRANGE", mode(3), any_open},
                   {L"mnuVRNCLOSEALL", mode(8), any_open}});
  buttons().TellMore([this](int id) { return IsTile(id) ? SummaryOf(id - lblNUMBER) : L""; });
}

void ManagerForm::OnLoad() {
  for (int i = 0; i < kWidgetCount; ++i) {
    const WidgetEntry& widget = *WidgetAt(i);
    buttons().Add(lblNUMBER + i, std::wstring(widget.title), widget.glyph, false);
    buttons().Enable(lblNUMBER + i, host_.Available(i));
  }
}

void ManagerForm::LayOutPanel(const Rect& panel) {
  const ManagerLayout tiles = LayOutManager(panel, dpi());
  for (int i = 0; i < kWidgetCount; ++i) {
    const Rect& tile = tiles.tiles[i];
    buttons().Place(lblNUMBER + i, tile);
    buttons().TellWord(lblNUMBER + i,
                       LayOutTile({tile.width(), tile.height()}, dpi()).caption.empty());
  }
}

void ManagerForm::DrawPanelButton(const ButtonPainting& painting) {
  const int index = painting.button.id - lblNUMBER;
  const bool open = states_.IsOpen(index);
  const bool in_sight = open && host_.SightOfWidget(index) == Sight::kShown;
  ButtonPainting tile = painting;
  if (!tile.enabled) tile.colours = {chrome().ground, chrome().border};
  PaintButtonFace(tile, dpi());
  const WidgetEntry& widget = *WidgetAt(index);
  const TileLayout parts = LayOutTile({painting.bounds.width(), painting.bounds.height()}, dpi());
  TextStyle style = PanelTextStyle(parts.caption_height);
  style.ground = tile.colours.first;
  style.faint = !tile.enabled;
  // Glyph, caption and star read as one.
  style.prefer_ink = ContrastRatio(style.colour, style.ground) < kSmallInkContrast;
  PaintText(ui(), painting.surface, parts.caption, std::wstring(widget.title), style);
  style.font = {kIconFontName, parts.glyph_height, false};
  PaintText(ui(), painting.surface, parts.glyph,
            std::wstring(1, in_sight ? widget.open_glyph : widget.glyph), style);
  if (!tile.enabled) return;
  style.font.height = parts.star_height;
  PaintText(ui(), painting.surface, parts.lblSTARRED, std::wstring(1, open ? kStar : kEmptyStar),
            style);
}

void ManagerForm::OnControl(int id, int code) {
  if (code == BN_CLICKED && IsTile(id)) OnTile(id - lblNUMBER);
}

bool ManagerForm::SecondClickCounts(int id) const {
  // A double click on a tile wants the widget open, not open and closed again.
  return !IsTile(id);
}

void ManagerForm::OnTile(int index) {
  if (states_.IsOpen(index) && host_.SightOfWidget(index) != Sight::kShown) {
    host_.ShowWidget(index, true);
  } else {
    WidgetCheck(index);
  }
}

void ManagerForm::Mark(int index, bool) {
  ShowSight(index);
  RepaintStatus();
}

void ManagerForm::ShowSight(int index) {
  constexpr std::wstring_view kWords[] = {L" (open)", L" (minimised)", L" (hidden)"};
  const auto sight = static_cast<std::size_t>(host_.SightOfWidget(index));
  // The tile draws what these words say.
  buttons().SetText(
      lblNUMBER + index,
      std::wstring(WidgetAt(index)->title).append(states_.IsOpen(index) ? kWords[sight] : L""));
}

std::wstring ManagerForm::SummaryOf(int index) const {
  const LiveForm* form = services().forms.Find(WidgetAt(index)->form_name);
  return form ? form->Summary() : std::wstring();
}

void ManagerForm::ShowIcons() {
  for (const TextButton& button : buttons().all()) buttons().Repaint(button.id);
}

void ManagerForm::ThemeRefresh() {
  ApplyChrome();
  Form_Resize();
  WidgetRefresh();
  ShowIcons();
}

void ManagerForm::WidgetSel(int mode) {
  switch (mode) {
    case 0:
      host_.BringToFront();
      break;
    case 3:
      host_.ArrangeAll(*this);
      break;
    case 5:
      services().program.RunCommand(CommandId(L"mnuDCWEB"));
      break;
    case 8:
      states_.CloseAll();
      break;
    default:
      states_.WidgetSel(mode);
  }
}

std::wstring ManagerForm::StatusText() const {
  int available = 0;
  for (int i = 0; i < kWidgetCount; ++i) available += host_.Available(i) ? 1 : 0;
  return NumberText(states_.OpenCount()) + L" of " + NumberText(available) + L" open";
}

}  // namespace varnel

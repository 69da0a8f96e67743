// The part of the notes' form that places, shows and paints.
#include <algorithm>

#include "base/image.h"
#include "base/number_text.h"
#include "base/rounded_box.h"
#include "frame/frame_painter_win.h"
#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "widgets/notes/notes_form.h"
#include "widgets/notes/text/note_spacing.h"
#include "win/graphics/font_measure.h"
#include "win/windows/user_look.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kListFont = 12;
constexpr int kTextSide = 6;  // that the text keeps free at the right
constexpr int kPanelFont = 13;
constexpr int kRowHeight = 27;
constexpr int kRowSide = 6;
constexpr int kRowGap = 2;
constexpr int kStripGap = 8;
constexpr double kPaperCorner = 3;
constexpr double kCorner = 4;
constexpr int kHalf = 128;
constexpr int kFullZoom = 100;

constexpr wchar_t kRichGlyph = L'\xE255';
constexpr wchar_t kPlainGlyph = L'\xE21C';

}  // namespace

// --- layout

void NotesForm::LayOutPanel(const Rect& panel) {
  NotesWishes wishes;
  for (int tool = 0; tool < kToolCount; ++tool) {
    wishes.tools.push_back(tool);
  }
  wishes.list = list_wanted_;
  if (const NotePanel* open = OpenPanel()) {
    wishes.panel_rows = [open](int width) { return open->Rows(width); };
  }
  const Rect former = places_.editor;
  places_ = LayOutNotes({panel.width(), panel.height()}, dpi(), wishes);
  lblNotes_.PlaceOnBar(layout(), paint(), dpi());
  PlaceTools(panel);
  PlacePanel(panel);
  PlaceList(panel);
  if (places_.editor != former) {
    PlaceWindow(editor_.handle(), Within(panel, places_.editor));
    editor_.edit().SetMargins(0, Scaled(kTextSide, dpi()));
    editor_.edit().ScrollToCaret();
    // Some versions leave the caret where it stood before the text was wrapped anew.
    const RichRange caret = editor_.edit().Selection();
    if (caret.empty()) editor_.edit().Select(caret);
  }
  ::ShowWindow(editor_.handle(), places_.editor.empty() ? SW_HIDE : SW_SHOWNA);
  if (desk_.notice() == kNoRoom && (!OpenPanel() || !places_.open_panel.empty())) desk_.Tell({});
  ShowNotice();
}

void NotesForm::PlaceTools(const Rect& panel) {
  for (int tool = 0; tool < kToolCount; ++tool) {
    const TextButton* button = buttons().Find(lablTOOLSINS + tool);
    if (!button) continue;
    const Rect& place = places_.tools[static_cast<std::size_t>(tool)];
    buttons().Place(button->id, Within(panel, place));
    ::ShowWindow(button->handle, place.empty() ? SW_HIDE : SW_SHOWNA);
  }
}

void NotesForm::PlacePanel(const Rect& panel) {
  if (panel_font_dpi_ != dpi()) {
    panel_font_ = MakeFont(PanelBoxStyle().font);
    panel_font_dpi_ = dpi();
  }
  for (int tool = 0; tool < kToolCount; ++tool) {
    const auto& tools = panels_[static_cast<std::size_t>(tool)];
    if (!tools) continue;
    const bool open = tool == open_panel_ && !places_.open_panel.empty();
    tools->Place(open ? Within(panel, places_.open_panel) : Rect{});
  }
}

void NotesForm::PlaceList(const Rect& panel) {
  SideListLook look{PanelTextStyle(Scaled(kListFont, dpi()))};
  look.text.align = Align::kLeft;
  look.text.ground = chrome().ground;
  look.selected = ButtonColours(paint(), ButtonLook::kPressed, services().colours).first;
  look.selected_without_focus =
      ButtonColours(paint(), ButtonLook::kNormal, services().colours).first;
  look.row_height = Scaled(kRowHeight, dpi());
  // What cannot be seen must not have the focus.
  const bool search_lost = places_.search.empty() && search_field_.HasFocus();
  if (search_lost || (places_.list.empty() && lvwFILES_.HasFocus())) ::SetFocus(editor_.handle());
  Rect field;
  if (!places_.search.empty()) {
    const Rect box = Within(panel, places_.search);
    field = Inset({box.left + Scaled(4, dpi()), box.top + Scaled(3, dpi()), box.right, box.bottom},
                  Scaled(2, dpi()));
  }
  search_field_.Place(field, PanelBoxStyle());
  lvwFILES_.Place(places_.list.empty() ? Rect{} : Within(panel, places_.list), look);
}

// The counts stand at the left, the line behind them, and at the right what there is to say. Where
// there is no room for both, what there is to say goes first.
void NotesForm::PlaceStrip() {
  const Rect room = layout().status_text;
  TextStyle style = StripTextStyle(paint(), dpi());
  const FontMeasure measure(ui().fonts, style.font.face, false);
  const auto width = [&](HWND label) {
    wchar_t text[400] = {};
    ::GetWindowTextW(label, text, 400);
    return measure.Measure(text, style.font.height).width + Scaled(kStripGap, dpi());
  };
  const int chars = width(lblCHARS_.handle());
  const int line = width(lblLINESTAT_.handle());
  const int notice = width(lblZOOM_.handle()) - Scaled(kStripGap, dpi());
  const bool said = notice > 0;
  const bool alone = said && chars + line + notice > room.width();
  const int top = room.top + 1;  // below the line that the frame draws
  const int end = alone || said ? std::max(room.left, room.right - notice) : room.right;
  int left = room.left;
  style.align = Align::kLeft;
  for (ThemedLabel* label : {&lblCHARS_, &lblLINESTAT_}) {
    const int right = std::min(left + (label == &lblCHARS_ ? chars : line), alone ? left : end);
    const bool whole =
        !alone && (label == &lblCHARS_ || right - left >= line - Scaled(kStripGap, dpi()));
    label->Place({left, top, right, room.bottom}, style);
    label->Show(whole && right > left);
    left = right;
  }
  lblZOOM_.Place({alone ? room.left : end, top, room.right, room.bottom}, style);
  lblZOOM_.Show(said);
}

// --- what is shown

void NotesForm::RefreshContent() {
  // Not before the editor has its place: a long text takes minutes to be wrapped to no width.
  if (!ready_) OpenAtStart();
  TextStatusRefresh();
}

void NotesForm::ShowNote() {
  if (!ready_) return;
  link_.counter = std::max(link_.counter, desk_.document().number());
  const NoteDocument& document = desk_.document();
  lblNotes_.SetText(document.title());
  TellPanels();
  const bool rich = document.type() == NoteType::kRtf;
  commands().RefreshTools();
  // Through its tool, as a click would.
  if (const NotePanel* open = OpenPanel(); open && !rich && !open->ForPlainText()) {
    OnTool(open_panel_);
  }
  RepaintTool(kToolSave);
  ShowList();
  TextStatusRefresh();
  ShowNotice();
}

// Selects the note of the name `selected`, or else the one that is shown.
void NotesForm::ShowList(std::wstring_view selected) {
  if (!ready_) return;
  const DocumentFolder& notes = desk_.notes();
  const auto kept = selected.empty() ? std::nullopt : notes.Find(selected);
  const auto note = kept ? kept : desk_.current();
  const auto row = note ? RowOfNote(*note) : std::nullopt;
  lvwFILES_.ShowRows(RowCount(), row.value_or(0));
  if (row && lvwFILES_.Selected() == std::vector{*row}) return;
  lvwFILES_.SelectNone();
  if (row) lvwFILES_.Select(*row);
}

void NotesForm::Tell(const std::wstring& notice) {
  desk_.Tell(notice);
  notice_timer_.Stop();  // it is to be read as long as any other
  ShowNotice();
}

void NotesForm::ShowNotice() {
  std::wstring text = desk_.notice();
  const int zoom = editor_.edit().Zoom();
  if (text.empty() && zoom != kFullZoom) text = NumberText(zoom) + L" %";
  if (!desk_.notice().empty() && !notice_timer_.enabled()) notice_timer_.Start();
  lblZOOM_.SetText(text);
  PlaceStrip();
}

void NotesForm::TextStatusRefresh() {
  if (editor_.loading()) return;
  if (NotePanel* open = OpenPanel()) open->Refresh();
  ShowCounts();
}

void NotesForm::ShowCounts() {
  const RichRange selection = editor_.edit().Selection();
  const auto at = [](int position) { return static_cast<std::size_t>(std::max(position, 0)); };
  const NoteText& text = editor_.text();
  std::optional<TextCounts> selected;
  if (!selection.empty()) selected = text.Count(at(selection.from), at(selection.to));
  lblCHARS_.SetText(CountStatus(text.Count(), selected));
  lblLINESTAT_.SetText(LineStatus(text.LineEndsBefore(at(editor_.edit().Caret())) + 1,
                                  text.LineEndsBefore(text.size()) + 1));
  PlaceStrip();
}

// --- painting

Colour NotesForm::PaperColour() const {
  return static_cast<Colour>(::GetSysColor(COLOR_WINDOW));
}

TextStyle NotesForm::PanelText() const {
  TextStyle style = PanelTextStyle(Scaled(kPanelFont, dpi()));
  style.ground = CardColours(paint(), services().colours).first;
  return style;
}

TextStyle NotesForm::PanelBoxStyle() const {
  return SystemBoxStyle({InterfaceFont(), Scaled(kPanelFont, dpi()), false});
}

HFONT NotesForm::PanelFont() {
  return panel_font_.get();
}

void NotesForm::PaintPanel(Surface& surface, const Rect& panel) {
  const double unit = dpi() / static_cast<double>(kDefaultDpi);
  const auto box = [&](const Rect& place, const ColourPair& colours, double corner) {
    if (place.empty()) return;
    DrawRoundedBox(surface.pixels(), surface.size(), Within(panel, place), corner * unit,
                   OpaquePixel(colours.first), OpaquePixel(colours.second));
  };
  box(places_.document, {PaperColour(), chrome().border}, kPaperCorner);
  box(places_.search, {PaperColour(), chrome().border}, kPaperCorner);
  if (OpenPanel()) {
    box(places_.open_panel, CardColours(paint(), services().colours), kCorner);
    if (!places_.open_panel.empty()) OpenPanel()->Paint(surface);
  }
}

void NotesForm::PaintRow(Surface& surface, const SideRow& row) {
  const ColourPair card = CardColours(paint(), services().colours);
  TextStyle style = row.text;
  Rect box = row.box;
  box.bottom -= Scaled(2, dpi());
  const double unit = dpi() / static_cast<double>(kDefaultDpi);
  const Colour face = row.selected ? row.text.ground : card.first;
  style.ground = face;
  DrawRoundedBox(surface.pixels(), surface.size(), box, kCorner * unit, OpaquePixel(face),
                 OpaquePixel(row.current ? chrome().border : card.second));
  style.side_room = Scaled(kRowSide, dpi());
  const auto note = NoteOfRow(row.index);
  const std::wstring name = note ? desk_.notes().Name(*note) : std::wstring();
  TextStyle glyph = style;
  glyph.font = {kIconFontName, Scaled(kGlyphHeight, dpi()), false};
  const bool rich = NoteListItemOf(1, {}, name).icon == 1;
  PaintText(ui(), surface, box, std::wstring(1, rich ? kRichGlyph : kPlainGlyph), glyph);
  box.left += Scaled(kGlyphHeight + kRowGap, dpi());
  PaintText(ui(), surface, box, RowText(row.index), style);
}

ButtonCheck NotesForm::CheckOf(int id) const {
  const int tool = id - lablTOOLSINS;
  if (tool >= 0 && tool < kToolCount) {
    const bool on = tool == open_panel_ || (tool == kToolList && list_wanted_);
    return on ? ButtonCheck::kOn : ButtonCheck::kOff;
  }
  const NotePanel* open = OpenPanel();
  return open ? open->CheckOf(id) : ButtonCheck::kOff;
}

void NotesForm::DrawPanelButton(const ButtonPainting& painting) {
  const int id = painting.button.id;
  const int tool = id - lablTOOLSINS;
  const bool is_tool = tool >= 0 && tool < kToolCount;
  NotePanel* open = OpenPanel();
  ButtonPainting shown = painting;
  const ButtonCheck check = CheckOf(id);
  if (!is_tool) {
    FillRectangle(shown.surface.dc(), shown.bounds, CardColours(paint(), services().colours).first);
  }
  if (check == ButtonCheck::kOn && painting.look == ButtonLook::kNormal) {
    shown.colours = ButtonColours(paint(), ButtonLook::kPressed, services().colours);
  }
  PaintButtonFace(shown, dpi());
  TextStyle style = PanelTextStyle(Scaled(shown.button.glyph ? kGlyphHeight : kPanelFont, dpi()));
  if (shown.button.glyph) style.font.face = kIconFontName;
  style.ground = shown.colours.first;
  style.faint = !painting.enabled || check == ButtonCheck::kMixed;
  wchar_t word[64] = {};
  ::GetWindowTextW(shown.button.handle, word, 64);
  PaintText(ui(), shown.surface, shown.bounds,
            shown.button.glyph ? std::wstring(1, shown.button.glyph) : std::wstring(word), style);
  if (!is_tool && open) open->DrawOnButton(shown);
}

}  // namespace varnel

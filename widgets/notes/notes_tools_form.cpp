// The part of the notes' form that works its tools and their panels, and runs the commands of the
// text.
#include <algorithm>

#include "resources/control_ids.h"
#include "widgets/notes/notes_form.h"
#include "widgets/notes/panels/fonts_panel_win.h"
#include "widgets/notes/panels/insert_panel_win.h"
#include "widgets/notes/panels/paragraph_panel_win.h"
#include "widgets/notes/panels/spell_panel_win.h"
#include "widgets/notes/text/note_spacing.h"
#include "win/net/web_page.h"

namespace varnel {
namespace {

constexpr int kZoomStep = 10;
constexpr int kLeastZoom = 20;
constexpr int kMostZoom = 500;

// Tools, and of the title bar's buttons those for menu and minimising.
bool GivesKeyboardBack(int button) {
  const int tool = button - lablTOOLSINS;
  return (tool >= 0 && tool < kToolCount) || button == lablTBARTOP || button == lablTBARTOP + 1;
}

}  // namespace

LRESULT NotesForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lparam);
      if (header.idFrom == lvwFILES) return lvwFILES_.OnNotify(header);
      if (header.idFrom == rtbPAGEBOX) return editor_.edit().OnNotify(header);
      return 0;
    }
    case WM_COMMAND:
      // Whoever clicks a tool, or brings the window back, goes on writing.
      if (HIWORD(wparam) == BN_CLICKED && GivesKeyboardBack(LOWORD(wparam)) &&
          ::GetFocus() == reinterpret_cast<HWND>(lparam)) {
        ::SetFocus(editor_.handle());
      }
      break;
    case WM_CONTEXTMENU:
      if (reinterpret_cast<HWND>(wparam) != editor_.handle()) break;
      ShowEditorMenu(lparam);
      return 0;
    case WM_SETFOCUS:
      WidgetForm::OnMessage(message, wparam, lparam);
      if (::GetFocus() == handle()) ::SetFocus(editor_.handle());
      return 0;
    default:
      break;
  }
  return WidgetForm::OnMessage(message, wparam, lparam);
}

// --- tools and their panels

void NotesForm::OnControl(int id, int code) {
  if (id == rtbPAGEBOX) {
    editor_.edit().OnCommand(code);
    return;
  }
  if (id == txtSEARCHNOTES) {
    if (code == EN_CHANGE) StartSearch();
    return;
  }
  if (NotePanel* open = OpenPanel()) open->OnControl(id, code);
}

NotePanel* NotesForm::OpenPanel() const {
  return open_panel_ == kNoPanel ? nullptr : panels_[static_cast<std::size_t>(open_panel_)].get();
}

void NotesForm::OnTool(int tool) {
  if (tool == open_panel_) {
    ClosePanel();
  } else {
    ShowPanel(tool);
  }
}

bool NotesForm::MayOpen(int tool) const {
  const auto& panel = panels_[static_cast<std::size_t>(tool)];
  return panel && (editor_.rich() || panel->ForPlainText());
}

void NotesForm::ShowPanel(int tool) {
  if (!MayOpen(tool)) return;
  NotePanel* panel = panels_[static_cast<std::size_t>(tool)].get();
  if (tool != open_panel_) {
    open_panel_ = tool;
    panel->OnOpened();
    Form_Resize();
    panel->Refresh();
    for (int i = 0; i < kToolCount; ++i) RepaintTool(i);
  }
  if (places_.open_panel.empty()) {
    Tell(kNoRoom);
  } else {
    panel->TakeFocus();
  }
}

void NotesForm::ClosePanel() {
  const NotePanel* panel = OpenPanel();
  if (!panel) return;
  const bool had_focus = panel->Has(::GetFocus());
  open_panel_ = kNoPanel;
  Form_Resize();
  for (int i = 0; i < kToolCount; ++i) RepaintTool(i);
  if (had_focus) ::SetFocus(editor_.handle());
}

void NotesForm::ToggleList() {
  list_wanted_ = !list_wanted_;
  RepaintTool(kToolList);
  Form_Resize();
}

void NotesForm::AfterCommand() {
  Formatted();
  ::SetFocus(editor_.handle());
}

// --- the commands of the text

// A command of formats was done.
void NotesForm::Formatted() {
  if (!editor_.rich()) return;
  OnEdited();
  TextStatusRefresh();
}

void NotesForm::NamedSpacingSet(int named) {
  const NamedSpacing& spacing = kNamedSpacings.at(static_cast<std::size_t>(named));
  const RichParagraph now = formats_.paragraph();
  formats_.TextLineSpacingSet(spacing.rule, spacing.line, now.space_before.value_or(0) / 50.0,
                              now.space_after.value_or(0) / 50.0);
  Formatted();
}

void NotesForm::TextCut() {
  ::SendMessageW(editor_.handle(), WM_CUT, 0, 0);
}

void NotesForm::TextCopy() {
  ::SendMessageW(editor_.handle(), WM_COPY, 0, 0);
}

void NotesForm::RefreshAll() {
  SideBarRefresh();
  ::InvalidateRect(editor_.handle(), nullptr, TRUE);
}

// --- the rest

void NotesForm::ShowCountsInStrip() {
  editor_.TakeText();
  desk_.Tell({});
  ShowCounts();
  ShowNotice();
}

void NotesForm::OnAddress(const std::wstring& address) {
  OpenAddress(handle(), address);
}

void NotesForm::OnZoom(int notches) {
  RichEdit& edit = editor_.edit();
  edit.SetZoom(std::clamp(edit.Zoom() + notches * kZoomStep, kLeastZoom, kMostZoom));
  ShowNotice();
}

void NotesForm::AddTool(int tool) {
  commands().AddTool(lablTOOLSINS + tool, commands().OfTool(tool));
}

void NotesForm::RepaintTool(int tool) {
  buttons().Repaint(lablTOOLSINS + tool);
}

void NotesForm::LoadPanels() {
  NotePanelHost& host = *this;
  const auto add = [this](int tool, std::unique_ptr<NotePanel> panel) {
    AddTool(tool);
    panel->Load();
    panels_[static_cast<std::size_t>(tool)] = std::move(panel);
  };
  add(kToolFonts, std::make_unique<FontsPanel>(host));
  add(kToolParagraph, std::make_unique<ParagraphPanel>(host));
  auto find = std::make_unique<FindPanel>(host, edited_);
  pfrFIND_ = find.get();
  add(kToolFind, std::move(find));
  add(kToolSpelling, std::make_unique<SpellPanel>(host, edited_, spelling_.checker()));
  add(kToolText, std::make_unique<TextPanel>(host));
  add(kToolPicture, std::make_unique<PicturePanel>(host));
}

}  // namespace varnel

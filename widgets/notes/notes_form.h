// The notes widget.
#pragma once

#include <array>
#include <memory>

#include "frame/bar_label_win.h"
#include "frame/pages/print_desk_win.h"
#include "frame/side_list_win.h"
#include "frame/widget_form.h"
#include "theme/text_field_win.h"
#include "widgets/notes/editor/editor_note_win.h"
#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/editor/note_formats_win.h"
#include "widgets/notes/find/note_search.h"
#include "widgets/notes/note_desk.h"
#include "widgets/notes/notes_layout.h"
#include "widgets/notes/notes_link.h"
#include "widgets/notes/panels/find_panel_win.h"
#include "widgets/notes/panels/note_panel_win.h"
#include "widgets/notes/spelling/spell_service_win.h"
#include "win/files/folder_watch.h"
#include "win/files/system_recycle_bin.h"
#include "win/windows/message_box.h"

namespace varnel {

class NotesForm : public WidgetForm,  // frmNOTwg
                  private SideListOwner,
                  private NotePanelHost,
                  private NotesWidget {
 public:
  NotesForm(Services& services, const FormEntry& entry, int index, NotesLink& link,
            SpellService& spelling, PrintDesk& printing);

  // --- documents
  void DocumentNew();
  void DocumentNewRTF() { StartNote(NoteType::kRtf); }
  void DocumentNewTXT() { StartNote(NoteType::kTxt); }
  void DocumentOpen();
  void DocumentOpenFile(const std::wstring& path);
  // False when the user cancelled or it could not be saved.
  bool DocumentSaveMain(NoteType type, const std::wstring& path);
  bool DocumentSaveFile(NoteType type, const std::wstring& path);
  bool DocumentSaveAsNew();
  Answer DocumentClose();
  void DocumentPrint();
  void NoteOpenSelected();
  void NoteDelete();
  void NOTERenameShow();
  void SideBarRefresh();
  void NotePropsRefresh() override;

  // --- the text
  void TextStatusRefresh();
  void TextUndo();
  void TextRedo();
  void TextCut();
  void TextCopy();
  void TextPaste() { editor_.Paste(); }
  void TextPastePlain() { editor_.PastePlain(); }
  void TextDelete() { editor_.edit().Replace(L""); }
  void TextSelectAll() { editor_.edit().SelectAll(); }
  void TextBoldSet() { Format(&NoteFormats::TextBoldSet); }
  void TextItalicSet() { Format(&NoteFormats::TextItalicSet); }
  void TextUnderlineSet() { Format(&NoteFormats::TextUnderlineSet); }
  void TextBullets() { Format(&NoteFormats::TextBullets); }
  void TextIndentIncr() { Format(&NoteFormats::TextIndentIncr); }
  void TextIndentDecr() { Format(&NoteFormats::TextIndentDecr); }
  void TextFormatClear() { Format(&NoteFormats::TextFormatClear); }
  void TextAlignmentSet(int option) { Format(&NoteFormats::TextAlignmentSet, option); }
  void TextFontScriptSet(int index) { Format(&NoteFormats::TextFontScriptSet, index); }
  void QuickStyleSet(int index) { Format(&NoteFormats::QuickStyleSet, index); }
  void NamedSpacingSet(int named);

  bool MayClose() override;
  void SaveState(SaveReason reason) override;

 private:
  void OnLoad() override;
  void OnUnload() override;
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  void OnControl(int id, int code) override;
  Focus FocusNow() const override;
  bool OnFirstKey(const MSG& message) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

  std::wstring RowText(std::size_t row) const override;
  std::wstring Summary() const override { return desk_.document().title(); }
  std::wstring EmptyText() const override;
  void PaintRow(Surface& surface, const SideRow& row) override;
  void OnRowChosen(std::size_t row) override;
  void OnRowRenamed(std::size_t row, const std::wstring& text) override;
  void OnRenameEnded() override;

  HWND PanelParent() const override { return handle(); }
  int PanelDpi() const override { return dpi(); }
  TextButtons& PanelButtons() override { return buttons(); }
  TextStyle PanelText() const override;
  TextStyle PanelBoxStyle() const override;
  HFONT PanelFont() override;
  NoteEditor& Editor() override { return editor_; }
  NoteFormats& Formats() override { return formats_; }
  Services& PanelServices() const override { return services(); }
  void Tell(const std::wstring& notice) override;
  void Formatted() override;
  void AfterCommand() override;

  void FolderChanged() override;
  std::vector<DocumentVersion> Versions() const override { return desk_.Versions(); }
  void RestoreVersion(const DocumentVersion& version) override;

  NoteEditor::Events EditorEvents();
  std::wstring Folder() const;
  void RememberDraftFolder();
  void StartNote(NoteType type);
  RtfDocument NoteToPrint();
  void OnEdited();
  void OnAddress(const std::wstring& address);
  void OnZoom(int notches);
  void RememberPlace();
  void ReturnToPlace();
  // After another note was taken up.
  void ShowNote();
  void ShowList(std::wstring_view selected = {});
  void ShowNotice();
  // The list shows all notes, or those found: its rows and the notes' numbers in their folder.
  std::size_t RowCount() const;
  std::optional<std::size_t> NoteOfRow(std::size_t row) const;
  std::optional<std::size_t> RowOfNote(std::size_t note) const;
  std::optional<std::size_t> SelectedNote() const;
  void StartSearch();
  void GoOnSearching();
  void ShowCounts();
  void OpenAtStart();
  bool SaveReplacing(FileResult result, NoteType type, const std::wstring& path);

  // --- the tool strip and its panels
  static constexpr int kNoPanel = -1;
  void AddTool(int tool);
  void RepaintTool(int tool);
  static constexpr wchar_t kNoRoom[] =
      L"There is no room for the tools: the widget has to be larger";
  void LoadPanels();
  void TellPanels();
  void OpenFind();
  void FindNext();
  void FindPrevious();
  NotePanel* OpenPanel() const;
  bool MayOpen(int tool) const;
  void OnTool(int tool);
  void ClosePanel();
  void ShowPanel(int tool);
  void PlaceTools(const Rect& panel);
  void PlacePanel(const Rect& panel);
  void PlaceList(const Rect& panel);
  void PlaceStrip();
  ButtonCheck CheckOf(int id) const;
  Colour PaperColour() const;

  // --- commands
  static std::vector<CommandTable::Rows> Menus();
  void BindCommands();
  void BindTextCommands();
  void ShowEditorMenu(LPARAM position);
  template <class Command, class... Arguments>
  void Format(Command command, Arguments... arguments) {
    (formats_.*command)(arguments...);
    Formatted();
  }
  void Save() { DocumentSaveFile(desk_.document().type(), desk_.document().path()); }
  void RefreshAll();
  void ShowCountsInStrip();
  void ToggleList();
  bool CanUndo() const { return editor_.edit().CanUndo() || edited_.CanUndo(); }
  bool CanRedo() const { return editor_.edit().CanRedo() || edited_.CanRedo(); }

  NotesLink& link_;
  PrintDesk& printing_;
  SystemRecycleBin bin_;
  NoteEditor editor_;
  EditorNote edited_;  // as the panels change it
  NoteFormats formats_;
  NoteDesk desk_;
  bool dropping_ = false;  // the user wants the changes to go with the form
  bool list_wanted_ = true;
  bool refresh_due_ = false;                                   // once no row is being renamed
  bool ready_ = false;                                         // the first note is there
  std::array<std::unique_ptr<NotePanel>, kToolCount> panels_;  // by the tool that opens them
  FindPanel* pfrFIND_ = nullptr;                               // among the panels
  SpellService& spelling_;
  std::int32_t told_note_ = -1;  // the number of the note that the panels know of
  int open_panel_ = kNoPanel;    // a tool
  NotesLayout places_;
  NoteSearch search_;
  TextField search_field_;
  UniqueFont panel_font_;
  int panel_font_dpi_ = 0;
  SideList lvwFILES_;
  BarLabel lblNotes_;
  ThemedLabel lblCHARS_;
  ThemedLabel lblLINESTAT_;
  ThemedLabel lblZOOM_;
  FolderWatch watch_;
  Timer draft_timer_;
  Timer count_timer_;
  Timer notice_timer_;
  Timer search_timer_;
};

}  // namespace varnel

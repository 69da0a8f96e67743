#include "widgets/notes/notes_form.h"

#include <algorithm>

#include "base/name_order.h"
#include "base/path.h"
#include "resources/control_ids.h"
#include "widgets/notes/note_settings.h"
#include "widgets/notes/notes_folder.h"
#include "widgets/notes/pages/note_paper_win.h"
#include "widgets/notes/pages/plain_document.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "win/system/user_units.h"
#include "win/windows/file_dialogs.h"
#include "win/windows/hourglass.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr int kDraftTickMs = 500;
constexpr int kCountRestMs = 300;
constexpr int kNoticeMs = 15'000;
constexpr int kSearchTickMs = 10;
constexpr int kMostQuery = 200;
constexpr std::size_t kImportUnits = 2048;

constexpr Message kUnsavedQuestion{L"There Are Unsaved Changes",
                                   L"Do you wish to save before you close? You may lose important "
                                   L"changes if you proceed without saving.",
                                   MessageKind::kSaveQuestion};
constexpr Message kDeleteQuestion{L"Delete a note", L"Are you sure you want to delete?",
                                  MessageKind::kPlainQuestion};
constexpr Message kReplaceQuestion{L"Rename a note",
                                   L"There is a note called \"%1\" already. Replace it?",
                                   MessageKind::kQuestion};
constexpr Message kChangedQuestion{
    L"Save a note",
    L"Another program has changed \"%1\" since it was opened. Write over it? What it holds now is "
    L"kept among its earlier versions.",
    MessageKind::kQuestion};

constexpr wchar_t kImportFilter[] =
    L"All Documents (*.rtf; *.txt)|*.rtf;*.txt|Rich Text Paper (*.rtf)|*.rtf|"
    L"Plain Text Note (*.txt)|*.txt|All files (*.*)|*.*";
constexpr wchar_t kExportFilter[] = L"Rich Text Paper (*.rtf)|*.rtf|Plain Text Note (*.txt)";

}  // namespace

NotesForm::NotesForm(Services& services, const FormEntry& entry, int index, NotesLink& link,
                     SpellService& spelling, PrintDesk& printing)
    : WidgetForm(services, entry, index, Menus()),
      link_(link),
      printing_(printing),
      editor_(services.files, EditorEvents()),
      edited_(editor_),
      formats_(editor_, services.settings),
      desk_(services.files, bin_, services.clock, editor_, link.counter),
      spelling_(spelling),
      search_(services.files, SystemTextEncoding()),
      lvwFILES_(services.ui, *this),
      lblNotes_(services.ui),
      lblCHARS_(services.ui),
      lblLINESTAT_(services.ui),
      lblZOOM_(services.ui),
      watch_(services.ui, [this] { SideBarRefresh(); }),
      draft_timer_(*this, kDraftTickMs,
                   [this] {
                     desk_.Tend(::GetTickCount64());
                     if (!desk_.document().modified()) draft_timer_.Stop();
                     ShowNotice();
                   }),
      count_timer_(*this, kCountRestMs,
                   [this] {
                     count_timer_.Stop();
                     editor_.TakeText();
                     ShowCounts();
                   }),
      notice_timer_(*this, kNoticeMs,
                    [this] {
                      notice_timer_.Stop();
                      desk_.Tell({});
                      ShowNotice();
                    }),
      search_timer_(*this, kSearchTickMs, [this] { GoOnSearching(); }) {
  BindCommands();
  BindTextCommands();
}

NoteEditor::Events NotesForm::EditorEvents() {
  return {.on_edit = [this] { OnEdited(); },
          .on_select = [this] { TextStatusRefresh(); },
          .on_notice = [this](std::wstring notice) { Tell(notice); },
          .on_documents =
              [this](const std::vector<std::wstring>& paths) {
                for (const std::wstring& path : paths) DocumentOpenFile(path);
              },
          .on_address = [this](const std::wstring& address) { OnAddress(address); },
          .on_zoom = [this](int notches) { OnZoom(notches); }};
}

void NotesForm::OnLoad() {
  lblNotes_.Load(handle(), lblNotes);
  for (const int tool : {kToolNew, kToolSave, kToolList}) AddTool(tool);
  LoadPanels();
  buttons().TellChecks([this](int id) { return CheckOf(id); });
  search_field_.Load(handle(), txtSEARCHNOTES, {.most = kMostQuery, .hint = L"Search"});
  lvwFILES_.Load(handle(), lvwFILES, L"Notes", SideListKind::kDocuments);
  editor_.Load(handle(), rtbPAGEBOX, NoteBaseFormat(services().settings));
  lblCHARS_.Load(handle(), lblCHARS);
  lblLINESTAT_.Load(handle(), lblLINESTAT);
  lblZOOM_.Load(handle(), lblZOOM);
  link_.widget = this;
}

// What a run of the program left unsaved is shown first of all.
void NotesForm::OpenAtStart() {
  desk_.Adopt(Folder());
  const std::wstring elsewhere = services().settings.Read(kOpenNoteFolder);
  if (!desk_.Recover({Folder(), elsewhere})) {
    DocumentNew();
  } else {
    draft_timer_.Start();
  }
  link_.counter = desk_.document().number();
  ready_ = true;
  watch_.Watch(Folder());
  ShowList();
  ShowNote();
}

void NotesForm::OnUnload() {
  RememberPlace();
  ready_ = false;
  draft_timer_.Stop();
  count_timer_.Stop();
  notice_timer_.Stop();
  search_timer_.Stop();
  watch_.Watch({});
  // What was closed unasked, or lies where nobody can look today, comes back with the next start.
  const std::wstring elsewhere = services().settings.Read(kOpenNoteFolder);
  if (!desk_.document().modified() && services().files.FolderExists(elsewhere)) {
    services().settings.Write(kOpenNoteFolder, L"");
  }
  link_.widget = nullptr;
}

std::wstring NotesForm::Folder() const {
  return ReadFolder(services().settings, kNotesFolder, services().program_folder);
}

// --- starting and opening

void NotesForm::DocumentNew() {
  const bool plain = ReadNumber(services().settings, kDocumentType, -1'000'000, 1'000'000) != 0;
  plain ? DocumentNewTXT() : DocumentNewRTF();
}

void NotesForm::StartNote(NoteType type) {
  RememberPlace();
  desk_.DocumentNew(type);
  ShowNote();
}

void NotesForm::DocumentOpen() {
  const HourglassPointer pointer;
  const FilesChosen chosen = BrowseForFiles(
      handle(), {.title = L"Import a Document", .filter = kImportFilter}, kImportUnits);
  if (!handle()) return;
  for (const std::wstring& path : chosen.paths) DocumentOpenFile(path);
  if (chosen.too_many) Tell(L"So many files cannot be imported at once");
}

void NotesForm::DocumentOpenFile(const std::wstring& path) {
  const HourglassPointer pointer;
  RememberPlace();
  desk_.DocumentOpenFile(path);
  ShowNote();
  ReturnToPlace();
}

void NotesForm::NoteOpenSelected() {
  if (const auto note = SelectedNote()) DocumentOpenFile(desk_.notes().Path(*note));
}

void NotesForm::RememberPlace() {
  if (!ready_ || !desk_.current()) return;
  const RichRange selection = editor_.edit().Selection();
  link_.places[desk_.document().path()] = {selection.from, selection.to,
                                           editor_.edit().ScrollPosition()};
}

void NotesForm::ReturnToPlace() {
  const auto place = link_.places.find(desk_.document().path());
  if (place == link_.places.end()) return;
  editor_.edit().Select({place->second.from, place->second.to});
  editor_.edit().SetScrollPosition(place->second.scroll);
}

// --- saving and closing

bool NotesForm::SaveReplacing(FileResult result, NoteType type, const std::wstring& path) {
  if (result == FileResult::kChanged &&
      Ask(handle(), kChangedQuestion, {desk_.document().title()})) {
    if (!handle()) return false;
    result = desk_.DocumentSaveFile(type, path, OthersChanges::kReplace);
  }
  if (!handle()) return false;
  ShowNote();
  return result == FileResult::kDone;
}

bool NotesForm::DocumentSaveFile(NoteType type, const std::wstring& path) {
  return SaveReplacing(desk_.DocumentSaveFile(type, path), type, path);
}

bool NotesForm::DocumentSaveMain(NoteType type, const std::wstring& path) {
  return services().files.FileExists(path) ? DocumentSaveFile(type, path) : DocumentSaveAsNew();
}

bool NotesForm::DocumentSaveAsNew() {
  const auto chosen =
      BrowseForFileToSave(handle(), {.title = L"Export as a new file", .filter = kExportFilter});
  if (!chosen || !handle()) return false;
  const NoteExport meant = NoteExportOf(chosen->path, chosen->filter_index);
  const bool saved = desk_.Export(meant) == FileResult::kDone;
  ShowNote();
  return saved;
}

bool NotesForm::MayClose() {
  dropping_ = false;
  if (!desk_.document().modified()) return true;
  const Answer answer = AskForAnswer(handle(), kUnsavedQuestion);
  if (!handle()) return false;
  dropping_ = answer == Answer::kNo;
  if (answer != Answer::kYes) return dropping_;
  return DocumentSaveMain(desk_.document().type(), desk_.document().path());
}

Answer NotesForm::DocumentClose() {
  if (!MayClose()) return Answer::kCancel;
  const bool dropped = std::exchange(dropping_, false);
  desk_.DropChanges();
  DocumentNew();
  return dropped ? Answer::kNo : Answer::kYes;
}

void NotesForm::SaveState(SaveReason reason) {
  WidgetForm::SaveState(reason);
  for (const auto& panel : panels_) {
    if (panel) panel->SaveState();
  }
  if (dropping_ && reason == SaveReason::kClose) {
    desk_.DropChanges();
  } else {
    desk_.KeepDraft(::GetTickCount64());
  }
}

// What the editor holds, as it would be saved.
RtfDocument NotesForm::NoteToPrint() {
  if (editor_.rich()) {
    const auto bytes = editor_.Bytes(NoteType::kRtf);
    if (bytes) {
      RtfReading reading = ReadRtf(*bytes, SystemRtfOrigin());
      if (reading.fault == RtfFault::kNone) return std::move(reading.document);
    }
  }
  CharFormat format;
  constexpr int kMostPoints = 500;
  format.half_points = static_cast<std::uint16_t>(
      2 * ReadNumber(services().settings, kNoteFontSize, 1, kMostPoints));
  return PlainDocument(editor_.edit().Units({0, editor_.edit().Length()}),
                       {services().settings.Read(kNoteFontName), 1}, format);
}

void NotesForm::DocumentPrint() {
  const HourglassPointer pointer;
  const std::wstring& path = desk_.document().path();
  // A note that is not saved yet has no file.
  const std::size_t cut = path.rfind(L'\\');
  printing_.Show(std::make_shared<NotePaper>(
      desk_.document().title(), cut == std::wstring::npos ? std::wstring() : path.substr(cut + 1),
      NoteToPrint(), UserDecimal()));
}

// --- the list

void NotesForm::NoteDelete() {
  const auto selected = SelectedNote();
  if (!selected) return;
  // While the question stands, others may change the folder.
  const std::wstring name = desk_.notes().Name(*selected);
  if (!Ask(handle(), kDeleteQuestion) || !handle()) return;
  const auto note = desk_.notes().Find(name);
  if (!note) return;
  const auto next = desk_.NoteDelete(*note);
  StartSearch();
  ShowList(next ? desk_.notes().Name(*next) : std::wstring());
  ShowNotice();
}

void NotesForm::NOTERenameShow() {
  auto note = SelectedNote();
  if (!note) note = desk_.current();
  const auto row = note ? RowOfNote(*note) : std::nullopt;
  if (row) {
    lvwFILES_.Rename(*row);
  } else {
    Tell(L"Save the note first: then it has a name to change");
  }
}

void NotesForm::OnRowRenamed(std::size_t row, const std::wstring& text) {
  const auto note = NoteOfRow(row);
  if (!note) return;
  const std::wstring former = desk_.notes().Name(*note);
  if (desk_.Rename(*note, text, NameClash::kAsk) == RenameResult::kClash) {
    const bool replace = Ask(handle(), kReplaceQuestion, {text});
    if (!handle()) return;
    const auto now = desk_.notes().Find(former);
    if (replace && now) desk_.Rename(*now, text, NameClash::kReplace);
  }
  StartSearch();
  ShowNote();
}

void NotesForm::OnRenameEnded() {
  if (std::exchange(refresh_due_, false)) SideBarRefresh();
}

void NotesForm::OnRowChosen(std::size_t row) {
  const auto note = NoteOfRow(row);
  // The note that is shown already keeps its caret and its steps to undo.
  if (!note || desk_.current() == note) return;
  lvwFILES_.Select(row);
  NoteOpenSelected();
}

void NotesForm::SideBarRefresh() {
  if (lvwFILES_.renaming()) {
    refresh_due_ = true;
    return;
  }
  const auto note = SelectedNote();
  const std::wstring selected = note ? desk_.notes().Name(*note) : std::wstring();
  const bool shown_anew = desk_.SideBarRefresh();
  StartSearch();
  if (shown_anew) ShowNote();
  ShowList(selected);
  ShowNotice();
  if (desk_.document().modified()) draft_timer_.Start();
}

// The draft of a note that has no file yet lies where the note was begun.
void NotesForm::RememberDraftFolder() {
  const std::wstring folder = desk_.draft_folder();
  const bool here = CompareNames(folder, desk_.notes().folder()) == 0;
  services().settings.Write(kOpenNoteFolder, here ? L"" : folder);
}

void NotesForm::FolderChanged() {
  desk_.Adopt(Folder());
  if (desk_.document().modified()) RememberDraftFolder();
  StartSearch();
  watch_.Watch(Folder());
  ShowNote();
}

void NotesForm::RestoreVersion(const DocumentVersion& version) {
  desk_.Restore(version);
  ShowNote();
}

void NotesForm::NotePropsRefresh() {
  editor_.SetBase(NoteBaseFormat(services().settings));
  TextStatusRefresh();
}

// --- what the user does in the text

void NotesForm::OnEdited() {
  dropping_ = false;
  const bool was_modified = desk_.document().modified();
  desk_.NoteChange(::GetTickCount64());
  if (!draft_timer_.enabled()) draft_timer_.Start();
  if (!was_modified) {
    RepaintTool(kToolSave);
    if (!desk_.current()) RememberDraftFolder();
  }
  if (editor_.text_is_old()) {
    count_timer_.Stop();
    count_timer_.Start();
  }
  ShowCounts();
}

}  // namespace varnel

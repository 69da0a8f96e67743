#include "widgets/boards/whiteboard_form.h"

#include <windows.h>
#include <windowsx.h>

#include "base/bmp.h"
#include "frame/pages/picture_paper_win.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/board_settings.h"
#include "widgets/boards/whiteboard_commands.h"
#include "win/graphics/system_rect.h"
#include "win/windows/file_dialogs.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr int kThumbnailMs = 10;

constexpr BoardTraits kTraits{kBoardPen,
                              kBoardPenWidth,
                              kBoardTextSize,
                              L"mnuWBOARD",
                              lblWhiteboard,
                              lblTestfrmWBDwg,
                              cmdBOARDTOOL + static_cast<int>(BoardTool::kPenWidth)};

constexpr Message kDeleteQuestion{L"Delete a whiteboard", L"Are you sure you want to delete?",
                                  MessageKind::kQuestion};
constexpr Message kReplaceQuestion{L"Rename a whiteboard",
                                   L"There is a board called \"%1\" already. Replace it?",
                                   MessageKind::kQuestion};
constexpr wchar_t kPictureFilter[] =
    L"All pictures (*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif|"
    L"Bitmap image File picture (*.bmp)|*.bmp|"
    L"Graphics Interchange Format picture (*.gif)|*.gif|"
    L"Joint Photographic Experts Group picture (*.jpg)|*.jpg|All files (*.*)|*.*";

}  // namespace

WhiteboardForm::WhiteboardForm(Services& services, const FormEntry& entry, int index,
                               BoardLink& link, PrintDesk& printing)
    : BoardForm(services, entry, index, kTraits, kWhiteboardCommands, Canvas::kWhiteBoard),
      link_(link),
      printing_(printing),
      whiteboard_(services.files, bin_, services.clock, board_),
      lvwFILES_(services.ui, *this),
      watch_(services.ui, [this] { SideBarRefresh(); }),
      thumbnail_timer_(*this, kThumbnailMs, [this] { MakeThumbnail(); }) {
  const auto has_file = [this] { return HasFile(); };
  commands().Bind(
      {{L"mnuWBOARDNEW", [this] { BoardNew(); }},
       {L"mnuWBOARDSAVE", [this] { BoardSave(); }, [this] { return board_.BoardModified(); }},
       {L"mnuWBOARDVERSIONS", {}, [this] { return !whiteboard_.Versions().empty(); }},
       {L"mnuWBOARDRENAME", [this] { WhiteboardRenameShow(); }, has_file},
       {L"mnuWBOARDDELETE", [this] { BoardDelete(); }, has_file},
       {L"mnuWBOARDCLEAR", [this] { Clear(); }},
       {L"mnuWBOARDINSTEXT", [this] { BoardInsertObject(L"TEXT"); }},
       {L"mnuWBOARDINSPIC", [this] { BoardInsertObject(L"PICTURE"); }},
       {L"mnuWBOARDLIST", [this] { ToggleList(); }, {}, [this] { return list_wanted_; }},
       {L"mnuWBOARDPRINT", [this] { BoardPrint(); }}});
}

std::wstring WhiteboardForm::Folder() const {
  return ReadFolder(services().settings, kWhiteboardFolder, services().program_folder);
}

Size WhiteboardForm::ViewSize() const {
  const Rect view = places_.document.empty() ? Rect{} : Inset(places_.document, 2);
  return {view.width(), view.height()};
}

// --- boards

void WhiteboardForm::BoardNew() {
  const bool eraser = board_.PenColorIndex() >= kEraser;
  WhiteboardPenColor(eraser ? kEraser : board_.PenColorIndex());
  whiteboard_.BoardNew(ViewSize());
  ShowBoard();
}

void WhiteboardForm::BoardSave() {
  PutDown();
  whiteboard_.BoardSave();
  ShowList();
}

void WhiteboardForm::BoardDelete() {
  if (!HasFile()) return;
  picMAINBOARD_.EndStroke();
  if (!Ask(handle(), kDeleteQuestion) || !handle()) return;
  whiteboard_.BoardDelete(ViewSize());
  ShowBoard();
}

void WhiteboardForm::BoardPrint() {
  picMAINBOARD_.EndStroke();
  const auto current = whiteboard_.current();
  const DocumentFolder& boards = whiteboard_.boards();
  const std::wstring title = current ? std::wstring(boards.Title(*current)) : L"New board";
  const std::wstring file = current ? std::wstring(boards.Name(*current)) : L"";
  printing_.Show(std::make_shared<PicturePaper>(title, file, board_.Picture(), dpi()));
}

void WhiteboardForm::SideBarRefresh() {
  if (lvwFILES_.renaming()) {
    refresh_due_ = true;
    return;
  }
  whiteboard_.SideBarRefresh(ViewSize());
  ShowBoard();
}

void WhiteboardForm::WhiteboardRenameShow() {
  if (!HasFile() && !SaveBoards()) return;
  const auto current = whiteboard_.current();
  if (current && !places_.side_list.empty()) lvwFILES_.Rename(*current);
}

void WhiteboardForm::OnRowRenamed(std::size_t row, const std::wstring& text) {
  if (row >= whiteboard_.boards().count() || text == RowText(row)) return;
  const std::wstring former = whiteboard_.boards().Name(row);
  if (whiteboard_.Rename(row, text, NameClash::kAsk) == RenameResult::kClash &&
      Ask(handle(), kReplaceQuestion, {text}) && handle()) {
    if (const auto now = whiteboard_.boards().Find(former)) {
      whiteboard_.Rename(*now, text, NameClash::kReplace);
    }
  }
  if (handle()) ShowBoard();
}

void WhiteboardForm::OnRenameEnded() {
  if (std::exchange(refresh_due_, false)) SideBarRefresh();
}

void WhiteboardForm::OnRowChosen(std::size_t row) {
  if (row >= whiteboard_.boards().count() || whiteboard_.current() == row) return;
  picMAINBOARD_.EndStroke();
  whiteboard_.Show(std::wstring(whiteboard_.boards().Name(row)));
  ShowBoard();
}

void WhiteboardForm::ShowBoard() {
  board_.Fit(ViewSize());
  picMAINBOARD_.Refresh();
  ShowList();
}

void WhiteboardForm::ShowList() {
  const auto current = whiteboard_.current();
  lvwFILES_.ShowRows(whiteboard_.boards().count(), current.value_or(0));
  if (!current) lvwFILES_.SelectNone();
  if (current && lvwFILES_.Selected() != std::vector{*current}) lvwFILES_.Select(*current);
  ShowIcons();
  WidgetRefresh();
}

void WhiteboardForm::ShowIcons() {
  ::InvalidateRect(lvwFILES_.handle(), nullptr, FALSE);
}

void WhiteboardForm::BoardRefresh() {
  ::InvalidateRect(picMAINBOARD_.handle(), nullptr, FALSE);
}

void WhiteboardForm::PaintBoard(Surface& surface, const Rect& part) {
  PutImage(surface, {-part.left, -part.top}, board_.pixels());
}

bool WhiteboardForm::SaveBoards() {
  board_.MouseUp();
  const bool saved = whiteboard_.BoardSave();
  ShowList();
  return saved;
}

void WhiteboardForm::RestoreVersion(const DocumentVersion& version) {
  PutDown();
  whiteboard_.Restore(version);
  ShowBoard();
}

void WhiteboardForm::FolderChanged() {
  whiteboard_.Adopt(Folder(), ViewSize());
  thumbnails_.Forget();
  watch_.Watch(Folder());
  ShowBoard();
}

// --- objects

void WhiteboardForm::BoardInsertObject(std::wstring_view kind) {
  picMAINBOARD_.EndStroke();
  if (kind == L"TEXT") {
    services().program.OpenDialog(L"frmWBDit");
    return;
  }
  const std::wstring path =
      BrowseForFile(handle(), {L"Insert a Picture", kPictureFilter, 1, {}, {}});
  if (!path.empty() && handle()) FloatPictureFile(path);
}

void WhiteboardForm::InsertText(const std::wstring& text, int points) {
  FloatText(text, points, TextWidth());
}

// --- thumbnails

void WhiteboardForm::MakeThumbnail() {
  const auto wish = thumbnails_.Next();
  if (!wish) {
    thumbnail_timer_.Stop();
    return;
  }
  const DocumentFolder& boards = whiteboard_.boards();
  const FileRead read =
      services().files.Read(boards.folder() + L"\\" + wish->name, kMostBoardBytes);
  // It is tried again when the row is next painted.
  if (read.result == FileResult::kLocked) return thumbnails_.Drop(*wish);
  const auto board = read ? ReadBmp(read.bytes) : std::nullopt;
  const Rect box = Inset(LayOutBoardRow({}, dpi()).picture, 1);
  thumbnails_.Put(*wish, board ? ThumbnailOf(*board, {box.width(), box.height()}) : Image());
  if (const auto row = boards.Find(wish->name)) lvwFILES_.RepaintRow(*row);
}

// --- commands

void WhiteboardForm::ToggleList() {
  list_wanted_ = !list_wanted_;
  WriteFlag(services().settings, kBoardList, list_wanted_);
  Form_Resize();
  ShowBoard();
}

bool WhiteboardForm::OnFirstKey(const MSG& message) {
  if (BoardForm::OnFirstKey(message)) return true;
  lvwFILES_.OnKey(message);
  return false;
}

void WhiteboardForm::OnWheel(WPARAM wparam, LPARAM lparam, bool across) {
  const Point at{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  const int turn = GET_WHEEL_DELTA_WPARAM(wparam);
  RECT list = {};
  ::GetWindowRect(lvwFILES_.handle(), &list);
  if (!places_.side_list.empty() && FromSystem(list).Contains(at)) {
    lvwFILES_.ScrollBy(turn > 0 ? -1 : 1);
  } else {
    picMAINBOARD_.OnWheel(across ? -turn : turn, (wparam & MK_CONTROL) != 0,
                          across || (wparam & MK_SHIFT) != 0);
  }
}

LRESULT WhiteboardForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
      OnWheel(wparam, lparam, message == WM_MOUSEHWHEEL);
      return 0;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lparam);
      return header.idFrom == lvwFILES ? lvwFILES_.OnNotify(header) : 0;
    }
    default:
      return BoardForm::OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel

#include "widgets/boards/whiteboard_form.h"

#include <algorithm>

#include "base/bmp.h"
#include "base/number_text.h"
#include "base/resample.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/board_settings.h"
#include "widgets/boards/text_picture_win.h"
#include "win/clipboard.h"
#include "win/file_dialogs.h"
#include "win/message_box.h"
#include "win/pictures.h"

namespace varnel {
namespace {

constexpr int kRepaintMs = 60;
constexpr int kDraftTickMs = 500;
constexpr int kThumbnailMs = 10;
constexpr int kMostPastedUnits = 10'000;
constexpr int kPointsToAnInch = 72;

constexpr Message kDeleteQuestion{L"Delete a whiteboard", L"Are you sure you want to delete?",
                                  MessageKind::kQuestion};
constexpr Message kReplaceQuestion{L"Rename a whiteboard",
                                   L"There is a board called \"%1\" already. Replace it?",
                                   MessageKind::kQuestion};
constexpr Message kCloseQuestion{L"Whiteboard", L"%1. Close the whiteboard all the same?",
                                 MessageKind::kQuestion};
constexpr wchar_t kPictureFilter[] =
    L"All pictures (*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif|"
    L"Bitmap image File picture (*.bmp)|*.bmp|"
    L"Graphics Interchange Format picture (*.gif)|*.gif|"
    L"Joint Photographic Experts Group picture (*.jpg)|*.jpg|All files (*.*)|*.*";

std::wstring_view FaultWords(PictureFault fault) {
  switch (fault) {
    case PictureFault::kTooManyBytes:
    case PictureFault::kTooLarge:
      return L"is too large";
    case PictureFault::kUnknownKind:
      return L"is no picture that can be read";
    case PictureFault::kNone:
    case PictureFault::kDamaged:
      break;
  }
  return L"is damaged";
}

std::wstring NameOf(const std::wstring& path) {
  return path.substr(path.rfind(L'\\') + 1);
}

}  // namespace

WhiteboardForm::WhiteboardForm(Services& services, const FormEntry& entry, int index,
                               BoardLink& link)
    : WidgetForm(services, entry, index),
      link_(link),
      whiteboard_(services.files, bin_, services.clock, board_),
      picMAINBOARD_(services.ui, board_, *this),
      lvwFILES_(services.ui, *this),
      lblWhiteboard_(services.ui),
      lblTestfrmWBDwg_(services.ui),
      watch_(services.ui, [this] { SideBarRefresh(); }),
      tmrDRAW_(*this, kRepaintMs,
               [this] {
                 tmrDRAW_.Stop();
                 WidgetRefresh();
               }),
      draft_timer_(*this, kDraftTickMs,
                   [this] {
                     whiteboard_.Tend(::GetTickCount64());
                     if (!board_.BoardModified()) draft_timer_.Stop();
                   }),
      thumbnail_timer_(*this, kThumbnailMs, [this] { MakeThumbnail(); }) {}

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
  board_.MouseUp();
  AfterChange(board_.DropFloat());
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

void WhiteboardForm::SideBarRefresh() {
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

void WhiteboardForm::OnBoardChanged() {
  whiteboard_.Tend(::GetTickCount64());
  draft_timer_.Start();
  tmrDRAW_.Start();
}

void WhiteboardForm::AfterChange(const Rect& shown) {
  picMAINBOARD_.Repaint(shown);
  OnBoardChanged();
}

bool WhiteboardForm::SaveBoards() {
  board_.MouseUp();
  const bool saved = whiteboard_.BoardSave();
  ShowList();
  return saved;
}

void WhiteboardForm::FolderChanged() {
  whiteboard_.Adopt(Folder(), ViewSize());
  thumbnails_.Forget();
  watch_.Watch(Folder());
  ShowBoard();
}

bool WhiteboardForm::MayClose() {
  board_.MouseUp();
  if (!whiteboard_.BoardSave()) {
    whiteboard_.KeepDraft(::GetTickCount64());
    return Ask(handle(), kCloseQuestion, {whiteboard_.trouble()});
  }
  return WidgetForm::MayClose();
}

void WhiteboardForm::SaveState(SaveReason reason) {
  board_.MouseUp();
  if (!whiteboard_.BoardSave()) whiteboard_.KeepDraft(::GetTickCount64());
  services().settings.Write(kBoardPen, NumberText(board_.PenColorIndex()));
  WidgetForm::SaveState(reason);
}

// --- pens

void WhiteboardForm::WhiteboardPenColor(int index) {
  picMAINBOARD_.Repaint(board_.SetPen(index));
  RefreshContent();
  for (int i = 0; i <= kPens; ++i) buttons().Repaint(cmdPEN + i);
  for (std::size_t i = 0; i < kBoardTools; ++i) {
    buttons().Repaint(cmdBOARDTOOL + static_cast<int>(i));
  }
}

void WhiteboardForm::WhiteboardPenSize(int pixels) {
  board_.SetPenWidth(pixels);
  services().settings.Write(kBoardPenWidth, NumberText(board_.pen_width()));
  RefreshContent();
  buttons().Repaint(cmdBOARDTOOL);
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
  if (!path.empty() && handle()) InsertPictureFile(path);
}

void WhiteboardForm::InsertText(const std::wstring& text, int points) {
  const bool eraser = board_.PenColorIndex() >= kEraser;
  const Colour colour = eraser ? kBlack : PenAt(board_.PenColorIndex()).colour;
  const Rect view = picMAINBOARD_.View();
  const double height = static_cast<double>(points) * dpi() / kPointsToAnInch;
  const std::wstring face = paint().theme.strTHEMEPANELFONTNAME;
  const auto source = [=](double scale) {
    const int em = std::max(1, static_cast<int>(height * scale + 0.5));
    return TextPicture(text, {face, em, false}, colour, static_cast<int>(view.width() * scale));
  };
  if (board_.BoardInsertObject(FloatKind::kText, source, view)) {
    ::SetForegroundWindow(handle());
    ::SetFocus(picMAINBOARD_.handle());
  }
  BoardRefresh();
  tmrDRAW_.Start();
}

void WhiteboardForm::InsertPictureFile(const std::wstring& path) {
  const FileRead read = services().files.Read(path, kMostPictureBytes);
  if (!read) {
    TellTrouble(L"\"" + NameOf(path) + L"\" " + std::wstring(FileTrouble(read.result)));
    return;
  }
  const DecodedPicture decoded = DecodePicture(read.bytes);
  if (decoded.fault != PictureFault::kNone) {
    TellTrouble(L"\"" + NameOf(path) + L"\" " + std::wstring(FaultWords(decoded.fault)));
    return;
  }
  InsertPicture(decoded.image);
}

void WhiteboardForm::InsertPicture(const Image& straight) {
  TellTrouble({});
  const auto source = [picture = OnGround(straight, RGB(255, 255, 255))](double scale) {
    if (scale == 1) return picture;
    return Resampled(picture, {static_cast<int>(picture.width() * scale + 0.5),
                               static_cast<int>(picture.height() * scale + 0.5)});
  };
  board_.BoardInsertObject(FloatKind::kPicture, source, picMAINBOARD_.View());
  BoardRefresh();
  tmrDRAW_.Start();
}

void WhiteboardForm::Copy() {
  CopyContent(handle(), {{}, {}, board_.Picture()});
}

void WhiteboardForm::Paste() {
  const ClipboardOffer offer = OfferOfClipboard();
  if (offer.files) {
    const auto paths = PastedFiles(handle());
    if (!paths.empty()) InsertPictureFile(paths.front());
  } else if (offer.picture) {
    const Image picture = PastedPicture(handle());
    if (picture.empty()) {
      TellTrouble(L"The picture on the clipboard cannot be read");
    } else {
      InsertPicture(picture);
    }
  } else if (const std::wstring text = PastedText(handle(), kMostPastedUnits); !text.empty()) {
    InsertText(text, static_cast<int>(ReadNumber(services().settings, kBoardTextSize, 1, 400)));
  }
}

void WhiteboardForm::TellTrouble(std::wstring trouble) {
  whiteboard_.Tell(std::move(trouble));
  RefreshContent();
  RepaintStatus();
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
  const auto board = read ? ReadBmp(read.bytes) : std::nullopt;
  const Rect box = Inset(LayOutBoardRow({}, dpi()).picture, 1);
  thumbnails_.Put(*wish, board ? ThumbnailOf(*board, {box.width(), box.height()}) : Image());
  if (const auto row = boards.Find(wish->name)) lvwFILES_.RepaintRow(*row);
}

}  // namespace varnel

#include "widgets/boards/board_form.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "base/number_text.h"
#include "base/resample.h"
#include "resources/control_ids.h"
#include "widgets/boards/text_picture_win.h"
#include "win/graphics/pictures.h"
#include "win/system/clipboard.h"
#include "win/windows/message_box.h"
#include "win/windows/popup_menu.h"

namespace varnel {
namespace {

constexpr int kRepaintMs = 60;
constexpr int kDraftTickMs = 500;
constexpr int kMostPastedUnits = 10'000;
constexpr int kPointsToAnInch = 72;
constexpr int kStep = 1, kLongStep = 10;  // pixels that an object is moved by keys
constexpr int kScrollStep = 40;           // pixels that a key scrolls

constexpr std::array<std::wstring_view, kPens> kPenCaptions = {
    L"&Black", L"&Red", L"&Orange", L"&Yellow", L"&Green", L"B&lue", L"&Purple", L"&Eraser"};

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

bool Held(int key) {
  return ::GetKeyState(key) < 0;
}

// Where an arrow key leads.
std::optional<Point> ArrowOf(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      return Point{-1, 0};
    case VK_RIGHT:
      return Point{1, 0};
    case VK_UP:
      return Point{0, -1};
    case VK_DOWN:
      return Point{0, 1};
    default:
      return std::nullopt;
  }
}

}  // namespace

BoardForm::BoardForm(Services& services, const FormEntry& entry, int index,
                     const BoardTraits& traits, std::uint32_t ground)
    : WidgetForm(services, entry, index),
      board_(ground),
      picMAINBOARD_(services.ui, board_, *this),
      tmrDRAW_(*this, kRepaintMs,
               [this] {
                 tmrDRAW_.Stop();
                 WidgetRefresh();
               }),
      draft_timer_(*this, kDraftTickMs,
                   [this] {
                     document().Tend(::GetTickCount64());
                     if (!board_.BoardModified()) draft_timer_.Stop();
                   }),
      traits_(traits),
      title_label_(services.ui),
      pen_label_(services.ui) {}

// --- saving

bool BoardForm::MayClose() {
  board_.MouseUp();
  if (!document().Save()) {
    document().KeepDraft(::GetTickCount64());
    const Message question{entry().title, L"%1. Close it all the same?", MessageKind::kQuestion};
    return Ask(handle(), question, {document().trouble()});
  }
  return WidgetForm::MayClose();
}

void BoardForm::SaveState(SaveReason reason) {
  board_.MouseUp();
  if (!document().Save()) document().KeepDraft(::GetTickCount64());
  services().settings.Write(traits_.pen, NumberText(board_.PenColorIndex()));
  WidgetForm::SaveState(reason);
}

void BoardForm::OnBoardChanged() {
  document().Tend(::GetTickCount64());
  draft_timer_.Start();
  tmrDRAW_.Start();
}

void BoardForm::AfterChange(const Rect& shown) {
  picMAINBOARD_.Repaint(shown);
  OnBoardChanged();
}

void BoardForm::TellTrouble(std::wstring trouble) {
  document().Tell(std::move(trouble));
  RefreshContent();
  RepaintStatus();
}

std::wstring BoardForm::StatusText() const {
  if (!document().trouble().empty()) return document().trouble();
  return board_.floating() ? L"Click or Enter puts it down, Esc drops it" : L"";
}

// --- objects

void BoardForm::FloatText(const std::wstring& text, int points, int wrap_width) {
  const bool eraser = board_.PenColorIndex() >= kEraser;
  const Colour colour = eraser ? kBlack : PenAt(board_.PenColorIndex()).colour;
  const double height = static_cast<double>(points) * dpi() / kPointsToAnInch;
  FloatPicture(FloatKind::kText, [=, face = paint().theme.strTHEMEPANELFONTNAME](double scale) {
    const int em = std::max(1, static_cast<int>(height * scale + 0.5));
    return TextPicture(text, {face, em, false}, colour, static_cast<int>(wrap_width * scale));
  });
}

void BoardForm::FloatPicture(FloatKind kind, const FloatSource& source) {
  picMAINBOARD_.EndStroke();
  if (board_.BoardInsertObject(kind, source, picMAINBOARD_.View())) {
    ::SetForegroundWindow(handle());
    ::SetFocus(picMAINBOARD_.handle());
  }
  ::InvalidateRect(picMAINBOARD_.handle(), nullptr, FALSE);
  tmrDRAW_.Start();
}

void BoardForm::FloatPicture(const Image& straight) {
  TellTrouble({});
  const auto source = [picture = OnGround(straight, RGB(255, 255, 255))](double scale) {
    if (scale == 1) return picture;
    return Resampled(picture, {static_cast<int>(picture.width() * scale + 0.5),
                               static_cast<int>(picture.height() * scale + 0.5)});
  };
  FloatPicture(FloatKind::kPicture, source);
}

void BoardForm::FloatPictureFile(const std::wstring& path) {
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
  FloatPicture(decoded.image);
}

void BoardForm::Copy() {
  CopyContent(handle(), {{}, {}, PictureOfBoard()});
}

void BoardForm::Paste() {
  const ClipboardOffer offer = OfferOfClipboard();
  if (offer.files) {
    const auto paths = PastedFiles(handle());
    if (!paths.empty()) FloatPictureFile(paths.front());
  } else if (offer.picture) {
    const Image picture = PastedPicture(handle());
    if (picture.empty()) {
      TellTrouble(L"The picture on the clipboard cannot be read");
    } else {
      FloatPicture(picture);
    }
  } else if (const std::wstring text = PastedText(handle(), kMostPastedUnits); !text.empty()) {
    constexpr int kMostPoints = 400;
    const long long points = ReadNumber(services().settings, traits_.text_size, 1, kMostPoints);
    FloatText(text, static_cast<int>(points), TextWidth());
  }
}

// --- commands

std::vector<MenuItem> BoardForm::PenItems() const {
  std::vector<MenuItem> items;
  for (int i = 0; i < kPens; ++i) {
    MenuItem item;
    item.id = ArrayCommandId(traits_.pen_commands, i);
    item.caption = kPenCaptions[static_cast<std::size_t>(i)];
    item.key = i == kEraser ? L"E" : NumberText(i + 1);
    item.checked = std::min(board_.PenColorIndex(), kEraser) == i;
    items.push_back(std::move(item));
  }
  return items;
}

std::vector<BoardAction> BoardForm::WidthActions() {
  std::vector<BoardAction> actions;
  for (std::size_t i = 0; i < kPenWidths.size(); ++i) {
    const int pixels = kPenWidths[i].pixels;
    BoardAction action{traits_.widths[i], [this, pixels] { SetPenWidth(pixels); }};
    action.checked = [this, pixels] { return board_.pen_width() == pixels; };
    actions.push_back(std::move(action));
  }
  return actions;
}

std::vector<MenuItem> BoardForm::MenuGroup() const {
  std::vector<MenuItem> items;
  for (const BoardAction& action : actions_) {
    if (action.new_group && !items.empty()) items.push_back(MenuSeparator());
    const bool usable = action.children || (action.run && (!action.usable || action.usable()));
    items.push_back(ItemOf(action.command, usable, action.checked && action.checked()));
    if (action.children) items.back().children = action.children();
  }
  return items;
}

const BoardAction* BoardForm::ActionOf(int id) const {
  const auto found = std::ranges::find(
      actions_, id, [](const BoardAction& action) { return int{CommandId(action.command.name)}; });
  return found == actions_.end() ? nullptr : &*found;
}

bool BoardForm::RunOwnCommand(int id) {
  if (const int pen = ArrayCommandIndex(traits_.pen_commands, kPens, id); pen >= 0) {
    SetPen(pen);
    return true;
  }
  const BoardAction* action = ActionOf(id);
  if (!action) return false;
  if (action->run && (!action->usable || action->usable())) action->run();
  return true;
}

void BoardForm::OnControl(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id >= cmdPEN && id < cmdPEN + kPens) {
    SetPen(id - cmdPEN);
  } else if (id == cmdPENS) {
    DropMenu(id, PenItems());
  } else if (id == traits_.width_tool) {
    std::vector<MenuItem> items;
    for (const Command& width : traits_.widths) {
      const BoardAction* action = ActionOf(CommandId(width.name));
      items.push_back(ItemOf(width, true, action && action->checked()));
    }
    DropMenu(id, items);
  }
}

void BoardForm::DropMenu(int button, const std::vector<MenuItem>& items) {
  RECT box = {};
  ::GetWindowRect(::GetDlgItem(handle(), button), &box);
  const Point corner{static_cast<int>(box.left), static_cast<int>(box.bottom)};
  const int chosen = ShowPopupMenu(handle(), corner, items);
  if (handle()) RunOwnCommand(chosen);
}

// --- keys and other messages

bool BoardForm::OnBoardKey(const MSG& message) {
  if (message.message == WM_CHAR) return OnCharacter(static_cast<wchar_t>(message.wParam));
  if (message.message != WM_KEYDOWN) return false;
  return (board_.floating() && OnFloatKey(message.wParam)) || RunKey(message.wParam);
}

bool BoardForm::OnKey(const MSG& message) {
  return OnBoardKey(message) || WidgetForm::OnKey(message);
}

bool BoardForm::OnFloatKey(WPARAM key) {
  if (key == VK_ESCAPE) {
    AfterChange(board_.DropFloat());
    return true;
  }
  if (key == VK_RETURN) {
    AfterChange(board_.MergeFloat());
    return true;
  }
  const auto arrow = ArrowOf(key);
  if (!arrow || Held(VK_CONTROL)) return false;
  const int step = Held(VK_SHIFT) ? kLongStep : kStep;
  picMAINBOARD_.Repaint(board_.MoveFloat(arrow->x * step, arrow->y * step));
  return true;
}

// Pens and widths go by what is written on the keys, wherever a keyboard has them.
bool BoardForm::OnCharacter(wchar_t character) {
  if (Held(VK_CONTROL) && !Held(VK_MENU)) return false;
  if (character >= L'1' && character < L'0' + kPens) {
    SetPen(character - L'1');
  } else if (character == L'e' || character == L'E') {
    SetPen(kEraser);
  } else if (character == L'[' || character == L']') {
    SetPenWidth(NextPenWidth(board_.pen_width(), character == L'[' ? -1 : 1));
  } else {
    return false;
  }
  return true;
}

bool BoardForm::RunKey(WPARAM key) {
  if (Held(VK_MENU)) return false;
  const bool ctrl = Held(VK_CONTROL);
  // The second key of many programs for the same.
  if (ctrl && Held(VK_SHIFT) && key == 'Z') key = 'Y';
  const auto found = std::ranges::find_if(actions_, [&](const BoardAction& action) {
    return key != 0 && action.key == key && (action.held == BoardAction::Held::kCtrl) == ctrl;
  });
  if (found != actions_.end()) return RunOwnCommand(CommandId(found->command.name));
  const auto arrow = ArrowOf(key);
  const bool scrolls = picMAINBOARD_.scrollable() && ::GetFocus() == picMAINBOARD_.handle();
  if (!arrow || ctrl || !scrolls) return false;
  picMAINBOARD_.ScrollBy(arrow->x * kScrollStep, arrow->y * kScrollStep);
  return true;
}

LRESULT BoardForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_DROPFILES: {
      const auto drop = reinterpret_cast<HDROP>(wparam);
      const auto paths = DroppedPaths(drop);
      ::DragFinish(drop);
      if (!paths.empty()) FloatPictureFile(paths.front());
      return 0;
    }
    case WM_CANCELMODE:
    case WM_SHOWWINDOW:
      // A message box comes up, or the widget is hidden.
      if (picMAINBOARD_.handle()) picMAINBOARD_.EndStroke();
      break;
    default:
      break;
  }
  return WidgetForm::OnMessage(message, wparam, lparam);
}

}  // namespace varnel

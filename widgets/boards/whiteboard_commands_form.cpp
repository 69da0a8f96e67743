// The part of the whiteboard's form that answers menu, keys and wheel.
#include <windowsx.h>

#include <algorithm>
#include <cwctype>

#include "base/number_text.h"
#include "frame/command.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_settings.h"
#include "widgets/boards/whiteboard_form.h"
#include "win/clipboard.h"
#include "win/popup_menu.h"
#include "win/system_rect.h"

namespace varnel {
namespace {

enum Group { kBoards, kBack, kObjects, kRest };

constexpr std::wstring_view kPenCommands = L"mnuWBOARDPENSUB";
constexpr Command kPens_{L"mnuWBOARDPENS", L"&Pens"};
// In the order of kPenWidths.
constexpr std::array<Command, kPenWidths.size()> kWidthCommands = {
    {{L"mnuWBOARDPENTHIN", L"T&hin pen"},
     {L"mnuWBOARDPENTHICK", L"Thic&k pen"},
     {L"mnuWBOARDPENMARKER", L"&Marker"},
     {L"mnuWBOARDPENBROAD", L"Br&oad pen"}}};
constexpr std::array<std::wstring_view, kPens> kPenCaptions = {
    L"&Black", L"&Red", L"&Orange", L"&Yellow", L"&Green", L"B&lue", L"&Purple", L"&Eraser"};
constexpr Command kPrint{L"mnuWBOARDPRINT", L"Prin&t..."};

constexpr int kStep = 1, kLongStep = 10;  // pixels that an object is moved by keys
constexpr int kScrollStep = 40;           // pixels that a key scrolls

bool Held(int key) {
  return ::GetKeyState(key) < 0;
}

// Where an arrow key leads.
std::optional<Point> ArrowOf(WPARAM key) {
  if (key < VK_LEFT || key > VK_DOWN) return std::nullopt;
  return Point{key == VK_LEFT    ? -1
               : key == VK_RIGHT ? 1
                                 : 0,
               key == VK_UP     ? -1
               : key == VK_DOWN ? 1
                                : 0};
}

}  // namespace

struct WhiteboardForm::Action {
  Group group;
  Command command;
  WORD key;  // 0: none
  bool ctrl;
  void (WhiteboardForm::*run)();
  bool (WhiteboardForm::*usable)() const;  // null: always
};

std::span<const WhiteboardForm::Action> WhiteboardForm::Actions() {
  using Form = WhiteboardForm;
  static constexpr Action kActions[] = {
      {kBoards, {L"mnuWBOARDNEW", L"&New board", L"Ctrl+N"}, 'N', true, &Form::BoardNew, nullptr},
      {kBoards,
       {L"mnuWBOARDSAVE", L"&Save", L"Ctrl+S"},
       'S',
       true,
       &Form::BoardSave,
       &Form::Changed},
      {kBoards,
       {L"mnuWBOARDRENAME", L"Rena&me", L"F2"},
       VK_F2,
       false,
       &Form::WhiteboardRenameShow,
       &Form::HasFile},
      {kBoards,
       {L"mnuWBOARDDELETE", L"&Delete...", L"Del"},
       VK_DELETE,
       false,
       &Form::BoardDelete,
       &Form::HasFile},
      {kBack, {L"mnuWBOARDUNDO", L"&Undo", L"Ctrl+Z"}, 'Z', true, &Form::Undo, &Form::CanUndo},
      {kBack, {L"mnuWBOARDREDO", L"Red&o", L"Ctrl+Y"}, 'Y', true, &Form::Redo, &Form::CanRedo},
      {kBack, {L"mnuWBOARDCLEAR", L"&Clear the board"}, 0, false, &Form::Clear, nullptr},
      {kObjects,
       {L"mnuWBOARDINSTEXT", L"Insert &text...", L"Ctrl+T"},
       'T',
       true,
       &Form::InsertTextShow,
       nullptr},
      {kObjects,
       {L"mnuWBOARDINSPIC", L"Insert a p&icture...", L"Ctrl+I"},
       'I',
       true,
       &Form::InsertPictureShow,
       nullptr},
      {kObjects,
       {L"mnuWBOARDCOPY", L"Cop&y the board", L"Ctrl+C"},
       'C',
       true,
       &Form::Copy,
       nullptr},
      {kObjects, {L"mnuWBOARDPASTE", L"P&aste", L"Ctrl+V"}, 'V', true, &Form::Paste, nullptr},
      {kRest,
       {L"mnuWBOARDLIST", L"Show the &list", L"Ctrl+L"},
       'L',
       true,
       &Form::ToggleList,
       nullptr},
      {kRest,
       {L"mnuWBOARDPROPS", L"Whiteboard p&roperties..."},
       0,
       false,
       &Form::Properties,
       nullptr},
  };
  return kActions;
}

std::vector<MenuItem> WhiteboardForm::PenItems() const {
  std::vector<MenuItem> items;
  for (int i = 0; i < kPens; ++i) {
    MenuItem item;
    item.id = ArrayCommandId(kPenCommands, i);
    item.caption = kPenCaptions[static_cast<std::size_t>(i)];
    item.key = i == kEraser ? L"E" : NumberText(i + 1);
    item.checked = std::min(board_.PenColorIndex(), kEraser) == i;
    items.push_back(std::move(item));
  }
  return items;
}

std::vector<MenuItem> WhiteboardForm::WidthItems() const {
  std::vector<MenuItem> items;
  for (std::size_t i = 0; i < kPenWidths.size(); ++i) {
    items.push_back(ItemOf(kWidthCommands[i], true, kPenWidths[i].pixels == board_.pen_width()));
  }
  return items;
}

std::vector<MenuItem> WhiteboardForm::MenuGroup() const {
  std::vector<MenuItem> items;
  const auto add = [&](Group group) {
    if (!items.empty()) items.push_back(MenuSeparator());
    for (const Action& action : Actions()) {
      if (action.group != group) continue;
      const bool usable = !action.usable || (this->*action.usable)();
      const bool checked = action.run == &WhiteboardForm::ToggleList && list_wanted_;
      items.push_back(ItemOf(action.command, usable, checked));
    }
  };
  add(kBoards);
  add(kBack);
  add(kObjects);
  items.push_back(MenuSeparator());
  items.push_back(ItemOf(kPens_));
  items.back().children = PenItems();
  for (MenuItem& item : WidthItems()) items.push_back(std::move(item));
  add(kRest);
  items.insert(items.end() - 1, ItemOf(kPrint, false));
  return items;
}

bool WhiteboardForm::RunOwnCommand(int id) {
  if (const int pen = ArrayCommandIndex(kPenCommands, kPens, id); pen >= 0) {
    WhiteboardPenColor(pen);
    return true;
  }
  for (std::size_t i = 0; i < kPenWidths.size(); ++i) {
    if (id != CommandId(kWidthCommands[i].name)) continue;
    WhiteboardPenSize(kPenWidths[i].pixels);
    return true;
  }
  const auto found = std::ranges::find(
      Actions(), id, [](const Action& action) { return int{CommandId(action.command.name)}; });
  if (found == Actions().end()) return false;
  if (!found->usable || (this->*found->usable)()) (this->*found->run)();
  return true;
}

void WhiteboardForm::Properties() {
  services().program.OpenDialog(L"frmWBDpr");
}

void WhiteboardForm::ToggleList() {
  list_wanted_ = !list_wanted_;
  WriteFlag(services().settings, kBoardList, list_wanted_);
  Form_Resize();
  ShowBoard();
}

void WhiteboardForm::OnControl(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id >= cmdPEN && id < cmdPEN + kPens) {
    WhiteboardPenColor(id - cmdPEN);
  } else if (id == cmdPENS) {
    DropMenu(id, PenItems());
  } else if (id >= cmdBOARDTOOL && id < cmdBOARDTOOL + static_cast<int>(kBoardTools)) {
    switch (static_cast<BoardTool>(id - cmdBOARDTOOL)) {
      case BoardTool::kPenWidth:
        return DropMenu(id, WidthItems());
      case BoardTool::kText:
        return InsertTextShow();
      case BoardTool::kPicture:
        return InsertPictureShow();
      case BoardTool::kUndo:
        return Undo();
      case BoardTool::kRedo:
        return Redo();
      case BoardTool::kNew:
        return BoardNew();
      case BoardTool::kList:
        return ToggleList();
    }
  }
}

void WhiteboardForm::DropMenu(int button, const std::vector<MenuItem>& items) {
  RECT box = {};
  ::GetWindowRect(::GetDlgItem(handle(), button), &box);
  const int chosen =
      ShowPopupMenu(handle(), {static_cast<int>(box.left), static_cast<int>(box.bottom)}, items);
  if (handle()) RunOwnCommand(chosen);
}

// --- keys

bool WhiteboardForm::OnKey(const MSG& message) {
  if (lvwFILES_.renaming()) return false;
  if (message.message == WM_CHAR && OnCharacter(static_cast<wchar_t>(message.wParam))) return true;
  if (message.message == WM_KEYDOWN) {
    if (board_.floating() && OnFloatKey(message.wParam)) return true;
    if (RunKey(message.wParam)) return true;
  }
  lvwFILES_.OnKey(message);
  return WidgetForm::OnKey(message);
}

bool WhiteboardForm::OnFloatKey(WPARAM key) {
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
bool WhiteboardForm::OnCharacter(wchar_t character) {
  if (Held(VK_CONTROL) && !Held(VK_MENU)) return false;
  if (character >= L'1' && character < L'0' + kPens) {
    WhiteboardPenColor(character - L'1');
  } else if (character == L'e' || character == L'E') {
    WhiteboardPenColor(kEraser);
  } else if (character == L'[' || character == L']') {
    WhiteboardPenSize(NextPenWidth(board_.pen_width(), character == L'[' ? -1 : 1));
  } else {
    return false;
  }
  return true;
}

bool WhiteboardForm::RunKey(WPARAM key) {
  if (Held(VK_MENU)) return false;
  const bool ctrl = Held(VK_CONTROL);
  // The second key of many programs for the same.
  if (ctrl && Held(VK_SHIFT) && key == 'Z') key = 'Y';
  const auto found = std::ranges::find_if(Actions(), [&](const Action& action) {
    return action.key == key && key != 0 && action.ctrl == ctrl;
  });
  if (found != Actions().end()) return RunOwnCommand(CommandId(found->command.name));
  const auto arrow = ArrowOf(key);
  if (!arrow || ctrl || ::GetFocus() != picMAINBOARD_.handle()) return false;
  picMAINBOARD_.ScrollBy(arrow->x * kScrollStep, arrow->y * kScrollStep);
  return true;
}

// --- other messages

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
    case WM_DROPFILES: {
      const auto drop = reinterpret_cast<HDROP>(wparam);
      const auto paths = DroppedPaths(drop);
      ::DragFinish(drop);
      if (!paths.empty()) InsertPictureFile(paths.front());
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

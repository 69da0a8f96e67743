#include "tests/rig/controls.h"

#include <commctrl.h>

#include <algorithm>

#include "base/text.h"
#include "tests/rig/remote.h"

namespace varnel::rig {
namespace {

// The messages and notifications that differ between the two kinds of list.
struct ListMessages {
  UINT count, text_length, text, selected, select;
  WORD chosen;
};

const ListMessages& MessagesOf(HWND list) {
  static constexpr ListMessages kCombo = {CB_GETCOUNT,  CB_GETLBTEXTLEN, CB_GETLBTEXT,
                                          CB_GETCURSEL, CB_SETCURSEL,    CBN_SELCHANGE};
  static constexpr ListMessages kList = {LB_GETCOUNT,  LB_GETTEXTLEN, LB_GETTEXT,
                                         LB_GETCURSEL, LB_SETCURSEL,  LBN_SELCHANGE};
  return ClassOf(list) == L"ComboBox" ? kCombo : kList;
}

}  // namespace

HWND Control(HWND form, int id) {
  if (HWND control = ::GetDlgItem(form, id)) return control;
  const std::vector<HWND> children = ChildrenOf(form);
  const auto found = std::find_if(children.begin(), children.end(),
                                  [id](HWND child) { return ::GetDlgCtrlID(child) == id; });
  return found == children.end() ? nullptr : *found;
}

HWND ChildOfClass(HWND form, std::wstring_view class_name) {
  const std::vector<HWND> children = ChildrenOf(form);
  const auto found = std::find_if(children.begin(), children.end(), [class_name](HWND child) {
    return ClassOf(child) == class_name;
  });
  return found == children.end() ? nullptr : *found;
}

std::vector<HWND> ChildrenOf(HWND form) {
  std::vector<HWND> children;
  ::EnumChildWindows(
      form,
      [](HWND child, LPARAM data) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(data)->push_back(child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&children));
  return children;
}

std::wstring Text(HWND window) {
  const auto length = static_cast<std::size_t>(Send(window, WM_GETTEXTLENGTH));
  std::wstring text(length + 1, L'\0');
  text.resize(static_cast<std::size_t>(
      Send(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
  return text;
}

void SetText(HWND window, const std::wstring& text) {
  Send(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

bool IsChecked(HWND button) {
  return Send(button, BM_GETCHECK) == BST_CHECKED;
}

std::vector<std::wstring> Items(HWND list) {
  const ListMessages& messages = MessagesOf(list);
  std::vector<std::wstring> items;
  const LRESULT count = Send(list, messages.count);
  for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
    const LRESULT length = Send(list, messages.text_length, i);
    std::wstring item(static_cast<std::size_t>(std::max<LRESULT>(length, 0)) + 1, L'\0');
    Send(list, messages.text, i, reinterpret_cast<LPARAM>(item.data()));
    item.pop_back();
    items.push_back(item);
  }
  return items;
}

int Selected(HWND list) {
  return static_cast<int>(Send(list, MessagesOf(list).selected));
}

bool Select(HWND list, int index) {
  const ListMessages& messages = MessagesOf(list);
  if (index < 0 || index >= Send(list, messages.count)) return false;
  Send(list, messages.select, static_cast<WPARAM>(index));
  Send(::GetParent(list), WM_COMMAND,
       MAKEWPARAM(static_cast<WORD>(::GetDlgCtrlID(list)), messages.chosen),
       reinterpret_cast<LPARAM>(list));
  return true;
}

bool Select(HWND list, std::wstring_view text) {
  const std::vector<std::wstring> items = Items(list);
  const auto found = std::find(items.begin(), items.end(), text);
  return found != items.end() && Select(list, static_cast<int>(found - items.begin()));
}

int SliderPosition(HWND slider) {
  return static_cast<int>(Send(slider, TBM_GETPOS));
}

std::pair<int, int> SelectedUnits(HWND edit) {
  if (!EqualsIgnoreCase(ClassOf(edit), MSFTEDIT_CLASS)) {
    const LRESULT both = Send(edit, EM_GETSEL);
    return {LOWORD(both), HIWORD(both)};
  }
  CHARRANGE range = {};
  SendRecord(edit, EM_EXGETSEL, 0, range);
  return {static_cast<int>(range.cpMin), static_cast<int>(range.cpMax)};
}

std::vector<std::wstring> RowLabels(HWND list_view) {
  // The record points to the text, so both are in the other program's memory.
  struct Request {
    LVITEMW item;
    wchar_t text[MAX_PATH];
  };
  std::vector<std::wstring> labels;
  const auto count = static_cast<int>(Send(list_view, LVM_GETITEMCOUNT));
  for (int row = 0; row < count; ++row) {
    Request request = {};
    const RemoteMemory memory(list_view, &request, sizeof request);
    request.item.pszText =
        reinterpret_cast<wchar_t*>(memory.address() + static_cast<LPARAM>(sizeof(LVITEMW)));
    request.item.cchTextMax = MAX_PATH;
    memory.Write(&request, sizeof request);
    Send(list_view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), memory.address());
    memory.Read(&request, sizeof request);
    labels.emplace_back(request.text);
  }
  return labels;
}

std::vector<int> SelectedRows(HWND list_view) {
  std::vector<int> rows;
  for (int row = -1;;) {
    row =
        static_cast<int>(Send(list_view, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED));
    if (row < 0) return rows;
    rows.push_back(row);
  }
}

void SelectUnits(HWND rich_edit, int from, int to) {
  CHARRANGE range = {from, to};
  SendRecord(rich_edit, EM_EXSETSEL, 0, range);
}

CharacterFormat FormatOfSelection(HWND rich_edit) {
  CHARFORMAT2W format = {};
  format.cbSize = sizeof format;
  SendRecord(rich_edit, EM_GETCHARFORMAT, SCF_SELECTION, format);
  return FromSystem(format);
}

RichParagraph ParagraphOfSelection(HWND rich_edit) {
  PARAFORMAT2 format = {};
  format.cbSize = sizeof format;
  SendRecord(rich_edit, EM_GETPARAFORMAT, 0, format);
  return FromSystem(format);
}

}  // namespace varnel::rig

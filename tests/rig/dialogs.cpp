#include "tests/rig/dialogs.h"

#include <commctrl.h>
#include <shlobj.h>

#include <algorithm>

#include "tests/rig/remote.h"

namespace varnel::rig {
namespace {

// Numbers of the controls in the system's dialogs.
constexpr int kFileName = 1148;
constexpr int kFileFilter = 1136;
constexpr int kFolderPath = 14149;

}  // namespace

HWND FindDialog(const Program& program) {
  const std::vector<HWND> dialogs = FindForms(program, L"#32770");
  const auto shown = std::find_if(dialogs.begin(), dialogs.end(), IsShown);
  return shown == dialogs.end() ? nullptr : *shown;
}

HWND WaitForDialog(const Program& program, int deadline) {
  return WaitForForm(program, L"#32770", deadline);
}

std::wstring DialogText(HWND dialog) {
  std::wstring lines;
  for (HWND child : ChildrenOf(dialog)) {
    const std::wstring text = ClassOf(child) == L"Static" ? Text(child) : L"";
    if (text.empty()) continue;
    if (!lines.empty()) lines += L'\n';
    lines += text;
  }
  return lines;
}

void PressButton(HWND dialog, int id) {
  ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(id), BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

bool CloseDialog(HWND dialog, int id) {
  PressButton(dialog, id);
  return WaitUntil([dialog] { return !::IsWindow(dialog) || !IsShown(dialog); });
}

bool AnswerFileDialog(HWND dialog, const std::wstring& name, int filter) {
  HWND box = Control(dialog, kFileName);
  HWND edit = box ? ChildOfClass(box, L"Edit") : nullptr;
  if (!edit) return false;
  if (filter >= 0) {
    HWND filters = Control(dialog, kFileFilter);
    if (!Select(filters, filter)) return false;
    // The test platform listens to this one alone.
    Send(dialog, WM_COMMAND, MAKEWPARAM(kFileFilter, CBN_SELENDOK),
         reinterpret_cast<LPARAM>(filters));
  }
  SetText(edit, name);
  PressButton(dialog, IDOK);
  return true;
}

bool AnswerFolderDialog(HWND dialog, const std::wstring& folder) {
  const RemoteMemory path(dialog, folder.c_str(), (folder.size() + 1) * sizeof(wchar_t));
  if (!path || !Control(dialog, kFolderPath)) return false;
  // A dialog that is still filling its tree takes no choice.
  HWND tree = ChildOfClass(dialog, WC_TREEVIEWW);
  const auto chosen = [tree] { return Send(tree, TVM_GETNEXTITEM, TVGN_CARET); };
  if (!WaitUntil([&] { return chosen() != 0; })) return false;
  const LRESULT former = chosen();
  if (!WaitUntil([&] {
        Send(dialog, BFFM_SETSELECTIONW, TRUE, path.address());
        return chosen() != former;
      })) {
    return false;
  }
  PressButton(dialog, IDOK);
  return true;
}

}  // namespace varnel::rig

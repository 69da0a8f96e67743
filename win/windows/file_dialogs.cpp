#include "win/windows/file_dialogs.h"

#include <cderr.h>
#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

#include <algorithm>

#include "win/system/late_function.h"

namespace varnel {
namespace {

// The longest path that the system knows; one by itself always has room.
constexpr std::size_t kPathUnits = 32768;

// A request as the platform wants it, with the memory that it points into.
class PreparedDialog {
 public:
  PreparedDialog(HWND owner, const FileRequest& request, DWORD flags,
                 std::size_t units = kPathUnits)
      : title_(request.title), filter_(request.filter), folder_(request.folder) {
    if (std::ranges::count(filter_, L'|') % 2 == 0) filter_ += L"|*.*";
    std::ranges::replace(filter_, L'|', L'\0');
    filter_.append(2, L'\0');
    // The test platform writes beyond what it is told, so there is always room.
    path_.resize(std::max(units, kPathUnits), L'\0');
    if (request.name.size() < path_.size()) std::ranges::copy(request.name, path_.begin());
    dialog_.lStructSize = sizeof dialog_;
    dialog_.hwndOwner = owner;
    dialog_.lpstrTitle = title_.c_str();
    dialog_.lpstrFilter = filter_.c_str();
    dialog_.nFilterIndex = static_cast<DWORD>(request.filter_index);
    dialog_.lpstrInitialDir = folder_.empty() ? nullptr : folder_.c_str();
    dialog_.lpstrFile = path_.data();
    dialog_.nMaxFile = static_cast<DWORD>(units);
    dialog_.Flags = flags | OFN_EXPLORER | OFN_LONGNAMES | OFN_HIDEREADONLY | OFN_NOCHANGEDIR |
                    OFN_ENABLESIZING;
  }
  PreparedDialog(const PreparedDialog&) = delete;
  PreparedDialog& operator=(const PreparedDialog&) = delete;

  // `function` is GetOpenFileNameW or GetSaveFileNameW. False when the user cancelled or the
  // dialog failed. The common dialogs pull in much that start-up does not need, hence the late
  // address.
  bool Run(const char* function) {
    auto* run = LateFunction<BOOL WINAPI(OPENFILENAMEW*)>(L"comdlg32.dll", function);
    return run && run(&dialog_);
  }

  // One path, or a folder and the names in it; each ended by a zero, the last by two.
  std::vector<std::wstring> Pieces() const {
    std::vector<std::wstring> pieces;
    for (auto from = path_.begin(); from != path_.end() && *from;) {
      const auto to = std::find(from, path_.end(), L'\0');
      pieces.emplace_back(from, to);
      from = to == path_.end() ? to : to + 1;
    }
    return pieces;
  }
  std::wstring Path() const { return path_.c_str(); }
  int FilterIndex() const { return static_cast<int>(dialog_.nFilterIndex); }

 private:
  std::wstring title_;
  std::wstring filter_;
  std::wstring folder_;
  std::wstring path_;
  OPENFILENAMEW dialog_ = {};
};

bool NamesHadNoRoom() {
  auto* error = LateFunction<DWORD WINAPI()>(L"comdlg32.dll", "CommDlgExtendedError");
  return error && error() == FNERR_BUFFERTOOSMALL;
}

int CALLBACK ChooseStart(HWND dialog, UINT message, LPARAM, LPARAM start) {
  if (message == BFFM_INITIALIZED) ::SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, start);
  return 0;
}

}  // namespace

std::wstring BrowseForFile(HWND owner, const FileRequest& request) {
  PreparedDialog dialog(owner, request, OFN_FILEMUSTEXIST);
  return dialog.Run("GetOpenFileNameW") ? dialog.Path() : L"";
}

FilesChosen BrowseForFiles(HWND owner, const FileRequest& request, std::size_t units) {
  PreparedDialog dialog(owner, request, OFN_FILEMUSTEXIST | OFN_ALLOWMULTISELECT, units);
  if (!dialog.Run("GetOpenFileNameW")) return {{}, NamesHadNoRoom()};
  std::vector<std::wstring> pieces = dialog.Pieces();
  std::size_t used = 1;  // each piece is ended by a zero, the last by two
  for (const std::wstring& piece : pieces) used += piece.size() + 1;
  if (used > units) return {{}, true};
  if (pieces.size() < 2) return {pieces};
  std::wstring folder = pieces.front();
  if (!folder.ends_with(L'\\')) folder += L'\\';
  pieces.erase(pieces.begin());
  for (std::wstring& piece : pieces) piece = folder + piece;
  return {pieces};
}

std::optional<FileToSave> BrowseForFileToSave(HWND owner, const FileRequest& request) {
  PreparedDialog dialog(owner, request, OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST);
  if (!dialog.Run("GetSaveFileNameW")) return std::nullopt;
  return FileToSave{dialog.Path(), dialog.FilterIndex()};
}

std::wstring BrowseForFolder(HWND owner, const std::wstring& title, const std::wstring& start) {
  BROWSEINFOW request = {};
  request.hwndOwner = owner;
  request.lpszTitle = title.c_str();
  request.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_EDITBOX;
  if (!start.empty()) {
    request.lpfn = ChooseStart;
    request.lParam = reinterpret_cast<LPARAM>(start.c_str());
  }
  ITEMIDLIST* chosen = ::SHBrowseForFolderW(&request);
  if (!chosen) return {};
  wchar_t path[MAX_PATH] = {};
  const bool known = ::SHGetPathFromIDListW(chosen, path) != FALSE;
  ::CoTaskMemFree(chosen);
  return known ? path : L"";
}

}  // namespace varnel

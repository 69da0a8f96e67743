#include "frame/folder_dialog.h"

#include "base/path.h"
#include "base/text.h"
#include "resources/control_ids.h"
#include "win/windows/file_dialogs.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr int kLongestPath = 240;  // with room for the names of the documents in it
constexpr Message kNoPath{L"Folder",
                          L"\"%1\" is no whole path of a folder, such as C:\\Documents\\."};
constexpr Message kNotMade{L"Folder", L"The folder \"%1\" cannot be made."};

}  // namespace

void FolderDialog::OnOpen() {
  shown_ = ReadFolder(services_.settings, setting_, services_.program_folder);
  ::SendMessageW(Control(txtLOCATION), EM_LIMITTEXT, kLongestPath, 0);
  SetControlText(txtLOCATION, shown_);
}

void FolderDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id == cmdBrowse) Browse();
  if (id == IDOK) Choose();
  if (id == IDCANCEL) Close();
}

void FolderDialog::Browse() {
  const std::wstring picked =
      BrowseForFolder(handle(), std::wstring(texts_.browse_title), ControlText(txtLOCATION));
  if (picked.empty() || !open()) return;
  SetControlText(txtLOCATION, DocumentFolderIn(picked, texts_.subfolder));
}

void FolderDialog::Choose() {
  std::wstring folder = Trim(ControlText(txtLOCATION));
  const bool changed = folder != shown_;
  if (changed) {
    if (!IsAbsolutePath(folder)) {
      Ask(handle(), kNoPath, {folder});
      return;
    }
    folder = texts_.append == Subfolder::kOfAnyChosen ? DocumentFolderIn(folder, texts_.subfolder)
                                                      : AddTrailingSeparator(folder);
  }
  if (!MayChange()) return;
  if (!EnsureFolder(services_.files, folder, folder)) {
    Ask(handle(), kNotMade, {folder});
    return;
  }
  services_.settings.Write(setting_.section, setting_.name, folder);
  Store();
  Close();
  OnChosen(changed);
}

}  // namespace varnel

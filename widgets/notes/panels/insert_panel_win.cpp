#include "widgets/notes/panels/insert_panel_win.h"

#include <algorithm>

#include "base/name_order.h"
#include "base/path.h"
#include "base/text.h"
#include "resources/control_ids.h"
#include "widgets/notes/note_settings.h"
#include "win/files/folder_listing.h"

namespace varnel {
namespace {

constexpr std::wstring_view kUp = L"..";
constexpr std::wstring_view kNoFiles = L"(no file of this kind)";

bool IsNoteFile(std::wstring_view name) {
  return EndsWithIgnoreCase(name, L".rtf") || EndsWithIgnoreCase(name, L".txt");
}

std::wstring ParentOf(const std::wstring& folder) {
  const std::size_t cut = folder.find_last_of(L'\\', folder.size() - 2);
  return cut == std::wstring::npos ? folder : folder.substr(0, cut + 1);
}

std::wstring NameOfFolder(const std::wstring& folder) {
  const std::wstring parent = ParentOf(folder);
  if (parent == folder) return folder;
  return folder.substr(parent.size(), folder.size() - parent.size() - 1);
}

}  // namespace

void InsertPanel::Load() {
  AddCombo(kind_.drives, CBS_DROPDOWNLIST, L"Drive", {48, 2, false});
  AddCombo(kind_.folders, CBS_DROPDOWNLIST, L"Folder", {128, 0});
  AddCombo(kind_.files, CBS_DROPDOWNLIST, L"File", {158, 0, true});
  AddButton(kind_.insert, L"Insert", 0, {54, 0});
}

void InsertPanel::OnOpened() {
  const std::wstring stored = host().PanelServices().settings.Read(kind_.folder);
  const bool there = host().PanelServices().files.FolderExists(stored);
  Show(there ? stored : host().PanelServices().program_folder);
}

void InsertPanel::Fill(int id, const std::vector<std::wstring>& entries, std::size_t chosen) {
  HWND box = Control(id);
  ::SendMessageW(box, WM_SETREDRAW, FALSE, 0);
  ::SendMessageW(box, CB_RESETCONTENT, 0, 0);
  for (const std::wstring& entry : entries) {
    ::SendMessageW(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
  }
  ::SendMessageW(box, CB_SETCURSEL, chosen, 0);
  ::SendMessageW(box, WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(box, nullptr, TRUE);
}

void InsertPanel::Show(std::wstring folder) {
  if (!folder.ends_with(L'\\')) folder += L'\\';
  folder_ = std::move(folder);
  host().PanelServices().settings.Write(kind_.folder, folder_);
  const std::vector<std::wstring> drives = Drives();
  const auto drive = std::ranges::find_if(drives, [this](const std::wstring& root) {
    return EqualsIgnoreCase(root, folder_.substr(0, root.size()));
  });
  Fill(kind_.drives, drives, static_cast<std::size_t>(drive - drives.begin()));
  folders_ = {NameOfFolder(folder_)};
  if (ParentOf(folder_) != folder_) folders_.emplace_back(kUp);
  std::ranges::copy(FoldersIn(folder_), std::back_inserter(folders_));
  Fill(kind_.folders, folders_, 0);
  files_.clear();
  const std::wstring bare = folder_.substr(0, folder_.size() - 1);
  for (const FileEntry& entry : host().PanelServices().files.Files(bare).files) {
    if (kind_.shown(entry.name)) files_.push_back(entry.name);
  }
  std::ranges::sort(files_, [](const std::wstring& left, const std::wstring& right) {
    return CompareNaturally(left, right) < 0;
  });
  Fill(kind_.files, files_.empty() ? std::vector{std::wstring(kNoFiles)} : files_, 0);
}

std::size_t InsertPanel::Chosen(int id) const {
  const LRESULT chosen = ::SendMessageW(Control(id), CB_GETCURSEL, 0, 0);
  return static_cast<std::size_t>(std::max<LRESULT>(chosen, 0));
}

bool InsertPanel::OnControl(int id, int code) {
  if (id == kind_.insert) {
    if (code == BN_CLICKED) InsertChosen();
  } else if (id == kind_.drives) {
    const std::vector<std::wstring> drives = Drives();
    if (code == CBN_SELENDOK && Chosen(id) < drives.size()) Show(drives[Chosen(id)]);
  } else if (id == kind_.folders) {
    if (code == CBN_SELENDOK) OnFolder(Chosen(id));
  } else {
    return id == kind_.files;
  }
  return true;
}

void InsertPanel::OnFolder(std::size_t chosen) {
  if (chosen == 0 || chosen >= folders_.size()) return;
  Show(folders_[chosen] == kUp ? ParentOf(folder_) : folder_ + folders_[chosen]);
}

void InsertPanel::InsertChosen() {
  const std::size_t chosen = Chosen(kind_.files);
  if (chosen >= files_.size()) return;
  const std::wstring path = folder_ + files_[chosen];
  const FileRead read = host().PanelServices().files.Read(path, kMostNoteBytes);
  if (!read) {
    host().Tell(L"\"" + files_[chosen] + L"\" " + std::wstring(FileTrouble(read.result)));
    return;
  }
  Insert(path, read.bytes);
  host().AfterCommand();
}

TextPanel::TextPanel(NotePanelHost& host)
    : InsertPanel(host, {L"Insert a document", drvFOLDERS, dirFOLDERS, flbLIST, btnTXTINS,
                         kTextFolder, IsNoteFile}) {}

void TextPanel::Insert(const std::wstring&, const std::string& bytes) {
  host().Editor().InsertFile(bytes);
}

PicturePanel::PicturePanel(NotePanelHost& host)
    : InsertPanel(host, {L"Insert a picture", drvPICTURES, dirPICTURES, flbLISTPICS, btnINSPICTURE,
                         kPictureFolder, IsPictureFile}) {}

void PicturePanel::Insert(const std::wstring& path, const std::string& bytes) {
  if (IsPictureFile(path)) host().Editor().InsertPicture(PictureOfFile(bytes));
}

}  // namespace varnel

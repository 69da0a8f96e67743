#include "widgets/notes/panels/insert_panel_win.h"

#include <algorithm>

#include "base/name_order.h"
#include "base/path.h"
#include "base/pixel_mix.h"
#include "base/resample.h"
#include "base/text.h"
#include "resources/control_ids.h"
#include "widgets/notes/note_settings.h"
#include "win/files/folder_listing.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kPreviewWidth = 130;
constexpr int kLeastBeside = 210;  // for what stands beside the preview
constexpr int kPreviewRows = 3;
constexpr int kPreviewZoom = 60;  // percent
// What takes long to be shown is shown by its first words.
constexpr std::size_t kMostPreviewBytes = 64 * 1024;
constexpr std::size_t kPreviewUnits = 1500;

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

// --- where the preview stands: at the right, as high as the panel

bool InsertPanel::HasRoomForPreview(int width) const {
  return width >= Scaled(kPreviewWidth + kLeastBeside + 2 * kPanelEdge, host().PanelDpi());
}

int InsertPanel::Rows(int width) const {
  if (!HasRoomForPreview(width)) return NotePanel::Rows(width);
  return std::max(NotePanel::Rows(width - Scaled(kPreviewWidth, host().PanelDpi())), kPreviewRows);
}

void InsertPanel::Place(const Rect& box) {
  const int dpi = host().PanelDpi();
  const bool shown = HasRoomForPreview(box.width()) && box.height() >= Scaled(PanelHeight(2), dpi);
  Rect controls = box;
  if (shown) controls.right -= Scaled(kPreviewWidth, dpi);
  NotePanel::Place(controls);
  HWND preview = Control(kind_.preview);
  Rect place = Inset(box, Scaled(kPanelEdge, dpi));
  place.left = controls.right;
  if (shown) PlaceWindow(preview, place);
  ::ShowWindow(preview, shown ? SW_SHOWNA : SW_HIDE);
}

bool InsertPanel::Has(HWND control) const {
  return NotePanel::Has(control) || (control && control == Control(kind_.preview));
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
  PreviewChosen();
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
  } else if (id == kind_.files) {
    if (code == CBN_SELCHANGE) PreviewChosen();
  } else {
    return false;
  }
  return true;
}

void InsertPanel::OnFolder(std::size_t chosen) {
  if (chosen == 0 || chosen >= folders_.size()) return;
  Show(folders_[chosen] == kUp ? ParentOf(folder_) : folder_ + folders_[chosen]);
}

std::optional<std::wstring> InsertPanel::ChosenPath() const {
  const std::size_t chosen = Chosen(kind_.files);
  if (chosen >= files_.size()) return std::nullopt;
  return folder_ + files_[chosen];
}

void InsertPanel::PreviewChosen() {
  const auto path = ChosenPath();
  const FileRead read =
      path ? host().PanelServices().files.Read(*path, kMostNoteBytes) : FileRead{};
  if (path && read) {
    Preview(*path, read.bytes);
  } else {
    ClearPreview();
  }
}

void InsertPanel::InsertChosen() {
  const auto path = ChosenPath();
  if (!path) return;
  const FileRead read = host().PanelServices().files.Read(*path, kMostNoteBytes);
  if (!read) {
    host().Tell(L"\"" + files_[Chosen(kind_.files)] + L"\" " +
                std::wstring(FileTrouble(read.result)));
    return;
  }
  Insert(*path, read.bytes);
  host().AfterCommand();
}

// --- documents

TextPanel::TextPanel(NotePanelHost& host)
    : InsertPanel(host,
                  {drvFOLDERS, dirFOLDERS, flbLIST, rtbPREV, btnTXTINS, kTextFolder, IsNoteFile}),
      rtbPREV_(host.PanelServices().files, NoteEditor::Silent()) {}

void TextPanel::Load() {
  InsertPanel::Load();
  rtbPREV_.Load(host().PanelParent(), rtbPREV, NoteBaseFormat(host().PanelServices().settings));
  ::ShowWindow(rtbPREV_.handle(), SW_HIDE);
  rtbPREV_.edit().SetReadOnly(true);
}

void TextPanel::Preview(const std::wstring& path, const std::string& bytes) {
  if (bytes.size() <= kMostPreviewBytes) {
    rtbPREV_.Show(NoteTypeOf(path), bytes);
  } else {
    const RtfReading reading = ReadRtf(bytes, SystemRtfOrigin());
    const std::wstring text = reading.fault == RtfFault::kNone
                                  ? reading.document.text
                                  : ReadText(bytes, SystemTextEncoding()).text;
    rtbPREV_.Show(NoteType::kTxt, Utf8FromWide(text.substr(0, kPreviewUnits)));
  }
  rtbPREV_.edit().SetZoom(kPreviewZoom);
}

void TextPanel::ClearPreview() {
  rtbPREV_.StartEmpty(NoteType::kTxt);
}

void TextPanel::Insert(const std::wstring&, const std::string& bytes) {
  host().Editor().InsertFile(bytes);
}

// --- pictures

bool PicturePreview::Load(HWND parent, int id) {
  Creation creation;
  creation.class_name = L"VarnelPicture";
  creation.style = WS_CHILD;
  creation.parent = parent;
  creation.id = id;
  return Create(creation);
}

void PicturePreview::Show(const Image& picture, Colour ground) {
  ground_ = ground;
  picture_ = picture;
  for (std::uint32_t& pixel : picture_.All()) {
    pixel = MixPixels(OpaquePixel(ground), pixel | 0xFF000000, pixel >> 24);
  }
  shown_ = {};
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void PicturePreview::Paint(Surface& surface) {
  const Rect area = client();
  FillRectangle(surface.dc(), area, ground_);
  if (picture_.empty()) return;
  const double scale = std::min({1.0, area.width() / static_cast<double>(picture_.width()),
                                 area.height() / static_cast<double>(picture_.height())});
  const Size size{std::max(static_cast<int>(picture_.width() * scale), 1),
                  std::max(static_cast<int>(picture_.height() * scale), 1)};
  if (shown_.width() != size.width || shown_.height() != size.height) {
    shown_ = Resampled(picture_, size);
  }
  PutImage(surface, {(area.width() - size.width) / 2, (area.height() - size.height) / 2}, shown_);
}

PicturePanel::PicturePanel(NotePanelHost& host)
    : InsertPanel(host, {drvPICTURES, dirPICTURES, flbLISTPICS, imgPREVIEW, btnINSPICTURE,
                         kPictureFolder, IsPictureFile}),
      imgPREVIEW_(host.PanelServices().ui) {}

void PicturePanel::Load() {
  InsertPanel::Load();
  imgPREVIEW_.Load(host().PanelParent(), imgPREVIEW);
}

void PicturePanel::Preview(const std::wstring&, const std::string& bytes) {
  imgPREVIEW_.Show(DecodePicture(bytes).image, host().PanelText().ground);
}

void PicturePanel::ClearPreview() {
  imgPREVIEW_.Show({}, host().PanelText().ground);
}

void PicturePanel::Insert(const std::wstring& path, const std::string& bytes) {
  if (IsPictureFile(path)) host().Editor().InsertPicture(PictureOfFile(bytes));
}

}  // namespace varnel

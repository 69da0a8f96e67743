#include "frame/versions_dialog.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/resample.h"
#include "resources/control_ids.h"
#include "win/graphics/surface.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

// When it was saved, in the user's own form, and how large it is.
std::wstring LineOf(const FileStamp& stamp) {
  const FILETIME utc{static_cast<DWORD>(stamp.written), static_cast<DWORD>(stamp.written >> 32)};
  SYSTEMTIME universal = {};
  SYSTEMTIME local = {};
  ::FileTimeToSystemTime(&utc, &universal);
  ::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
  wchar_t date[80] = {};
  wchar_t time[80] = {};
  ::GetDateFormatEx(nullptr, DATE_SHORTDATE, &local, nullptr, date, 80, nullptr);
  ::GetTimeFormatEx(nullptr, 0, &local, nullptr, time, 80);
  const auto kilobytes = static_cast<long long>((stamp.size + 1023) / 1024);
  return std::wstring(date) + L"  " + time + L"  (" + NumberText(kilobytes) + L" KB)";
}

// The largest size of that shape within `most`, but not larger than it is.
Size Fitted(Size size, Size most) {
  const double scale = std::min({1.0, static_cast<double>(most.width) / size.width,
                                 static_cast<double>(most.height) / size.height});
  return {std::max(1, static_cast<int>(size.width * scale)),
          std::max(1, static_cast<int>(size.height * scale))};
}

}  // namespace

std::vector<DocumentVersion> VersionsDialog::Present() const {
  return widget() ? widget()->Versions() : std::vector<DocumentVersion>();
}

// The widget may have turned to another document, or saved this one once more.
bool VersionsDialog::IsUpToDate() {
  if (Present() == versions_) return true;
  Fill();
  return false;
}

void VersionsDialog::Fill() {
  versions_ = Present();
  ::SendMessageW(Control(lstVERSIONS), LB_RESETCONTENT, 0, 0);
  for (const DocumentVersion& version : versions_) {
    ::SendMessageW(Control(lstVERSIONS), LB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(LineOf(version.stamp).c_str()));
  }
  ::SendMessageW(Control(lstVERSIONS), LB_SETCURSEL, 0, 0);
  Preview();
}

const DocumentVersion* VersionsDialog::Chosen() const {
  const LRESULT chosen = ::SendMessageW(Control(lstVERSIONS), LB_GETCURSEL, 0, 0);
  return chosen >= 0 && chosen < std::ssize(versions_)
             ? &versions_[static_cast<std::size_t>(chosen)]
             : nullptr;
}

void VersionsDialog::Preview() {
  const DocumentVersion* version = Chosen();
  Enable(cmdRESTORE, version != nullptr);
  if (!version) return Show(std::wstring(traits_.none), {});
  const FileRead read = services_.files.Read(version->path, traits_.most_bytes);
  if (!read) return Show(L"It " + std::wstring(FileTrouble(read.result)) + L".", {});
  Show(WordsOf(read.bytes), PictureOf(read.bytes));
}

void VersionsDialog::Show(const std::wstring& words, Image picture) {
  picture_ = std::move(picture);
  SetControlText(txtVERSION, words);
  HWND image = Control(imgVERSION);
  if (!image) return;
  ::ShowWindow(Control(txtVERSION), picture_.empty() ? SW_SHOWNA : SW_HIDE);
  ::ShowWindow(image, picture_.empty() ? SW_HIDE : SW_SHOWNA);
  ::InvalidateRect(image, nullptr, FALSE);
}

bool VersionsDialog::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_ACTIVATE && LOWORD(wparam) != WA_INACTIVE) IsUpToDate();
  if (message != WM_DRAWITEM || wparam != imgVERSION || picture_.empty()) return false;
  const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
  const Size room{static_cast<int>(item.rcItem.right), static_cast<int>(item.rcItem.bottom)};
  Surface surface(room);
  FillRectangle(surface.dc(), {0, 0, room.width, room.height}, ::GetSysColor(COLOR_BTNFACE));
  const Image shown = Resampled(
      picture_, Fitted({picture_.width(), picture_.height()}, {room.width - 2, room.height - 2}));
  const Point corner{(room.width - shown.width()) / 2, (room.height - shown.height()) / 2};
  PutImage(surface, corner, shown);
  FrameRectangle(surface.dc(), Inset(RectAt(corner, {shown.width(), shown.height()}), -1),
                 ::GetSysColor(COLOR_BTNSHADOW));
  surface.CopyTo(item.hDC, {0, 0});
  return true;
}

void VersionsDialog::OnCommand(int id, int code) {
  if (id == lstVERSIONS && code == LBN_SELCHANGE) Preview();
  if (id == cmdRESTORE && code == BN_CLICKED) {
    if (!IsUpToDate()) return;  // what was chosen may be another document's
    const DocumentVersion* version = Chosen();
    if (version && widget()) widget()->RestoreVersion(DocumentVersion(*version));
    Close();
  }
  if (id == IDCANCEL) Close();
}

}  // namespace varnel

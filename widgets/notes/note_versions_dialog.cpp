#include "widgets/notes/versions_dialog.h"

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/note_desk.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

constexpr std::size_t kMostPreview = 20'000;  // units

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

std::wstring WordsOf(const std::string& bytes) {
  const RtfReading reading = ReadRtf(bytes);
  const std::wstring text = reading.fault == RtfFault::kNone
                                ? reading.document.text
                                : ReadText(bytes, SystemTextEncoding()).text;
  std::wstring lines;
  for (const wchar_t unit : text.substr(0, kMostPreview)) {
    lines += unit == kParagraphEnd || unit == kLineBreak ? std::wstring(L"\r\n")
             : unit == kObject                           ? std::wstring(L"[picture]")
                                                         : std::wstring(1, unit);
  }
  return lines;
}

}  // namespace

void VersionsDialog::Fill() {
  versions_ = link_.widget ? link_.widget->NoteVersions() : std::vector<DocumentVersion>();
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
  if (!version) return SetControlText(txtVERSION, L"This note has no earlier versions.");
  const FileRead read = services_.files.Read(version->path, kMostNoteBytes);
  SetControlText(txtVERSION, read ? WordsOf(read.bytes)
                                  : L"It " + std::wstring(FileTrouble(read.result)) + L".");
}

void VersionsDialog::OnCommand(int id, int code) {
  if (id == lstVERSIONS && code == LBN_SELCHANGE) Preview();
  if (id == cmdRESTORE && code == BN_CLICKED) {
    const DocumentVersion* version = Chosen();
    if (version && link_.widget) link_.widget->RestoreVersion(DocumentVersion(*version));
    Close();
  }
  if (id == IDCANCEL) Close();
}

}  // namespace varnel

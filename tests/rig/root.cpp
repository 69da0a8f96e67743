#include "tests/rig/root.h"

#include <filesystem>

#include "tests/rig/files.h"

namespace varnel::rig {
namespace {

// Where nobody answers.
constexpr wchar_t kNowhere[] = L"http://127.0.0.1:9/";
// What all programs of the machine share: which of them run when a user logs on.
constexpr wchar_t kAtLogon[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

std::wstring UniqueTitle() {
  LARGE_INTEGER ticks = {};
  ::QueryPerformanceCounter(&ticks);
  return L"Varnel Scene " + std::to_wstring(::GetCurrentProcessId()) + L"-" +
         std::to_wstring(ticks.QuadPart);
}

}  // namespace

Root::Root()
    : title_(UniqueTitle()),
      folder_((std::filesystem::temp_directory_path() / (title_ + L" \u00E4")).wstring()),
      settings_(HKEY_CURRENT_USER, L"SOFTWARE\\" + title_) {
  std::filesystem::create_directories(folder_);
  settings_.SetText(L"Settings\\Details", L"Web Address", kNowhere);
  settings_.SetText(L"frmWTHpr\\Details", L"Live Weather Address", kNowhere);
}

Root::~Root() {
  settings_.RemoveAll();
  RemoveAll(folder_);
  for (HKEY hive : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
    const Registry at_logon(hive, kAtLogon);
    for (const std::wstring& name : at_logon.ValueNames(L"")) {
      if (name.find(title_) != std::wstring::npos) at_logon.RemoveValue(L"", name);
    }
  }
}

std::wstring Root::Arguments() const {
  return L"/settings \"" + title_ + L"\" /data \"" + folder_ + L"\"";
}

}  // namespace varnel::rig

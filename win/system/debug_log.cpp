#include "win/system/debug_log.h"

#include <windows.h>

#include "base/number_text.h"
#include "base/text.h"
#include "win/system/handles.h"

namespace varnel {
namespace {

constexpr LONGLONG kMostBytes = 512 * 1024;

std::wstring TimeStamp() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  return PaddedNumber(now.wYear, 4) + L"-" + PaddedNumber(now.wMonth, 2) + L"-" +
         PaddedNumber(now.wDay, 2) + L" " + PaddedNumber(now.wHour, 2) + L":" +
         PaddedNumber(now.wMinute, 2) + L":" + PaddedNumber(now.wSecond, 2) + L" ";
}

// Gives the system's error, or 0. A new file begins with `opening`, where there is one.
DWORD AppendLine(const std::wstring& path, std::wstring_view line, std::wstring_view opening = {}) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) &&
      data.nFileSizeLow > kMostBytes) {
    ::MoveFileExW(path.c_str(), (path + L".old").c_str(), MOVEFILE_REPLACE_EXISTING);
  }
  const UniqueFile file(::CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  const DWORD error = ::GetLastError();
  if (!file) return error;
  std::wstring text;
  if (!opening.empty() && error != ERROR_ALREADY_EXISTS) {
    text = TimeStamp() + std::wstring(opening) + L"\r\n";
  }
  text += TimeStamp() + std::wstring(line) + L"\r\n";
  const std::string bytes = Utf8FromWide(text);
  DWORD written = 0;
  return ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)
             ? ERROR_SUCCESS
             : ::GetLastError();
}

void AppendSomewhere(const std::wstring& path, std::wstring_view line) {
  const DWORD error = AppendLine(path, line);
  if (error == ERROR_SUCCESS) return;
  AppendLine(path + L".2", line,
             path + L" cannot be written, error " + NumberText(error) + L"; its lines are here");
}

}  // namespace

void DebugLog::Write(std::wstring_view line) const noexcept {
  try {
    ::OutputDebugStringW((std::wstring(line) + L"\n").c_str());
    if (!path_.empty()) AppendSomewhere(path_, line);
  } catch (...) {
    // Out of memory while reporting a fault: there is nobody left to tell.
  }
}

}  // namespace varnel

// Small services of the shell and the process.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace varnel {

// The full path of the running program file.
std::wstring ProgramPath();

// The words of the command line after the program's own name.
std::vector<std::wstring> CommandLineWords();

// Opens an http or https address with the shell's "OPEN" verb in the user's browser; anything else
// is refused. Failures are silent.
void OpenWebPage(HWND owner, const std::wstring& address);

// A message box with an OK button and the information sign, above windows that are kept on top.
void ShowInformation(HWND owner, const std::wstring& text, const std::wstring& title);

// A question with Yes and No, the latter chosen at first. True for Yes.
bool AskYesNo(HWND owner, const std::wstring& text, const std::wstring& title);

// Shows the hourglass pointer for the length of a scope.
class HourglassPointer {
 public:
  HourglassPointer() : former_(::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)))) {}
  HourglassPointer(const HourglassPointer&) = delete;
  HourglassPointer& operator=(const HourglassPointer&) = delete;
  ~HourglassPointer() { ::SetCursor(former_); }

 private:
  HCURSOR former_;
};

}  // namespace varnel

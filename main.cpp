// The program's entry.
#include <windows.h>

#include "catalogue_win.h"
#include "core/application_win.h"
#include "win/system/com.h"
#include "win/system/handles.h"
#include "win/system/hardening.h"
#include "win/system/process.h"
#include "win/system/single_instance.h"
#include "win/windows/common_controls.h"

namespace {

constexpr DWORD kLongestEnd = 30'000;  // milliseconds, with what it may ask the user

// Tells the program that runs already what this start was for, and lets it come to the front. Gives
// this one's exit code: 1 when the other was to end and did not.
int TellFirstInstance(const std::wstring& name, const varnel::CommandLine& command_line) {
  HWND first = ::FindWindowW(L"frmSTRmn", name.c_str());
  DWORD process = 0;
  ::GetWindowThreadProcessId(first, &process);
  ::AllowSetForegroundWindow(process);
  if (!command_line.quit) {
    ::PostMessageW(first, varnel::MenusForm::ShowMessage(),
                   static_cast<WPARAM>(command_line.show + 1), 0);
    return 0;
  }
  const varnel::UniqueKernelHandle running(::OpenProcess(SYNCHRONIZE, FALSE, process));
  ::PostMessageW(first, WM_CLOSE, 0, 0);
  return ::WaitForSingleObject(running.get(), kLongestEnd) == WAIT_OBJECT_0 ? 0 : 1;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  varnel::HardenProcess();
  varnel::EndOnUnhandledFault();
  varnel::BecomeDpiAware();
  const auto words = varnel::CommandLineWords();
  const varnel::CommandLine command_line = varnel::ParseCommandLine(words);
  const std::wstring name = varnel::Application::InstanceName(command_line);
  const varnel::SingleInstance only(name);
  if (!only.first()) return TellFirstInstance(name, command_line);
  if (command_line.quit) return 0;
  varnel::UseThemedControls();
  const varnel::ComApartment apartment;
  return varnel::Application(instance, command_line, varnel::ProgramFamilies()).Run();
}

// The program's entry.
#include <windows.h>

#include "catalogue_win.h"
#include "core/application_win.h"
#include "win/system/com.h"
#include "win/system/hardening.h"
#include "win/system/process.h"
#include "win/system/single_instance.h"
#include "win/windows/common_controls.h"

namespace {

// Asks the program that runs already to show its manager, and lets it come to the front.
void ShowFirstInstance(const std::wstring& name) {
  HWND first = ::FindWindowW(L"frmSTRmn", name.c_str());
  DWORD process = 0;
  ::GetWindowThreadProcessId(first, &process);
  ::AllowSetForegroundWindow(process);
  ::PostMessageW(first, varnel::MenusForm::ShowManagerMessage(), 0, 0);
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
  if (!only.first()) {
    ShowFirstInstance(name);
    return 0;
  }
  varnel::UseThemedControls();
  const varnel::ComApartment apartment;
  return varnel::Application(instance, command_line, varnel::ProgramFamilies()).Run();
}

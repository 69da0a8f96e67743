#include "win/system/hardening.h"

#include <windows.h>

namespace varnel {
namespace {

constexpr UINT kFaultExitCode = 70;

// Libraries that others load by name alone, such as comctl32 and the shell, and that are not on the
// system's list of known ones. Once loaded from the system folder no file of that name beside the
// program is taken for them.
constexpr const wchar_t* kPlantable[] = {L"uxtheme.dll", L"version.dll"};

LONG WINAPI EndProcess(EXCEPTION_POINTERS*) {
  ::TerminateProcess(::GetCurrentProcess(), kFaultExitCode);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void HardenProcess() {
  ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  ::HeapSetInformation(nullptr, HeapEnableTerminationOnCorruption, nullptr, 0);
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  // Extension points stay: older input methods and the hooks of assistive programs come in by them,
  // and people write here.
  PROCESS_MITIGATION_IMAGE_LOAD_POLICY images = {};
  images.NoRemoteImages = 1;
  images.PreferSystem32Images = 1;
  ::SetProcessMitigationPolicy(ProcessImageLoadPolicy, &images, sizeof images);
  for (const wchar_t* library : kPlantable) {
    ::LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  }
}

void EndOnUnhandledFault() {
  ::SetUnhandledExceptionFilter(&EndProcess);
}

void BecomeDpiAware() {
  if (!::SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE_V2)) {
    ::SetProcessDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE);
  }
}

}  // namespace varnel

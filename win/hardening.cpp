#include "win/hardening.h"

#include <windows.h>

namespace varnel {
namespace {

constexpr UINT kFaultExitCode = 70;

LONG WINAPI EndProcess(EXCEPTION_POINTERS*) {
  ::TerminateProcess(::GetCurrentProcess(), kFaultExitCode);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void HardenProcess() {
  ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  ::HeapSetInformation(nullptr, HeapEnableTerminationOnCorruption, nullptr, 0);
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  PROCESS_MITIGATION_EXTENSION_POINT_DISABLE_POLICY extensions = {};
  extensions.DisableExtensionPoints = 1;
  ::SetProcessMitigationPolicy(ProcessExtensionPointDisablePolicy, &extensions, sizeof extensions);
  PROCESS_MITIGATION_IMAGE_LOAD_POLICY images = {};
  images.NoRemoteImages = 1;
  images.PreferSystem32Images = 1;
  ::SetProcessMitigationPolicy(ProcessImageLoadPolicy, &images, sizeof images);
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
